// SPDX-License-Identifier: MIT
#include "chart/shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace kev {
namespace {

constexpr double kDegreesApart = 3;

}  // namespace

ChartFill Plain(Rgb colour, double opacity) {
  return {{colour}, ChartFill::Run::Down, opacity};
}

ChartPolygon Quad(ChartPoint a, ChartPoint b, ChartPoint c, ChartPoint d, ChartFill fill) {
  return {.Points = {a, b, c, d}, .Fill = std::move(fill)};
}

ChartPolygon Rectangle(const ChartRect& area, ChartFill fill) {
  return Quad({area.Left, area.Top}, {area.Right, area.Top}, {area.Right, area.Bottom},
              {area.Left, area.Bottom}, std::move(fill));
}

ChartPolyline Segment(ChartPoint from, ChartPoint to, Rgb colour, double width) {
  return {.Points = {from, to}, .Colour = colour, .Width = width};
}

std::vector<ChartPoint> ArcPoints(ChartPoint centre, double radiusX, double radiusY, double from, double to) {
  const int steps = std::max(1, static_cast<int>(std::ceil(std::abs(to - from) / kDegreesApart)));
  std::vector<ChartPoint> points;
  for (int step = 0; step <= steps; ++step) {
    const double angle = (from + (to - from) * step / steps) * std::numbers::pi / 180;
    points.push_back({centre.X + radiusX * std::cos(angle), centre.Y + radiusY * std::sin(angle)});
  }
  return points;
}

ChartPolygon Ellipse(ChartPoint centre, double radiusX, double radiusY, ChartFill fill) {
  return {.Points = ArcPoints(centre, radiusX, radiusY, 0, 360), .Fill = std::move(fill)};
}

std::array<ChartPoint, 4> CornersOf(const ChartText& text) {
  const double angle = text.Degrees * std::numbers::pi / 180;
  const double sine = std::sin(angle), cosine = std::cos(angle);
  const auto turned = [&](double x, double y) {
    return ChartPoint{text.At.X + x * cosine - y * sine, text.At.Y + x * sine + y * cosine};
  };
  return {turned(0, 0), turned(text.Width, 0), turned(text.Width, text.Height), turned(0, text.Height)};
}

}  // namespace kev
