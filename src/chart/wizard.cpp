// SPDX-License-Identifier: MIT
#include "chart/wizard.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/code_page.h"
#include "base/numbers.h"
#include "base/text.h"
#include "chart/chart_data.h"
#include "chart/gradient.h"
#include "chart/slots.h"

namespace kev {
namespace {

constexpr std::string_view kWhiteBackground = "255,255,255,255,255,255";
constexpr int kTwipsOfPixel = 15;

constexpr std::string_view kBackOption = "OptionBack", kPictureOption = "OptionPicture";
constexpr std::string_view kPictureField = "Background_picture";

struct KindOption {
  std::string_view name;
  std::string_view type;
  bool Wizard1State::*field;
};
constexpr auto kKindOptions = std::to_array<KindOption>({
    {"option_2d", "2D", &Wizard1State::option_2d},
    {"option_3d", "3D", &Wizard1State::option_3d},
    {"option_pie", "PIE", &Wizard1State::option_pie},
});

bool SameWord(std::string_view a, std::string_view b) {
  return CodePage::Default().Upper(a) == CodePage::Default().Upper(b);
}

std::string WithoutBlanks(std::string text) {
  std::erase(text, kBlank);
  return text;
}

bool IsSet(std::string_view value) {
  return value == "Y" || value == "y" || value == "1";
}

// Empty where the list has no item for it.
std::string SeriesItem(const std::string& type) {
  for (const std::string_view item : kSeriesTypes)
    if (SameWord(WithoutBlanks(std::string(item)), type)) return std::string(item);
  return {};
}

template <typename List>
std::string ItemOrNone(const List& items, const std::string& value) {
  return std::find(items.begin(), items.end(), value) == items.end() ? std::string() : value;
}

std::string ShownText(const WizardText& control, const std::string& value) {
  if (control.Rule == WizardRule::SeriesType) return SeriesItem(value);
  if (control.Rule == WizardRule::Background && value.empty()) return std::string(kWhiteBackground);
  if (control.Slot == slot::kSeries) return ItemOrNone(kSeriesCounts, value);
  if (control.Slot == slot::kAxisStyle) return ItemOrNone(kAxisStyles, value);
  return value;
}

// What is drawn where a chart names no colour.
Rgb ColourWithout(std::size_t at) {
  const ChartData plain = ReadChart({ChartDefinition().Values, 0, 0});
  if (at == slot::kAxisColor1) return plain.AxisColour;
  if (at == slot::kAxisColor2) return plain.ValueLineColour;
  if (at == slot::kLayoutFontColor) return plain.LabelStyle.Colour;
  if (at >= slot::kFirstSeries && at < slot::kSeries) return ChartColourOf(ChartKeys()[at].defaultValue);
  return 0;
}

Rgb ColourOfText(const WizardText& control, const std::string& text) {
  return Trim(text).empty() ? ColourWithout(control.Slot) : ChartColourOf(text);
}

// The swatch or sample that belongs to the text follows it.
void ShowSample(Wizard1State& state, const WizardText& control) {
  const std::string& text = control.Text.In(state);
  if (control.Rule == WizardRule::Colour) control.Sample.In(state) = ColourOfText(control, text);
  if (control.Rule == WizardRule::Background) state.Gradient = GradientOf(text);
}

void FillTexts(Wizard1State& state, const std::vector<std::string>& values) {
  for (const WizardText& control : WizardTexts()) {
    if (control.Slot == kNoChartSlot) continue;
    control.Text.In(state) = ShownText(control, values[control.Slot]);
    ShowSample(state, control);
  }
  for (const WizardFlag& control : WizardFlags())
    control.Flag.In(state) = IsSet(values[control.Slot]);
}

void FillOptions(Wizard1State& state, const std::vector<std::string>& values) {
  for (const KindOption& option : kKindOptions)
    state.*option.field = SameWord(values[slot::kType], option.type);
  state.Background_picture = values[slot::kBackGroundPicture];
  state.OptionPicture = !state.Background_picture.empty();
  state.OptionBack = !state.OptionPicture;
}

// The picture that the chosen option stands for.
std::string PictureOf(const Wizard1State& state) {
  return state.OptionPicture ? state.Background_picture : std::string();
}

std::string_view TypeOf(const Wizard1State& state) {
  for (const KindOption& option : kKindOptions)
    if (state.*option.field) return option.type;
  return {};
}

void StoreOptions(std::vector<std::string>& values, const ChartWizard& wizard) {
  const std::string_view type = TypeOf(wizard.Now);
  if (!type.empty() && type != TypeOf(wizard.Opened)) values[slot::kType] = type;
  const std::string picture = PictureOf(wizard.Now);
  if (picture != PictureOf(wizard.Opened)) values[slot::kBackGroundPicture] = picture;
}

void StorePieColours(std::vector<std::string>& values, const ChartWizard& wizard) {
  for (int n = 1; n <= kChartPieColourCount; ++n) {
    const auto at = static_cast<std::size_t>(n - 1);
    const std::string& now = wizard.Now.PieColours[at];
    if (now != wizard.Opened.PieColours[at]) values[slot::PieColor(n)] = now;
  }
}

double Pixels(std::string_view twips) {
  return static_cast<double>(Int32Of(twips)) / kTwipsOfPixel;
}

std::string& PieColour(Wizard1State& state) {
  return state.PieColours[static_cast<std::size_t>(state.Pvalue - 1)];
}

const WizardText& ControlOfSample(std::string_view sample) {
  for (const WizardText& control : WizardTexts())
    if (control.SampleName == sample) return control;
  throw std::out_of_range("no swatch " + std::string(sample));
}

}  // namespace

ChartWizard OpenedChartWizard(const ObjectRecord& record, int row) {
  ChartWizard wizard;
  wizard.Row = row;
  wizard.Values = record.ChartValues;
  for (std::size_t at = wizard.Values.size(); at < kChartSlotCount; ++at)
    wizard.Values.push_back(at < kChartKeyCount ? ChartKeys()[at].defaultValue : std::string());
  Wizard1State& state = wizard.Now;
  FillTexts(state, wizard.Values);
  FillOptions(state, wizard.Values);
  for (int n = 1; n <= kChartPieColourCount; ++n)
    state.PieColours[static_cast<std::size_t>(n - 1)] = wizard.Values[slot::PieColor(n)];
  state.graph_width = std::to_string(record.Width);
  state.graph_height = std::to_string(record.Height);
  state.combo_graphX = record.XValue;
  state.combo_graphY = std::to_string(record.Y);
  wizard.Opened = state;
  return wizard;
}

// --- Edits ---

void TypeText(ChartWizard& wizard, std::string_view name, std::string text) {
  if (name == kPictureField && !text.empty()) ChooseOption(wizard, kPictureOption);
  WizardTextOf(name).Text.In(wizard.Now) = std::move(text);
}

void LeaveText(ChartWizard& wizard, std::string_view name) {
  const WizardText& control = WizardTextOf(name);
  ShowSample(wizard.Now, control);
  if (control.Rule == WizardRule::Background && IsChanged(wizard, control))
    control.Text.In(wizard.Now) = GradientText(wizard.Now.Gradient);
}

void SetFlag(ChartWizard& wizard, std::string_view name, bool set) {
  WizardFlagOf(name).Flag.In(wizard.Now) = set;
}

void ChooseOption(ChartWizard& wizard, std::string_view name) {
  Wizard1State& state = wizard.Now;
  if (name == kBackOption || name == kPictureOption) {
    state.OptionPicture = name == kPictureOption;
    state.OptionBack = !state.OptionPicture;
    return;
  }
  for (const KindOption& option : kKindOptions)
    state.*option.field = option.name == name;
}

void ComposeBackground(ChartWizard& wizard, const std::array<int, 6>& ends) {
  wizard.Now.Gradient = ends;
  ClampColor6(wizard.Now.Gradient);
  wizard.Now.graph_background = GradientText(wizard.Now.Gradient);
}

void ChoosePieColour(ChartWizard& wizard, int number) {
  if (number >= 1 && number <= kChartPieColourCount) wizard.Now.Pvalue = number;
}

Rgb SampleColour(const Wizard1State& state, std::string_view sample) {
  if (sample == kPieSample)
    return ChartColourOf(state.PieColours[static_cast<std::size_t>(state.Pvalue - 1)]);
  return ControlOfSample(sample).Sample.In(state);
}

void PickColour(ChartWizard& wizard, std::string_view sample, Rgb colour) {
  if (sample == kPieSample) {
    PieColour(wizard.Now) = ColourText(colour);
    return;
  }
  const WizardText& control = ControlOfSample(sample);
  control.Text.In(wizard.Now) = ColourText(colour);
  ShowSample(wizard.Now, control);
}

// --- Texts of colours ---

void ClampColor6(std::array<int, 6>& ends) {
  for (int& value : ends)
    value = std::clamp(value, 0, 255);
}

std::string ColourText(Rgb colour) {
  return std::to_string(colour >> 16 & 0xFF) + "," + std::to_string(colour >> 8 & 0xFF) + "," +
         std::to_string(colour & 0xFF);
}

std::string GradientText(const std::array<int, 6>& ends) {
  std::string text;
  for (const int value : ends)
    text += (text.empty() ? "" : ",") + std::to_string(value);
  return text;
}

// --- What is stored ---

bool IsChanged(const ChartWizard& wizard, const WizardText& control) {
  const std::string& now = control.Text.In(wizard.Now);
  const bool choice = control.Rule == WizardRule::Choice || control.Rule == WizardRule::SeriesType;
  return now != control.Text.In(wizard.Opened) && !(choice && Trim(now).empty());
}

std::vector<std::string> StoredValues(const ChartWizard& wizard) {
  std::vector<std::string> values = wizard.Values;
  for (const WizardText& control : WizardTexts()) {
    if (control.Slot == kNoChartSlot || !IsChanged(wizard, control)) continue;
    const std::string& now = control.Text.In(wizard.Now);
    values[control.Slot] = control.Rule == WizardRule::SeriesType ? WithoutBlanks(now) : now;
  }
  for (const WizardFlag& control : WizardFlags()) {
    const bool now = control.Flag.In(wizard.Now);
    if (now != control.Flag.In(wizard.Opened)) values[control.Slot] = now ? "Y" : "N";
  }
  StoreOptions(values, wizard);
  StorePieColours(values, wizard);
  return values;
}

ChartLook PreviewOf(const ChartWizard& wizard) {
  return {StoredValues(wizard), Pixels(wizard.Now.graph_width), Pixels(wizard.Now.graph_height)};
}

}  // namespace kev
