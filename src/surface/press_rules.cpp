// SPDX-License-Identifier: MIT
#include "surface/press_rules.h"

#include <utility>

#include "surface/resize_drag.h"
#include "surface/selection.h"

namespace kev {
namespace {

ObjectKind KindOf(const PageWork& work, int row) {
  return std::as_const(work.document).Objects[row].Kind;
}

// Of a box only its edge can be taken: its inside is where other objects are banded together.
bool IsDraggedFromPage(ObjectKind kind) {
  return kind != ObjectKind::Section && kind != ObjectKind::Subsection && kind != ObjectKind::Box;
}

std::unique_ptr<Gesture> BeginOnRow(PageWork& work, int row, CanvasPoint at) {
  const bool hadGroup = work.pointer.MultiSelected;
  SelectObject(work, row);
  if (hadGroup) work.services.FullRepaint();
  return KindOf(work, row) == ObjectKind::AnyLine ? BeginLineEndDrag(work, LineGrip::Whole, at)
                                                  : BeginObjectDrag(work, at);
}

std::unique_ptr<Gesture> BeginOnPage(PageWork& work, CanvasPoint at, int shift) {
  if (InsideGroup(work.pointer, at)) return BeginGroupDrag(work, at);
  if (InsideCurrentBox(work, at)) return BeginBoxDrag(work, at);
  const int row = (shift & kShiftKey) == 0 ? RowUnder(work, at) : 0;
  if (row != 0 && IsDraggedFromPage(KindOf(work, row))) return BeginOnRow(work, row, at);
  return BeginRubberBand(work, at);
}

}  // namespace

bool InsideGroup(const PointerState& pointer, CanvasPoint at) {
  const CanvasArea& bounds = pointer.Bounds;
  return pointer.MultiSelected && at.X > bounds.Left && at.X < bounds.Right && at.Y > bounds.Top &&
         at.Y < bounds.Bottom;
}

bool InsideCurrentBox(const PageWork& work, CanvasPoint at) {
  const Document& document = work.document;
  const int row = document.Objects.CurrentObject;
  if (work.pointer.MultiSelected || KindOf(work, row) != ObjectKind::Box) return false;
  const CanvasArea box = AreaOf(document.Objects[row], document, work.ZoomFactor);
  return at.X >= box.Left && at.X < box.Right && at.Y > box.Top && at.Y < box.Bottom;
}

bool HandleActs(const PageWork& work, int handle) {
  const Document& document = work.document;
  return !work.pointer.MultiSelected && HandleActs(document.Objects[document.Objects.CurrentObject], handle);
}

PointerSource SourceOf(const PageWork& work, const PointerInput& input) {
  if (input.Source == PointerSource::Ruler) return input.Source;
  if (!work.pointer.PendingTool.empty()) return PointerSource::Page;
  if (input.Source == PointerSource::Handle && !HandleActs(work, input.Index)) return PointerSource::Page;
  return input.Source;
}

bool TakesPointer(const PageWork& work, const PointerInput& input) {
  return SourceOf(work, input) == input.Source;
}

int RowUnder(PageWork& work, CanvasPoint at) {
  return work.document.Objects.FocusObject = HitTest(work, at);
}

std::unique_ptr<Gesture> BeginGesture(PageWork& work, const PointerInput& press) {
  if (!work.pointer.PendingTool.empty()) return nullptr;
  const CanvasPoint at{press.X, press.Y};
  switch (SourceOf(work, press)) {
    case PointerSource::Page:
      return BeginOnPage(work, at, press.Shift);
    case PointerSource::Overlay:
      return BeginObjectDrag(work, at);
    case PointerSource::Handle:
      return BeginResize(work, press.Index, at);
    case PointerSource::LineEnd:
      return BeginLineEndDrag(work, press.Index == 1 ? LineGrip::First : LineGrip::Second, at);
    case PointerSource::LineBody:
      return BeginLineEndDrag(work, LineGrip::Whole, at);
    case PointerSource::ColumnLine:
      return BeginColumnDrag(work, press.Index, at);
    case PointerSource::Ruler:
      return nullptr;
  }
  return nullptr;
}

}  // namespace kev
