// SPDX-License-Identifier: MIT
#include "chart/scale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kev {
namespace {

TEST(MakeScale, TicksAreOneTwoOrFiveApart) {
  struct Row {
    double low, high;
    int steps;
    std::vector<double> ticks;
  };
  const Row kRows[] = {
      {0, 40, 4, {0, 10, 20, 30, 40}},
      {0, 41, 4, {0, 20, 40, 60}},
      {0, 214, 5, {0, 50, 100, 150, 200, 250}},
      {-14, 171, 4, {-50, 0, 50, 100, 150, 200}},
      {27, 43, 4, {25, 30, 35, 40, 45}},
      {0, 0.7, 4, {0, 0.2, 0.4, 0.6, 0.8}},
      {0, 1, 1, {0, 1}},
      {0, 7, 0, {0, 10}},
  };
  for (const Row& row : kRows) {
    const ChartScale scale = MakeScale(row.low, row.high, row.steps);
    ASSERT_EQ(scale.Ticks.size(), row.ticks.size()) << row.low << ' ' << row.high;
    for (std::size_t n = 0; n < row.ticks.size(); ++n)
      EXPECT_NEAR(scale.Ticks[n], row.ticks[n], 1e-9) << row.low << ' ' << row.high;
  }
}

TEST(MakeScale, ARangeWithoutExtentBeginsAtZero) {
  EXPECT_EQ(MakeScale(7, 7, 4).Low, 0);
  EXPECT_GE(MakeScale(7, 7, 4).High, 7);
  EXPECT_EQ(MakeScale(-7, -7, 4).High, 0);
  EXPECT_EQ(MakeScale(0, 0, 4).Low, 0);
  EXPECT_EQ(MakeScale(0, 0, 4).High, 1);
}

TEST(MakeScale, HoldsWhateverItIsGivenInFewSteps) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> digits(-1, 1);
  std::uniform_int_distribution<int> power(-300, 300), steps(0, 12);
  for (int round = 0; round < 5000; ++round) {
    const double a = digits(random) * std::pow(10, power(random));
    const double b = digits(random) * std::pow(10, power(random));
    const int most = steps(random);
    const ChartScale scale = MakeScale(std::min(a, b), std::max(a, b), most);
    const double slack = scale.Step * 1e-6;
    EXPECT_LE(scale.Low, std::min(a, b) + slack);
    EXPECT_GE(scale.High, std::max(a, b) - slack);
    EXPECT_LE(scale.Ticks.size(), static_cast<std::size_t>(2 * std::max(most, 1) + 2));
    for (const double value : {a, b, 1e308, -1e308})
      EXPECT_TRUE(scale.ShareOf(value) >= 0 && scale.ShareOf(value) <= 1) << value;
  }
}

TEST(TickText, HasTheDecimalsOfItsStep) {
  EXPECT_EQ(TickText(0, 0.5), "0");
  EXPECT_EQ(TickText(1.5, 0.5), "1.5");
  EXPECT_EQ(TickText(1, 0.5), "1.0");
  EXPECT_EQ(TickText(-20, 20), "-20");
  EXPECT_EQ(TickText(0.30000000000000004, 0.1), "0.3");
  EXPECT_EQ(TickText(1500000, 500000), "1 500 000");
  EXPECT_EQ(TickText(5e299, 5e299), "5e+299");
  EXPECT_EQ(TickText(2e-9, 1e-9), "2e-09");
}

TEST(GroupDigits, BeginsAtFiveDigitsAndLeavesOtherTextsAlone) {
  EXPECT_EQ(GroupDigits("1234"), "1234");
  EXPECT_EQ(GroupDigits("12345"), "12 345");
  EXPECT_EQ(GroupDigits("-1234567.891"), "-1 234 567.891");
  for (const char* text : {"", "-", ".", "1.", ".5", "1e300", "12a45", "1.2.3", "--12345"})
    EXPECT_EQ(GroupDigits(text), text);
}

TEST(ValueText, KeepsTheDecimalsThatWereWritten) {
  EXPECT_EQ(ValueText(" 12.50 ", 12.5), "12.50");
  EXPECT_EQ(ValueText("98000", 98000), "98 000");
  EXPECT_EQ(ValueText("abc", 0), "0");
  EXPECT_EQ(ValueText("1e300", 1e300), "1e+300");
  EXPECT_EQ(ValueText("", 0), "0");
  EXPECT_EQ(ValueText("0.12345678901234567", 0.12345678901234567), "0.123457");
}

}  // namespace
}  // namespace kev
