// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kev {

// The characters of a UTF-8 text as capitals: two texts are equal without regard to case where these are the
// same. A byte that is no part of a character has a value of its own beyond all characters.
std::u32string Utf8Capitals(std::string_view utf8);

}  // namespace kev
