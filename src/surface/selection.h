// SPDX-License-Identifier: MIT
// The one current object with its overlay and handles, and the group.
#pragma once

#include <string_view>
#include <vector>

#include "surface/page_work.h"

namespace kev {

// Canvas units; the place of a handle is that of its whole square.
inline constexpr double kHandleSide = 105;

// The row under the point, 0 where there is none. The smallest object wins, then the lower row; where none
// is hit, thin lines are looked for, then what is too flat to be hit. Hidden rows are passed over.
int HitTest(const PageWork& work, CanvasPoint at);

// Shows the overlay and the handles of the row and makes it the only selected one; 0 deselects.
void SelectObject(PageWork& work, int row);
// Picks what lies under LastX, LastY; with Shift the row joins or leaves the group.
void SelectAtPointer(PageWork& work);
// The overlay and handles of the current row once more, after a repaint; deselects a row that has gone or
// that the filter hides. A group shows none.
void ShowCurrentAgain(PageWork& work);
// Nothing is current any more.
void Deselect(PageWork& work);
// No row is selected any more; the current one stays. The page must be painted anew.
void EndGroup(PageWork& work);

// All handles, the ends of a line, its rubber line and the marching frame.
void HideHandles(PageWork& work);
// The panels of the current object.
void HideOverlay(PageWork& work);
// `mask` has a "1" for each of the eight handles to show; empty or blank shows all. Hides none.
void ShowHandles(PageWork& work, std::string_view mask);
void PlaceHandles(PageWork& work, int row);
// The four sides of the current BOX, 25 units outside it.
void ShowBoxOverlay(PageWork& work, int row);

// SECTION, SUBSECTION and end bars are no members of a group.
bool MayJoinGroup(const PageWork& work, int row);
// The members of the group that the page shows, in the order of their rows: no command changes the others
// unseen.
std::vector<int> GroupMembers(const PageWork& work);

void SelectAll(PageWork& work);

// The status panel's text for what is selected now.
std::string SelectionText(const PageWork& work);

}  // namespace kev
