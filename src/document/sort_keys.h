// SPDX-License-Identifier: MIT
// The order of positions: top to bottom, then left to right, then by row. Painting, saving and laying out
// walk it.
#pragma once

#include <cstdint>
#include <vector>

#include "document/document.h"

namespace kev {

struct SortedRows {
  std::vector<int> Rows;        // every occupied row once
  std::int32_t SmallestY = 0;   // AbsoluteY of the topmost row
  std::int32_t BottomMost = 0;  // largest AbsoluteY + Height
};

// Stores the SortKey of each occupied row and gives the rows in order. An end bar sorts behind everything
// that stands at its own Y, so that an object on the last twip of a body belongs to that body. The order is
// that of the numbers, also where they need more digits than the key holds.
SortedRows SetSortKeys(Document& document);

}  // namespace kev
