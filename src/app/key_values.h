// SPDX-License-Identifier: MIT
// Values of the designer's own key files.
#pragma once

#include <optional>
#include <string_view>

#include "base/numbers.h"

namespace kev {

// The number at the start of a value; nothing where it is empty or begins with something else, so that a
// default can take its place.
inline std::optional<double> NumberIn(std::string_view value) {
  const std::size_t at = value.find_first_not_of(" +-.");
  if (at == std::string_view::npos || value[at] < '0' || value[at] > '9') return std::nullopt;
  return NumericPrefix(value);
}

}  // namespace kev
