// SPDX-License-Identifier: MIT
#include "barcode/barcode_kinds.h"
#include "base/numbers.h"
#include "document/position.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

BarResult Paint(PaintContext& context, const BarRequest& request) {
  BarcodeState own;
  BarcodeState& state = context.bars != nullptr ? *context.bars : own;
  switch (BarPainterOf(request.Kind)) {
    case BarPainter::None:
      return {};
    case BarPainter::Code39:
      return Code39Painter(context.surface, state, request);
    case BarPainter::Module:
      return ModulePainter(context.surface, state, request);
    case BarPainter::Code128:
      return Code128Painter(context.surface, state, request);
  }
  return {};
}

// As stored: what the zoom multiplies here is decided by who calls.
BarRequest RequestOf(const PaintContext& context, const ObjectRecord& record) {
  const Document& document = context.document;
  return {.Kind = Int32Of(record.BarcodeKind),
          .Text = record.BarcodeSample,
          .X = PositionOrZero(record.XValue, document.Columns, *document.Page),
          .Y = static_cast<double>(record.AbsoluteY),
          .Height = static_cast<double>(record.Height),
          .BarWidth = static_cast<double>(record.BarWidth),
          .IsVertical = IsVerticalBarcode(record),
          .ZoomFactor = context.ZoomFactor,
          .Colour = ToRgb(TextColourOf(record))};
}

// Code 128 and vertical codes stand where the record says, whatever the zoom, and only their bars follow it.
bool StandsUnzoomed(const BarRequest& request) {
  return request.IsVertical || BarPainterOf(request.Kind) == BarPainter::Code128;
}

BarRequest Zoomed(BarRequest request) {
  for (double* value : {&request.X, &request.Y, &request.Height, &request.BarWidth})
    *value *= request.ZoomFactor;
  return request;
}

double WidthOnPage(const BarRequest& request, const BarResult& result) {
  // The end of the module painter is a length already.
  const bool isLength = BarPainterOf(request.Kind) == BarPainter::Module;
  const double length = isLength ? result.End : result.End - (request.IsVertical ? request.Y : request.X);
  return StandsUnzoomed(request) ? length : request.ZoomFactor * length;
}

// Where there is no width to tell, the object keeps the one by which it can be found.
void StoreWidth(ObjectRecord& record, const BarResult& result, double width) {
  if (result.Stopped || !result.HasBars || !(width >= 1)) return;
  if (const std::int32_t stored = ToInt32(width); stored > 0) record.Width = stored;
}

}  // namespace

void PaintBarcode(PaintContext& context, ObjectRecord& record, int row) {
  BarRequest request = RequestOf(context, record);
  if (request.Kind == kPageOnlyKind && request.IsVertical) return;
  if (!StandsUnzoomed(request)) request = Zoomed(request);
  const BarResult result = Paint(context, request);
  StoreWidth(record, result, WidthOnPage(request, result));
  if (result.Stopped && context.bars != nullptr) context.bars->Stopped.insert(row);
}

void PaintBarcodePanel(PaintContext& context, ObjectRecord& record, const CanvasArea& area) {
  BarRequest request = RequestOf(context, record);
  if (request.Kind == kPageOnlyKind) return;
  request.Target = BarTarget::Visual;
  request.OriginX = area.Left;
  request.OriginY = area.Top;
  const BarResult result = Paint(context, request);
  StoreWidth(record, result, result.End);
}

}  // namespace kev
