// SPDX-License-Identifier: MIT
// Puts a line together in its place: a saved template is a quarter of a million pieces, and a text of its own
// for each costs more than all the rest of writing.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

namespace kev {

inline void AppendPart(std::string& text, std::string_view part) {
  text += part;
}

// A character is a number too, and would be printed as one.
template <std::integral Number>
requires(!std::same_as<Number, char>) void AppendPart(std::string& text, Number number) {
  std::array<char, 24> digits;
  text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

template <typename... Parts>
void Append(std::string& text, const Parts&... parts) {
  (AppendPart(text, parts), ...);
}

}  // namespace kev
