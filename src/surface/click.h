// SPDX-License-Identifier: MIT
// Clicks on the page. The pointer is at LastX, LastY and the keyboard was as LastShift says.
#pragma once

#include "surface/pointer_tracker.h"

namespace kev {

inline constexpr int kAllowMilliseconds = 1000;

// What every release of the left button does, also the one that ends a gesture: the first one starts the wait
// for the rubber band, and the table keeps free rows.
void CountClick(PageWork& work);
// What a click does behind that.
void ClickOnPage(PageWork& work);
// Selects what is under the pointer and opens the menu that belongs to it.
void RightClick(PageWork& work, const PointerInput& input);
// Opens the properties of what is under the pointer.
void DoubleClickOnPage(PageWork& work, const PointerInput& input);

}  // namespace kev
