// SPDX-License-Identifier: MIT
// The lines that show the columns on the page, and the list of columns in the toolbar. Positions in the table
// are twips; places on the surface are canvas units.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "surface/page_work.h"

namespace kev {

// Where a line without a column and a guide without a drag are put, hidden.
inline constexpr double kParkedLine = -2000;
inline constexpr double kParkedGuide = -3000;
inline constexpr double kColumnLineWidth = 15;  // one logical pixel; what reacts to the pointer may be wider

// What `Combocol` holds and shows.
struct ColumnList {
  std::vector<std::string> Items;  // "$Col_01 = 2400", in the order of the slots
  std::string Text;
  bool Enabled = false;

  bool operator==(const ColumnList&) const = default;
};

// Whether the slot is one of the table's and not free.
bool IsColumn(const ColumnTable& columns, int slot);

// "linecolumn(7)".
std::string ColumnLineName(int slot);
// "$Col_01 = 2400", where the column's line would stand at `left`.
std::string ColumnCaption(const Column& column, double left, double zoomFactor);

ColumnList ColumnListOf(const ColumnTable& columns, std::string_view text);
// The list in the toolbar follows the table and keeps its text.
void RefreshColumnList(PageWork& work);
// The list shows this text; that is no choice of the user's.
void ShowColumnText(PageWork& work, std::string text);

// The slot's line, over the whole height of the canvas. It carries the name of its column.
void PlaceColumnLine(PageWork& work, int slot, double left);
void ParkColumnLine(PageWork& work, int slot);
// For a document that goes.
void ParkColumnLines(PageWork& work);
// Every line stands where its column is, lines of free slots are gone, and the list is refreshed. Runs behind
// each painting of the page.
void SyncColumnLines(PageWork& work);

// The pointer is over the line with no button held.
void HoverColumnLine(PageWork& work, int slot);

}  // namespace kev
