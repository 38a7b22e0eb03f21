// SPDX-License-Identifier: MIT
#include "document/sort_keys.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "document/band_layout.h"
#include "document/position.h"
#include "document/row_view.h"

namespace kev {
namespace {

constexpr std::int32_t kEndBarX = 799999;

struct Entry {
  std::uint64_t place;  // Y, then X
  int row;

  auto operator<=>(const Entry&) const = default;
};

// Numbers that compare as the signed ones do.
constexpr std::uint32_t InOrder(std::int32_t value) {
  return static_cast<std::uint32_t>(value) ^ 0x80000000U;
}

constexpr std::uint64_t PlaceOf(std::int32_t y, std::int32_t x) {
  return std::uint64_t{InOrder(y)} << 32 | InOrder(x);
}

constexpr std::int32_t YOf(std::uint64_t place) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(place >> 32) ^ 0x80000000U);
}

// Most objects of a page stand on a few positions. Remembers those that were met last.
class KnownPositions {
 public:
  explicit KnownPositions(const Document& document) : document_(document) {}

  std::int32_t Of(std::string_view text) {
    if (text.empty()) return 0;
    Known& known = known_[SlotOf(text)];
    if (known.text != text) known = {text, ToInt32(PositionOrZero(text, document_.Columns, *document_.Page))};
    return known.place;
  }

 private:
  // So many that two positions of a page seldom share one.
  static constexpr unsigned kSlotBits = 9;
  struct Known {
    std::string_view text;
    std::int32_t place = 0;
  };

  static std::size_t SlotOf(std::string_view text) {
    std::uint32_t sum = 0;
    for (const char c : text)
      sum = sum * 31 + static_cast<unsigned char>(c);
    return sum * 2654435769U >> (32 - kSlotBits);
  }

  const Document& document_;
  std::array<Known, std::size_t{1} << kSlotBits> known_{};
};

struct Occupied {
  std::vector<Entry> entries;
  std::int32_t bottomMost = 0;
};

// Tells `keep` the place of each row.
template <typename Keep>
Occupied OccupiedRows(const Document& document, RowView rows, const Keep& keep) {
  Occupied occupied;
  occupied.entries.reserve(rows.size());
  KnownPositions positions(document);
  for (std::size_t row = 1; row < rows.size(); ++row) {
    const ObjectRecord& record = *rows[row];
    if (record.Kind == ObjectKind::None) continue;
    const std::int32_t x =
        record.Kind == ObjectKind::EndOfSubsection ? kEndBarX : positions.Of(record.XValue);
    occupied.entries.push_back({PlaceOf(record.AbsoluteY, x), static_cast<int>(row)});
    const std::int32_t bottom = Fit32(std::int64_t{record.AbsoluteY} + record.Height);
    occupied.bottomMost = std::max(occupied.bottomMost, bottom);
    keep(row, x);
  }
  return occupied;
}

// Rows stand almost in their order, as a file holds them and edits leave them, so that few steps put each in
// its place. Where it takes more, they are sorted as any others.
void Sort(std::vector<Entry>& entries) {
  constexpr std::size_t kStepsEach = 16;
  std::size_t steps = 0;
  for (std::size_t next = 1; next < entries.size(); ++next) {
    const Entry entry = entries[next];
    std::size_t at = next;
    for (; at > 0 && entry < entries[at - 1]; --at)
      entries[at] = entries[at - 1];
    entries[at] = entry;
    steps += next - at;
    if (steps > kStepsEach * entries.size()) return std::sort(entries.begin(), entries.end());
  }
}

SortedRows Sorted(Occupied occupied) {
  std::vector<Entry>& entries = occupied.entries;
  Sort(entries);
  SortedRows sorted;
  sorted.Rows.reserve(entries.size());
  for (const Entry& entry : entries)
    sorted.Rows.push_back(entry.row);
  sorted.SmallestY = entries.empty() ? 0 : YOf(entries.front().place);
  sorted.BottomMost = occupied.bottomMost;
  return sorted;
}

}  // namespace

SortedRows SortRows(const Document& document) {
  return Sorted(OccupiedRows(document, RowsOf(document.Objects), [](std::size_t, std::int32_t) {}));
}

SortedRows SetSortKeys(const Document& document, std::span<ObjectRecord* const> rows) {
  const auto store = [&](std::size_t row, std::int32_t x) {
    rows[row]->SortKey = {rows[row]->AbsoluteY, x, static_cast<int>(row)};
  };
  return Sorted(OccupiedRows(document, rows, store));
}

SortedRows SetSortKeys(Document& document) {
  return SetSortKeys(document, RowsOf(document.Objects));
}

}  // namespace kev
