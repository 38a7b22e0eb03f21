// SPDX-License-Identifier: MIT
// What the pointer does while the left button is held: each gesture is a small state of its own. It begins
// when the pointer has moved three logical pixels from where it was pressed, and ends with the first move
// without a button. Until then the document is not touched.
#pragma once

#include <memory>

#include "surface/page_work.h"

namespace kev {

class Gesture {
 public:
  virtual ~Gesture() = default;

  // The pointer moved with the button held.
  virtual void Move(PageWork& work, CanvasPoint at) = 0;
  // It was let go at LastX, LastY. `shift` is the state of the keyboard then.
  virtual void End(PageWork& work, int shift) = 0;
  // Given up: nothing has changed, and the surface shows what it did before.
  virtual void Cancel(PageWork& work) = 0;
  // Behind End: whether it was so small that it counts as a click.
  virtual bool WasClick() const { return false; }
};

enum class LineGrip : std::uint8_t { First, Second, Whole };

// Each sets its flag in PointerState, shows what is dragged and gives the gesture; nothing when the object
// does not allow it. `at` is where the button was pressed.
std::unique_ptr<Gesture> BeginRubberBand(PageWork& work, CanvasPoint at);
std::unique_ptr<Gesture> BeginGroupDrag(PageWork& work, CanvasPoint at);
// The current object by its overlay; an end bar resizes its subsection.
std::unique_ptr<Gesture> BeginObjectDrag(PageWork& work, CanvasPoint at);
// The current BOX by its inside.
std::unique_ptr<Gesture> BeginBoxDrag(PageWork& work, CanvasPoint at);
// `handle` is 4, 5 or 6.
std::unique_ptr<Gesture> BeginResize(PageWork& work, int handle, CanvasPoint at);
std::unique_ptr<Gesture> BeginLineEndDrag(PageWork& work, LineGrip grip, CanvasPoint at);
// Where a column line is let go decides how it is snapped.
std::unique_ptr<Gesture> BeginColumnDrag(PageWork& work, int slot, CanvasPoint at);

}  // namespace kev
