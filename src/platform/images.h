// SPDX-License-Identifier: MIT
// The pictures of a page: bitmaps and SVG drawings, read once and read again when their file changes.
#pragma once

#include <QCache>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

class QPainter;
class QSvgRenderer;

namespace kev {

// The native path of the file that a name on the page means, empty when there is none. Names beginning with
// "\" are the designer's own; all others are as a template wrote them.
using ImageResolver = std::function<std::string(std::string_view file)>;

// Smooth goes by the painter's own hint; Sharp takes the nearest pixel, as codes that are scanned need it.
enum class Scaling : std::uint8_t { Smooth, Sharp };

class ImageCache {
 public:
  explicit ImageCache(ImageResolver resolver);
  ~ImageCache();

  // The names lead elsewhere from now on; what was read is kept by its path.
  void SetResolver(ImageResolver resolver);
  // Looks names and files up again, which come and go between two redraws; no paint does so by itself.
  void Forget();
  // Stretched into the rectangle of the painter's own units; a file that cannot be had paints nothing.
  void Paint(QPainter& painter, std::string_view file, const QRectF& target,
             Scaling scaling = Scaling::Smooth);
  // What is painted for a name instead of a file, from now on; the rectangle is the painter's.
  using Drawing = std::function<void(QPainter& painter, const QRectF& target)>;
  void SetDrawing(std::string_view file, Drawing drawing);
  // The file was written anew, maybe within the time that its date can tell.
  void Drop(const QString& path);
  // Pixels of a bitmap or of an SVG drawing; empty when there is none.
  QSize SizeOf(std::string_view file);

 private:
  struct Entry;
  std::shared_ptr<const Entry> Find(std::string_view file);
  const QString& PathOf(std::string_view file);
  static void PaintSharp(QPainter& painter, const QImage& bitmap, const QRectF& target);
  static void PaintBitmap(QPainter& painter, const Entry& entry, const QRectF& target);

  ImageResolver resolver_;
  std::unordered_map<std::string, QString> paths_;
  std::unordered_map<std::string, Drawing> drawings_;
  QCache<QString, std::shared_ptr<const Entry>> entries_;
};

}  // namespace kev
