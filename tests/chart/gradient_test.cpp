// SPDX-License-Identifier: MIT
#include "chart/gradient.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

TEST(BuildBackGround, TheSameColoursGiveOneFlatColour) {
  EXPECT_EQ(BuildBackGround(10, 20, 30, 10, 20, 30, 4), std::vector<Rgb>(4, 0x0A141E));
}

TEST(BuildBackGround, OneRowHasTheSecondColour) {
  EXPECT_EQ(BuildBackGround(0, 0, 0, 255, 128, 1, 1), std::vector<Rgb>{0xFF8001});
}

TEST(BuildBackGround, NoRowsPaintNothing) {
  EXPECT_TRUE(BuildBackGround(1, 2, 3, 4, 5, 6, 0).empty());
  EXPECT_TRUE(BuildBackGround(1, 2, 3, 4, 5, 6, -5).empty());
}

// 10/4 a row: 2.5, 5, 7.5, 10. Halves go to the even neighbour, and what was rounded is not carried on.
TEST(BuildBackGround, RoundsEachRowByItself) {
  EXPECT_EQ(BuildBackGround(0, 0, 0, 10, 0, 0, 4),
            (std::vector<Rgb>{0x020000, 0x050000, 0x080000, 0x0A0000}));
}

TEST(BuildBackGround, RunsDownwardsAsWell) {
  EXPECT_EQ(BuildBackGround(255, 255, 255, 0, 0, 0, 3), (std::vector<Rgb>{0xAAAAAA, 0x555555, 0x000000}));
}

TEST(BuildBackGround, TheLastOfManyRowsIsTheSecondColour) {
  for (const int rows : {2, 3, 7, 100, 997})
    EXPECT_EQ(BuildBackGround(3, 250, 77, 211, 4, 78, rows).back(), 0xD3044EU) << rows;
}

TEST(GradientOf, ReadsSixNumbersAndBringsThemIntoTheirRange) {
  EXPECT_EQ(GradientOf("1,2,3,4,5,6"), (std::array<int, 6>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(GradientOf(" 300, -5 ,x,,12.6"), (std::array<int, 6>{255, 0, 0, 0, 13, 0}));
  EXPECT_EQ(GradientOf(""), (std::array<int, 6>{255, 255, 255, 255, 255, 255}));
}

TEST(ChartColourOf, CountsWhatIsNoNumberAsNothing) {
  EXPECT_EQ(ChartColourOf("200,56,17"), 0xC83811U);
  EXPECT_EQ(ChartColourOf("nan,1e400,256"), 0x0000FFU);
  EXPECT_EQ(ChartColourOf(""), 0x000000U);
}

}  // namespace
}  // namespace kev
