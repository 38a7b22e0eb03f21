// SPDX-License-Identifier: MIT
#include "chart/graph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/text.h"
#include "chart/chart_data.h"
#include "chart/definition.h"
#include "chart/legend.h"
#include "chart/pie.h"
#include "chart/series_shapes.h"
#include "chart/slots.h"

namespace kev {
namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kLargestSide = 1e6;
constexpr double kSmallestDrawn = 8;
constexpr double kMostTitleShare = 0.35;
constexpr std::string_view kSampleLabels = "Layout 1,Layout 2,Layout 3,Layout 4,Layout 5,Layout 6";
constexpr std::string_view kSampleValues = "10,20,30,40,30,10";
constexpr std::string_view kUntouchedValues = "0,0,0,0,0,0";

bool IsReference(std::string_view text) {
  return Trim(text).starts_with('@');
}

bool NeedsSample(std::string_view values) {
  const std::string_view trimmed = Trim(values);
  return trimmed.empty() || trimmed == kUntouchedValues || IsReference(trimmed);
}

double SaneSide(double side) {
  return std::isfinite(side) ? std::clamp(side, 0.0, kLargestSide) : 0;
}

void DrawBackground(ChartPicture& picture, const ChartData& data) {
  const ChartRect whole{0, 0, picture.Width, picture.Height};
  picture.Shapes.push_back(ChartGradient{whole, data.BackGround});
  if (!data.BackGroundPicture.empty()) picture.Shapes.push_back(ChartImage{whole, data.BackGroundPicture});
}

ChartRect RoomOf(const ChartPicture& picture) {
  const double margin = std::clamp(std::min(picture.Width, picture.Height) * 0.045, 2.0, 14.0);
  return {margin, margin * 0.8, picture.Width - margin, picture.Height - margin * 0.8};
}

ChartRect DrawTitle(const ChartWork& work, ChartRect room) {
  const ChartTextStyle& style = work.Data.TitleStyle;
  const double height = work.Texts.HeightOf(style);
  if (work.Data.Title.empty() || height > room.Height() * kMostTitleShare) return room;
  ChartText title = work.Texts.Make(style, work.Texts.Elided(style, work.Data.Title, room.Width()));
  title.At = {room.Left + (room.Width() - title.Width) / 2, room.Top};
  if (work.Texts.Place(std::move(title))) room.Top += height + std::clamp(height * 0.5, 3.0, 12.0);
  return room;
}

ChartRect DrawSeriesTitles(const ChartWork& work, const ChartRect& room) {
  if (!work.Data.ShowSeriesTitles) return room;
  std::vector<LegendEntry> entries;
  for (const ChartSeries& series : work.Data.Series)
    entries.push_back(
        {series.Name, series.Colour, series.Type == SeriesType::Line && work.Data.Form == ChartForm::Flat});
  return DrawLegendBelow(work, entries, room);
}

void DrawPlot(const ChartWork& work, const ChartRect& room) {
  const PlotFrame frame = FramePlot(work, room);
  if (!frame.IsUsable()) return;
  DrawWalls(work, frame);
  std::vector<ValueMark> marks = DrawSeries(work, frame);
  DrawAxes(work, frame);
  DrawTickTexts(work, frame);
  DrawLabels(work, frame);
  DrawValues(work, std::move(marks));
}

}  // namespace

ChartLook LookOf(const ObjectRecord& record) {
  return {record.ChartValues, record.Width / kTwipsPerPixel, record.Height / kTwipsPerPixel};
}

ChartLook WithSamples(ChartLook look) {
  for (std::size_t at = look.Values.size(); at < kChartKeyCount; ++at)
    look.Values.push_back(ChartKeys()[at].defaultValue);
  std::string& labels = look.Values[slot::kLayoutValues];
  if (IsReference(labels)) labels = kSampleLabels;
  for (int n = 1; n <= kChartSeriesCount; ++n) {
    std::string& values = look.Values[slot::OfSeries(n, slot::SeriesPart::Values)];
    if (NeedsSample(values)) values = kSampleValues;
  }
  return look;
}

ChartPicture LayOutChart(const ChartLook& look, const TextMeasurer& measurer) {
  ChartPicture picture{SaneSide(look.Width), SaneSide(look.Height), {}};
  if (picture.Width <= 0 || picture.Height <= 0) return picture;
  const ChartData data = ReadChart(WithSamples(look));
  DrawBackground(picture, data);
  if (std::min(picture.Width, picture.Height) < kSmallestDrawn) return picture;
  ChartTexts texts(measurer, picture.Width, picture.Height);
  const ChartWork work{data, texts, picture.Shapes};
  const ChartRect room = DrawTitle(work, RoomOf(picture));
  if (data.Form == ChartForm::Pie)
    DrawPie(work, room);
  else
    DrawPlot(work, DrawSeriesTitles(work, room));
  for (const ChartText& text : texts.Placed())
    picture.Shapes.push_back(text);
  return picture;
}

}  // namespace kev
