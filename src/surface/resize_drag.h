// SPDX-License-Identifier: MIT
// Which handles take hold of what.
#pragma once

#include "surface/page_work.h"

namespace kev {

// Handle 4 sizes the width, 6 the height and 5 both; the others are marks. A LABEL has the height of its
// text. Whoever shows a sizing pointer, or lets a press through to the page, asks this.
bool HandleActs(const ObjectRecord& record, int handle);

}  // namespace kev
