// SPDX-License-Identifier: MIT
#include "surface/gesture.h"

namespace kev {

std::unique_ptr<Gesture> BeginGroupDrag(PageWork&, CanvasPoint) { return nullptr; }

}  // namespace kev
