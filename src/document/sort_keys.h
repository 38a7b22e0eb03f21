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

// Stores the SortKey of each occupied row and gives the rows in order. Of all that stands at one
// Y an end bar comes last: whatever touches the end of a body is still inside. Numbers are compared as numbers; the
// key is their text, cut to its length.
SortedRows SetSortKeys(Document& document);

}  // namespace kev
