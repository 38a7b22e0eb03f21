// SPDX-License-Identifier: MIT
// Snapshots and what follows them.
#include <optional>

#include "app/design_surface.h"
#include "app/designer.h"
#include "app/message_texts.h"
#include "base/text_numbers.h"
#include "surface/selection.h"

namespace kev {

void DesignSurface::PushUndo() {
  Protect();
  undo_.Push(designer_.OpenDocument());
  CommandsChanged();
}

void DesignSurface::MarkChanged() {
  designer_.MarkModified();
  undo_.DropRedo();
  CommandsChanged();
}

void DesignSurface::Protect() {
  designer_.SetModified();
  WriteRecoveryOrTell();
  designer_.ShowCaption();
}

std::optional<FileFailure> DesignSurface::WriteRecovery() {
  return recovery_.Write(InTempFolder(designer_.Folders(), kRecoveryFolder), designer_.Now(),
                         designer_.DocumentTitle(), designer_.OpenDocument(),
                         WriteOptions{designer_.Command().WriterComments()});
}

// Work goes on without a recovery file; a message at each change would only be in its way.
void DesignSurface::WriteRecoveryOrTell() {
  const std::optional<FileFailure> failure = WriteRecovery();
  const bool isTold = std::exchange(recoveryFailed_, failure.has_value());
  if (failure && !isTold)
    designer_.ShowText(kTextWriteFailed, BoxIcon::Critical,
                       failure->path + "\r\n" + ReasonInLanguage(designer_.Texts(), failure->reason));
}

void DesignSurface::DoUndo() {
  if (!undo_.CanUndo()) return;
  Protect();
  undo_.Undo(designer_.OpenDocument());
  ShowLevel();
}

void DesignSurface::DoRedo() {
  if (!undo_.Redo(designer_.OpenDocument())) return;
  // No level is made, so that the file can hold what was brought back.
  Protect();
  ShowLevel();
}

void DesignSurface::ShowLevel() {
  PageWork work = Work();
  HideOverlay(work);
  HideHandles(work);
  ObjectTable& objects = work.document.Objects;
  objects.CurrentObject = 0;
  // The level may have been kept while a group was selected.
  for (int row = 1; row <= objects.LastScanned(); ++row)
    objects[row].Selected = kFalse;
  pointer_.ColumnText.clear();
  designer_.Charts().FlagAll();
  FullRepaint();
  BuildRulers();
}

}  // namespace kev
