// SPDX-License-Identifier: MIT
// An ANYLINE by one of its ends, or whole by the line between them.
#include "base/numbers.h"
#include "document/position.h"
#include "document/sections.h"
#include "surface/gesture.h"
#include "surface/object_drag_end.h"
#include "surface/overlay.h"
#include "surface/overlay_mover.h"
#include "surface/selection.h"

namespace kev {
namespace {

double XOf(const Document& document, const ObjectRecord& record) {
  return PositionOrZero(record.XValue, document.Columns, *document.Page);
}

// Not onto the other end: a line must keep a length.
void SnapFirstEnd(Document& document, int row, int bar, CanvasPoint farEnd) {
  ObjectRecord& record = document.Objects[row];
  const ObjectRecord before = record;
  record.XValue = WholePosition(SnappedX(document, row));
  PlaceInBody(document, row, bar, SnappedY(document, row, bar));
  if (XOf(document, record) == farEnd.X && record.AbsoluteY == farEnd.Y) record = before;
}

// The far end stays where it is, whatever becomes of this one.
void TakeFirstEnd(PageWork& work, int row) {
  Document& document = work.document;
  ObjectRecord& record = document.Objects[row];
  const CanvasPoint farEnd{RoundToEven(XOf(document, record) + record.Width),
                           static_cast<double>(record.AbsoluteY) + record.Height};
  const int cameFrom = OwnerOf(document, row);
  record.XValue = WholePosition(work.pointer.LineStart.X / work.ZoomFactor);
  record.AbsoluteY = TwipsOf(work.pointer.LineStart.Y, work.ZoomFactor);
  const int bar = SettleInBody(document, row, cameFrom);
  if (SnapsToGrid(record)) SnapFirstEnd(document, row, bar, farEnd);
  record.Width = ToInt32(farEnd.X - XOf(document, record));
  record.Height = ToInt32(farEnd.Y - record.AbsoluteY);
}

void TakeSecondEnd(PageWork& work, int row) {
  const Document& document = work.document;
  ObjectRecord& record = work.document.Objects[row];
  const CanvasPoint end = work.pointer.LineEnd;
  record.Width = ToInt32(end.X / work.ZoomFactor - XOf(document, record));
  record.Height = ToInt32(end.Y / work.ZoomFactor - record.AbsoluteY);
  if (!SnapsToGrid(record)) return;
  const std::int32_t width = ToInt32(SnapToStep(record.Width, GridStepOf(document)));
  const std::int32_t height = ToInt32(SnapToStep(record.Height, GridStepOf(document)));
  if (width == 0 && height == 0) return;
  record.Width = width;
  record.Height = height;
}

void TakeWholeLine(PageWork& work, int row) {
  ObjectRecord& record = work.document.Objects[row];
  const int cameFrom = OwnerOf(work.document, row);
  if (record.MayMoveHorizontally == kTrue)
    record.XValue = WholePosition(work.pointer.LineStart.X / work.ZoomFactor);
  if (record.MayMoveVertically == kTrue)
    record.AbsoluteY = TwipsOf(work.pointer.LineStart.Y, work.ZoomFactor);
  ComeToRest(work.document, row, cameFrom);
}

class LineEndDragGesture final : public Gesture {
 public:
  LineEndDragGesture(const PageWork& work, LineGrip grip, CanvasPoint at)
      : row_(work.document.Objects.CurrentObject),
        grip_(grip),
        first_(at),
        start_(work.pointer.LineStart),
        end_(work.pointer.LineEnd),
        sideways_(work.document.Objects[row_].MayMoveHorizontally == kTrue),
        upAndDown_(work.document.Objects[row_].MayMoveVertically == kTrue) {}

  void Move(PageWork& work, CanvasPoint at) override {
    if (grip_ != LineGrip::Second) work.pointer.LineStart = Moved(start_, at);
    if (grip_ != LineGrip::First) work.pointer.LineEnd = Moved(end_, at);
    PlaceLineGrips(work, row_);
  }

  void End(PageWork& work, int) override {
    Move(work, {work.pointer.LastX, work.pointer.LastY});
    work.pointer.LineEndDrag = false;
    work.services.PushUndo();
    Take(work);
    work.services.FullRepaint();
  }

  void Cancel(PageWork& work) override {
    work.pointer.LineEndDrag = false;
    work.pointer.LineStart = start_;
    work.pointer.LineEnd = end_;
    PlaceLineGrips(work, row_);
    ShowCurrentAgain(work);
  }

 private:
  CanvasPoint Moved(CanvasPoint point, CanvasPoint at) const {
    if (sideways_) point.X += at.X - first_.X;
    if (upAndDown_) point.Y += at.Y - first_.Y;
    return point;
  }

  void Take(PageWork& work) const {
    switch (grip_) {
      case LineGrip::First:
        return TakeFirstEnd(work, row_);
      case LineGrip::Second:
        return TakeSecondEnd(work, row_);
      case LineGrip::Whole:
        return TakeWholeLine(work, row_);
    }
  }

  int row_;
  LineGrip grip_;
  CanvasPoint first_, start_, end_;
  bool sideways_, upAndDown_;
};

}  // namespace

std::unique_ptr<Gesture> BeginLineEndDrag(PageWork& work, LineGrip grip, CanvasPoint at) {
  const ObjectRecord& record = work.document.Objects[work.document.Objects.CurrentObject];
  if (work.pointer.MultiSelected || record.Kind != ObjectKind::AnyLine || !MayMove(record)) return nullptr;
  work.pointer.LineEndDrag = true;
  work.pointer.DragX0 = at.X;
  work.pointer.DragY0 = at.Y;
  work.surface.ShowWidget("Lineaviva", true);
  return std::make_unique<LineEndDragGesture>(work, grip, at);
}

}  // namespace kev
