// SPDX-License-Identifier: MIT
// What the small panel over the page shows for what is selected: the fields of the sample data and the
// built-in functions for a label, and whether the object lies on the grid.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"

namespace kev {

// In the order of the list.
inline constexpr auto kQuickFunctions =
    std::to_array<std::string_view>({"@@Pag", "@@OfPag", "@@Page", "@@Date", "@@Time", "@@Year", "@@Month",
                                     "@@Day", "@@Hour", "@@Minute", "@@Second"});

// `Frame1` is for a LABEL, `Frame2` for what has no text; a group has a title and nothing else.
enum class QuickPage : std::uint8_t { Hidden, Label, Shape, Group };

struct QuickField {
  std::string Name;
  std::size_t Index = 0;  // of its value in a record, from 0

  bool operator==(const QuickField&) const = default;
};

struct QuickPanel {
  QuickPage Page = QuickPage::Hidden;
  int Object = 0;     // the row it stands for; 0 for none and for a group
  int TitleText = 0;  // number of the title
  int Count = 0;      // of the objects of a group; stands behind the title
  bool AlignToGrid = false;
  std::string Content;  // of the label, in its character set
  std::string CharSet;
  std::string RecordName;  // the records of the sample data that the fields are of
  std::vector<QuickField> Fields;
  bool VariableFile = false;  // the fields are variables of a .ked file
  std::string SampleFile;     // native; empty where the document names none

  bool operator==(const QuickPanel&) const = default;
};

// The fields of a subsection's head, in their order; none for the three main sections. A name without a text
// is left out and counts all the same.
std::vector<QuickField> FieldsOfBar(const ObjectRecord& bar, const CodePage& page);

// `variables` are the names of a .ked file, which hold in every subsection; null for any other sample file.
QuickPanel QuickPanelFor(const Document& document, bool multiSelected,
                         const std::vector<std::string>* variables);

// What is written behind the text of a label for a choice; nothing for an empty one.
std::string AddedToLabel(std::string_view choice);

}  // namespace kev
