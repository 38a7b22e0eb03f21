// SPDX-License-Identifier: MIT
#include "base/holds_number.h"

namespace kev {

bool HoldsNumber(std::string_view text) {
  const auto skip = [&text](std::string_view characters) {
    if (!text.empty() && characters.find(text.front()) != std::string_view::npos) text.remove_prefix(1);
  };
  while (text.starts_with(' '))
    text.remove_prefix(1);
  skip("+-");
  skip(".");
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

}  // namespace kev
