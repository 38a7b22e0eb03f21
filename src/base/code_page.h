// SPDX-License-Identifier: MIT
// The single-byte code page of the files: upper-casing by its letters, and its place in Unicode.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kev {

class CodePage {
 public:
  // windows-1252, the page of a template that names no other.
  static const CodePage& Default();
  // By name ("windows-1250"), in any case; nothing for a page that is not known.
  static const CodePage* Find(std::string_view name);

  std::string_view Name() const { return name_; }

  char Upper(char c) const { return upper_[static_cast<unsigned char>(c)]; }
  std::string Upper(std::string_view text) const;
  std::string Lower(std::string_view text) const;
  bool EqualsIgnoringCase(std::string_view a, std::string_view b) const;
  // Whether `part` stands in `text`, in any case.
  bool ContainsIgnoringCase(std::string_view text, std::string_view part) const;

  char16_t ToUnicode(char c) const { return unicode_[static_cast<unsigned char>(c)]; }
  std::string ToUtf8(std::string_view text) const;
  // The byte of a code point, nothing where the page does not hold it.
  std::optional<char> FromUnicode(char32_t codePoint) const;
  // Nothing where a character is not in the page; `missing`, if given, then gets that character as UTF-8.
  std::optional<std::string> FromUtf8(std::string_view utf8, std::string* missing = nullptr) const;

  explicit CodePage(std::size_t row);

 private:
  std::string_view name_;
  std::array<char16_t, 256> unicode_{};
  std::array<char, 256> upper_{};
  std::array<char, 256> lower_{};
};

// Native names: character by character, without regard to case. Bytes that are no UTF-8 must be the same.
bool Utf8EqualsIgnoringCase(std::string_view a, std::string_view b);

}  // namespace kev
