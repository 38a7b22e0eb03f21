// SPDX-License-Identifier: MIT
#include "surface/page_background.h"

#include <gtest/gtest.h>

#include "support/recording_surface.h"
#include "support/sample_page.h"

namespace kev {
namespace {

class PageBackgroundTest : public testing::Test {
 protected:
  PageBackgroundTest() {
    document_.Settings[Setting::PAPERSIZE] = "(custom)";
    document_.Settings[Setting::PAGEWIDTH] = "10000";
    document_.Settings[Setting::PAGELENGHT] = "14000";
  }
  std::string Drawn(double zoom, PageBackground background) {
    PaintContext context{
        .document = document_, .surface = surface_, .measurer = measurer_, .ZoomFactor = zoom, .images = {}};
    DrawPageBackground(context, background, SetSortKeys(document_));
    canvasWidth_ = context.canvasWidth;
    return surface_.Take();
  }

  Document document_;
  test::RecordingSurface surface_;
  BuiltInMeasurer measurer_;
  double canvasWidth_ = 0;
};

TEST_F(PageBackgroundTest, CanvasHoldsMarginPageAndRoomBelow) {
  document_.Settings[Setting::LM] = "500";
  test::AddRow(document_, ObjectKind::Box, "0", 2000, 100, 300);
  EXPECT_EQ(Drawn(2, {}),
            "canvas 21000 6600\n"
            "scaleleft -1000\n"
            "pen 7D7D7D 1 dotted\n"
            "line 19000 -1 19000 6600\n"
            "pen 787878 1\n");
  EXPECT_EQ(canvasWidth_, 21000);
}

TEST_F(PageBackgroundTest, NoMarginDrawsNoMark) {
  EXPECT_EQ(Drawn(1, {}), "canvas 10000 1000\nscaleleft 0\n");
}

TEST_F(PageBackgroundTest, GridLiesInBodiesOnly) {
  test::AddSubsection(document_, "[DATA]", 0, 600);
  test::AddSubsection(document_, "[FOOTER]", 1200, 300);
  Drawn(2, {});
  EXPECT_EQ(Drawn(2, {.GridStep = 100, .DrawGrid = true}),
            "canvas 20000 5960\n"
            "scaleleft 0\n"
            "pen 787878 1\n"
            "dots 0 800 20000 2000 200\n"
            "dots 0 3200 20000 3800 200\n");
}

TEST_F(PageBackgroundTest, DotsStayTwoPixelsApart) {
  test::AddSubsection(document_, "[DATA]", 0, 600);
  EXPECT_NE(Drawn(1, {.GridStep = 20, .DrawGrid = true}).find(" 40\n"), std::string::npos);
  EXPECT_NE(Drawn(0.25, {.GridStep = 50, .DrawGrid = true}).find(" 37.5\n"), std::string::npos);
  EXPECT_NE(Drawn(1, {.GridStep = 0, .DrawGrid = true}).find(" 200\n"), std::string::npos);
}

TEST_F(PageBackgroundTest, PaperIsTurnedByTheOrientation) {
  DocumentSettings settings;
  settings[Setting::PAPERSIZE] = "A4";
  settings[Setting::Orientation] = "1";
  const PageSize upright = PageSizeOf(settings);
  EXPECT_LT(upright.Width, upright.Height);
  settings[Setting::Orientation] = "2";
  EXPECT_EQ(PageSizeOf(settings), (PageSize{upright.Height, upright.Width}));
}

TEST_F(PageBackgroundTest, NumbersWithoutAPaperAreTurnedLikeOne) {
  document_.Settings[Setting::Orientation] = "1 - Portrait";
  EXPECT_EQ(PageSizeOf(document_.Settings), (PageSize{10000, 14000}));
  document_.Settings[Setting::Orientation] = "2 - Landscape";
  EXPECT_EQ(PageSizeOf(document_.Settings), (PageSize{14000, 10000}));
}

TEST_F(PageBackgroundTest, WholePageIsClearedThenGroundedThenPainted) {
  test::AddSubsection(document_, "[DATA]", 0, 600);
  test::AddLabel(document_, "0", 500, "x");
  PaintContext context{.document = document_, .surface = surface_, .measurer = measurer_, .images = {}};
  PaintPage(context, true, SetSortKeys(document_));
  const auto& lines = surface_.Lines;
  ASSERT_GT(lines.size(), 6U);
  EXPECT_EQ(lines[0], "clear");
  EXPECT_EQ(lines[4], "dots 0 400 10000 1000 200");
  EXPECT_TRUE(surface_.Has("image 0 0 10000 400"));
  EXPECT_TRUE(surface_.Has("text 0 500 x"));
}

}  // namespace
}  // namespace kev
