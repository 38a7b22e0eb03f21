// SPDX-License-Identifier: MIT
// What the titles of bars tell: "[DATA]", "[DATA] [ITEMS:@code]".
#pragma once

#include <string>
#include <string_view>

#include "surface/subsection_dialog.h"

namespace kev {

// The section of a bar; that of a title which names none is the configuration, which nothing touches.
BaseSection SectionOfBar(const ObjectRecord& bar, const CodePage& page);
// The head line; empty for the bar of a section itself.
std::string_view HeadOfBar(const ObjectRecord& bar);
// Whether it is the bar of the section itself.
bool IsBaseBar(const ObjectRecord& bar, const CodePage& page);

}  // namespace kev
