// SPDX-License-Identifier: MIT
#include "chart/graph.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>
#include <numeric>

#include "chart/chart_look.h"
#include "chart/slots.h"

namespace kev {
namespace {

using test::BoundsOf;
using test::FilledWith;
using test::LookWith;
using test::Only;
using test::TextsOf;
using testing::Contains;
using testing::Not;

constexpr Rgb kFirstColour = 0xC83811;
constexpr Rgb kAxisGrey = 0x808080;
constexpr Rgb kValueLines = 0x112233;

ChartPicture Drawn(const ChartLook& look) {
  return LayOutChart(look, BuiltInMeasurer());
}

std::vector<ChartPolyline> LinesOf(const ChartPicture& picture, Rgb colour) {
  std::vector<ChartPolyline> lines = Only<ChartPolyline>(picture);
  std::erase_if(lines, [&](const ChartPolyline& line) { return line.Colour != colour; });
  return lines;
}

double AngleOf(const ChartPolygon& slice) {
  // The centre is the last point of a slice.
  const ChartPoint centre = slice.Points.back();
  double sum = 0;
  for (std::size_t n = 1; n + 1 < slice.Points.size(); ++n) {
    const ChartPoint a = slice.Points[n - 1], b = slice.Points[n];
    sum += std::remainder(
        std::atan2(b.Y - centre.Y, b.X - centre.X) - std::atan2(a.Y - centre.Y, a.X - centre.X),
        2 * std::numbers::pi);
  }
  return sum * 180 / std::numbers::pi;
}

// --- Samples ----------------------------------------------------------------------------------------------

TEST(ChartSamples, StandForReferencesUntouchedAndEmptyValues) {
  for (const char* values : {"@sales", "  @sales", "0,0,0,0,0,0", " 0,0,0,0,0,0 ", "", "   "}) {
    const ChartLook look = WithSamples(LookWith({{"Graph_serie_8_values", values}}));
    EXPECT_EQ(look.Values[slot::OfSeries(8, slot::SeriesPart::Values)], "10,20,30,40,30,10") << values;
  }
  const ChartLook look = WithSamples(LookWith({{"Graph_serie_1_values", "0,0,0"}}));
  EXPECT_EQ(look.Values[slot::OfSeries(1, slot::SeriesPart::Values)], "0,0,0");
}

TEST(ChartSamples, AReferenceToLabelsGivesSixOfThem) {
  const auto labels = [](const std::string& text) {
    return WithSamples(LookWith({{"Graph_Layout_Values", text}})).Values[slot::kLayoutValues];
  };
  EXPECT_EQ(labels(" @months"), "Layout 1,Layout 2,Layout 3,Layout 4,Layout 5,Layout 6");
  EXPECT_EQ(labels(""), "");
  EXPECT_EQ(labels("A,B"), "A,B");
}

TEST(ChartSamples, LeaveTheRecordAlone) {
  ObjectRecord record;
  record.Kind = ObjectKind::Chart;
  record.Width = 6000;
  record.Height = 3000;
  record.ChartValues = LookWith({{"Graph_serie_1_values", "@a"}, {"Graph_Layout_Values", "@b"}}).Values;
  const std::vector<std::string> before = record.ChartValues;
  const ChartPicture picture = Drawn(LookOf(record));
  EXPECT_EQ(picture.Width, 400);
  EXPECT_EQ(picture.Height, 200);
  EXPECT_THAT(TextsOf(picture), Contains("Layout 6"));
  EXPECT_EQ(record.ChartValues, before);
}

TEST(ChartSamples, MissingSlotsCountAsTheirDefaults) {
  EXPECT_EQ(FilledWith(Drawn({{"2D"}, 480, 240}), kFirstColour).size(), 6U);
  EXPECT_EQ(FilledWith(Drawn({{}, 480, 240}), kFirstColour).size(), 6U);
}

// --- Background and title ---------------------------------------------------------------------------------

TEST(ChartGround, IsTheGradientAndThenThePicture) {
  const ChartPicture plain = Drawn(LookWith({{"Graph_BackGround", "1,2,3,4,5,6"}}));
  ASSERT_FALSE(plain.Shapes.empty());
  const auto* gradient = std::get_if<ChartGradient>(&plain.Shapes.front());
  ASSERT_NE(gradient, nullptr);
  EXPECT_EQ(gradient->Ends, (std::array<int, 6>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(gradient->Area, (ChartRect{0, 0, 480, 240}));
  EXPECT_TRUE(Only<ChartImage>(plain).empty());
  const auto pictures = Only<ChartImage>(Drawn(LookWith({{"Graph_BackGround_picture", "\\back.png"}})));
  ASSERT_EQ(pictures.size(), 1U);
  EXPECT_EQ(pictures.front().File, "\\back.png");
}

TEST(ChartTitle, StandsInTheMiddleInItsFont) {
  const ChartPicture picture = Drawn(LookWith({{"Graph_Title", "Sales"},
                                               {"Graph_Title_Font", "Courier New"},
                                               {"Graph_Title_FontSize", "14"},
                                               {"Graph_Title_FontColor", "1,2,3"},
                                               {"Graph_Title_FontBold", "y"},
                                               {"Graph_Title_FontItalic", "1"},
                                               {"Graph_Title_FontUnderline", "Y"}}));
  const ChartText title = Only<ChartText>(picture).front();
  EXPECT_EQ(title.Text, "Sales");
  EXPECT_EQ(title.Font.Name, "Courier New");
  EXPECT_EQ(title.Font.Size, 14);
  EXPECT_TRUE(title.Font.Bold && title.Font.Italic && title.Font.Underline);
  EXPECT_EQ(title.Colour, 0x010203U);
  EXPECT_NEAR(title.At.X + title.Width / 2, 240, 0.01);
}

TEST(ChartTitle, IsShortenedWhereItHasNoRoom) {
  const ChartPicture picture = Drawn(LookWith({{"Graph_Title", std::string(300, 'W')}}));
  const ChartText title = Only<ChartText>(picture).front();
  EXPECT_TRUE(title.Text.ends_with("W..."));
  EXPECT_LE(title.At.X + title.Width, 480);
}

// --- Series -----------------------------------------------------------------------------------------------

TEST(ChartBars, AreAsHighAsTheirValues) {
  const auto bars = FilledWith(Drawn(LookWith({{"Graph_serie_1_values", "10,20,40"}})), kFirstColour);
  ASSERT_EQ(bars.size(), 3U);
  const double low = BoundsOf(bars[0].Points).Height();
  EXPECT_NEAR(BoundsOf(bars[1].Points).Height(), 2 * low, 0.01);
  EXPECT_NEAR(BoundsOf(bars[2].Points).Height(), 4 * low, 0.01);
  EXPECT_LT(BoundsOf(bars[0].Points).Right, BoundsOf(bars[1].Points).Left);
}

TEST(ChartBars, HangDownForValuesBelowZero) {
  const auto bars = FilledWith(Drawn(LookWith({{"Graph_serie_1_values", "10,-10"}})), kFirstColour);
  ASSERT_EQ(bars.size(), 2U);
  EXPECT_NEAR(BoundsOf(bars[0].Points).Bottom, BoundsOf(bars[1].Points).Top, 0.01);
}

TEST(ChartBars, UnknownWordsDrawAsFlatOnesAndTypesCompareWithoutCase) {
  const auto drawnAs = [](const std::string& type) {
    return Drawn(LookWith({{"Graph_serie_1_type", type}, {"Graph_serie_1_values", "1,2"}}));
  };
  const std::size_t flat = FilledWith(drawnAs("BarFlat"), kFirstColour).size();
  EXPECT_EQ(flat, 2U);
  for (const char* type : {"Bar", "", "Candle", "BARFLAT", " barflat "})
    EXPECT_EQ(FilledWith(drawnAs(type), kFirstColour).size(), flat) << type;
  // The others have no polygon of the plain colour alone for each bar, or more shapes.
  for (const char* type : {"barround", "BARROUND", "barROUND"}) {
    EXPECT_TRUE(FilledWith(drawnAs(type), kFirstColour).empty()) << type;
    EXPECT_EQ(drawnAs(type).Shapes.size(), drawnAs("BarFlat").Shapes.size()) << type;
  }
  EXPECT_EQ(drawnAs("barsquared").Shapes.size(), drawnAs("BarFlat").Shapes.size() + 2 * 3);
  EXPECT_EQ(drawnAs("line").Shapes.size(), drawnAs("LINE").Shapes.size());
  EXPECT_EQ(LinesOf(drawnAs("Line"), kFirstColour).size(), 1U);
  EXPECT_EQ(drawnAs("area").Shapes.size(), drawnAs("Area").Shapes.size());
}

TEST(ChartSeriesCount, IsBetweenOneAndEight) {
  const auto shown = [](const std::string& count) {
    ChartLook look = LookWith({{"Graph_series", count}, {"Graph_ShowSeriesTitles", "Y"}}, 900, 500);
    for (int n = 1; n <= 8; ++n)
      look.Values[slot::OfSeries(n, slot::SeriesPart::Name)] = "name" + std::to_string(n);
    const std::vector<std::string> texts = TextsOf(Drawn(look));
    return std::count_if(texts.begin(), texts.end(),
                         [](const std::string& text) { return text.starts_with("name"); });
  };
  EXPECT_EQ(shown("1"), 1);
  EXPECT_EQ(shown("5"), 5);
  EXPECT_EQ(shown("8"), 8);
  EXPECT_EQ(shown("9"), 8);
  EXPECT_EQ(shown("0"), 1);
  EXPECT_EQ(shown("many"), 1);
}

TEST(ChartLine, GoesThroughItsValuesAndStopsWhereTheyDo) {
  const auto lines = LinesOf(Drawn(LookWith({{"Graph_series", "2"},
                                             {"Graph_serie_1_type", "Line"},
                                             {"Graph_serie_1_values", "1,3"},
                                             {"Graph_serie_2_values", "1,2,3,4"}})),
                             kFirstColour);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines.front().Points.size(), 2U);
}

TEST(ChartSolid, HasWallsAndThreeFacesForEachBlock) {
  const auto count = [](const std::string& back) {
    return Only<ChartPolygon>(Drawn(LookWith({{"Graph_Type", "3d"},
                                              {"Graph_ShowAxisBackGround", back},
                                              {"Graph_serie_1_values", "3,4"}})))
        .size();
  };
  EXPECT_EQ(count("N"), 2U * 3);
  EXPECT_EQ(count("Y"), 2U * 3 + 3);
}

TEST(ChartSolid, CylindersHaveABodyAndATop) {
  const auto polygons = Only<ChartPolygon>(Drawn(LookWith({{"Graph_Type", "3D"},
                                                           {"Graph_ShowAxisBackGround", "N"},
                                                           {"Graph_serie_1_type", "BARROUND"},
                                                           {"Graph_serie_1_values", "3,4"}})));
  EXPECT_EQ(polygons.size(), 4U);
}

// --- Axes -------------------------------------------------------------------------------------------------

TEST(ChartAxes, FollowTheStyle) {
  struct Row {
    const char* style;
    std::size_t corners;  // of the axes' line: 3 for axes, 5 for a frame
    bool valueLines;
  };
  for (const Row& row : {Row{"1", 3, false}, Row{"2", 5, false}, Row{"3", 3, true}, Row{"4", 5, true},
                         Row{"", 3, false}, Row{"17", 3, false}}) {
    const ChartPicture picture =
        Drawn(LookWith({{"Graph_AxisStyle", row.style}, {"Graph_AxisColor_2", "17,34,51"}}));
    EXPECT_EQ(LinesOf(picture, kAxisGrey).back().Points.size(), row.corners) << row.style;
    EXPECT_EQ(!LinesOf(picture, kValueLines).empty(), row.valueLines) << row.style;
  }
}

TEST(ChartAxes, EmptyColoursAreGreyAndGivenOnesAreTaken) {
  EXPECT_FALSE(LinesOf(Drawn(LookWith({})), kAxisGrey).empty());
  const ChartPicture given = Drawn(LookWith({{"Graph_AxisColor_1", "255,0,0"}}));
  EXPECT_TRUE(LinesOf(given, kAxisGrey).empty());
  EXPECT_FALSE(LinesOf(given, 0xFF0000).empty());
}

TEST(ChartAxes, AreLeftOutWithTheirTexts) {
  const ChartPicture picture = Drawn(LookWith({{"Graph_ShowAxis", "N"}, {"Graph_AxisStyle", "4"}}));
  EXPECT_TRUE(Only<ChartPolyline>(picture).empty());
  EXPECT_THAT(TextsOf(picture), Not(Contains("0")));
}

TEST(ChartAxes, TicksAreRoundValues) {
  EXPECT_THAT(TextsOf(Drawn(LookWith({{"Graph_serie_1_ShowValues", "N"}}))),
              testing::ElementsAre("0", "10", "20", "30", "40"));
}

TEST(ChartLabels, StandBelowTheirBars) {
  const ChartPicture picture =
      Drawn(LookWith({{"Graph_Layout_Values", "A,B,C"}, {"Graph_serie_1_values", "1,2,3"}}));
  const auto bars = FilledWith(picture, kFirstColour);
  for (const ChartText& text : Only<ChartText>(picture)) {
    if (text.Text != "B") continue;
    EXPECT_NEAR(text.At.X + text.Width / 2, BoundsOf(bars[1].Points).Centre().X, 0.01);
    EXPECT_GT(text.At.Y, BoundsOf(bars[1].Points).Bottom);
    return;
  }
  FAIL() << "no label";
}

TEST(ChartLabels, SlantWhereTheyHaveNoRoomSideBySide) {
  std::string labels;
  for (int n = 0; n < 12; ++n)
    labels += (n ? ",A rather long label " : "A rather long label ") + std::to_string(n);
  const ChartPicture picture =
      Drawn(LookWith({{"Graph_Layout_Values", labels}, {"Graph_serie_1_ShowValues", "N"}}));
  const std::vector<ChartText> texts = Only<ChartText>(picture);
  EXPECT_EQ(
      std::count_if(texts.begin(), texts.end(), [](const ChartText& text) { return text.Degrees == -45; }),
      12);
}

TEST(ChartLabels, AreThinnedOutEvenlyWhereThereAreMany) {
  std::string labels = "0";
  for (int n = 1; n < 200; ++n)
    labels += "," + std::to_string(n);
  const std::vector<std::string> texts = TextsOf(Drawn(LookWith(
      {{"Graph_Layout_Values", labels}, {"Graph_ShowAxis", "N"}, {"Graph_serie_1_ShowValues", "N"}})));
  ASSERT_GT(texts.size(), 5U);
  const int apart = std::stoi(texts[1]);
  for (std::size_t n = 0; n < texts.size(); ++n)
    EXPECT_EQ(texts[n], std::to_string(static_cast<int>(n) * apart));
}

TEST(ChartValuesShown, HaveTheirFontAndAreLeftOut) {
  const ChartLook look = LookWith({{"Graph_ShowAxis", "N"},
                                   {"Graph_serie_1_values", "7.50,3"},
                                   {"Graph_ShowValuesFontSize", "9"},
                                   {"Graph_ShowValuesFontColor", "9,8,7"}});
  const auto texts = Only<ChartText>(Drawn(look));
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].Text, "7.50");
  EXPECT_EQ(texts[0].Font.Size, 9);
  EXPECT_EQ(texts[0].Colour, 0x090807U);
  ChartLook without = look;
  without.Values[slot::OfSeries(1, slot::SeriesPart::ShowValues)] = "N";
  EXPECT_TRUE(TextsOf(Drawn(without)).empty());
}

TEST(ChartSeriesTitles, AreShownOnDemandAlone) {
  for (const char* yes : {"Y", "y", "1"})
    EXPECT_THAT(TextsOf(Drawn(LookWith({{"Graph_ShowSeriesTitles", yes}, {"Graph_serie_1_name", "North"}}))),
                Contains("North"));
  for (const char* no : {"N", "", "x"})
    EXPECT_THAT(TextsOf(Drawn(LookWith({{"Graph_ShowSeriesTitles", no}, {"Graph_serie_1_name", "North"}}))),
                Not(Contains("North")));
}

// --- Pies -------------------------------------------------------------------------------------------------

TEST(ChartPie, SlicesAreAsLargeAsTheirShares) {
  const ChartPicture picture = Drawn(LookWith({{"Graph_Type", "pie"}, {"Graph_serie_1_values", "1,2,5"}}));
  const auto slices = Only<ChartPolygon>(picture);
  ASSERT_EQ(slices.size(), 3U);
  EXPECT_NEAR(AngleOf(slices[0]), 45, 0.01);
  EXPECT_NEAR(AngleOf(slices[1]), 90, 0.01);
  EXPECT_NEAR(AngleOf(slices[2]), 225, 0.01);
  EXPECT_EQ(slices[0].Fill.Colours, std::vector<Rgb>{0xFF8080});
  EXPECT_EQ(slices[1].Fill.Colours, std::vector<Rgb>{0x0066CC});
}

TEST(ChartPie, ColoursRepeatFromTheTwentyFirstSliceOn) {
  std::string values = "1";
  for (int n = 1; n < 22; ++n)
    values += ",1";
  const auto slices =
      Only<ChartPolygon>(Drawn(LookWith({{"Graph_Type", "PIE"}, {"Graph_serie_1_values", values}})));
  ASSERT_EQ(slices.size(), 22U);
  EXPECT_EQ(slices[20].Fill.Colours, slices[0].Fill.Colours);
  EXPECT_EQ(slices[21].Fill.Colours, slices[1].Fill.Colours);
  EXPECT_EQ(slices[19].Fill.Colours, std::vector<Rgb>{0x64FF64});
}

TEST(ChartPie, ShowsOneRingForNothingAndACircleForOneValue) {
  EXPECT_EQ(
      Only<ChartPolygon>(Drawn(LookWith({{"Graph_Type", "PIE"}, {"Graph_serie_1_values", "0,0"}}))).size(),
      1U);
  EXPECT_EQ(
      Only<ChartPolygon>(Drawn(LookWith({{"Graph_Type", "PIE"}, {"Graph_serie_1_values", "-4"}}))).size(),
      1U);
  const auto circle =
      Only<ChartPolygon>(Drawn(LookWith({{"Graph_Type", "PIE"}, {"Graph_serie_1_values", "9"}})));
  ASSERT_EQ(circle.size(), 1U);
  const ChartRect bounds = BoundsOf(circle.front().Points);
  EXPECT_NEAR(bounds.Width(), bounds.Height(), 0.01);
}

TEST(ChartPie, ValuesAreShownByTheFirstSeries) {
  const auto texts = [](const std::string& show) {
    return TextsOf(Drawn(LookWith({{"Graph_Type", "PIE"},
                                   {"Graph_serie_1_values", "30,70"},
                                   {"Graph_serie_1_ShowValues", show},
                                   {"Graph_Layout_Values", "A,B"}})));
  };
  EXPECT_THAT(texts("Y"), testing::UnorderedElementsAre("A", "B", "30", "70"));
  EXPECT_THAT(texts("N"), testing::UnorderedElementsAre("A", "B"));
}

}  // namespace
}  // namespace kev
