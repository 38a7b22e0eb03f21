// SPDX-License-Identifier: MIT
#include "document/object_deletion.h"

#include <vector>

#include "document/sections.h"

namespace kev {
namespace {

bool IsBar(const ObjectRecord& record) {
  return record.Kind == ObjectKind::Section || record.Kind == ObjectKind::Subsection;
}

}  // namespace

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

bool CheckMovable(const ObjectTable& objects) {
  if (objects.SelectionCount <= 1) return !IsBar(objects[objects.CurrentObject]);
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    if (objects[row].Selected != kFalse && IsBar(objects[row])) return false;
  }
  return true;
}

}  // namespace kev
