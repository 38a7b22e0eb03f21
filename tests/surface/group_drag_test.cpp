// SPDX-License-Identifier: MIT
#include "support/page_fixture.h"

namespace kev {
namespace {

class GroupDragTest : public test::PageFixture {
 protected:
  GroupDragTest() {
    one_ = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
    two_ = Add(ObjectKind::Picture, "3000", 3000, 500, 500);
    Open();
  }

  int one_ = 0, two_ = 0;
};

TEST_F(GroupDragTest, FrameStandsOnTheBoundsAndFollowsThePointer) {
  Group({one_, two_});
  Press(2000, 2000);
  Move(2100, 2300);
  EXPECT_TRUE(Pointer().GroupDrag);
  EXPECT_TRUE(page_.surface.Has("place lnh01 1000 1000 2500 15"));
  EXPECT_EQ(PlaceOf("lnh01"), "1100 1300 2500 15");
  EXPECT_EQ(PlaceOf("lnh02"), "1100 3800 2500 15");
  EXPECT_EQ(PlaceOf("lnv01"), "1100 1300 15 2500");
  EXPECT_EQ(PlaceOf("lnv02"), "3600 1300 15 2500");
  for (const char* name : {"lnh01", "lnh02", "lnv01", "lnv02"})
    EXPECT_TRUE(Shown(name)) << name;
  EXPECT_EQ(Record(one_).XValue, "1000") << "nothing moves before the end";
  EXPECT_EQ(page_.Repaints, 0);
}

TEST_F(GroupDragTest, MovesItsRowsAtTheEndAndKeepsTheGroup) {
  const int other = AddText("2000", 2000, 500, "a");
  Open();
  Group({one_, two_});
  Drag({2000, 2000}, {2130, 2370});
  EXPECT_EQ(Record(one_).XValue, "1130");
  EXPECT_EQ(Record(one_).AbsoluteY, 1370);
  EXPECT_EQ(Record(two_).XValue, "3130");
  EXPECT_EQ(Record(two_).AbsoluteY, 3370);
  EXPECT_EQ(Record(other).XValue, "2000");
  EXPECT_EQ(Record(other).AbsoluteY, 2000);
  EXPECT_TRUE(Pointer().MultiSelected);
  EXPECT_EQ(Pointer().Bounds, (CanvasArea{1130, 1370, 3630, 3870}));
  EXPECT_FALSE(Shown("lnh01"));
}

TEST_F(GroupDragTest, OneSnapshotBeforeTheChangeAndOneRepaintBehind) {
  Group({one_, two_});
  std::string before;
  bool during = true;
  page_.OnPush = [&] { before = Record(one_).XValue; };
  page_.OnRepaint = [&] { during = Pointer().InGesture(); };
  Drag({2000, 2000}, {2130, 2370});
  EXPECT_EQ(page_.TakeCalls(), "push, repaint");
  EXPECT_EQ(before, "1000");
  EXPECT_FALSE(during);
}

TEST_F(GroupDragTest, DistanceIsDividedByTheZoomIntoWholeTwips) {
  Open(1.5);
  Group({one_, two_});
  Drag({3000, 3000}, {3100, 3200});
  EXPECT_EQ(Record(one_).XValue, "1067");
  EXPECT_EQ(Record(one_).AbsoluteY, 1133);
  EXPECT_EQ(Record(two_).XValue, "3067");
}

TEST_F(GroupDragTest, CutsRowsLooseFromTheirColumn) {
  page_.document.Columns[1] = {"$Col_01", 1000, ""};
  Record(one_).XValue = "$Col_01 + 0.4";
  Group({one_, two_});
  Drag({2000, 2000}, {2100, 2000});
  EXPECT_EQ(Record(one_).XValue, "1100");
}

TEST_F(GroupDragTest, MovesBothEndsOfALine) {
  const int line = Add(ObjectKind::Line, "4000", 4000, 1000, 50);
  Record(line).X2Value = "5000";
  Open();
  Group({one_, line});
  Drag({2000, 2000}, {2100, 2200});
  EXPECT_EQ(Record(line).XValue, "4100");
  EXPECT_EQ(Record(line).X2Value, "5100");
  EXPECT_EQ(Record(line).Width, 1000);
  EXPECT_EQ(Record(one_).X2Value, "");
}

TEST_F(GroupDragTest, NothingIsSnapped) {
  Record(one_).AlignToGrid = 1;
  Group({one_, two_});
  Drag({2000, 2000}, {2123, 2117});
  EXPECT_EQ(Record(one_).XValue, "1123");
  EXPECT_EQ(Record(one_).AbsoluteY, 1117);
}

TEST_F(GroupDragTest, RowsLeftOutsideAllBodiesSpringBackDownward) {
  Group({one_, two_});
  Drag({2000, 2000}, {2100, 1200});
  EXPECT_EQ(Record(one_).XValue, "1100");
  EXPECT_EQ(Record(one_).AbsoluteY, 1000) << "it would lie on the bar";
  EXPECT_EQ(Record(two_).AbsoluteY, 2200) << "each row for itself";
}

TEST_F(GroupDragTest, FlatGroupCanBeTakenHoldOf) {
  const int line = Add(ObjectKind::AnyLine, "5000", 5000, 800, 0);
  Open();
  Group({line});
  EXPECT_EQ(Pointer().Bounds, (CanvasArea{5000, 5000, 5800, 5075}));
  Drag({5400, 5040}, {5500, 5140});
  EXPECT_EQ(Record(line).XValue, "5100");
  EXPECT_EQ(Record(line).AbsoluteY, 5100);
}

TEST_F(GroupDragTest, NeedsAPressStrictlyInsideTheBounds) {
  Group({one_, two_});
  Press(1000, 2000);
  Move(1200, 2200);
  EXPECT_FALSE(Pointer().GroupDrag);
}

TEST_F(GroupDragTest, TakenHoldOfBesideThePageItDoesNotJump) {
  const double edge = page_.canvasWidth;
  const int wide = Add(ObjectKind::Picture, "5000", 5000, static_cast<int>(edge), 500);
  Open();
  Group({wide});
  Drag({edge + 2000, 5200}, {edge + 1900, 5200});
  EXPECT_EQ(Record(wide).XValue, "4900");
}

TEST_F(GroupDragTest, GivenUpChangesNothing) {
  Group({one_, two_});
  Press(2000, 2000);
  Move(2500, 2500);
  EXPECT_TRUE(Cancel());
  EXPECT_FALSE(Shown("lnh01"));
  EXPECT_EQ(Record(one_).XValue, "1000");
  EXPECT_EQ(page_.Pushes, 0);
  EXPECT_TRUE(Pointer().MultiSelected);
}

}  // namespace
}  // namespace kev
