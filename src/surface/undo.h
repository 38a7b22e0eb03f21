// SPDX-License-Identifier: MIT
// Levels of what the document held. The store only stores: it drives no window and writes no file.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "document/document.h"

namespace kev {

// Rows 1 to ObjectCount as they stood, and name and position of the columns. Settings are not in it. Rows are
// never changed once they are in a level, so that levels may share them.
struct UndoLevel;

// An edit keeps the document in the next level and is made then. Undo keeps what stands now in the level
// above, goes back two and takes the one between; redo goes one forward and takes that. So one press behind
// each change of direction shows what is there already. Level 0 only receives what falls out of level 1.
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

  bool CanUndo() const { return undoIndex_ > 0; }
  bool CanRedo() const;
  int UndoIndex() const { return undoIndex_; }
  // UndoIndex as the last push left it.
  int UndoTop() const { return undoTop_; }
  // The rows that lie in memory; those that levels share count once.
  std::size_t RowsHeld() const;

 private:
  using Level = std::shared_ptr<const UndoLevel>;

  Level Snapshot(const Document& document) const;
  void Keep(const Document& document);
  void Restore(Document& document);

  std::array<Level, kLastLevel + 1> levels_;
  // What the table was last known to be equal to; most of its rows still are.
  Level nearest_;
  int undoIndex_ = 0;
  int undoTop_ = 0;
  // The table is what Redo put there, so that the level it came from still holds it.
  bool redone_ = false;
};

}  // namespace kev
