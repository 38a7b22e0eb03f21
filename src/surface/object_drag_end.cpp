// SPDX-License-Identifier: MIT
#include "surface/object_drag_end.h"

#include "base/numbers.h"
#include "document/kind_defaults.h"
#include "document/position.h"
#include "document/sections.h"

namespace kev {
namespace {

constexpr double kUsualStep = 200;

double XOf(const Document& document, const ObjectRecord& record) {
  return PositionOrZero(record.XValue, document.Columns, *document.Page);
}

bool BodyHolds(const ObjectRecord& bar, std::int32_t y) {
  const std::int64_t top = std::int64_t{bar.AbsoluteY} + kBarHeight;
  return y >= top && y <= top + bar.EndsAt;
}

// How far the corner that a row counts from lies from the top left of its rectangle: only negative sizes and
// anchors set them apart.
CanvasPoint CornerInside(const Document& document, const ObjectRecord& record) {
  const CanvasArea area = AreaOf(record, document, 1);
  return {LeftOf(record, document) - area.Left, record.AbsoluteY - area.Top};
}

void TakeTop(ObjectRecord& record, double top) {
  if (record.MayMoveVertically == kTrue) record.AbsoluteY = ToInt32(top);
}

// Only the three letters count: a row without one keeps its X.
void TakeLeft(ObjectRecord& record, double left) {
  if (record.MayMoveHorizontally != kTrue) return;
  if (record.Align != "L" && record.Align != "R" && record.Align != "C") return;
  switch (AnchorOf(record)) {
    case 'R':
      left += record.Width;
      break;
    case 'C':
      left += record.Width / 2.0;
      break;
    default:
      break;
  }
  record.XValue = WholePosition(left);
}

// X is taken without the zoom, so that a box lands beside where it was dropped unless that is 100 %.
void PlaceBoxByItsBars(ObjectRecord& record, const CanvasArea& topBar, CanvasPoint corner) {
  record.AbsoluteY = Fit32(std::int64_t{record.AbsoluteY} + static_cast<int>(kBoxBarOffset));
  record.XValue = WholePosition(topBar.Left + kBoxBarOffset + corner.X);
}

void TakeOverlayPlace(PageWork& work, ObjectRecord& record) {
  const CanvasArea& overlay = work.pointer.Overlay[1];
  const CanvasPoint corner = CornerInside(work.document, record);
  TakeTop(record, overlay.Top / work.ZoomFactor + corner.Y);
  TakeLeft(record, overlay.Left / work.ZoomFactor + corner.X);
  if (record.Kind == ObjectKind::Box) PlaceBoxByItsBars(record, overlay, corner);
  CarryLineEnd(work.document, record);
}

// Y is moved down by the offset of the bars although NewTop is counted from the box itself.
void TakeNewPlace(const PageWork& work, ObjectRecord& record) {
  const CanvasPoint corner = CornerInside(work.document, record);
  const std::int32_t top = ToInt32(work.pointer.NewTop / work.ZoomFactor + corner.Y);
  record.AbsoluteY = Fit32(std::int64_t{top} + static_cast<int>(kBoxBarOffset));
  record.XValue = WholePosition(work.pointer.NewLeft / work.ZoomFactor + corner.X);
}

}  // namespace

std::int32_t TwipsOf(double canvasUnits, double zoomFactor) {
  return ToInt32(canvasUnits / zoomFactor);
}

std::string WholePosition(double twips) {
  return FormatNumber(ToInt32(twips));
}

double GridStepOf(const Document& document) {
  const std::int32_t spacing = document.Settings.SpacingTwips();
  return spacing > 0 ? spacing : kUsualStep;
}

bool SnapsToGrid(const ObjectRecord& record) {
  return record.AlignToGrid == 1;
}

void PlaceInBody(Document& document, int row, int bar, std::int32_t y) {
  const std::int64_t top = bar == 0 ? 0 : std::int64_t{document.Objects[bar].AbsoluteY} + kBarHeight;
  document.Objects[row].Y = y;
  document.Objects[row].AbsoluteY = Fit32(top + y);
}

int SettleInBody(Document& document, int row, int cameFrom) {
  AssignObjects(document);
  const int bar = OwnerOf(document, row);
  const ObjectRecord& record = document.Objects[row];
  if (bar != 0 && BodyHolds(document.Objects[bar], record.AbsoluteY)) return bar;
  if (cameFrom != 0) PlaceInBody(document, row, cameFrom, record.Y);
  return cameFrom;
}

std::int32_t SnappedX(const Document& document, int row) {
  return ToInt32(SnapToStep(XOf(document, document.Objects[row]), GridStepOf(document)));
}

std::int32_t SnappedY(const Document& document, int row, int bar) {
  const double step = GridStepOf(document);
  const std::int32_t y = document.Objects[row].Y;
  const double snapped = SnapToStep(y, step);
  const bool leaves = bar != 0 && snapped > document.Objects[bar].EndsAt;
  return ToInt32(leaves && snapped > y ? snapped - step : snapped);
}

void CarryLineEnd(const Document& document, ObjectRecord& record) {
  if (record.Kind != ObjectKind::Line) return;
  record.X2Value = WholePosition(XOf(document, record) + record.Width);
}

void ComeToRest(Document& document, int row, int cameFrom) {
  const int bar = SettleInBody(document, row, cameFrom);
  ObjectRecord& record = document.Objects[row];
  if (!SnapsToGrid(record)) return;
  record.XValue = WholePosition(SnappedX(document, row));
  CarryLineEnd(document, record);
  PlaceInBody(document, row, bar, SnappedY(document, row, bar));
}

void RememberOverlayPlace(PointerState& pointer) {
  pointer.LastX = pointer.Overlay[1].Left;
  pointer.LastY = pointer.Overlay[1].Top;
}

void EndObjectDrag(PageWork& work, int row) {
  work.services.PushUndo();
  const int cameFrom = OwnerOf(work.document, row);
  TakeOverlayPlace(work, work.document.Objects[row]);
  ComeToRest(work.document, row, cameFrom);
  RememberOverlayPlace(work.pointer);
  work.services.FullRepaint();
}

void EndBoxDrag(PageWork& work, int row) {
  work.document.Objects.CurrentObject = row;
  work.services.PushUndo();
  const int cameFrom = OwnerOf(work.document, row);
  TakeNewPlace(work, work.document.Objects[row]);
  ComeToRest(work.document, row, cameFrom);
  RememberOverlayPlace(work.pointer);
  work.services.FullRepaint();
}

}  // namespace kev
