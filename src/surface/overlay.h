// SPDX-License-Identifier: MIT
// The panels that show the one current object above the page. Lengths are canvas units.
#pragma once

#include "surface/page_work.h"

namespace kev {

// The grips `ObjL1` and `ObjL2` are squares around the ends of an ANYLINE.
inline constexpr double kGripSide = 90;

// A copy of the object above its place on the page: its panel or its four sides, or the grips of an ANYLINE.
// Painting it stores in the row what painting the page stores.
void ShowOverlay(PageWork& work, int row);

// `ObjL1` and `ObjL2` around LineStart and LineEnd, and `Lineaviva` from one to the other in the pen of the
// row: its sizes are negative where it runs up or to the left.
void PlaceLineGrips(PageWork& work, int row);

}  // namespace kev
