// SPDX-License-Identifier: MIT
#include "surface/gesture.h"

namespace kev {

std::unique_ptr<Gesture> BeginColumnDrag(PageWork&, int, CanvasPoint) { return nullptr; }

}  // namespace kev
