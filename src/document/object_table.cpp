// SPDX-License-Identifier: MIT
#include "document/object_table.h"

#include <algorithm>
#include <stdexcept>

#include "base/reasons.h"

namespace kev {
namespace {

std::size_t CheckedRow(int row) {
  if (row < 0 || row > ObjectTable::kLastRow) throw std::out_of_range(kReasonTooManyObjects);
  return static_cast<std::size_t>(row);
}

}  // namespace

ObjectRecord& ObjectTable::operator[](int row) {
  const std::size_t at = CheckedRow(row);
  // At its end a deque grows without moving what it holds.
  while (rows_.size() <= at)
    rows_.emplace_back();
  return rows_[at];
}

const ObjectRecord& ObjectTable::operator[](int row) const {
  static const ObjectRecord blank;
  const std::size_t at = CheckedRow(row);
  return at < rows_.size() ? rows_[at] : blank;
}

void ObjectTable::GrowIfFull() {
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
  throw std::out_of_range(kReasonTooManyObjects);
}

void ObjectTable::ClearRow(int row) {
  (*this)[row] = ObjectRecord{};
  RowChanged(row);
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
