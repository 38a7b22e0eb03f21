// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kev {
namespace {

struct PrefixRow {
  std::string_view text;
  double value;
};

TEST(NumericPrefix, IsTheNumberAtTheStart) {
  constexpr PrefixRow kRows[] = {{"", 0},
                                 {"abc", 0},
                                 {"100abc", 100},
                                 {"12 + 3", 12},
                                 {"1 440", 1440},
                                 {" 7", 7},
                                 {"- 5", -5},
                                 {"+5", 5},
                                 {"--5", 0},
                                 {".5", 0.5},
                                 {"5.", 5},
                                 {"-.25", -0.25},
                                 {".", 0},
                                 {"-", 0},
                                 {"1.2.3", 1.2},
                                 {"1,5", 1},
                                 {"1.5e3", 1500},
                                 {"1.5E-1", 0.15},
                                 {"1e", 1},
                                 {"1e+", 1},
                                 {"e5", 0},
                                 {"0x10", 0},
                                 {"5 $Col_01", 5},
                                 {"$5", 0},
                                 {"007", 7},
                                 {"-0", 0},
                                 {"1 . 5", 1.5},
                                 {"2 e 3", 2000},
                                 {"\t5", 0},
                                 {"12\t3", 12},
                                 {"inf", 0},
                                 {"nan", 0},
                                 {"1e999", 0},
                                 {"-1e999", 0},
                                 {"1e-999", 0},
                                 {"1'000", 1},
                                 {"0.001", 0.001},
                                 {"99999999999", 99999999999.0},
                                 {"100%", 100},
                                 {"5-3", 5},
                                 {"-7", -7},
                                 {"-", 0},
                                 {"999999999", 999999999.0},
                                 {"1234567890", 1234567890.0},
                                 {"-999999999", -999999999.0}};
  for (const PrefixRow& row : kRows)
    EXPECT_EQ(NumericPrefix(row.text), row.value) << row.text;
}

TEST(NumericPrefix, NeverGivesANegativeZero) {
  EXPECT_FALSE(std::signbit(NumericPrefix("-0")));
  EXPECT_FALSE(std::signbit(NumericPrefix("-1e-999")));
}

TEST(FormatNumber, IsTheShortestDecimalTextWithoutAnExponent) {
  struct Row {
    double value;
    std::string_view text;
  };
  for (const Row& row :
       {Row{0, "0"}, Row{-0.0, "0"}, Row{0.5, "0.5"}, Row{-0.5, "-0.5"}, Row{1440, "1440"},
        Row{1e5, "100000"}, Row{0.1, "0.1"}, Row{1e-7, "0.0000001"}, Row{1e21, "1000000000000000000000"},
        Row{999999999999999, "999999999999999"}, Row{1e15, "1000000000000000"},
        Row{-123456789012345, "-123456789012345"}, Row{2.25, "2.25"},
        Row{std::numeric_limits<double>::infinity(), "0"}, Row{std::nan(""), "0"}}) {
    EXPECT_EQ(FormatNumber(row.value), row.text);
  }
}

TEST(FormatNumber, ReadsBackEqual) {
  for (const double value :
       {1.0 / 3, 0.1 + 0.2, 1e300, 5e-324, std::numeric_limits<double>::max(), -123456.789})
    EXPECT_EQ(NumericPrefix(FormatNumber(value)), value);
}

TEST(RoundToEven, GivesTiesToTheEvenNeighbour) {
  struct Row {
    double value, rounded;
  };
  for (const Row& row : {Row{0.5, 0}, Row{1.5, 2}, Row{2.5, 2}, Row{-0.5, 0}, Row{-1.5, -2}, Row{-2.5, -2},
                         Row{2.4, 2}, Row{2.6, 3}, Row{-2.6, -3}, Row{7, 7}}) {
    EXPECT_EQ(RoundToEven(row.value), row.rounded) << row.value;
  }
}

TEST(WholeNumbers, CountAsZeroWhereTheyDoNotFitTheirField) {
  EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
  EXPECT_EQ(ToInt32(2147483648.0), 0);
  EXPECT_EQ(ToInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ToInt32(-2147483649.0), 0);
  EXPECT_EQ(ToInt32(std::nan("")), 0);
  EXPECT_EQ(ToInt32(std::numeric_limits<double>::infinity()), 0);
  EXPECT_EQ(ToInt16(32767), 32767);
  EXPECT_EQ(ToInt16(32768), 0);
  EXPECT_EQ(ToInt16(-32768), -32768);
  EXPECT_EQ(ToInt16(-32769), 0);
  EXPECT_EQ(ToInt16(32767.5), 0);
  EXPECT_EQ(Fit32(std::int64_t{1} << 31), 0);
  EXPECT_EQ(Fit32((std::int64_t{1} << 31) - 1), 2147483647);
}

TEST(WholeNumbers, OfATextAreItsRoundedPrefix) {
  EXPECT_EQ(Int32Of("12.5"), 12);
  EXPECT_EQ(Int32Of("13.5x"), 14);
  EXPECT_EQ(Int32Of("x"), 0);
  EXPECT_EQ(Int16Of("70000"), 0);
  EXPECT_EQ(Int16Of("-1"), -1);
}

}  // namespace
}  // namespace kev
