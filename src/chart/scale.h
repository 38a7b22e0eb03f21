// SPDX-License-Identifier: MIT
// The scale of the value axis: round values 1, 2 or 5 apart, and how they are printed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kev {

struct ChartScale {
  double Low = 0, High = 1, Step = 1;
  std::vector<double> Ticks;  // upwards, the first is Low and the last is High

  // Where a value lies, from 0 at Low to 1 at High; what lies outside is brought to the nearer end.
  double ShareOf(double value) const;
};

// A scale that holds both values with about `steps` steps, and never more than twice as many. A range without
// extent goes from 0 to what is there.
ChartScale MakeScale(double low, double high, int steps);

// A tick's value with the decimals that its step needs; very large and very small ones with an exponent.
std::string TickText(double value, double step);

// Digits before the point in groups of three, from five digits on; any other text stays as it is.
std::string GroupDigits(std::string_view number);

// The value of a point: as the template writes it where that is a plain number, else as a number is printed.
std::string ValueText(std::string_view written, double value);

}  // namespace kev
