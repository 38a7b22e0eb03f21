// SPDX-License-Identifier: MIT
#include "surface/pointer_tracker.h"

#include <stdexcept>

#include "support/page_fixture.h"
#include "surface/click.h"
#include "surface/press_rules.h"

namespace kev {
namespace {

class PointerTrackerTest : public test::PageFixture {
 protected:
  PointerTrackerTest() {
    one_ = AddText("1000", 1000, 500, "a");
    two_ = AddText("3000", 3000, 500, "b");
    Open();
  }
  static std::string Rows(std::initializer_list<int> rows) {
    std::string text;
    for (const int row : rows)
      text += ' ' + std::to_string(row);
    return text;
  }

  int one_ = 0, two_ = 0;
};

// --- Clicks
// -------------------------------------------------------------------------------------------------

using ClickTest = PointerTrackerTest;

TEST_F(ClickTest, FirstClickStartsTheWaitForTheRubberBand) {
  Pointer().FirstClick = true;
  Pointer().BandAllowed = false;
  Click(5000, 5000);
  EXPECT_EQ(page_.AllowMilliseconds, 1000);
  EXPECT_FALSE(Pointer().BandAllowed);
  Click(5000, 5000);
  EXPECT_EQ(page_.TimersStarted, 1);
  page_.AllowTimer();
  EXPECT_TRUE(Pointer().BandAllowed);
}

TEST_F(ClickTest, SelectingAllWithinTheWaitDoesNotEndIt) {
  Pointer().FirstClick = true;
  Pointer().BandAllowed = false;
  Click(5000, 5000);
  PageWork work = page_.Work();
  SelectAll(work);
  page_.AllowTimer();
  EXPECT_TRUE(Pointer().BandAllowed);
}

TEST_F(ClickTest, TimeOfADocumentThatIsGoneAllowsNothing) {
  Pointer().FirstClick = true;
  Click(5000, 5000);
  Pointer() = PointerState();
  page_.AllowTimer();
  EXPECT_FALSE(Pointer().BandAllowed);
}

TEST_F(ClickTest, TableKeepsFreeRows) {
  ObjectTable& objects = page_.document.Objects;
  ASSERT_EQ(objects.ObjectCount, 50);
  Click(5000, 5000);
  EXPECT_EQ(objects.ObjectCount, 50);
  Record(50).Kind = ObjectKind::Picture;
  Click(5000, 5000);
  EXPECT_EQ(objects.ObjectCount, 60);
}

TEST_F(ClickTest, TableIsNeverReadPastItsLastRow) {
  ObjectTable& objects = page_.document.Objects;
  objects.ObjectCount = 2010;
  Record(ObjectTable::kLastRow).Kind = ObjectKind::Picture;
  Click(5000, 5000);
  EXPECT_EQ(objects.ObjectCount, 2010);
}

TEST_F(ClickTest, NothingFollowsWithoutAPosition) {
  Select(one_);
  Pointer().ForgetPosition();
  PageWork work = page_.Work();
  ClickOnPage(work);
  EXPECT_EQ(Current(), one_);
}

TEST_F(ClickTest, SelectsWhatIsUnderThePointer) {
  Click(1100, 1100);
  EXPECT_EQ(Current(), one_);
  Click(3100, 3100);
  EXPECT_EQ(Current(), two_);
  Click(6000, 6000);
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(page_.Pushes, 0);
}

TEST_F(ClickTest, HidesTheBand) {
  Click(1100, 1100);
  EXPECT_TRUE(page_.surface.Has("hide LineSelectHor01"));
}

TEST_F(ClickTest, InsideAGroupLeavesItForADrag) {
  Group({one_, two_});
  Click(2000, 2000);
  EXPECT_EQ(Members(), Rows({one_, two_}));
  EXPECT_TRUE(Pointer().MultiSelected);
  EXPECT_EQ(page_.Repaints, 0);
}

TEST_F(ClickTest, OnTheEdgeOfAGroupLeavesIt) {
  Group({one_, two_});
  Click(Pointer().Bounds.Left, Pointer().Bounds.Top);
  EXPECT_EQ(Members(), Rows({one_, two_}));
}

TEST_F(ClickTest, WithCtrlInsideAGroupEndsItAndSelects) {
  Group({one_, two_});
  Click(1100, 1100, kCtrlKey);
  EXPECT_EQ(Members(), "");
  EXPECT_FALSE(Pointer().MultiSelected);
  EXPECT_EQ(Current(), one_);
  EXPECT_EQ(page_.Repaints, 1);
  EXPECT_TRUE(Shown("lblob(1)"));
}

TEST_F(ClickTest, OutsideAGroupEndsItAndSelects) {
  const int three = AddText("6000", 6000, 500, "c");
  Open();
  Group({one_, two_});
  Click(6100, 6100);
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), three);
  EXPECT_EQ(page_.Repaints, 1);
  Group({one_, two_});
  Click(8000, 8000);
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), 0);
}

TEST_F(ClickTest, WithShiftTogglesInsideAGroupAndOutside) {
  const int three = AddText("6000", 6000, 500, "c");
  Open();
  Group({one_, two_});
  Click(6100, 6100, kShiftKey);
  EXPECT_EQ(Members(), Rows({one_, two_, three}));
  Click(1100, 1100, kShiftKey);
  EXPECT_EQ(Members(), Rows({two_, three}));
  EXPECT_EQ(page_.Repaints, 2);
}

TEST_F(ClickTest, WithShiftOnNothingOrABandLeavesTheGroup) {
  Group({one_, two_});
  Click(8000, 8000, kShiftKey);
  Click(8000, 200, kShiftKey);
  EXPECT_EQ(Members(), Rows({one_, two_}));
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(page_.Repaints, 0);
}

TEST_F(ClickTest, PendingToolTakesIt) {
  Pointer().PendingTool = "LABEL";
  Click(1100, 1100);
  EXPECT_EQ(page_.TakeCalls(), "tool LABEL");
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{1100, 1100}));
  Click(1100, 1100);
  EXPECT_EQ(Current(), one_);
}

TEST_F(ClickTest, PendingToolLeavesTheGroupItIsUsedInAndEndsAnother) {
  Group({one_, two_});
  Pointer().PendingTool = "LABEL";
  Click(2000, 2000);
  EXPECT_EQ(page_.TakeCalls(), "tool LABEL");
  EXPECT_EQ(Members(), Rows({one_, two_}));
  Pointer().PendingTool = "LABEL";
  Click(8000, 8000);
  EXPECT_EQ(page_.TakeCalls(), "repaint, tool LABEL");
  EXPECT_EQ(Members(), "");
}

TEST_F(ClickTest, ToolIsUsedOnceWhateverIsUnderThePointer) {
  const int box = Add(ObjectKind::Box, "5000", 5000, 1000, 1000);
  Open();
  Select(box);
  for (const PointerSource source : {PointerSource::Overlay, PointerSource::Handle, PointerSource::LineEnd,
                                     PointerSource::LineBody, PointerSource::ColumnLine}) {
    Pointer().PendingTool = "BOX";
    Drag({5500, 5500}, {7000, 7000}, 0, source, 4);
    EXPECT_EQ(page_.TakeCalls(), "tool BOX");
    EXPECT_FALSE(Pointer().InGesture());
  }
}

TEST_F(ClickTest, OverlayMarksAndColumnLinesPassItToThePage) {
  const int big = Add(ObjectKind::Picture, "900", 900, 2000, 2000);
  Open();
  for (const PointerSource source :
       {PointerSource::Overlay, PointerSource::LineBody, PointerSource::ColumnLine}) {
    Select(big);
    Click(1100, 1100, 0, source, 1);
    EXPECT_EQ(Current(), one_);
  }
  Select(big);
  Click(1100, 1100, 0, PointerSource::Handle, 1);
  EXPECT_EQ(Current(), one_) << "a handle that sizes nothing is transparent";
}

TEST_F(ClickTest, HandleThatActsAndGripsKeepTheSelection) {
  const int big = Add(ObjectKind::Picture, "5000", 5000, 1000, 1000);
  Open();
  Select(big);
  Click(6050, 5500, 0, PointerSource::Handle, 4);
  EXPECT_EQ(Current(), big);
  Click(1100, 1100, 0, PointerSource::LineEnd, 1);
  EXPECT_EQ(Current(), big);
}

TEST_F(ClickTest, OnASideOfTheCurrentBoxKeepsItSelected) {
  const int box = Add(ObjectKind::Box, "5000", 5000, 1000, 1000);
  Open();
  Select(box);
  Click(4985, 5500, 0, PointerSource::Overlay, 4);
  EXPECT_EQ(Current(), box);
  DoubleClick(4985, 5500, PointerSource::Overlay, 4);
  EXPECT_EQ(page_.TakeCalls(), "open " + std::to_string(box));
}

TEST_F(ClickTest, OnTheRulerIsNoneOnThePage) {
  Click(1100, 1100);
  Click(6000, 6000, 0, PointerSource::Ruler);
  EXPECT_EQ(Current(), one_);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{1100, 1100}));
}

// --- Presses, moves, releases
// ----------------------------------------------------------------------------------

TEST_F(PointerTrackerTest, HoveringChangesNothing) {
  Click(5000, 5000);
  MoveFree(6000, 6000);
  Move(6000, 6000);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{5000, 5000}));
}

TEST_F(PointerTrackerTest, MovesAreHeldBackForThreePixelsAndBeginAtThePress) {
  Press(5000, 5000);
  Move(5030, 5030);
  EXPECT_FALSE(tracker_.InGesture());
  EXPECT_TRUE(tracker_.Busy());
  Move(5045, 5000);
  EXPECT_TRUE(tracker_.InGesture());
  EXPECT_EQ(Pointer().BandX0, 5000);
  EXPECT_EQ(Pointer().BandY0, 5000);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{5045, 5000}));
}

TEST_F(PointerTrackerTest, GestureOnceBegunFollowsSmallMoves) {
  Press(5000, 5000);
  Move(6000, 6000);
  Move(5001, 5001);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{5001, 5001}));
}

TEST_F(PointerTrackerTest, ReleaseStoresPlaceAndKeyboard) {
  Click(5000, 5000, kShiftKey + kCtrlKey);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{5000, 5000}));
  EXPECT_EQ(Pointer().LastShift, 3);
}

TEST_F(PointerTrackerTest, MoveWithoutAButtonEndsAPressLikeItsRelease) {
  Press(900, 900);
  Move(3600, 3300);
  MoveFree(3600, 3300);
  EXPECT_EQ(Members(), Rows({one_, two_}));
  const int repaints = page_.Repaints;
  Release(3600, 3300);
  EXPECT_EQ(Members(), Rows({one_, two_})) << "the release that comes behind it is no click";
  EXPECT_EQ(page_.Repaints, repaints);
  EXPECT_FALSE(tracker_.Busy());
}

TEST_F(PointerTrackerTest, MoveWithoutAButtonBeforeTheReleaseGivesOneClick) {
  Press(1100, 1100);
  MoveFree(1100, 1100);
  EXPECT_EQ(Current(), one_);
  const int selections = page_.Selections;
  Release(1100, 1100);
  EXPECT_EQ(page_.Selections, selections);
}

TEST_F(PointerTrackerTest, EndOfAGestureIsNoClickButCountsAsOne) {
  Pointer().FirstClick = true;
  Record(50).Kind = ObjectKind::Picture;
  Group({one_, two_});
  Drag({2000, 2000}, {2300, 2300});
  EXPECT_EQ(Members(), Rows({one_, two_}));
  EXPECT_EQ(page_.TimersStarted, 1);
  EXPECT_EQ(page_.document.Objects.ObjectCount, 60);
}

TEST_F(PointerTrackerTest, PointerOfAGestureStaysOnThePage) {
  Press(5000, 5000);
  Move(1e6, 1e6);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{page_.canvasWidth, page_.canvasHeight}));
  Move(-1e6, -1e6);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{0, 0}));
  page_.document.Settings[Setting::LM] = "300";
  page_.zoom = 2;
  Move(-1e6, -1e6);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{-600, 0}));
}

TEST_F(PointerTrackerTest, CancelledGestureChangesNothingAndItsReleaseIsNoClick) {
  Press(900, 900);
  Move(3600, 3300);
  EXPECT_TRUE(Cancel());
  EXPECT_FALSE(Pointer().InGesture());
  EXPECT_FALSE(tracker_.Busy());
  Release(1100, 1100);
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), 0);
  EXPECT_FALSE(Shown("LineSelectHor01"));
  EXPECT_FALSE(Cancel()) << "there is none any more";
}

TEST_F(PointerTrackerTest, CancelledPressIsNoClick) {
  Press(1100, 1100);
  EXPECT_FALSE(Cancel());
  Release(1100, 1100);
  EXPECT_EQ(Current(), 0);
}

TEST_F(PointerTrackerTest, PressBehindALostReleaseGivesTheGestureUp) {
  Press(900, 900);
  Move(3600, 3300);
  Press(1100, 1100);
  EXPECT_FALSE(Pointer().BandActive);
  Release(1100, 1100);
  EXPECT_EQ(Current(), one_);
}

TEST_F(PointerTrackerTest, AnotherDocumentForgetsThePress) {
  Press(5000, 5000);
  Move(6000, 6000);
  tracker_.Reset();
  EXPECT_FALSE(tracker_.Busy());
}

TEST_F(PointerTrackerTest, FailedEndLeavesNoGestureBehind) {
  Group({one_, two_});
  page_.OnPush = [] { throw std::out_of_range("no room"); };
  Press(2000, 2000);
  Move(2300, 2300);
  EXPECT_THROW(Release(2300, 2300), std::out_of_range);
  EXPECT_FALSE(Pointer().InGesture());
  EXPECT_FALSE(tracker_.Busy());
  EXPECT_FALSE(Shown("lnh01"));
}

// --- What a press begins
// ------------------------------------------------------------------------------------------

using PressTest = PointerTrackerTest;

TEST_F(PressTest, InsideAGroupComesBeforeWhatLiesThere) {
  Group({one_, two_});
  Press(1100, 1100);
  Move(1300, 1300);
  EXPECT_TRUE(Pointer().GroupDrag);
  EXPECT_EQ(Members(), Rows({one_, two_}));
}

TEST_F(PressTest, InsideTheCurrentBoxComesBeforeWhatLiesThere) {
  const int box = Add(ObjectKind::Box, "900", 900, 2000, 2000);
  Open();
  Select(box);
  Press(1100, 1100);
  Move(1300, 1300);
  EXPECT_EQ(Current(), box);
  EXPECT_FALSE(Pointer().BandActive);
}

TEST_F(PressTest, BoxHoldsItsLeftEdgeAlone) {
  const int box = Add(ObjectKind::Box, "1000", 5000, 600, 600);
  Open(0.5);
  Select(box);
  const PageWork work = page_.Work();
  EXPECT_TRUE(InsideCurrentBox(work, {500, 2600}));
  EXPECT_FALSE(InsideCurrentBox(work, {800, 2600}));
  EXPECT_FALSE(InsideCurrentBox(work, {600, 2500}));
  EXPECT_FALSE(InsideCurrentBox(work, {600, 2800}));
  Select(one_);
  EXPECT_FALSE(InsideCurrentBox(page_.Work(), {600, 2600}));
}

TEST_F(PressTest, OnARowPicksIt) {
  Press(3100, 3100);
  Move(3300, 3300);
  EXPECT_EQ(Current(), two_);
  EXPECT_FALSE(Pointer().BandActive);
  EXPECT_EQ(page_.document.Objects.FocusObject, two_);
}

TEST_F(PressTest, OnAnEndBarPicksIt) {
  Press(500, 9440);
  Move(500, 9600);
  EXPECT_EQ(Current(), end_);
}

TEST_F(PressTest, OnARowOutsideAGroupEndsTheGroup) {
  const int three = AddText("6000", 6000, 500, "c");
  Open();
  Group({one_, two_});
  Press(6100, 6100);
  Move(6300, 6300);
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), three);
}

TEST_F(PressTest, OutsideAGroupStartsNoBand) {
  Group({one_, two_});
  Press(8000, 8000);
  Move(6000, 6000);
  EXPECT_FALSE(tracker_.InGesture());
  EXPECT_EQ(Members(), Rows({one_, two_}));
}

TEST_F(PressTest, OnBandsAndBoxesThatAreNotCurrentStartsABand) {
  Add(ObjectKind::Box, "5000", 5000, 2000, 2000);
  Open();
  for (const CanvasPoint at : {CanvasPoint{5500, 5500}, CanvasPoint{500, 200}, CanvasPoint{8000, 8000}}) {
    Press(at.X, at.Y);
    Move(at.X + 100, at.Y + 100);
    EXPECT_TRUE(Pointer().BandActive);
    EXPECT_EQ(Current(), 0);
    Cancel();
  }
}

TEST_F(PressTest, WithShiftStartsABandAlsoOnARow) {
  Press(1100, 1100, kShiftKey);
  Move(2000, 2000);
  EXPECT_TRUE(Pointer().BandActive);
  EXPECT_EQ(Current(), 0);
}

TEST_F(PressTest, OnAHiddenRowStartsABand) {
  Record(one_).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  Open();
  Press(1100, 1100);
  Move(2000, 2000);
  EXPECT_TRUE(Pointer().BandActive);
}

TEST_F(PressTest, OnTheRulerBeginsNothing) {
  Press(5000, 5000, 0, PointerSource::Ruler);
  Move(6000, 6000);
  EXPECT_FALSE(tracker_.InGesture());
  EXPECT_EQ(Current(), 0);
}

TEST_F(PressTest, ThatBeginsNothingEndsInAClick) {
  Pointer().BandAllowed = false;
  Press(8000, 8000);
  Move(7000, 7000);
  Release(1100, 1100);
  EXPECT_EQ(Current(), one_);
}

TEST_F(PressTest, HandlesActByKind) {
  struct Row {
    ObjectKind kind;
    bool width, both, height;
  };
  for (const Row& row :
       {Row{ObjectKind::Picture, true, true, true}, Row{ObjectKind::Box, true, true, true},
        Row{ObjectKind::Line, true, true, true}, Row{ObjectKind::Circle, true, true, true},
        Row{ObjectKind::Chart, true, true, true}, Row{ObjectKind::TextBox, true, false, true},
        Row{ObjectKind::AnyLine, true, false, true}, Row{ObjectKind::Label, true, false, false},
        Row{ObjectKind::Barcode, true, false, true}}) {
    const int object = Add(row.kind, "5000", 5000, 500, 500);
    page_.document.Objects.CurrentObject = object;
    const PageWork work = page_.Work();
    Record(object).MayResize = kTrue;
    EXPECT_EQ(HandleActs(work, 4), row.width) << KindText(row.kind);
    EXPECT_EQ(HandleActs(work, 5), row.both) << KindText(row.kind);
    EXPECT_EQ(HandleActs(work, 6), row.height) << KindText(row.kind);
    for (const int mark : {1, 2, 3, 7, 8})
      EXPECT_FALSE(HandleActs(work, mark));
    Record(object).MayResize = kFalse;
    EXPECT_FALSE(HandleActs(work, 4)) << KindText(row.kind);
  }
}

TEST_F(PressTest, PointerGoesThroughWhatDoesNotTakeIt) {
  const int box = Add(ObjectKind::Box, "5000", 5000, 500, 500);
  Open();
  Select(box);
  const auto takes = [&](PointerSource source, int index) {
    return TakesPointer(page_.Work(), Input(PointerButton::Left, 5000, 5000, 0, source, index));
  };
  EXPECT_TRUE(takes(PointerSource::Handle, 5));
  EXPECT_FALSE(takes(PointerSource::Handle, 2));
  EXPECT_TRUE(takes(PointerSource::Overlay, 1));
  EXPECT_TRUE(takes(PointerSource::ColumnLine, 3));
  Pointer().PendingTool = "LABEL";
  EXPECT_FALSE(takes(PointerSource::Handle, 5));
  EXPECT_FALSE(takes(PointerSource::Overlay, 1));
}

TEST_F(PressTest, NoHandleActsInAGroup) {
  const int box = Add(ObjectKind::Box, "5000", 5000, 500, 500);
  Open();
  Select(box);
  EXPECT_TRUE(HandleActs(page_.Work(), 4));
  Pointer().MultiSelected = true;
  EXPECT_FALSE(HandleActs(page_.Work(), 4));
}

// --- The right button
// ---------------------------------------------------------------------------------------------

using RightButtonTest = PointerTrackerTest;

TEST_F(RightButtonTest, OnARowSelectsItAndOpensItsMenu) {
  RightClick(1100, 1100);
  EXPECT_EQ(page_.TakeCalls(), "menu object");
  EXPECT_EQ(Current(), one_);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{1100, 1100}));
}

TEST_F(RightButtonTest, OnNothingEndsTheSelectionAndOpensTheMenuOfThePage) {
  Select(one_);
  RightClick(8000, 8000);
  EXPECT_EQ(page_.TakeCalls(), "menu edit");
  EXPECT_EQ(Current(), 0);
}

TEST_F(RightButtonTest, OnAGroupOpensItsMenu) {
  Group({one_, two_});
  RightClick(2000, 2000);
  EXPECT_EQ(page_.TakeCalls(), "menu group");
  EXPECT_EQ(Members(), Rows({one_, two_}));
}

TEST_F(RightButtonTest, BesideAGroupEndsIt) {
  Group({one_, two_});
  RightClick(8000, 8000);
  EXPECT_EQ(page_.TakeCalls(), "repaint, menu edit");
  EXPECT_EQ(Members(), "");
}

TEST_F(RightButtonTest, WithShiftSelectsAndTogglesNothing) {
  RightClick(1100, 1100, PointerSource::Page, 0, kShiftKey);
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), one_);
}

TEST_F(RightButtonTest, OnThePanelsOfTheCurrentObjectOpensItsMenu) {
  const int big = Add(ObjectKind::Picture, "900", 900, 2000, 2000);
  Open();
  Select(big);
  for (const PointerSource source :
       {PointerSource::Overlay, PointerSource::LineEnd, PointerSource::LineBody}) {
    RightClick(1100, 1100, source, 1);
    EXPECT_EQ(page_.TakeCalls(), "menu object");
    EXPECT_EQ(Current(), big);
  }
}

TEST_F(RightButtonTest, OnAnEndBarOpensNoMenu) {
  RightClick(500, 9440);
  EXPECT_EQ(Current(), end_);
  RightClick(500, 9440, PointerSource::Overlay, 1);
  EXPECT_EQ(page_.TakeCalls(), "");
}

TEST_F(RightButtonTest, OnAColumnLineOrTheRulerRemembersWhere) {
  RightClick(2000, 300, PointerSource::ColumnLine, 7);
  EXPECT_EQ(page_.TakeCalls(), "menu columnline");
  EXPECT_EQ(Pointer().MenuAt.Slot, 7);
  RightClick(2345, -100, PointerSource::Ruler);
  EXPECT_EQ(page_.TakeCalls(), "menu ruler");
  EXPECT_EQ(Pointer().MenuAt.RulerX, 2345);
  EXPECT_EQ(Pointer().LastPoint(), (CanvasPoint{2000, 300})) << "the ruler is no part of the page";
}

TEST_F(RightButtonTest, IsIgnoredWhileTheLeftOneIsDown) {
  Press(5000, 5000);
  RightClick(1100, 1100);
  Move(6000, 6000);
  EXPECT_TRUE(Pointer().BandActive);
  RightClick(1100, 1100);
  EXPECT_TRUE(Pointer().BandActive);
  EXPECT_EQ(page_.TakeCalls(), "");
  EXPECT_EQ(Current(), 0);
}

TEST_F(RightButtonTest, EndsAGroupDragAndOpensTheMenuOfTheGroup) {
  Group({one_, two_});
  Press(2000, 2000);
  Move(2300, 2200);
  RightClick(2300, 2200);
  EXPECT_EQ(page_.TakeCalls(), "push, repaint, menu group");
  EXPECT_EQ(Record(one_).XValue, "1300");
  Release(2300, 2200);
  EXPECT_EQ(page_.TakeCalls(), "");
  EXPECT_EQ(Members(), Rows({one_, two_}));
}

// --- Double clicks
// ----------------------------------------------------------------------------------------------

using DoubleClickTest = PointerTrackerTest;

TEST_F(DoubleClickTest, OpensWhatIsUnderThePointerThoughItWasNotSelected) {
  DoubleClick(1100, 1100);
  EXPECT_EQ(page_.TakeCalls(), "open " + std::to_string(one_));
  EXPECT_EQ(Current(), one_);
}

TEST_F(DoubleClickTest, SelectsTheRowItOpens) {
  PageWork work = page_.Work();
  tracker_.DoubleClick(work, Input(PointerButton::Left, 3100, 3100));
  EXPECT_EQ(page_.TakeCalls(), "open " + std::to_string(two_));
  EXPECT_EQ(Current(), two_);
}

TEST_F(DoubleClickTest, OnTheOverlayOpensTheCurrentObject) {
  const int box = Add(ObjectKind::Box, "5000", 5000, 1000, 1000);
  Open();
  Select(box);
  PageWork work = page_.Work();
  tracker_.DoubleClick(work, Input(PointerButton::Left, 4990, 4990, 0, PointerSource::Overlay, 1));
  EXPECT_EQ(page_.TakeCalls(), "open " + std::to_string(box));
}

TEST_F(DoubleClickTest, OpensASubsection) {
  DoubleClick(500, 200);
  EXPECT_EQ(page_.TakeCalls(), "open " + std::to_string(bar_));
}

TEST_F(DoubleClickTest, OnNothingInAGroupOrOnTheRulerOpensNothing) {
  DoubleClick(8000, 8000);
  DoubleClick(1100, 1100, PointerSource::Ruler);
  Group({one_, two_});
  DoubleClick(1100, 1100);
  EXPECT_EQ(page_.TakeCalls(), "");
}

TEST_F(DoubleClickTest, OfAToolOpensNothing) {
  Pointer().PendingTool = "LABEL";
  PageWork work = page_.Work();
  tracker_.DoubleClick(work, Input(PointerButton::Left, 1100, 1100));
  EXPECT_EQ(page_.TakeCalls(), "");
}

}  // namespace
}  // namespace kev
