// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>

#include "base/take_token.h"

namespace kev {

std::string_view NthToken(std::string_view text, std::size_t n, char separator) {
  for (; n > 1; --n) {
    const std::size_t end = text.find(separator);
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end + 1);
  }
  return n == 0 ? std::string_view{} : text.substr(0, text.find(separator));
}

Tokens::Tokens(std::string_view text, char separator) {
  CheckTokenCount(text, separator);
  for (;;) {
    const std::size_t end = text.find(separator);
    parts_.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

std::string_view Tokens::operator[](std::size_t n) const {
  return n >= 1 && n <= parts_.size() ? parts_[n - 1] : std::string_view{};
}

std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty())
    lines.push_back(TakeLine(text));
  return lines;
}

std::size_t CountLines(std::string_view text) {
  const auto ends = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  return ends + (text.empty() || text.ends_with('\n') ? 0 : 1);
}

void ReplaceAll(std::string& text, char from, char to) {
  std::replace(text.begin(), text.end(), from, to);
}

}  // namespace kev
