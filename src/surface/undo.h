// SPDX-License-Identifier: MIT
// Levels of what the document held. The store only stores: it drives no window and writes no file.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "document/document.h"

namespace kev {

// Rows 1 to ObjectCount as they stood, and name and position of the columns. Settings are not in it. Rows are
// never changed once they are in a level, so that levels may share them.
struct UndoLevel;

class UndoStore {
 public:
  static constexpr int kLastLevel = 20;

  // Keeps the document as it stands, in the level after the present one; behind the last level the oldest
  // is dropped. The levels above are forgotten.
  void Push(const Document& document);
  // Both put another level into the document; false when there is nothing to do.
  bool Undo(Document& document);
  bool Redo(Document& document);
  // The document was changed without a push.
  void DropRedo();
  void Clear();

  bool CanUndo() const;
  bool CanRedo() const;
  int UndoIndex() const { return undoIndex_; }
  int UndoTop() const { return undoTop_; }

 private:
  std::array<std::shared_ptr<const UndoLevel>, kLastLevel + 2> levels_;
  int undoIndex_ = 0;
  int undoTop_ = 0;
};

}  // namespace kev
