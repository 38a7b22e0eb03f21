// SPDX-License-Identifier: MIT
#include "surface/frame.h"

namespace kev {
namespace {

constexpr double kThickness = 15;  // one pixel

void ShowSide(SurfaceOps& surface, std::string_view name, const CanvasArea& side, Rgb colour) {
  surface.PlaceWidget(name, side.Left, side.Top, side.Width(), side.Height());
  SurfaceOps& panel = surface.SurfaceOf(name);
  panel.ClearCanvas();
  panel.DrawRectColour(side.Left, side.Top, side.Right, side.Bottom, colour, true);
  surface.ShowWidget(name, true);
}

}  // namespace

void ShowFrame(SurfaceOps& surface, const FrameNames& names, const CanvasArea& area, Rgb colour) {
  ShowSide(surface, names[0], {area.Left, area.Top, area.Right, area.Top + kThickness}, colour);
  ShowSide(surface, names[1], {area.Left, area.Bottom, area.Right, area.Bottom + kThickness}, colour);
  ShowSide(surface, names[2], {area.Left, area.Top, area.Left + kThickness, area.Bottom}, colour);
  ShowSide(surface, names[3], {area.Right, area.Top, area.Right + kThickness, area.Bottom}, colour);
}

void HideFrame(SurfaceOps& surface, const FrameNames& names) {
  for (const std::string_view name : names)
    surface.ShowWidget(name, false);
}

}  // namespace kev
