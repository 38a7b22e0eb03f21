// SPDX-License-Identifier: MIT
#include "document/columns.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kev {
namespace {

TEST(Columns, HaveAHundredSlots) {
  ColumnTable columns;
  columns[100].Name = "$Col_100";
  EXPECT_EQ(columns.Find("$Col_100"), 100);
  EXPECT_THROW(columns[101], std::out_of_range);
  EXPECT_THROW(columns[-1], std::out_of_range);
}

TEST(Columns, AreFoundInAnyCaseAndTheFirstOfANameCounts) {
  ColumnTable columns;
  columns[4].Name = "$Price\xE9";
  columns[9].Name = "$PRICE\xC9";
  EXPECT_EQ(columns.Find("$price\xC9"), 4);
  EXPECT_EQ(columns.Find("$price"), 0);
}

TEST(Columns, InFreeSlotsMatchNothing) {
  const ColumnTable columns;
  EXPECT_EQ(columns.Find(""), 0);
  EXPECT_EQ(columns.Find("$Col_01"), 0);
}

TEST(Columns, AreEmptyOnceCleared) {
  ColumnTable columns;
  columns[1] = {"$A", 5, "$B"};
  columns.Clear();
  EXPECT_EQ(columns, ColumnTable{});
}

TEST(Columns, AreNamedWithAtLeastTwoDigits) {
  EXPECT_EQ(GeneratedColumnName(7), "$Col_07");
  EXPECT_EQ(GeneratedColumnName(10), "$Col_10");
  EXPECT_EQ(GeneratedColumnName(100), "$Col_100");
}

}  // namespace
}  // namespace kev
