// SPDX-License-Identifier: MIT
#include "surface/click.h"

#include <utility>

#include "surface/frame.h"
#include "surface/press_rules.h"
#include "surface/selection.h"

namespace kev {
namespace {

// Its edges included.
bool OnBounds(const PointerState& pointer, CanvasPoint at) {
  const CanvasArea& bounds = pointer.Bounds;
  return at.X >= bounds.Left && at.X <= bounds.Right && at.Y >= bounds.Top && at.Y <= bounds.Bottom;
}

bool IsEndBar(const PageWork& work, int row) {
  return std::as_const(work.document).Objects[row].Kind == ObjectKind::EndOfSubsection;
}

void LeaveGroup(PageWork& work) {
  EndGroup(work);
  HideFrame(work.surface, kBandFrame);
  work.services.FullRepaint();
}

void PickOutOfGroup(PageWork& work) {
  SelectObject(work, RowUnder(work, work.pointer.LastPoint()));
  work.services.FullRepaint();
}

// With Shift an object goes into the group or out of it; anything else leaves the group as it is.
void ClickBesideGroup(PageWork& work) {
  if (work.pointer.LastShift != kShiftKey) return;
  if (MayJoinGroup(work, RowUnder(work, work.pointer.LastPoint()))) SelectAtPointer(work);
}

void OpenObjectMenu(PageWork& work, int row) {
  if (row != 0 && !IsEndBar(work, row)) work.services.OpenContextMenu(ContextMenu::Object);
}

void RightClickOnPage(PageWork& work) {
  const CanvasPoint at = work.pointer.LastPoint();
  const bool hadGroup = work.pointer.MultiSelected;
  if (hadGroup && OnBounds(work.pointer, at)) return work.services.OpenContextMenu(ContextMenu::Group);
  const int row = RowUnder(work, at);
  SelectObject(work, row);
  if (hadGroup) work.services.FullRepaint();
  if (row == 0) return work.services.OpenContextMenu(ContextMenu::Edit);
  OpenObjectMenu(work, row);
}

}  // namespace

void CountClick(PageWork& work) {
  PointerState& pointer = work.pointer;
  if (pointer.FirstClick) {
    pointer.FirstClick = false;
    pointer.AllowPending = true;
    work.services.StartAllowTimer(kAllowMilliseconds, [&pointer] {
      if (std::exchange(pointer.AllowPending, false)) pointer.BandAllowed = true;
    });
  }
  ObjectTable& objects = work.document.Objects;
  if (objects.ObjectCount <= ObjectTable::kLastRow) objects.GrowIfFull();
}

void ClickOnPage(PageWork& work) {
  PointerState& pointer = work.pointer;
  if (!pointer.HasPosition()) return;
  const CanvasPoint at = pointer.LastPoint();
  bool picked = false;
  if (InsideGroup(pointer, at) && pointer.LastShift == kCtrlKey) {
    PickOutOfGroup(work);
    picked = true;
  } else if (pointer.MultiSelected && !OnBounds(pointer, at) && pointer.LastShift != kShiftKey) {
    LeaveGroup(work);
  }
  if (!pointer.PendingTool.empty()) return work.services.RunPendingTool();
  if (picked) return;
  if (pointer.MultiSelected) return ClickBesideGroup(work);
  SelectAtPointer(work);
  HideFrame(work.surface, kBandFrame);
}

void RightClick(PageWork& work, const PointerInput& input) {
  PointerState& pointer = work.pointer;
  switch (SourceOf(work, input)) {
    case PointerSource::Page:
      return RightClickOnPage(work);
    case PointerSource::Overlay:
    case PointerSource::Handle:
    case PointerSource::LineEnd:
    case PointerSource::LineBody:
      return OpenObjectMenu(work, work.document.Objects.CurrentObject);
    case PointerSource::ColumnLine:
      pointer.MenuAt.Slot = input.Index;
      return work.services.OpenContextMenu(ContextMenu::ColumnLine);
    case PointerSource::Ruler:
      pointer.MenuAt.RulerX = input.X;
      return work.services.OpenContextMenu(ContextMenu::Ruler);
  }
}

void DoubleClickOnPage(PageWork& work, const PointerInput& input) {
  const PointerSource source = SourceOf(work, input);
  if (source == PointerSource::Ruler || !work.pointer.PendingTool.empty() || work.pointer.MultiSelected)
    return;
  const int current = work.document.Objects.CurrentObject;
  const bool onPage = source == PointerSource::Page || source == PointerSource::ColumnLine;
  const int row = onPage ? RowUnder(work, work.pointer.LastPoint()) : current;
  if (row == 0) return;
  if (row != current) SelectObject(work, row);
  work.services.OpenProperties(row);
}

}  // namespace kev
