// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/column_page.h"
#include "surface/gesture.h"

namespace kev {
namespace {

class ColumnDragTest : public test::ColumnPageTest {
 protected:
  ColumnDragTest() {
    SetColumns({{"$a", 1000, ""}, {"$b", 3000, ""}, {"$c", 5000, ""}, {}, {"$d", 3000, ""}});
  }
  // Pressed at the line's own place, moved and let go.
  void Drag(int slot, double to, int shift = 0) {
    PageWork work = Work();
    const CanvasPoint from{RoundToEven(zoom_ * document_.Columns[slot].Position), 400};
    const std::unique_ptr<Gesture> drag = BeginColumnDrag(work, slot, from);
    ASSERT_NE(drag, nullptr);
    drag->Move(work, {to, 500});
    drag->End(work, shift);
  }
  double PositionOf(int slot) const { return document_.Columns[slot].Position; }
};

TEST_F(ColumnDragTest, StartsOnUsedColumnsOnly) {
  PageWork work = Work();
  for (const int slot : {-1, 0, 4, 101})
    EXPECT_EQ(BeginColumnDrag(work, slot, {0, 0}), nullptr) << slot;
  EXPECT_FALSE(pointer_.ColumnDrag);
  EXPECT_TRUE(surface_.Lines.empty());
}

TEST_F(ColumnDragTest, BothGuidesAppearAtTheLine) {
  PageWork work = Work();
  const auto drag = BeginColumnDrag(work, 1, {1012, 400});
  EXPECT_EQ(surface_.Only("place"), (std::vector<std::string>{"place indicatorX 1000 0 15 9000",
                                                              "place indicatorX2 1000 0 15 9000"}));
  EXPECT_TRUE(surface_.Has("show indicatorX"));
  EXPECT_TRUE(surface_.Has("show indicatorX2"));
  EXPECT_TRUE(pointer_.ColumnDrag);
  EXPECT_EQ(pointer_.MenuAt.Slot, 1);
}

TEST_F(ColumnDragTest, TheGuidesKeepTheirDistanceFromThePointer) {
  PageWork work = Work();
  const auto drag = BeginColumnDrag(work, 1, {1012, 400});
  surface_.Take();
  drag->Move(work, {1512, 450});
  EXPECT_TRUE(surface_.Has("place indicatorX 1500 0 15 9000"));
  EXPECT_TRUE(surface_.Has("place indicatorX2 1500 0 15 9000"));
  EXPECT_TRUE(surface_.Has("place indicatorCOLUMN 1600 450 "));
  EXPECT_TRUE(surface_.Has("say indicatorCOLUMN $a = 1500  "));
  EXPECT_TRUE(surface_.Has("show indicatorCOLUMN"));
  EXPECT_FALSE(surface_.Has("place linecolumn"));
}

TEST_F(ColumnDragTest, TheListShowsTheTextOfTheCaption) {
  zoom_ = 2;
  PageWork work = Work();
  const auto drag = BeginColumnDrag(work, 1, {2000, 400});
  drag->Move(work, {2511, 400});
  EXPECT_EQ(services_.List.Text, "$a = 1256  ");
  drag->Move(work, {2501, 400});
  EXPECT_EQ(services_.List.Text, "$a = 1250  ");
}

TEST_F(ColumnDragTest, MovesLeaveTheDocumentAlone) {
  const ColumnTable before = document_.Columns;
  PageWork work = Work();
  const auto drag = BeginColumnDrag(work, 1, {1000, 400});
  drag->Move(work, {1700, 400});
  EXPECT_EQ(document_.Columns, before);
  EXPECT_TRUE(services_.Calls.empty());
}

TEST_F(ColumnDragTest, TheSnapshotComesBeforeTheChangeAndTheRepaintBehindIt) {
  double pushedAt = 0;
  services_.OnPush = [&] { pushedAt = PositionOf(1); };
  Drag(1, 1730);
  EXPECT_EQ(pushedAt, 1000);
  EXPECT_EQ(PositionOf(1), 1700);
  EXPECT_EQ(services_.Calls, (std::vector<std::string>{"push", "repaint"}));
}

TEST_F(ColumnDragTest, EndsWithoutGuidesAndCaption) {
  Drag(1, 1730);
  for (const char* line : {"place indicatorX -3000 ", "place indicatorX2 -3000 ", "hide indicatorX",
                           "hide indicatorX2", "hide indicatorCOLUMN", "place linecolumn(1) 1700 "})
    EXPECT_TRUE(surface_.Has(line)) << line;
  EXPECT_FALSE(pointer_.ColumnDrag);
  EXPECT_EQ(services_.List.Text, "$a = 1700");
}

TEST_F(ColumnDragTest, OnThePageItSnapsToWholeHundredsOfTwips) {
  zoom_ = 2;
  Drag(1, 2730);
  EXPECT_EQ(PositionOf(1), 1400);
}

TEST_F(ColumnDragTest, OnThePageTheStepIsRounded) {
  zoom_ = 0.333;
  Drag(1, 500);
  // 15 steps of 33 are nearest; 495 / 0.333 is 1486.49.
  EXPECT_EQ(PositionOf(1), 1486);
}

TEST_F(ColumnDragTest, OnTheRulerItSnapsToHundredsOfTheCanvas) {
  zoom_ = 2;
  pointer_.OverRuler = true;
  Drag(1, 2530);
  EXPECT_EQ(PositionOf(1), 1250);
}

TEST_F(ColumnDragTest, OnItsOwnLineItTakesASnappedPositionForAPlace) {
  zoom_ = 2;
  pointer_.OverLine = 1;
  Drag(1, 2530);
  // Round(2530 / 2) snaps to 1300, which is 650 twips.
  EXPECT_EQ(PositionOf(1), 650);
}

TEST_F(ColumnDragTest, OnItsOwnLineAndOnTheRulerItAgreesWithThePageAtFullSize) {
  pointer_.OverLine = 1;
  Drag(1, 1730);
  EXPECT_EQ(PositionOf(1), 1700);
  pointer_.OverLine = 0;
  pointer_.OverRuler = true;
  Drag(1, 2250);
  EXPECT_EQ(PositionOf(1), 2300);
}

TEST_F(ColumnDragTest, AnotherColumnsLineIsThePage) {
  zoom_ = 2;
  pointer_.OverLine = 2;
  Drag(1, 2730);
  EXPECT_EQ(PositionOf(1), 1400);
}

TEST_F(ColumnDragTest, FarOutsideTheStepsEndBehindTheLast) {
  Drag(1, 999999);
  EXPECT_EQ(PositionOf(1), 20100);
  Drag(1, -999999);
  EXPECT_EQ(PositionOf(1), -20100);
}

TEST_F(ColumnDragTest, WithShiftAllColumnsFromTheOldPlaceOnFollow) {
  Drag(2, 3500, kShiftKey);
  EXPECT_EQ(Columns(), "$a=1000 $b=3500 $c=5500 $d=3500");
}

TEST_F(ColumnDragTest, WithoutShiftTheOthersStay) {
  Drag(2, 3500, kCtrlKey);
  EXPECT_EQ(Columns(), "$a=1000 $b=3500 $c=5000 $d=3000");
}

TEST_F(ColumnDragTest, ShiftMixesCanvasUnitsAndTwips) {
  zoom_ = 2;
  Drag(2, 7000, kShiftKey);
  // 7000 is 1000 canvas units beyond 6000: (5000 + 1000) / 2 and (3000 + 1000) / 2.
  EXPECT_EQ(Columns(), "$a=1000 $b=3500 $c=3000 $d=2000");
}

TEST_F(ColumnDragTest, ShiftDoesNothingOnTheRulerAndOnTheLine) {
  pointer_.OverRuler = true;
  Drag(2, 3500, kShiftKey);
  EXPECT_EQ(Columns(), "$a=1000 $b=3500 $c=5000 $d=3000");
  pointer_.OverRuler = false;
  pointer_.OverLine = 2;
  Drag(2, 4000, kShiftKey);
  EXPECT_EQ(Columns(), "$a=1000 $b=4000 $c=5000 $d=3000");
}

TEST_F(ColumnDragTest, ANameInUseTwiceMovesOnlyTheDraggedSlot) {
  SetColumns({{"$a", 1000, ""}, {"$a", 2000, ""}});
  Drag(2, 2500);
  EXPECT_EQ(Columns(), "$a=1000 $a=2500");
}

TEST_F(ColumnDragTest, GivingUpChangesNothing) {
  const ColumnTable before = document_.Columns;
  pointer_.ColumnText = "as it was";
  PageWork work = Work();
  const auto drag = BeginColumnDrag(work, 1, {1000, 400});
  drag->Move(work, {1700, 400});
  drag->Cancel(work);
  EXPECT_EQ(document_.Columns, before);
  EXPECT_TRUE(services_.Calls.empty());
  EXPECT_FALSE(pointer_.ColumnDrag);
  EXPECT_EQ(services_.List.Text, "as it was");
  for (const char* line : {"hide indicatorX", "hide indicatorX2", "hide indicatorCOLUMN"})
    EXPECT_TRUE(surface_.Has(line)) << line;
  EXPECT_FALSE(surface_.Has("place linecolumn"));
}

}  // namespace
}  // namespace kev
