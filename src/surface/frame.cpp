// SPDX-License-Identifier: MIT
#include "surface/frame.h"

namespace kev {
namespace {

constexpr double kThickness = 15;  // one pixel

void ShowSide(SurfaceOps& surface, std::string_view name, const CanvasArea& side) {
  surface.PlaceWidget(name, side.Left, side.Top, side.Width(), side.Height());
  surface.ShowWidget(name, true);
}

}  // namespace

void ShowFrame(SurfaceOps& surface, const FrameNames& names, const CanvasArea& area) {
  ShowSide(surface, names[0], {area.Left, area.Top, area.Right, area.Top + kThickness});
  ShowSide(surface, names[1], {area.Left, area.Bottom, area.Right, area.Bottom + kThickness});
  ShowSide(surface, names[2], {area.Left, area.Top, area.Left + kThickness, area.Bottom});
  ShowSide(surface, names[3], {area.Right, area.Top, area.Right + kThickness, area.Bottom});
}

void HideFrame(SurfaceOps& surface, const FrameNames& names) {
  for (const std::string_view name : names)
    surface.ShowWidget(name, false);
}

}  // namespace kev
