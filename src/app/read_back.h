// SPDX-License-Identifier: MIT
// What a saved file gives back, held against what the page shows.
#pragma once

#include <vector>

#include "base/finding.h"
#include "document/document.h"

namespace kev {

struct ReadBack {
  // One for each value, object, setting or column that does not come back; each names the row on the page.
  // What happened is in its kind: its text holds names and values alone, "LABEL Bold: -1 -> 0".
  std::vector<Finding> Findings;
  // For each finding the row of the object in the file; 0 where there is none.
  std::vector<int> FileRows;
  // For each row of the file the one on the page that it stands for; 0 where there is none.
  std::vector<int> PageRows;
  // Whether objects, settings or columns are gone or have appeared, and not only values of them.
  bool Structure = false;

  bool Same() const { return Findings.empty(); }
};

// Both with their geometry derived. Rows are matched by what they are and where they stand, not by their
// index. Only what an object of a kind shows or does is compared.
ReadBack CompareReadBack(const Document& page, const Document& file);

}  // namespace kev
