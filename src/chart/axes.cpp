// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "chart/plot_frame.h"
#include "chart/shades.h"

namespace kev {
namespace {

constexpr double kThin = 1;
constexpr double kMark = 4;
constexpr double kTickGap = 7;
constexpr double kWhiteFrom = 0.97;  // a background at least as bright gets a grey plot, another a white one
constexpr Rgb kPlotGrey = 0xF6F7F9;

struct Corners {
  ChartPoint TopLeft, TopRight, BottomRight, BottomLeft;
};

Corners FrontOf(const PlotFrame& frame) {
  const ChartRect& at = frame.Front;
  return {{at.Left, at.Top}, {at.Right, at.Top}, {at.Right, at.Bottom}, {at.Left, at.Bottom}};
}

Corners BackOf(const PlotFrame& frame) {
  const Corners front = FrontOf(frame);
  return {Behind(front.TopLeft, frame.Depth), Behind(front.TopRight, frame.Depth),
          Behind(front.BottomRight, frame.Depth), Behind(front.BottomLeft, frame.Depth)};
}

bool HasWhiteBackground(const ChartData& data) {
  return data.BackGroundPicture.empty() &&
         *std::min_element(data.BackGround.begin(), data.BackGround.end()) >= 255 * kWhiteFrom;
}

ChartFill PlotFill(const ChartData& data) {
  return HasWhiteBackground(data) ? Plain(kPlotGrey) : Plain(kChartWhite, 0.72);
}

void DrawFlatWall(const ChartWork& work, const PlotFrame& frame) {
  if (work.Data.ShowAxisBackGround) work.Shapes.push_back(Rectangle(frame.Front, PlotFill(work.Data)));
}

void DrawSolidWalls(const ChartWork& work, const PlotFrame& frame) {
  if (!work.Data.ShowAxisBackGround) return;
  const Corners front = FrontOf(frame), back = BackOf(frame);
  const double opacity = HasWhiteBackground(work.Data) ? 1 : 0.78;
  const auto wall = [&](ChartPoint a, ChartPoint b, ChartPoint c, ChartPoint d, std::vector<Rgb> colours) {
    work.Shapes.push_back(Quad(a, b, c, d, {std::move(colours), ChartFill::Run::Down, opacity}));
  };
  wall(back.TopLeft, back.TopRight, back.BottomRight, back.BottomLeft, {0xFAFBFC, 0xEFF1F4});
  wall(front.TopLeft, back.TopLeft, back.BottomLeft, front.BottomLeft, {0xEEF0F3, 0xE3E6EA});
  wall(back.BottomLeft, back.BottomRight, front.BottomRight, front.BottomLeft, {0xDDE0E5, 0xE8EAEE});
}

void DrawValueLine(const ChartWork& work, const PlotFrame& frame, double y) {
  const ChartPoint left{frame.Front.Left, y};
  const ChartPoint right = Behind({frame.Front.Right, y}, frame.Depth);
  if (work.Data.Form != ChartForm::Solid)
    return work.Shapes.push_back(Segment(left, right, work.Data.ValueLineColour, kThin));
  work.Shapes.push_back(ChartPolyline{.Points = {left, Behind(left, frame.Depth), right},
                                      .Colour = work.Data.ValueLineColour,
                                      .Width = kThin});
}

// The edges of the walls; what stands in front of them hides them, so they are drawn before the series.
void DrawSolidAxes(const ChartWork& work, const PlotFrame& frame) {
  const Corners front = FrontOf(frame), back = BackOf(frame);
  const auto line = [&](std::vector<ChartPoint> points) {
    work.Shapes.push_back(
        ChartPolyline{.Points = std::move(points), .Colour = work.Data.AxisColour, .Width = kThin});
  };
  line({front.TopLeft, front.BottomLeft, front.BottomRight});
  line({front.BottomLeft, back.BottomLeft, back.BottomRight});
  line({back.BottomLeft, back.TopLeft});
  if (!work.Data.Frame) return;
  line({front.TopLeft, back.TopLeft, back.TopRight, back.BottomRight, front.BottomRight});
}

void DrawMarks(const ChartWork& work, const PlotFrame& frame) {
  if (!frame.TickTexts) return;
  for (const double tick : frame.Scale.Ticks) {
    const double y = frame.Y(tick);
    work.Shapes.push_back(
        Segment({frame.Front.Left - kMark, y}, {frame.Front.Left, y}, work.Data.AxisColour, kThin));
  }
}

}  // namespace

void DrawWalls(const ChartWork& work, const PlotFrame& frame) {
  const bool solid = work.Data.Form == ChartForm::Solid;
  solid ? DrawSolidWalls(work, frame) : DrawFlatWall(work, frame);
  if (!work.Data.ShowAxis) return;
  if (work.Data.ValueLines) {
    for (const double tick : frame.Scale.Ticks)
      DrawValueLine(work, frame, frame.Y(tick));
  }
  if (solid) DrawSolidAxes(work, frame);
}

void DrawAxes(const ChartWork& work, const PlotFrame& frame) {
  if (!work.Data.ShowAxis) return;
  DrawMarks(work, frame);
  const ChartRect& at = frame.Front;
  const Rgb colour = work.Data.AxisColour;
  const bool crossesZero = frame.Scale.Low < 0 && frame.Scale.High > 0;
  if (crossesZero) {
    const double zero = frame.Y(0);
    work.Shapes.push_back(Segment({at.Left, zero}, {at.Right, zero}, colour, kThin));
  }
  if (work.Data.Form == ChartForm::Solid) return;
  const Corners front = FrontOf(frame);
  std::vector<ChartPoint> points = {front.TopLeft, front.BottomLeft, front.BottomRight};
  if (work.Data.Frame) points.insert(points.end(), {front.TopRight, front.TopLeft});
  work.Shapes.push_back(ChartPolyline{.Points = std::move(points), .Colour = colour, .Width = kThin});
}

void DrawTickTexts(const ChartWork& work, const PlotFrame& frame) {
  if (!frame.TickTexts) return;
  for (const double tick : frame.Scale.Ticks) {
    ChartText text = work.Texts.Make(work.Data.LabelStyle, TickText(tick, frame.Scale.Step));
    text.At = {frame.Front.Left - kTickGap - text.Width, frame.Y(tick) - text.Height / 2};
    work.Texts.Place(std::move(text));
  }
}

}  // namespace kev
