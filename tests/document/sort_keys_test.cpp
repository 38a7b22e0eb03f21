// SPDX-License-Identifier: MIT
#include "document/sort_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/documents.h"

namespace kev {
namespace {

using test::PutBox;
using test::PutSubsection;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SortKeys, JoinPlaceAndRowAsThreeNumbersOfSixDigits) {
  Document document;
  const int row = PutBox(document, 1234, "5678");
  SetSortKeys(document);
  EXPECT_EQ(document.Objects[row].SortKey.Text(), "201234205678200001");
}

TEST(SortKeys, HoldWholeTwips) {
  Document document;
  const int row = PutBox(document, -1, "0.5");
  const int second = PutBox(document, 0, "1.5");
  SetSortKeys(document);
  EXPECT_EQ(document.Objects[row].SortKey.Text(), "199999200000200001");
  EXPECT_EQ(document.Objects[second].SortKey.Text(), "200000200002200002");
}

TEST(SortKeys, EvaluateTheExpression) {
  Document document;
  document.Columns[1] = {"$Col_01", 2400, ""};
  const int row = PutBox(document, 0, "$Col_01 + 100");
  const int dangling = PutBox(document, 0, "$Gone");
  SetSortKeys(document);
  EXPECT_EQ(document.Objects[row].SortKey.Text(), "200000202500200001");
  EXPECT_EQ(document.Objects[dangling].SortKey.Text(), "200000200000200002");
}

TEST(SortedRows, GoFromTopToBottomThenFromLeftToRightThenByRow) {
  Document document;
  const int low = PutBox(document, 900, "0");
  const int right = PutBox(document, 100, "500");
  const int left = PutBox(document, 100, "-500");
  const int leftToo = PutBox(document, 100, "-500");
  EXPECT_THAT(SetSortKeys(document).Rows, ElementsAre(left, leftToo, right, low));
}

TEST(SortedRows, PutAnEndBarBehindAllThatStandsAtItsOwnY) {
  Document document;
  const auto bar = PutSubsection(document, "[ITEMS]", 0, 600);
  const int box = PutBox(document, 1000, "90000");
  EXPECT_THAT(SetSortKeys(document).Rows, ElementsAre(bar.bar, box, bar.end));
  EXPECT_EQ(document.Objects[bar.end].SortKey.Text(), "201000999999200002");
}

// In text the first would come last: -200001 makes a key that begins with "-1", 900000 one of seven digits.
TEST(SortedRows, FollowTheNumbersAlsoWhereTheKeyIsTooShort) {
  Document document;
  const int far = PutBox(document, 900000, "0");
  const int above = PutBox(document, -200001, "0");
  const int wide = PutBox(document, 0, "1000000");
  const int middle = PutBox(document, 0, "500000");
  EXPECT_THAT(SetSortKeys(document).Rows, ElementsAre(above, middle, wide, far));
  EXPECT_LE(document.Objects[far].SortKey.Text().size(), 18U);
}

TEST(SortedRows, HoldEveryOccupiedRowOnceAlsoWhereKeysCollide) {
  Document document;
  // Beyond six digits the row number falls off the end of the key.
  const int first = PutBox(document, 5000000, "5000000");
  const int second = PutBox(document, 5000000, "5000000");
  EXPECT_THAT(SetSortKeys(document).Rows, ElementsAre(first, second));
}

TEST(SortedRows, TellTheTopmostAndTheBottommostPlace) {
  Document document;
  document.Objects[PutBox(document, 300)].Height = 50;
  document.Objects[PutBox(document, -20)].Height = 5000;
  const SortedRows sorted = SetSortKeys(document);
  EXPECT_EQ(sorted.SmallestY, -20);
  EXPECT_EQ(sorted.BottomMost, 4980);
}

// Few steps put rows in order that are almost so; these are far from it.
TEST(SortedRows, AreInOrderHoweverTheRowsLie) {
  Document document;
  constexpr int kRows = 400;
  for (int n = 0; n < kRows; ++n)
    PutBox(document, 1000 - n / 2 * 7, std::to_string(n % 2 == 0 ? 50 : -50));
  const std::vector<int> rows = SetSortKeys(document).Rows;
  ASSERT_EQ(rows.size(), std::size_t{kRows});
  for (std::size_t n = 0; n < rows.size(); ++n)
    EXPECT_EQ(rows[n], kRows - static_cast<int>(n)) << n;
}

TEST(SortKeys, AreThoseOfTheirOwnPositionAmongAnyOthers) {
  Document document;
  document.Columns[1] = {"$Col_01", 2400, ""};
  const auto positionOf = [](int n) {
    return (n % 3 == 0 ? "$Col_01 + " : "") + std::to_string(n * 37 % 1000 + 1);
  };
  constexpr int kRows = 700;
  for (int n = 0; n < kRows; ++n)
    PutBox(document, 0, positionOf(n));
  SetSortKeys(document);
  for (int n = 0; n < kRows; ++n) {
    const int x = (n % 3 == 0 ? 2400 : 0) + n * 37 % 1000 + 1;
    const std::string key = "200000" + std::to_string(200000 + x) + std::to_string(200000 + n + 1);
    EXPECT_EQ(document.Objects[n + 1].SortKey.Text(), key) << positionOf(n);
  }
}

TEST(SortedRows, OfAnEmptyTableAreNone) {
  Document document;
  const SortedRows sorted = SetSortKeys(document);
  EXPECT_THAT(sorted.Rows, IsEmpty());
  EXPECT_EQ(sorted.SmallestY, 0);
  EXPECT_EQ(sorted.BottomMost, 0);
}

}  // namespace
}  // namespace kev
