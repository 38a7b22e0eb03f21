// SPDX-License-Identifier: MIT
// What the pointer has done on the page so far. There is no press of the left button: a gesture shows in the
// moves, by the button that is down in each, and ends with the first move without one. Lengths are canvas
// units: twips times the zoom factor.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>

#include "document/columns.h"
#include "surface/object_area.h"

namespace kev {

// The state of the keyboard beside a pointer event or a key; a sum of these.
inline constexpr int kShiftKey = 1;
inline constexpr int kCtrlKey = 2;
inline constexpr int kAltKey = 4;

enum class PointerButton : std::uint8_t { None = 0, Left = 1, Right = 2 };

// Stands in LastX and LastY while no position is valid.
inline constexpr double kNoPosition = -10000;

struct CanvasPoint {
  double X = 0, Y = 0;

  bool operator==(const CanvasPoint&) const = default;
};

// What the menu that was opened last stands for.
struct MenuPlace {
  int Slot = 0;       // of the column line below `Contextmen3`
  double RulerX = 0;  // canvas units; where `Contextmen2` was opened
};

struct PointerState {
  // At the last release and at each move of a gesture, not while hovering. They keep their place on the page
  // when the zoom changes.
  double LastX = kNoPosition, LastY = kNoPosition;
  int LastShift = 0;

  double DragX0 = 0, DragY0 = 0;
  bool BandActive = false;
  double BandX0 = 0, BandY0 = 0;
  bool GroupDrag = false;
  bool BoxDrag = false;
  std::int16_t BoxDragObject = 0;
  bool ObjectDrag = false;
  bool ResizeDrag = false;
  bool LineEndDrag = false;
  bool ColumnDrag = false;
  double NewLeft = 0, NewTop = 0;
  // The pointer of the gesture was last over the horizontal ruler.
  bool OverRuler = false;

  // A group exists; its members are the rows whose Selected is -1. Set by each redraw, with the box around
  // the group.
  bool MultiSelected = false;
  CanvasArea Bounds;

  // A rubber band may start: not before a second after the first click in a document.
  bool BandAllowed = false;
  bool AllowPending = false;  // the time of this document runs; that of one that is gone allows nothing
  bool FirstClick = true;  // the next click is the document's first
  // The insertion that waits for a click; empty when there is none.
  std::string PendingTool;
  MenuPlace MenuAt;

  // Where the panels of the current object stand: 1 alone, or 1 to 4 for the sides of a box (top, right,
  // bottom, left). 0 is not used. Kept as real numbers; nothing is ever read back from a widget.
  std::array<CanvasArea, 5> Overlay;
  // The ends of an ANYLINE while its grips show.
  CanvasPoint LineStart, LineEnd;

  // The column whose line the pointer of the gesture was last over; 0 is none.
  int OverLine = 0;
  // What `Combocol` shows.
  std::string ColumnText;
  // The columns that have a line on the surface.
  std::bitset<ColumnTable::kLastSlot + 1> ColumnLines;

  bool HasPosition() const { return LastX != kNoPosition || LastY != kNoPosition; }
  void ForgetPosition() { LastX = LastY = kNoPosition; }
  CanvasPoint LastPoint() const { return {LastX, LastY}; }
  void KeepPosition(CanvasPoint at) {
    LastX = at.X;
    LastY = at.Y;
  }
  bool InGesture() const {
    return BandActive || GroupDrag || BoxDrag || ObjectDrag || ResizeDrag || LineEndDrag || ColumnDrag;
  }
  void ForgetGestures() {
    BandActive = GroupDrag = BoxDrag = ObjectDrag = ResizeDrag = LineEndDrag = ColumnDrag = false;
  }
};

}  // namespace kev
