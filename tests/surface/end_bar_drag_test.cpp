// SPDX-License-Identifier: MIT
#include "base/numbers.h"
#include "base/text_numbers.h"
#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class EndBarDrag : public GestureTest {
 public:
  const std::string tooShort = "box " + std::to_string(kTextSectionTooShort);
};
class EndBarDragAtZoom : public GestureAtZoom {};
INSTANTIATE_TEST_SUITE_P(Zoom, EndBarDragAtZoom, EachZoom(), PercentOf);

TEST_P(EndBarDragAtZoom, MakesTheBodyHigherAndMovesWhatLiesBelow) {
  const int above = Add(ObjectKind::Picture, "0", 1000, 500, 500);
  const int below = Add(ObjectKind::Picture, "0", 5300, 500, 500);
  DragObject(data.end, 700, 1000);
  EXPECT_EQ(At(data.bar).EndsAt, 5000);
  EXPECT_EQ(Y(data.end), 5400);
  EXPECT_EQ(At(data.end).Y, 5000);
  EXPECT_EQ(Y(above), 1000);
  EXPECT_EQ(Y(items.bar), 5600);
  EXPECT_EQ(Y(items.end), 8000);
  EXPECT_EQ(At(below).Y, 300);
  EXPECT_EQ(Y(below), 6300);
  EXPECT_EQ(At(below).OwnerName, At(items.bar).SectionName);
}

TEST_P(EndBarDragAtZoom, MakesTheBodyLower) {
  const int below = Add(ObjectKind::Picture, "0", 5300, 500, 500);
  DragObject(data.end, 0, -1000);
  EXPECT_EQ(At(data.bar).EndsAt, 3000);
  EXPECT_EQ(Y(items.bar), 3600);
  EXPECT_EQ(Y(below), 4300);
  EXPECT_EQ(At(below).OwnerName, At(items.bar).SectionName);
}

TEST_F(EndBarDrag, NeverMovesSideways) {
  Select(data.end);
  const CanvasArea start = pointer.Overlay[1];
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {500, 30});
  EXPECT_EQ(pointer.Overlay[1].Left, start.Left);
  EXPECT_EQ(pointer.Overlay[1].Top, start.Top + 30);
}

TEST_F(EndBarDrag, ABodyThatGrowsOverTheNextOneTakesNothingFromIt) {
  const int below = Add(ObjectKind::Picture, "0", 5000, 500, 500);
  DragObject(data.end, 0, 2500);
  EXPECT_EQ(At(data.bar).EndsAt, 6500);
  EXPECT_EQ(At(below).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(below).Y, 0);
  EXPECT_EQ(Y(below), 400 + 6500 + 200 + 400);
}

TEST_F(EndBarDrag, AHeightBelowZeroCountsAsNone) {
  At(data.bar).SectionCursorY = 150;
  DragObject(data.end, 0, -6000);
  EXPECT_EQ(At(data.bar).EndsAt, 0);
  EXPECT_EQ(At(data.bar).SectionCursorY, 0);
  EXPECT_EQ(Y(data.end), 400);
  EXPECT_EQ(Y(items.bar), 600);
}

TEST_F(EndBarDrag, AHeightBelowZeroIsCheckedToo) {
  const int row = Add(ObjectKind::Picture, "0", 401, 500, 500);
  DragObject(data.end, 0, -6000);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", tooShort, "bands"}));
  EXPECT_EQ(At(data.bar).EndsAt, 4000);
  EXPECT_EQ(Y(row), 401);
}

TEST_F(EndBarDrag, IsRefusedAboveTheLowestObject) {
  const int row = Add(ObjectKind::Picture, "0", 2001, 500, 500);
  const int below = Add(ObjectKind::Picture, "0", 5300, 500, 500);
  At(data.bar).SectionCursorY = 4000;
  std::vector<ObjectRecord> before;
  for (const int each : {data.bar, data.end, items.bar, items.end, row, below})
    before.push_back(At(each));
  DragObject(data.end, 0, -2400);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", tooShort, "bands"}));
  EXPECT_EQ(services.Icons, std::vector<BoxIcon>{BoxIcon::Critical});
  std::size_t at = 0;
  for (const int each : {data.bar, data.end, items.bar, items.end, row, below}) {
    EXPECT_EQ(Y(each), before[at].AbsoluteY);
    EXPECT_EQ(At(each).EndsAt, before[at].EndsAt);
    EXPECT_EQ(At(each).SectionCursorY, before[at].SectionCursorY);
    ++at;
  }
  EXPECT_EQ(services.Pushes(), 1) << "the snapshot stays";
}

TEST_F(EndBarDrag, AnObjectOnTheLastTwipStillFits) {
  const int row = Add(ObjectKind::Picture, "0", 2000, 500, 500);
  DragObject(data.end, 0, -2400);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "bands"}));
  EXPECT_EQ(At(data.bar).EndsAt, 1600);
  EXPECT_EQ(Y(row), 2000);
}

TEST_F(EndBarDrag, TheExtentFollowsWhereItEndedWithTheBody) {
  At(data.bar).SectionCursorY = 4000;
  At(items.bar).SectionCursorY = 300;
  DragObject(data.end, 0, 500);
  EXPECT_EQ(At(data.bar).SectionCursorY, 4500);
  DragObject(items.end, 0, 500);
  EXPECT_EQ(At(items.bar).SectionCursorY, 300);
}

TEST_F(EndBarDrag, FindsItsSubsectionAmongThoseOfOneName) {
  const PlacedBar twin = AddBar("[ITEMS]", 7200, 1000);
  const int first = Add(ObjectKind::Picture, "0", 6900, 500, 500);
  DragObject(twin.end, 0, -900);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "bands"}))
      << "an object of the namesake is not its own";
  EXPECT_EQ(At(twin.bar).EndsAt, 100);
  EXPECT_EQ(At(items.bar).EndsAt, 2000);
  EXPECT_EQ(Y(first), 6900);
}

TEST_F(EndBarDrag, OfNoSubsectionDoesNotStart) {
  At(data.bar).EndRow = 0;
  Select(data.end);
  PageWork work = Work();
  EXPECT_EQ(BeginObjectDrag(work, {0, 0}), nullptr);
  EXPECT_FALSE(pointer.InGesture());
}

TEST_F(EndBarDrag, TakesOneSnapshotAndEndsBeforeTheRepaint) {
  DragObject(data.end, 0, 500);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "bands"}));
  EXPECT_EQ(services.Levels[0].Objects[data.bar].EndsAt, 4000);
  EXPECT_FALSE(services.GestureOnWhileRepainting);
  EXPECT_EQ(pointer.LastX, 0);
  EXPECT_EQ(pointer.LastY, 4900);
}

TEST_P(EndBarDragAtZoom, GoesBelowThePageAndTheCanvasGrows) {
  Select(items.end);
  PageWork work = Work();
  const auto gesture = BeginObjectDrag(work, {0, 7000 * zoomFactor});
  ASSERT_NE(gesture, nullptr);
  surface.Lines.clear();
  gesture->Move(work, {0, 7900 * zoomFactor});
  EXPECT_TRUE(OnlyWidgets()) << "it still has room";
  gesture->Move(work, {0, 9000 * zoomFactor});
  const std::vector<std::string> grown = surface.Only("canvas ");
  ASSERT_EQ(grown.size(), 1U);
  EXPECT_EQ(grown[0], "canvas " + FormatNumber(12000 * zoomFactor) + ' ' + FormatNumber(10080 * zoomFactor));
  gesture->Move(work, {0, 9500 * zoomFactor});
  EXPECT_EQ(surface.Only("canvas ").size(), 1U) << "there is room again";
  gesture->Cancel(work);
  EXPECT_TRUE(
      surface.Has("canvas " + FormatNumber(12000 * zoomFactor) + ' ' + FormatNumber(8000 * zoomFactor)));
  EXPECT_EQ(services.Pushes(), 0);
}

}  // namespace
}  // namespace kev::test
