// SPDX-License-Identifier: MIT
// The page's commands, each in one guard.
#include "app/design_surface.h"
#include "app/designer.h"
#include "app/toolbar_table.h"
#include "surface/column_lines.h"
#include "surface/selection.h"

namespace kev {

bool DesignSurface::Run(Command command) {
  // Nothing runs in the middle of a gesture.
  if (!IsPageCommand(command)) return false;
  if (tracker_.Busy() || !Enabled(command)) return true;
  CommitOpenEdits();
  if (command == Command::NewSubsection) {
    OpenSubsection(0);
    return true;
  }
  designer_.Guarded([&] {
    PageWork work = Work();
    switch (command) {
      case Command::Undo:
        return DoUndo();
      case Command::Redo:
        return DoRedo();
      case Command::DeleteObject:
      case Command::DeleteSelection:
        return DeleteSelected(work);
      case Command::SelectAll:
        return SelectAll(work);
      case Command::Properties:
        return designer_.Sheets().Properties();
      case Command::MoveUp:
        return MoveSubsectionUp(work);
      case Command::MoveDown:
        return MoveSubsectionDown(work);
      case Command::SetColumns:
      case Command::InsertColumnHere:
      case Command::RemoveColumn:
      case Command::SetColumn:
      case Command::OrganizeColumns:
        return RunColumnCommand(work, command);
      case Command::Cut:
      case Command::CutContext:
      case Command::CutGroup:
      case Command::Copy:
      case Command::CopyContext:
      case Command::CopyGroup:
      case Command::Paste:
        return RunClipboardCommand(work, command);
      case Command::AlignHorizontally:
      case Command::PlaceAt:
      case Command::AlignToGrid:
      case Command::ModifyEndUser:
      case Command::PrintNoPrint:
        return RunGroupCommand(work, command);
      default:
        if (const auto what = InsertionOf(command)) {
          InsertionWork insertion = Inserting(work);
          InsertFromMenu(insertion, *what);
        }
        return;
    }
  });
  return true;
}

bool DesignSurface::Enabled(Command command) const {
  const ObjectTable& objects = designer_.OpenDocument().Objects;
  const bool current = objects.CurrentObject != 0;
  switch (command) {
    case Command::Undo:
      return undo_.CanUndo();
    case Command::Redo:
      return undo_.CanRedo();
    case Command::DeleteObject:
      return current || pointer_.MultiSelected;
    case Command::Cut:
    case Command::Copy:
      return !TextHasKeys() && (current || pointer_.MultiSelected);
    // They have no keys that a text could want.
    case Command::CutContext:
    case Command::CutGroup:
    case Command::CopyContext:
    case Command::CopyGroup:
      return current || pointer_.MultiSelected;
    case Command::Paste:
      return !TextHasKeys() && !clipboard_.Empty();
    case Command::DeleteSelection:
    case Command::AlignHorizontally:
    case Command::PlaceAt:
    case Command::AlignToGrid:
    case Command::ModifyEndUser:
    case Command::PrintNoPrint:
      return pointer_.MultiSelected;
    case Command::MoveUp:
    case Command::MoveDown:
      return current && objects[objects.CurrentObject].Kind == ObjectKind::Subsection;
    case Command::RemoveColumn:
    case Command::SetColumn:
      return IsColumn(designer_.OpenDocument().Columns, pointer_.MenuAt.Slot);
    default:
      return true;
  }
}

}  // namespace kev
