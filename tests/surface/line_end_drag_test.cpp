// SPDX-License-Identifier: MIT
#include <algorithm>

#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class LineEndDrag : public GestureTest {
 public:
  // The far end of the line, in twips.
  std::pair<double, int> EndOf(int row) {
    const ObjectRecord& record = At(row);
    return {LeftOf(record, document) + record.Width, record.AbsoluteY + record.Height};
  }
};
class LineEndDragAtZoom : public GestureAtZoom {};
INSTANTIATE_TEST_SUITE_P(Zoom, LineEndDragAtZoom, EachZoom(), PercentOf);

TEST_P(LineEndDragAtZoom, TheFirstEndMovesAndTheOtherStays) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 500, -300);
  DragLine(row, LineGrip::First, 100, 200);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 1200);
  EXPECT_EQ(At(row).Width, 400);
  EXPECT_EQ(At(row).Height, -500);
}

TEST_P(LineEndDragAtZoom, TheSecondEndMovesAndTheFirstStays) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 500, -300);
  DragLine(row, LineGrip::Second, -700, 200);
  EXPECT_EQ(X(row), "1000");
  EXPECT_EQ(Y(row), 1000);
  EXPECT_EQ(At(row).Width, -200);
  EXPECT_EQ(At(row).Height, -100);
}

TEST_P(LineEndDragAtZoom, TheWholeLineKeepsItsSizes) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 500, -300);
  DragLine(row, LineGrip::Whole, 100, 200);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 1200);
  EXPECT_EQ(At(row).Width, 500);
  EXPECT_EQ(At(row).Height, -300);
}

TEST_P(LineEndDragAtZoom, TheGripsAndTheLineBetweenThemFollow) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 500, -300);
  At(row).LineWidth = 3;
  At(row).LineFlag = kTrue;
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginLineEndDrag(work, LineGrip::First, {0, 0});
  ASSERT_NE(gesture, nullptr);
  EXPECT_TRUE(pointer.LineEndDrag);
  EXPECT_TRUE(surface.Has("show Lineaviva"));
  surface.Lines.clear();
  gesture->Move(work, {30, 60});
  const double z = zoomFactor;
  EXPECT_EQ(pointer.LineStart, (CanvasPoint{1000 * z + 30, 1000 * z + 60}));
  EXPECT_EQ(pointer.LineEnd, (CanvasPoint{1500 * z, 700 * z}));
  const auto placed = [&](std::string name, double left, double top, double width, double height) {
    for (const double number : {left, top, width, height})
      name += ' ' + FormatNumber(number);
    return surface.Has("place " + name);
  };
  EXPECT_TRUE(placed("ObjL1", 1000 * z + 30 - 45, 1000 * z + 60 - 45, 90, 90));
  EXPECT_TRUE(placed("ObjL2", 1500 * z - 45, 700 * z - 45, 90, 90));
  EXPECT_TRUE(placed("Lineaviva", 1000 * z + 30, 1000 * z + 60, 500 * z - 30, -300 * z - 60));
  const std::string line = "line " + FormatNumber(1000 * z + 30) + " " + FormatNumber(1000 * z + 60) + " " +
                           FormatNumber(1500 * z) + " " + FormatNumber(700 * z);
  const auto drawn = std::find(surface.Lines.begin(), surface.Lines.end(), line);
  ASSERT_NE(drawn, surface.Lines.end()) << "the rubber line has the pen of the row";
  EXPECT_EQ(*(drawn - 1), "pen 000000 3 dotted");
  EXPECT_EQ(*(drawn - 3), "on Lineaviva");
}

TEST_F(LineEndDrag, TheFirstEndSnapsAndTheOtherStaysWhereItIs) {
  const int row = Add(ObjectKind::AnyLine, "1010", 1030, 1500, 900);
  At(row).AlignToGrid = 1;
  const auto end = EndOf(row);
  DragLine(row, LineGrip::First, 120, 220);
  EXPECT_EQ(X(row), "1200");
  EXPECT_EQ(At(row).Y, 800);
  EXPECT_EQ(Y(row), 1200);
  EXPECT_EQ(EndOf(row), end);
}

TEST_F(LineEndDrag, TheSecondEndSnapsBySizes) {
  const int row = Add(ObjectKind::AnyLine, "1010", 1030, 500, 300);
  At(row).AlignToGrid = 1;
  DragLine(row, LineGrip::Second, 130, -740);
  EXPECT_EQ(X(row), "1010");
  EXPECT_EQ(At(row).Width, 600);
  EXPECT_EQ(At(row).Height, -400);
}

TEST_F(LineEndDrag, AnEndThatWouldMeetTheOtherStaysUnsnapped) {
  const int first = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
  At(first).AlignToGrid = 1;
  DragLine(first, LineGrip::First, 550, 380);
  EXPECT_EQ(X(first), "1550");
  EXPECT_EQ(Y(first), 1380);
  EXPECT_EQ(At(first).Width, 50);
  EXPECT_EQ(At(first).Height, 20);
  const int second = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
  At(second).AlignToGrid = 1;
  DragLine(second, LineGrip::Second, -550, -380);
  EXPECT_EQ(At(second).Width, 50);
  EXPECT_EQ(At(second).Height, 20);
}

TEST_F(LineEndDrag, AnEndThatMeetsTheOtherOneWayOnlySnaps) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
  At(row).AlignToGrid = 1;
  DragLine(row, LineGrip::Second, -550, 20);
  EXPECT_EQ(At(row).Width, 0);
  EXPECT_EQ(At(row).Height, 400);
}

TEST_F(LineEndDrag, TheFirstEndOutsideAllBodiesSpringsBackAndTheOtherStays) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
  const auto end = EndOf(row);
  DragLine(row, LineGrip::First, 100, 3500);
  EXPECT_EQ(X(row), "1100");
  EXPECT_EQ(Y(row), 1000);
  EXPECT_EQ(EndOf(row), end);
}

TEST_F(LineEndDrag, IntoAnotherBodyTheFirstEndTakesItsSubsection) {
  const int row = Add(ObjectKind::AnyLine, "1000", 4300, 600, 900);
  const auto end = EndOf(row);
  DragLine(row, LineGrip::First, 0, 800);
  EXPECT_EQ(At(row).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(row).Y, 100);
  EXPECT_EQ(EndOf(row), end);
}

TEST_F(LineEndDrag, TheWholeLineSnapsByItsFirstEnd) {
  const int row = Add(ObjectKind::AnyLine, "1010", 1030, 550, 333);
  At(row).AlignToGrid = 1;
  DragLine(row, LineGrip::Whole, 120, 220);
  EXPECT_EQ(X(row), "1200");
  EXPECT_EQ(Y(row), 1200);
  EXPECT_EQ(At(row).Width, 550);
  EXPECT_EQ(At(row).Height, 333);
}

TEST_F(LineEndDrag, OnlyWhatIsDraggedIsUntiedFromItsColumn) {
  document.Columns[1] = {"$Col_01", 1200, {}};
  const int row = Add(ObjectKind::AnyLine, "$Col_01", 1000, 600, 400);
  DragLine(row, LineGrip::Second, 100, 0);
  EXPECT_EQ(X(row), "$Col_01");
  EXPECT_EQ(At(row).Width, 700);
  DragLine(row, LineGrip::First, 50, 0);
  EXPECT_EQ(X(row), "1250");
  EXPECT_EQ(At(row).Width, 650);
}

TEST_F(LineEndDrag, TakesItsSnapshotBeforeTheChange) {
  for (const LineGrip grip : {LineGrip::First, LineGrip::Second, LineGrip::Whole}) {
    services.Calls.clear();
    services.Levels.clear();
    const int row = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
    const ObjectRecord before = At(row);
    DragLine(row, grip, 100, 100);
    EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "repaint"}));
    EXPECT_EQ(services.Levels[0].Objects[row].XValue, before.XValue);
    EXPECT_EQ(services.Levels[0].Objects[row].Width, before.Width);
    EXPECT_EQ(services.Levels[0].Objects[row].AbsoluteY, before.AbsoluteY);
    EXPECT_FALSE(services.GestureOnWhileRepainting);
  }
}

TEST_F(LineEndDrag, GivenUpPutsBothEndsBack) {
  const int row = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
  Select(row);
  PageWork work = Work();
  const auto gesture = BeginLineEndDrag(work, LineGrip::Whole, {0, 0});
  ASSERT_NE(gesture, nullptr);
  gesture->Move(work, {300, 300});
  gesture->Cancel(work);
  EXPECT_EQ(pointer.LineStart, (CanvasPoint{1000, 1000}));
  EXPECT_EQ(pointer.LineEnd, (CanvasPoint{1600, 1400}));
  EXPECT_EQ(X(row), "1000");
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_FALSE(pointer.InGesture());
}

TEST_F(LineEndDrag, OnlyOfASlantedLineThatIsAloneAndMayMove) {
  const int line = Add(ObjectKind::Line, "1000", 1000, 600, 50);
  const int slanted = Add(ObjectKind::AnyLine, "1000", 1000, 600, 400);
  PageWork work = Work();
  Select(line);
  EXPECT_EQ(BeginLineEndDrag(work, LineGrip::First, {0, 0}), nullptr);
  Select(slanted);
  At(slanted).MayMoveHorizontally = At(slanted).MayMoveVertically = kFalse;
  EXPECT_EQ(BeginLineEndDrag(work, LineGrip::First, {0, 0}), nullptr);
  At(slanted).MayMoveHorizontally = At(slanted).MayMoveVertically = kTrue;
  SelectGroup({slanted});
  EXPECT_EQ(BeginLineEndDrag(work, LineGrip::First, {0, 0}), nullptr);
  EXPECT_FALSE(pointer.InGesture());
}

}  // namespace
}  // namespace kev::test
