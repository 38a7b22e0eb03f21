// SPDX-License-Identifier: MIT
#include "surface/gesture.h"

namespace kev {

std::unique_ptr<Gesture> BeginRubberBand(PageWork&, CanvasPoint) { return nullptr; }

}  // namespace kev
