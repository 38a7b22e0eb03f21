// SPDX-License-Identifier: MIT
#include "support/gesture_fixture.h"
#include "surface/page_keys.h"

namespace kev::test {
namespace {

// [DATA] with [ITEMS], [TAXES] and [TOTALS] behind it, then [FOOTER].
class SubsectionOrder : public GestureTest {
 public:
  SubsectionOrder() {
    taxes = AddBar("[TAXES]", 7200, 500);
    totals = AddBar("[TOTALS]", 8300, 1000);
    footer = AddBar("[FOOTER]", 9900, 300);
    At(footer.bar).SectionOwner = At(footer.bar).SectionTitle = "[FOOTER]";
    inItems = Add(ObjectKind::Picture, "0", 5300, 100, 100);
    inTaxes = Add(ObjectKind::Picture, "0", 7700, 100, 100);
    inTotals = Add(ObjectKind::Picture, "0", 9000, 100, 100);
  }
  void Up(int row) {
    Select(row);
    PageWork work = Work();
    MoveSubsectionUp(work);
  }
  void Down(int row) {
    Select(row);
    PageWork work = Work();
    MoveSubsectionDown(work);
  }

  PlacedBar taxes{}, totals{}, footer{};
  int inItems = 0, inTaxes = 0, inTotals = 0;
};

TEST_F(SubsectionOrder, MovingDownChangesPlacesWithTheNext) {
  Down(items.bar);
  EXPECT_EQ(Y(taxes.bar), 4600);
  EXPECT_EQ(Y(taxes.end), 4600 + 400 + 500);
  EXPECT_EQ(Y(items.bar), 4600 + 500 + 600);
  EXPECT_EQ(Y(items.end), 5700 + 400 + 2000);
  EXPECT_EQ(Y(totals.bar), 8300) << "the others stay";
  EXPECT_EQ(Y(footer.bar), 9900);
}

TEST_F(SubsectionOrder, MovingUpMirrorsIt) {
  Up(taxes.bar);
  EXPECT_EQ(Y(taxes.bar), 4600);
  EXPECT_EQ(Y(items.bar), 5700);
  Down(taxes.bar);
  EXPECT_EQ(Y(items.bar), 4600);
  EXPECT_EQ(Y(taxes.bar), 7200);
}

TEST_F(SubsectionOrder, TheirObjectsGoWithThem) {
  Down(items.bar);
  EXPECT_EQ(Y(inTaxes), 4600 + 400 + 100);
  EXPECT_EQ(Y(inItems), 5700 + 400 + 300);
  EXPECT_EQ(Y(inTotals), 9000);
  EXPECT_EQ(At(inItems).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(inTaxes).OwnerName, At(taxes.bar).SectionName);
  EXPECT_EQ(At(inItems).Y, 300);
  EXPECT_EQ(At(inTaxes).Y, 100);
}

TEST_F(SubsectionOrder, ObjectsOfNamesakesGoWithTheirOwn) {
  At(taxes.bar).SectionName = At(taxes.end).OwnerName = At(items.bar).SectionName;
  AssignObjects(document);
  Down(items.bar);
  EXPECT_EQ(Y(taxes.bar), 4600);
  EXPECT_EQ(Y(inTaxes), 5100);
  EXPECT_EQ(Y(inItems), 6400);
}

TEST_F(SubsectionOrder, TakesOneSnapshotBeforeTheChange) {
  Down(items.bar);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"push", "bands"}));
  EXPECT_EQ(services.Levels[0].Objects[items.bar].AbsoluteY, 4600);
  EXPECT_EQ(document.Objects.CurrentObject, items.bar);
}

TEST_F(SubsectionOrder, NeverPassesTheBaseOfItsSection) {
  Up(items.bar);
  Down(data.bar);
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(Y(data.bar), 0);
  EXPECT_EQ(Y(items.bar), 4600);
}

TEST_F(SubsectionOrder, NeverLeavesItsSection) {
  Down(totals.bar);
  Up(footer.bar);
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(Y(totals.bar), 8300);
}

TEST_F(SubsectionOrder, WithoutANeighbourThereIsNoSnapshot) {
  Up(data.bar);
  Down(footer.bar);
  EXPECT_TRUE(services.Calls.empty());
}

TEST_F(SubsectionOrder, OnlyASubsectionMoves) {
  for (const int row : {inItems, items.end, 0}) {
    Down(row);
    Up(row);
  }
  SelectGroup({inItems});
  Down(items.bar);
  EXPECT_TRUE(services.Calls.empty());
}

TEST_F(SubsectionOrder, ThereAndBackIsAsBefore) {
  std::vector<std::int32_t> before;
  for (int row = 1; row <= inTotals; ++row)
    before.push_back(Y(row));
  Down(items.bar);
  Down(items.bar);
  EXPECT_EQ(Y(items.bar), 4600 + 1100 + 1600);
  Up(items.bar);
  Up(items.bar);
  for (int row = 1; row <= inTotals; ++row)
    EXPECT_EQ(Y(row), before[static_cast<std::size_t>(row - 1)]) << row;
}

}  // namespace
}  // namespace kev::test
