// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace kevlang {

// Takes the first character off `utf8`, which is not empty, and gives its code point; nothing when the bytes
// are no UTF-8. Strict, because a source in another encoding must be refused and not be read as something
// else.
std::optional<char32_t> TakeCodePoint(std::string_view& utf8);

}  // namespace kevlang
