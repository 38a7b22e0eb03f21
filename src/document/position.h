// SPDX-License-Identifier: MIT
// Position expressions: a number, a column, or a column and one step ("$Col_03 + 120"), separated by single
// blanks. Objects keep the text and never the value, so that they follow their column.
#pragma once

#include <optional>
#include <string_view>

#include "document/columns.h"

namespace kev {

// The value in twips; nothing when the text has none, which counts as 0 wherever a number is needed. An
// unknown column counts as 0 in a step and gives nothing by itself; a division by 0 has no result.
std::optional<double> EvaluatePosition(std::string_view text, const ColumnTable& columns,
                                       const CodePage& page = CodePage::Default());

inline double PositionOrZero(std::string_view text, const ColumnTable& columns,
                             const CodePage& page = CodePage::Default()) {
  return EvaluatePosition(text, columns, page).value_or(0.0);
}

// Whether a text may be stored as a position.
bool ValidatePosition(std::string_view text, const ColumnTable& columns,
                      const CodePage& page = CodePage::Default());

// The multiple of `step` nearest to `value`, a tie going up. Only 200 steps to each side are looked at:
// beyond them the result is the step behind the last. A step of 0 or less counts as 200.
double SnapToStep(double value, double step);

}  // namespace kev
