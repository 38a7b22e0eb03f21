// SPDX-License-Identifier: MIT
// The rows of a table up to LastScanned, each looked up once, for work that walks them several times. The
// index is the number of the row; row 0 is the blank one that the table keeps there. Good while the table
// lives and its ObjectCount stays.
#pragma once

#include <span>
#include <vector>

#include "document/document.h"
#include "document/sort_keys.h"

namespace kev {

using RowView = std::span<const ObjectRecord* const>;

template <typename Table>
auto RowsOf(Table& table) {
  std::vector<decltype(&table[0])> rows;
  rows.reserve(static_cast<std::size_t>(table.LastScanned()) + 1);
  for (int row = 0; row <= table.LastScanned(); ++row)
    rows.push_back(&table[row]);
  return rows;
}

// SetSortKeys of rows that are looked up already.
SortedRows SetSortKeys(const Document& document, std::span<ObjectRecord* const> rows);

}  // namespace kev
