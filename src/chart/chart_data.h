// SPDX-License-Identifier: MIT
// The texts of a chart's slots, read: what is no number counts as 0, what is no choice as the first one, and
// an empty font as Arial of 8 points.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "chart/graph.h"

namespace kev {

enum class ChartForm : std::uint8_t { Flat, Solid, Pie };
// "Bar" and words that nobody knows are BarFlat.
enum class SeriesType : std::uint8_t { BarFlat, BarRound, BarSquared, Line, Area };

constexpr bool IsBar(SeriesType type) {
  return type != SeriesType::Line && type != SeriesType::Area;
}

// More values of a series than this are not looked at; no page is wide enough to show them.
inline constexpr std::size_t kMostChartValues = 2000;

struct ChartSeries {
  SeriesType Type = SeriesType::BarFlat;
  Rgb Colour = 0;
  std::string Name;
  bool ShowValues = false;
  std::vector<double> Values;
  std::vector<std::string> Shown;  // the values as texts
};

struct ChartTextStyle {
  FontSpec Font;
  Rgb Colour = 0;
};

struct ChartData {
  ChartForm Form = ChartForm::Flat;
  std::array<int, 6> BackGround{};
  std::string BackGroundPicture;
  Rgb AxisColour = 0, ValueLineColour = 0;
  bool Frame = false, ValueLines = false;
  bool ShowAxis = true, ShowAxisBackGround = true, ShowSeriesTitles = false;
  std::string Title;
  ChartTextStyle TitleStyle, LabelStyle, ValueStyle;
  std::vector<std::string> Labels;
  std::vector<Rgb> PieColours;
  std::vector<ChartSeries> Series;

  // The longest of the series and the labels.
  std::size_t Categories() const;
  bool HasBars() const;
  bool ShowsValues() const;
};

ChartData ReadChart(const ChartLook& look);
// Whether a flag is drawn as set: "Y", "y" or "1", with blanks around it or not.
bool IsChartYes(std::string_view text);

}  // namespace kev
