// SPDX-License-Identifier: MIT
#include "platform/images.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/file_stamp.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kCacheKilobytes = 256 * 1024;
constexpr qint64 kLargestSvg = 16 * 1024 * 1024;

bool IsSvgFile(const QFileInfo& file) {
  const QString suffix = file.suffix().toLower();
  return suffix == u"prbm" || suffix == u"svg";
}

}  // namespace

struct ImageCache::Entry {
  FileStamp stamp;
  QImage bitmap;
  std::unique_ptr<QSvgRenderer> drawing;
  // The bitmap at the size at which it was painted last, so that a photograph is not reduced at each paint.
  mutable QImage reduced;

  int Kilobytes() const {
    return static_cast<int>(std::max<std::int64_t>(stamp.Size, bitmap.sizeInBytes()) / 1024) + 1;
  }
};

namespace {

bool IsOpaque(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    if (!std::all_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; })) return false;
  }
  return true;
}

QImage ReadBitmap(const QString& path) {
  QImageReader reader(path);
  reader.setAutoTransform(true);
  // By what the file holds: pictures often come with the ending of another format.
  reader.setDecideFormatFromContent(true);
  QImage image = reader.read();
  // Many files have an alpha channel that says nothing; the painter is several times faster without it.
  if (image.format() == QImage::Format_ARGB32 && IsOpaque(image))
    image.reinterpretAsFormat(QImage::Format_RGB32);
  return image;
}

std::unique_ptr<QSvgRenderer> ReadDrawing(const QString& path) {
  QFile file(path);
  if (file.size() > kLargestSvg || !file.open(QIODevice::ReadOnly)) return nullptr;
  auto drawing = std::make_unique<QSvgRenderer>();
  if (!drawing->load(file.readAll())) return nullptr;
  drawing->setAspectRatioMode(Qt::IgnoreAspectRatio);
  return drawing;
}

}  // namespace

ImageCache::ImageCache(ImageResolver resolver) : resolver_(std::move(resolver)), entries_(kCacheKilobytes) {}

ImageCache::~ImageCache() = default;

void ImageCache::SetResolver(ImageResolver resolver) {
  resolver_ = std::move(resolver);
  Forget();
}

void ImageCache::Forget() {
  paths_.clear();
}

const QString& ImageCache::PathOf(std::string_view file) {
  const auto [known, isNew] = paths_.try_emplace(std::string(file));
  if (isNew) known->second = FromNative(resolver_(file));
  return known->second;
}

std::shared_ptr<const ImageCache::Entry> ImageCache::Find(std::string_view file) {
  // A name that was looked up since the last redraw leads to what was there then: a paint asks nothing of the
  // system.
  const bool isLookedUp = paths_.contains(std::string(file));
  const QString& path = PathOf(file);
  if (path.isEmpty()) return nullptr;
  const auto* known = entries_.object(path);
  if (known != nullptr && isLookedUp) return *known;
  const std::optional<FileStamp> stamp = StampOf(ToNative(path));
  if (!stamp) return nullptr;
  if (known != nullptr && (*known)->stamp == *stamp) return *known;
  auto entry = std::make_shared<Entry>();
  entry->stamp = *stamp;
  if (IsSvgFile(QFileInfo(path)))
    entry->drawing = ReadDrawing(path);
  else
    entry->bitmap = ReadBitmap(path);
  std::shared_ptr<const Entry> kept = std::move(entry);
  entries_.insert(path, new std::shared_ptr<const Entry>(kept), kept->Kilobytes());
  return kept;
}

void ImageCache::PaintBitmap(QPainter& painter, const Entry& entry, const QRectF& target) {
  const QSize pixels = painter.deviceTransform().mapRect(target).size().toSize();
  const QSize whole = entry.bitmap.size();
  // A file keeps all pixels of its pictures.
  const bool onScreen = painter.paintEngine()->type() == QPaintEngine::Raster;
  const bool smaller = onScreen && pixels.width() * 2 < whole.width() && pixels.height() * 2 < whole.height();
  // Pixel for pixel, as a picture made for this very size must be to stay sharp.
  if (onScreen && pixels == whole) {
    const QTransform toDevice = painter.deviceTransform();
    const QPointF corner = toDevice.map(target.topLeft());
    const QPointF onPixels(std::round(corner.x()), std::round(corner.y()));
    if (toDevice.type() <= QTransform::TxScale)
      return painter.drawImage(toDevice.inverted().mapRect(QRectF(onPixels, QSizeF(whole))), entry.bitmap);
  }
  if (!smaller || pixels.isEmpty()) return painter.drawImage(target, entry.bitmap);
  if (entry.reduced.size() != pixels)
    entry.reduced = entry.bitmap.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  painter.drawImage(target, entry.reduced);
}

void ImageCache::PaintSharp(QPainter& painter, const QImage& bitmap, const QRectF& target) {
  const QPainter::RenderHints before = painter.renderHints();
  painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing, false);
  painter.drawImage(target, bitmap);
  painter.setRenderHints(before);
}

void ImageCache::Paint(QPainter& painter, std::string_view file, const QRectF& target, Scaling scaling) {
  if (target.isEmpty()) return;
  if (const auto drawing = drawings_.find(std::string(file)); drawing != drawings_.end())
    return drawing->second(painter, target);
  const auto entry = Find(file);
  if (!entry) return;
  if (entry->drawing)
    entry->drawing->render(&painter, target);
  else if (!entry->bitmap.isNull() && scaling == Scaling::Sharp)
    PaintSharp(painter, entry->bitmap, target);
  else if (!entry->bitmap.isNull())
    PaintBitmap(painter, *entry, target);
}

void ImageCache::SetDrawing(std::string_view file, Drawing drawing) {
  drawings_[std::string(file)] = std::move(drawing);
}

void ImageCache::Drop(const QString& path) {
  entries_.remove(path);
}

QSize ImageCache::SizeOf(std::string_view file) {
  const auto entry = Find(file);
  if (!entry) return {};
  return entry->drawing ? entry->drawing->defaultSize() : entry->bitmap.size();
}

}  // namespace kev
