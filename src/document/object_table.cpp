// SPDX-License-Identifier: MIT
#include "document/object_table.h"

#include <algorithm>
#include <memory>

namespace kev {
namespace {

// In its place: to assign a blank record costs three times as much.
void MakeAnew(ObjectRecord& record) {
  std::destroy_at(&record);
  std::construct_at(&record);
}

}  // namespace

const ObjectRecord& ObjectTable::Blank() {
  static const ObjectRecord blank;
  return blank;
}

void ObjectTable::AddBlocksTo(std::size_t row) {
  while (row >= blocks_.size() * kBlockRows)
    blocks_.emplace_back(kBlockRows);
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
  MakeAnew((*this)[row]);
  RowChanged(row);
}

void ObjectTable::Restart() {
  for (std::vector<ObjectRecord>& block : blocks_)
    std::for_each(block.begin(), block.end(), MakeAnew);
  ObjectCount = kFirstCount;
  CurrentObject = FocusObject = SelectionCount = 0;
  firstMaybeFree_ = 1;
}

void ObjectTable::RowChanged(int row) {
  if (row >= 1) firstMaybeFree_ = std::min(firstMaybeFree_, row);
}

}  // namespace kev
