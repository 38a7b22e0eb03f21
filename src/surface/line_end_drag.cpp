// SPDX-License-Identifier: MIT
#include "surface/gesture.h"

namespace kev {

std::unique_ptr<Gesture> BeginLineEndDrag(PageWork&, LineGrip, CanvasPoint) { return nullptr; }

}  // namespace kev
