// SPDX-License-Identifier: MIT
// The end bar of a subsection by its overlay: it makes the body higher or lower.
#pragma once

#include "surface/gesture.h"

namespace kev {

// For the current end bar; nothing when no subsection ends with it.
std::unique_ptr<Gesture> BeginEndBarDrag(PageWork& work, CanvasPoint at);

// The bar was let go at the place of its overlay: everything from the snapshot to the repaint. With an object
// below the new end nothing but the snapshot remains.
void EndEndBarDrag(PageWork& work, int endRow);

}  // namespace kev
