// SPDX-License-Identifier: MIT
#include "document/sort_keys.h"

#include <algorithm>
#include <limits>
#include <string>
#include <tuple>

#include "base/numbers.h"
#include "document/position.h"

namespace kev {
namespace {

// Makes each number of a usual page six digits long.
constexpr std::int64_t kKeyOffset = 200000;
constexpr std::int32_t kEndBarX = 799999;

struct Entry {
  std::int32_t y;
  std::int32_t x;
  int row;

  auto operator<=>(const Entry&) const = default;
};

std::string KeyText(const Entry& entry) {
  std::string key = std::to_string(entry.y + kKeyOffset);
  key += std::to_string(entry.x + kKeyOffset);
  key += std::to_string(entry.row + kKeyOffset);
  key.resize(std::min(key.size(), kSortKeyLength));
  return key;
}

}  // namespace

SortedRows SetSortKeys(Document& document) {
  std::vector<Entry> entries;
  SortedRows sorted;
  std::int32_t smallest = std::numeric_limits<std::int32_t>::max();
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    const std::int32_t x = record.Kind == ObjectKind::EndOfSubsection
                               ? kEndBarX
                               : ToInt32(PositionOrZero(record.XValue, document.Columns, *document.Page));
    const Entry& entry = entries.emplace_back(Entry{record.AbsoluteY, x, row});
    record.SortKey = KeyText(entry);
    smallest = std::min(smallest, record.AbsoluteY);
    sorted.BottomMost = std::max(sorted.BottomMost, Fit32(std::int64_t{record.AbsoluteY} + record.Height));
  }
  std::sort(entries.begin(), entries.end());
  sorted.Rows.reserve(entries.size());
  for (const Entry& entry : entries)
    sorted.Rows.push_back(entry.row);
  sorted.SmallestY = entries.empty() ? 0 : smallest;
  return sorted;
}

}  // namespace kev
