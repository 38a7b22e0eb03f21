// SPDX-License-Identifier: MIT
// Bars on a surface. Lengths are twips, and the painters put the zoom into them themselves; what they are
// given is zoomed or not as the caller's table says.
#pragma once

#include <cstdint>
#include <set>
#include <string_view>

#include "surface/surface_ops.h"

namespace kev {

// What one painting leaves for the next.
struct BarcodeState {
  // The width of the bars. Widths that name no factor leave it as the painting before left it.
  double BarMultiplier = 1;
  // The rows whose painting the last redraw of the page had to stop.
  std::set<int> Stopped;
};

// The object's own panel, where it stands at its corner, or the page.
enum class BarTarget : std::uint8_t { Visual = 1, Page = 2 };

struct BarRequest {
  int Kind = 0;
  std::string_view Text;
  BarTarget Target = BarTarget::Page;
  double X = 0, Y = 0;  // of the page; a panel is painted from its corner
  double Height = 0;    // length of the bars
  double BarWidth = 0;
  bool IsVertical = false;
  double ZoomFactor = 1;
  Rgb Colour = 0;
  // Where the target's own origin stands on the surface.
  double OriginX = 0, OriginY = 0;
};

struct BarResult {
  double End = 0;        // where the last bar ended
  bool HasBars = false;  // where there are none, End means nothing
  bool Stopped = false;  // a length was too large for the painter; what was painted before it stays
};

// 1, 2 and 3 name a factor, and every width above 3 its tenths.
void UseBarWidth(BarcodeState& state, double barWidth);

// Kind 1. Thin bars are 10 units and thin spaces 16; characters stand 33 apart. Leaves a pen of one pixel.
BarResult Code39Painter(SurfaceOps& surface, BarcodeState& state, const BarRequest& request);
// The kinds of BarcodeEncoder. End is measured from the start of the symbol.
BarResult ModulePainter(SurfaceOps& surface, BarcodeState& state, const BarRequest& request);
// Kinds 1282 and 12821. Counts in whole numbers of 16 bits, and each element takes one twip more than its
// width.
BarResult Code128Painter(SurfaceOps& surface, BarcodeState& state, const BarRequest& request);

}  // namespace kev
