// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <utility>

#include "chart/series_shapes.h"

namespace kev {
namespace {

constexpr double kGap = 3;
constexpr double kUprightPitch = 0.9;  // heights of a text
constexpr double kLeastSlot = 0.8;     // heights of a text
constexpr double kNoBars = 1e9;
constexpr double kPointGap = 6;  // above the dot of a line

double WidestValue(const ChartWork& work) {
  double widest = 0;
  for (const ChartSeries& series : work.Data.Series) {
    if (!series.ShowValues || !IsBar(series.Type)) continue;
    for (const std::string& value : series.Shown)
      widest = std::max(widest, work.Texts.WidthOf(work.Data.ValueStyle, value));
  }
  return widest;
}

void PlaceLevel(const ChartWork& work, const ValueMark& mark, ChartText text, double gap) {
  text.At = {mark.At.X - text.Width / 2, mark.Below ? mark.At.Y + gap : mark.At.Y - gap - text.Height};
  work.Texts.Place(std::move(text));
}

void PlaceUpright(const ChartWork& work, const ValueMark& mark, ChartText text) {
  text.Degrees = -90;
  text.At = {mark.At.X - text.Height / 2, mark.Below ? mark.At.Y + kGap + text.Width : mark.At.Y - kGap};
  work.Texts.Place(std::move(text));
}

}  // namespace

double HeightOfValues(const ChartWork& work, double pitch) {
  const double height = work.Texts.HeightOf(work.Data.ValueStyle);
  const double widest = WidestValue(work);
  return widest > pitch && pitch >= height * kUprightPitch ? widest : height;
}

void DrawValues(const ChartWork& work, std::vector<ValueMark> marks) {
  const double slot = marks.empty() ? 0 : marks.front().Slot;
  // Where some would find a place by chance among hundreds, none says more.
  const bool hasRoom = slot >= work.Texts.HeightOf(work.Data.ValueStyle) * kLeastSlot;
  double pitch = kNoBars;
  for (const ValueMark& mark : marks)
    if (IsBar(work.Data.Series[mark.Series].Type)) pitch = mark.Pitch;
  const bool upright = HeightOfValues(work, pitch) > work.Texts.HeightOf(work.Data.ValueStyle);
  for (const ValueMark& mark : marks) {
    const ChartSeries& series = work.Data.Series[mark.Series];
    if (!series.ShowValues || !hasRoom) continue;
    ChartText text = work.Texts.Make(work.Data.ValueStyle, series.Shown[mark.Index]);
    if (!IsBar(series.Type))
      PlaceLevel(work, mark, std::move(text), kPointGap);
    else if (upright)
      PlaceUpright(work, mark, std::move(text));
    else
      PlaceLevel(work, mark, std::move(text), kGap);
  }
}

}  // namespace kev
