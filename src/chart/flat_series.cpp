// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>

#include "chart/series_shapes.h"
#include "chart/shades.h"

namespace kev {
namespace {

constexpr double kThinnestBar = 1;  // logical pixels of height
constexpr double kRoundest = 9;
constexpr double kMostBevel = 3;
constexpr double kLineWidth = 2.25;
constexpr double kFineLine = 1.25;
constexpr double kAreaLine = 1.75;
constexpr double kDot = 3.2;
constexpr double kDotEdge = 1.6;
constexpr double kDotShare = 0.036;  // of the shorter side of the plot
constexpr double kDotGap = 9;        // dots nearer to each other than this are left out

// A value that is not zero is never too small to be seen.
ChartRect Visible(ChartRect area, bool negative, const ChartRect& plot) {
  if (area.Height() <= 0 || area.Height() >= kThinnestBar) return area;
  if (negative)
    area.Bottom = std::min(area.Top + kThinnestBar, plot.Bottom);
  else
    area.Top = std::max(area.Bottom - kThinnestBar, plot.Top);
  return area;
}

ChartPolygon RoundBar(const ChartRect& area, bool negative, Rgb colour) {
  const double radius = std::min({area.Width() / 2, area.Height(), kRoundest});
  const double round = negative ? area.Bottom - radius : area.Top + radius;
  const double square = negative ? area.Top : area.Bottom;
  const double turn = negative ? -1 : 1;
  ChartPolygon bar;
  bar.Fill = {{Darker(colour, 0.2), Lighter(colour, 0.32), Lighter(colour, 0.08), Darker(colour, 0.12),
               Darker(colour, 0.28)},
              ChartFill::Run::Across};
  bar.Points = ArcPoints({area.Left + radius, round}, radius, radius * turn, 180, 270);
  const auto right = ArcPoints({area.Right - radius, round}, radius, radius * turn, 270, 360);
  bar.Points.insert(bar.Points.end(), right.begin(), right.end());
  bar.Points.push_back({area.Right, square});
  bar.Points.push_back({area.Left, square});
  return bar;
}

// A block whose edges catch the light.
void SquaredBar(std::vector<ChartShape>& shapes, const ChartRect& out, Rgb colour) {
  const double bevel = std::min({kMostBevel, out.Width() / 5, out.Height() / 3});
  const ChartRect in{out.Left + bevel, out.Top + bevel, out.Right - bevel, out.Bottom - bevel};
  shapes.push_back(Rectangle(out, Plain(Darker(colour, 0.3))));
  shapes.push_back(Quad({out.Left, out.Top}, {out.Right, out.Top}, {in.Right, in.Top}, {in.Left, in.Top},
                        Plain(Lighter(colour, 0.5))));
  shapes.push_back(Quad({out.Left, out.Top}, {in.Left, in.Top}, {in.Left, in.Bottom}, {out.Left, out.Bottom},
                        Plain(Lighter(colour, 0.28))));
  shapes.push_back(Rectangle(in, Plain(colour)));
}

void DrawFlatBar(std::vector<ChartShape>& shapes, const BarPlace& bar, const ChartRect& area,
                 const ChartSeries& series) {
  switch (series.Type) {
    case SeriesType::BarRound:
      return shapes.push_back(RoundBar(area, bar.Negative, series.Colour));
    case SeriesType::BarSquared:
      return SquaredBar(shapes, area, series.Colour);
    case SeriesType::BarFlat:
    case SeriesType::Line:
    case SeriesType::Area:
      return shapes.push_back(Rectangle(area, Plain(series.Colour)));
  }
}

void MarkPoints(const SeriesWork& work, std::size_t series, const std::vector<ChartPoint>& points) {
  const ChartSeries& drawn = work.Work.Data.Series[series];
  for (std::size_t index = 0; index < points.size(); ++index)
    work.Marks.push_back(
        {series, index, points[index], drawn.Values[index] < 0, work.Frame.Slot(), work.Frame.Slot()});
}

// The room around a plot grows with it; in a small one the dots are smaller, so that none is cut.
double DotRadius(const PlotFrame& frame) {
  const double side = std::min(frame.Front.Width(), frame.Front.Height());
  return std::min(kDot, side * kDotShare - kDotEdge / 2);
}

}  // namespace

void DrawFlatBars(const SeriesWork& work) {
  for (const BarPlace& bar : PlaceBars(work.Work, work.Frame)) {
    const ChartRect area = Visible(bar.Area, bar.Negative, work.Frame.Front);
    if (area.Height() > 0) DrawFlatBar(work.Work.Shapes, bar, area, work.Work.Data.Series[bar.Series]);
    work.Marks.push_back({bar.Series,
                          bar.Index,
                          {(area.Left + area.Right) / 2, bar.Negative ? area.Bottom : area.Top},
                          bar.Negative,
                          bar.Pitch,
                          work.Frame.Slot()});
  }
}

void DrawFlatArea(const SeriesWork& work, std::size_t series) {
  const std::vector<ChartPoint> top = AreaPointsOf(work, series);
  if (top.empty()) return;
  const Rgb colour = work.Work.Data.Series[series].Colour;
  const double zero = work.Frame.Y(0);
  ChartPolygon area{.Points = top, .Fill = {{colour, Lighter(colour, 0.25)}, ChartFill::Run::Down, 0.6}};
  area.Points.push_back({top.back().X, zero});
  area.Points.push_back({top.front().X, zero});
  work.Work.Shapes.push_back(std::move(area));
  work.Work.Shapes.push_back(
      ChartPolyline{.Points = top, .Colour = Darker(colour, 0.12), .Width = kAreaLine});
  MarkPoints(work, series, PointsOf(work, series));
}

void DrawFlatLine(const SeriesWork& work, std::size_t series) {
  const std::vector<ChartPoint> points = PointsOf(work, series);
  const Rgb colour = work.Work.Data.Series[series].Colour;
  if (points.size() > 1)
    work.Work.Shapes.push_back(ChartPolyline{
        .Points = points, .Colour = colour, .Width = work.Frame.Slot() >= kDotGap ? kLineWidth : kFineLine});
  const double radius = DotRadius(work.Frame);
  const bool dots = radius > 0 && (points.size() == 1 || work.Frame.Slot() >= kDotGap);
  for (std::size_t index = 0; dots && index < points.size(); ++index) {
    ChartPolygon dot = Ellipse(points[index], radius, radius, Plain(kChartWhite));
    dot.EdgeColour = colour;
    dot.EdgeWidth = kDotEdge;
    work.Work.Shapes.push_back(std::move(dot));
  }
  MarkPoints(work, series, points);
}

}  // namespace kev
