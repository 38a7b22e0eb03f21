// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>

#include "chart/series_shapes.h"

namespace kev {
namespace {

constexpr double kGap = 3;
constexpr double kPointGap = 6;  // above the dot of a line

// Values that are wider than their bars stand upright where all of them then have room.
bool StandUpright(const ChartWork& work, const std::vector<ValueMark>& marks) {
  double widest = 0, narrowest = 1e9;
  for (const ValueMark& mark : marks) {
    const ChartSeries& series = work.Data.Series[mark.Series];
    if (!series.ShowValues || !IsBar(series.Type)) continue;
    widest = std::max(widest, work.Texts.WidthOf(work.Data.ValueStyle, series.Shown[mark.Index]));
    narrowest = std::min(narrowest, mark.Pitch);
  }
  return widest > narrowest && narrowest >= work.Texts.HeightOf(work.Data.ValueStyle) * 0.9;
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

void DrawValues(const ChartWork& work, std::vector<ValueMark> marks) {
  const bool upright = StandUpright(work, marks);
  for (const ValueMark& mark : marks) {
    const ChartSeries& series = work.Data.Series[mark.Series];
    if (!series.ShowValues) continue;
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
