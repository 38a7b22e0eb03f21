// SPDX-License-Identifier: MIT
// The chart keys in templates: which chart they belong to, and what a save keeps of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "chart/definition.h"
#include "chart/slots.h"
#include "support/templates.h"

namespace kev {
namespace {

using slot::OfSeries;
using slot::SeriesPart;
using test::Lines;
using test::ReadLayout;
using test::ReadText;
using test::Rewrite;
using test::RowsOfKind;

std::vector<ObjectRecord> ChartsOf(const Document& document) {
  std::vector<ObjectRecord> charts;
  for (const ObjectRecord* chart : RowsOfKind(document, ObjectKind::Chart))
    charts.push_back(*chart);
  return charts;
}

std::vector<ObjectRecord> ReadCharts(std::initializer_list<std::string_view> lines) {
  return ChartsOf(ReadLayout(lines).Read);
}

std::vector<ObjectRecord> SavedAndRead(std::initializer_list<std::string_view> lines) {
  return ChartsOf(ReadText(Rewrite("[HEADER]\r\n" + Lines(lines))).Read);
}

TEST(ChartTemplate, AKeyThatIsNotStatedHasItsDefaultAgainBehindEachChart) {
  const auto charts = ReadCharts({"{Graph_Type=PIE;Graph_Width=900;Graph_Height=600}", "{Graph_Title=One}",
                                  "{Buildgraph=1,}", "{Buildgraph=2,}"});
  ASSERT_EQ(charts.size(), 2U);
  EXPECT_EQ(charts[0].ChartValues[slot::kTitle], "One");
  EXPECT_EQ(charts[0].Width, 900);
  EXPECT_EQ(charts[1].ChartValues, ChartDefinition().Values);
  // No size keys, no size.
  EXPECT_EQ(charts[1].Width, 0);
  EXPECT_EQ(charts[1].Height, 0);
}

TEST(ChartTemplate, KeysStandInAnyOrderAndCase) {
  const auto charts = ReadCharts({"{graph_serie_3_VALUES=1,2}", "{GRAPH_TYPE=3D}",
                                  "{Graph_Title_FontName=Courier}", "{gRaPh_SeRiEs=3}", "{Buildgraph=1,}"});
  ASSERT_EQ(charts.size(), 1U);
  EXPECT_EQ(charts[0].ChartValues[OfSeries(3, SeriesPart::Values)], "1,2");
  EXPECT_EQ(charts[0].ChartValues[slot::kType], "3D");
  EXPECT_EQ(charts[0].ChartValues[slot::kTitleFont], "Courier");
  EXPECT_EQ(charts[0].ChartValues[slot::kSeries], "3");
}

TEST(ChartTemplate, KeysWithoutAChartAreCarriedIntoTheNextOne) {
  const auto charts =
      ReadCharts({"{Graph_Title=Early}", "{100;}A label{}", "{Graph_Type=PIE}", "{Buildgraph=1,}"});
  ASSERT_EQ(charts.size(), 1U);
  EXPECT_EQ(charts[0].ChartValues[slot::kTitle], "Early");
  EXPECT_EQ(charts[0].ChartValues[slot::kType], "PIE");
}

TEST(ChartTemplate, TheGradientUnderAPictureIsLost) {
  const auto charts = SavedAndRead(
      {"{Graph_BackGround=1,2,3,4,5,6}", "{Graph_BackGround_picture=back.png}", "{Buildgraph=1,}"});
  ASSERT_EQ(charts.size(), 1U);
  EXPECT_EQ(charts[0].ChartValues[slot::kBackGroundPicture], "back.png");
  EXPECT_EQ(charts[0].ChartValues[slot::kBackGround], "255,255,255,255,255,255");
}

TEST(ChartTemplate, SeriesThatAreNotShownAreKept) {
  const auto charts =
      SavedAndRead({"{Graph_series=1}", "{Graph_serie_8_name=Eight}", "{Graph_serie_8_values=8,8}",
                    "{Graph_serie_8_type=Line}", "{Graph_serie_8_format=0.00}", "{Buildgraph=1,}"});
  ASSERT_EQ(charts.size(), 1U);
  EXPECT_EQ(charts[0].ChartValues[OfSeries(8, SeriesPart::Name)], "Eight");
  EXPECT_EQ(charts[0].ChartValues[OfSeries(8, SeriesPart::Values)], "8,8");
  EXPECT_EQ(charts[0].ChartValues[OfSeries(8, SeriesPart::Type)], "Line");
  // What no line of a template holds.
  EXPECT_EQ(charts[0].ChartValues[OfSeries(8, SeriesPart::Format)], "");
}

TEST(ChartTemplate, EmptySeriesTitlesAreWrittenAsNo) {
  const auto charts = SavedAndRead({"{Buildgraph=1,}"});
  ASSERT_EQ(charts.size(), 1U);
  EXPECT_EQ(charts[0].ChartValues[slot::kShowSeriesTitles], "N");
}

TEST(ChartSlots, LieWhereTheKeysSay) {
  struct Row {
    std::size_t slot;
    std::string_view key;
  };
  for (const Row& row : {Row{slot::kType, "Graph_Type"},
                         Row{slot::kBackGround, "Graph_BackGround"},
                         Row{slot::kBackGroundPicture, "Graph_BackGround_picture"},
                         Row{slot::kAxisColor1, "Graph_AxisColor_1"},
                         Row{slot::kAxisColor2, "Graph_AxisColor_2"},
                         Row{slot::kAxisStyle, "Graph_AxisStyle"},
                         Row{slot::kTitle, "Graph_Title"},
                         Row{slot::kLayoutFont, "Graph_Layout_Font"},
                         Row{slot::kLayoutFontColor, "Graph_Layout_FontColor"},
                         Row{slot::kLayoutFontSize, "Graph_Layout_FontSize"},
                         Row{slot::kLayoutValues, "Graph_Layout_Values"},
                         Row{slot::PieColor(1), "Graph_Pie_Color_1"},
                         Row{slot::PieColor(20), "Graph_Pie_Color_20"},
                         Row{OfSeries(1, SeriesPart::Color), "Graph_serie_1_color"},
                         Row{OfSeries(2, SeriesPart::Format), "Graph_serie_2_format"},
                         Row{OfSeries(3, SeriesPart::Name), "Graph_serie_3_name"},
                         Row{OfSeries(4, SeriesPart::ShowValues), "Graph_serie_4_ShowValues"},
                         Row{OfSeries(5, SeriesPart::Type), "Graph_serie_5_type"},
                         Row{OfSeries(8, SeriesPart::Values), "Graph_serie_8_values"},
                         Row{slot::kSeries, "Graph_series"},
                         Row{slot::kShowAxis, "Graph_ShowAxis"},
                         Row{slot::kShowAxisBackGround, "Graph_ShowAxisBackGround"},
                         Row{slot::kShowSeriesTitles, "Graph_ShowSeriesTitles"},
                         Row{slot::kShowValuesFont, "Graph_ShowValuesFont"},
                         Row{slot::kShowValuesFontColor, "Graph_ShowValuesFontColor"},
                         Row{slot::kShowValuesFontSize, "Graph_ShowValuesFontSize"},
                         Row{slot::kTitleFontColor, "Graph_Title_FontColor"},
                         Row{slot::kTitleFont, "Graph_Title_Font"},
                         Row{slot::kTitleFontSize, "Graph_Title_FontSize"},
                         Row{slot::kTitleFontBold, "Graph_Title_FontBold"},
                         Row{slot::kTitleFontUnderline, "Graph_Title_FontUnderline"},
                         Row{slot::kTitleFontItalic, "Graph_Title_FontItalic"}})
    EXPECT_EQ(ChartKeys()[row.slot].key, row.key);
}

}  // namespace
}  // namespace kev
