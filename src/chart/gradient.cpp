// SPDX-License-Identifier: MIT
#include "chart/gradient.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"

namespace kev {
namespace {

int PartOf(std::string_view text, std::size_t n) {
  return static_cast<int>(std::clamp(RoundToEven(NumericPrefix(NthToken(text, n, ','))), 0.0, 255.0));
}

// Kept as a fraction and rounded at each row, so that the last row is the second colour exactly.
Rgb Between(int first, int second, int row, int rows) {
  const double value = first + static_cast<double>(second - first) * row / rows;
  return static_cast<Rgb>(std::clamp<int>(ToInt16(value), 0, 255));
}

}  // namespace

std::vector<Rgb> BuildBackGround(int red1, int green1, int blue1, int red2, int green2, int blue2, int rows) {
  std::vector<Rgb> colours;
  for (int row = 1; row <= rows; ++row) {
    colours.push_back(Between(red1, red2, row, rows) << 16 | Between(green1, green2, row, rows) << 8 |
                      Between(blue1, blue2, row, rows));
  }
  return colours;
}

std::array<int, 6> GradientOf(std::string_view text) {
  std::array<int, 6> ends;
  ends.fill(255);
  if (Trim(text).empty()) return ends;
  for (std::size_t n = 0; n < ends.size(); ++n)
    ends[n] = PartOf(text, n + 1);
  return ends;
}

Rgb ChartColourOf(std::string_view text) {
  return static_cast<Rgb>(PartOf(text, 1)) << 16 | static_cast<Rgb>(PartOf(text, 2)) << 8 |
         static_cast<Rgb>(PartOf(text, 3));
}

}  // namespace kev
