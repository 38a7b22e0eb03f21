// SPDX-License-Identifier: MIT
// Stage two of a save: from blocks in the order of positions to header, footer and data.
#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"

namespace kev {

// The head up to and with the line [HEADER], then the blocks that the marker lines "<[HEADER]", "<[FOOTER]" and
// "<[DATA]" begin, in this order whatever theirs was. Marker lines are left out.
std::string RegroupBySection(std::string_view stageOne, const CodePage& page);

}  // namespace kev
