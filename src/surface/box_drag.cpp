// SPDX-License-Identifier: MIT
// The current BOX by its inside: only its four sides are shown on their way.
#include "base/numbers.h"
#include "surface/gesture.h"
#include "surface/object_drag_end.h"
#include "surface/overlay_mover.h"
#include "surface/selection.h"

namespace kev {
namespace {

class BoxDragGesture final : public Gesture {
 public:
  BoxDragGesture(const PageWork& work, int row, CanvasPoint at) : mover_(work, row, at) {}

  void Move(PageWork& work, CanvasPoint at) override {
    mover_.MoveTo(work, at);
    work.pointer.NewLeft = work.pointer.Overlay[1].Left + kBoxBarOffset;
    work.pointer.NewTop = work.pointer.Overlay[1].Top + kBoxBarOffset;
  }

  void End(PageWork& work, int) override {
    Move(work, {work.pointer.LastX, work.pointer.LastY});
    work.pointer.BoxDrag = false;
    EndBoxDrag(work, work.pointer.BoxDragObject);
  }

  void Cancel(PageWork& work) override {
    work.pointer.BoxDrag = false;
    mover_.PutBack(work);
    ShowCurrentAgain(work);
  }

 private:
  OverlayMover mover_;
};

// The left edge belongs to the box, the others do not.
bool IsInside(const CanvasArea& area, CanvasPoint at) {
  return at.X >= area.Left && at.X < area.Right && at.Y > area.Top && at.Y < area.Bottom;
}

}  // namespace

std::unique_ptr<Gesture> BeginBoxDrag(PageWork& work, CanvasPoint at) {
  const int row = work.document.Objects.CurrentObject;
  const ObjectRecord& record = work.document.Objects[row];
  if (work.pointer.MultiSelected || record.Kind != ObjectKind::Box || !MayMove(record)) return nullptr;
  if (!IsInside(AreaOf(record, work.document, work.ZoomFactor), at)) return nullptr;
  work.pointer.BoxDrag = true;
  work.pointer.BoxDragObject = ToInt16(row);
  work.pointer.DragX0 = at.X;
  work.pointer.DragY0 = at.Y;
  HideHandles(work);
  return std::make_unique<BoxDragGesture>(work, row, at);
}

}  // namespace kev
