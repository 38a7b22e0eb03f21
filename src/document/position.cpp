// SPDX-License-Identifier: MIT
#include "document/position.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace kev {
namespace {

bool IsOperator(std::string_view token) {
  return token == "+" || token == "-" || token == "*" || token == "/";
}

std::optional<double> Apply(double left, std::string_view operation, double right) {
  double result = 0;
  if (operation == "+") {
    result = left + right;
  } else if (operation == "-") {
    result = left - right;
  } else if (operation == "*") {
    result = left * right;
  } else if (operation == "/" && right != 0) {
    result = left / right;
  } else {
    return std::nullopt;
  }
  return std::isfinite(result) ? result : 0.0;
}

// Blanks are counted before the text is taken apart: a hostile text may hold any number of them.
std::size_t TokenCount(std::string_view text) {
  std::size_t count = 1;
  for (const char c : text)
    count += c == kBlank ? 1 : 0;
  return count;
}

std::optional<double> EvaluateStep(std::string_view text, const ColumnTable& columns, const CodePage& page) {
  const std::string_view from = NthToken(text, 1, kBlank);
  double left = NumericPrefix(from);
  if (from.starts_with('$')) {
    const int slot = columns.Find(from, page);
    left = slot == 0 ? 0.0 : columns[slot].Position;
  }
  return Apply(left, NthToken(text, 2, kBlank), NumericPrefix(NthToken(text, 3, kBlank)));
}

}  // namespace

std::optional<double> EvaluatePosition(std::string_view text, const ColumnTable& columns,
                                       const CodePage& page) {
  const std::size_t count = TokenCount(text);
  if (count == 1) {
    const double number = NumericPrefix(text);
    if (number != 0) return number;
    const int slot = columns.Find(text, page);
    return slot == 0 ? std::nullopt : std::optional(columns[slot].Position);
  }
  return count == 3 ? EvaluateStep(text, columns, page) : std::nullopt;
}

bool ValidatePosition(std::string_view text, const ColumnTable& columns, const CodePage& page) {
  if (NumericPrefix(text) != 0 || Trim(text) == "0") return true;
  const std::size_t count = TokenCount(text);
  if (count == 1) return columns.Find(text, page) != 0;
  if (count != 3) return false;
  const Tokens tokens = SplitTokens(text, kBlank);
  return columns.Find(tokens[1], page) != 0 && IsOperator(tokens[2]);
}

double SnapToStep(double value, double step) {
  if (!(step > 0)) step = 200;
  double upper = 201 * step;
  for (int k = -200; k <= 200; ++k) {
    if (k * step > value) {
      upper = k * step;
      break;
    }
  }
  const double lower = upper - step;
  return value - lower < upper - value ? lower : upper;
}

}  // namespace kev
