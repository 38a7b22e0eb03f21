// SPDX-License-Identifier: MIT
// A handle is dragged: a frame shows the new size, which the object takes at the end.
#include "surface/resize_drag.h"

#include <algorithm>
#include <cstdlib>

#include "base/numbers.h"
#include "document/position.h"
#include "surface/gesture.h"
#include "surface/object_drag_end.h"
#include "surface/selection.h"

namespace kev {
namespace {

// Canvas units.
constexpr double kFrameLine = 15;
constexpr double kLeastSide = 10;

bool SizesBoth(ObjectKind kind) {
  return kind == ObjectKind::Picture || kind == ObjectKind::Box || kind == ObjectKind::Line ||
         kind == ObjectKind::Circle || kind == ObjectKind::Chart;
}

// What a handle takes hold of. A circle is always as high as it is wide.
struct Sides {
  bool Width = false;
  bool Height = false;
};

Sides SidesOf(const ObjectRecord& record, int handle) {
  if (record.Kind == ObjectKind::Circle) return {true, true};
  return {handle != 6, handle != 4};
}

void PlaceFrame(SurfaceOps& surface, const CanvasArea& frame) {
  surface.PlaceWidget("lnh01", frame.Left, frame.Top, frame.Width(), kFrameLine);
  surface.PlaceWidget("lnh02", frame.Left, frame.Bottom, frame.Width(), kFrameLine);
  surface.PlaceWidget("lnv01", frame.Left, frame.Top, kFrameLine, frame.Height());
  surface.PlaceWidget("lnv02", frame.Right, frame.Top, kFrameLine, frame.Height());
}

std::string_view HandleName(int handle) {
  return handle == 4 ? "dot_4" : handle == 5 ? "dot_5" : "dot_6";
}

// Where the handle stands on the frame that it drags.
void PlaceHandleOn(SurfaceOps& surface, int handle, const CanvasArea& frame) {
  const double left = handle == 6 ? (frame.Left + frame.Right - kHandleSide) / 2 : frame.Right;
  const double top = handle == 4 ? (frame.Top + frame.Bottom - kHandleSide) / 2 : frame.Bottom;
  surface.PlaceWidget(HandleName(handle), left, top, kHandleSide, kHandleSide);
}

void ShowFrame(PageWork& work, int handle, const CanvasArea& frame) {
  PlaceFrame(work.surface, frame);
  for (const std::string_view line : {"lnh01", "lnh02", "lnv01", "lnv02"})
    work.surface.ShowWidget(line, true);
  work.surface.ShowWidget(HandleName(handle), true);
}

// The left and top of the frame stay, so that what runs backwards from its X or Y moves that instead.
void TakeWidth(ObjectRecord& record, const CanvasArea& frame, double zoom) {
  const std::int32_t width = TwipsOf(frame.Width(), zoom);
  if (record.Width < 0) record.XValue = WholePosition(frame.Right / zoom);
  record.Width = record.Width < 0 ? -width : width;
  if (record.Kind == ObjectKind::Picture) record.PictureFixedWidth = kTrue;
}

void TakeHeight(ObjectRecord& record, const CanvasArea& frame, double zoom) {
  const std::int32_t height = TwipsOf(frame.Height(), zoom);
  if (record.Height < 0) record.AbsoluteY = TwipsOf(frame.Bottom, zoom);
  record.Height = record.Height < 0 ? -height : height;
  if (record.Kind == ObjectKind::Picture) record.PictureFixedHeight = kTrue;
}

std::int32_t SnappedSize(std::int32_t size, double step) {
  const std::int32_t snapped = std::max(ToInt32(SnapToStep(std::abs(size), step)), ToInt32(step));
  return size < 0 ? -snapped : snapped;
}

// Of a line the far end lies on the grid, not its length.
void SnapLineEnd(const Document& document, ObjectRecord& record, double step) {
  const double x = PositionOrZero(record.XValue, document.Columns, *document.Page);
  const double length = SnapToStep(x + record.Width, step) - x;
  const double least = record.Width < 0 ? std::min(length, -step) : std::max(length, step);
  record.Width = ToInt32(least);
}

void SnapSizes(const Document& document, ObjectRecord& record) {
  const double step = GridStepOf(document);
  if (record.Kind == ObjectKind::Line) return SnapLineEnd(document, record, step);
  record.Width = SnappedSize(record.Width, step);
  record.Height = SnappedSize(record.Height, step);
}

class ResizeGesture final : public Gesture {
 public:
  ResizeGesture(int row, const ObjectRecord& record, int handle, CanvasPoint at, const CanvasArea& frame)
      : row_(row),
        handle_(handle),
        isCircle_(record.Kind == ObjectKind::Circle),
        sides_(SidesOf(record, handle)),
        first_(at),
        start_(frame),
        frame_(frame) {}

  void Move(PageWork& work, CanvasPoint at) override {
    const double width = start_.Width() + at.X - first_.X;
    const double height = start_.Height() + at.Y - first_.Y;
    if (isCircle_) {
      const double side = handle_ == 6 ? height : width;
      Follow(side, side);
    } else {
      Follow(width, height);
    }
    PlaceFrame(work.surface, frame_);
    PlaceHandleOn(work.surface, handle_, frame_);
  }

  void End(PageWork& work, int) override {
    Move(work, {work.pointer.LastX, work.pointer.LastY});
    work.pointer.ResizeDrag = false;
    work.services.PushUndo();
    TakeSize(work.document, work.ZoomFactor);
    HideOverlay(work);
    HideHandles(work);
    work.services.FullRepaint();
  }

  void Cancel(PageWork& work) override {
    work.pointer.ResizeDrag = false;
    HideHandles(work);
    ShowCurrentAgain(work);
  }

 private:
  // A side that would be too short stays as it was.
  void Follow(double width, double height) {
    if (sides_.Width && width > kLeastSide) frame_.Right = frame_.Left + width;
    if (sides_.Height && height > kLeastSide) frame_.Bottom = frame_.Top + height;
  }

  void TakeSize(Document& document, double zoom) const {
    ObjectRecord& record = document.Objects[row_];
    if (sides_.Width) TakeWidth(record, frame_, zoom);
    if (sides_.Height) TakeHeight(record, frame_, zoom);
    if (SnapsToGrid(record)) SnapSizes(document, record);
    CarryLineEnd(document, record);
  }

  int row_;
  int handle_;
  bool isCircle_;
  Sides sides_;
  CanvasPoint first_;
  CanvasArea start_, frame_;
};

}  // namespace

bool HandleActs(const ObjectRecord& record, int handle) {
  if (record.MayResize != kTrue || handle < 4 || handle > 6) return false;
  if (handle == 5) return SizesBoth(record.Kind);
  return handle == 4 || record.Kind != ObjectKind::Label;
}

std::unique_ptr<Gesture> BeginResize(PageWork& work, int handle, CanvasPoint at) {
  const int row = work.document.Objects.CurrentObject;
  const ObjectRecord& record = work.document.Objects[row];
  if (work.pointer.MultiSelected || !HandleActs(record, handle)) return nullptr;
  const CanvasArea frame = AreaOf(record, work.document, work.ZoomFactor);
  work.pointer.ResizeDrag = true;
  work.pointer.DragX0 = at.X;
  work.pointer.DragY0 = at.Y;
  HideHandles(work);
  ShowFrame(work, handle, frame);
  return std::make_unique<ResizeGesture>(row, record, handle, at, frame);
}

}  // namespace kev
