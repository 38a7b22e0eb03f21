// SPDX-License-Identifier: MIT
// The table of all objects, rows 1 to 2001. ObjectKind::None marks a free row.
#pragma once

#include <deque>

#include "document/object_record.h"

namespace kev {

class ObjectTable {
 public:
  static constexpr int kLastRow = 2001;
  static constexpr int kFirstCount = 50;

  // An index outside 0 to 2001 throws std::out_of_range; this is how the limit of the table shows.
  // References stay good while the table lives, except that a row which was never asked for to be changed is
  // read from one blank record.
  ObjectRecord& operator[](int row);
  const ObjectRecord& operator[](int row) const;

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
  // The rows that were ever asked for; all behind them are blank. Most documents are far smaller than the
  // table, and the undo store holds many of them.
  std::deque<ObjectRecord> rows_;
  // No row below this one is free, so that filling the table takes one walk and not one for each object.
  int firstMaybeFree_ = 1;
};

}  // namespace kev
