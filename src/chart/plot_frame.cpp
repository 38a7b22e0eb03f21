// SPDX-License-Identifier: MIT
#include "chart/plot_frame.h"

#include <algorithm>
#include <cmath>

#include "chart/series_shapes.h"

namespace kev {
namespace {

constexpr double kTickGap = 7;    // between a tick's text and the axis
constexpr double kTickPitch = 2;  // heights of a text between two ticks
constexpr int kMostSteps = 6;
constexpr double kMostTickShare = 0.35;
constexpr double kMostLabelShare = 0.35;
constexpr double kMostValueShare = 0.25;
constexpr double kFarFromZero = 0.75;  // lines that extend by less of their distance leave zero out
constexpr double kRoomBelow = 0.07;    // of the extent, for the values of bars that hang down
constexpr double kDepthRise = 0.55;    // how far a solid goes up for each pixel that it goes back

struct Range {
  double low = 0, high = 0;
};

// Bars and areas stand on zero. Lines that stay far from it alone may leave it out.
Range RangeOf(const ChartData& data) {
  bool any = false, fromZero = false;
  Range range;
  for (const ChartSeries& series : data.Series) {
    fromZero = fromZero || (series.Type != SeriesType::Line && !series.Values.empty());
    for (const double value : series.Values) {
      range = any ? Range{std::min(range.low, value), std::max(range.high, value)} : Range{value, value};
      any = true;
    }
  }
  const double extent = range.high - range.low;
  const double nearest = range.low > 0 ? range.low : (range.high < 0 ? -range.high : 0);
  if (fromZero || extent <= 0 || extent > nearest * kFarFromZero)
    range = {std::min(range.low, 0.0), std::max(range.high, 0.0)};
  if (range.low < 0 && data.HasBars() && data.ShowsValues()) range.low *= 1 + kRoomBelow;
  return range;
}

std::size_t LaneCount(const ChartData& data) {
  const auto others = std::count_if(data.Series.begin(), data.Series.end(),
                                    [](const ChartSeries& series) { return !IsBar(series.Type); });
  return static_cast<std::size_t>(others) + (data.HasBars() ? 1 : 0);
}

ChartDepth DepthOf(const ChartData& data, const ChartRect& room, std::size_t categories) {
  if (data.Form != ChartForm::Solid) return {};
  const double side = std::min(room.Width(), room.Height());
  const double slot = room.Width() / static_cast<double>(categories);
  const double lane = std::clamp(slot * 0.4, side * 0.06, side * 0.13);
  const double back = std::min(lane * static_cast<double>(LaneCount(data)), side * 0.26);
  return {back, -back * kDepthRise};
}

double WidestTick(const ChartWork& work, const ChartScale& scale) {
  double widest = 0;
  for (const double tick : scale.Ticks)
    widest = std::max(widest, work.Texts.WidthOf(work.Data.LabelStyle, TickText(tick, scale.Step)));
  return widest;
}

// Above the highest bar there must be room for its value, and above the highest tick for half a text.
double RoomAbove(const ChartWork& work, const ChartRect& room, std::size_t categories) {
  const double half = work.Data.ShowAxis ? work.Texts.HeightOf(work.Data.LabelStyle) / 2 : 2;
  const double value =
      work.Data.ShowsValues()
          ? HeightOfValues(work, BarPitch(work.Data, room.Width() / static_cast<double>(categories))) + 4
          : 0;
  return std::min(std::max(half, value), room.Height() * kMostValueShare);
}

}  // namespace

PlotFrame FramePlot(const ChartWork& work, const ChartRect& room) {
  const ChartData& data = work.Data;
  PlotFrame frame;
  frame.Categories = data.Categories();
  frame.Depth = DepthOf(data, room, frame.Categories);
  const double text = work.Texts.HeightOf(data.LabelStyle);
  const double above = RoomAbove(work, room, frame.Categories) - frame.Depth.Y;
  const double height = room.Height() - above - text;
  const Range range = RangeOf(data);
  frame.Scale =
      MakeScale(range.low, range.high,
                static_cast<int>(std::clamp(height / (text * kTickPitch), 1.0, double{kMostSteps})));
  const double ticks = WidestTick(work, frame.Scale) + kTickGap;
  frame.TickTexts = data.ShowAxis && ticks <= room.Width() * kMostTickShare && height >= 2 * text;
  frame.Front = {room.Left + (frame.TickTexts ? ticks : 0), room.Top + above, room.Right - frame.Depth.X,
                 room.Bottom};
  frame.Labels = PlanLabels(work, frame.Slot(), room.Height() * kMostLabelShare);
  frame.Front.Bottom -= std::max(frame.Labels.Height, frame.TickTexts ? text / 2 : 0);
  frame.Front.Right = std::max(frame.Front.Right, frame.Front.Left);
  frame.Front.Bottom = std::max(frame.Front.Bottom, frame.Front.Top);
  return frame;
}

}  // namespace kev
