// SPDX-License-Identifier: MIT
// Turns the events of the window into clicks and gestures. It holds no widget and decides nothing that needs
// one: events come in canvas units of the page, whatever they were over.
#pragma once

#include <cstdint>
#include <memory>

#include "surface/gesture.h"
#include "surface/page_work.h"

namespace kev {

// What the pointer is over: the page, a panel of the current object (1 to 4), a handle (1 to 8), an end of a
// line (1, 2), the line between them, a column line (its slot), the horizontal ruler.
enum class PointerSource : std::uint8_t { Page, Overlay, Handle, LineEnd, LineBody, ColumnLine, Ruler };

struct PointerInput {
  PointerSource Source = PointerSource::Page;
  int Index = 0;
  // Of a move: what is held. Of a press or release: what changed.
  PointerButton Button = PointerButton::None;
  int Shift = 0;
  double X = 0, Y = 0;  // canvas units of the page
};

enum class CursorShape : std::uint8_t {
  Arrow,
  Cross,  // a tool waits
  Move,
  SizeWidth,   // a sizing handle, and column lines
  SizeHeight,  // a sizing handle, and end bars
  SizeBoth,
  Beam
};

class PointerTracker {
 public:
  // The window sends a press of either button; a move for each motion, held or not; a release wherever the
  // button came up. A move without a button ends a press like its release does, whichever comes first. Of a
  // double click it sends no second press; after its release it sends DoubleClick.
  void Press(PageWork& work, const PointerInput& input);
  void Move(PageWork& work, const PointerInput& input);
  void Release(PageWork& work, const PointerInput& input);
  void DoubleClick(PageWork& work, const PointerInput& input);
  // Escape, another window, a lost grab, a dialog that opens: the gesture changes nothing. False when none
  // was on.
  bool Cancel(PageWork& work);
  // A gesture is on, or the button is down and one may still begin.
  bool Busy() const { return gesture_ != nullptr || pressed_; }
  bool InGesture() const { return gesture_ != nullptr; }
  // Another document.
  void Reset();

 private:
  void LeftUp(PageWork& work, const PointerInput& input);
  void RightUp(PageWork& work, const PointerInput& input);
  void Follow(PageWork& work, const PointerInput& input);
  // Whether the gesture was no more than a click.
  bool Finish(PageWork& work, int shift);

  std::unique_ptr<Gesture> gesture_;
  PointerInput press_;
  bool pressed_ = false;
  bool refused_ = false;  // this press begins no gesture
};

// What the pointer would do here.
CursorShape CursorAt(const PageWork& work, const PointerInput& input);

}  // namespace kev
