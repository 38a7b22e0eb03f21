// SPDX-License-Identifier: MIT
// The scrambling of the lines of Kev.lng. Texts are single-byte code page bytes.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kev {

// A key holds at most this many digits; a longer one is a range error.
inline constexpr std::size_t kShiftKeyLimit = 20;

// Digits of the key of Kev.lng. A digit d loses the character of code 32 + d, which the file would hold as a
// blank. With 1 and 3 alone those are the exclamation mark and the number sign, which no text needs.
inline constexpr std::array<char, kShiftKeyLimit> kLanguageFileKeyDigits = [] {
  constexpr std::array<int, kShiftKeyLimit> kDigits = {1, 3, 1, 1, 3, 3, 1, 3, 3, 3,
                                                       1, 1, 1, 3, 1, 3, 3, 1, 1, 3};
  std::array<char, kShiftKeyLimit> characters{};
  for (std::size_t i = 0; i < kDigits.size(); ++i) {
    characters[i] = static_cast<char>('0' + kDigits[i]);
  }
  return characters;
}();
inline constexpr std::string_view kLanguageFileKey(kLanguageFileKeyDigits.data(),
                                                   kLanguageFileKeyDigits.size());

// Adds to each character the digit of `key` at its position; the key starts anew behind its last digit. A
// blank stays a blank, and the key moves on over it. Codes count modulo 256. An empty key is "11"; a
// character of the key that is no digit counts as 0. Throws std::out_of_range for a key of more than 20
// characters.
std::string ShiftText(std::string_view text, std::string_view key);

// Takes the digits off again, as they are off in a file: ShiftText(UnshiftText(text, key), key) is `text`,
// unless a character of it becomes a blank (its code is 32 + its digit), which the way back leaves as it is.
std::string UnshiftText(std::string_view text, std::string_view key);

}  // namespace kev
