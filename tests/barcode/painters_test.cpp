// SPDX-License-Identifier: MIT
#include "barcode/painters.h"

#include <gtest/gtest.h>

#include "support/recording_surface.h"

namespace kev {

void PrintTo(const SymbolArea& area, std::ostream* out) {
  *out << area.Left << ' ' << area.Top << ' ' << area.Right << ' ' << area.Bottom;
}

namespace {

using Areas = std::vector<SymbolArea>;

class PaintersTest : public testing::Test {
 protected:
  BarRequest Request(int kind, std::string_view text, double barWidth = 10) {
    return {.Kind = kind, .Text = text, .X = 720, .Y = 400, .Height = 200, .BarWidth = barWidth};
  }
  BarResult Code39(const BarRequest& request) { return Run(Code39Painter, request); }
  BarResult Module(const BarRequest& request) { return Run(ModulePainter, request); }
  BarResult Code128(const BarRequest& request) { return Run(Code128Painter, request); }
  // Of the one symbol that was drawn; none for none.
  Areas Bars() const { return surface_.Symbols.empty() ? Areas() : surface_.Symbols.at(0); }
  // Right edge of the first bar.
  double FirstWidth() const { return Bars().at(0).Right; }

  test::RecordingSurface surface_;
  BarcodeState state_;

 private:
  using Painter = BarResult (*)(SurfaceOps&, BarcodeState&, const BarRequest&);
  BarResult Run(Painter painter, const BarRequest& request) {
    surface_.Lines.clear();
    surface_.Symbols.clear();
    return painter(surface_, state_, request);
  }
};

// --- the factor

TEST_F(PaintersTest, FactorStartsAtOneAndIsCarriedOver) {
  EXPECT_EQ(state_.BarMultiplier, 1);
  for (const auto& [width, factor] : std::initializer_list<std::pair<double, double>>{{2, 2},
                                                                                      {0, 2},
                                                                                      {-5, 2},
                                                                                      {0.75, 2},
                                                                                      {2.5, 2},
                                                                                      {3, 3},
                                                                                      {1.5, 3},
                                                                                      {3.5, 0.35},
                                                                                      {1, 1},
                                                                                      {10, 1},
                                                                                      {15, 1.5},
                                                                                      {20, 2},
                                                                                      {4, 0.4},
                                                                                      {100, 10}}) {
    UseBarWidth(state_, width);
    EXPECT_EQ(state_.BarMultiplier, factor) << width;
  }
}

TEST_F(PaintersTest, WidthThatNamesNoFactorPaintsLikeTheOneBefore) {
  Code39(Request(1, "A", 30));
  EXPECT_EQ(FirstWidth(), 30);
  Code39(Request(1, "A", 0));
  EXPECT_EQ(FirstWidth(), 30);
  Module(Request(8, "12345670", 0.75));
  EXPECT_EQ(FirstWidth(), 45);
}

// --- Code 39

TEST_F(PaintersTest, Code39HasThinBarsOfTenAndThinSpacesOfSixteen) {
  const BarResult result = Code39(Request(1, "A"));
  EXPECT_EQ(Bars(), (Areas{{0, 0, 10, 200},
                           {46, 0, 56, 200},
                           {72, 0, 102, 200},
                           {118, 0, 148, 200},
                           {164, 0, 174, 200},
                           {223, 0, 253, 200},
                           {269, 0, 279, 200},
                           {295, 0, 305, 200},
                           {341, 0, 351, 200},
                           {367, 0, 397, 200},
                           {430, 0, 440, 200},
                           {476, 0, 486, 200},
                           {502, 0, 532, 200},
                           {548, 0, 578, 200},
                           {594, 0, 604, 200}}));
  EXPECT_EQ(result.End, 720 + 653);
  EXPECT_TRUE(result.HasBars);
  EXPECT_TRUE(surface_.Has("symbol 720 400 000000: 0 0 10 200:"));
}

TEST_F(PaintersTest, Code39OfWidthTwoHasThinBarsOfTwentyAndThinSpacesOfThirtyTwo) {
  const BarResult result = Code39(Request(1, "A", 2));
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 20, 200}));
  EXPECT_EQ(Bars()[1], (SymbolArea{92, 0, 112, 200}));
  EXPECT_EQ(Bars()[2], (SymbolArea{144, 0, 204, 200}));
  EXPECT_EQ(result.End, 720 + 2 * 653);
}

TEST_F(PaintersTest, Code39ThinBarsHaveWholeTwipsAndWideBarsAsManyAsTheyAre) {
  BarRequest request = Request(1, "A");
  request.ZoomFactor = 0.75;
  Code39(request);
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 7, 200}));
  EXPECT_EQ(Bars()[1], (SymbolArea{34.5, 0, 41.5, 200}));
  EXPECT_EQ(Bars()[2], (SymbolArea{54, 0, 76.5, 200}));
}

TEST_F(PaintersTest, Code39LeavesThePenAtOne) {
  Code39(Request(1, "A"));
  EXPECT_EQ(surface_.Only("pen"), std::vector<std::string>{"pen 000000 1"});
  EXPECT_TRUE(surface_.Lines.back().starts_with("symbol"));
}

TEST_F(PaintersTest, OtherPaintersPutThePenBack) {
  Module(Request(8, "12345670"));
  EXPECT_EQ(surface_.Lines.back(), "pen 787878 1");
  Code128(Request(1282, "A"));
  EXPECT_EQ(surface_.Lines.back(), "pen 787878 1");
}

TEST_F(PaintersTest, Code39RunsDownWhereItIsVertical) {
  BarRequest request = Request(1, "A");
  request.IsVertical = true;
  const BarResult result = Code39(request);
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 200, 10}));
  EXPECT_EQ(Bars()[2], (SymbolArea{0, 72, 200, 102}));
  EXPECT_EQ(result.End, 400 + 653);
}

TEST_F(PaintersTest, Code39OnAPanelStartsAtItsCornerAndIsFiftyLonger) {
  BarRequest request = Request(1, "A");
  request.Target = BarTarget::Visual;
  request.OriginX = 5000;
  request.OriginY = 6000;
  EXPECT_EQ(Code39(request).End, 653);
  EXPECT_EQ(surface_.Lines[0], "clear");
  EXPECT_TRUE(surface_.Has("symbol 5000 6000 000000: 0 0 10 250:"));
  request.IsVertical = true;
  EXPECT_EQ(Code39(request).End, 653);
  EXPECT_TRUE(surface_.Has("symbol 5000 6000 000000: 0 0 250 10:"));
}

// --- modules

TEST_F(PaintersTest, ModulesAreFifteenTwips) {
  const BarResult result = Module(Request(8, "12345670"));
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 15, 200}));
  EXPECT_EQ(Bars()[1], (SymbolArea{30, 0, 45, 200}));
  // 1 is 0011001 in set A.
  EXPECT_EQ(Bars()[2], (SymbolArea{75, 0, 105, 200}));
  EXPECT_EQ(Bars().back(), (SymbolArea{990, 0, 1005, 200}));
  EXPECT_EQ(Bars().size(), 22U);
  EXPECT_EQ(result.End, 1005);
}

TEST_F(PaintersTest, ModulesHaveWholeTwipsAndNothingIsCarried) {
  const BarResult result = Module(Request(8, "12345670", 15));
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 22, 200}));
  EXPECT_EQ(Bars()[1], (SymbolArea{44, 0, 66, 200}));
  EXPECT_EQ(result.End, 67 * 22);
}

TEST_F(PaintersTest, ModulesThinnerThanATwipAreNoBars) {
  BarRequest request = Request(8, "12345670", 4);
  request.ZoomFactor = 0.1;
  const BarResult result = Module(request);
  EXPECT_FALSE(result.HasBars);
  EXPECT_EQ(result.End, 0);
  EXPECT_TRUE(surface_.Symbols.empty());
}

TEST_F(PaintersTest, ModulesRunDownWhereTheyAreVertical) {
  BarRequest request = Request(251, "12");
  request.IsVertical = true;
  const BarResult result = Module(request);
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 200, 15}));
  EXPECT_EQ(Bars()[2], (SymbolArea{0, 60, 200, 105}));
  // The last module is a space.
  EXPECT_EQ(result.End, 15 * (4 + 18 + 4 + 1));
}

TEST_F(PaintersTest, ErrorTextsArePaintedAsModules) {
  const BarResult bad = Module(Request(8, "1234567"));
  EXPECT_FALSE(bad.HasBars);
  EXPECT_EQ(bad.End, 0);
  EXPECT_TRUE(surface_.Symbols.empty());
  // "/ERRORE=P:051/" has its one bar in the thirteenth place.
  const std::string text(63, '3');
  const BarResult oneBar = Module(Request(1283, text));
  EXPECT_EQ(Bars(), (Areas{{180, 0, 195, 200}}));
  EXPECT_EQ(oneBar.End, 195);
}

TEST_F(PaintersTest, SpacesMayBeAnyCharacter) {
  Module(Request(13, "5901234123457"));
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 15, 200}));
  EXPECT_EQ(Bars().back(), (SymbolArea{1410, 0, 1425, 200}));
  EXPECT_EQ(Bars().size(), 30U);
}

TEST_F(PaintersTest, LongModulesLoseWhatTheCircleLacks) {
  BarRequest request = Request(8, "12345670");
  request.Height = 100000;
  // 100000 times the sine of an angle that is 7.18e-9 short of the full turn.
  EXPECT_DOUBLE_EQ(Module(request).End, 1005 - 0.0007);
}

// --- Code 128

TEST_F(PaintersTest, Code128TakesOneTwipMoreForEachElement) {
  const BarResult result = Code128(Request(1282, "A"));
  // Start B: 211214.
  EXPECT_EQ(Bars()[0], (SymbolArea{0, 0, 30, 200}));
  EXPECT_EQ(Bars()[1], (SymbolArea{47, 0, 62, 200}));
  EXPECT_EQ(Bars()[2], (SymbolArea{94, 0, 109, 200}));
  EXPECT_EQ(Bars().size(), 13U);
  // 11 + 11 + 11 + 13 modules, and one twip behind each of the 24 elements before the last.
  EXPECT_EQ(result.End, 720 + 46 * 15 + 24);
}

TEST_F(PaintersTest, Code128UnitRoundsToEven) {
  Code128(Request(1282, "A", 15));
  EXPECT_EQ(FirstWidth(), 2 * 22);
  state_.BarMultiplier = 1;
  BarRequest request = Request(1282, "A", 0);
  request.ZoomFactor = 1.1;  // 16.5
  Code128(request);
  EXPECT_EQ(FirstWidth(), 2 * 16);
  request.ZoomFactor = 0.7;  // 10.5
  Code128(request);
  EXPECT_EQ(FirstWidth(), 2 * 10);
}

TEST_F(PaintersTest, Code128RunsDownWhereItIsVertical) {
  BarRequest request = Request(1282, "A");
  request.IsVertical = true;
  const BarResult result = Code128(request);
  EXPECT_EQ(Bars()[1], (SymbolArea{0, 47, 200, 62}));
  EXPECT_EQ(result.End, 400 + 46 * 15 + 24);
}

TEST_F(PaintersTest, Code128OnAPanelStartsOneTwipFromItsCorner) {
  BarRequest request = Request(1282, "A");
  request.Target = BarTarget::Visual;
  request.OriginX = 5000;
  request.OriginY = 6000;
  EXPECT_EQ(Code128(request).End, 1 + 46 * 15 + 24);
  EXPECT_EQ(surface_.Lines[0], "clear");
  EXPECT_TRUE(surface_.Has("symbol 5001 6001 000000: 0 0 30 200:"));
}

TEST_F(PaintersTest, Code128StopsBeyondSixteenBits) {
  BarRequest request = Request(1282, "A");
  request.X = 32767 - 100;
  const BarResult result = Code128(request);
  EXPECT_TRUE(result.Stopped);
  // What fits stays: up to 100.
  EXPECT_EQ(Bars(), (Areas{{0, 0, 30, 200}, {47, 0, 62, 200}}));
  request.X = 32767 - 46 * 15 - 25;
  EXPECT_FALSE(Code128(request).Stopped);
  request.X += 1;
  EXPECT_TRUE(Code128(request).Stopped);
}

TEST_F(PaintersTest, Code128PaintsNothingWhereItCannotStart) {
  BarRequest request = Request(1282, "A");
  request.X = 32768;
  EXPECT_TRUE(Code128(request).Stopped);
  EXPECT_TRUE(surface_.Symbols.empty());
  request.X = 0;
  request.Y = 40000;
  EXPECT_TRUE(Code128(request).Stopped);
  request.Y = 0;
  request.BarWidth = 30000;
  EXPECT_TRUE(Code128(request).Stopped);
  EXPECT_EQ(surface_.Lines.back(), "pen 787878 1");
}

TEST_F(PaintersTest, Code128HeightIsNoSixteenBitNumber) {
  BarRequest request = Request(1282, "A");
  request.Height = 50000;
  EXPECT_FALSE(Code128(request).Stopped);
  EXPECT_EQ(Bars()[0].Bottom, 50000);
}

// --- all of them

TEST_F(PaintersTest, EmptyTextPaintsNothing) {
  EXPECT_FALSE(Code39(Request(1, "")).HasBars);
  EXPECT_TRUE(surface_.Symbols.empty());
  for (const int kind : {8, 13, 32, 250, 251, 252, 1283}) {
    const BarResult result = Module(Request(kind, ""));
    EXPECT_FALSE(result.HasBars) << kind;
    EXPECT_EQ(result.End, 0) << kind;
    EXPECT_TRUE(surface_.Symbols.empty()) << kind;
  }
  EXPECT_FALSE(Code128(Request(1282, "")).HasBars);
  EXPECT_TRUE(surface_.Symbols.empty());
}

TEST_F(PaintersTest, BarsHaveTheColourOfTheObject) {
  BarRequest request = Request(1, "A");
  request.Colour = 0x123456;
  Code39(request);
  EXPECT_EQ(surface_.Lines[0], "foreground 123456");
  EXPECT_TRUE(surface_.Has("symbol 720 400 123456:"));
}

TEST_F(PaintersTest, ASymbolIsOnePrimitive) {
  Code39(Request(1, "ABCDEF"));
  EXPECT_EQ(surface_.Only("symbol").size(), 1U);
  Module(Request(13, "5901234123457"));
  EXPECT_EQ(surface_.Only("symbol").size(), 1U);
  Code128(Request(12821, "(01)12345678"));
  EXPECT_EQ(surface_.Only("symbol").size(), 1U);
}

}  // namespace
}  // namespace kev
