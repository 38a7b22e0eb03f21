// SPDX-License-Identifier: MIT
#include "base/shift_text.h"

#include <stdexcept>
#include <vector>

namespace kev {
namespace {

std::vector<int> KeyDigits(std::string_view key) {
  if (key.empty()) {
    key = "11";
  }
  if (key.size() > kShiftKeyLimit) {
    throw std::out_of_range("a key holds at most 20 digits");
  }
  std::vector<int> digits;
  for (const char character : key) {
    digits.push_back(character >= '0' && character <= '9' ? character - '0' : 0);
  }
  return digits;
}

std::string Shift(std::string_view text, std::string_view key, int direction) {
  const std::vector<int> digits = KeyDigits(key);
  std::string shifted(text);
  for (std::size_t i = 0; i < shifted.size(); ++i) {
    if (shifted[i] != ' ') {
      const int code = static_cast<unsigned char>(shifted[i]) + direction * digits[i % digits.size()];
      shifted[i] = static_cast<char>(static_cast<unsigned char>(code & 0xFF));
    }
  }
  return shifted;
}

}  // namespace

std::string ShiftText(std::string_view text, std::string_view key) {
  return Shift(text, key, 1);
}

std::string UnshiftText(std::string_view text, std::string_view key) {
  return Shift(text, key, -1);
}

}  // namespace kev
