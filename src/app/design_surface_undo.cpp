// SPDX-License-Identifier: MIT
// Snapshots and what follows them.
#include "app/design_surface.h"
#include "app/designer.h"

namespace kev {

void DesignSurface::PushUndo() {
  designer_.MarkModified();
  undo_.Push(designer_.OpenDocument());
  CommandsChanged();
}

void DesignSurface::MarkChanged() {
  designer_.MarkModified();
  undo_.DropRedo();
  CommandsChanged();
}

void DesignSurface::DoUndo() {
  if (undo_.Undo(designer_.OpenDocument())) ShowLevel();
}

void DesignSurface::DoRedo() {
  if (undo_.Redo(designer_.OpenDocument())) ShowLevel();
}

void DesignSurface::ShowLevel() {
  pointer_.ColumnText.clear();
  FullRepaint();
  BuildRulers();
}

}  // namespace kev
