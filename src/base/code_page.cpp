// SPDX-License-Identifier: MIT
#include "base/code_page.h"

#include <algorithm>
#include <vector>

#include "base/capitals.h"
#include "base/code_page_table.h"

namespace kev {
namespace {

// The capital of a small letter, for the letters that the single-byte pages hold. Written out, because the C
// library's answer depends on the locale of the process.
char32_t UnicodeUpper(char32_t c) {
  if ((c >= U'a' && c <= U'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 32;
  if (c == 0xFF) return 0x178;
  if (c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) return c - 32;  // Greek
  if (c == 0x3AC) return 0x386;
  if (c >= 0x3AD && c <= 0x3AF) return c - 37;
  if (c == 0x3CC) return 0x38C;
  if (c == 0x3CD || c == 0x3CE) return c - 63;
  if (c == 0x3C2) return 0x3A3;
  if (c >= 0x430 && c <= 0x44F) return c - 32;  // Cyrillic
  if (c >= 0x450 && c <= 0x45F) return c - 80;
  if (c == 0x491) return 0x490;
  if (c == 0x131) return U'I';
  if (c >= 0x139 && c <= 0x148) return c % 2 == 0 ? c - 1 : c;  // Latin Extended-A pairs, odd capitals
  if (c >= 0x179 && c <= 0x17E) return c % 2 == 0 ? c - 1 : c;
  if ((c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) return c % 2 == 1 ? c - 1 : c;
  if (c == 0x1A1 || c == 0x1B0) return c == 0x1A1 ? 0x1A0 : 0x1AF;  // Vietnamese
  if (c == 0x192) return 0x191;
  return c;
}

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Reads one character at `at` and moves behind it; a byte that begins no character stands for itself.
char32_t TakeUtf8(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0x80         ? 1
                             : (lead >> 5) == 6  ? 2
                             : (lead >> 4) == 14 ? 3
                             : (lead >> 3) == 30 ? 4
                                                 : 1;
  if (length == 1 || at + length > text.size()) {
    ++at;
    return lead;
  }
  char32_t c = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i)
    c = (c << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
  at += length;
  return c;
}

// The capital of the character at `at`, which moves behind it. A byte that is no part of one gives a value of
// its own beyond all characters.
char32_t TakeCapital(std::string_view text, std::size_t& at) {
  const std::size_t begin = at;
  const char32_t c = TakeUtf8(text, at);
  std::string again;
  AppendUtf8(again, c);
  if (again == text.substr(begin, at - begin)) return UnicodeUpper(c);
  at = begin + 1;
  return 0x200000 + static_cast<unsigned char>(text[begin]);
}

std::vector<CodePage> MakePages() {
  std::vector<CodePage> pages;
  for (std::size_t row = 0; row < kCodePageTable.size(); ++row)
    pages.emplace_back(row);
  return pages;
}

const std::vector<CodePage>& Pages() {
  static const std::vector<CodePage> pages = MakePages();
  return pages;
}

}  // namespace

CodePage::CodePage(std::size_t row) : name_(kCodePageTable[row].name) {
  for (unsigned code = 0; code < 256; ++code) {
    unicode_[code] = code < 128 ? static_cast<char16_t>(code) : kCodePageTable[row].upperHalf[code - 128];
    lower_[code] = static_cast<char>(code);
  }
  for (unsigned code = 0; code < 256; ++code) {
    upper_[code] = FromUnicode(UnicodeUpper(unicode_[code])).value_or(static_cast<char>(code));
    const auto capital = static_cast<unsigned char>(upper_[code]);
    // Where two small letters share a capital (dotless i), the one of the plain alphabet keeps it.
    if (capital != code && lower_[capital] == static_cast<char>(capital))
      lower_[capital] = static_cast<char>(code);
  }
}

const CodePage& CodePage::Default() {
  return Pages().front();
}

const CodePage* CodePage::Find(std::string_view name) {
  for (const CodePage& page : Pages()) {
    if (Default().EqualsIgnoringCase(page.Name(), name)) return &page;
  }
  return nullptr;
}

std::string CodePage::Upper(std::string_view text) const {
  std::string result(text);
  for (char& c : result)
    c = Upper(c);
  return result;
}

std::string CodePage::Lower(std::string_view text) const {
  std::string result(text);
  for (char& c : result)
    c = lower_[static_cast<unsigned char>(c)];
  return result;
}

bool CodePage::EqualsIgnoringCase(std::string_view a, std::string_view b) const {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [this](char x, char y) { return Upper(x) == Upper(y); });
}

bool CodePage::ContainsIgnoringCase(std::string_view text, std::string_view part) const {
  if (part.size() > text.size()) return false;
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [this](char x, char y) { return Upper(x) == Upper(y); }) != text.end() ||
         part.empty();
}

std::string CodePage::ToUtf8(std::string_view text) const {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char c : text)
    AppendUtf8(utf8, ToUnicode(c));
  return utf8;
}

std::optional<char> CodePage::FromUnicode(char32_t codePoint) const {
  if (codePoint < 128) return static_cast<char>(codePoint);
  const auto found = std::find(unicode_.begin() + 128, unicode_.end(), codePoint);
  if (found == unicode_.end()) return std::nullopt;
  return static_cast<char>(found - unicode_.begin());
}

std::optional<std::string> CodePage::FromUtf8(std::string_view utf8, std::string* missing) const {
  std::string text;
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t begin = at;
    const std::optional<char> byte = FromUnicode(TakeUtf8(utf8, at));
    if (!byte) {
      if (missing != nullptr) *missing = utf8.substr(begin, at - begin);
      return std::nullopt;
    }
    text += *byte;
  }
  return text;
}

std::u32string Utf8Capitals(std::string_view utf8) {
  std::u32string capitals;
  for (std::size_t at = 0; at < utf8.size();)
    capitals += TakeCapital(utf8, at);
  return capitals;
}

bool Utf8EqualsIgnoringCase(std::string_view a, std::string_view b) {
  std::size_t atA = 0;
  std::size_t atB = 0;
  while (atA < a.size() && atB < b.size())
    if (TakeCapital(a, atA) != TakeCapital(b, atB)) return false;
  return atA == a.size() && atB == b.size();
}

}  // namespace kev
