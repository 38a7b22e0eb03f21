// SPDX-License-Identifier: MIT
#include "support/page_fixture.h"

namespace kev {
namespace {

class CursorsTest : public test::PageFixture {
 protected:
  CursorShape On(PointerSource source, int index = 0, CanvasPoint at = {8000, 8000}) {
    return CursorAt(page_.Work(), Input(PointerButton::None, at.X, at.Y, 0, source, index));
  }
};

TEST_F(CursorsTest, ArrowOnThePageAndTheRuler) {
  EXPECT_EQ(On(PointerSource::Page), CursorShape::Arrow);
  EXPECT_EQ(On(PointerSource::Ruler), CursorShape::Arrow);
}

TEST_F(CursorsTest, CrossOfAToolWinsOverAllOthers) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 500, 500);
  Open();
  Select(box);
  Pointer().PendingTool = "LABEL";
  for (const PointerSource source : {PointerSource::Page, PointerSource::Overlay, PointerSource::Handle,
                                     PointerSource::LineEnd, PointerSource::ColumnLine})
    EXPECT_EQ(On(source, 4), CursorShape::Cross);
  EXPECT_EQ(On(PointerSource::Ruler), CursorShape::Arrow);
}

TEST_F(CursorsTest, MoveOnWhatMovesAndVerticalOnEndBars) {
  const int label = AddText("1000", 1000, 500, "a");
  Open();
  Select(label);
  EXPECT_EQ(On(PointerSource::Overlay, 1), CursorShape::Move);
  Record(label).MayMoveVertically = Record(label).MayMoveHorizontally = kFalse;
  EXPECT_EQ(On(PointerSource::Overlay, 1), CursorShape::Arrow);
  Select(bar_);
  EXPECT_EQ(On(PointerSource::Overlay, 1), CursorShape::Arrow);
  Select(end_);
  EXPECT_EQ(On(PointerSource::Overlay, 1), CursorShape::SizeHeight);
}

TEST_F(CursorsTest, SizingShapesOnHandlesThatAct) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 500, 500);
  Open();
  Select(box);
  EXPECT_EQ(On(PointerSource::Handle, 4), CursorShape::SizeWidth);
  EXPECT_EQ(On(PointerSource::Handle, 5), CursorShape::SizeBoth);
  EXPECT_EQ(On(PointerSource::Handle, 6), CursorShape::SizeHeight);
  EXPECT_EQ(On(PointerSource::Handle, 1), CursorShape::Arrow);
  EXPECT_EQ(On(PointerSource::LineEnd, 1), CursorShape::SizeBoth);
  EXPECT_EQ(On(PointerSource::ColumnLine, 3), CursorShape::SizeWidth);
}

TEST_F(CursorsTest, MoveInsideTheCurrentBoxAndInsideAGroup) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 500, 500);
  const int label = AddText("3000", 3000, 500, "a");
  Open();
  Select(box);
  EXPECT_EQ(On(PointerSource::Page, 0, {1200, 1200}), CursorShape::Move);
  EXPECT_EQ(On(PointerSource::Page, 0, {1600, 1200}), CursorShape::Arrow);
  Group({box, label});
  EXPECT_EQ(On(PointerSource::Page, 0, {2000, 2000}), CursorShape::Move);
  EXPECT_EQ(On(PointerSource::Page, 0, {5000, 2000}), CursorShape::Arrow);
}

TEST_F(CursorsTest, GestureKeepsItsShapeWhereverThePointerGetsTo) {
  Open();
  Select(end_);
  Pointer().ObjectDrag = true;
  EXPECT_EQ(On(PointerSource::Page), CursorShape::SizeHeight);
  Pointer().ObjectDrag = false;
  Pointer().GroupDrag = true;
  EXPECT_EQ(On(PointerSource::Ruler), CursorShape::Move);
  Pointer().GroupDrag = false;
  Pointer().ColumnDrag = true;
  EXPECT_EQ(On(PointerSource::Page), CursorShape::SizeWidth);
  Pointer().ColumnDrag = false;
  const int line = Add(ObjectKind::AnyLine, "1000", 1000, 500, 500);
  Open();
  Select(line);
  Pointer().LineEndDrag = true;
  EXPECT_EQ(On(PointerSource::Page), CursorShape::Move);
  EXPECT_EQ(On(PointerSource::LineEnd, 2), CursorShape::SizeBoth);
  Pointer().LineEndDrag = false;
  Pointer().BandActive = true;
  EXPECT_EQ(On(PointerSource::Overlay), CursorShape::Arrow);
}

}  // namespace
}  // namespace kev
