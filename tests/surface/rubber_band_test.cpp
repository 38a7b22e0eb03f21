// SPDX-License-Identifier: MIT
#include "support/page_fixture.h"

namespace kev {
namespace {

class RubberBandTest : public test::PageFixture {
 protected:
  RubberBandTest() {
    one_ = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
    two_ = Add(ObjectKind::Picture, "3000", 3000, 500, 500);
    Open();
  }
  std::string Both() const { return " " + std::to_string(one_) + " " + std::to_string(two_); }
  bool LinesShown() const { return Shown("LineSelectHor01"); }

  int one_ = 0, two_ = 0;
};

TEST_F(RubberBandTest, ItsFourLinesStandOnTheRectangleFromTheAnchorToThePointer) {
  Press(5000, 5000);
  Move(4000, 4400);
  EXPECT_TRUE(Pointer().BandActive);
  EXPECT_EQ(PlaceOf("LineSelectHor01"), "4000 4400 1000 15");
  EXPECT_EQ(PlaceOf("LineSelectHor02"), "4000 5000 1000 15");
  EXPECT_EQ(PlaceOf("LineSelectVert01"), "4000 4400 15 600");
  EXPECT_EQ(PlaceOf("LineSelectVert02"), "5000 4400 15 600");
  for (const char* name : {"LineSelectHor01", "LineSelectHor02", "LineSelectVert01", "LineSelectVert02"})
    EXPECT_TRUE(Shown(name)) << name;
  Move(6000, 6000);
  EXPECT_EQ(PlaceOf("LineSelectHor01"), "5000 5000 1000 15");
}

TEST_F(RubberBandTest, SelectsWhatItTouchesAsAGroup) {
  const int current = AddText("7000", 7000, 500, "a");
  Open();
  Select(current);
  Drag({800, 800}, {3600, 3600});
  EXPECT_EQ(Members(), Both());
  EXPECT_TRUE(Pointer().MultiSelected);
  EXPECT_EQ(Pointer().Bounds, (CanvasArea{1000, 1000, 3500, 3500}));
  EXPECT_EQ(Current(), 0);
  EXPECT_FALSE(Shown("lblob(1)"));
  EXPECT_FALSE(LinesShown());
  EXPECT_EQ(SelectionText(page_.Work()), "2 selected");
  EXPECT_EQ(page_.Pushes, 0);
  EXPECT_TRUE(page_.canvas.Has("rect 1000 1000 1075 1075 0000FF"));
}

TEST_F(RubberBandTest, DrawnFromTheLowerRightSelectsTheSame) {
  Drag({3600, 3600}, {800, 800});
  EXPECT_EQ(Members(), Both());
}

TEST_F(RubberBandTest, TouchingACornerIsEnough) {
  Drag({1500, 1500}, {3000, 3000}, kShiftKey);
  EXPECT_EQ(Members(), Both());
  Pointer().MultiSelected = false;
  Drag({1501, 1501}, {3000, 3000});
  EXPECT_EQ(Current(), two_);
  EXPECT_EQ(Members(), "");
}

TEST_F(RubberBandTest, ThatCatchesExactlyOneSelectsItAlone) {
  Drag({800, 800}, {1200, 1200});
  EXPECT_EQ(Members(), "");
  EXPECT_FALSE(Pointer().MultiSelected);
  EXPECT_EQ(Current(), one_);
  EXPECT_TRUE(Shown("lblob(1)"));
  EXPECT_TRUE(Shown("dot_4"));
  EXPECT_EQ(page_.Repaints, 1);
}

TEST_F(RubberBandTest, ThatCatchesNothingEndsTheSelection) {
  Select(one_);
  Drag({5000, 5000}, {7000, 7000});
  EXPECT_EQ(Current(), 0);
  EXPECT_FALSE(Shown("lblob(1)"));
  EXPECT_EQ(Members(), "");
}

TEST_F(RubberBandTest, NarrowButLongSelects) {
  Drag({900, 800}, {1100, 2800});
  EXPECT_EQ(Current(), one_);
}

TEST_F(RubberBandTest, UnderThreeHundredBothWaysIsAClickAndHidesItsLines) {
  Press(900, 900);
  Move(1100, 1100);
  ASSERT_TRUE(LinesShown());
  Release(1100, 1100);
  EXPECT_EQ(Current(), one_) << "what is under the pointer, as by a click";
  EXPECT_FALSE(LinesShown());
  EXPECT_EQ(page_.Repaints, 0);
  EXPECT_EQ(Pointer().BandX0, 0);
  EXPECT_EQ(Pointer().BandY0, 0);
  EXPECT_FALSE(Pointer().BandActive);
}

TEST_F(RubberBandTest, ThreeHundredIsTheBoundAtAnyZoom) {
  Open(2);
  Drag({1900, 1900}, {2199, 2199});
  EXPECT_EQ(page_.Repaints, 0);
  Drag({1900, 1900}, {2200, 2199});
  EXPECT_EQ(page_.Repaints, 1);
  EXPECT_EQ(Current(), one_);
}

TEST_F(RubberBandTest, SkipsBandsAndHiddenRows) {
  Record(two_).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  Open();
  Drag({500, 200}, {8000, 9450});
  EXPECT_EQ(Current(), one_);
  page_.filter = DisplayFilter::All;
  Open();
  Drag({500, 200}, {8000, 9450});
  EXPECT_EQ(Members(), Both());
}

TEST_F(RubberBandTest, UsesTheAnchorOfLabels) {
  const int label = AddText("7000", 7000, 1000, "a");
  Record(label).Align = "R";
  Open();
  Drag({6100, 6500}, {6200, 7100});
  EXPECT_EQ(Current(), label);
}

TEST_F(RubberBandTest, MayNotStartUntilItIsAllowed) {
  Pointer().FirstClick = true;
  Pointer().BandAllowed = false;
  Drag({800, 800}, {3600, 3600});
  EXPECT_EQ(Members(), "");
  page_.AllowTimer();
  Drag({800, 800}, {3600, 3600});
  EXPECT_EQ(Members(), Both());
}

TEST_F(RubberBandTest, GivenUpChangesNothing) {
  Select(one_);
  Press(2500, 2500);
  Move(8000, 8000);
  Cancel();
  EXPECT_EQ(Current(), one_);
  EXPECT_FALSE(LinesShown());
  EXPECT_EQ(Members(), "");
}

TEST_F(RubberBandTest, IsOverBeforeThePageIsRepainted) {
  bool during = true;
  page_.OnRepaint = [&] { during = Pointer().InGesture(); };
  Drag({800, 800}, {3600, 3600});
  EXPECT_FALSE(during);
}

}  // namespace
}  // namespace kev
