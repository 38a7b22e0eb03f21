// SPDX-License-Identifier: MIT
#include "chart/scale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr double kSmallestRange = 1e-280;
constexpr double kLargestPlain = 1e12;
constexpr double kSmallestPlain = 1e-6;
constexpr std::size_t kLongestWritten = 14;
constexpr std::ptrdiff_t kUngroupedDigits = 4;

// 1, 2 or 5 times a power of ten, at least `raw`.
double RoundStep(double raw) {
  const double power = std::pow(10, std::floor(std::log10(raw)));
  const double digit = raw / power;
  for (const double round : {1.0, 2.0, 5.0})
    if (digit <= round * (1 + 1e-9)) return round * power;
  return 10 * power;
}

std::string Printed(double value, std::chars_format format, int precision) {
  std::array<char, 64> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value, format, precision);
  return error == std::errc() ? std::string(text.data(), end) : std::string("0");
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsPlainNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const bool digits = std::any_of(text.begin(), text.end(), IsDigit);
  const bool rest = std::all_of(text.begin(), text.end(), [](char c) { return IsDigit(c) || c == '.'; });
  return digits && rest && std::count(text.begin(), text.end(), '.') <= 1 && !text.starts_with('.') &&
         !text.ends_with('.');
}

bool IsPlainSize(double value) {
  const double size = std::abs(value);
  return size < kLargestPlain && (size == 0 || size >= kSmallestPlain);
}

}  // namespace

double ChartScale::ShareOf(double value) const {
  const double range = High - Low;
  return range > 0 ? std::clamp((value - Low) / range, 0.0, 1.0) : 0;
}

ChartScale MakeScale(double low, double high, int steps) {
  if (high - low < kSmallestRange) {
    low = std::min(low, 0.0);
    high = std::max(high, 0.0);
  }
  if (high - low < kSmallestRange) low = 0, high = 1;
  ChartScale scale;
  scale.Step = RoundStep((high - low) / std::max(1, steps));
  const double first = std::floor(low / scale.Step + 1e-9);
  const double last = std::max(std::ceil(high / scale.Step - 1e-9), first + 1);
  for (double n = first; n <= last; ++n)
    scale.Ticks.push_back(n * scale.Step);
  scale.Low = scale.Ticks.front();
  scale.High = scale.Ticks.back();
  return scale;
}

std::string TickText(double value, double step) {
  if (value == 0) return "0";
  if (std::abs(value) >= kLargestPlain || step < kSmallestPlain)
    return Printed(value, std::chars_format::general, 4);
  const int decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)));
  return GroupDigits(Printed(value, std::chars_format::fixed, decimals));
}

std::string GroupDigits(std::string_view number) {
  if (!IsPlainNumber(number)) return std::string(number);
  const auto first = std::find_if(number.begin(), number.end(), IsDigit);
  const auto end = std::find(number.begin(), number.end(), '.');
  std::string text(number.begin(), first);
  for (auto digit = first; digit != end; ++digit) {
    const auto left = end - digit;
    if (digit != first && left % 3 == 0 && end - first > kUngroupedDigits) text += kBlank;
    text += *digit;
  }
  return text.append(end, number.end());
}

std::string ValueText(std::string_view written, double value) {
  const std::string_view trimmed = Trim(written);
  if (trimmed.size() <= kLongestWritten && IsPlainNumber(trimmed)) return GroupDigits(trimmed);
  if (!IsPlainSize(value)) return Printed(value, std::chars_format::general, 4);
  const std::string text = FormatNumber(value);
  return text.size() <= kLongestWritten ? GroupDigits(text) : Printed(value, std::chars_format::general, 6);
}

}  // namespace kev
