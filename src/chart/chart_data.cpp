// SPDX-License-Identifier: MIT
#include "chart/chart_data.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/numbers.h"
#include "base/text.h"
#include "chart/definition.h"
#include "chart/gradient.h"
#include "chart/scale.h"
#include "chart/slots.h"

namespace kev {
namespace {

using slot::SeriesPart;

constexpr double kLargestValue = 1e300;
constexpr double kUsualPoints = 8;
constexpr double kSmallestPoints = 2;
constexpr double kLargestPoints = 300;
constexpr std::size_t kLongestText = 400;
constexpr Rgb kAxisGrey = 0x808080;
constexpr Rgb kValueLineGrey = 0xD4D4D4;
constexpr Rgb kChartTextColour = 0x000000;
constexpr Rgb kLightLabelGrey = 0xE0E0E0;
constexpr int kDarkBackground = 600;  // the sum of its six parts
constexpr Rgb kLabelGrey = 0x404040;

std::string_view ValueOf(const ChartLook& look, std::size_t slot) {
  return slot < look.Values.size() ? std::string_view(look.Values[slot])
                                   : std::string_view(ChartKeys()[slot].defaultValue);
}

bool Is(std::string_view text, std::string_view word) {
  return CodePage::Default().EqualsIgnoringCase(Trim(text), word);
}

std::string ShortText(std::string_view text) {
  return std::string(Trim(text).substr(0, kLongestText));
}

std::vector<std::string_view> Pieces(std::string_view text) {
  std::vector<std::string_view> pieces;
  if (Trim(text).empty()) return pieces;
  while (pieces.size() < kMostChartValues) {
    const std::size_t comma = text.find(',');
    pieces.push_back(text.substr(0, comma));
    if (comma == std::string_view::npos) break;
    text.remove_prefix(comma + 1);
  }
  return pieces;
}

FontSpec FontOf(std::string_view name, std::string_view size) {
  FontSpec font;
  if (const std::string given = ShortText(name); !given.empty()) font.Name = given;
  const double points = NumericPrefix(size);
  font.Size = points > 0 ? std::clamp(points, kSmallestPoints, kLargestPoints) : kUsualPoints;
  return font;
}

Rgb ColourOr(std::string_view text, Rgb otherwise) {
  return Trim(text).empty() ? otherwise : ChartColourOf(text);
}

SeriesType TypeOf(std::string_view word) {
  if (Is(word, "BARROUND")) return SeriesType::BarRound;
  if (Is(word, "BarSquared")) return SeriesType::BarSquared;
  if (Is(word, "Line")) return SeriesType::Line;
  if (Is(word, "Area")) return SeriesType::Area;
  return SeriesType::BarFlat;
}

ChartForm FormOf(std::string_view word) {
  if (Is(word, "3D")) return ChartForm::Solid;
  return Is(word, "PIE") ? ChartForm::Pie : ChartForm::Flat;
}

ChartSeries SeriesOf(const ChartLook& look, int n) {
  const auto value = [&](SeriesPart part) { return ValueOf(look, slot::OfSeries(n, part)); };
  ChartSeries series;
  series.Type = TypeOf(value(SeriesPart::Type));
  series.Colour = ColourOr(value(SeriesPart::Color),
                           ChartColourOf(ChartKeys()[slot::OfSeries(n, SeriesPart::Color)].defaultValue));
  series.Name = ShortText(value(SeriesPart::Name));
  series.ShowValues = IsChartYes(value(SeriesPart::ShowValues));
  for (const std::string_view piece : Pieces(value(SeriesPart::Values))) {
    series.Values.push_back(std::clamp(NumericPrefix(piece), -kLargestValue, kLargestValue));
    series.Shown.push_back(ValueText(piece, series.Values.back()));
  }
  return series;
}

// Readable also where nobody chose a colour for a dark background.
Rgb DefaultLabelColour(const ChartData& data) {
  int sum = 0;
  for (const int part : data.BackGround)
    sum += part;
  return sum < kDarkBackground && data.BackGroundPicture.empty() ? kLightLabelGrey : kLabelGrey;
}

void ReadStyles(ChartData& data, const ChartLook& look) {
  const auto value = [&](std::size_t slot) { return ValueOf(look, slot); };
  data.TitleStyle = {FontOf(value(slot::kTitleFont), value(slot::kTitleFontSize)),
                     ColourOr(value(slot::kTitleFontColor), kChartTextColour)};
  data.TitleStyle.Font.Bold = IsChartYes(value(slot::kTitleFontBold));
  data.TitleStyle.Font.Italic = IsChartYes(value(slot::kTitleFontItalic));
  data.TitleStyle.Font.Underline = IsChartYes(value(slot::kTitleFontUnderline));
  data.LabelStyle = {FontOf(value(slot::kLayoutFont), value(slot::kLayoutFontSize)),
                     ColourOr(value(slot::kLayoutFontColor), DefaultLabelColour(data))};
  data.ValueStyle = {FontOf(value(slot::kShowValuesFont), value(slot::kShowValuesFontSize)),
                     ColourOr(value(slot::kShowValuesFontColor), kChartTextColour)};
}

void ReadAxes(ChartData& data, const ChartLook& look) {
  const int style = Int32Of(ValueOf(look, slot::kAxisStyle));
  data.Frame = style == 2 || style == 4;
  data.ValueLines = style == 3 || style == 4;
  data.AxisColour = ColourOr(ValueOf(look, slot::kAxisColor1), kAxisGrey);
  data.ValueLineColour = ColourOr(ValueOf(look, slot::kAxisColor2), kValueLineGrey);
  data.ShowAxis = IsChartYes(ValueOf(look, slot::kShowAxis));
  data.ShowAxisBackGround = IsChartYes(ValueOf(look, slot::kShowAxisBackGround));
}

}  // namespace

bool IsChartYes(std::string_view text) {
  return Is(text, "Y") || Is(text, "1");
}

std::size_t ChartData::Categories() const {
  std::size_t most = std::max<std::size_t>(1, Labels.size());
  for (const ChartSeries& series : Series)
    most = std::max(most, series.Values.size());
  return most;
}

bool ChartData::HasBars() const {
  return std::any_of(Series.begin(), Series.end(), [](const ChartSeries& s) { return IsBar(s.Type); });
}

bool ChartData::ShowsValues() const {
  return std::any_of(Series.begin(), Series.end(), [](const ChartSeries& s) { return s.ShowValues; });
}

ChartData ReadChart(const ChartLook& look) {
  ChartData data;
  data.Form = FormOf(ValueOf(look, slot::kType));
  data.BackGround = GradientOf(ValueOf(look, slot::kBackGround));
  data.BackGroundPicture = std::string(Trim(ValueOf(look, slot::kBackGroundPicture)));
  data.Title = ShortText(ValueOf(look, slot::kTitle));
  data.ShowSeriesTitles = IsChartYes(ValueOf(look, slot::kShowSeriesTitles));
  ReadStyles(data, look);
  ReadAxes(data, look);
  for (const std::string_view label : Pieces(ValueOf(look, slot::kLayoutValues)))
    data.Labels.push_back(ShortText(label));
  for (int n = 1; n <= kChartPieColourCount; ++n)
    data.PieColours.push_back(ChartColourOf(ValueOf(look, slot::PieColor(n))));
  const int count = std::clamp(Int32Of(ValueOf(look, slot::kSeries)), 1, kChartSeriesCount);
  for (int n = 1; n <= count; ++n)
    data.Series.push_back(SeriesOf(look, n));
  return data;
}

}  // namespace kev
