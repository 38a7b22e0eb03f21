// SPDX-License-Identifier: MIT
// What the tables of the sheets are made of. A table is one row after another as the grid shows them; how a
// value is read, judged and stored stands beside its caption.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "document/document.h"
#include "properties/property_row.h"
#include "properties/sheet_work.h"

namespace kev {

// Where the items of a list come from.
enum class ListSource : std::uint8_t { Tail, Columns, Papers };

struct RowEditor {
  EditorKind kind = EditorKind::Text;
  std::string_view tail;
  ListSource source = ListSource::Tail;
};

// Why a value is not stored; the row then shows the old value again. A refusal without a text shows no box.
struct Refusal {
  int Text = 0;
  BoxIcon Icon = BoxIcon::Critical;
  std::string Words = {};   // behind the text, or in its place where there is none
  std::string Detail = {};  // the system's reason, in native bytes
  bool SelectsRow = false;
};
// Nothing where the value may be stored.
using Verdict = std::optional<Refusal>;

// The object whose row is read.
struct RowSource {
  const Document& document;
  int object;

  const ObjectRecord& Record() const { return document.Objects[object]; }
};

// The object whose row is stored.
struct RowTarget {
  SheetWork& work;
  int object;

  Document& TheDocument() const { return work.page.document; }
  ObjectRecord& Record() const { return TheDocument().Objects[object]; }
};

enum class RowPlace : std::uint8_t { Everywhere, DockedOnly, FloatingOnly };

struct ObjectRow {
  std::string_view caption;
  RowEditor editor;
  std::string (*read)(const RowSource& source) = nullptr;
  void (*store)(const RowTarget& target, std::string_view text) = nullptr;
  Verdict (*check)(const RowTarget& target,
                   std::string_view text) = nullptr;  // null: any value may be stored
  int description = 0;                                // 0: the line stays as it is
  RowPlace place = RowPlace::Everywhere;
  bool (*enabled)(const RowSource& source) = nullptr;  // null: always
  SheetAction action = SheetAction::None;
  bool inOwnCharSet = false;  // the value is text in the object's character set
};

// What the refresh behind an edit has to take care of.
enum class Reach : std::uint8_t { Object, Bands };

struct ObjectSheet {
  int title = 0;
  std::span<const ObjectRow> rows;
  // Behind the walk over the rows.
  void (*finish)(const RowTarget& target) = nullptr;
  Reach reach = Reach::Object;
};

// Null where there is no sheet: free rows, SECTION and ENDOFSUBSECTION.
const ObjectSheet* SheetOfObject(const Document& document, int object);

inline bool ShowsAt(const ObjectRow& row, SheetPlace place) {
  return row.place == RowPlace::Everywhere ||
         (row.place == RowPlace::DockedOnly) == (place == SheetPlace::Docked);
}

// One for each kind, and for the two sorts of subsections.
extern const ObjectSheet kLabelSheet, kTextBoxSheet, kPictureSheet, kBoxSheet, kLineSheet, kAnyLineSheet,
    kCircleSheet, kBarcodeSheet, kQrSheet, kChartSheet, kCommandSheet, kSectionSheet, kSubsectionSheet;

// --- The document's ---

struct DocumentRow {
  std::string_view caption;
  RowEditor editor;
  Setting setting;
  int description;
  std::string (*show)(const std::string& value) = nullptr;  // null: as it stands
  Verdict (*check)(const SheetWork& work, std::string_view text) = nullptr;
  void (*store)(const SheetWork& work, std::string_view text) = nullptr;  // null: as when it is read
  bool redraws = false;
};

std::span<const DocumentRow> DocumentRows();
// Behind the rows of both block characters: they must differ.
void SeparateBlockCharacters(const SheetWork& work);

// Shows why a value is refused.
void ShowRefusal(const SheetWork& work, const Refusal& refusal);

}  // namespace kev
