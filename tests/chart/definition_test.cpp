// SPDX-License-Identifier: MIT
#include "chart/definition.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/code_page.h"

namespace kev {
namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

ObjectRecord DefaultChart() {
  ObjectRecord record;
  record.Kind = ObjectKind::Chart;
  record.Width = 4000;
  record.Height = 3000;
  record.ChartValues = ChartDefinition().Values;
  return record;
}

void Set(ObjectRecord& record, std::string_view key, const std::string& value) {
  record.ChartValues[*ChartKeyIndex(CodePage::Default().Upper(key))] = value;
}

TEST(ChartKeys, StandInTheOrderOfTheirSlots) {
  struct Row {
    std::size_t slot;  // counted from 1
    std::string_view key, defaultValue;
  };
  constexpr Row kRows[] = {{1, "Graph_Type", "2D"},
                           {2, "Graph_BackGround", "255,255,255,255,255,255"},
                           {3, "Graph_BackGround_picture", ""},
                           {4, "Graph_AxisColor_1", ""},
                           {5, "Graph_AxisColor_2", ""},
                           {6, "Graph_AxisStyle", "1"},
                           {7, "Graph_Title", ""},
                           {8, "Graph_Layout_Font", ""},
                           {9, "Graph_Layout_FontColor", ""},
                           {10, "Graph_Layout_FontSize", ""},
                           {11, "Graph_Layout_Values", ""},
                           {12, "Graph_Pie_Color_1", "255,128,128"},
                           {13, "Graph_Pie_Color_2", "0,102,204"},
                           {28, "Graph_Pie_Color_17", "120,204,0"},
                           {31, "Graph_Pie_Color_20", "100,255,100"},
                           {32, "Graph_serie_1_color", "200,56,17"},
                           {33, "Graph_serie_1_format", ""},
                           {34, "Graph_serie_1_name", ""},
                           {35, "Graph_serie_1_ShowValues", "Y"},
                           {36, "Graph_serie_1_type", "Bar"},
                           {37, "Graph_serie_1_values", ""},
                           {38, "Graph_serie_2_color", "108,220,130"},
                           {74, "Graph_serie_8_color", "128,128,0"},
                           {79, "Graph_serie_8_values", ""},
                           {80, "Graph_series", "1"},
                           {81, "Graph_ShowAxis", "Y"},
                           {82, "Graph_ShowAxisBackGround", "Y"},
                           {83, "Graph_ShowSeriesTitles", ""},
                           {84, "Graph_ShowValuesFont", "Arial"},
                           {85, "Graph_ShowValuesFontColor", "0,0,0"},
                           {86, "Graph_ShowValuesFontSize", "8"},
                           {87, "Graph_Title_FontColor", "0,0,0"},
                           {88, "Graph_Title_Font", "Arial"},
                           {89, "Graph_Title_FontSize", "8"},
                           {90, "Graph_Title_FontBold", "N"},
                           {91, "Graph_Title_FontUnderline", "N"},
                           {92, "Graph_Title_FontItalic", "N"}};
  for (const Row& row : kRows) {
    EXPECT_EQ(ChartKeys()[row.slot - 1].key, row.key) << row.slot;
    EXPECT_EQ(ChartKeys()[row.slot - 1].defaultValue, row.defaultValue) << row.slot;
    EXPECT_EQ(ChartKeyIndex(CodePage::Default().Upper(row.key)), row.slot - 1);
  }
}

TEST(ChartKeys, HaveTwentyPieColoursAndEightSeriesColours) {
  constexpr std::string_view kPie[] = {
      "255,128,128", "0,102,204",   "204,204,255", "0,0,128",     "255,0,255",   "255,255,0",   "0,255,255",
      "128,0,128",   "128,0,0",     "0,128,128",   "0,0,255",     "0,204,255",   "153,153,255", "153,51,102",
      "255,255,204", "204,255,255", "120,204,0",   "204,128,128", "255,128,200", "100,255,100"};
  constexpr std::string_view kSeries[] = {"200,56,17", "108,220,130", "0,150,200", "150,0,140",
                                          "255,128,0", "255,128,192", "0,128,64",  "128,128,0"};
  for (std::size_t n = 0; n < 20; ++n)
    EXPECT_EQ(ChartKeys()[11 + n].defaultValue, kPie[n]) << n + 1;
  for (std::size_t n = 0; n < 8; ++n)
    EXPECT_EQ(ChartKeys()[31 + 6 * n].defaultValue, kSeries[n]) << n + 1;
}

TEST(ChartDefinition, BeginsWithTheDefaultsAndAWhiteGradient) {
  const ChartDefinition chart;
  ASSERT_EQ(chart.Values.size(), 93U);
  for (std::size_t at = 0; at < 92; ++at)
    EXPECT_EQ(chart.Values[at], ChartKeys()[at].defaultValue) << ChartKeys()[at].key;
  EXPECT_EQ(chart.Values[92], "");
  EXPECT_EQ(chart.Gradient, (std::array<int, 6>{255, 255, 255, 255, 255, 255}));
}

TEST(ChartDefinition, ReadsItsKeysInCapitals) {
  ChartDefinition chart;
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_TYPE", "PIE"));
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_SERIE_3_VALUES", "1, 2"));
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_PIE_COLOR_20", "1,2,3"));
  EXPECT_EQ(chart.Values[0], "PIE");
  EXPECT_EQ(chart.Values[31 + 2 * 6 + 5], "1, 2");
  EXPECT_EQ(chart.Values[30], "1,2,3");
}

TEST(ChartDefinition, ReadsFormsThatAreNeverWritten) {
  ChartDefinition chart;
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_TITLE_FONTNAME", "Courier"));
  EXPECT_EQ(chart.Values[87], "Courier");
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_SERIE_8_FORMAT", "0.0"));
  EXPECT_EQ(chart.Values[74], "0.0");
}

TEST(ChartDefinition, KeepsTheSizeBesideTheSlots) {
  ChartDefinition chart;
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_WIDTH", "4000"));
  EXPECT_TRUE(chart.ReadChartKey("GRAPH_HEIGHT", "3000"));
  EXPECT_EQ(chart.Width, "4000");
  EXPECT_EQ(chart.Height, "3000");
  EXPECT_EQ(chart.Values, ChartDefinition().Values);
  chart.ResetChartDefaults();
  EXPECT_EQ(chart.Width, "");
}

TEST(ChartDefinition, KnowsNoOtherKey) {
  ChartDefinition chart;
  for (const std::string_view key :
       {"GRAPH_", "GRAPH_PIE_COLOR_21", "GRAPH_PIE_COLOR_0", "GRAPH_SERIE_9_NAME", "GRAPH_SERIE_0_NAME",
        "TYPE", "", "GRAPH_SERIE_1_", "Graph_Type"})
    EXPECT_FALSE(chart.ReadChartKey(key, "x")) << key;
}

TEST(ChartBlocks, StandInTheirOrder) {
  std::vector<std::string> expected = {
      "Graph_Height=3000;Graph_Width=4000",
      "Graph_Type=2D",
      "Graph_Title=",
      "Graph_Title_Font=Arial",
      "Graph_Title_FontSize=8",
      "Graph_Title_FontColor=0,0,0",
      "Graph_Title_FontBold=N;Graph_Title_FontUnderline=N;Graph_Title_FontItalic=N",
      "Graph_AxisStyle=1;Graph_AxisColor_1=;Graph_AxisColor_2=",
      "Graph_ShowValuesFont=Arial",
      "Graph_ShowValuesFontSize=8",
      "Graph_ShowValuesFontColor=0,0,0",
      "Graph_series=1",
      "Graph_Layout_Font=;Graph_Layout_FontSize=;Graph_Layout_FontColor=",
      "Graph_Layout_Values=",
      "Graph_ShowAxis=Y",
      "Graph_ShowAxisBackGround=Y",
      "Graph_BackGround=255,255,255,255,255,255",
  };
  constexpr std::string_view kColours[] = {"200,56,17", "108,220,130", "0,150,200", "150,0,140",
                                           "255,128,0", "255,128,192", "0,128,64",  "128,128,0"};
  for (std::size_t n = 1; n <= 8; ++n) {
    const std::string stem = "Graph_serie_" + std::to_string(n) + "_";
    expected.push_back(stem + "type=Bar;" + stem + "color=" + std::string(kColours[n - 1]));
    expected.push_back(stem + "name=");
    expected.push_back(stem + "values=");
    expected.push_back(stem + "ShowValues=Y");
  }
  expected.insert(
      expected.end(),
      {"Graph_Pie_Color_1=255,128,128;Graph_Pie_Color_2=0,102,204;Graph_Pie_Color_3=204,204,255;"
       "Graph_Pie_Color_4=0,0,128;Graph_Pie_Color_5=255,0,255",
       "Graph_Pie_Color_6=255,255,0;Graph_Pie_Color_7=0,255,255;Graph_Pie_Color_8=128,0,128;"
       "Graph_Pie_Color_9=128,0,0;Graph_Pie_Color_10=0,128,128",
       "Graph_Pie_Color_11=0,0,255;Graph_Pie_Color_12=0,204,255;Graph_Pie_Color_13=153,153,255;"
       "Graph_Pie_Color_14=153,51,102;Graph_Pie_Color_15=255,255,204",
       "Graph_Pie_Color_16=204,255,255;Graph_Pie_Color_17=120,204,0;Graph_Pie_Color_18=204,128,128;"
       "Graph_Pie_Color_19=255,128,200;Graph_Pie_Color_20=100,255,100",
       "Graph_ShowSeriesTitles=N"});
  EXPECT_EQ(ChartBlocks(DefaultChart()), expected);
}

TEST(ChartBlocks, HoldThePictureInsteadOfTheGradient) {
  ObjectRecord record = DefaultChart();
  Set(record, "Graph_BackGround", "1,2,3,4,5,6");
  Set(record, "Graph_BackGround_picture", "back.png");
  const auto blocks = ChartBlocks(record);
  EXPECT_THAT(blocks, Contains("Graph_BackGround_picture=back.png"));
  EXPECT_THAT(blocks, Not(Contains(StartsWith("Graph_BackGround="))));
}

TEST(ChartBlocks, LeaveOutTheFormatOfASeries) {
  ObjectRecord record = DefaultChart();
  Set(record, "Graph_serie_1_format", "0.00");
  EXPECT_EQ(ChartBlocks(record), ChartBlocks(DefaultChart()));
}

TEST(ChartBlocks, TellOfSeriesTitlesByYesAlone) {
  struct Row {
    std::string_view value, block;
  };
  for (const Row& row : {Row{"Y", "Graph_ShowSeriesTitles=Y"}, Row{"N", "Graph_ShowSeriesTitles=N"},
                         Row{"", "Graph_ShowSeriesTitles=N"}, Row{"yes", "Graph_ShowSeriesTitles=N"}}) {
    ObjectRecord record = DefaultChart();
    Set(record, "Graph_ShowSeriesTitles", std::string(row.value));
    EXPECT_EQ(ChartBlocks(record).back(), row.block) << row.value;
  }
}

TEST(ChartBlocks, DoNotNeedARecordWithValues) {
  ObjectRecord record;
  EXPECT_EQ(ChartBlocks(record).size(), ChartBlocks(DefaultChart()).size());
}

}  // namespace
}  // namespace kev
