// SPDX-License-Identifier: MIT
#include "surface/selection.h"

#include <utility>

#include "base/text_numbers.h"
#include "document/kind_defaults.h"
#include "document/sections.h"
#include "surface/group_keys.h"
#include "surface/overlay.h"
#include "surface/press_rules.h"

namespace kev {
namespace {

bool MayBeCurrent(const PageWork& work, int row) {
  const ObjectRecord& record = std::as_const(work.document).Objects[row];
  return row != 0 && record.Kind != ObjectKind::None && PassesFilter(record, work.filter);
}

void ShowOne(PageWork& work, int row) {
  PlaceHandles(work, row);
  ShowHandles(work, std::as_const(work.document).Objects[row].Handles);
  ShowOverlay(work, row);
}

// The bar between whose head and end the canvas place lies, 0 where there is none.
int SubsectionAt(const PageWork& work, double y) {
  const ObjectTable& objects = work.document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& bar = objects[row];
    if (bar.Kind != ObjectKind::Subsection) continue;
    const double top = bar.AbsoluteY;
    if (top * work.ZoomFactor <= y && y <= (top + kBarHeight + bar.EndsAt) * work.ZoomFactor) return row;
  }
  return 0;
}

}  // namespace

bool MayJoinGroup(const PageWork& work, int row) {
  const ObjectKind kind = std::as_const(work.document).Objects[row].Kind;
  return kind != ObjectKind::None && !IsBand(kind);
}

std::vector<int> GroupMembers(const PageWork& work) {
  const ObjectTable& objects = work.document.Objects;
  std::vector<int> rows;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& record = objects[row];
    const bool isMember = record.Selected == kTrue && MayJoinGroup(work, row);
    if (isMember && PassesFilter(record, work.filter)) rows.push_back(row);
  }
  return rows;
}

void EndGroup(PageWork& work) {
  ObjectTable& objects = work.document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (std::as_const(objects)[row].Selected != kFalse) objects[row].Selected = kFalse;
  objects.SelectionCount = 0;
  work.pointer.MultiSelected = false;
  work.pointer.Bounds = {};
}

void SelectObject(PageWork& work, int row) {
  if (!MayBeCurrent(work, row)) return Deselect(work);
  HideHandles(work);
  HideOverlay(work);
  EndGroup(work);
  work.document.Objects.CurrentObject = row;
  ShowOne(work, row);
  work.services.SelectionChanged();
}

void SelectAtPointer(PageWork& work) {
  const int row = RowUnder(work, work.pointer.LastPoint());
  if (work.pointer.LastShift == kShiftKey && MayJoinGroup(work, row)) return ToggleInGroup(work, row);
  SelectObject(work, row);
}

void ShowCurrentAgain(PageWork& work) {
  HideHandles(work);
  HideOverlay(work);
  int& current = work.document.Objects.CurrentObject;
  if (!MayBeCurrent(work, current)) current = 0;
  if (current != 0 && !work.pointer.MultiSelected) ShowOne(work, current);
}

void Deselect(PageWork& work) {
  HideHandles(work);
  HideOverlay(work);
  EndGroup(work);
  work.document.Objects.CurrentObject = 0;
  work.services.SelectionChanged();
}

void SelectAll(PageWork& work) {
  const int bar = SubsectionAt(work, work.pointer.LastY);
  if (bar == 0) return;
  ObjectTable& objects = work.document.Objects;
  const OwnerIndex owners(work.document);
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    if (std::as_const(objects)[row].Kind == ObjectKind::None) continue;
    ObjectRecord& record = objects[row];
    if (!MayJoinGroup(work, row)) {
      record.Selected = kFalse;
    } else if (PassesFilter(record, work.filter) && owners.OwnerOf(row) == bar) {
      record.Selected = kTrue;
      objects.CurrentObject = 0;
    }
  }
  work.pointer.FirstClick = true;
  work.services.FullRepaint();
}

std::string SelectionText(const PageWork& work) {
  const ObjectTable& objects = work.document.Objects;
  const std::string& word = work.services.Text(kTextObjectsSelected);
  if (work.pointer.MultiSelected) return SelectionStatus(objects.SelectionCount, word);
  return objects.CurrentObject == 0 ? std::string() : "1 " + word;
}

}  // namespace kev
