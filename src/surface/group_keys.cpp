// SPDX-License-Identifier: MIT
#include "surface/group_keys.h"

#include <algorithm>
#include <utility>

#include "surface/frame.h"
#include "surface/object_area.h"
#include "surface/object_description.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr double kFocusGap = 60;  // canvas units; the marks of members lie on their edges

// Gone with the next repaint.
void ShowFocus(PageWork& work) {
  const int row = work.document.Objects.CurrentObject;
  if (row == 0 || !work.pointer.MultiSelected) return;
  CanvasArea area = AreaOf(std::as_const(work.document).Objects[row], work.document, work.ZoomFactor);
  area.Left -= kFocusGap;
  area.Top -= kFocusGap;
  area.Right += kFocusGap;
  area.Bottom += kFocusGap;
  ShowFrame(work.surface, kMarchingFrame, area);
}

// The object behind the current one (`step` 1) or before it that may join a group; 0 where there is none.
int Neighbour(const PageWork& work, int step) {
  std::vector<int> rows = ObjectsInReadingOrder(work);
  const int current = work.document.Objects.CurrentObject;
  std::erase_if(rows, [&](int row) { return row != current && !MayJoinGroup(work, row); });
  if (step < 0) std::reverse(rows.begin(), rows.end());
  auto next = std::find(rows.begin(), rows.end(), current);
  next = next == rows.end() ? rows.begin() : std::next(next);
  return next == rows.end() ? 0 : *next;
}

void GoTo(PageWork& work, int row) {
  work.pointer.KeepPosition(PointOnObject(work, row));
  if (!work.pointer.MultiSelected) return SelectObject(work, row);
  work.document.Objects.CurrentObject = row;
  work.services.SelectionChanged();
}

}  // namespace

GroupKey GroupKeyOf(const PageWork& work, int code, int shift) {
  if (shift != kCtrlKey) return GroupKey::None;
  switch (code) {
    case kKeySpace:
      return MayJoinGroup(work, work.document.Objects.CurrentObject) ? GroupKey::Toggle : GroupKey::None;
    case kKeyRight:
    case kKeyDown:
      return GroupKey::Next;
    case kKeyLeft:
    case kKeyUp:
      return GroupKey::Previous;
    default:
      return GroupKey::None;
  }
}

void ApplyGroupKey(PageWork& work, GroupKey key) {
  if (key == GroupKey::Toggle) {
    ToggleInGroup(work, work.document.Objects.CurrentObject);
  } else if (const int row = Neighbour(work, key == GroupKey::Next ? 1 : -1); row != 0) {
    GoTo(work, row);
  }
  ShowFocus(work);
}

void ToggleInGroup(PageWork& work, int row) {
  ObjectRecord& record = work.document.Objects[row];
  record.Selected = ToFlag(record.Selected != kTrue);
  work.document.Objects.CurrentObject = row;
  HideHandles(work);
  HideOverlay(work);
  work.services.FullRepaint();
}

}  // namespace kev
