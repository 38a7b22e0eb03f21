// SPDX-License-Identifier: MIT
// Values of the designer's own key files.
#pragma once

#include <optional>
#include <string_view>

#include "base/holds_number.h"
#include "base/numbers.h"

namespace kev {

// The number at the start of a value; nothing where it is empty or begins with something else, so that a
// default can take its place.
inline std::optional<double> NumberIn(std::string_view value) {
  return HoldsNumber(value) ? std::optional(NumericPrefix(value)) : std::nullopt;
}

}  // namespace kev
