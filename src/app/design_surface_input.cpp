// SPDX-License-Identifier: MIT
// What the user does on the page. Moves leave the document alone and need no copy of it; the end of a gesture
// may change it.
#include <utility>

#include "app/design_surface.h"
#include "app/designer.h"
#include "surface/group_keys.h"
#include "surface/object_description.h"
#include "surface/selection.h"

namespace kev {

void DesignSurface::PointerPress(const PointerInput& input) {
  CommitOpenEdits();
  designer_.GuardedView([&] {
    PageWork work = Work();
    tracker_.Press(work, input);
  });
}

void DesignSurface::PointerMove(const PointerInput& input) {
  if (!tracker_.Busy()) return HoverColumn(input);
  const auto move = [&] {
    PageWork work = Work();
    tracker_.Move(work, input);
  };
  const auto giveUp = [this] { CancelGesture(); };
  // A move without a button ends a gesture whose release never came.
  if (input.Button == PointerButton::None) {
    if (!designer_.Guarded(move)) giveUp();
  } else {
    designer_.GuardedView(move, giveUp);
  }
}

void DesignSurface::PointerRelease(const PointerInput& input) {
  if (!designer_.Guarded([&] {
        PageWork work = Work();
        tracker_.Release(work, input);
      }))
    CancelGesture();
}

void DesignSurface::DoubleClick(const PointerInput& input) {
  designer_.Guarded([&] {
    PageWork work = Work();
    tracker_.DoubleClick(work, input);
  });
}

void DesignSurface::CancelGesture() {
  designer_.GuardedView([this] {
    PageWork work = Work();
    tracker_.Cancel(work);
  });
}

CursorShape DesignSurface::Cursor(const PointerInput& input) {
  return CursorAt(Work(), input);
}

bool DesignSurface::KeyDown(int code, int shift, std::string_view text) {
  if (code == kKeyEscape) {
    bool taken = false;
    designer_.GuardedView([&] {
      PageWork work = Work();
      taken = tracker_.Cancel(work);
      if (taken) return;
      if (!pointer_.PendingTool.empty()) {
        pointer_.PendingTool.clear();
        CommandsChanged();
      } else if (edit_.Active()) {
        CancelTextEdit(work, edit_);
      } else if (pointer_.MultiSelected) {
        EndGroup(work);
        FullRepaint();
      } else {
        return;
      }
      taken = true;
    });
    return taken;
  }
  if (Busy()) return false;
  if (const GroupKey key = GroupKeyOf(Work(), code, shift); key != GroupKey::None) {
    CommitOpenEdits();
    return designer_.GuardedView([&] {
      PageWork work = Work();
      ApplyGroupKey(work, key);
      const int current = work.document.Objects.CurrentObject;
      if (current != 0) designer_.ShowArea(DescribeObject(work, current).Area);
    });
  }
  switch (EffectOfKey(Work(), code, shift)) {
    case KeyEffect::Nothing:
      return false;
    case KeyEffect::Delete:
      return Run(Command::DeleteObject);
    case KeyEffect::NextObject:
      return StepObject(1);
    case KeyEffect::PreviousObject:
      return StepObject(-1);
    case KeyEffect::EditText:
      return designer_.GuardedView([&] {
        PageWork work = Work();
        BeginTextEdit(work, edit_);
        if (!text.empty()) ChangeText(work, edit_, edit_.Text + std::string(text));
      });
  }
  return false;
}

bool DesignSurface::StepObject(int step) {
  const int row = NeighbourInReadingOrder(Work(), step);
  if (row != 0) PickObject(row);
  return row != 0;
}

void DesignSurface::PickObject(int row) {
  if (Busy()) return;
  CommitOpenEdits();
  designer_.GuardedView([&] {
    PageWork work = Work();
    const bool hadGroup = pointer_.MultiSelected;
    pointer_.KeepPosition(PointOnObject(work, row));
    SelectObject(work, row);
    if (hadGroup) FullRepaint();
    designer_.ShowArea(DescribeObject(work, row).Area);
  });
}

void DesignSurface::OpenMenuByKey() {
  if (Busy()) return;
  const ObjectTable& objects = std::as_const(designer_).OpenDocument().Objects;
  const ObjectKind kind = objects[objects.CurrentObject].Kind;
  const bool hasMenu = kind != ObjectKind::None && kind != ObjectKind::EndOfSubsection;
  if (pointer_.MultiSelected) return OpenContextMenu(ContextMenu::Group);
  OpenContextMenu(hasMenu ? ContextMenu::Object : ContextMenu::Edit);
}

void DesignSurface::CommitOpenEdits() {
  if (DesignerView* view = designer_.View()) view->CommitOpenCell();
  EndFieldScreen(true);
}

void DesignSurface::FieldTextChanged(std::string text) {
  designer_.GuardedView([&] {
    PageWork work = Work();
    ChangeText(work, edit_, std::move(text));
  });
}

void DesignSurface::EndFieldScreen(bool keep) {
  if (!edit_.Active()) return;
  designer_.Guarded([&] {
    PageWork work = Work();
    if (keep)
      CommitTextEdit(work, edit_);
    else
      CancelTextEdit(work, edit_);
  });
}

}  // namespace kev
