// SPDX-License-Identifier: MIT
#include "document/position.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

constexpr double kNoValue = -987654321;

ColumnTable SomeColumns() {
  ColumnTable columns;
  columns[1] = {"$Col_01", 2400, ""};
  columns[3] = {"$Col_03", 1000, ""};  // slot 2 is free
  columns[4] = {"$Zero", 0, ""};
  columns[5] = {"$Col_03", 7777, ""};  // a repeated name: the first counts
  columns[100] = {"$Col_100", 500.5, ""};
  return columns;
}

struct Row {
  std::string_view text;
  bool isValid;
  double value;  // kNoValue where there is none
};

TEST(Position, IsValidatedAndEvaluatedByItsOwnRules) {
  constexpr Row kRows[] = {
      // numbers
      {"1440", true, 1440},
      {"-120", true, -120},
      {"0.5", true, 0.5},
      {"0", true, kNoValue},
      {" 0 ", true, kNoValue},
      {"0.0", false, kNoValue},
      {"00", false, kNoValue},
      {"-0", false, kNoValue},
      {"", false, kNoValue},
      {" ", false, kNoValue},
      {"abc", false, kNoValue},
      {"100abc", true, 100},
      // columns, in any case
      {"$Col_03", true, 1000},
      {"$col_03", true, 1000},
      {"$COL_03", true, 1000},
      {"$Col_100", true, 500.5},
      {"$Zero", true, 0},
      {"$Gone", false, kNoValue},
      {"$", false, kNoValue},
      {" $Col_03", false, kNoValue},
      // a column and one step
      {"$Col_03 + 120", true, 1120},
      {"$Col_03 - 120", true, 880},
      {"$Col_03 * 2", true, 2000},
      {"$Col_01 / 2", true, 1200},
      {"$col_03 + 120abc", true, 1120},
      {"$Col_03 + x", true, 1000},
      {"$Col_03 + $Col_01", true, 1000},
      {"$Col_01 ^ 2", false, kNoValue},
      {"$Col_03  + 120", false, kNoValue},
      {"$Col_03 +  120", false, kNoValue},
      {"$Col_03 +", false, kNoValue},
      {"$Col_03 + 120 + 1", false, kNoValue},
      {"$Col_03+120", false, kNoValue},
      // an unknown column counts as 0 in a step
      {"$Gone + 120", false, 120},
      {"$Gone - 5", false, -5},
      // numbers pass by their prefix, whatever their value is
      {"12 + 3", true, 15},
      {"120 + 30", true, 150},
      {"5 $Col_01", true, kNoValue},
      {"1 440", true, kNoValue},
      {"10 / 4", true, 2.5},
      {"0 + 7", false, 7},
      {"x + 7", false, 7},
      // nothing can be divided by 0
      {"$Col_01 / 0", true, kNoValue},
      {"$Col_01 / x", true, kNoValue},
      {"120 / 0", true, kNoValue},
  };
  const ColumnTable columns = SomeColumns();
  for (const Row& row : kRows) {
    EXPECT_EQ(ValidatePosition(row.text, columns), row.isValid) << '"' << row.text << '"';
    EXPECT_EQ(EvaluatePosition(row.text, columns).value_or(kNoValue), row.value) << '"' << row.text << '"';
  }
}

TEST(Position, WithoutAValueCountsAsZero) {
  const ColumnTable columns = SomeColumns();
  EXPECT_EQ(PositionOrZero("$Gone", columns), 0);
  EXPECT_EQ(PositionOrZero("5 $Col_01", columns), 0);
  EXPECT_EQ(PositionOrZero("$Col_01 / 0", columns), 0);
  EXPECT_EQ(PositionOrZero("$Gone + 120", columns), 120);
}

TEST(Position, FollowsItsColumn) {
  ColumnTable columns = SomeColumns();
  columns[3].Position = 4000;
  EXPECT_EQ(EvaluatePosition("$Col_03 + 120", columns), 4120);
}

TEST(Position, OfAnyLengthIsEvaluated) {
  const ColumnTable columns = SomeColumns();
  EXPECT_FALSE(EvaluatePosition(std::string(100000, ' '), columns));
  EXPECT_FALSE(ValidatePosition(std::string(100000, ' '), columns));
  EXPECT_EQ(PositionOrZero(std::string(1000, '9') + " * " + std::string(1000, '9'), columns), 0);
}

TEST(SnapToStep, GivesTheNearestMultipleAndTheUpperOneOfATie) {
  struct SnapRow {
    double value, step, snapped;
  };
  constexpr SnapRow kRows[] = {{149, 100, 100},     {150, 100, 200},       {-50, 100, 0},
                               {-51, 100, -100},    {0, 100, 0},           {100, 100, 100},
                               {199.9, 100, 200},   {11000, 50, 10050},    {10050, 50, 10050},
                               {20000, 100, 20000}, {20049, 100, 20000},   {20050, 100, 20100},
                               {99999, 100, 20100}, {-20000, 100, -20000}, {-20001, 100, -20000},
                               {150, 0, 200},       {150, -5, 200},        {40, 0, 0},
                               {7, 2.5, 7.5}};
  for (const SnapRow& row : kRows)
    EXPECT_EQ(SnapToStep(row.value, row.step), row.snapped) << row.value << " by " << row.step;
}

TEST(SnapToStep, LooksAtTwoHundredStepsToEachSide) {
  EXPECT_EQ(SnapToStep(1e9, 100), 20100);
  EXPECT_EQ(SnapToStep(-1e9, 100), -20100);
}

}  // namespace
}  // namespace kev
