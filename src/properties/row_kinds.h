// SPDX-License-Identifier: MIT
// The rows that many sheets share, so that a table reads as the grid does: one row a line, caption first.
// A description of 0 leaves the line under the grid as it is.
#pragma once

#include "base/text_numbers.h"
#include "properties/row_editors.h"
#include "properties/row_fields.h"
#include "properties/row_values.h"

namespace kev {

using CheckOfRow = Verdict (*)(const RowTarget& target, std::string_view text);

template <auto Field>
constexpr ObjectRow NumberRow(std::string_view caption, int description = 0, CheckOfRow check = nullptr,
                              RowEditor editor = kPlainText) {
  return {caption, editor, ReadNumber<Field>, StoreNumber<Field>, check, description};
}
template <auto Field>
constexpr ObjectRow TrimmedRow(std::string_view caption, int description = 0, RowEditor editor = kPlainText) {
  return {caption, editor, ReadText<Field>, StoreTrimmed<Field>, nullptr, description};
}
template <auto Field>
constexpr ObjectRow OptionalRow(std::string_view caption, int description = 0) {
  return {caption, kPlainText, ReadOptional<Field>, StoreOptional<Field>, nullptr, description};
}
template <auto Field, std::int16_t True = kTrue>
constexpr ObjectRow YesNoRow(std::string_view caption, int description = 0, RowEditor editor = kYesNo) {
  return {caption, editor, ReadYesNo<Field, True>, StoreYesNo<Field, True>, nullptr, description};
}

constexpr ObjectRow XRow(int description, CheckOfRow check = CheckX) {
  return {"X/Column", kColumnList, ReadText<&ObjectRecord::XValue>, StoreX, check, description};
}
constexpr ObjectRow YRow(int description, CheckOfRow check = CheckY) {
  return NumberRow<&ObjectRecord::Y>("Y position", description, check);
}
constexpr ObjectRow ContentRow(std::string_view caption, int description, CheckOfRow check = CheckNotBlank) {
  return {caption, kPlainText, ReadText<&ObjectRecord::Content>, StoreContent, check, description};
}
// What the object shows on the page, in its character set.
constexpr ObjectRow ShownTextRow(std::string_view caption, int description,
                                 CheckOfRow check = CheckNotBlank) {
  ObjectRow row = ContentRow(caption, description, check);
  row.inOwnCharSet = true;
  return row;
}
constexpr ObjectRow GridRow(int description) {
  return YesNoRow<&ObjectRecord::AlignToGrid, 1>("Align to grid", description);
}
constexpr ObjectRow PrintRow(int description) {
  return YesNoRow<&ObjectRecord::PrintFlag>("Print at runtime", description);
}
constexpr ObjectRow EndUserRow() {
  return YesNoRow<&ObjectRecord::ModifiableByEndUser, 1>("Modifyable by EU", 0, kYesNoOpenEnd);
}
constexpr ObjectRow ColourRow(std::string_view caption, int description) {
  return {caption, kColourButton, ReadForeColour, StoreForeColour, nullptr, description};
}
constexpr ObjectRow LineWidthRow(CheckOfRow check) {
  return NumberRow<&ObjectRecord::LineWidth>("Line width", kTextDescribeLineWidth, check, kLineWidthArrows);
}
constexpr ObjectRow DashedRow() {
  return YesNoRow<&ObjectRecord::LineFlag>("Dashed line", kTextDescribeDashedLine);
}
constexpr ObjectRow FontRow(int description) {
  return {"Font", kFontButton, ReadFont, StoreFont, CheckFont, description};
}
constexpr ObjectRow CharsetRow(int description) {
  return {"Charset", kCharsetList, ReadCharset, StoreCharset, nullptr, description};
}
constexpr ObjectRow AlignmentRow(int description) {
  return {"Alignment", kAlignmentList, ReadAlignment, StoreAlignment, nullptr, description};
}
constexpr ObjectRow XlsTypeRow(int description) {
  return {"XLS field type", kXlsTypeList, ReadText<&ObjectRecord::ValueType>,
          StoreValueType,   nullptr,      description};
}

constexpr ObjectRow Only(RowPlace place, ObjectRow row) {
  row.place = place;
  return row;
}

}  // namespace kev
