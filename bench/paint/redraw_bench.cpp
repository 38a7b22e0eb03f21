// SPDX-License-Identifier: MIT
// The whole page anew, from the table to the pixels, beside painting the same primitives that were prepared
// beforehand.
#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "document/sections.h"
#include "paint/prepared_page.h"
#include "platform/display_list.h"
#include "platform/qt_measurer.h"
#include "support/sample_template.h"
#include "surface/page_background.h"

namespace kev::bench {
namespace {

constexpr QSize kWindow(1280, 800);
constexpr char kBandDrawing[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='20'>"
    "<rect width='200' height='20' fill='#d6dde4'/><rect y='18' width='200' height='2' "
    "fill='#8796a5'/></svg>";

// The pictures of the page, as files for the program and as they are for the floor.
class Pictures {
 public:
  Pictures() : band_(QByteArray(kBandDrawing)) {
    band_.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QImage bitmap(120, 120, QImage::Format_ARGB32);
    bitmap.fill(QColor(44, 138, 150));
    QFile drawing(BandPath());
    if (!bitmap.save(BitmapPath()) || !drawing.open(QIODevice::WriteOnly) ||
        drawing.write(kBandDrawing) < 0) {
      std::fputs("the pictures of the page cannot be written\n", stderr);
      std::exit(1);
    }
    loaded_.load(BitmapPath());
  }

  PagePictures ForFloor() { return {loaded_, &band_}; }
  ImageResolver Resolver() const {
    return [bitmap = BitmapPath().toStdString(), band = BandPath().toStdString()](std::string_view file) {
      return file.ends_with(".prbm") ? band : bitmap;
    };
  }

 private:
  QString BandPath() const { return folder_.filePath(QStringLiteral("band.prbm")); }
  QString BitmapPath() const { return folder_.filePath(QStringLiteral("picture.png")); }

  QTemporaryDir folder_;
  QSvgRenderer band_;
  QImage loaded_;
};

// A document that was opened, with everything that painting it needs. The arguments of a benchmark are the
// rows and the zoom in percent.
class Page {
 public:
  explicit Page(const benchmark::State& state)
      : rows_(static_cast<int>(state.range(0))),
        zoom_(static_cast<double>(state.range(1)) / 100),
        document_(OpenedSample(rows_)),
        sorted_(SetSortKeys(document_)),
        measurer_(fonts_),
        images_(pictures_.Resolver()),
        list_(fonts_, images_),
        prepared_(fonts_, pictures_.ForFloor()) {
    Redraw(list_);
    Redraw(prepared_);
  }

  int Rows() const { return rows_; }
  const DisplayList& List() const { return list_; }
  const PreparedPage& Prepared() const { return prepared_; }
  void RedrawList() { Redraw(list_); }
  QSize WholeSize() const { return prepared_.Area().size().toSize(); }
  // Canvas units: a window in the middle of the page, at whole pixels as scrolling leaves it.
  QRectF WindowRegion() const {
    const int top = std::max(0, (WholeSize().height() - kWindow.height()) / 2);
    const QPointF corner(list_.Canvas().left(), top * kUnitsPerPixel);
    return {corner, QSizeF(kWindow) * kUnitsPerPixel};
  }

 private:
  void Redraw(SurfaceOps& surface) {
    PaintContext context{
        .document = document_, .surface = surface, .measurer = measurer_, .ZoomFactor = zoom_, .images = {}};
    PaintPage(context, false, sorted_);
  }

  int rows_;
  double zoom_;
  Document document_;
  SortedRows sorted_;
  Pictures pictures_;
  FontCache fonts_;
  QtMeasurer measurer_;
  ImageCache images_;
  DisplayList list_;
  PreparedPage prepared_;
};

// The images are made once, and touched, so that their memory is there: what a new bitmap costs is not what
// is measured.
QImage Bitmap(const QSize& size, QImage::Format format = QImage::Format_RGB32) {
  QImage image(size, format);
  image.fill(Qt::white);
  return image;
}

void PaintList(QImage& image, const Page& page, const QRectF& region) {
  image.fill(Qt::white);
  QPainter painter(&image);
  page.List().Paint(painter, region);
}

void PaintFloor(QImage& image, const Page& page) {
  image.fill(Qt::white);
  QPainter painter(&image);
  page.Prepared().PaintAll(painter, page.Prepared().Area());
}

// Pixels.
QRectF WindowOf(const Page& page) {
  const QRectF region = page.WindowRegion();
  return {region.topLeft() / kUnitsPerPixel, region.size() / kUnitsPerPixel};
}

void PaintWindowFloor(QImage& image, const Page& page) {
  image.fill(Qt::white);
  QPainter painter(&image);
  page.Prepared().PaintAll(painter, WindowOf(page));
}

void PaintSeenFloor(QImage& image, const Page& page) {
  image.fill(Qt::white);
  QPainter painter(&image);
  page.Prepared().PaintSeen(painter, WindowOf(page));
}

// A floor that paints another picture would be no floor. The ends of slanted lines may differ by a rounding.
bool SamePicture(benchmark::State& state, const QImage& painted, const QImage& floor) {
  qint64 differences = 0;
  for (int y = 0; y < painted.height(); ++y) {
    const auto* ours = reinterpret_cast<const QRgb*>(painted.constScanLine(y));
    const auto* theirs = reinterpret_cast<const QRgb*>(floor.constScanLine(y));
    for (int x = 0; x < painted.width(); ++x)
      differences += ours[x] == theirs[x] ? 0 : 1;
  }
  if (differences * 10000 <= qint64{painted.width()} * painted.height()) return true;
  state.SkipWithError("the floor paints another picture");
  return false;
}

void RedrawToList(benchmark::State& state) {
  Page page(state);
  for ([[maybe_unused]] auto run : state)
    page.RedrawList();
  CountRows(state, page.Rows());
}

void RedrawPage(benchmark::State& state) {
  Page page(state);
  const QRectF region = page.List().Canvas();
  QImage image = Bitmap(page.WholeSize());
  QImage floor = Bitmap(page.WholeSize());
  PaintList(image, page, region);
  PaintFloor(floor, page);
  if (!SamePicture(state, image, floor)) return;
  for ([[maybe_unused]] auto run : state) {
    page.RedrawList();
    PaintList(image, page, region);
  }
  CountRows(state, page.Rows());
}

void RedrawPageFloor(benchmark::State& state) {
  const Page page(state);
  QImage image = Bitmap(page.WholeSize());
  for ([[maybe_unused]] auto run : state)
    PaintFloor(image, page);
  CountRows(state, page.Rows());
}

// The list alone, into a bitmap that has an alpha channel.
void PaintPremultiplied(benchmark::State& state) {
  const Page page(state);
  const QRectF region = page.List().Canvas();
  QImage image = Bitmap(page.WholeSize(), QImage::Format_ARGB32_Premultiplied);
  QImage floor = Bitmap(page.WholeSize(), QImage::Format_ARGB32_Premultiplied);
  PaintList(image, page, region);
  PaintFloor(floor, page);
  if (!SamePicture(state, image, floor)) return;
  for ([[maybe_unused]] auto run : state)
    PaintList(image, page, region);
  CountRows(state, page.Rows());
}

void PaintPremultipliedFloor(benchmark::State& state) {
  const Page page(state);
  QImage image = Bitmap(page.WholeSize(), QImage::Format_ARGB32_Premultiplied);
  for ([[maybe_unused]] auto run : state)
    PaintFloor(image, page);
  CountRows(state, page.Rows());
}

// What a change costs: the table is walked, and the window shows a part of the page.
void RedrawWindow(benchmark::State& state) {
  Page page(state);
  QImage image = Bitmap(kWindow);
  QImage floor = Bitmap(kWindow);
  PaintList(image, page, page.WindowRegion());
  PaintWindowFloor(floor, page);
  if (!SamePicture(state, image, floor)) return;
  for ([[maybe_unused]] auto run : state) {
    page.RedrawList();
    PaintList(image, page, page.WindowRegion());
  }
  CountRows(state, page.Rows());
}

// The same primitives, handed to the painter one after another; it leaves out what the window does not show.
void RedrawWindowFloor(benchmark::State& state) {
  const Page page(state);
  QImage image = Bitmap(kWindow);
  for ([[maybe_unused]] auto run : state)
    PaintWindowFloor(image, page);
  CountRows(state, page.Rows());
}

// What scrolling costs: the list is there already.
void ScrollWindow(benchmark::State& state) {
  const Page page(state);
  QImage image = Bitmap(kWindow);
  QImage floor = Bitmap(kWindow);
  PaintList(image, page, page.WindowRegion());
  PaintSeenFloor(floor, page);
  if (!SamePicture(state, image, floor)) return;
  for ([[maybe_unused]] auto run : state)
    PaintList(image, page, page.WindowRegion());
}

void ScrollWindowFloor(benchmark::State& state) {
  const Page page(state);
  QImage image = Bitmap(kWindow);
  for ([[maybe_unused]] auto run : state)
    PaintSeenFloor(image, page);
}

void AtAllSizesAndZooms(benchmark::internal::Benchmark* benchmark) {
  for (const int zoom : {100, 200})
    for (const int rows : kSizes)
      benchmark->Args({rows, zoom});
  // The painter works with several threads: the time of all of them counts.
  benchmark->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();
}

BENCHMARK(RedrawPage)->Apply(AtAllSizesAndZooms);
BENCHMARK(RedrawPageFloor)->Apply(AtAllSizesAndZooms);
BENCHMARK(PaintPremultiplied)->Apply(AtAllSizesAndZooms);
BENCHMARK(PaintPremultipliedFloor)->Apply(AtAllSizesAndZooms);
BENCHMARK(RedrawToList)->Apply(AtAllSizesAndZooms);
BENCHMARK(RedrawWindow)->Apply(AtAllSizesAndZooms);
BENCHMARK(RedrawWindowFloor)->Apply(AtAllSizesAndZooms);
BENCHMARK(ScrollWindow)->Apply(AtAllSizesAndZooms);
BENCHMARK(ScrollWindowFloor)->Apply(AtAllSizesAndZooms);

}  // namespace
}  // namespace kev::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
