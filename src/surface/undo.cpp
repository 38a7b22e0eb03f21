// SPDX-License-Identifier: MIT
#include "surface/undo.h"

namespace kev {

struct UndoLevel {};

void UndoStore::Push(const Document&) {}
bool UndoStore::Undo(Document&) { return false; }
bool UndoStore::Redo(Document&) { return false; }
void UndoStore::DropRedo() {}
void UndoStore::Clear() {}
bool UndoStore::CanUndo() const { return false; }
bool UndoStore::CanRedo() const { return false; }

}  // namespace kev
