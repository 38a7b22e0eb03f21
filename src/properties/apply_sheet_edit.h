// SPDX-License-Identifier: MIT
// Storing what was typed into a property sheet.
#pragma once

#include <span>
#include <string>

#include "properties/sheet.h"
#include "properties/sheet_work.h"

namespace kev {

// The text that a row of the grid holds now.
struct RowEdit {
  int Row = 0;  // from 1
  std::string Text;
};

struct SheetOutcome {
  // All rows anew, for what is selected behind the edit.
  Sheet Shown;
  // The row that is selected because its value was put back without a box; 0 leaves the grid where it is.
  int SelectRow = 0;
  // The text, size or place of a QR was changed beside the page: its image shows something else now.
  bool QrImageIsOld = false;
};

// Stores the rows whose text is no longer what the sheet wrote into them, in the order of the rows, and
// paints the page anew. A value that is refused shows its box and is put back, and the walk goes on. One
// snapshot is taken for the whole edit, also where everything is refused, and none where no text differs. An
// edit for an object that is no longer current, or for another place, stores nothing. Called in the
// designer's guard, when a cell is committed and before anything else acts on the document.
SheetOutcome ApplySheetEdit(SheetWork& work, const Sheet& sheet, std::span<const RowEdit> edits);

// What the button of a row does; nothing is stored for it, and no snapshot taken.
SheetAction ActionOf(const Sheet& sheet, int row);

}  // namespace kev
