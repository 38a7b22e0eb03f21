// SPDX-License-Identifier: MIT
#include "surface/pointer_tracker.h"

namespace kev {

void PointerTracker::Press(PageWork&, const PointerInput&) {}
void PointerTracker::Move(PageWork&, const PointerInput&) {}
void PointerTracker::Release(PageWork&, const PointerInput&) {}
void PointerTracker::DoubleClick(PageWork&, const PointerInput&) {}
bool PointerTracker::Cancel(PageWork&) { return false; }
void PointerTracker::Reset() {}
CursorShape CursorAt(const PageWork&, const PointerInput&) { return CursorShape::Arrow; }

}  // namespace kev
