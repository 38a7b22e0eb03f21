// SPDX-License-Identifier: MIT
#include "document/object_table.h"

#include <algorithm>
#include <stdexcept>

namespace kev {

static constexpr const char* kTableIsFull = "a template holds at most 2001 objects";

void ObjectTable::GrowIfFull() {
  if (ObjectCount > kLastRow) throw std::out_of_range(kTableIsFull);
  if ((*this)[ObjectCount].Kind != ObjectKind::None) ObjectCount += 10;
}

int ObjectTable::TakeFreeRow() {
  GrowIfFull();
  const int last = LastScanned();
  for (int row = firstMaybeFree_; row <= last; ++row) {
    if ((*this)[row].Kind == ObjectKind::None) {
      firstMaybeFree_ = row;
      return row;
    }
  }
  throw std::out_of_range(kTableIsFull);
}

void ObjectTable::ClearRow(int row) {
  (*this)[row] = ObjectRecord{};
  RowChanged(row);
}

void ObjectTable::Reset() {
  std::fill(rows_.begin() + 1, rows_.begin() + LastScanned() + 1, ObjectRecord{});
  firstMaybeFree_ = 1;
}

void ObjectTable::Restart() {
  std::fill(rows_.begin(), rows_.end(), ObjectRecord{});
  ObjectCount = kFirstCount;
  CurrentObject = FocusObject = SelectionCount = 0;
  firstMaybeFree_ = 1;
}

void ObjectTable::RowChanged(int row) {
  if (row >= 1) firstMaybeFree_ = std::min(firstMaybeFree_, row);
}

}  // namespace kev
