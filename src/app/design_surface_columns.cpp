// SPDX-License-Identifier: MIT
// Columns: their commands, the list in the toolbar, the pointer over a line.
#include "app/column_runs.h"
#include "app/design_surface.h"
#include "app/designer.h"
#include "surface/column_commands.h"
#include "surface/column_lines.h"

namespace kev {

void DesignSurface::RunColumnCommand(PageWork& work, Command command) {
  const int slot = pointer_.MenuAt.Slot;
  switch (command) {
    case Command::InsertColumnHere:
      return InsertColumnHere(work);
    case Command::RemoveColumn:
      return RemoveColumn(work, slot);
    case Command::OrganizeColumns:
      return OrganizeColumns(work, [this] { return SavedTemplateText(designer_.DocumentPath()); });
    case Command::SetColumns: {
      ColumnsDialogRun run(designer_);
      if (DesignerView* view = designer_.View()) view->OpenColumnsDialog(run);
      return;
    }
    case Command::SetColumn: {
      SetColumnRun run(designer_, slot);
      if (DesignerView* view = designer_.View()) view->OpenSetThisColumn(run);
      return;
    }
    default:
      return;
  }
}

void DesignSurface::ChooseColumn(int item) {
  CommitOpenEdits();
  designer_.Guarded([&] {
    PageWork work = Work();
    const ColumnList list = ColumnListOf(work.document.Columns, {});
    // What was chosen in the middle of a gesture is put back.
    if (tracker_.Busy()) return RefreshColumnList(work);
    UseColumn(work, list.Items.at(static_cast<std::size_t>(item)));
  });
}

void DesignSurface::HoverColumn(const PointerInput& input) {
  if (input.Source != PointerSource::ColumnLine || input.Button != PointerButton::None) return;
  designer_.GuardedView([&] {
    PageWork work = Work();
    HoverColumnLine(work, input.Index);
  });
}

void DesignSurface::ShowColumnList(const ColumnList& list) {
  if (DesignerView* view = designer_.View()) view->ShowColumnList(list);
}

}  // namespace kev
