// SPDX-License-Identifier: MIT
#include "document/sort_keys.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "document/band_layout.h"
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

void StoreKey(std::string& key, const Entry& entry) {
  std::array<char, 64> digits;
  char* end = digits.data();
  for (const std::int32_t part : {entry.y, entry.x, std::int32_t{entry.row}})
    end = std::to_chars(end, digits.data() + digits.size(), part + kKeyOffset).ptr;
  key.assign(digits.data(), std::min(static_cast<std::size_t>(end - digits.data()), kSortKeyLength));
}

struct Occupied {
  std::vector<Entry> entries;
  std::int32_t bottomMost = 0;
};

Occupied OccupiedRows(const Document& document) {
  Occupied occupied;
  occupied.entries.reserve(static_cast<std::size_t>(document.Objects.LastScanned()));
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    const std::int32_t x = record.Kind == ObjectKind::EndOfSubsection
                               ? kEndBarX
                               : ToInt32(PositionOrZero(record.XValue, document.Columns, *document.Page));
    occupied.entries.push_back({record.AbsoluteY, x, row});
    const std::int32_t bottom = Fit32(std::int64_t{record.AbsoluteY} + record.Height);
    occupied.bottomMost = std::max(occupied.bottomMost, bottom);
  }
  return occupied;
}

SortedRows Sorted(Occupied occupied) {
  std::vector<Entry>& entries = occupied.entries;
  std::sort(entries.begin(), entries.end());
  SortedRows sorted;
  sorted.Rows.reserve(entries.size());
  for (const Entry& entry : entries)
    sorted.Rows.push_back(entry.row);
  sorted.SmallestY = entries.empty() ? 0 : entries.front().y;
  sorted.BottomMost = occupied.bottomMost;
  return sorted;
}

}  // namespace

SortedRows SortRows(const Document& document) {
  return Sorted(OccupiedRows(document));
}

SortedRows SetSortKeys(Document& document) {
  Occupied occupied = OccupiedRows(document);
  for (const Entry& entry : occupied.entries)
    StoreKey(document.Objects[entry.row].SortKey, entry);
  return Sorted(std::move(occupied));
}

}  // namespace kev
