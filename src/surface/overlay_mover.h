// SPDX-License-Identifier: MIT
// The panels of the current object on their way with the pointer.
#pragma once

#include <array>

#include "surface/page_work.h"

namespace kev {

// Whether the pointer may take the row anywhere.
bool MayMove(const ObjectRecord& record);

// Keeps where the panels stood when the drag began, so that each step is counted from there.
class OverlayMover {
 public:
  OverlayMover(const PageWork& work, int row, CanvasPoint at);

  // All panels go alike, each way only where the row may go.
  void MoveTo(PageWork& work, CanvasPoint at) const;
  void PutBack(PageWork& work) const { MoveTo(work, first_); }

 private:
  std::array<CanvasArea, 5> start_;
  CanvasPoint first_;
  bool sideways_, upAndDown_;
};

}  // namespace kev
