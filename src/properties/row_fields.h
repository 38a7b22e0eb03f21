// SPDX-License-Identifier: MIT
// Reading and storing plain fields of a record: one template for each form that a field takes in a sheet.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "base/numbers.h"
#include "base/text.h"
#include "document/object_record.h"
#include "properties/sheet_table.h"

namespace kev {

template <auto Field>
std::string ReadText(const RowSource& source) {
  return source.Record().*Field;
}
template <auto Field>
void StoreTrimmed(const RowTarget& target, std::string_view text) {
  target.Record().*Field = Trim(text);
}
template <auto Field>
void StoreAsTyped(const RowTarget& target, std::string_view text) {
  target.Record().*Field = text;
}

// An empty text means that there is no value.
template <auto Field>
std::string ReadOptional(const RowSource& source) {
  return (source.Record().*Field).value_or("");
}
template <auto Field>
void StoreOptional(const RowTarget& target, std::string_view text) {
  text = Trim(text);
  if (text.empty())
    (target.Record().*Field).reset();
  else
    target.Record().*Field = std::string(text);
}

template <auto Field>
std::string ReadNumber(const RowSource& source) {
  return std::to_string(source.Record().*Field);
}
// The number at the start of the text, in the width of the field; 0 where there is none.
template <auto Field>
void StoreNumber(const RowTarget& target, std::string_view text) {
  auto& field = target.Record().*Field;
  if constexpr (std::is_same_v<std::remove_reference_t<decltype(field)>, std::int16_t>)
    field = Int16Of(text);
  else
    field = Int32Of(text);
}

inline constexpr std::string_view kYes = "Yes";
inline constexpr std::string_view kNo = "No";

// Flags are -1, what the end user and the grid may do is 1; any other value shows as No.
template <auto Field, std::int16_t True>
std::string ReadYesNo(const RowSource& source) {
  return std::string(source.Record().*Field == True ? kYes : kNo);
}
// Any text but the two words leaves the field as it is.
template <auto Field, std::int16_t True>
void StoreYesNo(const RowTarget& target, std::string_view text) {
  text = Trim(text);
  if (text == kYes) target.Record().*Field = True;
  if (text == kNo) target.Record().*Field = 0;
}

}  // namespace kev
