// SPDX-License-Identifier: MIT
// How a row that was moved by the pointer comes to rest. All lengths are twips unless they are said to be
// canvas units; what the pointer makes is rounded to whole ones.
#pragma once

#include <cstdint>
#include <string>

#include "surface/page_work.h"

namespace kev {

std::int32_t TwipsOf(double canvasUnits, double zoomFactor);
// A position as a plain number: what was on a column is tied to it no longer.
std::string WholePosition(double twips);

// The step that rows snap to.
double GridStepOf(const Document& document);
bool SnapsToGrid(const ObjectRecord& record);

// Gives a row whose AbsoluteY was set its subsection. Outside all bodies it springs back into the one it came
// from. Returns the bar, 0 without one.
int SettleInBody(Document& document, int row, int cameFrom);
void PlaceInBody(Document& document, int row, int bar, std::int32_t y);

std::int32_t SnappedX(const Document& document, int row);
// The row's Y on the grid of its body; the step below where the nearest one lies outside.
std::int32_t SnappedY(const Document& document, int row, int bar);

// A LINE ends its Width behind its X.
void CarryLineEnd(const Document& document, ObjectRecord& record);

// Settles the row, and snaps it where it is to be snapped.
void ComeToRest(Document& document, int row, int cameFrom);

// The last place of the overlay is where the pointer counts as having been.
void RememberOverlayPlace(PointerState& pointer);

// The drag of the row by its overlay is over: everything from the snapshot to the repaint.
void EndObjectDrag(PageWork& work, int row);
// The same for a BOX that was dragged by its inside to NewLeft, NewTop.
void EndBoxDrag(PageWork& work, int row);

// A BOX's sides stand so far outside it: canvas units at any zoom.
inline constexpr double kBoxBarOffset = 25;

}  // namespace kev
