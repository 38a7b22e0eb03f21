// SPDX-License-Identifier: MIT
// Bars as blocks and cylinders, areas as prisms, lines as ribbons. The light comes from above and the left.
#include <algorithm>
#include <utility>

#include "chart/series_shapes.h"
#include "chart/shades.h"

namespace kev {
namespace {

constexpr double kSideShade = 0.34;
constexpr double kTopLight = 0.3;
constexpr double kEdge = 0.8;

// A front face seen with what lies behind it.
struct Solid {
  ChartDepth ToFront;    // from the front plane of the plot
  ChartDepth Thickness;  // from there on

  Solid(const ChartDepth& depth, DepthLane lane)
      : ToFront{depth.X * lane.From, depth.Y * lane.From},
        Thickness{depth.X * (lane.To - lane.From), depth.Y * (lane.To - lane.From)} {}

  ChartPoint Front(ChartPoint point) const { return Behind(point, ToFront); }
  ChartPoint Back(ChartPoint point) const { return Behind(Front(point), Thickness); }
  ChartPoint Middle(ChartPoint point) const { return Behind(Front(point), Thickness, 0.5); }
};

void DrawBlock(std::vector<ChartShape>& shapes, const ChartRect& area, const Solid& solid, Rgb colour,
               bool edges) {
  const ChartPoint topLeft{area.Left, area.Top}, topRight{area.Right, area.Top};
  const ChartPoint bottomLeft{area.Left, area.Bottom}, bottomRight{area.Right, area.Bottom};
  const auto face = [&](ChartPolygon polygon) {
    if (edges) {
      polygon.EdgeColour = Darker(colour, 0.45);
      polygon.EdgeWidth = kEdge;
    }
    shapes.push_back(std::move(polygon));
  };
  face(Quad(solid.Front(topLeft), solid.Back(topLeft), solid.Back(topRight), solid.Front(topRight),
            Plain(Lighter(colour, kTopLight))));
  face(Quad(solid.Front(topRight), solid.Back(topRight), solid.Back(bottomRight), solid.Front(bottomRight),
            {{Darker(colour, kSideShade - 0.08), Darker(colour, kSideShade + 0.06)}}));
  face(Quad(solid.Front(topLeft), solid.Front(topRight), solid.Front(bottomRight), solid.Front(bottomLeft),
            {{Lighter(colour, 0.08), Darker(colour, 0.06)}}));
}

void DrawCylinder(std::vector<ChartShape>& shapes, const ChartRect& area, const Solid& solid, Rgb colour) {
  const double radiusX = area.Width() / 2;
  const double radiusY = std::min(radiusX * 0.45, -solid.Thickness.Y / 2);
  const ChartPoint top = solid.Middle({(area.Left + area.Right) / 2, area.Top});
  const ChartPoint foot = solid.Middle({(area.Left + area.Right) / 2, area.Bottom});
  ChartPolygon body{.Points = ArcPoints(foot, radiusX, radiusY, 0, 180),
                    .Fill = {{Darker(colour, 0.16), Lighter(colour, 0.36), Lighter(colour, 0.06),
                              Darker(colour, 0.2), Darker(colour, 0.38)},
                             ChartFill::Run::Across}};
  const auto above = ArcPoints(top, radiusX, radiusY, 180, 0);
  body.Points.insert(body.Points.end(), above.begin(), above.end());
  shapes.push_back(std::move(body));
  shapes.push_back(Ellipse(top, radiusX, radiusY,
                           {{Lighter(colour, 0.5), Lighter(colour, 0.26)}, ChartFill::Run::Across}));
}

// With a point wherever the series goes through zero.
std::vector<ChartPoint> WithCrossings(const std::vector<ChartPoint>& points, double zero) {
  std::vector<ChartPoint> all;
  for (const ChartPoint& point : points) {
    if (!all.empty() && (all.back().Y - zero) * (point.Y - zero) < 0) {
      const ChartPoint before = all.back();
      const double share = (zero - before.Y) / (point.Y - before.Y);
      all.push_back({before.X + (point.X - before.X) * share, zero});
    }
    all.push_back(point);
  }
  return all;
}

// The strip from a line back to the end of its lane. Rising parts face the light.
void DrawStrip(std::vector<ChartShape>& shapes, const std::vector<ChartPoint>& points, const Solid& solid,
               Rgb colour) {
  for (std::size_t n = 1; n < points.size(); ++n) {
    const ChartPoint from = points[n - 1], to = points[n];
    const double fall = (to.Y - from.Y) / std::max(1.0, to.X - from.X);
    const double shade = std::clamp(fall * 0.35, -0.3, 0.4);
    const Rgb tone = shade < 0 ? Lighter(colour, 0.12 - shade) : MixColours(Lighter(colour, 0.12), 0, shade);
    ChartPolygon strip =
        Quad(solid.Front(from), solid.Back(from), solid.Back(to), solid.Front(to), Plain(tone));
    strip.EdgeColour = Darker(tone, 0.22);
    strip.EdgeWidth = 0.5;
    shapes.push_back(std::move(strip));
  }
}

std::vector<ChartPoint> InFront(const std::vector<ChartPoint>& points, const Solid& solid) {
  std::vector<ChartPoint> moved;
  std::transform(points.begin(), points.end(), std::back_inserter(moved),
                 [&](ChartPoint point) { return solid.Front(point); });
  return moved;
}

void MarkPoints(const SeriesWork& work, std::size_t series, const Solid& solid) {
  const std::vector<ChartPoint> points = PointsOf(work, series);
  for (std::size_t index = 0; index < points.size(); ++index)
    work.Marks.push_back(
        {series, index, solid.Back(points[index]), false, work.Frame.Slot(), work.Frame.Slot()});
}

void DrawSide(std::vector<ChartShape>& shapes, double x, double top, double foot, const Solid& solid,
              Rgb colour) {
  const ChartPoint high{x, top}, low{x, foot};
  shapes.push_back(Quad(solid.Front(high), solid.Back(high), solid.Back(low), solid.Front(low),
                        Plain(Darker(colour, kSideShade))));
}

}  // namespace

void DrawSolidBars(const SeriesWork& work, DepthLane lane) {
  const Solid solid(work.Frame.Depth, lane);
  for (const BarPlace& bar : PlaceBars(work.Work, work.Frame)) {
    const ChartSeries& series = work.Work.Data.Series[bar.Series];
    if (series.Type == SeriesType::BarRound)
      DrawCylinder(work.Work.Shapes, bar.Area, solid, series.Colour);
    else
      DrawBlock(work.Work.Shapes, bar.Area, solid, series.Colour, series.Type == SeriesType::BarSquared);
    const double middle = (bar.Area.Left + bar.Area.Right) / 2;
    const ChartPoint at = bar.Negative ? solid.Front({middle, bar.Area.Bottom})
                                       : ChartPoint{solid.Middle({middle, bar.Area.Top}).X,
                                                    solid.Back({middle, bar.Area.Top}).Y};
    work.Marks.push_back({bar.Series, bar.Index, at, bar.Negative, bar.Pitch, work.Frame.Slot()});
  }
}

void DrawPrism(const SeriesWork& work, std::size_t series, DepthLane lane) {
  const Solid solid(work.Frame.Depth, lane);
  const double zero = work.Frame.Y(0);
  const std::vector<ChartPoint> edge = WithCrossings(AreaPointsOf(work, series), zero);
  if (edge.empty()) return;
  const Rgb colour = work.Work.Data.Series[series].Colour;
  std::vector<ChartPoint> top = edge;
  for (ChartPoint& point : top)
    point.Y = std::min(point.Y, zero);
  std::vector<ChartShape>& shapes = work.Work.Shapes;
  DrawStrip(shapes, top, solid, colour);
  DrawSide(shapes, edge.back().X, edge.back().Y, zero, solid, colour);
  ChartPolygon face{.Points = InFront(edge, solid), .Fill = {{Lighter(colour, 0.12), Darker(colour, 0.08)}}};
  face.Points.push_back(solid.Front({edge.back().X, zero}));
  face.Points.push_back(solid.Front({edge.front().X, zero}));
  shapes.push_back(std::move(face));
  shapes.push_back(
      ChartPolyline{.Points = InFront(edge, solid), .Colour = Darker(colour, 0.25), .Width = kEdge});
  MarkPoints(work, series, solid);
}

void DrawRibbon(const SeriesWork& work, std::size_t series, DepthLane lane) {
  const Solid solid(work.Frame.Depth, lane);
  const std::vector<ChartPoint> points = AreaPointsOf(work, series);
  const Rgb colour = work.Work.Data.Series[series].Colour;
  DrawStrip(work.Work.Shapes, points, solid, colour);
  if (points.size() > 1)
    work.Work.Shapes.push_back(
        ChartPolyline{.Points = InFront(points, solid), .Colour = Darker(colour, 0.2), .Width = 1.4});
  MarkPoints(work, series, solid);
}

}  // namespace kev
