// SPDX-License-Identifier: MIT
#include "paint/prepared_page.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/display_list.h"
#include "platform/qt_measurer.h"
#include "platform/symbol_image.h"

namespace kev::bench {
namespace {

constexpr int kDotsPerInch = 96;
// Texts are printed from one size, so that they are as wide as they measure at any zoom.
constexpr int kPrintPixels = 128;
constexpr double kPixelsPerPoint = kDotsPerInch / 72.0;

QPointF Pixels(double x, double y) {
  return QPointF(x, y) / kUnitsPerPixel;
}

QRectF Between(double x1, double y1, double x2, double y2) {
  return QRectF(Pixels(std::min(x1, x2), std::min(y1, y2)), Pixels(std::max(x1, x2), std::max(y1, y2)));
}

QColor ToColour(Rgb colour) {
  return QColor::fromRgb(static_cast<QRgb>(colour | 0xFF000000U));
}

QRectF Room(const QRectF& area, double by) {
  return area.adjusted(-by, -by, by, by);
}

}  // namespace

class PreparedPage::Painting {
 public:
  Painting(const PagePictures& pictures, QPainter& painter)
      : pictures_(pictures), painter_(painter), page_(painter.transform()) {}

  void operator()(const Line& line) {
    painter_.setRenderHint(QPainter::Antialiasing, line.line.dx() != 0 && line.line.dy() != 0);
    painter_.setPen(line.pen);
    painter_.drawLine(line.line);
  }
  void operator()(const Outline& outline) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setPen(outline.pen);
    painter_.drawRect(outline.area);
  }
  void operator()(const Fill& fill) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.fillRect(fill.area, fill.colour);
  }
  void operator()(const Circle& circle) {
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setPen(circle.pen);
    painter_.drawEllipse(circle.centre, circle.radius, circle.radius);
  }
  void operator()(const Picture& picture) {
    if (picture.isBand)
      pictures_.band->render(&painter_, picture.area);
    else
      painter_.drawImage(picture.area, pictures_.bitmap);
  }
  void operator()(const Text& text) {
    painter_.setFont(text.font);
    painter_.setPen(text.colour);
    painter_.setTransform(text.place * page_);
    painter_.drawText(QPointF(0, 0), text.text);
    painter_.setTransform(page_);
  }
  void operator()(const Symbol& symbol) { painter_.drawImage(symbol.place, symbol.image); }

 private:
  const PagePictures& pictures_;
  QPainter& painter_;
  QTransform page_;
};

void PreparedPage::Paint(QPainter& painter, const QRectF& window, bool onlySeen) const {
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  painter.setClipRect(window.intersected(area_).translated(-window.topLeft()));
  painter.translate(-window.topLeft());
  Painting painting(pictures_, painter);
  for (const Shape& shape : shapes_)
    if (!onlySeen || shape.bounds.intersects(window)) std::visit(painting, shape.what);
}

void PreparedPage::SetCanvasSize(double width, double height) {
  area_.setSize(QSizeF(width, height) / kUnitsPerPixel);
}

void PreparedPage::SetScaleLeft(double value) {
  area_.moveLeft(value / kUnitsPerPixel);
}

void PreparedPage::SetPen(Rgb colour, double width, PenStyle style) {
  pen_ = QPen(ToColour(colour), std::max(width, 1.0), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  if (style == PenStyle::Dotted) pen_.setDashPattern({1, 2});
}

void PreparedPage::DrawLine(double x1, double y1, double x2, double y2) {
  shapes_.push_back(
      {Room(Between(x1, y1, x2, y2), pen_.widthF() + 1), Line{pen_, {Pixels(x1, y1), Pixels(x2, y2)}}});
}

void PreparedPage::DrawRect(double x1, double y1, double x2, double y2, bool filled) {
  const QRectF area = Between(x1, y1, x2, y2);
  const QRectF bounds = Room(area, pen_.widthF() + 1);
  const QRectF atLeastOnePixel(area.topLeft(), area.size().expandedTo(QSizeF(1, 1)));
  if (filled) shapes_.push_back({bounds, Fill{pen_.color(), atLeastOnePixel}});
  if (!filled || pen_.widthF() > 1) shapes_.push_back({bounds, Outline{pen_, area}});
}

void PreparedPage::DrawRectColour(double x1, double y1, double x2, double y2, Rgb colour, bool filled) {
  const QPen kept = pen_;
  pen_.setColor(ToColour(colour));
  DrawRect(x1, y1, x2, y2, filled);
  pen_ = kept;
}

void PreparedPage::DrawCircle(double cx, double cy, double radius) {
  const QRectF area = Between(cx - radius, cy - radius, cx + radius, cy + radius);
  shapes_.push_back({Room(area, pen_.widthF() + 1), Circle{pen_, Pixels(cx, cy), radius / kUnitsPerPixel}});
}

void PreparedPage::PaintImage(std::string_view file, double x, double y, double width, double height) {
  const QRectF area(Pixels(x, y), QSizeF(width, height) / kUnitsPerPixel);
  if (!file.empty() && !area.isEmpty()) shapes_.push_back({area, Picture{area, file.ends_with(".prbm")}});
}

void PreparedPage::SetForeground(Rgb colour) {
  foreground_ = ToColour(colour);
}

void PreparedPage::PrintText(double x, double y, std::string_view text) {
  if (text.empty()) return;
  const TextExtent extent = QtMeasurer(fonts_).Measure(font_, text);
  const double pixels = font_.Size * kPixelsPerPoint;
  const QPointF corner = Pixels(x, y);
  QTransform place = QTransform::fromTranslate(corner.x(), corner.y() + fonts_.Face(font_).Ascent() * pixels);
  place.scale(pixels / kPrintPixels, pixels / kPrintPixels);
  QFont font = fonts_.Font(font_, kDotsPerInch);
  font.setPixelSize(kPrintPixels);
  shapes_.push_back({Room(Between(x, y, x + extent.Width, y + extent.Height), extent.Height / kUnitsPerPixel),
                     Text{foreground_, font, place, fonts_.Text(font_, text)}});
}

void PreparedPage::DrawSymbol(double x, double y, Rgb colour, std::span<const SymbolArea> areas) {
  constexpr double kHalf = 0.5 + 1e-6;
  const QPointF place = Pixels(x, y);
  const QPointF origin(std::floor(place.x() + kHalf), std::floor(place.y() + kHalf));
  std::vector<QRectF> pixels;
  QRectF bounds;
  for (const SymbolArea& area : areas) {
    pixels.push_back(Between(area.Left, area.Top, area.Right, area.Bottom).translated(origin));
    bounds |= pixels.back();
  }
  const QRect box = bounds.toAlignedRect();
  shapes_.push_back({box, Symbol{box.topLeft(), SymbolImage(pixels, box, ToColour(colour).rgb())}});
}

double PreparedPage::TextWidth(std::string_view text) {
  return QtMeasurer(fonts_).Measure(font_, text).Width;
}

}  // namespace kev::bench
