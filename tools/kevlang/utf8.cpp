// SPDX-License-Identifier: MIT
#include "utf8.h"

#include <array>
#include <cstddef>

namespace kevlang {
namespace {

std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) {
    return 1;
  }
  if (lead >= 0xC2 && lead < 0xE0) {
    return 2;
  }
  if (lead >= 0xE0 && lead < 0xF0) {
    return 3;
  }
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool IsWellFormed(char32_t character, std::size_t length) {
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  return character >= kSmallest[length] && character <= 0x10FFFF && !surrogate;
}

}  // namespace

std::optional<char32_t> TakeCodePoint(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > utf8.size()) {
    return std::nullopt;
  }
  char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(utf8[i]);
    if ((next & 0xC0U) != 0x80U) {
      return std::nullopt;
    }
    character = character << 6U | (next & 0x3FU);
  }
  if (!IsWellFormed(character, length)) {
    return std::nullopt;
  }
  utf8.remove_prefix(length);
  return character;
}

}  // namespace kevlang
