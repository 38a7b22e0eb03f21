// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace kev {

// Whether a number stands at the start of a text, so that a NumericPrefix of 0 is a zero and not a guess.
bool HoldsNumber(std::string_view text);

}  // namespace kev
