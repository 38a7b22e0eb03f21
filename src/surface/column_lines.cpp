// SPDX-License-Identifier: MIT
#include "surface/column_lines.h"

#include <utility>

#include "base/numbers.h"

namespace kev {

bool IsColumn(const ColumnTable& columns, int slot) {
  return slot >= 1 && slot <= ColumnTable::kLastSlot && !columns[slot].Name.empty();
}

std::string ColumnLineName(int slot) {
  return "linecolumn(" + std::to_string(slot) + ")";
}

std::string ColumnCaption(const Column& column, double left, double zoomFactor) {
  return column.Name + " = " + FormatNumber(RoundToEven(left / zoomFactor));
}

ColumnList ColumnListOf(const ColumnTable& columns, std::string_view text) {
  ColumnList list;
  list.Text = text;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    const Column& column = columns[slot];
    if (!column.Name.empty()) list.Items.push_back(column.Name + " = " + FormatNumber(column.Position));
  }
  list.Enabled = !list.Items.empty();
  return list;
}

void RefreshColumnList(PageWork& work) {
  work.services.ShowColumnList(ColumnListOf(work.document.Columns, work.pointer.ColumnText));
}

void ShowColumnText(PageWork& work, std::string text) {
  work.pointer.ColumnText = std::move(text);
  RefreshColumnList(work);
}

void PlaceColumnLine(PageWork& work, int slot, double left) {
  const std::string name = ColumnLineName(slot);
  work.surface.PlaceWidget(name, left, 0, kColumnLineWidth, work.canvasHeight);
  work.surface.SetWidgetText(name, work.document.Columns[slot].Name);
  work.surface.ShowWidget(name, true);
  work.pointer.ColumnLines.set(static_cast<std::size_t>(slot));
}

void ParkColumnLine(PageWork& work, int slot) {
  const std::string name = ColumnLineName(slot);
  work.surface.PlaceWidget(name, kParkedLine, 0, kColumnLineWidth, work.canvasHeight);
  work.surface.ShowWidget(name, false);
  work.pointer.ColumnLines.reset(static_cast<std::size_t>(slot));
}

void ParkColumnLines(PageWork& work) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    if (work.pointer.ColumnLines.test(static_cast<std::size_t>(slot))) ParkColumnLine(work, slot);
  }
}

void SyncColumnLines(PageWork& work) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    if (IsColumn(work.document.Columns, slot)) {
      PlaceColumnLine(work, slot, RoundToEven(work.ZoomFactor * work.document.Columns[slot].Position));
    } else if (work.pointer.ColumnLines.test(static_cast<std::size_t>(slot))) {
      ParkColumnLine(work, slot);
    }
  }
  RefreshColumnList(work);
}

void HoverColumnLine(PageWork& work, int slot) {
  if (!IsColumn(work.document.Columns, slot)) return;
  const Column& column = work.document.Columns[slot];
  const double left = RoundToEven(work.ZoomFactor * column.Position);
  work.pointer.ColumnText = ColumnCaption(column, left, work.ZoomFactor);
  SyncColumnLines(work);
}

}  // namespace kev
