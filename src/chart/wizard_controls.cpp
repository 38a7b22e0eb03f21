// SPDX-License-Identifier: MIT
// The controls of `Wizard1` as tables: their names, the slots that they stand for, and where their contents
// lie.
#include <algorithm>
#include <stdexcept>

#include "chart/slots.h"
#include "chart/wizard.h"

namespace kev {
namespace {

using S = Wizard1State;
using slot::SeriesPart;

WizardText Plain(std::string_view name, std::size_t at, std::string S::*field,
                 WizardRule rule = WizardRule::Plain) {
  return {std::string(name), at, rule, {field}, {}, {}};
}

WizardText Colour(std::string_view name, std::size_t at, std::string S::*field, std::string_view sampleName,
                  Rgb S::*sample) {
  return {std::string(name), at, WizardRule::Colour, {field}, std::string(sampleName), {sample}};
}

void AddSerie(std::vector<WizardText>& controls, int n) {
  using W = WizardSerie;
  const std::string number = std::to_string(n);
  const auto name = [&](std::string_view suffix) { return "serie_" + number + std::string(suffix); };
  const auto text = [n](std::string W::*field) { return WizardField<std::string>{nullptr, field, n}; };
  const auto at = [n](SeriesPart part) { return slot::OfSeries(n, part); };
  controls.push_back({name("_name"), at(SeriesPart::Name), WizardRule::Plain, text(&W::serie_name), {}, {}});
  controls.push_back(
      {name("_values"), at(SeriesPart::Values), WizardRule::Plain, text(&W::serie_values), {}, {}});
  controls.push_back(
      {name("_format"), at(SeriesPart::Format), WizardRule::Plain, text(&W::serie_format), {}, {}});
  controls.push_back({name("_color"),
                      at(SeriesPart::Color),
                      WizardRule::Colour,
                      text(&W::serie_color),
                      name("_color_sample"),
                      {nullptr, &W::serie_color_sample, n}});
  controls.push_back(
      {"Comboserie" + number, at(SeriesPart::Type), WizardRule::SeriesType, text(&W::Comboserie), {}, {}});
}

std::vector<WizardText> MakeTexts() {
  constexpr WizardRule kChoice = WizardRule::Choice;
  std::vector<WizardText> controls = {
      Plain("graph_title", slot::kTitle, &S::graph_title),
      Plain("Combo_font", slot::kTitleFont, &S::Combo_font, kChoice),
      Plain("title_fontsize", slot::kTitleFontSize, &S::title_fontsize),
      Colour("title_fontcolor", slot::kTitleFontColor, &S::title_fontcolor, "sample_title_color",
             &S::sample_title_color),
      Plain("graph_width", kNoChartSlot, &S::graph_width),
      Plain("graph_height", kNoChartSlot, &S::graph_height),
      Plain("combo_graphX", kNoChartSlot, &S::combo_graphX, kChoice),
      Plain("combo_graphY", kNoChartSlot, &S::combo_graphY, kChoice),
      Plain("Comboseries", slot::kSeries, &S::Comboseries, kChoice),
      Plain("layout_values", slot::kLayoutValues, &S::layout_values),
      Plain("Combo_layoutfont", slot::kLayoutFont, &S::Combo_layoutfont, kChoice),
      Plain("Layout_fontsize", slot::kLayoutFontSize, &S::Layout_fontsize),
      Colour("layout_fontcolor", slot::kLayoutFontColor, &S::layout_fontcolor, "sample_layout_fontcolor",
             &S::sample_layout_fontcolor),
      Plain("ComboAxis", slot::kAxisStyle, &S::ComboAxis, kChoice),
      Colour("AxisColor_1", slot::kAxisColor1, &S::AxisColor_1, "sample_AxisColor_1", &S::sample_AxisColor_1),
      Colour("AxisColor_2", slot::kAxisColor2, &S::AxisColor_2, "sample_AxisColor_2", &S::sample_AxisColor_2),
      Plain("Combo_ShowValuesFont", slot::kShowValuesFont, &S::Combo_ShowValuesFont, kChoice),
      Plain("ShowvaluesFontSize", slot::kShowValuesFontSize, &S::ShowvaluesFontSize),
      Colour("showvalues_fontcolor", slot::kShowValuesFontColor, &S::showvalues_fontcolor,
             "sample_showvalues_fontcolor", &S::sample_showvalues_fontcolor),
      Plain("graph_background", slot::kBackGround, &S::graph_background, WizardRule::Background),
      Plain("Background_picture", kNoChartSlot, &S::Background_picture),
  };
  for (int n = 1; n <= kChartSeriesCount; ++n)
    AddSerie(controls, n);
  return controls;
}

std::vector<WizardFlag> MakeFlags() {
  const std::size_t first = slot::OfSeries(1, SeriesPart::ShowValues);
  std::vector<WizardFlag> controls = {
      {"GrBold01", slot::kTitleFontBold, {&S::GrBold01}},
      {"GrItalic01", slot::kTitleFontItalic, {&S::GrItalic01}},
      {"GrUnderline01", slot::kTitleFontUnderline, {&S::GrUnderline01}},
      {"ShowAxis", slot::kShowAxis, {&S::ShowAxis}},
      {"showaxisbackground", slot::kShowAxisBackGround, {&S::showaxisbackground}},
      {"graph_showseriestitles", slot::kShowSeriesTitles, {&S::graph_showseriestitles}},
      {"showvaluespie", first, {nullptr, &WizardSerie::sv, 1}},
  };
  for (int n = 1; n <= kChartSeriesCount; ++n)
    controls.push_back({"sv" + std::to_string(n),
                        slot::OfSeries(n, SeriesPart::ShowValues),
                        {nullptr, &WizardSerie::sv, n}});
  return controls;
}

template <typename Control>
const Control& ByName(std::span<const Control> controls, std::string_view name) {
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [name](const Control& control) { return control.Name == name; });
  if (found == controls.end()) throw std::out_of_range("no control " + std::string(name));
  return *found;
}

}  // namespace

std::span<const WizardText> WizardTexts() {
  static const std::vector<WizardText> controls = MakeTexts();
  return controls;
}

std::span<const WizardFlag> WizardFlags() {
  static const std::vector<WizardFlag> controls = MakeFlags();
  return controls;
}

const WizardText& WizardTextOf(std::string_view name) {
  return ByName(WizardTexts(), name);
}

const WizardFlag& WizardFlagOf(std::string_view name) {
  return ByName(WizardFlags(), name);
}

}  // namespace kev
