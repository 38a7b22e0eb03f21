// SPDX-License-Identifier: MIT
#include "document/sections.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/documents.h"

namespace kev {
namespace {

using test::PlacedBar;
using test::PutBox;
using test::PutSubsection;

class Sections : public testing::Test {
 protected:
  ObjectRecord& at(int row) { return document.Objects[row]; }

  Document document;
};

TEST_F(Sections, OwnTheObjectsInTheirBodyBothEndsIncluded) {
  PutSubsection(document, "[A]", 0, 600);
  PutSubsection(document, "[B]", 2000, 600);
  struct Row {
    std::int32_t absoluteY;
    std::string_view owner;
    std::int32_t y;
  };
  for (const Row& row : {Row{399, "old", 7}, Row{400, "A]", 0}, Row{700, "A]", 300}, Row{1000, "A]", 600},
                         Row{1001, "old", 7}, Row{2399, "old", 7}, Row{2400, "B]", 0}, Row{3000, "B]", 600},
                         Row{3001, "old", 7}, Row{-5, "old", 7}}) {
    const int box = PutBox(document, row.absoluteY);
    at(box).OwnerName = "old";
    at(box).Y = 7;
    AssignObjects(document);
    EXPECT_EQ(at(box).OwnerName, row.owner) << row.absoluteY;
    EXPECT_EQ(at(box).Y, row.y) << row.absoluteY;
    document.Objects.ClearRow(box);
  }
}

// Each object is looked for beginning with the body of the one before it.
TEST_F(Sections, OwnTheirObjectsInWhateverOrderTheRowsStand) {
  PutSubsection(document, "[A]", 0, 600);
  PutSubsection(document, "[B]", 2000, 600);
  PutSubsection(document, "[C]", 4000, 600);
  struct Row {
    std::int32_t absoluteY;
    std::string_view owner;
  };
  const Row rows[] = {{4500, "C]"}, {500, "A]"},   {1500, "old"}, {1600, "old"}, {2500, "B]"},
                      {2600, "B]"}, {-900, "old"}, {9000, "old"}, {4400, "C]"},  {2400, "B]"}};
  std::vector<int> boxes;
  for (const Row& row : rows) {
    boxes.push_back(PutBox(document, row.absoluteY));
    at(boxes.back()).OwnerName = "old";
  }
  AssignObjects(document);
  for (std::size_t n = 0; n < boxes.size(); ++n)
    EXPECT_EQ(at(boxes[n]).OwnerName, rows[n].owner) << rows[n].absoluteY;
}

TEST_F(Sections, GiveAnObjectToTheLaterRowWhereBodiesOverlap) {
  PutSubsection(document, "[LATE]", 500, 1000);
  PutSubsection(document, "[EARLY]", 0, 1000);
  const int box = PutBox(document, 1000);
  AssignObjects(document);
  EXPECT_EQ(at(box).OwnerName, "EARLY]");
  EXPECT_EQ(at(box).Y, 600);
}

TEST_F(Sections, LeaveAnObjectThatKeepsItsOwner) {
  PutSubsection(document, "[A]", 0, 600);
  const int box = PutBox(document, 500);
  at(box).OwnerName = "B]";
  at(box).KeepOwner = kTrue;
  AssignObjects(document);
  EXPECT_EQ(at(box).OwnerName, "B]");
}

TEST_F(Sections, WithABodyOfNoHeightOwnWhatStandsAtItsTop) {
  PutSubsection(document, "[A]", 0, 0);
  const int box = PutBox(document, 400);
  AssignObjects(document);
  EXPECT_EQ(at(box).OwnerName, "A]");
}

TEST_F(Sections, GiveTheirEndBarTheEndOfTheBody) {
  const PlacedBar bar = PutSubsection(document, "[A]", 0, 600);
  at(bar.bar).EndsAt = 900;
  AssignObjects(document);
  EXPECT_EQ(at(bar.end).Y, 900);
  EXPECT_EQ(at(bar.end).OwnerName, "A]");
}

TEST_F(Sections, AreLaidOutOneBelowTheOther) {
  const PlacedBar low = PutSubsection(document, "[LOW]", 5000, 300);
  const PlacedBar high = PutSubsection(document, "[HIGH]", 100, 600);
  NormaliseSubsections(document, SetSortKeys(document));
  EXPECT_EQ(at(high.bar).AbsoluteY, 0);
  EXPECT_EQ(at(high.end).AbsoluteY, 1000);
  EXPECT_EQ(at(low.bar).AbsoluteY, 1200);
  EXPECT_EQ(at(low.end).AbsoluteY, 1900);
}

TEST_F(Sections, CountASectionBarAmongTheBands) {
  const int section = PutBox(document, 0);
  at(section).Kind = ObjectKind::Section;
  const PlacedBar bar = PutSubsection(document, "[A]", 500, 300);
  NormaliseSubsections(document, SetSortKeys(document));
  EXPECT_EQ(at(section).AbsoluteY, 0);
  EXPECT_EQ(at(bar.bar).AbsoluteY, 600);
}

TEST_F(Sections, TakeTheirObjectsAlong) {
  PutSubsection(document, "[A]", 0, 600);
  PutSubsection(document, "[B]", 9000, 600);
  const int box = PutBox(document, 9500);
  DeriveGeometry(document);
  EXPECT_EQ(at(box).OwnerName, "B]");
  EXPECT_EQ(at(box).Y, 100);
  EXPECT_EQ(at(box).AbsoluteY, 1200 + 400 + 100);
}

TEST_F(Sections, LeaveAnObjectWithoutAnOwnerWhereItIs) {
  PutSubsection(document, "[A]", 3000, 600);
  const int box = PutBox(document, 100);
  at(box).OwnerName = "GONE]";
  DeriveGeometry(document);
  EXPECT_EQ(at(box).AbsoluteY, 100);
  EXPECT_EQ(at(box).OwnerName, "GONE]");
}

TEST_F(Sections, LowerTheEndOfContentThatLiesBehindTheEndOfTheBody) {
  const PlacedBar full = PutSubsection(document, "[A]", 0, 600);
  const PlacedBar empty = PutSubsection(document, "[B]", 2000, 600);
  at(full.bar).SectionCursorY = at(empty.bar).SectionCursorY = 900;
  PutBox(document, 500);
  DeriveGeometry(document);
  EXPECT_EQ(at(full.bar).SectionCursorY, 600);
  EXPECT_EQ(at(empty.bar).SectionCursorY, 900) << "only pairs of an object and its subsection are looked at";
}

TEST_F(Sections, OfOneNameEachKeepTheObjectsOfTheirOwnBody) {
  const PlacedBar first = PutSubsection(document, "[ITEMS]", 0, 600);
  const PlacedBar second = PutSubsection(document, "[ITEMS]", 1200, 600);
  const int above = PutBox(document, 500);
  const int below = PutBox(document, 1700);
  DeriveGeometry(document);
  EXPECT_EQ(at(above).AbsoluteY, 500);
  EXPECT_EQ(at(below).AbsoluteY, 1700);
  at(first.bar).EndsAt = 1000;
  at(first.end).AbsoluteY = 1400;
  NormaliseSubsections(document, SetSortKeys(document));
  EXPECT_EQ(at(second.bar).AbsoluteY, 1600);
  EXPECT_EQ(at(above).AbsoluteY, 500);
}

TEST_F(Sections, OfOneNameGiveAnObjectOfTheSecondToTheFirstWhereItIsMovedThere) {
  const PlacedBar first = PutSubsection(document, "[ITEMS:@a]", 0, 600);
  const PlacedBar second = PutSubsection(document, "[ITEMS:@b]", 1200, 600);
  EXPECT_EQ(at(first.bar).SectionName, at(second.bar).SectionName);
  const int box = PutBox(document, 1700);
  AssignObjects(document);
  EXPECT_EQ(OwnerIndex(document).OwnerOf(box), second.bar);
  at(box).AbsoluteY = 650;
  AssignObjects(document);
  EXPECT_EQ(at(box).OwnerName, "ITEMS");
  EXPECT_EQ(at(box).Y, 250);
  EXPECT_EQ(OwnerIndex(document).OwnerOf(box), first.bar);
}

TEST_F(Sections, WithTheirEndAtAnObjectHoldItAndOneTwipLessDoesNot) {
  const PlacedBar bar = PutSubsection(document, "[A]", 0, 600);
  const int box = PutBox(document, 1000);
  DeriveGeometry(document);
  EXPECT_EQ(at(box).OwnerName, "A]");
  at(box).OwnerName = "old";
  at(bar.bar).EndsAt = 599;
  AssignObjects(document);
  EXPECT_EQ(at(box).OwnerName, "old");
}

TEST_F(Sections, OfOneNameGiveAStrayObjectToTheFirst) {
  const PlacedBar first = PutSubsection(document, "[ITEMS]", 0, 600);
  PutSubsection(document, "[ITEMS]", 1200, 600);
  const int stray = PutBox(document, 90000);
  at(stray).OwnerName = "ITEMS]";
  EXPECT_EQ(OwnerIndex(document).OwnerOf(stray), first.bar);
}

TEST_F(Sections, AreFoundForTheirEndBarByRowAndNotByName) {
  PutSubsection(document, "[ITEMS]", 0, 600);
  const PlacedBar second = PutSubsection(document, "[ITEMS]", 1200, 600);
  EXPECT_EQ(OwnerIndex(document).OwnerOf(second.end), second.bar);
}

TEST_F(Sections, WithAndWithoutAColonHaveDifferentNames) {
  const PlacedBar plain = PutSubsection(document, "[ITEMS]", 0, 600);
  const PlacedBar bound = PutSubsection(document, "[ITEMS:]", 1200, 600);
  EXPECT_EQ(at(plain.bar).SectionName, "ITEMS]");
  EXPECT_EQ(at(bound.bar).SectionName, "ITEMS");
}

TEST_F(Sections, DoNotMoveOnceTheyAreLaidOut) {
  PutSubsection(document, "[A]", 50, 600);
  PutSubsection(document, "[B]", 4000, 100);
  PutBox(document, 600);
  PutBox(document, 4450);
  DeriveGeometry(document);
  DeriveGeometry(document);
  std::vector<ObjectRecord> before;
  for (int row = 1; row <= 6; ++row)
    before.push_back(at(row));
  DeriveGeometry(document);
  for (int row = 1; row <= 6; ++row)
    EXPECT_EQ(at(row), before[static_cast<std::size_t>(row) - 1]) << row;
}

TEST_F(Sections, OfAbsurdHeightsStayInsideTheirFields) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  std::vector<int> bars;
  for (int n = 0; n < 4; ++n) {
    const PlacedBar bar = PutSubsection(document, "[A]", n, 0);
    bars.push_back(bar.bar);
    at(bar.bar).EndsAt = n % 2 == 0 ? kMost : std::numeric_limits<std::int32_t>::min();
  }
  at(PutBox(document, kMost)).Height = kMost;
  DeriveGeometry(document);
  EXPECT_EQ(at(bars[0]).AbsoluteY, 0);
  EXPECT_EQ(at(at(bars[0]).EndRow).AbsoluteY, 0) << "400 + the largest number does not fit";
  EXPECT_EQ(at(bars[1]).AbsoluteY, 0) << "nor does the place behind it";
  EXPECT_EQ(at(bars[2]).AbsoluteY, 2 * (400 + 200) - 1) << "the two heights add up to -1";
}

}  // namespace
}  // namespace kev
