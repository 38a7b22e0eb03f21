// SPDX-License-Identifier: MIT
#include "surface/end_bar_drag.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"
#include "base/text_numbers.h"
#include "document/kind_defaults.h"
#include "document/sections.h"
#include "surface/object_drag_end.h"
#include "surface/overlay_mover.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr double kRoomBelow = 1000;  // twips

class EndBarDragGesture final : public Gesture {
 public:
  EndBarDragGesture(const PageWork& work, int row, CanvasPoint at)
      : row_(row), mover_(work, row, at), canvasHeight_(work.canvasHeight) {}

  void Move(PageWork& work, CanvasPoint at) override {
    mover_.MoveTo(work, at);
    GrowCanvas(work);
  }

  void End(PageWork& work, int) override {
    Move(work, {work.pointer.LastX, work.pointer.LastY});
    work.pointer.ObjectDrag = false;
    EndEndBarDrag(work, row_);
  }

  void Cancel(PageWork& work) override {
    work.pointer.ObjectDrag = false;
    mover_.PutBack(work);
    if (canvasHeight_ > work.canvasHeight) work.surface.SetCanvasSize(work.canvasWidth, work.canvasHeight);
    ShowCurrentAgain(work);
  }

 private:
  // The bar may be taken below the page.
  void GrowCanvas(PageWork& work) {
    const double bottom = work.pointer.Overlay[1].Bottom;
    if (bottom <= canvasHeight_) return;
    canvasHeight_ = bottom + kRoomBelow * work.ZoomFactor;
    work.surface.SetCanvasSize(work.canvasWidth, canvasHeight_);
  }

  int row_;
  OverlayMover mover_;
  double canvasHeight_;  // canvas units
};

struct BodyChange {
  std::int32_t OldHeight = 0;
  std::int32_t NewHeight = 0;
  bool BelowZero = false;
  bool TooShort = false;   // one of its objects lies below the new end
  std::vector<int> Below;  // what lies below the old end and belongs elsewhere
};

BodyChange HeightFrom(const ObjectRecord& bar, std::int32_t endY) {
  const std::int64_t height = std::int64_t{endY} - bar.AbsoluteY - kBarHeight;
  BodyChange change;
  change.OldHeight = bar.EndsAt;
  change.BelowZero = height < 0;
  change.NewHeight = Fit32(std::max<std::int64_t>(height, 0));
  return change;
}

BodyChange PlanChange(const Document& document, int barRow, std::int32_t endY) {
  const ObjectTable& objects = document.Objects;
  const ObjectRecord& bar = objects[barRow];
  BodyChange change = HeightFrom(bar, endY);
  const std::int64_t top = std::int64_t{bar.AbsoluteY} + kBarHeight;
  const OwnerIndex owners(document);
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& record = objects[row];
    if (record.Kind == ObjectKind::None || row == barRow || row == bar.EndRow) continue;
    const bool owned = !IsBand(record.Kind) && owners.OwnerOf(row) == barRow;
    if (owned && record.AbsoluteY > top + change.NewHeight) change.TooShort = true;
    if (!owned && record.AbsoluteY > top + change.OldHeight) change.Below.push_back(row);
  }
  return change;
}

void ApplyChange(ObjectTable& objects, int barRow, const BodyChange& change) {
  ObjectRecord& bar = objects[barRow];
  ObjectRecord& end = objects[bar.EndRow];
  if (change.BelowZero || bar.SectionCursorY == change.OldHeight) bar.SectionCursorY = change.NewHeight;
  bar.EndsAt = change.NewHeight;
  end.Y = change.NewHeight;
  end.AbsoluteY = Fit32(std::int64_t{bar.AbsoluteY} + kBarHeight + change.NewHeight);
  const std::int64_t delta = std::int64_t{change.NewHeight} - change.OldHeight;
  for (const int row : change.Below)
    objects[row].AbsoluteY = Fit32(objects[row].AbsoluteY + delta);
}

}  // namespace

std::unique_ptr<Gesture> BeginEndBarDrag(PageWork& work, CanvasPoint at) {
  const int row = work.document.Objects.CurrentObject;
  if (OwnerOf(work.document, row) == 0) return nullptr;
  work.pointer.ObjectDrag = true;
  work.pointer.DragX0 = at.X;
  work.pointer.DragY0 = at.Y;
  HideHandles(work);
  return std::make_unique<EndBarDragGesture>(work, row, at);
}

void EndEndBarDrag(PageWork& work, int endRow) {
  work.services.PushUndo();
  const int bar = OwnerOf(work.document, endRow);
  const std::int32_t endY = TwipsOf(work.pointer.Overlay[1].Top, work.ZoomFactor);
  RememberOverlayPlace(work.pointer);
  const BodyChange change = PlanChange(work.document, bar, endY);
  if (change.TooShort)
    work.services.ShowBox(kTextSectionTooShort, BoxIcon::Critical);
  else
    ApplyChange(work.document.Objects, bar, change);
  work.services.BandsChanged();
}

}  // namespace kev
