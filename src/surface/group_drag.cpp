// SPDX-License-Identifier: MIT
#include <utility>

#include "base/numbers.h"
#include "document/position.h"
#include "surface/frame.h"
#include "surface/gesture.h"
#include "surface/press_rules.h"
#include "surface/selection.h"

namespace kev {
namespace {

// Whole twips.
struct Delta {
  double X = 0, Y = 0;
};

void MoveRow(Document& document, ObjectRecord& record, Delta by) {
  // A place that was tied to a column is a plain number from now on.
  const auto moved = [&](const std::string& position) {
    return FormatNumber(RoundToEven(PositionOrZero(position, document.Columns, *document.Page) + by.X));
  };
  record.AbsoluteY = ToInt32(record.AbsoluteY + by.Y);
  record.XValue = moved(record.XValue);
  if (record.Kind == ObjectKind::Line) record.X2Value = moved(record.X2Value);
}

class GroupDrag final : public Gesture {
 public:
  void Move(PageWork& work, CanvasPoint at) override {
    const PointerState& pointer = work.pointer;
    const double x = at.X - pointer.DragX0, y = at.Y - pointer.DragY0;
    const CanvasArea& bounds = pointer.Bounds;
    ShowFrame(work.surface, kMarchingFrame,
              {bounds.Left + x, bounds.Top + y, bounds.Right + x, bounds.Bottom + y});
  }

  void End(PageWork& work, int) override {
    const PointerState& pointer = work.pointer;
    const Delta by{RoundToEven((pointer.LastX - pointer.DragX0) / work.ZoomFactor),
                   RoundToEven((pointer.LastY - pointer.DragY0) / work.ZoomFactor)};
    Cancel(work);
    work.services.PushUndo();
    ObjectTable& objects = work.document.Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (std::as_const(objects)[row].Selected == kTrue) MoveRow(work.document, objects[row], by);
    HideHandles(work);
    work.services.FullRepaint();
  }

  void Cancel(PageWork& work) override {
    work.pointer.GroupDrag = false;
    HideFrame(work.surface, kMarchingFrame);
  }
};

}  // namespace

std::unique_ptr<Gesture> BeginGroupDrag(PageWork& work, CanvasPoint at) {
  PointerState& pointer = work.pointer;
  if (!InsideGroup(pointer, at)) return nullptr;
  pointer.GroupDrag = true;
  pointer.DragX0 = at.X;
  pointer.DragY0 = at.Y;
  ShowFrame(work.surface, kMarchingFrame, pointer.Bounds);
  return std::make_unique<GroupDrag>();
}

}  // namespace kev
