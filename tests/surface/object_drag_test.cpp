// SPDX-License-Identifier: MIT
#include "base/numbers.h"
#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class ObjectDrag : public GestureTest {};
class ObjectDragAtZoom : public GestureAtZoom {};
INSTANTIATE_TEST_SUITE_P(Zoom, ObjectDragAtZoom, EachZoom(), PercentOf);

TEST_P(ObjectDragAtZoom, PutsTheObjectWhereTheOverlayWasLet) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  DragObject(row, 300, 500);
  EXPECT_EQ(X(row), "1300");
  EXPECT_EQ(Y(row), 1500);
  EXPECT_EQ(At(row).Y, 1100);
}

TEST_P(ObjectDragAtZoom, TheOverlayKeepsItsDistanceToThePointer) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const CanvasArea start = pointer.Overlay[1];
  const auto gesture = BeginObjectDrag(work, {70, 90});
  ASSERT_NE(gesture, nullptr);
  EXPECT_TRUE(pointer.ObjectDrag);
  EXPECT_EQ(pointer.DragX0, 70);
  EXPECT_EQ(pointer.DragY0, 90);
  gesture->Move(work, {71.5, 85});
  gesture->Move(work, {170, 60});
  EXPECT_EQ(pointer.Overlay[1],
            (CanvasArea{start.Left + 100, start.Top - 30, start.Right + 100, start.Bottom - 30}));
}

TEST_P(ObjectDragAtZoom, TheAnchorOfALabelDecidesItsX) {
  const int right = AddText("3000", 1000, "R", "R");
  const int centre = AddText("3000", 2000, "C", "C");
  const int left = AddText("3000", 3000, "L", "L");
  for (const int row : {right, centre, left})
    DragObject(row, 140, 0);
  EXPECT_EQ(X(right), "3140");
  EXPECT_EQ(X(centre), "3140");
  EXPECT_EQ(X(left), "3140");
}

TEST_P(ObjectDragAtZoom, ALineTakesItsOtherEndWithIt) {
  const int row = Add(ObjectKind::Line, "1000", 1000, 2500, 50);
  DragObject(row, 100, 200);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(At(row).X2Value, "3600");
  EXPECT_EQ(At(row).Width, 2500);
}

TEST_P(ObjectDragAtZoom, ALineDrawnBackwardsStaysBackwards) {
  const int row = Add(ObjectKind::Line, "3500", 1000, -2500, 50);
  DragObject(row, 100, 200);
  EXPECT_EQ(X(row), "3600");
  EXPECT_EQ(At(row).X2Value, "1100");
  EXPECT_EQ(At(row).Width, -2500);
}

TEST_P(ObjectDragAtZoom, TheLastPlaceOfTheOverlayIsRemembered) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  DragObject(row, 310, 510);
  EXPECT_EQ(pointer.LastX, 1310 * zoomFactor) << "where it was let go, before it snapped";
  EXPECT_EQ(pointer.LastY, 1510 * zoomFactor);
}

struct BoxLanding {
  double Zoom;
  const char* X;
  std::int32_t Y;
};
class BoxByItsBars : public GestureTest, public testing::WithParamInterface<BoxLanding> {};
INSTANTIATE_TEST_SUITE_P(Zoom, BoxByItsBars,
                         testing::Values(BoxLanding{0.5, "550", 1075}, BoxLanding{1, "1100", 1100},
                                         BoxLanding{2, "2200", 1113}));

TEST_P(BoxByItsBars, LandsBesideItsPlaceUnlessThePageIsShownInFullSize) {
  SetZoom(GetParam().Zoom);
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragObject(row, 100, 100);
  EXPECT_EQ(X(row), GetParam().X);
  EXPECT_EQ(Y(row), GetParam().Y);
}

TEST_F(ObjectDrag, OfABoxMovesAllFourBarsAlike) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  const auto start = pointer.Overlay;
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  ASSERT_NE(gesture, nullptr);
  surface.Lines.clear();
  gesture->Move(work, {40, 60});
  for (std::size_t bar = 1; bar <= 4; ++bar) {
    EXPECT_EQ(pointer.Overlay[bar].Left, start[bar].Left + 40);
    EXPECT_EQ(pointer.Overlay[bar].Bottom, start[bar].Bottom + 60);
  }
  EXPECT_EQ(surface.Only("place lblob").size(), 4U);
}

TEST_F(ObjectDrag, AStepOnlyPlacesAndShowsWidgets) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  ASSERT_NE(gesture, nullptr);
  surface.Lines.clear();
  for (int step = 1; step <= 20; ++step)
    gesture->Move(work, {step * 15.0, step * 15.0});
  EXPECT_TRUE(OnlyWidgets());
  EXPECT_TRUE(services.Calls.empty());
}

TEST_F(ObjectDrag, ChangesNothingBeforeItsEnd) {
  const int row = Add(ObjectKind::Picture, "$Col_01", 1000, 800, 600);
  const ObjectRecord before = At(row);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {500, 500});
  EXPECT_EQ(At(row), before);
}

TEST_F(ObjectDrag, TakesOneSnapshotOfTheRowAsItWas) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  const ObjectRecord before = At(row);
  DragObject(row, 300, 500);
  ASSERT_EQ(services.Pushes(), 1);
  EXPECT_EQ(services.Levels[0].Objects[row].XValue, before.XValue);
  EXPECT_EQ(services.Levels[0].Objects[row].AbsoluteY, before.AbsoluteY);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "repaint"}));
}

TEST_F(ObjectDrag, IsOverBeforeThePageIsPainted) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  DragObject(row, 300, 500);
  EXPECT_FALSE(services.GestureOnWhileRepainting);
  EXPECT_FALSE(pointer.ObjectDrag);
}

TEST_F(ObjectDrag, EndsWhereTheButtonWasLetGo) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {100, 100});
  pointer.LastX = 250;
  pointer.LastY = 350;
  gesture->End(work, 0);
  EXPECT_EQ(X(row), "1250");
  EXPECT_EQ(Y(row), 1350);
}

TEST_F(ObjectDrag, GivenUpLeavesEverythingAsItWas) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  Select(row);
  const auto overlay = pointer.Overlay;
  const ObjectRecord before = At(row);
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {100, 100});
  ASSERT_NE(pointer.Overlay, overlay);
  gesture->Cancel(work);
  EXPECT_EQ(pointer.Overlay[1], overlay[1]);
  EXPECT_EQ(At(row), before);
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_FALSE(pointer.InGesture());
  EXPECT_TRUE(surface.Has("place lblob(1) 1000 1000 800 600"));
}

TEST_F(ObjectDrag, BlankAlignmentKeepsX) {
  const int label = AddText("3000", 1000, "A", "");
  const int picture = Add(ObjectKind::Picture, "$Col_01", 2000, 500, 500);
  At(picture).Align.clear();
  DragObject(label, 100, 100);
  DragObject(picture, 100, 100);
  EXPECT_EQ(X(label), "3000");
  EXPECT_EQ(Y(label), 1100);
  EXPECT_EQ(X(picture), "$Col_01");
  EXPECT_EQ(Y(picture), 2100);
}

TEST_F(ObjectDrag, OnlyTextsAreAnchored) {
  const int picture = Add(ObjectKind::Picture, "3000", 1000, 500, 500);
  At(picture).Align = "R";
  const int command = Add(ObjectKind::Command, "3000", 2000, 500, 200);
  At(command).Align = "R";
  At(command).Content = "@@pagebreak";
  DragObject(picture, 100, 0);
  EXPECT_EQ(X(picture), "3100");
  DragObject(command, 100, 0);
  EXPECT_EQ(X(command), "3100");
}

TEST_F(ObjectDrag, UntiesFromTheColumn) {
  document.Columns[1] = {"$Col_01", 1200, {}};
  const int row = Add(ObjectKind::Picture, "$Col_01 + 100", 1000, 800, 600);
  DragObject(row, 50, 0);
  EXPECT_EQ(X(row), "1350");
}

TEST_P(ObjectDragAtZoom, XIsAWholeNumberOfTwips) {
  const int row = Add(ObjectKind::Picture, "1000.4", 1000, 800, 600);
  DragObject(row, 0.2, 0.3);
  EXPECT_EQ(X(row), "1001");
  EXPECT_EQ(Y(row), 1000);
}

TEST_F(ObjectDrag, OfANegativeWidthKeepsIt) {
  const int row = Add(ObjectKind::Picture, "2000", 1000, -800, -300);
  DragObject(row, 100, 200);
  EXPECT_EQ(X(row), "2100");
  EXPECT_EQ(Y(row), 1200);
  EXPECT_EQ(At(row).Width, -800);
}

TEST_F(ObjectDrag, IntoAnotherBodyChangesTheSubsection) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  DragObject(row, 0, 4100);
  EXPECT_EQ(At(row).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(row).Y, 100);
  EXPECT_EQ(Y(row), 5100);
}

TEST_F(ObjectDrag, TheLastTwipOfABodyBelongsToIt) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  DragObject(row, 0, 3400);
  EXPECT_EQ(Y(row), 4400);
  EXPECT_EQ(At(row).Y, 4000);
}

TEST_F(ObjectDrag, OutsideAllBodiesXMovesAndYSpringsBack) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  DragObject(row, 300, 3500);
  EXPECT_EQ(X(row), "1300");
  EXPECT_EQ(Y(row), 1000);
  DragObject(row, 0, -5000);
  EXPECT_EQ(Y(row), 1000);
  EXPECT_EQ(services.Pushes(), 2);
}

TEST_F(ObjectDrag, SpringsBackIntoItsOwnOfTwoSubsectionsWithOneName) {
  AddBar("[ITEMS]", 7200, 2000);
  const int row = Add(ObjectKind::Picture, "1000", 8000, 800, 600);
  DragObject(row, 100, 9000);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 8000);
}

TEST_F(ObjectDrag, SnapsXAndYInTheBody) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  DragObject(row, 90, 110);
  EXPECT_EQ(X(row), "1000") << "nearer below";
  EXPECT_EQ(At(row).Y, 800) << "710 lies nearer to 800 than to 600";
  EXPECT_EQ(Y(row), 1200);
  DragObject(row, 100, 0);
  EXPECT_EQ(X(row), "1200") << "a tie goes up";
}

TEST_F(ObjectDrag, SnapsYFromTheTopOfTheBodyItLandsIn) {
  At(items.bar).AbsoluteY = 4730;
  At(items.end).AbsoluteY = 7130;
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  At(data.bar).EndsAt = 4130;
  DragObject(row, 0, 4290);
  EXPECT_EQ(At(row).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(row).Y, 200);
  EXPECT_EQ(Y(row), 4730 + 400 + 200);
}

TEST_F(ObjectDrag, WithoutTheFlagNothingSnaps) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  DragObject(row, 90, 110);
  EXPECT_EQ(X(row), "1090");
  EXPECT_EQ(Y(row), 1110);
}

TEST_F(ObjectDrag, ASnappedYThatWouldLeaveTheBodyTakesTheStepBelow) {
  At(items.bar).EndsAt = 1950;
  At(items.end).AbsoluteY = 6950;
  const int row = Add(ObjectKind::Picture, "1000", 5000, 800, 600);
  At(row).AlignToGrid = 1;
  DragObject(row, 0, 1940);
  EXPECT_EQ(At(row).Y, 1800);
  EXPECT_EQ(Y(row), 6800);
}

TEST_F(ObjectDrag, TheGridIsTheSpacingOfTheDocument) {
  document.Settings[Setting::Spacing] = "50";
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  DragObject(row, 30, 30);
  EXPECT_EQ(X(row), "1050");
  EXPECT_EQ(Y(row), 1050);
  DragObject(row, 9950, 0);
  EXPECT_EQ(X(row), "10050") << "snapping reaches two hundred steps and one";
}

TEST_F(ObjectDrag, ASpacingBelowZeroSnapsByTheUsualStep) {
  document.Settings[Setting::Spacing] = "-30";
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  DragObject(row, 120, 0);
  EXPECT_EQ(X(row), "1200");
}

TEST_F(ObjectDrag, ALineThatSnapsKeepsItsLength) {
  const int row = Add(ObjectKind::Line, "1000", 1000, 2510, 50);
  At(row).AlignToGrid = 1;
  DragObject(row, 120, 0);
  EXPECT_EQ(X(row), "1200");
  EXPECT_EQ(At(row).X2Value, "3710");
}

TEST_F(ObjectDrag, ARowWithoutASubsectionStaysWhereItWasDropped) {
  const int row = Add(ObjectKind::Picture, "1000", 4450, 800, 600);
  At(row).OwnerName = "GONE";
  DragObject(row, 0, 60);
  EXPECT_EQ(Y(row), 4510);
}

TEST_F(ObjectDrag, GoesOnlyWhereTheRowMayGo) {
  const int row = Add(ObjectKind::Picture, "$Col_01", 1000, 800, 600);
  document.Columns[1] = {"$Col_01", 1200, {}};
  At(row).MayMoveHorizontally = kFalse;
  DragObject(row, 500, 100);
  EXPECT_EQ(X(row), "$Col_01");
  EXPECT_EQ(Y(row), 1100);
  At(row).MayMoveHorizontally = kTrue;
  At(row).MayMoveVertically = kFalse;
  DragObject(row, 500, 100);
  EXPECT_EQ(X(row), "1700");
  EXPECT_EQ(Y(row), 1100);
}

TEST_F(ObjectDrag, OfWhatMayNotMoveDoesNotStart) {
  PageWork work = Work();
  Select(data.bar);
  EXPECT_EQ(BeginObjectDrag(work, {0, 0}), nullptr);
  Select(0);
  EXPECT_EQ(BeginObjectDrag(work, {0, 0}), nullptr);
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  Select(row);
  At(row).MayMoveHorizontally = At(row).MayMoveVertically = kFalse;
  EXPECT_EQ(BeginObjectDrag(work, {0, 0}), nullptr);
  At(row).MayMoveHorizontally = At(row).MayMoveVertically = kTrue;
  SelectGroup({row});
  EXPECT_EQ(BeginObjectDrag(work, {0, 0}), nullptr);
  EXPECT_FALSE(pointer.InGesture());
}

TEST_F(ObjectDrag, OfASlantedLineMovesItWhole) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 500, -300);
  DragObject(row, 100, 200);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 1200);
  EXPECT_EQ(At(row).Width, 500);
  EXPECT_EQ(At(row).Height, -300);
}

}  // namespace
}  // namespace kev::test
