// SPDX-License-Identifier: MIT
#include "base/holds_number.h"

namespace kev {

bool HoldsNumber(std::string_view text) {
  while (text.starts_with(' '))
    text.remove_prefix(1);
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  if (text.starts_with('.')) text.remove_prefix(1);
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

}  // namespace kev
