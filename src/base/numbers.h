// SPDX-License-Identifier: MIT
// How numbers are read from texts and printed into them. Nothing here depends on the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kev {

// The number at the start of a text, 0 when there is none. Blanks are skipped anywhere inside ("1 440" is
// 1440); a sign, digits, one point and an exponent are taken. A number that is not finite counts as 0.
double NumericPrefix(std::string_view text);

// The shortest decimal text that reads back equal, never with an exponent; zero is "0".
std::string FormatNumber(double value);

// To the nearest whole number, ties to the even neighbour.
double RoundToEven(double value);

// Rounded and put into the field's width; what does not fit, or is not finite, counts as 0.
std::int32_t ToInt32(double value);
std::int16_t ToInt16(double value);
std::int32_t Fit32(std::int64_t value);

// The whole number that a text holds, by the two rules above.
inline std::int32_t Int32Of(std::string_view text) {
  return ToInt32(NumericPrefix(text));
}
inline std::int16_t Int16Of(std::string_view text) {
  return ToInt16(NumericPrefix(text));
}

}  // namespace kev
