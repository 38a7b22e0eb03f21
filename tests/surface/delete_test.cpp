// SPDX-License-Identifier: MIT
#include "base/text_numbers.h"
#include "support/gesture_fixture.h"
#include "surface/page_keys.h"

namespace kev::test {
namespace {

class DeleteOnPage : public GestureTest {
 public:
  void Delete(int row) {
    Select(row);
    PageWork work = Work();
    DeleteSelected(work);
  }
  bool Free(int row) { return At(row) == ObjectRecord(); }
  static std::string Box(int number) { return "box " + std::to_string(number); }
  using Calls = std::vector<std::string>;
};

TEST_F(DeleteOnPage, OfAnObjectFreesItsRow) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
  const int other = Add(ObjectKind::Picture, "1000", 2000, 500, 500);
  Delete(row);
  EXPECT_TRUE(Free(row));
  EXPECT_FALSE(Free(other));
  EXPECT_EQ(document.Objects.CurrentObject, 0);
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_EQ(services.Levels[0].Objects[row].Kind, ObjectKind::Picture);
  EXPECT_EQ(document.Objects.TakeFreeRow(), row) << "a freed row is used again";
}

TEST_F(DeleteOnPage, OfNothingDoesNothing) {
  Delete(0);
  EXPECT_TRUE(services.Calls.empty());
}

TEST_F(DeleteOnPage, TheThreeBaseSectionsStay) {
  for (const char* name : {"HEADER]", "DATA]", "FOOTER]"}) {
    services.Calls.clear();
    At(items.bar).SectionName = name;
    Delete(items.bar);
    EXPECT_EQ(services.Calls, Calls{Box(kTextBaseSectionStays)}) << name;
    EXPECT_FALSE(Free(items.bar)) << name;
  }
  EXPECT_EQ(services.Icons.front(), BoxIcon::Critical);
}

TEST_F(DeleteOnPage, AnEndBarStays) {
  Delete(items.end);
  EXPECT_EQ(services.Calls, Calls{Box(kTextEndBarStays)});
  EXPECT_EQ(services.Icons.front(), BoxIcon::Critical);
  EXPECT_FALSE(Free(items.end));
  EXPECT_EQ(document.Objects.CurrentObject, items.end);
}

TEST_F(DeleteOnPage, AnEmptySubsectionGoesWithoutAQuestion) {
  Delete(items.bar);
  EXPECT_EQ(services.Calls, (Calls{"push", "bands"}));
  EXPECT_TRUE(Free(items.bar));
  EXPECT_TRUE(Free(items.end));
}

TEST_F(DeleteOnPage, AFilledSubsectionIsAskedForAndGoesWhole) {
  const int row = Add(ObjectKind::Picture, "1000", 5300, 500, 500);
  services.Answers = {BoxAnswer::Yes};
  Delete(items.bar);
  EXPECT_EQ(services.Calls, (Calls{Box(kTextDeleteFilledSubsection), "push", "bands"}));
  EXPECT_EQ(services.Icons.front(), BoxIcon::Question);
  EXPECT_EQ(services.Buttons.front(), BoxButtons::YesNo);
  EXPECT_TRUE(Free(items.bar));
  EXPECT_TRUE(Free(items.end));
  EXPECT_TRUE(Free(row));
  EXPECT_EQ(document.Objects.CurrentObject, 0);
}

TEST_F(DeleteOnPage, AFilledSubsectionStaysWhenTheAnswerIsNo) {
  const int row = Add(ObjectKind::Picture, "1000", 5300, 500, 500);
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Cancel}) {
    services.Answers = {answer};
    Delete(items.bar);
    EXPECT_FALSE(Free(items.bar));
    EXPECT_FALSE(Free(row));
    EXPECT_EQ(services.Pushes(), 0);
  }
}

TEST_F(DeleteOnPage, WhatLiesBelowADeletedSubsectionMovesUp) {
  const PlacedBar last = AddBar("[TOTALS]", 7200, 1000);
  const int row = Add(ObjectKind::Picture, "1000", 7900, 500, 500);
  Delete(items.bar);
  EXPECT_EQ(Y(last.bar), 4600);
  EXPECT_EQ(Y(last.end), 6000);
  EXPECT_EQ(Y(row), 5300);
}

TEST_F(DeleteOnPage, ANamesakeKeepsItsObjectsAndRaisesNoQuestion) {
  const PlacedBar twin = AddBar("[ITEMS]", 7200, 1000);
  const int row = Add(ObjectKind::Picture, "1000", 5300, 500, 500);
  Delete(twin.bar);
  EXPECT_EQ(services.Calls, (Calls{"push", "bands"}));
  EXPECT_TRUE(Free(twin.bar));
  EXPECT_TRUE(Free(twin.end));
  EXPECT_FALSE(Free(items.bar));
  EXPECT_FALSE(Free(row));
}

TEST_F(DeleteOnPage, OfAGroupFreesAllItsRows) {
  const int a = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
  const int b = AddText("1000", 2000, "B");
  const int c = AddText("1000", 3000, "C");
  Select(c);
  SelectGroup({a, b});
  PageWork work = Work();
  DeleteSelected(work);
  EXPECT_TRUE(Free(a));
  EXPECT_TRUE(Free(b));
  EXPECT_FALSE(Free(c));
  EXPECT_EQ(document.Objects.CurrentObject, 0);
  EXPECT_FALSE(pointer.MultiSelected);
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_EQ(services.Levels[0].Objects[a].Kind, ObjectKind::Picture);
}

TEST_F(DeleteOnPage, OfAGroupLeavesBandsAlone) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
  SelectGroup({row, items.bar, items.end});
  PageWork work = Work();
  DeleteSelected(work);
  EXPECT_TRUE(Free(row));
  EXPECT_FALSE(Free(items.bar));
  EXPECT_FALSE(Free(items.end));
}

TEST_F(DeleteOnPage, OfAGroupTakesNothingThatIsHidden) {
  const int hidden = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
  const int shown = Add(ObjectKind::Picture, "1000", 2000, 500, 500);
  At(hidden).PrintFlag = kFalse;
  SelectGroup({hidden, shown});
  filter = DisplayFilter::Print;
  PageWork work = Work();
  DeleteSelected(work);
  EXPECT_FALSE(Free(hidden));
  EXPECT_TRUE(Free(shown));
}

TEST_F(DeleteOnPage, OfAGroupWithNothingToDeleteLeavesNoSnapshot) {
  SelectGroup({items.end});
  PageWork work = Work();
  DeleteSelected(work);
  EXPECT_TRUE(services.Calls.empty());
}

}  // namespace
}  // namespace kev::test
