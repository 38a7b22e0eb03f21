// SPDX-License-Identifier: MIT
// The table of all objects, rows 1 to 2001. ObjectKind::None marks a free row.
#pragma once

#include <stdexcept>
#include <vector>

#include "base/reasons.h"
#include "document/object_record.h"

namespace kev {

class ObjectTable {
 public:
  static constexpr int kLastRow = 2001;
  static constexpr int kFirstCount = 50;

  // An index outside 0 to 2001 throws std::out_of_range; this is how the limit of the table shows.
  // References stay good while the table lives, except that a row which was never asked for to be changed is
  // read from one blank record.
  ObjectRecord& operator[](int row) {
    const std::size_t at = Checked(row);
    if (at >= blocks_.size() * kBlockRows) AddBlocksTo(at);
    return blocks_[at / kBlockRows][at % kBlockRows];
  }
  const ObjectRecord& operator[](int row) const {
    const std::size_t at = Checked(row);
    return at < blocks_.size() * kBlockRows ? blocks_[at / kBlockRows][at % kBlockRows] : Blank();
  }

  // Where loops over the rows end. It grows by ten and may step beyond the table.
  int ObjectCount = kFirstCount;
  int CurrentObject = 0;
  int FocusObject = 0;
  int SelectionCount = 0;

  // Where a loop over the rows ends: ObjectCount, but never behind the table.
  int LastScanned() const { return ObjectCount < kLastRow ? ObjectCount : kLastRow; }

  void GrowIfFull();
  // Grows if needed and gives the first free row; freed rows are used again. Throws std::out_of_range when
  // there is none left, and then nothing has changed.
  int TakeFreeRow();
  void ClearRow(int row);
  // As at start: every row blank and the bound at 50.
  void Restart();

  // Reports a row made free by other means than ClearRow (a row assigned as a whole).
  void RowChanged(int row);

 private:
  static constexpr std::size_t kBlockRows = 16;

  static std::size_t Checked(int row) {
    if (row < 0 || row > kLastRow) throw std::out_of_range(kReasonTooManyObjects);
    return static_cast<std::size_t>(row);
  }
  static const ObjectRecord& Blank();
  void AddBlocksTo(std::size_t row);

  // The rows as far as they were ever asked for; all behind them are blank. Most documents are far smaller
  // than the table. Blocks stay where they are when others are added.
  std::vector<std::vector<ObjectRecord>> blocks_;
  // No row below this one is free, so that filling the table takes one walk and not one for each object.
  int firstMaybeFree_ = 1;
};

}  // namespace kev
