// SPDX-License-Identifier: MIT
// The dialog that makes a subsection or changes one, without its window: what it shows, what its controls do,
// what it refuses, and what OK does to the document. A window edits the plain values and calls the
// procedures. Texts are bytes of the document's code page.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/sample_records.h"
#include "surface/page_work.h"

namespace kev {

enum class BaseSection : std::uint8_t { Configuration, Header, Data, Footer };

struct BaseSectionRow {
  BaseSection id;
  std::string_view caption;    // in lists
  std::string_view title;      // in the document
  std::string_view emptyName;  // of a new subsection for which no name is typed
};

// In the order of the lists. Nothing can be put into the configuration.
inline constexpr std::array kBaseSections = {
    BaseSectionRow{BaseSection::Configuration, "[Configuration]", "[CONFIGURATION]", ""},
    BaseSectionRow{BaseSection::Header, "[Header]", "[HEADER]", "DPHEADERSECTION"},
    BaseSectionRow{BaseSection::Data, "[Data]", "[DATA]", "DPDATASECTION"},
    BaseSectionRow{BaseSection::Footer, "[Footer]", "[FOOTER]", "DPFOOTERSECTION"}};

constexpr const BaseSectionRow& RowOf(BaseSection section) {
  return kBaseSections[static_cast<std::size_t>(section)];
}

// A field list longer than this could not be taken apart again.
inline constexpr std::size_t kMostFields = 200;

struct SubsectionEntry {
  enum class Type : std::uint8_t { Base, Existing, New };
  Type What = Type::Base;
  BaseSection Section = BaseSection::Data;
  int Row = 0;       // of the bar; 0 for a base without one, and for the new subsection
  std::string Text;  // "[Data]", "[ITEMS:@code]"; empty for the new subsection
};

struct RecordTypeChoice {
  std::string Name;
  std::vector<std::string> Fields;
  bool Ticked = false;
};

struct SubsectionDialog {
  int Row = 0;             // the bar that is changed; 0 for a new one
  bool ShortForm = false;  // [HEADER], [DATA] and [FOOTER]: only the start can be changed
  BaseSection Section = BaseSection::Data;
  std::string Name;
  std::vector<RecordTypeChoice> RecordTypes;
  std::vector<std::string> Fields;
  bool AtCurrentPosition = true;
  std::string Start;  // twips, as typed; of no effect while AtCurrentPosition is set

  std::vector<SubsectionEntry> Existing;  // of the document, with all base sections
  // As they stood at the opening: what is left alone is neither checked nor stored.
  std::string OpenedName, OpenedStart;
  std::vector<std::string> OpenedFields;
  bool OpenedAtCurrentPosition = true;
  // The bar that OK made.
  int NewRow = 0;
};

// `fieldWord` is the user's word for a field. `section` is where the new one goes at first.
SubsectionDialog OpenNewSubsection(const Document& document, const std::vector<RecordType>& types,
                                   std::string_view fieldWord, BaseSection section = BaseSection::Data);
// Whether the row is a SUBSECTION that can be changed; those of the configuration are not.
bool CanOpenSubsection(const Document& document, int row);
SubsectionDialog OpenSubsection(const Document& document, int row, const std::vector<RecordType>& types,
                                std::string_view fieldWord);

// The section of a subsection on the page: that of the row, or of the bar that owns it; [DATA] without one.
BaseSection SectionOfRow(const Document& document, int row);

// Only for a new one; false, and nothing changes, for the configuration.
bool ChooseSection(SubsectionDialog& dialog, BaseSection section);
// A ticked type adds those of its fields that are not there yet, and its name if none is typed. A type that
// is no longer ticked takes the fields along that no other ticked one gives.
void TickRecordType(SubsectionDialog& dialog, std::size_t type, bool ticked);
// Fields are parted by commas or line ends.
void TypeFields(SubsectionDialog& dialog, std::string_view text);
// The existing ones by section, from top to bottom, and the new one where it will stand.
std::vector<SubsectionEntry> ListedEntries(const SubsectionDialog& dialog);

// The head line, "[ITEMS:@code,@text]".
std::string HeadOf(const SubsectionDialog& dialog);
// What the bar's start becomes: "Current Y Value" or whole twips, which are never 0.
std::string StartOf(const SubsectionDialog& dialog);
// The number of the text that says why OK does nothing; 0 when there is no reason.
int RefusalOf(const SubsectionDialog& dialog, const Document& document);

// OK. False when it was refused: the message was shown, nothing has changed and the dialog stays. A full
// table throws std::out_of_range.
bool AcceptSubsection(PageWork& work, SubsectionDialog& dialog);

}  // namespace kev
