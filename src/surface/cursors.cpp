// SPDX-License-Identifier: MIT
#include <utility>

#include "surface/press_rules.h"

namespace kev {
namespace {

CursorShape OnHandle(int handle) {
  switch (handle) {
    case 4:
      return CursorShape::SizeWidth;
    case 6:
      return CursorShape::SizeHeight;
    default:
      return CursorShape::SizeBoth;
  }
}

CursorShape OnCurrentObject(const PageWork& work) {
  const ObjectTable& objects = work.document.Objects;
  const ObjectRecord& record = objects[objects.CurrentObject];
  if (record.Kind == ObjectKind::EndOfSubsection) return CursorShape::SizeHeight;
  const bool moves = record.MayMoveVertically == kTrue || record.MayMoveHorizontally == kTrue;
  return moves ? CursorShape::Move : CursorShape::Arrow;
}

CursorShape OnPage(const PageWork& work, CanvasPoint at) {
  if (InsideGroup(work.pointer, at)) return CursorShape::Move;
  return InsideCurrentBox(work, at) ? OnCurrentObject(work) : CursorShape::Arrow;
}

}  // namespace

CursorShape CursorAt(const PageWork& work, const PointerInput& input) {
  const PointerState& pointer = work.pointer;
  // What is dragged keeps its shape wherever the pointer gets to.
  if (pointer.ObjectDrag || pointer.BoxDrag) return OnCurrentObject(work);
  if (pointer.LineEndDrag)
    return input.Source == PointerSource::LineEnd ? CursorShape::SizeBoth : OnCurrentObject(work);
  if (pointer.GroupDrag) return CursorShape::Move;
  if (pointer.ColumnDrag) return CursorShape::SizeWidth;
  if (pointer.BandActive || input.Source == PointerSource::Ruler) return CursorShape::Arrow;
  if (!pointer.PendingTool.empty()) return CursorShape::Cross;
  switch (SourceOf(work, input)) {
    case PointerSource::Overlay:
    case PointerSource::LineBody:
      return OnCurrentObject(work);
    case PointerSource::Handle:
      return OnHandle(input.Index);
    case PointerSource::LineEnd:
      return CursorShape::SizeBoth;
    case PointerSource::ColumnLine:
      return CursorShape::SizeWidth;
    case PointerSource::Page:
    case PointerSource::Ruler:
      return OnPage(work, {input.X, input.Y});
  }
  return CursorShape::Arrow;
}

}  // namespace kev
