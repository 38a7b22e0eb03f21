// SPDX-License-Identifier: MIT
#include "app/quick_place.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kev {

void PrintTo(QuickPlace place, std::ostream* out) {
  *out << place.Left << ", " << place.Top;
}

namespace {

constexpr QuickSize kPanel{300, 200};
constexpr QuickSize kRoom{800, 600};

TEST(QuickPanelPlace, IsMovedIntoTheArea) {
  EXPECT_EQ(PlaceInside({100, 50}, kPanel, kRoom), (QuickPlace{100, 50}));
  EXPECT_EQ(PlaceInside({-20, -1}, kPanel, kRoom), (QuickPlace{0, 0}));
  EXPECT_EQ(PlaceInside({501, 900}, kPanel, kRoom), (QuickPlace{500, 400}));
  EXPECT_EQ(PlaceInside({100, 50}, kPanel, {200, 100}), (QuickPlace{0, 0}));
}

TEST(QuickPanelPlace, IsAtFirstTheCornerAtTheRightBelow) {
  EXPECT_EQ(PlaceBeside({}, {}, kPanel, kRoom), (QuickPlace{490, 390}));
  EXPECT_EQ(PlaceBeside(QuickArea{10, 10, 400, 500}, {}, kPanel, kRoom), (QuickPlace{490, 390}));
}

TEST(QuickPanelPlace, LeavesTheObjectFree) {
  EXPECT_EQ(PlaceBeside(QuickArea{600, 500, 640, 510}, {}, kPanel, kRoom), (QuickPlace{490, 10}));
  EXPECT_EQ(PlaceBeside(QuickArea{600, 50, 640, 500}, {}, kPanel, kRoom), (QuickPlace{10, 390}));
  EXPECT_EQ(PlaceBeside(QuickArea{20, 50, 800, 60}, QuickPlace{490, 10}, kPanel, kRoom),
            (QuickPlace{490, 390}));
  // There is nowhere to go.
  EXPECT_EQ(PlaceBeside(QuickArea{0, 0, 800, 600}, {}, kPanel, kRoom), (QuickPlace{490, 390}));
}

TEST(QuickPanelPlace, StaysAsLongAsItIsInNobodysWay) {
  EXPECT_EQ(PlaceBeside(QuickArea{600, 50, 640, 60}, QuickPlace{10, 10}, kPanel, kRoom),
            (QuickPlace{10, 10}));
  // The window has become smaller.
  EXPECT_EQ(PlaceBeside({}, QuickPlace{490, 390}, kPanel, {600, 600}), (QuickPlace{290, 390}));
}

}  // namespace
}  // namespace kev
