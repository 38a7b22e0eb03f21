// SPDX-License-Identifier: MIT
// A page full of bar codes anew: encoded, painted into the display list, and the list into a bitmap of the
// whole page.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <array>
#include <string>
#include <vector>

#include "document/object_creation.h"
#include "document/symbologies.h"
#include "platform/display_list.h"
#include "platform/qt_measurer.h"
#include "surface/page_background.h"
#include "surface/surface_ops.h"

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

// Every bar and space of the page as the painter is told of it.
class BarsOnly final : public SurfaceOps {
 public:
  void ClearCanvas() override {}
  void SetCanvasSize(double, double) override {}
  void SetScaleLeft(double) override {}
  void SetPen(Rgb, double, PenStyle) override {}
  void DrawLine(double, double, double, double) override {}
  void DrawRect(double, double, double, double, bool) override {}
  void DrawRectColour(double, double, double, double, Rgb, bool) override {}
  void DrawCircle(double, double, double) override {}
  void PaintImage(std::string_view, double, double, double, double) override {}
  void SetFont(const FontSpec&) override {}
  void SetForeground(Rgb) override {}
  void PrintText(double, double, std::string_view) override {}
  double TextWidth(std::string_view) override { return 0; }
  void DrawDots(double, double, double, double, double) override {}
  void PlaceWidget(std::string_view, double, double, double, double) override {}
  void ShowWidget(std::string_view, bool) override {}
  SurfaceOps& SurfaceOf(std::string_view) override { return *this; }
  void SetWidgetText(std::string_view, std::string_view) override {}
  void DrawSymbol(double x, double y, Rgb, std::span<const SymbolArea> areas) override {
    for (const SymbolArea& area : areas)
      bars_.emplace_back(QPointF(x + area.Left, y + area.Top) / kUnitsPerPixel,
                         QPointF(x + area.Right, y + area.Bottom) / kUnitsPerPixel);
  }
  const std::vector<QRectF>& Bars() const { return bars_; }

 private:
  std::vector<QRectF> bars_;
};

QRectF PageOf(int count) {
  return {0, 0, kAcross * kColumn, (static_cast<double>(count) / kAcross + 1) * kLine};
}

// The painter's own smooth rectangles, which is what the bars are.
void RepaintBarcodesFloor(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  Document document = PageOfBarcodes(count);
  const SortedRows sorted = SetSortKeys(document);
  FontCache fonts;
  const QtMeasurer measurer(fonts);
  BarsOnly surface;
  BarcodeState bars;
  PaintContext context{
      .document = document, .surface = surface, .measurer = measurer, .images = {}, .bars = &bars};
  PaintPage(context, false, sorted);
  QImage image((PageOf(count).size() / kUnitsPerPixel).toSize(), QImage::Format_RGB32);
  for ([[maybe_unused]] auto run : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QRectF& bar : surface.Bars())
      painter.fillRect(bar, Qt::black);
  }
  if (surface.Bars().size() < static_cast<std::size_t>(count)) state.SkipWithError("bar codes are missing");
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
  const QRectF page = PageOf(static_cast<int>(state.range(0)));
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
BENCHMARK(RepaintBarcodesFloor)->Arg(200)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

}  // namespace
}  // namespace kev::bench
