// SPDX-License-Identifier: MIT
#include "base/numbers.h"
#include "document/position.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

void SetShapePen(PaintContext& context, ObjectRecord& record, bool mayBeDotted) {
  if (record.LineWidth == 0) record.LineWidth = 1;
  const bool dotted = mayBeDotted && record.LineFlag == kTrue;
  context.surface.SetPen(ToRgb(TextColourOf(record)), record.LineWidth,
                         dotted ? PenStyle::Dotted : PenStyle::Solid);
}

}  // namespace

void PaintBox(PaintContext& context, ObjectRecord& record) {
  SetShapePen(context, record, true);
  const CanvasArea area = AreaOf(record, context.document, context.ZoomFactor);
  context.surface.DrawRect(area.Left, area.Top, area.Right, area.Bottom, record.Filled == kTrue);
  RestorePen(context.surface);
}

// Always level: the height of a LINE is that of its handles.
void PaintLine(PaintContext& context, ObjectRecord& record) {
  SetShapePen(context, record, true);
  const Document& document = context.document;
  const double from = PositionOrZero(record.XValue, document.Columns, *document.Page);
  const double to = PositionOrZero(record.X2Value, document.Columns, *document.Page);
  record.Width = ToInt32(to - from);
  const double y = CanvasY(context, record);
  context.surface.DrawLine(from * context.ZoomFactor, y, to * context.ZoomFactor, y);
  RestorePen(context.surface);
}

void PaintAnyLine(PaintContext& context, ObjectRecord& record) {
  SetShapePen(context, record, true);
  const double x = CanvasX(context, record.XValue);
  const double y = CanvasY(context, record);
  context.surface.DrawLine(x, y, x + record.Width * context.ZoomFactor,
                           y + record.Height * context.ZoomFactor);
  RestorePen(context.surface);
}

// Round by its width alone.
void PaintCircle(PaintContext& context, ObjectRecord& record) {
  SetShapePen(context, record, false);
  const double radius = record.Width * context.ZoomFactor / 2;
  context.surface.DrawCircle(CanvasX(context, record.XValue) + radius, CanvasY(context, record) + radius,
                             radius);
  RestorePen(context.surface);
}

}  // namespace kev
