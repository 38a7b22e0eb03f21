// SPDX-License-Identifier: MIT
#include "barcode/element_codes.h"

#include <algorithm>

#include "barcode/code_tables.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr char kFrame = '#';
constexpr std::string_view kFrameElements = "3231414131";
constexpr std::string_view kBarDigits = "34", kSpaceDigits = "12";
constexpr unsigned char kFirstOfB = 32, kLastOfB = 126;

std::string Framed(std::string_view text) {
  if (!text.empty() && text.front() == kFrame && text.back() == kFrame) return std::string(text);
  return kFrame + std::string(Trim(text)) + kFrame;
}

std::string DigitsOf(std::string_view wides) {
  std::string digits;
  for (std::size_t at = 0; at < wides.size(); ++at)
    digits += (at % 2 == 0 ? kBarDigits : kSpaceDigits)[wides[at] == '1' ? 1 : 0];
  return digits;
}

char UpperLetter(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

// Empty for a character that the table does not hold.
std::string ElementsOf(char character) {
  if (character == kFrame) return std::string(kFrameElements);
  const auto row = std::find_if(kCode39.begin(), kCode39.end(), [&](const Code39Row& known) {
    return known.character == UpperLetter(character);
  });
  return row == kCode39.end() ? std::string() : DigitsOf(row->elements);
}

std::size_t ValueInB(char character) {
  const auto code = static_cast<unsigned char>(character);
  return code >= kFirstOfB && code <= kLastOfB ? std::size_t{code} - kFirstOfB : 0;
}

}  // namespace

std::vector<std::string> Code39Elements(std::string_view text) {
  const std::string framed = Framed(text);
  std::vector<std::string> elements;
  if (framed == "##") return elements;
  for (const char character : framed) {
    std::string own = ElementsOf(character);
    elements.push_back(own.empty() ? elements.back() : std::move(own));
  }
  return elements;
}

std::string Code128BElements(std::string_view text) {
  std::string elements(kCode128[kCode128StartB]);
  std::size_t total = kCode128StartB;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t value = ValueInB(text[at]);
    total += (at + 1) * value;
    elements += kCode128[value];
  }
  elements += kCode128[total % kCode128Modulus];
  elements += kCode128[kCode128Stop];
  return elements;
}

}  // namespace kev
