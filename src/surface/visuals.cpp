// SPDX-License-Identifier: MIT
#include "surface/visuals.h"

#include <algorithm>
#include <array>
#include <limits>

#include "document/position.h"
#include "surface/null_surface.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

constexpr double kMarkSide = 75;
constexpr double kLeastBounds = 75;
constexpr Rgb kMarkFill = 0xF5F5F5;
constexpr Rgb kMarkEdge = 0x0000FF;

void DrawMark(SurfaceOps& surface, double x, double y) {
  surface.DrawRectColour(x, y, x + kMarkSide, y + kMarkSide, kMarkFill, true);
  surface.DrawRectColour(x, y, x + kMarkSide, y + kMarkSide, kMarkEdge, false);
}

void DrawCornerMarks(SurfaceOps& surface, const CanvasArea& area) {
  const double right = area.Right - kMarkSide;
  const double bottom = area.Bottom - kMarkSide;
  DrawMark(surface, area.Left, area.Top);
  DrawMark(surface, right, area.Top);
  DrawMark(surface, right, bottom);
  DrawMark(surface, area.Left, bottom);
}

void Widen(CanvasArea& bounds, const CanvasArea& area) {
  bounds.Left = std::min(bounds.Left, area.Left);
  bounds.Top = std::min(bounds.Top, area.Top);
  bounds.Right = std::max(bounds.Right, area.Right);
  bounds.Bottom = std::max(bounds.Bottom, area.Bottom);
}

// A group of flat objects must still be wide enough to be taken hold of.
void KeepClickable(CanvasArea& bounds) {
  bounds.Right = std::max(bounds.Right, bounds.Left + kLeastBounds);
  bounds.Bottom = std::max(bounds.Bottom, bounds.Top + kLeastBounds);
}

bool HasForeground(ObjectKind kind) {
  return kind != ObjectKind::None && !IsBand(kind) && kind != ObjectKind::Chart &&
         kind != ObjectKind::Picture;
}

void PaintByKind(PaintContext& context, ObjectRecord& record, int row) {
  switch (record.Kind) {
    case ObjectKind::None:
      return;
    case ObjectKind::Section:
      return PaintSection(context, record);
    case ObjectKind::Subsection:
      return PaintSubsection(context, record);
    case ObjectKind::EndOfSubsection:
      return PaintEndOfSubsection(context, record);
    case ObjectKind::Command:
      return PaintCommand(context, record);
    case ObjectKind::Box:
      return PaintBox(context, record);
    case ObjectKind::Chart:
      return PaintChart(context, record, row);
    case ObjectKind::Line:
      return PaintLine(context, record);
    case ObjectKind::Circle:
      return PaintCircle(context, record);
    case ObjectKind::AnyLine:
      return PaintAnyLine(context, record);
    case ObjectKind::Picture:
      return PaintPicture(context, record);
    case ObjectKind::Barcode:
      return PaintBarcode(context, record, row);
    case ObjectKind::Qr:
      return PaintQr(context, record, row);
    case ObjectKind::Label:
      return PaintLabel(context, record);
    case ObjectKind::TextBox:
      return PaintTextBox(context, record);
  }
}

}  // namespace

bool PassesFilter(const ObjectRecord& record, DisplayFilter filter) {
  if (IsBand(record.Kind)) return true;
  switch (filter) {
    case DisplayFilter::All:
      return true;
    case DisplayFilter::Ebeu:
      return record.ModifiableByEndUser == 1;
    case DisplayFilter::Print:
      return record.PrintFlag == kTrue;
  }
  return true;
}

Rgb ToRgb(const Colour& colour) {
  const Colour plain = NormaliseColour(colour);
  return static_cast<Rgb>(plain.Red) << 16 | static_cast<Rgb>(plain.Green) << 8 |
         static_cast<Rgb>(plain.Blue);
}

double CanvasX(const PaintContext& context, std::string_view expression) {
  const Document& document = context.document;
  return PositionOrZero(expression, document.Columns, *document.Page) * context.ZoomFactor;
}

void PaintObject(PaintContext& context, int row) {
  ObjectRecord& record = context.document.Objects[row];
  if (HasForeground(record.Kind)) context.surface.SetForeground(ToRgb(TextColourOf(record)));
  PaintByKind(context, record, row);
}

PaintResult RedrawDocument(PaintContext& context, const SortedRows& sorted) {
  BarcodeState own;
  if (context.bars == nullptr) {
    PaintContext withState = context;
    withState.bars = &own;
    return RedrawDocument(withState, sorted);
  }
  context.bars->Stopped.clear();
  RestorePen(context.surface);
  PaintResult result;
  constexpr double kFar = std::numeric_limits<double>::max();
  CanvasArea bounds{kFar, kFar, -kFar, -kFar};
  for (const int row : sorted.Rows) {
    const ObjectRecord& record = context.document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    if (!PassesFilter(record, context.filter)) {
      // What can't be seen is no member of a group: nothing may happen to it behind the user's back.
      if (record.Selected == kTrue) context.document.Objects[row].Selected = kFalse;
      continue;
    }
    PaintObject(context, row);
    if (record.Selected != kTrue) continue;
    DrawCornerMarks(context.surface, MarkedAreaOf(record, context.document, context.ZoomFactor));
    Widen(bounds, AreaOf(record, context.document, context.ZoomFactor));
    ++result.SelectionCount;
  }
  if (result.SelectionCount > 0) {
    KeepClickable(bounds);
    result.SelectionBounds = bounds;
  }
  return result;
}

void ApplyRedrawWriteBack(Document& document, const TextMeasurer& measurer, DisplayFilter filter,
                          const WorkImages& images, BarcodeState* bars) {
  NullSurface surface;
  PaintContext context{.document = document,
                       .surface = surface,
                       .measurer = measurer,
                       .filter = filter,
                       .images = images,
                       .pictures = {},
                       .bars = bars};
  RedrawDocument(context, SetSortKeys(document));
}

std::string SelectionStatus(int selectionCount, std::string_view selectedWord) {
  if (selectionCount <= 1) return {};
  std::string status = std::to_string(selectionCount);
  status += ' ';
  status += selectedWord;
  return status;
}

}  // namespace kev
