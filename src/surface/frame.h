// SPDX-License-Identifier: MIT
// A frame of four thin widgets around an area. Lengths are canvas units.
#pragma once

#include <array>
#include <string_view>

#include "surface/object_area.h"
#include "surface/surface_ops.h"

namespace kev {

// Top, bottom, left, right.
using FrameNames = std::array<std::string_view, 4>;

// What marches with the pointer while objects are dragged.
inline constexpr FrameNames kMarchingFrame = {"lnh01", "lnh02", "lnv01", "lnv02"};
// The rubber band.
inline constexpr FrameNames kBandFrame = {"LineSelectHor01", "LineSelectHor02", "LineSelectVert01",
                                          "LineSelectVert02"};

void ShowFrame(SurfaceOps& surface, const FrameNames& names, const CanvasArea& area);
void HideFrame(SurfaceOps& surface, const FrameNames& names);

}  // namespace kev
