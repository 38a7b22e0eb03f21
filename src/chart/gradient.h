// SPDX-License-Identifier: MIT
// The background of a chart: a gradient from top to bottom between two colours.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "surface/surface_ops.h"

namespace kev {

// The colours of the rows 1 to `rows`; the last one is the second colour. None for no rows.
std::vector<Rgb> BuildBackGround(int red1, int green1, int blue1, int red2, int green2, int blue2, int rows);

// Six numbers between commas, each brought to 0 to 255; what is missing or no number counts as 0. An empty
// text is white.
std::array<int, 6> GradientOf(std::string_view text);

// Red, green and blue between commas, by the same rules.
Rgb ChartColourOf(std::string_view text);

}  // namespace kev
