// SPDX-License-Identifier: MIT
#include "surface/gesture.h"

namespace kev {

std::unique_ptr<Gesture> BeginBoxDrag(PageWork&, CanvasPoint) { return nullptr; }

}  // namespace kev
