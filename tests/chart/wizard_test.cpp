// SPDX-License-Identifier: MIT
#include "chart/wizard.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <stdexcept>

#include "base/code_page.h"
#include "chart/slots.h"

namespace kev {
namespace {

ObjectRecord DefaultChart() {
  ObjectRecord record;
  record.Kind = ObjectKind::Chart;
  record.XValue = "$Col_01 + 120";
  record.Y = 300;
  record.Width = 4500;
  record.Height = 3000;
  record.ChartValues = ChartDefinition().Values;
  return record;
}

void Set(ObjectRecord& record, std::string_view key, const std::string& value) {
  record.ChartValues[*ChartKeyIndex(CodePage::Default().Upper(key))] = value;
}

std::string Value(const std::vector<std::string>& values, std::string_view key) {
  return values[*ChartKeyIndex(CodePage::Default().Upper(key))];
}

std::string Stored(const ChartWizard& wizard, std::string_view key) {
  return Value(StoredValues(wizard), key);
}

ChartWizard With(std::string_view key, const std::string& value) {
  ObjectRecord record = DefaultChart();
  Set(record, key, value);
  return OpenedChartWizard(record, 7);
}

ChartWizard Default() {
  return OpenedChartWizard(DefaultChart(), 7);
}

// --- The tables of the controls

TEST(WizardControls, HaveANameOfTheirOwnAndEveryKeyItsControl) {
  std::set<std::string> names;
  std::set<std::size_t> slots = {slot::kType, slot::kBackGroundPicture};
  for (int n = 1; n <= kChartPieColourCount; ++n)
    slots.insert(slot::PieColor(n));
  for (const WizardText& control : WizardTexts()) {
    EXPECT_TRUE(names.insert(control.Name).second) << control.Name;
    if (!control.SampleName.empty()) {
      EXPECT_TRUE(names.insert(control.SampleName).second) << control.SampleName;
    }
    slots.insert(control.Slot);
  }
  for (const WizardFlag& control : WizardFlags()) {
    EXPECT_TRUE(names.insert(control.Name).second) << control.Name;
    slots.insert(control.Slot);
  }
  for (std::size_t at = 0; at < kChartKeyCount; ++at)
    EXPECT_TRUE(slots.contains(at)) << ChartKeys()[at].key;
  EXPECT_THROW(WizardTextOf("nothing"), std::out_of_range);
  EXPECT_THROW(WizardFlagOf("nothing"), std::out_of_range);
}

TEST(WizardControls, StandForTheKeysOfTheirNames) {
  struct Row {
    std::string_view control, key;
  };
  constexpr Row kRows[] = {
      {"graph_title", "Graph_Title"},
      {"Combo_font", "Graph_Title_Font"},
      {"title_fontsize", "Graph_Title_FontSize"},
      {"title_fontcolor", "Graph_Title_FontColor"},
      {"layout_values", "Graph_Layout_Values"},
      {"Combo_layoutfont", "Graph_Layout_Font"},
      {"Layout_fontsize", "Graph_Layout_FontSize"},
      {"layout_fontcolor", "Graph_Layout_FontColor"},
      {"AxisColor_1", "Graph_AxisColor_1"},
      {"AxisColor_2", "Graph_AxisColor_2"},
      {"Combo_ShowValuesFont", "Graph_ShowValuesFont"},
      {"ShowvaluesFontSize", "Graph_ShowValuesFontSize"},
      {"showvalues_fontcolor", "Graph_ShowValuesFontColor"},
      {"graph_background", "Graph_BackGround"},
      {"serie_1_name", "Graph_serie_1_name"},
      {"serie_8_values", "Graph_serie_8_values"},
      {"serie_3_format", "Graph_serie_3_format"},
      {"serie_5_color", "Graph_serie_5_color"},
  };
  for (const Row& row : kRows) {
    ChartWizard wizard = Default();
    TypeText(wizard, row.control, "typed");
    EXPECT_EQ(Stored(wizard, row.key), "typed") << row.control;
  }
}

// --- Opening

TEST(WizardOpening, CopiesEachKeyIntoItsControl) {
  ObjectRecord record = DefaultChart();
  for (std::size_t at = 0; at < kChartKeyCount; ++at)
    if (const std::string& key = ChartKeys()[at].key;
        key.find("Show") == std::string::npos && at < slot::kFirstPieColor && at != slot::kType)
      record.ChartValues[at] = key;
  Set(record, "Graph_AxisStyle", "3");
  Set(record, "Graph_series", "5");
  const Wizard1State state = OpenedChartWizard(record, 3).Now;
  EXPECT_EQ(state.graph_title, "Graph_Title");
  EXPECT_EQ(state.layout_values, "Graph_Layout_Values");
  EXPECT_EQ(state.Combo_layoutfont, "Graph_Layout_Font");
  EXPECT_EQ(state.ComboAxis, "3");
  EXPECT_EQ(state.Comboseries, "5");
  EXPECT_EQ(state.graph_width, "4500");
  EXPECT_EQ(state.graph_height, "3000");
  EXPECT_EQ(state.combo_graphX, "$Col_01 + 120");
  EXPECT_EQ(state.combo_graphY, "300");
  EXPECT_EQ(state.series[0].serie_color, "200,56,17");
  EXPECT_EQ(state.series[0].serie_color_sample, 0xC83811U);
  EXPECT_EQ(state.PieColours[0], "255,128,128");
  EXPECT_EQ(state.PieColours[19], "100,255,100");
  EXPECT_EQ(state.Pvalue, 1);
  EXPECT_EQ(OpenedChartWizard(record, 3).Row, 3);
}

TEST(WizardOpening, TakesAnEmptyBackgroundForWhite) {
  const ChartWizard wizard = With("Graph_BackGround", "");
  EXPECT_EQ(wizard.Now.graph_background, "255,255,255,255,255,255");
  EXPECT_EQ(wizard.Now.Gradient, (std::array{255, 255, 255, 255, 255, 255}));
  EXPECT_EQ(Stored(wizard, "Graph_BackGround"), "");
  EXPECT_EQ(With("Graph_BackGround", "1,2,3,4,5,6").Now.Gradient, (std::array{1, 2, 3, 4, 5, 6}));
}

TEST(WizardOpening, SelectsTheOptionOfTheTypeAndNoOther) {
  const auto options = [](const std::string& type) {
    const Wizard1State state = With("Graph_Type", type).Now;
    return std::array{state.option_2d, state.option_3d, state.option_pie};
  };
  EXPECT_EQ(options("2D"), (std::array{true, false, false}));
  EXPECT_EQ(options("3D"), (std::array{false, true, false}));
  EXPECT_EQ(options("PIE"), (std::array{false, false, true}));
  EXPECT_EQ(options("pie"), (std::array{false, false, true}));
  EXPECT_EQ(options("4D"), (std::array{false, false, false}));
  EXPECT_EQ(Stored(With("Graph_Type", "4D"), "Graph_Type"), "4D");
}

TEST(WizardOpening, ChecksForYesInBothCasesAndOne) {
  for (const char* value : {"Y", "y", "1"})
    EXPECT_TRUE(With("Graph_ShowAxis", value).Now.ShowAxis) << value;
  for (const char* value : {"N", "", "yes", "0", " Y"})
    EXPECT_FALSE(With("Graph_ShowAxis", value).Now.ShowAxis) << value;
  EXPECT_TRUE(With("Graph_Title_FontBold", "1").Now.GrBold01);
}

TEST(WizardOpening, ShowsTheItemOfASeriesTypeByItsWordWithoutBlanks) {
  const auto item = [](const std::string& type) {
    return With("Graph_serie_2_type", type).Now.series[1].Comboserie;
  };
  EXPECT_EQ(item("BarFlat"), " Bar Flat");
  EXPECT_EQ(item("BARROUND"), " BARROUND");
  EXPECT_EQ(item("BarSquared"), " Bar Squared");
  EXPECT_EQ(item("Line"), "Line");
  EXPECT_EQ(item("area"), "Area");
  EXPECT_EQ(item("Bar"), "");
  EXPECT_EQ(item("Cone"), "");
}

TEST(WizardOpening, ShowsNoItemForACountOrStyleOutsideTheLists) {
  const ChartWizard wizard = With("Graph_series", "12");
  EXPECT_EQ(wizard.Now.Comboseries, "");
  EXPECT_EQ(Stored(wizard, "Graph_series"), "12");
  EXPECT_EQ(With("Graph_AxisStyle", "9").Now.ComboAxis, "");
}

TEST(WizardOpening, ChoosesThePictureWhereThereIsOne) {
  const ChartWizard plain = Default();
  EXPECT_TRUE(plain.Now.OptionBack);
  EXPECT_FALSE(plain.Now.OptionPicture);
  const ChartWizard picture = With("Graph_BackGround_picture", "logo.png");
  EXPECT_FALSE(picture.Now.OptionBack);
  EXPECT_TRUE(picture.Now.OptionPicture);
  EXPECT_EQ(picture.Now.Background_picture, "logo.png");
}

TEST(WizardOpening, TakesARecordWithTooFewValues) {
  ObjectRecord record = DefaultChart();
  record.ChartValues.resize(3);
  EXPECT_EQ(OpenedChartWizard(record, 1).Now.title_fontsize, "8");
}

// --- Edits

TEST(WizardEdits, TextReachesThePreviewAtOnce) {
  ChartWizard wizard = Default();
  TypeText(wizard, "graph_title", "Sal");
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_Title"), "Sal");
  TypeText(wizard, "title_fontcolor", "1,2");
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_Title_FontColor"), "1,2");
  TypeText(wizard, "graph_width", "1500");
  TypeText(wizard, "graph_height", "no");
  EXPECT_EQ(PreviewOf(wizard).Width, 100);
  EXPECT_EQ(PreviewOf(wizard).Height, 0);
}

TEST(WizardEdits, AColourShowsInItsSwatchWhenItsFieldIsLeft) {
  ChartWizard wizard = Default();
  TypeText(wizard, "title_fontcolor", "255,128,0");
  EXPECT_EQ(wizard.Now.sample_title_color, 0U);
  LeaveText(wizard, "title_fontcolor");
  EXPECT_EQ(wizard.Now.sample_title_color, 0xFF8000U);
  TypeText(wizard, "title_fontcolor", "300,-5,abc");
  LeaveText(wizard, "title_fontcolor");
  EXPECT_EQ(wizard.Now.sample_title_color, 0xFF0000U);
  EXPECT_EQ(wizard.Now.title_fontcolor, "300,-5,abc");
  TypeText(wizard, "serie_8_color", "0,0,9");
  LeaveText(wizard, "serie_8_color");
  EXPECT_EQ(SampleColour(wizard.Now, "serie_8_color_sample"), 9U);
}

TEST(WizardEdits, ASwatchWithoutAColourShowsTheOneThatIsDrawn) {
  EXPECT_EQ(SampleColour(Default().Now, "sample_AxisColor_1"), 0x808080U);
  const Rgb second = SampleColour(Default().Now, "sample_AxisColor_2");
  EXPECT_EQ(second >> 16, second & 0xFFU);
  EXPECT_EQ(second >> 8 & 0xFFU, second & 0xFFU);
  EXPECT_NE(second, 0U);
  EXPECT_EQ(SampleColour(With("Graph_serie_1_color", "").Now, "serie_1_color_sample"), 0xC83811U);
  EXPECT_EQ(SampleColour(With("Graph_serie_8_color", " ").Now, "serie_8_color_sample"), 0x808000U);
  EXPECT_EQ(SampleColour(With("Graph_serie_1_color", "red").Now, "serie_1_color_sample"), 0U);
  EXPECT_EQ(SampleColour(With("Graph_Title_FontColor", "").Now, "sample_title_color"), 0U);
  EXPECT_EQ(SampleColour(With("Graph_AxisColor_2", "0,0,0").Now, "sample_AxisColor_2"), 0U);
}

TEST(WizardEdits, APickedColourIsWrittenAndShown) {
  ChartWizard wizard = Default();
  PickColour(wizard, "sample_layout_fontcolor", 0x0A0B0CU);
  EXPECT_EQ(wizard.Now.layout_fontcolor, "10,11,12");
  EXPECT_EQ(wizard.Now.sample_layout_fontcolor, 0x0A0B0CU);
  EXPECT_THROW(PickColour(wizard, "sample_nothing", 0), std::out_of_range);
}

TEST(WizardEdits, PieColoursAreKeptByTheDialogUntilItIsAccepted) {
  ChartWizard wizard = Default();
  ChoosePieColour(wizard, 20);
  EXPECT_EQ(SampleColour(wizard.Now, kPieSample), 0x64FF64U);
  PickColour(wizard, kPieSample, 0x010203U);
  ChoosePieColour(wizard, 1);
  EXPECT_EQ(SampleColour(wizard.Now, kPieSample), 0xFF8080U);
  ChoosePieColour(wizard, 0);
  ChoosePieColour(wizard, 21);
  EXPECT_EQ(wizard.Now.Pvalue, 1);
  EXPECT_EQ(Stored(wizard, "Graph_Pie_Color_20"), "1,2,3");
  EXPECT_EQ(Stored(wizard, "Graph_Pie_Color_1"), "255,128,128");
  EXPECT_EQ(Value(wizard.Values, "Graph_Pie_Color_20"), "100,255,100");
}

TEST(WizardEdits, ASeriesTypeIsPassedWithoutItsBlanks) {
  ChartWizard wizard = With("Graph_serie_4_type", "Bar");
  TypeText(wizard, "Comboserie4", " Bar Squared");
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_serie_4_type"), "BarSquared");
  TypeText(wizard, "Comboserie4", "");
  EXPECT_EQ(Stored(wizard, "Graph_serie_4_type"), "Bar");
}

TEST(WizardEdits, TheNumberOfSeriesIsPassedAndTheirValuesStay) {
  ChartWizard wizard = With("Graph_serie_3_values", "1,2,3");
  TypeText(wizard, "Comboseries", "3");
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_series"), "3");
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_serie_3_values"), "1,2,3");
  TypeText(wizard, "Comboseries", "1");
  EXPECT_EQ(Stored(wizard, "Graph_series"), "1");
  EXPECT_EQ(Stored(wizard, "Graph_serie_3_values"), "1,2,3");
}

TEST(WizardEdits, OptionsAndChecksArePassed) {
  ChartWizard wizard = Default();
  ChooseOption(wizard, "option_3d");
  EXPECT_EQ(Stored(wizard, "Graph_Type"), "3D");
  ChooseOption(wizard, "option_pie");
  EXPECT_EQ(Stored(wizard, "Graph_Type"), "PIE");
  EXPECT_FALSE(wizard.Now.option_3d);
  ChooseOption(wizard, "option_2d");
  EXPECT_EQ(Stored(wizard, "Graph_Type"), "2D");
  SetFlag(wizard, "graph_showseriestitles", true);
  SetFlag(wizard, "ShowAxis", false);
  SetFlag(wizard, "showaxisbackground", false);
  SetFlag(wizard, "GrItalic01", true);
  EXPECT_EQ(Stored(wizard, "Graph_ShowSeriesTitles"), "Y");
  EXPECT_EQ(Stored(wizard, "Graph_ShowAxis"), "N");
  EXPECT_EQ(Stored(wizard, "Graph_ShowAxisBackGround"), "N");
  EXPECT_EQ(Stored(wizard, "Graph_Title_FontItalic"), "Y");
}

TEST(WizardEdits, TheValuesOfAPieAreThoseOfTheFirstSeries) {
  ChartWizard wizard = Default();
  SetFlag(wizard, "showvaluespie", false);
  EXPECT_FALSE(WizardFlagOf("sv1").Flag.In(wizard.Now));
  EXPECT_EQ(Stored(wizard, "Graph_serie_1_ShowValues"), "N");
  EXPECT_EQ(Stored(wizard, "Graph_serie_2_ShowValues"), "Y");
  SetFlag(wizard, "sv1", true);
  EXPECT_TRUE(WizardFlagOf("showvaluespie").Flag.In(wizard.Now));
}

TEST(WizardEdits, TheGradientTakesThePictureAway) {
  ChartWizard wizard = With("Graph_BackGround_picture", "logo.png");
  ChooseOption(wizard, "OptionBack");
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_BackGround_picture"), "");
  EXPECT_EQ(wizard.Now.Background_picture, "logo.png");
  ChooseOption(wizard, "OptionPicture");
  EXPECT_EQ(Stored(wizard, "Graph_BackGround_picture"), "logo.png");
  ChooseOption(wizard, "OptionBack");
  EXPECT_EQ(Stored(wizard, "Graph_BackGround_picture"), "");
}

TEST(WizardEdits, ATypedPictureIsShownAndStored) {
  ChartWizard wizard = Default();
  TypeText(wizard, "Background_picture", "a.bmp");
  EXPECT_TRUE(wizard.Now.OptionPicture);
  EXPECT_EQ(Value(PreviewOf(wizard).Values, "Graph_BackGround_picture"), "a.bmp");
  TypeText(wizard, "Background_picture", "");
  EXPECT_EQ(Stored(wizard, "Graph_BackGround_picture"), "");
}

TEST(WizardEdits, ABackgroundNumberOf300Becomes255WhenItIsApplied) {
  ChartWizard wizard = Default();
  TypeText(wizard, "graph_background", "300,-1,x,4,5");
  EXPECT_EQ(wizard.Now.Gradient, (std::array{255, 255, 255, 255, 255, 255}));
  LeaveText(wizard, "graph_background");
  EXPECT_EQ(wizard.Now.Gradient, (std::array{255, 0, 0, 4, 5, 0}));
  EXPECT_EQ(Stored(wizard, "Graph_BackGround"), "255,0,0,4,5,0");
}

TEST(WizardEdits, ABackgroundThatIsOnlyLeftStaysAsItIs) {
  ChartWizard wizard = With("Graph_BackGround", "300,0,0,0,0,0");
  LeaveText(wizard, "graph_background");
  EXPECT_EQ(Stored(wizard, "Graph_BackGround"), "300,0,0,0,0,0");
  EXPECT_EQ(wizard.Now.Gradient[0], 255);
}

TEST(WizardEdits, TheComposerWritesSixNumbersAndLeavesTheOption) {
  ChartWizard wizard = With("Graph_BackGround_picture", "logo.png");
  ComposeBackground(wizard, {300, 2, 3, 4, 5, -6});
  EXPECT_EQ(wizard.Now.graph_background, "255,2,3,4,5,0");
  EXPECT_EQ(wizard.Now.Gradient, (std::array{255, 2, 3, 4, 5, 0}));
  EXPECT_TRUE(wizard.Now.OptionPicture);
}

TEST(ClampColor6, BringsEachValueIntoItsRange) {
  std::array<int, 6> ends = {256, -1, 0, 255, 70000, 128};
  ClampColor6(ends);
  EXPECT_EQ(ends, (std::array{255, 0, 0, 255, 255, 128}));
}

// --- What is stored

TEST(WizardStoring, AnEmptyChoiceReplacesNothing) {
  ChartWizard wizard = Default();
  for (const char* name : {"Combo_font", "Combo_ShowValuesFont", "Comboseries", "ComboAxis"})
    TypeText(wizard, name, " ");
  EXPECT_EQ(StoredValues(wizard), wizard.Values);
  TypeText(wizard, "graph_title", "a");
  TypeText(wizard, "title_fontsize", "");
  EXPECT_EQ(Stored(wizard, "Graph_Title_FontSize"), "");
}

TEST(WizardStoring, SamplesOfThePreviewNeverReachTheRecord) {
  ChartWizard wizard = Default();
  TypeText(wizard, "serie_1_values", " @sales");
  TypeText(wizard, "layout_values", "@months");
  const ChartLook shown = WithSamples(PreviewOf(wizard));
  EXPECT_EQ(Value(shown.Values, "Graph_serie_1_values"), "10,20,30,40,30,10");
  EXPECT_EQ(Value(shown.Values, "Graph_Layout_Values"),
            "Layout 1,Layout 2,Layout 3,Layout 4,Layout 5,Layout 6");
  EXPECT_EQ(Stored(wizard, "Graph_serie_1_values"), " @sales");
  EXPECT_EQ(Stored(wizard, "Graph_Layout_Values"), "@months");
}

class RandomChart {
 public:
  explicit RandomChart(unsigned seed) : random_(seed) {}

  ObjectRecord Next() {
    ObjectRecord record = DefaultChart();
    for (std::string& value : record.ChartValues)
      if (Pick(3) != 0) value = Text();
    return record;
  }
  std::string Text() {
    static const std::vector<std::string> kTexts = {
        "",       " ",           "Y",        "y",         "N",           "1",        "0",        "8",
        "-3",     "2D",          "3d",       "PIE",       "Bar",         "barflat",  "BARROUND", "Line",
        "@field", "0,0,0,0,0,0", "300,-4,x", "255,128,0", "1,2,3,4,5,6", "\xE9\xF1", " a b ",    "logo.png"};
    return kTexts[Pick(kTexts.size())];
  }
  std::size_t Pick(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }

 private:
  std::mt19937 random_;
};

TEST(WizardStoring, AnUntouchedDialogChangesNothing) {
  RandomChart charts(2026);
  for (int run = 0; run < 2000; ++run) {
    const ObjectRecord record = charts.Next();
    ChartWizard wizard = OpenedChartWizard(record, 1);
    // Every field is walked through.
    for (const WizardText& control : WizardTexts())
      LeaveText(wizard, control.Name);
    EXPECT_EQ(StoredValues(wizard), record.ChartValues) << run;
  }
}

TEST(WizardStoring, WhatWasTypedAndTakenBackChangesNothing) {
  RandomChart charts(8);
  for (int run = 0; run < 500; ++run) {
    const ObjectRecord record = charts.Next();
    ChartWizard wizard = OpenedChartWizard(record, 1);
    for (const WizardText& control : WizardTexts()) {
      const std::string before = control.Text.In(wizard.Now);
      TypeText(wizard, control.Name, "x");
      TypeText(wizard, control.Name, before);
    }
    ChooseOption(wizard, wizard.Opened.OptionPicture ? "OptionPicture" : "OptionBack");
    EXPECT_EQ(StoredValues(wizard), record.ChartValues) << run;
  }
}

TEST(WizardStoring, EachEditChangesItsOwnValueAlone) {
  RandomChart charts(99);
  for (int run = 0; run < 40; ++run) {
    const ObjectRecord record = charts.Next();
    for (const WizardText& control : WizardTexts()) {
      if (control.Slot == kNoChartSlot) continue;
      ChartWizard wizard = OpenedChartWizard(record, 1);
      TypeText(wizard, control.Name, "7");
      std::vector<std::string> expected = record.ChartValues;
      expected[control.Slot] = "7";
      EXPECT_EQ(StoredValues(wizard), expected) << control.Name;
    }
    for (const WizardFlag& control : WizardFlags()) {
      ChartWizard wizard = OpenedChartWizard(record, 1);
      const bool now = !control.Flag.In(wizard.Now);
      SetFlag(wizard, control.Name, now);
      std::vector<std::string> expected = record.ChartValues;
      expected[control.Slot] = now ? "Y" : "N";
      EXPECT_EQ(StoredValues(wizard), expected) << control.Name;
    }
  }
}

}  // namespace
}  // namespace kev
