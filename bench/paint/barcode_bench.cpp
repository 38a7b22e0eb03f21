// SPDX-License-Identifier: MIT
// A page full of bar codes anew: encoded, painted into the display list, and the list into a bitmap of the
// whole page.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <array>
#include <string>

#include "document/object_creation.h"
#include "document/symbologies.h"
#include "platform/display_list.h"
#include "platform/qt_measurer.h"
#include "surface/page_background.h"

namespace kev::bench {
namespace {

constexpr int kAcross = 5;
constexpr int kColumn = 4200, kLine = 700;  // twips

// All symbologies and widths in turn.
Document PageOfBarcodes(int count) {
  constexpr std::array kWidths = {1, 2, 10, 15};
  Document document;
  for (int index = 0; index < count; ++index) {
    const Symbology& symbology = kSymbologies[static_cast<std::size_t>(index) % kSymbologies.size()];
    ObjectRecord& record = document.Objects[document.Objects.TakeFreeRow()];
    record.Kind = ObjectKind::Barcode;
    record.XValue = std::to_string(index % kAcross * kColumn);
    record.AbsoluteY = index / kAcross * kLine;
    record.Height = 500;
    record.PrintFlag = kTrue;
    record.BarcodeKind = std::to_string(symbology.kind);
    record.BarcodeSample = symbology.specimen.empty() ? "026089019" : symbology.specimen;
    record.BarWidth = static_cast<std::int16_t>(kWidths[static_cast<std::size_t>(index) % kWidths.size()]);
  }
  return document;
}

void RepaintBarcodes(benchmark::State& state) {
  Document document = PageOfBarcodes(static_cast<int>(state.range(0)));
  const SortedRows sorted = SetSortKeys(document);
  FontCache fonts;
  const QtMeasurer measurer(fonts);
  ImageCache images([](std::string_view) { return std::string(); });
  DisplayList list(fonts, images);
  BarcodeState bars;
  PaintContext context{
      .document = document, .surface = list, .measurer = measurer, .images = {}, .bars = &bars};
  PaintPage(context, false, sorted);
  const QRectF page(0, 0, kAcross * kColumn, (static_cast<double>(state.range(0)) / kAcross + 1) * kLine);
  QImage image((page.size() / kUnitsPerPixel).toSize(), QImage::Format_RGB32);
  for ([[maybe_unused]] auto run : state) {
    PaintPage(context, false, sorted);
    list.SetCanvasSize(page.width(), page.height());
    image.fill(Qt::white);
    QPainter painter(&image);
    list.Paint(painter, page);
  }
  if (list.Count() < static_cast<std::size_t>(state.range(0))) state.SkipWithError("bar codes are missing");
}

BENCHMARK(RepaintBarcodes)->Arg(200)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

}  // namespace
}  // namespace kev::bench
