// SPDX-License-Identifier: MIT
// The plain shapes that charts are put together from.
#pragma once

#include "chart/graph.h"

namespace kev {

ChartFill Plain(Rgb colour, double opacity = 1);

ChartPolygon Quad(ChartPoint a, ChartPoint b, ChartPoint c, ChartPoint d, ChartFill fill);
ChartPolygon Rectangle(const ChartRect& area, ChartFill fill);
ChartPolyline Segment(ChartPoint from, ChartPoint to, Rgb colour, double width);

// Part of an ellipse as points so near each other that no corner is seen. Degrees run clockwise from the
// right.
std::vector<ChartPoint> ArcPoints(ChartPoint centre, double radiusX, double radiusY, double from, double to);
ChartPolygon Ellipse(ChartPoint centre, double radiusX, double radiusY, ChartFill fill);

// The vector that leads from the front of a solid to its back.
struct ChartDepth {
  double X = 0, Y = 0;  // Y leads upwards, so it is 0 or below
};
inline ChartPoint Behind(ChartPoint point, ChartDepth depth, double share = 1) {
  return {point.X + depth.X * share, point.Y + depth.Y * share};
}

}  // namespace kev
