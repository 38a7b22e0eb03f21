// SPDX-License-Identifier: MIT
#include "surface/resize_drag.h"

#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class Resize : public GestureTest {};
class ResizeAtZoom : public GestureAtZoom {};
INSTANTIATE_TEST_SUITE_P(Zoom, ResizeAtZoom, EachZoom(), PercentOf);

TEST_P(ResizeAtZoom, TheRightHandleTakesTheWidth) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragHandle(row, 4, 300, 500);
  EXPECT_EQ(At(row).Width, 1100);
  EXPECT_EQ(At(row).Height, 600);
  EXPECT_EQ(X(row), "1000");
  EXPECT_EQ(Y(row), 1000);
}

TEST_P(ResizeAtZoom, TheBottomHandleTakesTheHeight) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragHandle(row, 6, 300, 500);
  EXPECT_EQ(At(row).Width, 800);
  EXPECT_EQ(At(row).Height, 1100);
}

TEST_P(ResizeAtZoom, TheCornerHandleTakesBoth) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragHandle(row, 5, 300, -100);
  EXPECT_EQ(At(row).Width, 1100);
  EXPECT_EQ(At(row).Height, 500);
}

TEST_P(ResizeAtZoom, TheFrameFollowsThePointer) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginResize(work, 5, {0, 0});
  ASSERT_NE(gesture, nullptr);
  EXPECT_TRUE(pointer.ResizeDrag);
  for (const char* line : {"show lnh01", "show lnh02", "show lnv01", "show lnv02", "show dot_5"})
    EXPECT_TRUE(surface.Has(line)) << line;
  surface.Lines.clear();
  gesture->Move(work, {50, 70});
  EXPECT_TRUE(OnlyWidgets());
  const double z = zoomFactor;
  const auto placed = [&](std::string name, double left, double top, double width, double height) {
    for (const double number : {left, top, width, height})
      name += ' ' + FormatNumber(number);
    return surface.Has("place " + name);
  };
  EXPECT_TRUE(placed("lnh01", 1000 * z, 1000 * z, 800 * z + 50, 15));
  EXPECT_TRUE(placed("lnh02", 1000 * z, 1600 * z + 70, 800 * z + 50, 15));
  EXPECT_TRUE(placed("lnv01", 1000 * z, 1000 * z, 15, 600 * z + 70));
  EXPECT_TRUE(placed("lnv02", 1800 * z + 50, 1000 * z, 15, 600 * z + 70));
  EXPECT_TRUE(placed("dot_5", 1800 * z + 50, 1600 * z + 70, 105, 105));
}

TEST_P(ResizeAtZoom, ASideStaysLongerThanTenUnits) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginResize(work, 5, {0, 0});
  ASSERT_NE(gesture, nullptr);
  const double width = 800 * zoomFactor, height = 600 * zoomFactor;
  gesture->Move(work, {20 - width, 30 - height});
  gesture->Move(work, {10 - width, 10 - height});
  gesture->Move(work, {-5000, -5000});
  pointer.LastX = pointer.LastY = -5000;
  gesture->End(work, 0);
  EXPECT_EQ(At(row).Width, 20 / zoomFactor);
  EXPECT_EQ(At(row).Height, 30 / zoomFactor);
}

TEST_F(Resize, TheSidesAreGuardedEachForItself) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragHandle(row, 5, -5000, 100);
  EXPECT_GT(At(row).Width, 10);
  EXPECT_LE(At(row).Width, 800);
  EXPECT_EQ(At(row).Height, 700);
}

TEST_P(ResizeAtZoom, ACircleStaysACircle) {
  for (const int handle : {4, 5, 6}) {
    const int row = Add(ObjectKind::Circle, "1000", 1000, 800, 800);
    DragHandle(row, handle, handle == 6 ? 50 : 300, handle == 6 ? 300 : 50);
    EXPECT_EQ(At(row).Width, 1100) << handle;
    EXPECT_EQ(At(row).Height, 1100) << handle;
  }
}

TEST_F(Resize, ACircleFromAFileWithTwoSizesBecomesSquareByItsWidth) {
  const int row = Add(ObjectKind::Circle, "1000", 1000, 1000, 500);
  DragHandle(row, 4, 200, 0);
  EXPECT_EQ(At(row).Width, 1200);
  EXPECT_EQ(At(row).Height, 1200);
}

TEST_P(ResizeAtZoom, ALineTakesItsOtherEndAlong) {
  const int row = Add(ObjectKind::Line, "1000", 1000, 2500, 50);
  DragHandle(row, 4, 300, 0);
  EXPECT_EQ(X(row), "1000");
  EXPECT_EQ(At(row).X2Value, "3800");
  EXPECT_EQ(At(row).Width, 2800);
}

TEST_F(Resize, ALineOnAColumnKeepsItsStartOnIt) {
  document.Columns[1] = {"$Col_01", 1200, {}};
  const int row = Add(ObjectKind::Line, "$Col_01", 1000, 2500, 50);
  DragHandle(row, 4, 300, 0);
  EXPECT_EQ(X(row), "$Col_01");
  EXPECT_EQ(At(row).X2Value, "4000");
}

TEST_F(Resize, ALineDrawnBackwardsKeepsItsLeftEnd) {
  const int row = Add(ObjectKind::Line, "3500", 1000, -2500, 50);
  DragHandle(row, 4, 300, 0);
  EXPECT_EQ(X(row), "3800");
  EXPECT_EQ(At(row).X2Value, "1000");
  EXPECT_EQ(At(row).Width, -2800);
}

TEST_F(Resize, ANegativeHeightKeepsItsTop) {
  const int row = Add(ObjectKind::Picture, "1000", 2000, 800, -600);
  DragHandle(row, 6, 0, 100);
  EXPECT_EQ(At(row).Height, -700);
  EXPECT_EQ(Y(row), 2100);
}

TEST_F(Resize, OfAPictureFixesTheSideThatWasTaken) {
  struct Case {
    int Handle;
    Flag Width, Height;
  };
  for (const Case& each : {Case{4, kTrue, kFalse}, {6, kFalse, kTrue}, {5, kTrue, kTrue}}) {
    const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
    DragHandle(row, each.Handle, 100, 100);
    EXPECT_EQ(At(row).PictureFixedWidth, each.Width) << each.Handle;
    EXPECT_EQ(At(row).PictureFixedHeight, each.Height) << each.Handle;
  }
}

TEST_F(Resize, OfABoxFixesNothing) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  DragHandle(row, 5, 100, 100);
  EXPECT_EQ(At(row).PictureFixedWidth, kFalse);
  EXPECT_EQ(At(row).PictureFixedHeight, kFalse);
}

class SnappedResize : public GestureTest, public testing::WithParamInterface<ObjectKind> {};
INSTANTIATE_TEST_SUITE_P(Kinds, SnappedResize,
                         testing::Values(ObjectKind::Box, ObjectKind::TextBox, ObjectKind::Chart,
                                         ObjectKind::Picture));

TEST_P(SnappedResize, SnapsBothSizes) {
  const int row = Add(GetParam(), "1000", 1000, 800, 590);
  At(row).MayResize = kTrue;
  At(row).AlignToGrid = 1;
  DragHandle(row, 4, 310, 0);
  EXPECT_EQ(At(row).Width, 1200);
  EXPECT_EQ(At(row).Height, 600);
}

TEST_F(Resize, ASnappedSizeIsAtLeastOneStep) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  At(row).AlignToGrid = 1;
  DragHandle(row, 4, -750, 0);
  EXPECT_EQ(At(row).Width, 200);
  const int circle = Add(ObjectKind::Circle, "1000", 1000, 800, 800);
  At(circle).AlignToGrid = 1;
  DragHandle(circle, 6, 0, -750);
  EXPECT_EQ(At(circle).Width, 200);
  EXPECT_EQ(At(circle).Height, 200);
}

TEST_F(Resize, OfALineTheOtherEndSnaps) {
  const int row = Add(ObjectKind::Line, "1050", 1000, 2500, 50);
  At(row).AlignToGrid = 1;
  DragHandle(row, 4, 200, 0);
  EXPECT_EQ(At(row).X2Value, "3800") << "3750 lies nearer to 3800 than to 3600";
  EXPECT_EQ(At(row).Width, 2750);
  EXPECT_EQ(At(row).Height, 50);
  DragHandle(row, 4, -2700, 0);
  EXPECT_EQ(At(row).X2Value, "1250") << "it stays one step long";
}

TEST_F(Resize, SizesBeyondTwoHundredStepsSnapToTheLast) {
  document.Settings[Setting::Spacing] = "10";
  const int row = Add(ObjectKind::Box, "1000", 1000, 2990, 600);
  At(row).AlignToGrid = 1;
  DragHandle(row, 4, 100, 0);
  EXPECT_EQ(At(row).Width, 2010);
}

TEST_F(Resize, TakesItsSnapshotAtTheEnd) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginResize(work, 4, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {100, 0});
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_EQ(At(row).Width, 800);
  pointer.LastX = 100;
  pointer.LastY = 0;
  gesture->End(work, 0);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "repaint"}));
  EXPECT_EQ(services.Levels[0].Objects[row].Width, 800);
  EXPECT_FALSE(services.GestureOnWhileRepainting);
}

TEST_F(Resize, GivenUpLeavesTheSize) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginResize(work, 4, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {100, 0});
  gesture->Cancel(work);
  EXPECT_EQ(At(row).Width, 800);
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_FALSE(pointer.InGesture());
}

TEST_F(Resize, ATextBoxFromAFileMayBeResized) {
  EXPECT_EQ(DefaultsOf(ObjectKind::TextBox).mayResize, kTrue);
  const int row = Add(ObjectKind::TextBox, "1000", 1000, 800, 285);
  DragHandle(row, 6, 0, 100);
  EXPECT_EQ(At(row).Height, 385);
}

TEST(HandleActs, OnlyOnTheRightAndBottomOfWhatMayBeResized) {
  ObjectRecord record;
  record.Kind = ObjectKind::Box;
  record.MayResize = kTrue;
  for (int handle = 1; handle <= 8; ++handle)
    EXPECT_EQ(HandleActs(record, handle), handle >= 4 && handle <= 6) << handle;
  record.MayResize = kFalse;
  for (int handle = 1; handle <= 8; ++handle)
    EXPECT_FALSE(HandleActs(record, handle)) << handle;
}

TEST(HandleActs, ALabelHasTheHeightOfItsText) {
  ObjectRecord record;
  record.Kind = ObjectKind::Label;
  record.MayResize = kTrue;
  EXPECT_TRUE(HandleActs(record, 4));
  EXPECT_FALSE(HandleActs(record, 5));
  EXPECT_FALSE(HandleActs(record, 6));
}

TEST(HandleActs, TheCornerOnlyOfFiveKinds) {
  ObjectRecord record;
  record.MayResize = kTrue;
  for (const KindDefaults& defaults : kKindDefaults) {
    record.Kind = defaults.kind;
    const bool both = record.Kind == ObjectKind::Picture || record.Kind == ObjectKind::Box ||
                      record.Kind == ObjectKind::Line || record.Kind == ObjectKind::Circle ||
                      record.Kind == ObjectKind::Chart;
    EXPECT_EQ(HandleActs(record, 5), both) << KindText(record.Kind);
  }
}

TEST_F(Resize, OfAGroupOrOfNothingDoesNotStart) {
  const int row = Add(ObjectKind::Box, "1000", 1000, 800, 600);
  PageWork work = Work();
  Select(0);
  EXPECT_EQ(BeginResize(work, 4, {0, 0}), nullptr);
  Select(row);
  EXPECT_EQ(BeginResize(work, 3, {0, 0}), nullptr);
  SelectGroup({row});
  EXPECT_EQ(BeginResize(work, 4, {0, 0}), nullptr);
  EXPECT_FALSE(pointer.InGesture());
}

}  // namespace
}  // namespace kev::test
