// SPDX-License-Identifier: MIT
#include "surface/rulers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "support/recording_surface.h"
#include "support/sample_page.h"

namespace kev {
namespace {

using test::RecordingSurface;

class RulersTest : public testing::Test {
 protected:
  RulersTest() {
    document_.Settings[Setting::PAPERSIZE] = "(custom)";
    document_.Settings[Setting::PAGELENGHT] = "14000";
    SetPage(1200, 0);
  }
  void SetPage(int width, int leftMargin) {
    document_.Settings[Setting::PAGEWIDTH] = std::to_string(width);
    document_.Settings[Setting::LM] = std::to_string(leftMargin);
  }
  RulerPlan Plan(double zoom) { return PlanRulers(document_, zoom, measurer_); }
  RecordingSurface Horizontal(int mode, double zoom, RulerSpan span = {}) {
    RecordingSurface surface;
    BuildHorizontalRuler(surface, Plan(zoom), mode, span);
    return surface;
  }
  RecordingSurface Vertical(int mode, double zoom, RulerSpan span = {}) {
    RecordingSurface surface;
    const RulerPlan plan = Plan(zoom);
    BuildVerticalRuler(surface, plan, plan.Parts.at(0), mode, span);
    return surface;
  }
  // The numbers on a ruler, each with its place along it (X of its middle, or Y of the mark).
  static std::string Labels(const RecordingSurface& surface) {
    std::string all;
    for (const std::string& line : surface.Only("text")) {
      // "text X Y words"
      const std::size_t words = line.find(' ', line.find(' ', 5) + 1) + 1;
      all += (all.empty() ? "" : ",") + line.substr(words);
    }
    return all;
  }
  static bool HasLine(const RecordingSurface& surface, const std::string& line) {
    return std::find(surface.Lines.begin(), surface.Lines.end(), line) != surface.Lines.end();
  }

  Document document_;
  BuiltInMeasurer measurer_;
};

// --- The whole ruler
// ------------------------------------------------------------------------------------------

TEST_F(RulersTest, TwipsAtFullSize) {
  EXPECT_EQ(Horizontal(1, 1).Take(),
            "clear\n"
            "canvas 1200 465\n"
            "scaleleft 0\n"
            "rect 0 0 1200 465 FFFFFF filled\n"
            "font Arial 9 bold cs0\n"
            "foreground 000000\n"
            "pen 6E7781 1\n"
            "line 0 50 50000 50\n"
            "line 0 50 0 120\n"
            "rect 0 220 100.107421875 421.09375 FFFFFF filled\n"
            "text 0 220 0\n"
            "line 100 50 100 120\n"
            "line 200 50 200 120\n"
            "line 300 50 300 120\n"
            "line 400 50 400 120\n"
            "line 500 50 500 220\n"
            "line 600 50 600 120\n"
            "line 700 50 700 120\n"
            "line 800 50 800 120\n"
            "line 900 50 900 120\n"
            "line 1000 50 1000 400\n"
            "rect 884.951171875 220 1115.048828125 421.09375 FFFFFF filled\n"
            "text 884.951171875 220 1K\n"
            "line 1100 50 1100 120\n"
            "line 1200 50 1200 120\n");
}

TEST_F(RulersTest, TwipsBesideABodyStartAgainAtItsTop) {
  test::AddSubsection(document_, "[DATA]", 5000, 600);
  EXPECT_EQ(Vertical(1, 1).Take(),
            "clear\n"
            "canvas 795 600\n"
            "scaleleft 0\n"
            "rect 0 0 795 600 FFFFFF filled\n"
            "font Arial 9 bold cs0\n"
            "foreground 000000\n"
            "pen 6E7781 1\n"
            "line 50 0 50 50000\n"
            "line 50 0 120 0\n"
            "rect 220 0 350.107421875 201.09375 FFFFFF filled\n"
            "text 250 0 0\n"
            "line 50 100 120 100\n"
            "line 50 200 120 200\n"
            "line 50 300 120 300\n"
            "line 50 400 120 400\n"
            "line 50 500 220 500\n"
            "line 50 600 120 600\n");
}

struct ModeCase {
  int mode;
  double zoom;
  // Marks that must be there, and the numbers of a page of 6000 twips.
  std::vector<std::string> marks;
  std::string labels;
};

class RulerModes : public RulersTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(RulerModes, HaveTheirMarksAndNumbers) {
  const ModeCase& expected = GetParam();
  SetPage(6000, 0);
  const RecordingSurface surface = Horizontal(expected.mode, expected.zoom);
  for (const std::string& mark : expected.marks)
    EXPECT_TRUE(HasLine(surface, mark)) << mark;
  EXPECT_EQ(Labels(surface), expected.labels);
}

INSTANTIATE_TEST_SUITE_P(
    EachZoom, RulerModes,
    testing::Values(
        ModeCase{1,
                 0.5,
                 {"line 50 50 50 120", "line 250 50 250 220", "line 500 50 500 400", "line 3000 50 3000 400"},
                 "0,1K,2K,3K,4K,5K,6K"},
        ModeCase{1,
                 1,
                 {"line 100 50 100 120", "line 500 50 500 220", "line 1000 50 1000 400"},
                 "0,1K,2K,3K,4K,5K,6K"},
        ModeCase{1,
                 2,
                 {"line 200 50 200 120", "line 1000 50 1000 220", "line 2000 50 2000 400"},
                 "0,1K,2K,3K,4K,5K,6K"},
        ModeCase{2,
                 0.5,
                 {"line 72 50 72 120", "line 360 50 360 220", "line 720 50 720 400"},
                 "0,1 in,2 in,3 in,4 in"},
        ModeCase{2,
                 1,
                 {"line 144 50 144 120", "line 720 50 720 220", "line 1440 50 1440 400"},
                 "0,1 in,2 in,3 in,4 in"},
        ModeCase{2,
                 2,
                 {"line 288 50 288 120", "line 1440 50 1440 220", "line 2880 50 2880 400"},
                 "0,1 in,2 in,3 in,4 in"},
        ModeCase{3,
                 0.5,
                 {"line 28.35 50 28.35 120", "line 141.75 50 141.75 170", "line 283.5 50 283.5 250"},
                 "0,2 cm,4 cm,6 cm,8 cm"},
        ModeCase{3,
                 1,
                 {"line 56.7 50 56.7 120", "line 283.5 50 283.5 170", "line 567 50 567 250"},
                 "0,1 cm,2 cm,3 cm,4 cm,5 cm,6 cm,7 cm,8 cm,9 cm,10 cm"},
        ModeCase{3,
                 2,
                 {"line 113.4 50 113.4 120", "line 567 50 567 170", "line 1134 50 1134 250"},
                 "0,1 cm,2 cm,3 cm,4 cm,5 cm,6 cm,7 cm,8 cm,9 cm,10 cm"}));

TEST_F(RulersTest, ModesFollowEachOtherInACircle) {
  int mode = kFirstRulerMode;
  EXPECT_EQ(mode, 1);
  EXPECT_EQ(mode = NextRulerMode(mode), 2);
  EXPECT_EQ(mode = NextRulerMode(mode), 3);
  EXPECT_EQ(mode = NextRulerMode(mode), 1);
  EXPECT_EQ(NextRulerMode(7), 1);
  EXPECT_EQ(ScaleOf(7).Unit, ScaleOf(1).Unit);
}

// --- Text
// -----------------------------------------------------------------------------------------------------

TEST_F(RulersTest, TextFollowsTheZoomFromNinePointsOn) {
  EXPECT_EQ(RulerFont(0.5).Size, 9);
  EXPECT_EQ(RulerFont(1).Size, 9);
  EXPECT_EQ(RulerFont(1.125).Size, 9);
  EXPECT_EQ(RulerFont(1.5).Size, 12);
  EXPECT_EQ(RulerFont(2).Size, 16);
  EXPECT_EQ(RulerFont(2).Name, "Arial");
  EXPECT_TRUE(RulerFont(2).Bold);
}

TEST_F(RulersTest, NumbersStandInTheMiddleOfTheirMarks) {
  SetPage(4000, 0);
  const RecordingSurface surface = Horizontal(2, 2);
  const double width = measurer_.Measure(RulerFont(2), "1 in").Width;
  EXPECT_TRUE(HasLine(surface, "text " + FormatNumber(2880 - width / 2) + " 220 1 in"));
}

TEST_F(RulersTest, NumbersBesideABodyStandLevelWithTheirMarks) {
  test::AddSubsection(document_, "[DATA]", 0, 3000);
  const double height = measurer_.Measure(RulerFont(2), "1K").Height;
  EXPECT_TRUE(HasLine(Vertical(1, 2), "text 250 " + FormatNumber(4000 - height / 2) + " 2K"));
}

TEST_F(RulersTest, NumbersNeverTouchAndStandInside) {
  const auto expectApart = [](const RecordingSurface& surface, bool vertical, double length) {
    double end = -1;
    for (const std::string& line : surface.Only("rect")) {
      double left = 0, top = 0, right = 0, bottom = 0;
      ASSERT_EQ(std::sscanf(line.c_str(), "rect %lf %lf %lf %lf", &left, &top, &right, &bottom), 4);
      if ((vertical ? left : top) != 220) continue;
      EXPECT_GT(vertical ? top : left, end) << line;
      end = vertical ? bottom : right;
    }
    EXPECT_GT(end, 0);
    EXPECT_LE(end, length);
  };
  test::AddSubsection(document_, "[DATA]", 0, 20000);
  for (const int mode : {1, 2, 3}) {
    for (const double zoom : {0.1, 0.25, 0.5, 0.8, 1.0, 2.0, 8.0}) {
      for (const int length : {6000, 12240, 15309, 20000}) {
        SCOPED_TRACE(std::to_string(mode) + " at " + std::to_string(zoom));
        SetPage(length, 0);
        document_.Objects[1].EndsAt = length;
        expectApart(Horizontal(mode, zoom), false, length * zoom);
        expectApart(Vertical(mode, zoom), true, length * zoom);
      }
    }
  }
}

TEST_F(RulersTest, MarksBelowAPixelAreLeftOut) {
  SetPage(6000, 0);
  const RecordingSurface surface = Horizontal(3, 0.25);
  EXPECT_FALSE(HasLine(surface, "line 14.175 50 14.175 120"));
  EXPECT_TRUE(HasLine(surface, "line 70.875 50 70.875 170"));
  EXPECT_TRUE(HasLine(surface, "line 141.75 50 141.75 250"));
}

// --- Ends
// -----------------------------------------------------------------------------------------------------

TEST_F(RulersTest, ALastNumberStandsInsideOrNotAtAll) {
  SetPage(6000, 0);
  const double width = measurer_.Measure(RulerFont(1), "6K").Width;
  EXPECT_TRUE(HasLine(Horizontal(1, 1), "text " + FormatNumber(6000 - width) + " 220 6K"));
  // Beside the number before it there is no room for a whole one.
  EXPECT_EQ(Labels(Horizontal(3, 0.5)), "0,2 cm,4 cm,6 cm,8 cm");
  EXPECT_TRUE(HasLine(Horizontal(3, 0.5), "line 2835 50 2835 250"));
}

TEST_F(RulersTest, ThousandsEndAtThirtyOne) {
  SetPage(33000, 0);
  const RecordingSurface surface = Horizontal(1, 1);
  EXPECT_TRUE(HasLine(surface, "line 31000 50 31000 400"));
  EXPECT_TRUE(HasLine(surface, "line 31500 50 31500 220"));
  EXPECT_TRUE(HasLine(surface, "line 32000 50 32000 120"));
  EXPECT_TRUE(HasLine(surface, "line 32500 50 32500 120"));
  EXPECT_TRUE(HasLine(surface, "line 33000 50 33000 120"));
  EXPECT_TRUE(Labels(surface).ends_with(",30K,31K"));
}

TEST_F(RulersTest, InchesAndCentimetresGoOn) {
  SetPage(100000, 0);
  EXPECT_TRUE(Labels(Horizontal(2, 1)).ends_with(",68 in,69 in"));
  EXPECT_TRUE(HasLine(Horizontal(3, 1), "line 99792 50 99792 250"));
}

TEST_F(RulersTest, TheLastMarkIsThePagesEndInWholeSteps) {
  SetPage(567 * 7, 0);
  EXPECT_TRUE(HasLine(Horizontal(3, 1), "line 3969 50 3969 250"));
  SetPage(567 * 7 - 1, 0);
  EXPECT_FALSE(HasLine(Horizontal(3, 1), "line 3969 50 3969 250"));
}

TEST_F(RulersTest, ZeroIsTheLeftMargin) {
  SetPage(1200, 300);
  const RecordingSurface surface = Horizontal(1, 2);
  EXPECT_TRUE(HasLine(surface, "canvas 3000 615"));
  EXPECT_TRUE(HasLine(surface, "scaleleft -600"));
  EXPECT_TRUE(HasLine(surface, "rect -600 0 2400 615 FFFFFF filled"));
  EXPECT_TRUE(HasLine(surface, "text 0 220 0"));
  EXPECT_TRUE(HasLine(surface, "line 2000 50 2000 400"));
}

TEST_F(RulersTest, TheBaseReachesThePagesEndAtAnyZoom) {
  SetPage(12000, 0);
  EXPECT_TRUE(HasLine(Horizontal(1, 1), "line 0 50 50000 50"));
  EXPECT_TRUE(HasLine(Horizontal(1, 8), "line 0 50 96000 50"));
}

TEST_F(RulersTest, APageWithoutWidthHasItsZero) {
  SetPage(0, 0);
  EXPECT_EQ(Labels(Horizontal(1, 1)), "0");
}

// --- Parts
// ----------------------------------------------------------------------------------------------------

TEST_F(RulersTest, EachBodyHasAPartFromTopToBottom) {
  const int lower = test::AddSubsection(document_, "[FOOTER]", 1200, 300);
  const int upper = test::AddSubsection(document_, "[DATA]", 0, 600);
  test::AddRow(document_, ObjectKind::Section, "0", 3000, 100000, 400);
  test::AddRow(document_, ObjectKind::Box, "0", 500, 100, 100);
  EXPECT_EQ(Plan(1).Parts, (std::vector<RulerPart>{{upper, 400, 600}, {lower, 1600, 300}}));
  EXPECT_EQ(Plan(2).Parts, (std::vector<RulerPart>{{upper, 800, 1200}, {lower, 3200, 600}}));
}

TEST_F(RulersTest, ABodyWithoutHeightHasNoPart) {
  test::AddSubsection(document_, "[DATA]", 0, 0);
  EXPECT_TRUE(Plan(1).Parts.empty());
}

TEST_F(RulersTest, TheGroundIsAsHighAsItsBody) {
  test::AddSubsection(document_, "[DATA]", 0, 20000);
  const RulerPlan plan = Plan(1.5);
  EXPECT_TRUE(
      HasLine(Vertical(1, 1.5), "rect 0 0 " + FormatNumber(plan.ColumnWidth) + " 30000 FFFFFF filled"));
}

TEST_F(RulersTest, RulersHaveRoomForTheirNumbersInEachUnit) {
  test::AddSubsection(document_, "[DATA]", 0, 800000);
  for (const double zoom : {0.25, 1.0, 2.0}) {
    const RulerPlan plan = Plan(zoom);
    EXPECT_EQ(std::fmod(plan.RowHeight, 15), 0);
    EXPECT_EQ(std::fmod(plan.ColumnWidth, 15), 0);
    EXPECT_GE(plan.RowHeight, 400);
    for (const char* widest : {"31K", "555 in", "1410 cm"}) {
      const TextExtent extent = measurer_.Measure(plan.Font, widest);
      EXPECT_GT(plan.ColumnWidth, 250 + extent.Width) << widest;
      EXPECT_GT(plan.RowHeight, 220 + extent.Height) << widest;
    }
  }
}

TEST_F(RulersTest, ASpanHoldsAllThatLiesInItAndLittleMore) {
  test::AddSubsection(document_, "[DATA]", 0, 800000);
  const RecordingSurface whole = Vertical(3, 1);
  const RecordingSurface some = Vertical(3, 1, {400000, 401000});
  EXPECT_GT(whole.Lines.size(), 14000U);
  EXPECT_LT(some.Lines.size(), 100U);
  for (const std::string& line : whole.Only("line")) {
    double x = 0, y = 0;
    ASSERT_EQ(std::sscanf(line.c_str(), "line %lf %lf", &x, &y), 2);
    const bool wanted = y >= 400000 && y <= 401000;
    EXPECT_TRUE(!wanted || HasLine(some, line)) << line;
  }
  EXPECT_EQ(some.Lines[3], whole.Lines[3]);
}

TEST_F(RulersTest, AnAbsurdlyHighBodyIsNoWorkForASpan) {
  test::AddSubsection(document_, "[DATA]", 0, 2'000'000'000);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_LT(Vertical(3, 8, {1e9, 1e9 + 15000}).Lines.size(), 300U);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_LT(taken.count(), 1);
}

}  // namespace
}  // namespace kev
