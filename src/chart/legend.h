// SPDX-License-Identifier: MIT
// The names of the series, or of the slices of a pie, with their colours.
#pragma once

#include "chart/plot_frame.h"

namespace kev {

struct LegendEntry {
  std::string Name;
  Rgb Colour = 0;
  bool IsLine = false;
};

// Rows at the bottom of the room. Both give back the room that is left.
ChartRect DrawLegendBelow(const ChartWork& work, const std::vector<LegendEntry>& entries, ChartRect room);
// One below the other at the right of the room.
ChartRect DrawLegendBeside(const ChartWork& work, const std::vector<LegendEntry>& entries, ChartRect room);

}  // namespace kev
