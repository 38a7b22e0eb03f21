// SPDX-License-Identifier: MIT
#include "surface/gesture.h"

namespace kev {

std::unique_ptr<Gesture> BeginResize(PageWork&, int, CanvasPoint) { return nullptr; }

}  // namespace kev
