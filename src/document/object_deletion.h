// SPDX-License-Identifier: MIT
// Taking rows out of the table.
#pragma once

#include "document/document.h"
#include "document/sort_keys.h"

namespace kev {

// Clears the row and lays the page out anew. A subsection takes its end row and the objects in its body with
// it; another subsection of the same name keeps its own. A free row is left alone.
SortedRows DeleteObject(Document& document, int row);

}  // namespace kev
