// SPDX-License-Identifier: MIT
// Texts are bytes of a single-byte code page: one byte is one character. A blank is code 32 and nothing else.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kev {

inline constexpr char kBlank = ' ';

// Without the blanks at both ends; a tab is no blank.
inline std::string_view TrimLeft(std::string_view text) {
  while (text.starts_with(kBlank))
    text.remove_prefix(1);
  return text;
}
inline std::string_view Trim(std::string_view text) {
  text = TrimLeft(text);
  while (text.ends_with(kBlank))
    text.remove_suffix(1);
  return text;
}

// The n-th part of `text`, counted from 1; empty where there are fewer parts.
std::string_view NthToken(std::string_view text, std::size_t n, char separator);

// The parts of a text between separators. There is always at least one part, which may be empty.
class Tokens {
 public:
  // More than 200 parts throw std::out_of_range: no line of a template may hold more.
  static constexpr std::size_t kMost = 200;

  Tokens(std::string_view text, char separator);

  std::size_t Count() const { return parts_.size(); }
  // Counted from 1; a part that is not there is empty.
  std::string_view operator[](std::size_t n) const;

 private:
  std::vector<std::string_view> parts_;
};

inline Tokens SplitTokens(std::string_view text, char separator) {
  return Tokens(text, separator);
}

// The lines of a text: a line ends at LF, one CR before it is dropped, and a last line needs no end.
std::vector<std::string_view> SplitLines(std::string_view text);
// The same one by one: takes the next line off `rest`, which must not be empty.
std::string_view TakeLine(std::string_view& rest);
std::size_t CountLines(std::string_view text);

void ReplaceAll(std::string& text, char from, char to);

}  // namespace kev
