// SPDX-License-Identifier: MIT
#include "surface/overlay_mover.h"

namespace kev {
namespace {

constexpr std::array<std::string_view, 5> kPanels = {"", "lblob(1)", "lblob(2)", "lblob(3)", "lblob(4)"};

CanvasArea Shifted(const CanvasArea& area, double dx, double dy) {
  return {area.Left + dx, area.Top + dy, area.Right + dx, area.Bottom + dy};
}

}  // namespace

bool MayMove(const ObjectRecord& record) {
  return record.MayMoveVertically == kTrue || record.MayMoveHorizontally == kTrue;
}

OverlayMover::OverlayMover(const PageWork& work, int row, CanvasPoint at)
    : start_(work.pointer.Overlay),
      first_(at),
      sideways_(work.document.Objects[row].MayMoveHorizontally == kTrue),
      upAndDown_(work.document.Objects[row].MayMoveVertically == kTrue) {}

void OverlayMover::MoveTo(PageWork& work, CanvasPoint at) const {
  const double dx = sideways_ ? at.X - first_.X : 0;
  const double dy = upAndDown_ ? at.Y - first_.Y : 0;
  for (std::size_t panel = 1; panel < start_.size(); ++panel) {
    // Only a box has the panels behind the first.
    if (panel > 1 && start_[panel] == CanvasArea{}) continue;
    const CanvasArea place = Shifted(start_[panel], dx, dy);
    work.pointer.Overlay[panel] = place;
    work.surface.PlaceWidget(kPanels[panel], place.Left, place.Top, place.Width(), place.Height());
  }
}

}  // namespace kev
