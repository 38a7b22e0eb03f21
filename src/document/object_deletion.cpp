// SPDX-License-Identifier: MIT
#include "document/object_deletion.h"

#include <vector>

#include "document/sections.h"

namespace kev {
SortedRows DeleteObject(Document& document, int row) {
  ObjectTable& objects = document.Objects;
  std::vector<int> cleared;
  if (objects[row].Kind == ObjectKind::Subsection) {
    // Looked up before anything is cleared: the index knows the rows by their names.
    const OwnerIndex owners(document);
    for (int owned = 1; owned <= objects.LastScanned(); ++owned) {
      const ObjectKind kind = objects[owned].Kind;
      if (kind != ObjectKind::None && kind != ObjectKind::Subsection && owners.OwnerOf(owned) == row)
        cleared.push_back(owned);
    }
  }
  cleared.push_back(row);
  for (const int each : cleared)
    objects.ClearRow(each);
  return DeriveGeometry(document);
}

}  // namespace kev
