// SPDX-License-Identifier: MIT
#include "app/panel_width.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

TEST(PanelWidth, IsTheOneWantedWhereBothHaveRoom) {
  EXPECT_EQ(PanelWidthWithin(3500, 15000), 3500);
  EXPECT_EQ(PanelWidthWithin(1500, 3000), 1500);
}

TEST(PanelWidth, LeavesPageAndPanelTheirLeast) {
  EXPECT_EQ(PanelWidthWithin(100, 15000), 1500);
  EXPECT_EQ(PanelWidthWithin(-900, 15000), 1500);
  EXPECT_EQ(PanelWidthWithin(20000, 15000), 13500);
}

TEST(PanelWidth, KeepsThePanelsLeastInANarrowWindow) {
  EXPECT_EQ(PanelWidthWithin(3500, 2000), 1500);
  EXPECT_EQ(PanelWidthWithin(3500, 0), 1500);
}

}  // namespace
}  // namespace kev
