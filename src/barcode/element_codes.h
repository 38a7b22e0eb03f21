// SPDX-License-Identifier: MIT
// Code 39 and Code 128 B as widths of bars and spaces, for the painters that turn each digit into a length of
// their own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kev {

// For each character nine digits: "3" is a narrow bar, "4" a wide one, "1" a narrow space, "2" a wide one.
// The text is framed by "#", the start and stop character, which has ten digits; one that is framed already
// is kept as it stands, any other is trimmed. A character without a pattern repeats that of the one before.
// Nothing for a text that is empty between its frames.
std::vector<std::string> Code39Elements(std::string_view text);

// Start, characters, check and stop: widths of bars and spaces in turn, 1 to 4. A character beyond the codes
// 32 to 126 counts as a blank.
std::string Code128BElements(std::string_view text);

}  // namespace kev
