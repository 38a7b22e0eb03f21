// SPDX-License-Identifier: MIT
// Where everything comes to stand when the bands are laid out one below another, of a document that stays as
// it is.
#pragma once

#include <cstdint>
#include <vector>

#include "document/sort_keys.h"

namespace kev {

// For each row of the table.
struct BandLayout {
  std::vector<std::int32_t> AbsoluteY;
  std::vector<std::int32_t> SectionCursorY;
};

// What SetSortKeys gives, without storing the keys.
SortedRows SortRows(const Document& document);

// Lays the bands out one below another in the given order, and the objects with them.
BandLayout LayOutBands(const Document& document, const SortedRows& sorted);
void StoreLayout(Document& document, const SortedRows& sorted, const BandLayout& layout);

// The bar of each row, 0 for a row without one, as the rows stand in the layout.
std::vector<int> OwnersIn(const Document& document, const BandLayout& layout);

}  // namespace kev
