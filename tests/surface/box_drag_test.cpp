// SPDX-License-Identifier: MIT
#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class BoxDrag : public GestureTest {};
class BoxDragAtZoom : public GestureAtZoom {};
INSTANTIATE_TEST_SUITE_P(Zoom, BoxDragAtZoom, EachZoom(), PercentOf);

TEST_P(BoxDragAtZoom, ByItsInsideLandsTheOffsetOfItsBarsTooLow) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragBox(row, 100, 100);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 1125);
  EXPECT_EQ(At(row).Y, 725);
}

TEST_P(BoxDragAtZoom, KnowsThePlaceOfTheBoxAllTheTime) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const CanvasPoint from{1100 * zoomFactor, 1100 * zoomFactor};
  const auto gesture = BeginBoxDrag(work, from);
  ASSERT_NE(gesture, nullptr);
  EXPECT_TRUE(pointer.BoxDrag);
  EXPECT_EQ(pointer.BoxDragObject, row);
  surface.Lines.clear();
  gesture->Move(work, {from.X + 30, from.Y - 45});
  EXPECT_EQ(pointer.NewLeft, 1000 * zoomFactor + 30);
  EXPECT_EQ(pointer.NewTop, 1000 * zoomFactor - 45);
  EXPECT_TRUE(OnlyWidgets());
  EXPECT_EQ(surface.Only("place lblob").size(), 4U);
}

TEST_P(BoxDragAtZoom, StartsOnTheLeftEdgeAndOtherwiseInside) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const CanvasArea area = AreaOf(At(row), document, zoomFactor);
  const double x = area.Left + 5, y = area.Top + 5;
  for (const CanvasPoint outside :
       {CanvasPoint{area.Left - 1, y}, {area.Right, y}, {x, area.Top}, {x, area.Bottom}})
    EXPECT_EQ(BeginBoxDrag(work, outside), nullptr) << outside.X << ' ' << outside.Y;
  EXPECT_FALSE(pointer.BoxDrag);
  EXPECT_NE(BeginBoxDrag(work, {area.Left, y}), nullptr);
}

TEST_F(BoxDrag, OnlyOfABoxThatIsAloneAndMayMove) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  const int picture = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  PageWork work = Work();
  Select(picture);
  EXPECT_EQ(BeginBoxDrag(work, {1100, 1100}), nullptr);
  Select(box);
  At(box).MayMoveHorizontally = At(box).MayMoveVertically = kFalse;
  EXPECT_EQ(BeginBoxDrag(work, {1100, 1100}), nullptr);
  At(box).MayMoveHorizontally = At(box).MayMoveVertically = kTrue;
  pointer.MultiSelected = true;
  EXPECT_EQ(BeginBoxDrag(work, {1100, 1100}), nullptr);
  pointer.MultiSelected = false;
  EXPECT_NE(BeginBoxDrag(work, {1100, 1100}), nullptr);
}

TEST_F(BoxDrag, MakesTheBoxCurrentAndTakesOneSnapshotFirst) {
  const int row = Add(ObjectKind::Box, "$Col_01", 1000, 800, 600);
  document.Columns[1] = {"$Col_01", 1000, {}};
  DragBox(row, 100, 100);
  EXPECT_EQ(document.Objects.CurrentObject, row);
  ASSERT_EQ(services.Pushes(), 1);
  EXPECT_EQ(services.Levels[0].Objects[row].XValue, "$Col_01");
  EXPECT_EQ(X(row), "1100") << "a drag unties from the column";
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "repaint"}));
  EXPECT_FALSE(services.GestureOnWhileRepainting);
  EXPECT_FALSE(pointer.BoxDrag);
}

TEST_F(BoxDrag, SnapsAndIsAssigned) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  DragBox(row, 90, 4000);
  EXPECT_EQ(X(row), "1000");
  EXPECT_EQ(At(row).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(row).Y, 0) << "25 lies nearer to 0";
  EXPECT_EQ(Y(row), 5000);
}

TEST_F(BoxDrag, OutsideAllBodiesSpringsBack) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragBox(row, 100, 3500);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 1000);
}

TEST_F(BoxDrag, RemembersTheLastPlaceOfTheTopBar) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragBox(row, 100, 100);
  EXPECT_EQ(pointer.LastX, 1075);
  EXPECT_EQ(pointer.LastY, 1075);
}

TEST_F(BoxDrag, GivenUpLeavesTheBoxAlone) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  const ObjectRecord before = At(row);
  const CanvasArea top = pointer.Overlay[1];
  PageWork work = Work();
  const auto gesture = BeginBoxDrag(work, {1100, 1100});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {1300, 1400});
  gesture->Cancel(work);
  EXPECT_EQ(pointer.Overlay[1], top);
  EXPECT_EQ(At(row), before);
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_FALSE(pointer.InGesture());
}

}  // namespace
}  // namespace kev::test
