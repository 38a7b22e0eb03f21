// SPDX-License-Identifier: MIT
// Any bytes as a position; the first line names a column.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/numbers.h"
#include "base/text.h"
#include "document/position.h"
#include "document/typed_position.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kev;
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  Document document;
  ColumnTable& columns = document.Columns;
  // The names of columns begin with "$"; one that looks like a number would be one.
  if (!rest.empty()) columns[1] = {'$' + std::string(TakeLine(rest)), 2400, ""};
  ValidatePosition(rest, columns);
  const double value = PositionOrZero(rest, columns);
  if (!std::isfinite(value) || NumericPrefix(FormatNumber(value)) != value) std::abort();
  if (ToInt16(value) != 0 && ToInt16(value) != ToInt32(value)) std::abort();
  for (const double step : {0.0, 0.5, 100.0, value}) {
    if (std::isnan(SnapToStep(value, step))) std::abort();
  }
  // What may be stored means the same once it is stored.
  if (const std::string_view typed = Trim(rest); MayBePosition(typed, document)) {
    const std::string stored = StoredPosition(typed);
    if (!MayBePosition(stored, document) || StoredPosition(stored) != stored) std::abort();
    const bool plain = typed.find(kBlank) == std::string_view::npos;
    if (plain && PositionOrZero(stored, columns) != PositionOrZero(typed, columns)) std::abort();
  }
  return 0;
}
