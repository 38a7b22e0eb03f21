// SPDX-License-Identifier: MIT
// The editors that the tables of the sheets share, with their lists exactly as the grid is given them.
#pragma once

#include "properties/sheet_table.h"

namespace kev {

constexpr RowEditor ClosedList(std::string_view tail) {
  return {EditorKind::ClosedList, tail};
}
constexpr RowEditor OpenList(std::string_view tail) {
  return {EditorKind::OpenList, tail};
}
constexpr RowEditor Arrows(std::string_view tail) {
  return {EditorKind::Number, tail};
}
constexpr RowEditor FileButton(std::string_view tail) {
  return {EditorKind::File, tail};
}

inline constexpr RowEditor kPlainText;
inline constexpr RowEditor kColumnList = {EditorKind::OpenList, "|", ListSource::Columns};
inline constexpr RowEditor kYesNo = ClosedList("|Yes|No");
inline constexpr RowEditor kYesNoOpenEnd = ClosedList("|Yes|No|");
inline constexpr RowEditor kColourButton = {EditorKind::Colour, ""};
inline constexpr RowEditor kFontButton = {EditorKind::Font, "|"};
inline constexpr RowEditor kButton = {EditorKind::Button, ""};
inline constexpr RowEditor kLineWidthArrows = Arrows("|1|10|");
inline constexpr RowEditor kAlignmentList = ClosedList("|Left|Right|Center");
inline constexpr RowEditor kXlsTypeList = ClosedList("|General|Number|Text|");
inline constexpr RowEditor kCharsetList = ClosedList(
    "|0 - Western|2 - Symbol|128 - Japanese, Shift_JIS (Japanese Industry Standard)"
    "|129 - Korean, ks_c_5601-1987|130 - Korean, johab|134 - Simplified Chinese"
    "|136 - Traditional Chinese, BIG5|161 - Greek, windows-1253|162 - Turkish, windows-1254"
    "|177 - Hebrew, windows-1255|178 - Arabic, windows-1256|186 - Baltic, windows-1257|204 - Cyrillic"
    "|222 - Thai, windows-874|238 - Central/Eastern European, windows-1250|255 - DOS/OEM|");
inline constexpr RowEditor kBorderList = OpenList("|0 - No border|1 - Single border|2 - 3D border|");

// The description of "X2 /Column", which stands in the program itself.
inline constexpr int kDescribeX2InPlace = -1;

}  // namespace kev
