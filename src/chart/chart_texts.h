// SPDX-License-Identifier: MIT
// The texts of a chart: each gets its place only where it lies inside the picture and touches no other.
#pragma once

#include <string_view>
#include <vector>

#include "chart/chart_data.h"
#include "chart/graph.h"

namespace kev {

class ChartTexts {
 public:
  ChartTexts(const TextMeasurer& measurer, double width, double height)
      : measurer_(measurer), width_(width), height_(height) {}

  // Logical pixels.
  double WidthOf(const ChartTextStyle& style, std::string_view text) const;
  double HeightOf(const ChartTextStyle& style) const;
  // The text, or its beginning with "..." where it is wider; empty where not even that has room.
  std::string Elided(const ChartTextStyle& style, std::string_view text, double room) const;

  // A text at the origin, not yet placed.
  ChartText Make(const ChartTextStyle& style, std::string_view text) const;
  // False when there is no room, and when there is nothing to print.
  bool Place(ChartText text);

  // In the order in which they found their places.
  const std::vector<ChartText>& Placed() const { return placed_; }

 private:
  struct Box {
    std::array<ChartPoint, 4> Corners;
    ChartRect Bounds;
  };
  static Box BoxOf(const ChartText& text);
  static bool Overlap(const Box& a, const Box& b);

  const TextMeasurer& measurer_;
  double width_, height_;
  std::vector<ChartText> placed_;
  std::vector<Box> boxes_;
};

}  // namespace kev
