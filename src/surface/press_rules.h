// SPDX-License-Identifier: MIT
// What a press of the left button means where it was made. Points are canvas units.
#pragma once

#include <memory>

#include "surface/gesture.h"
#include "surface/pointer_tracker.h"

namespace kev {

// Strictly inside the bounds of a group that exists.
bool InsideGroup(const PointerState& pointer, CanvasPoint at);
// The current object is a BOX and the point lies in it: its left edge belongs to it, the others don't.
bool InsideCurrentBox(const PageWork& work, CanvasPoint at);
// Whether the handle (1 to 8) of the current object sizes it; one that doesn't is only a mark, and the
// pointer goes through it.
bool HandleActs(const PageWork& work, int handle);

// What counts as being under the pointer: marks and, while a tool waits, everything but the ruler are the
// page.
PointerSource SourceOf(const PageWork& work, const PointerInput& input);

// Whether what the pointer is over takes it; otherwise the pointer goes through to what lies below.
bool TakesPointer(const PageWork& work, const PointerInput& input);

// The row under the point, which is remembered as the last one hit; 0 where there is none.
int RowUnder(PageWork& work, CanvasPoint at);

// The gesture of a held move that began with this press; nothing when it begins none. What lies under a press
// on the page is selected first.
std::unique_ptr<Gesture> BeginGesture(PageWork& work, const PointerInput& press);

}  // namespace kev
