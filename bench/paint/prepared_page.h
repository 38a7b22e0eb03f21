// SPDX-License-Identifier: MIT
// A page taken down once as what a painter is told, with every pen, font, text and picture made beforehand:
// painting it costs what the painter costs and nothing else.
#pragma once

#include <QFont>
#include <QImage>
#include <QPen>
#include <QString>
#include <QSvgRenderer>
#include <QTransform>
#include <variant>
#include <vector>

#include "platform/fonts.h"
#include "surface/surface_ops.h"

class QPainter;

namespace kev::bench {

// The two pictures that a measured page shows: one for the bands, one for every other name.
struct PagePictures {
  QImage bitmap;
  QSvgRenderer* band = nullptr;
};

class PreparedPage final : public SurfaceOps {
 public:
  PreparedPage(FontCache& fonts, const PagePictures& pictures) : fonts_(fonts), pictures_(pictures) {}

  // Logical pixels.
  QRectF Area() const { return area_; }
  // Every shape is handed to the painter, whose origin is the corner of `window`; the painter cuts.
  void PaintAll(QPainter& painter, const QRectF& window) const { Paint(painter, window, false); }
  // Only the shapes that can be seen in `window`.
  void PaintSeen(QPainter& painter, const QRectF& window) const { Paint(painter, window, true); }

  void ClearCanvas() override { shapes_.clear(); }
  void SetCanvasSize(double width, double height) override;
  void SetScaleLeft(double value) override;
  void SetPen(Rgb colour, double width, PenStyle style) override;
  void DrawLine(double x1, double y1, double x2, double y2) override;
  void DrawRect(double x1, double y1, double x2, double y2, bool filled) override;
  void DrawRectColour(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override;
  void DrawCircle(double cx, double cy, double radius) override;
  void PaintImage(std::string_view file, double x, double y, double width, double height) override;
  void SetFont(const FontSpec& font) override { font_ = font; }
  void SetForeground(Rgb colour) override;
  void PrintText(double x, double y, std::string_view text) override;
  double TextWidth(std::string_view text) override;
  void DrawDots(double, double, double, double, double) override {}
  void DrawSymbol(double x, double y, Rgb colour, std::span<const SymbolArea> areas) override;
  void PlaceWidget(std::string_view, double, double, double, double) override {}
  void ShowWidget(std::string_view, bool) override {}
  SurfaceOps& SurfaceOf(std::string_view) override { return *this; }
  void SetWidgetText(std::string_view, std::string_view) override {}

 private:
  struct Line {
    QPen pen;
    QLineF line;
  };
  struct Outline {
    QPen pen;
    QRectF area;
  };
  struct Fill {
    QColor colour;
    QRectF area;
  };
  struct Circle {
    QPen pen;
    QPointF centre;
    double radius;
  };
  struct Picture {
    QRectF area;
    bool isBand;
  };
  struct Text {
    QColor colour;
    QFont font;
    QTransform place;  // of the start of the baseline, and from the font's size to that of the text
    QString text;
  };
  struct Symbol {
    QPoint place;
    QImage image;
  };
  struct Shape {
    QRectF bounds;
    std::variant<Line, Outline, Fill, Circle, Picture, Text, Symbol> what;
  };
  class Painting;

  void Paint(QPainter& painter, const QRectF& window, bool onlySeen) const;

  FontCache& fonts_;
  PagePictures pictures_;
  QRectF area_;
  QPen pen_;
  QColor foreground_;
  FontSpec font_;
  std::vector<Shape> shapes_;
};

}  // namespace kev::bench
