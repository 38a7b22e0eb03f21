// SPDX-License-Identifier: MIT
// Documents built by hand, row by row.
#pragma once

#include <string>

#include "document/document.h"

namespace kev::test {

// A row of the kind at a place of the surface, in black, with everything else at rest.
inline int AddRow(Document& document, ObjectKind kind, std::string x, int y, int width, int height) {
  const int row = document.Objects.TakeFreeRow();
  ObjectRecord& record = document.Objects[row];
  record.Kind = kind;
  record.XValue = std::move(x);
  record.AbsoluteY = y;
  record.Width = width;
  record.Height = height;
  record.Align = "L";
  record.FontName = "Arial";
  record.FontSize = 10;
  record.CharSet = "0";
  record.PrintFlag = kTrue;
  return row;
}

inline int AddLabel(Document& document, std::string x, int y, std::string text) {
  const int row = AddRow(document, ObjectKind::Label, std::move(x), y, 1000, 230);
  document.Objects[row].Content = std::move(text);
  return row;
}

// A bar with its end row; the body holds `endsAt` twips.
inline int AddSubsection(Document& document, std::string title, int y, int endsAt) {
  const int bar = AddRow(document, ObjectKind::Subsection, "0", y, 100000, 400);
  const int end = AddRow(document, ObjectKind::EndOfSubsection, "0", y + 400 + endsAt, 100000, 80);
  ObjectRecord& record = document.Objects[bar];
  record.SectionTitle = std::move(title);
  record.StartY = kCurrentYValue;
  record.EndsAt = endsAt;
  record.EndRow = static_cast<std::int16_t>(end);
  return bar;
}

}  // namespace kev::test
