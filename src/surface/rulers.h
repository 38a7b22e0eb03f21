// SPDX-License-Identifier: MIT
// The rulers beside the page: `rhor` above it, and one part `rver` at the body of each subsection, whose
// scale starts at 0 there. Marks lie along the page in canvas units (twips times the zoom); their lengths,
// and the places of the numbers across the ruler, do not follow the zoom.
#pragma once

#include <limits>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "document/text_measurer.h"
#include "surface/surface_ops.h"

namespace kev {

// The unit of the rulers: 1 twips in thousands, 2 inches, 3 centimetres.
inline constexpr int kFirstRulerMode = 1;
inline constexpr int kLastRulerMode = 3;
constexpr int NextRulerMode(int mode) {
  return mode >= kFirstRulerMode && mode < kLastRulerMode ? mode + 1 : kFirstRulerMode;
}

// Each tenth step has a long mark and a number, each fifth between them a middle one.
struct RulerScale {
  double Step = 0;        // twips
  std::string_view Unit;  // behind the count
  double LongTo = 0;      // where long and middle marks end across the ruler, canvas units
  double MiddleTo = 0;
  double LastLong = 0;  // twips; beyond there are short marks alone
  double LastMiddle = 0;
};
// Of an unknown mode: that of the first.
const RulerScale& ScaleOf(int mode);

// Eight points times the zoom; nine where that is smaller.
FontSpec RulerFont(double zoom);

// The ruler beside one body. Canvas units of the page.
struct RulerPart {
  int Row = 0;  // the subsection's
  double Top = 0, Height = 0;

  bool operator==(const RulerPart&) const = default;
};

// What the rulers of a page are made of. Equal plans of one mode look alike.
struct RulerPlan {
  double ZoomFactor = 1;
  double PageWidth = 0, LeftMargin = 0;  // twips
  FontSpec Font;
  double LabelHeight = 0;        // canvas units
  double RowHeight = 0;          // of `rhor`, canvas units, whole pixels
  double ColumnWidth = 0;        // of `rver`, likewise
  std::vector<RulerPart> Parts;  // top to bottom

  bool operator==(const RulerPlan&) const = default;
};
// Both rulers are as thick as their numbers need in any mode.
RulerPlan PlanRulers(const Document& document, double zoom, const TextMeasurer& measurer);

// From where to where along the ruler marks are wanted, canvas units of its own origin. A body can be far
// longer than any window.
struct RulerSpan {
  double From = -std::numeric_limits<double>::infinity();
  double To = std::numeric_limits<double>::infinity();
};

// Clear the surface, give it its size and origin and draw the ruler on it.
void BuildHorizontalRuler(SurfaceOps& rhor, const RulerPlan& plan, int mode, RulerSpan span = {});
void BuildVerticalRuler(SurfaceOps& rver, const RulerPlan& plan, const RulerPart& part, int mode,
                        RulerSpan span = {});

}  // namespace kev
