// SPDX-License-Identifier: MIT
#include "base/numbers.h"
#include "document/object_creation.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

double AnchoredX(PaintContext& context, const ObjectRecord& record) {
  const double x = CanvasX(context, record.XValue);
  switch (AnchorOf(record)) {
    case 'R':
      return x - context.surface.TextWidth(record.Content);
    case 'C':
      return x - context.surface.TextWidth(record.Content) / 2;
    default:
      return x;
  }
}

Rgb BackgroundOf(const ObjectRecord& record) {
  const Colour back = BackColourOf(record);
  // No colour at all, as against an index of the basic ones.
  return back == Colour{-1, -1, -1} ? kWhite : ToRgb(back);
}

bool AsksForBorder(const ObjectRecord& record) {
  const double style = NumericPrefix(record.TextBoxFrameValue.value_or(""));
  return style == 1 || style == 2;
}

}  // namespace

FontSpec ZoomedFont(const PaintContext& context, const ObjectRecord& record) {
  FontSpec font = FontOf(record);
  font.Size *= context.ZoomFactor;
  return font;
}

void PaintLabel(PaintContext& context, const ObjectRecord& record) {
  context.surface.SetFont(ZoomedFont(context, record));
  const double x = AnchoredX(context, record);
  context.surface.PrintText(x, CanvasY(context, record), record.Content);
}

void PaintCommand(PaintContext& context, ObjectRecord& record) {
  MeasureText(record, context.measurer);
  PaintLabel(context, record);
}

void PaintTextBox(PaintContext& context, const ObjectRecord& record) {
  const Rgb textColour = ToRgb(TextColourOf(record));
  const CanvasArea area = AreaOf(record, context.document, context.ZoomFactor);
  SurfaceOps& surface = context.surface;
  surface.DrawRectColour(area.Left, area.Top, area.Right, area.Bottom, BackgroundOf(record), true);
  surface.SetForeground(textColour);
  surface.SetFont(ZoomedFont(context, record));
  surface.PrintText(CanvasX(context, record.XValue), CanvasY(context, record), record.Content);
  if (AsksForBorder(record))
    surface.DrawRectColour(area.Left, area.Top, area.Right, area.Bottom, textColour, false);
}

}  // namespace kev
