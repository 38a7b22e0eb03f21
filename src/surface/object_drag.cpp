// SPDX-License-Identifier: MIT
// The current object follows the pointer by its overlay; the document hears of it at the end.
#include "surface/end_bar_drag.h"
#include "surface/gesture.h"
#include "surface/object_drag_end.h"
#include "surface/overlay_mover.h"
#include "surface/selection.h"

namespace kev {
namespace {

class ObjectDragGesture final : public Gesture {
 public:
  ObjectDragGesture(const PageWork& work, int row, CanvasPoint at) : row_(row), mover_(work, row, at) {}

  void Move(PageWork& work, CanvasPoint at) override { mover_.MoveTo(work, at); }

  void End(PageWork& work, int) override {
    Move(work, {work.pointer.LastX, work.pointer.LastY});
    work.pointer.ObjectDrag = false;
    EndObjectDrag(work, row_);
  }

  void Cancel(PageWork& work) override {
    work.pointer.ObjectDrag = false;
    mover_.PutBack(work);
    ShowCurrentAgain(work);
  }

 private:
  int row_;
  OverlayMover mover_;
};

}  // namespace

std::unique_ptr<Gesture> BeginObjectDrag(PageWork& work, CanvasPoint at) {
  const int row = work.document.Objects.CurrentObject;
  const ObjectRecord& record = work.document.Objects[row];
  if (work.pointer.MultiSelected || !MayMove(record)) return nullptr;
  // A slanted line has grips instead of an overlay.
  if (record.Kind == ObjectKind::AnyLine) return BeginLineEndDrag(work, LineGrip::Whole, at);
  if (record.Kind == ObjectKind::EndOfSubsection) return BeginEndBarDrag(work, at);
  work.pointer.ObjectDrag = true;
  work.pointer.DragX0 = at.X;
  work.pointer.DragY0 = at.Y;
  HideHandles(work);
  return std::make_unique<ObjectDragGesture>(work, row, at);
}

}  // namespace kev
