// SPDX-License-Identifier: MIT
#include "chart/series_shapes.h"

#include <algorithm>
#include <numeric>

namespace kev {
namespace {

constexpr double kGroupShare = 0.72;       // of the slot of a category
constexpr double kSolidGroupShare = 0.58;  // the sides of the bars need room as well
constexpr double kWidestBar = 64;
constexpr double kBarShare = 0.9;  // where several stand side by side
constexpr double kLaneMargin = 0.14;

// Series of a type, those with the largest sums first, so that smaller ones stand in front of them.
std::vector<std::size_t> BackToFront(const ChartData& data, SeriesType type) {
  std::vector<std::size_t> order;
  for (std::size_t n = 0; n < data.Series.size(); ++n)
    if (data.Series[n].Type == type) order.push_back(n);
  const auto weight = [&](std::size_t n) {
    const std::vector<double>& values = data.Series[n].Values;
    double sum = 0;
    for (const double value : values)
      sum += value / static_cast<double>(values.size());
    return sum;
  };
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return weight(a) > weight(b); });
  return order;
}

// Shares the depth out, from the back.
class Lanes {
 public:
  explicit Lanes(std::size_t count) : width_(1 / static_cast<double>(std::max<std::size_t>(1, count))) {}

  DepthLane Next() {
    from_ -= width_;
    return {from_ + width_ * kLaneMargin, from_ + width_ * (1 - kLaneMargin)};
  }

 private:
  double width_;
  double from_ = 1;
};

void DrawFlat(const SeriesWork& work, const std::vector<std::size_t>& areas,
              const std::vector<std::size_t>& lines) {
  for (const std::size_t n : areas)
    DrawFlatArea(work, n);
  DrawFlatBars(work);
  for (const std::size_t n : lines)
    DrawFlatLine(work, n);
}

void DrawSolid(const SeriesWork& work, const std::vector<std::size_t>& areas,
               const std::vector<std::size_t>& lines) {
  const bool bars = work.Work.Data.HasBars();
  Lanes lanes(areas.size() + lines.size() + (bars ? 1 : 0));
  for (const std::size_t n : areas)
    DrawPrism(work, n, lanes.Next());
  if (bars) DrawSolidBars(work, lanes.Next());
  for (const std::size_t n : lines)
    DrawRibbon(work, n, lanes.Next());
}

}  // namespace

std::vector<ValueMark> DrawSeries(const ChartWork& work, const PlotFrame& frame) {
  std::vector<ValueMark> marks;
  const SeriesWork series{work, frame, marks};
  const auto areas = BackToFront(work.Data, SeriesType::Area);
  const auto lines = BackToFront(work.Data, SeriesType::Line);
  if (work.Data.Form == ChartForm::Solid)
    DrawSolid(series, areas, lines);
  else
    DrawFlat(series, areas, lines);
  return marks;
}

double BarPitch(const ChartData& data, double slot) {
  const auto bars = std::count_if(data.Series.begin(), data.Series.end(),
                                  [](const ChartSeries& series) { return IsBar(series.Type); });
  const double share = data.Form == ChartForm::Solid ? kSolidGroupShare : kGroupShare;
  return std::min(slot * share / static_cast<double>(std::max<std::ptrdiff_t>(1, bars)), kWidestBar);
}

std::vector<BarPlace> PlaceBars(const ChartWork& work, const PlotFrame& frame) {
  std::vector<std::size_t> bars;
  for (std::size_t n = 0; n < work.Data.Series.size(); ++n)
    if (IsBar(work.Data.Series[n].Type)) bars.push_back(n);
  const double count = static_cast<double>(bars.size());
  const double pitch = BarPitch(work.Data, frame.Slot());
  const double width = count > 1 ? pitch * kBarShare : pitch;
  std::vector<BarPlace> places;
  for (std::size_t index = 0; index < frame.Categories; ++index) {
    double left = frame.X(index) - pitch * count / 2 + (pitch - width) / 2;
    for (const std::size_t n : bars) {
      const std::vector<double>& values = work.Data.Series[n].Values;
      if (index < values.size()) {
        const double y = frame.Y(values[index]), zero = frame.Y(0);
        places.push_back(
            {n, index, {left, std::min(y, zero), left + width, std::max(y, zero)}, values[index] < 0, pitch});
      }
      left += pitch;
    }
  }
  return places;
}

std::vector<ChartPoint> PointsOf(const SeriesWork& work, std::size_t series) {
  const std::vector<double>& values = work.Work.Data.Series[series].Values;
  std::vector<ChartPoint> points;
  for (std::size_t index = 0; index < values.size(); ++index)
    points.push_back({work.Frame.X(index), work.Frame.Y(values[index])});
  return points;
}

std::vector<ChartPoint> AreaPointsOf(const SeriesWork& work, std::size_t series) {
  std::vector<ChartPoint> points = PointsOf(work, series);
  if (points.size() != 1) return points;
  const double half = std::min(work.Frame.Slot() * kGroupShare, kWidestBar) / 2;
  const ChartPoint middle = points.front();
  return {{middle.X - half, middle.Y}, {middle.X + half, middle.Y}};
}

}  // namespace kev
