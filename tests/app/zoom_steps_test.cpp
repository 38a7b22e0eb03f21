// SPDX-License-Identifier: MIT
#include "app/zoom_steps.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

TEST(ZoomSteps, GoToTheNextEntryOfTheList) {
  EXPECT_EQ(ZoomStepUp(100), 120);
  EXPECT_EQ(ZoomStepDown(100), 80);
  EXPECT_EQ(ZoomStepUp(76), 80);
  EXPECT_EQ(ZoomStepDown(133), 120);
}

TEST(ZoomSteps, StayAtTheEnds) {
  EXPECT_EQ(ZoomStepUp(200), 200);
  EXPECT_EQ(ZoomStepUp(640), 640);
  EXPECT_EQ(ZoomStepDown(25), 25);
  EXPECT_EQ(ZoomStepDown(12), 12);
}

TEST(ZoomSteps, ComeBackFromBeyondTheList) {
  EXPECT_EQ(ZoomStepDown(640), 200);
  EXPECT_EQ(ZoomStepUp(12), 25);
}

}  // namespace
}  // namespace kev
