// SPDX-License-Identifier: MIT
#include "platform/render.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <array>
#include <cmath>

#include "app/picture_source.h"
#include "base/files.h"
#include "base/numbers.h"
#include "document/sections.h"
#include "platform/display_list.h"
#include "platform/drawn_charts.h"
#include "platform/qt_measurer.h"
#include "surface/page_background.h"

namespace kev {
namespace {

constexpr int kDotsPerInch = 96;
constexpr double kDotsPerMetre = kDotsPerInch / 0.0254;
constexpr double kPointsPerPixel = 72.0 / kDotsPerInch;
// The painter's own limit lies a little above 32000 pixels, so large pages are painted in tiles.
constexpr int kTile = 4096;
// Viewers refuse a sheet of more than 200 inches.
constexpr double kLongestSheet = 200.0 * kDotsPerInch;

ImageResolver ResolverFor(const Document& document, const RenderOptions& options) {
  return [&page = *document.Page, folders = options.folders,
          templateFolder = options.TemplateFolder](std::string_view file) {
    return ResolvePictureFile(file, folders, templateFolder, page).value_or(std::string());
  };
}

// A page with all that painting it needs.
struct PaintedPage {
  FontCache fonts;
  ImageCache images;
  DisplayList list{fonts, images};
  DrawnCharts charts{fonts, images};

  PaintedPage(Document& document, const RenderOptions& options)
      : fonts(*document.Page), images(ResolverFor(document, options)) {
    const QtMeasurer measurer(fonts);
    BarcodeState own;
    BarcodeState* bars = options.bars != nullptr ? options.bars : &own;
    DeriveGeometry(document);
    // At 100 % first, as a document is opened.
    ApplyRedrawWriteBack(document, measurer, options.filter, options.images, bars);
    DeriveGeometry(document);
    MadePictures pictures = options.pictures;
    if (pictures.Charts == nullptr) pictures.Charts = &charts;
    PaintContext context{.document = document,
                         .surface = list,
                         .measurer = measurer,
                         .ZoomFactor = options.ZoomFactor,
                         .filter = options.filter,
                         .images = options.images,
                         .pictures = pictures,
                         .bars = bars};
    PaintPage(context, options.grid, SetSortKeys(document));
  }

  // Logical pixels.
  QSizeF Size() const {
    const QSizeF size = list.Canvas().size() / kUnitsPerPixel;
    return {std::max(1.0, std::ceil(size.width())), std::max(1.0, std::ceil(size.height()))};
  }
  // A part of the page, in logical pixels from its top left corner.
  QRectF Region(const QRectF& part) const {
    return {list.Canvas().topLeft() + part.topLeft() * kUnitsPerPixel, part.size() * kUnitsPerPixel};
  }
};

bool IsUsable(double factor) {
  return std::isfinite(factor) && factor > 0 && factor <= 1000;
}

std::optional<std::string> Unusable(const RenderOptions& options) {
  if (!IsUsable(options.ZoomFactor)) return "the zoom is no usable number";
  if (!IsUsable(options.scale)) return "the scale is no usable number";
  return std::nullopt;
}

std::string TooLarge(double width, double height) {
  return "the page would be " + FormatNumber(width) + " x " + FormatNumber(height) +
         " pixels, which is more than the " + FormatNumber(kMostPixels) +
         " that a picture may have; use a smaller zoom or scale, or a .pdf file";
}

// A window into the pixels of a larger image.
QImage TileOf(QImage& image, const QRect& tile) {
  uchar* first = image.scanLine(tile.top()) + static_cast<qsizetype>(tile.left()) * image.depth() / 8;
  QImage part(first, tile.width(), tile.height(), image.bytesPerLine(), image.format());
  part.setDotsPerMeterX(image.dotsPerMeterX());
  part.setDotsPerMeterY(image.dotsPerMeterY());
  return part;
}

void PaintTile(QImage& image, const QRect& tile, const PaintedPage& page, double scale) {
  QImage part = TileOf(image, tile);
  QPainter painter(&part);
  painter.scale(scale, scale);
  page.list.Paint(painter, page.Region({QPointF(tile.topLeft()) / scale, QSizeF(tile.size()) / scale}));
}

Result<QImage, std::string> ImageOf(const PaintedPage& page, double scale) {
  const double width = std::ceil(page.Size().width() * scale);
  const double height = std::ceil(page.Size().height() * scale);
  if (width * height > kMostPixels) return TooLarge(width, height);
  QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
  if (image.isNull()) return TooLarge(width, height);
  image.setDotsPerMeterX(static_cast<int>(std::lround(kDotsPerMetre)));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  image.fill(Qt::white);
  for (int y = 0; y < image.height(); y += kTile)
    for (int x = 0; x < image.width(); x += kTile)
      PaintTile(image, QRect(x, y, kTile, kTile) & image.rect(), page, scale);
  return image;
}

using Bytes = Result<QByteArray, std::string>;

Bytes PngOf(const PaintedPage& page, const Document&, double scale) {
  const auto image = ImageOf(page, scale);
  if (!image) return image.Error();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!image->save(&buffer, "PNG")) return std::string("the picture could not be encoded");
  return bytes;
}

QString TitleOf(const Document& document) {
  return ToQString(document.Settings[Setting::Report_Title], *document.Page);
}

// A page that is longer than a sheet may be goes on on the next one.
Bytes PdfOf(const PaintedPage& page, const Document& document, double) {
  const QSizeF size = page.Size();
  if (size.width() > kLongestSheet) return std::string("the page is wider than a sheet of 200 inches");
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kDotsPerInch);
  writer.setTitle(TitleOf(document));
  writer.setPageMargins(QMarginsF());
  const auto sizeSheet = [&](double top) {
    const QSizeF sheet(size.width(), std::min(kLongestSheet, size.height() - top));
    writer.setPageSize(QPageSize(sheet * kPointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
  };
  sizeSheet(0);
  QPainter painter(&writer);
  for (double top = 0; top < size.height(); top += kLongestSheet) {
    if (top > 0) {
      sizeSheet(top);
      writer.newPage();
    }
    page.list.Paint(painter,
                    page.Region({0, top, size.width(), std::min(kLongestSheet, size.height() - top)}));
  }
  painter.end();
  return bytes;
}

Bytes SvgOf(const PaintedPage& page, const Document& document, double scale) {
  const QSizeF size = page.Size();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(kDotsPerInch);
  generator.setTitle(TitleOf(document));
  generator.setSize((size * scale).toSize());
  generator.setViewBox(QRectF(QPointF(0, 0), size));
  QPainter painter(&generator);
  page.list.Paint(painter, page.Region({QPointF(0, 0), size}));
  painter.end();
  return bytes;
}

struct Format {
  std::string_view ending;
  Bytes (*make)(const PaintedPage& page, const Document& document, double scale);
};

constexpr auto kFormats = std::to_array<Format>({{".png", PngOf}, {".pdf", PdfOf}, {".svg", SvgOf}});

const Format* FormatOf(std::string_view path) {
  for (const Format& format : kFormats) {
    if (path.size() <= format.ending.size()) continue;
    const std::string_view ending = path.substr(path.size() - format.ending.size());
    if (CodePage::Default().EqualsIgnoringCase(ending, format.ending)) return &format;
  }
  return nullptr;
}

}  // namespace

Result<QImage, std::string> RenderToImage(Document& document, const RenderOptions& options) {
  if (auto reason = Unusable(options)) return *reason;
  return ImageOf(PaintedPage(document, options), options.scale);
}

std::optional<std::string> RenderToFile(Document& document, const RenderOptions& options,
                                        const std::string& path) {
  if (auto reason = Unusable(options)) return reason;
  const Format* format = FormatOf(path);
  if (!format) return "the name of the picture ends neither in .png nor in .pdf nor in .svg";
  const PaintedPage page(document, options);
  const auto bytes = format->make(page, document, options.scale);
  if (!bytes) return bytes.Error();
  const auto failure =
      WriteWholeFile(path, std::string_view(bytes->constData(), static_cast<std::size_t>(bytes->size())));
  return failure ? std::optional(failure->reason) : std::nullopt;
}

}  // namespace kev
