// SPDX-License-Identifier: MIT
#include "surface/selection.h"

#include "support/page_fixture.h"

namespace kev {
namespace {

class SelectionTest : public test::PageFixture {
 protected:
  void SelectAt(double x, double y, int shift = 0) {
    Pointer().KeepPosition({x, y});
    Pointer().LastShift = shift;
    PageWork work = page_.Work();
    SelectAtPointer(work);
  }
  std::string Status() { return SelectionText(page_.Work()); }
  std::string HandlesShown() const {
    std::string shown;
    for (int handle = 1; handle <= 8; ++handle)
      shown += Shown("dot_" + std::to_string(handle)) ? '1' : '0';
    return shown;
  }
};

TEST_F(SelectionTest, SelectedObjectIsCurrentWithHandlesAndOverlay) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  Open();
  Select(row);
  EXPECT_EQ(Current(), row);
  EXPECT_EQ(HandlesShown(), "11111111");
  EXPECT_TRUE(Shown("lblob(1)"));
  EXPECT_EQ(Status(), "1 selected");
  EXPECT_EQ(page_.Selections, 1);
  EXPECT_EQ(page_.Repaints, 0);
}

TEST_F(SelectionTest, HandlesAreHiddenBeforeTheyArePlacedAndShown) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  Select(row);
  const std::vector<std::string>& lines = page_.surface.Lines;
  const auto at = [&](const std::string& line) { return std::find(lines.begin(), lines.end(), line); };
  const auto placed = std::find_if(lines.begin(), lines.end(),
                                   [](const auto& line) { return line.starts_with("place dot_1"); });
  const auto overlay = std::find_if(lines.begin(), lines.end(),
                                    [](const auto& line) { return line.starts_with("place lblob(1)"); });
  ASSERT_NE(at("hide dot_1"), lines.end());
  EXPECT_LT(at("hide dot_1"), placed);
  EXPECT_LT(placed, at("show dot_1"));
  EXPECT_LT(at("show dot_1"), overlay);
}

TEST_F(SelectionTest, HideHandlesHidesGripsAndFrameButNotThePanels) {
  PageWork work = page_.Work();
  HideHandles(work);
  for (const char* name : {"dot_1", "dot_2", "dot_3", "dot_4", "dot_5", "dot_6", "dot_7", "dot_8", "ObjL1",
                           "ObjL2", "lnh01", "lnh02", "lnv01", "lnv02", "Lineaviva"})
    EXPECT_TRUE(page_.surface.Has(std::string("hide ") + name)) << name;
  EXPECT_FALSE(page_.surface.Has("hide lblob"));
}

TEST_F(SelectionTest, MaskTellsTheHandlesThatShowAndIsStoredBackUnchanged) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 800, 600);
  for (const auto& [mask, shown] : {std::pair("10100000", "10100000"), std::pair("", "11111111"),
                                    std::pair("        ", "11111111"), std::pair("0001", "00010000")}) {
    Record(row).Handles = mask;
    Forget();
    Select(row);
    EXPECT_EQ(HandlesShown(), shown) << mask;
    EXPECT_EQ(Record(row).Handles, mask);
  }
}

TEST_F(SelectionTest, ShowingHandlesHidesNone) {
  PageWork work = page_.Work();
  ShowHandles(work, "00000001");
  EXPECT_EQ(page_.surface.Take(), "show dot_8\n");
}

TEST_F(SelectionTest, HandlesStandAroundTheRectangle) {
  const int row = Add(ObjectKind::Picture, "1000", 2000, 800, 600);
  page_.zoom = 2;
  Select(row);
  EXPECT_EQ(PlaceOf("dot_1"), "1895 3895 105 105");
  EXPECT_EQ(PlaceOf("dot_2"), "2747.5 3895 105 105");
  EXPECT_EQ(PlaceOf("dot_3"), "3600 3895 105 105");
  EXPECT_EQ(PlaceOf("dot_4"), "3600 4547.5 105 105");
  EXPECT_EQ(PlaceOf("dot_5"), "3600 5200 105 105");
  EXPECT_EQ(PlaceOf("dot_6"), "2747.5 5200 105 105");
  EXPECT_EQ(PlaceOf("dot_7"), "1895 5200 105 105");
  EXPECT_EQ(PlaceOf("dot_8"), "1895 4547.5 105 105");
}

TEST_F(SelectionTest, HandlesFollowTheAnchorOfALabel) {
  const int row = AddText("5000", 2000, 1000, "Sum");
  Record(row).Align = "R";
  Select(row);
  EXPECT_EQ(PlaceOf("dot_1"), "3895 1895 105 105");
  EXPECT_EQ(PlaceOf("dot_2"), "4447.5 1895 105 105");
  EXPECT_EQ(PlaceOf("dot_3"), "5000 1895 105 105");
  Record(row).Align = "C";
  Select(row);
  EXPECT_EQ(PlaceOf("dot_1"), "4395 1895 105 105");
  EXPECT_EQ(PlaceOf("dot_3"), "5500 1895 105 105");
  const int box = Add(ObjectKind::Box, "5000", 4000, 1000, 500);
  Record(box).Align = "R";
  Select(box);
  EXPECT_EQ(PlaceOf("dot_3"), "6000 3895 105 105") << "only texts are anchored";
}

TEST_F(SelectionTest, RightHandleOfALabelStandsAtTheEndOfItsText) {
  const int row = AddText("1000", 2000, 800, "Sum");
  Record(row).ShapeTag = 1200;
  page_.zoom = 2;
  Select(row);
  EXPECT_EQ(PlaceOf("dot_4").substr(0, 5), "4400 ");
  EXPECT_EQ(PlaceOf("dot_3").substr(0, 5), "3600 ");
  Record(row).Align = "R";
  Select(row);
  EXPECT_EQ(PlaceOf("dot_4").substr(0, 5), "2000 ");
  Record(row).Align = "C";
  Select(row);
  EXPECT_EQ(PlaceOf("dot_4").substr(0, 5), "3200 ");
  Record(row).ShapeTag = 0;
  Record(row).Align = "L";
  Select(row);
  EXPECT_EQ(PlaceOf("dot_4").substr(0, 5), "3600 ");
}

TEST_F(SelectionTest, HandlesOfAVerticalBarcodeStandAroundTheSwappedSizes) {
  const int row = Add(ObjectKind::Barcode, "1000", 2000, 3000, 500);
  Record(row).VerticalBar = kTrue;
  Select(row);
  EXPECT_EQ(PlaceOf("dot_3"), "1500 1895 105 105");
  EXPECT_EQ(PlaceOf("dot_5"), "1500 5000 105 105");
  EXPECT_EQ(PlaceOf("dot_7"), "895 5000 105 105");
}

TEST_F(SelectionTest, HandlesOfALineThatRunsToTheLeftAreMirrored) {
  const int row = Add(ObjectKind::Line, "3000", 2000, -1000, 50);
  Select(row);
  EXPECT_EQ(PlaceOf("dot_1"), "1895 1895 105 105");
  EXPECT_EQ(PlaceOf("dot_4"), "3000 1972.5 105 105");
}

TEST_F(SelectionTest, SelectingAnotherObjectEndsTheGroup) {
  const int one = AddText("1000", 1000, 500, "a");
  const int two = AddText("1000", 2000, 500, "b");
  const int three = AddText("1000", 3000, 500, "c");
  Open();
  Group({one, two});
  Select(three);
  EXPECT_EQ(Members(), "");
  EXPECT_FALSE(Pointer().MultiSelected);
  EXPECT_EQ(Current(), three);
  EXPECT_EQ(Status(), "1 selected");
}

TEST_F(SelectionTest, NothingUnderThePointerDeselects) {
  const int row = AddText("1000", 1000, 500, "a");
  Open();
  Select(row);
  SelectAt(5000, 5000);
  EXPECT_EQ(Current(), 0);
  EXPECT_FALSE(Shown("lblob(1)"));
  EXPECT_EQ(HandlesShown(), "00000000");
  EXPECT_EQ(Pointer().Overlay[1], CanvasArea());
  EXPECT_EQ(Status(), "");
}

TEST_F(SelectionTest, HiddenOrEmptyRowCanNotBeSelected) {
  const int row = AddText("1000", 1000, 500, "a");
  Record(row).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  Select(row);
  EXPECT_EQ(Current(), 0);
  Select(row + 1);
  EXPECT_EQ(Current(), 0);
}

TEST_F(SelectionTest, PickedRowIsRememberedAsTheLastOneHit) {
  const int row = AddText("1000", 1000, 500, "a");
  Open();
  SelectAt(1100, 1100);
  EXPECT_EQ(page_.document.Objects.FocusObject, row);
}

TEST_F(SelectionTest, ShiftTogglesARowAndRepaints) {
  const int one = AddText("1000", 1000, 500, "a");
  const int two = AddText("1000", 2000, 500, "b");
  Open();
  SelectAt(1100, 1100, kShiftKey);
  EXPECT_EQ(Members(), " " + std::to_string(one));
  EXPECT_TRUE(Pointer().MultiSelected) << "a group of one is a group";
  EXPECT_EQ(Current(), one);
  EXPECT_FALSE(Shown("lblob(1)"));
  EXPECT_EQ(page_.Repaints, 1);
  SelectAt(1100, 2100, kShiftKey);
  EXPECT_EQ(Members(), " " + std::to_string(one) + " " + std::to_string(two));
  EXPECT_EQ(Status(), "2 selected");
  SelectAt(1100, 1100, kShiftKey);
  EXPECT_EQ(Members(), " " + std::to_string(two));
  EXPECT_EQ(page_.Repaints, 3);
}

TEST_F(SelectionTest, LastRowThatLeavesItsGroupIsSelectedByItself) {
  const int row = AddText("1000", 1000, 500, "a");
  Open();
  SelectAt(1100, 1100, kShiftKey);
  SelectAt(1100, 1100, kShiftKey);
  EXPECT_FALSE(Pointer().MultiSelected);
  EXPECT_EQ(Current(), row);
  EXPECT_TRUE(Shown("lblob(1)"));
}

TEST_F(SelectionTest, ShiftSelectsABandLikeAnyClick) {
  Open();
  SelectAt(500, 200, kShiftKey);
  EXPECT_EQ(Current(), bar_);
  EXPECT_EQ(Members(), "");
  EXPECT_TRUE(Shown("lblob(1)"));
}

TEST_F(SelectionTest, ObjectSelectedByAClickIsNotTakenIntoTheGroupOfTheNext) {
  const int one = AddText("1000", 1000, 500, "a");
  const int two = AddText("1000", 2000, 500, "b");
  Open();
  SelectAt(1100, 1100);
  ASSERT_EQ(Current(), one);
  SelectAt(1100, 2100, kShiftKey);
  EXPECT_EQ(Members(), " " + std::to_string(two));
}

TEST_F(SelectionTest, BandsAndFreeRowsJoinNoGroup) {
  const int row = AddText("1000", 1000, 500, "a");
  const PageWork work = page_.Work();
  EXPECT_TRUE(MayJoinGroup(work, row));
  EXPECT_FALSE(MayJoinGroup(work, bar_));
  EXPECT_FALSE(MayJoinGroup(work, end_));
  EXPECT_FALSE(MayJoinGroup(work, 0));
  Record(row).Kind = ObjectKind::Section;
  EXPECT_FALSE(MayJoinGroup(work, row));
}

TEST_F(SelectionTest, GroupShowsNoOverlayAfterARepaint) {
  const int one = AddText("1000", 1000, 500, "a");
  const int two = AddText("1000", 2000, 500, "b");
  Open();
  Select(one);
  Record(one).Selected = Record(two).Selected = kTrue;
  page_.FullRepaint();
  EXPECT_FALSE(Shown("lblob(1)"));
  EXPECT_EQ(HandlesShown(), "00000000");
  EXPECT_EQ(Current(), one);
}

TEST_F(SelectionTest, CurrentRowThatHasGoneOrIsHiddenIsDeselectedAtTheNextRepaint) {
  const int row = AddText("1000", 1000, 500, "a");
  Open();
  Select(row);
  Record(row).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  page_.FullRepaint();
  EXPECT_EQ(Current(), 0);
  EXPECT_FALSE(Shown("lblob(1)"));
  page_.filter = DisplayFilter::All;
  Select(row);
  page_.document.Objects.ClearRow(row);
  page_.FullRepaint();
  EXPECT_EQ(Current(), 0);
}

TEST_F(SelectionTest, OverlayFollowsARepaintAtAnotherZoom) {
  const int row = AddText("1000", 1000, 500, "a");
  Open();
  Select(row);
  page_.zoom = 2;
  page_.FullRepaint();
  EXPECT_EQ(Pointer().Overlay[1], (CanvasArea{2000, 2000, 3000, 2460}));
}

TEST_F(SelectionTest, EndedGroupLeavesTheCurrentRow) {
  const int one = AddText("1000", 1000, 500, "a");
  Open();
  SelectAt(1100, 1100, kShiftKey);
  PageWork work = page_.Work();
  EndGroup(work);
  page_.FullRepaint();
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), one);
  EXPECT_TRUE(Shown("lblob(1)"));
  EXPECT_EQ(Status(), "1 selected");
}

TEST_F(SelectionTest, StatusOfAGroupIsItsCountAndThatOfAGroupOfOneIsEmpty) {
  const int one = AddText("1000", 1000, 500, "a");
  const int two = AddText("1000", 2000, 500, "b");
  const int three = AddText("1000", 3000, 500, "c");
  Open();
  Group({one, two, three});
  EXPECT_EQ(Status(), "3 selected");
  Record(two).Selected = Record(three).Selected = kFalse;
  page_.FullRepaint();
  EXPECT_EQ(Status(), "");
}

class SelectAllTest : public SelectionTest {
 protected:
  void SelectAllAt(double y) {
    Pointer().KeepPosition({1000, y});
    PageWork work = page_.Work();
    SelectAll(work);
  }
};

TEST_F(SelectAllTest, SelectsTheObjectsOfTheSubsectionUnderTheLastPosition) {
  const test::PlacedBar below = test::PutSubsection(page_.document, "[ITEMS]", 9600, 3000);
  const int one = AddText("1000", 1000, 500, "a");
  const int two = AddText("1000", 2000, 500, "b");
  const int other = AddText("1000", 10500, 500, "c");
  Record(below.bar).Selected = Record(end_).Selected = kTrue;
  Open(2);
  Pointer().FirstClick = false;
  SelectAllAt(2 * 9400);
  EXPECT_EQ(Members(), " " + std::to_string(one) + " " + std::to_string(two));
  EXPECT_TRUE(Pointer().FirstClick);
  EXPECT_EQ(page_.Repaints, 1);
  SelectAllAt(2 * 9600);
  EXPECT_EQ(Members(), " " + std::to_string(one) + " " + std::to_string(two) + " " + std::to_string(other))
      << "what was selected stays";
}

TEST_F(SelectAllTest, SkipsHiddenRowsAndLeavesNoCurrentOne) {
  const int shown = AddText("1000", 1000, 500, "a");
  const int hidden = AddText("1000", 2000, 500, "b");
  Record(hidden).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  Open();
  Select(shown);
  SelectAllAt(500);
  EXPECT_EQ(Members(), " " + std::to_string(shown));
  EXPECT_EQ(Current(), 0);
  EXPECT_FALSE(Shown("lblob(1)"));
}

TEST_F(SelectAllTest, DoesNothingOutsideAllSubsections) {
  const int row = AddText("1000", 1000, 500, "a");
  Open();
  Select(row);
  SelectAllAt(9401);
  SelectAllAt(kNoPosition);
  EXPECT_EQ(Members(), "");
  EXPECT_EQ(Current(), row);
  EXPECT_EQ(page_.Repaints, 0);
}

TEST_F(SelectAllTest, NamesakesAreToldApartByTheirBodies) {
  test::PutSubsection(page_.document, "[DATA]", 9600, 3000);
  const int one = AddText("1000", 1000, 500, "a");
  AddText("1000", 10500, 500, "b");
  Open();
  SelectAllAt(1000);
  EXPECT_EQ(Members(), " " + std::to_string(one));
}

}  // namespace
}  // namespace kev
