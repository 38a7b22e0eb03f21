// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace kev {
namespace {

// Up to here each whole number is itself as a double, and its digits are its shortest text.
constexpr double kLargestExact = 1e15;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Most numbers of a template are a few digits and no more. They are worth a way of their own: a page holds
// thousands, and each layout reads them again.
std::optional<int> PlainWhole(std::string_view text) {
  constexpr std::size_t kMostDigits = 9;
  const bool isNegative = text.starts_with('-');
  const std::string_view digits = text.substr(isNegative ? 1 : 0);
  if (digits.empty() || digits.size() > kMostDigits) return std::nullopt;
  int value = 0;
  for (const char c : digits) {
    if (!IsDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return isNegative ? -value : value;
}

// A position that names its column has no number in front.
bool BeginsNoNumber(char first) {
  return !IsDigit(first) && first != '+' && first != '-' && first != '.' && first != ' ';
}

// Collects the characters of the number, so that from_chars sees neither blanks nor a leading plus.
class NumberScanner {
 public:
  explicit NumberScanner(std::string_view text) : text_(text) {}

  std::string Scan() {
    if (Peek() == '-') number_ += '-';
    if (Peek() == '-' || Peek() == '+') ++at_;
    const std::size_t before = number_.size();
    TakeDigits();
    if (Peek() == '.') {
      ++at_;
      number_ += '.';
      TakeDigits();
    }
    if (number_.find_first_of("0123456789", before) == std::string::npos) return {};
    TakeExponent();
    return number_;
  }

 private:
  char Peek() {
    while (at_ < text_.size() && text_[at_] == ' ')
      ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }
  void TakeDigits() {
    while (IsDigit(Peek()))
      number_ += text_[at_++];
  }
  void TakeExponent() {
    if (Peek() != 'e' && Peek() != 'E') return;
    ++at_;
    const std::string mantissa = number_;
    number_ += 'e';
    if (Peek() == '-' || Peek() == '+') number_ += text_[at_++];
    const std::size_t before = number_.size();
    TakeDigits();
    if (number_.size() == before) number_ = mantissa;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::string number_;
};

}  // namespace

double NumericPrefix(std::string_view text) {
  if (text.empty() || BeginsNoNumber(text.front())) return 0;
  if (const std::optional<int> whole = PlainWhole(text)) return *whole;
  const std::string number = NumberScanner(text).Scan();
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc() || !std::isfinite(value)) return 0;
  return value == 0 ? 0 : value;
}

std::string FormatNumber(double value) {
  if (!std::isfinite(value) || value == 0) return "0";
  if (std::abs(value) < kLargestExact && value == std::trunc(value))
    return std::to_string(static_cast<std::int64_t>(value));
  char buffer[512];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
  return result.ec == std::errc() ? std::string(buffer, result.ptr) : std::string("0");
}

double RoundToEven(double value) {
  // Not nearbyint: the rounding mode of the processor is not ours to rely on.
  const double below = std::floor(value);
  const double part = value - below;
  if (part < 0.5) return below;
  if (part > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

std::int32_t ToInt32(double value) {
  const double rounded = RoundToEven(value);
  const bool fits = rounded >= std::numeric_limits<std::int32_t>::min() &&
                    rounded <= std::numeric_limits<std::int32_t>::max();
  return fits ? static_cast<std::int32_t>(rounded) : 0;
}

std::int16_t ToInt16(double value) {
  const std::int32_t whole = ToInt32(value);
  const bool fits =
      whole >= std::numeric_limits<std::int16_t>::min() && whole <= std::numeric_limits<std::int16_t>::max();
  return fits ? static_cast<std::int16_t>(whole) : std::int16_t{0};
}

std::int32_t Fit32(std::int64_t value) {
  const bool fits =
      value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
  return fits ? static_cast<std::int32_t>(value) : 0;
}

}  // namespace kev
