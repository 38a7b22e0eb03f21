// SPDX-License-Identifier: MIT
// The parts of a text one by one, for loops that run for each item of a template and need no list of them.
#pragma once

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "base/reasons.h"
#include "base/text.h"

namespace kev {

// Throws std::out_of_range for a text of more than 200 parts, as a list of them does.
inline void CheckTokenCount(std::string_view text, char separator) {
  if (text.size() < Tokens::kMost) return;
  if (std::count(text.begin(), text.end(), separator) >= std::ptrdiff_t{Tokens::kMost})
    throw std::out_of_range(kReasonTooManyParts);
}

// Takes the next part off `rest`, which is nothing any more behind the last.
inline std::string_view TakeToken(std::optional<std::string_view>& rest, char separator) {
  const std::size_t end = rest->find(separator);
  const std::string_view part = rest->substr(0, end);
  rest = end == std::string_view::npos ? std::nullopt : std::optional(rest->substr(end + 1));
  return part;
}

}  // namespace kev
