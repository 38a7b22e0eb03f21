// SPDX-License-Identifier: MIT
// The dialog `Wizard1` without its window: what each control holds, what an edit does, and what of it goes
// into the record. Texts are bytes of the template's code page. A control that still holds what the opening
// put into it changes nothing, so that a chart which the dialog cannot show in full survives it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "chart/definition.h"
#include "chart/graph.h"

namespace kev {

// --- Fixed lists ---
inline constexpr auto kAxisStyles = std::to_array<std::string_view>({"1", "2", "3", "4"});
inline constexpr auto kSeriesCounts =
    std::to_array<std::string_view>({"1", "2", "3", "4", "5", "6", "7", "8"});
// The type of a series is the item without its blanks.
inline constexpr auto kSeriesTypes =
    std::to_array<std::string_view>({" Bar Flat", " BARROUND", " Bar Squared", "Line", "Area"});

// --- What the controls hold ---
struct WizardSerie {
  std::string serie_name, serie_values, serie_format, serie_color;
  Rgb serie_color_sample = 0;
  std::string Comboserie;  // an item of the list; empty where none stands for the type
  bool sv = false;         // of the first series also `showvaluespie`
};

struct Wizard1State {
  std::string graph_title, Combo_font, title_fontsize, title_fontcolor;
  Rgb sample_title_color = 0;
  bool GrBold01 = false, GrItalic01 = false, GrUnderline01 = false;

  std::string graph_width, graph_height, combo_graphX, combo_graphY;
  bool option_2d = false, option_3d = false, option_pie = false;

  std::string Comboseries;
  std::array<WizardSerie, kChartSeriesCount> series;

  std::string layout_values, Combo_layoutfont, Layout_fontsize, layout_fontcolor;
  Rgb sample_layout_fontcolor = 0;
  bool ShowAxis = false, showaxisbackground = false;
  std::string ComboAxis, AxisColor_1, AxisColor_2;
  Rgb sample_AxisColor_1 = 0, sample_AxisColor_2 = 0;

  std::string Combo_ShowValuesFont, ShowvaluesFontSize, showvalues_fontcolor;
  Rgb sample_showvalues_fontcolor = 0;
  bool graph_showseriestitles = false;

  bool OptionBack = false, OptionPicture = false;
  std::string graph_background, Background_picture;
  // The six numbers of `graph_background` when they were last taken over; `P2` shows them.
  std::array<int, 6> Gradient{};

  int Pvalue = 1;
  std::array<std::string, kChartPieColourCount> PieColours;
};

// Nothing of the record changes before the dialog is accepted.
struct ChartWizard {
  int Row = 0;
  std::vector<std::string> Values;  // of the record
  Wizard1State Opened, Now;
};

// --- The controls by their names ---
enum class WizardRule : std::uint8_t {
  Plain,
  Choice,      // a list: what it does not hold, and an empty choice, replace nothing
  SeriesType,  // the same; stored without blanks
  Colour,      // "red,green,blue" with a swatch
  Background   // six numbers with a sample
};

// A field of the state or of one of its series.
template <typename Value>
struct WizardField {
  Value Wizard1State::*Plain = nullptr;
  Value WizardSerie::*OfSerie = nullptr;
  int Serie = 0;

  const Value& In(const Wizard1State& state) const {
    return OfSerie == nullptr ? state.*Plain : state.series[static_cast<std::size_t>(Serie - 1)].*OfSerie;
  }
  Value& In(Wizard1State& state) const {
    return OfSerie == nullptr ? state.*Plain : state.series[static_cast<std::size_t>(Serie - 1)].*OfSerie;
  }
};

inline constexpr std::size_t kNoChartSlot = kChartSlotCount;

struct WizardText {
  std::string Name;
  std::size_t Slot = kNoChartSlot;  // none for size, place and the picture, which is stored by the option
  WizardRule Rule = WizardRule::Plain;
  WizardField<std::string> Text;
  std::string SampleName;  // the swatch of a colour
  WizardField<Rgb> Sample;
};

struct WizardFlag {
  std::string Name;
  std::size_t Slot = kNoChartSlot;
  WizardField<bool> Flag;
};

std::span<const WizardText> WizardTexts();
std::span<const WizardFlag> WizardFlags();
// A name that is no control's throws std::out_of_range.
const WizardText& WizardTextOf(std::string_view name);
const WizardFlag& WizardFlagOf(std::string_view name);

// --- What happens ---
ChartWizard OpenedChartWizard(const ObjectRecord& record, int row);

// A picture that is typed or chosen is what the chart shows behind it from then on.
void TypeText(ChartWizard& wizard, std::string_view name, std::string text);
// The field is left, or Enter was pressed in it: a colour shows in its swatch, the background in its sample.
void LeaveText(ChartWizard& wizard, std::string_view name);
void SetFlag(ChartWizard& wizard, std::string_view name, bool set);
// "option_2d", "option_3d", "option_pie", "OptionBack" or "OptionPicture"; the others of its group are
// cleared.
void ChooseOption(ChartWizard& wizard, std::string_view name);
// What the composer came back with.
void ComposeBackground(ChartWizard& wizard, const std::array<int, 6>& ends);
// From 1; anything else is ignored.
void ChoosePieColour(ChartWizard& wizard, int number);

inline constexpr std::string_view kPieSample = "sample_pvalue";
// By the name of a swatch.
Rgb SampleColour(const Wizard1State& state, std::string_view sample);
void PickColour(ChartWizard& wizard, std::string_view sample, Rgb colour);

// Each value above 255 becomes 255, each below 0 becomes 0.
void ClampColor6(std::array<int, 6>& ends);
// "255,128,0".
std::string ColourText(Rgb colour);
// "255,255,255,0,0,128".
std::string GradientText(const std::array<int, 6>& ends);

// Whether a text differs from what the opening put into it, and may replace it.
bool IsChanged(const ChartWizard& wizard, const WizardText& control);
// The slots of the record as accepting leaves them.
std::vector<std::string> StoredValues(const ChartWizard& wizard);
// What the preview shows now.
ChartLook PreviewOf(const ChartWizard& wizard);

}  // namespace kev
