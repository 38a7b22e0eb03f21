// SPDX-License-Identifier: MIT
// Objects whose own picture is made elsewhere: their place is framed and named, and the picture, once it is
// there, covers the frame.
#include <array>

#include "base/numbers.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

constexpr Rgb kFrame = 0xA0A0A0;
constexpr Rgb kCaption = 0x707070;
constexpr double kCaptionPoints = 8;

struct SymbologyName {
  int kind;
  std::string_view name;
};

constexpr auto kSymbologyNames = std::to_array<SymbologyName>({
    {1, "STANDARD 3-9"},
    {8, "EAN-8"},
    {13, "EAN-13"},
    {32, "CODE 32"},
    {250, "2 OF 5 STANDARD"},
    {251, "2 OF 5 INTERLEAVE"},
    {252, "2 OF 5 INDUSTRIAL"},
    {1282, "128 B"},
    {1283, "128 C"},
    {12821, "UCC EAN 128"},
});

std::string_view SymbologyNameOf(const ObjectRecord& record) {
  const int kind = Int32Of(record.BarcodeKind);
  for (const SymbologyName& row : kSymbologyNames)
    if (row.kind == kind) return row.name;
  return "BARCODE";
}

std::string ChartCaption(const ObjectRecord& record) {
  return record.ChartValues.empty() || record.ChartValues.front().empty()
             ? "CHART"
             : "CHART " + record.ChartValues.front();
}

}  // namespace

void PaintPlaceholder(PaintContext& context, const CanvasArea& area, std::string_view caption) {
  SurfaceOps& surface = context.surface;
  surface.DrawRectColour(area.Left, area.Top, area.Right, area.Bottom, kFrame, false);
  const FontSpec font{.Name = "Arial", .Size = kCaptionPoints * context.ZoomFactor};
  surface.SetFont(font);
  const double width = surface.TextWidth(caption);
  const double height = context.measurer.Measure(font, caption).Height;
  if (width > area.Width() || height > area.Height()) return;
  surface.SetForeground(kCaption);
  surface.PrintText(area.Left + (area.Width() - width) / 2, area.Top + (area.Height() - height) / 2, caption);
}

void PaintBarcode(PaintContext& context, const ObjectRecord& record) {
  // A vertical code stands where its record says, whatever the zoom.
  const double zoom = IsVerticalBarcode(record) ? 1 : context.ZoomFactor;
  PaintPlaceholder(context, AreaOf(record, context.document, zoom), SymbologyNameOf(record));
}

void PaintQr(PaintContext& context, ObjectRecord& record, int row) {
  record.PictureFile = QrImageName(context.images, row, record.Y);
  PaintPlaceholder(context, AreaOf(record, context.document, context.ZoomFactor), "QR");
  PaintPicture(context, record);
}

void PaintChart(PaintContext& context, ObjectRecord& record, int row) {
  record.PictureFile = ChartImageName(context.images, row);
  PaintPlaceholder(context, AreaOf(record, context.document, context.ZoomFactor), ChartCaption(record));
  PaintPicture(context, record);
}

}  // namespace kev
