// SPDX-License-Identifier: MIT
// The painted page as a list of primitives. The page can be far taller than any bitmap: what a window shows
// of it is painted from this list, and scrolling or exposing needs no second walk of the document.
#pragma once

#include <QRectF>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "platform/fonts.h"
#include "platform/images.h"
#include "surface/null_surface.h"
#include "surface/surface_ops.h"

class QPainter;

namespace kev {

// 15 canvas units are one logical pixel.
inline constexpr double kUnitsPerPixel = 15;

// The movable widgets above the page. Lengths are canvas units.
class WidgetLayer {
 public:
  virtual ~WidgetLayer() = default;
  virtual void PlaceWidget(std::string_view name, double left, double top, double width, double height) = 0;
  virtual void ShowWidget(std::string_view name, bool visible) = 0;
  virtual SurfaceOps& SurfaceOf(std::string_view name) = 0;
  virtual void SetWidgetText(std::string_view name, std::string_view text) = 0;
};

class DisplayList final : public SurfaceOps {
 public:
  DisplayList(FontCache& fonts, ImageCache& images) : fonts_(fonts), images_(images) {}

  // The whole canvas: from the left margin's far side to the page's right edge, from 0 down.
  QRectF Canvas() const { return {scaleLeft_, 0, width_, height_}; }
  // Paints what lies in `region` (canvas units). The painter's origin stands for the region's top left
  // corner, and its unit is the logical pixel.
  void Paint(QPainter& painter, const QRectF& region) const;

  // Nothing stands above the page until a layer is set. The layer outlives the list.
  void SetWidgetLayer(WidgetLayer* layer) { layer_ = layer; }
  std::size_t Count() const { return primitives_.size(); }
  bool HoldsTextsAlone() const;
  // How many primitives a paint of the region looks at.
  std::size_t CountNear(const QRectF& region) const { return Near(region).size(); }

  void ClearCanvas() override;
  void SetCanvasSize(double width, double height) override;
  void SetScaleLeft(double value) override { scaleLeft_ = value; }
  void SetPen(Rgb colour, double width, PenStyle style) override;
  void DrawLine(double x1, double y1, double x2, double y2) override;
  void DrawRect(double x1, double y1, double x2, double y2, bool filled) override;
  void DrawRectColour(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override;
  void DrawCircle(double cx, double cy, double radius) override;
  void PaintImage(std::string_view file, double x, double y, double width, double height) override;
  void PaintImageSharp(std::string_view file, double x, double y, double width, double height) override;
  void SetFont(const FontSpec& font) override;
  void SetForeground(Rgb colour) override { foreground_ = colour; }
  void PrintText(double x, double y, std::string_view text) override;
  double TextWidth(std::string_view text) override;
  void DrawDots(double left, double top, double right, double bottom, double step) override;
  void DrawSymbol(double x, double y, Rgb colour, std::span<const SymbolArea> areas) override;
  void PlaceWidget(std::string_view name, double left, double top, double width, double height) override;
  void ShowWidget(std::string_view name, bool visible) override;
  SurfaceOps& SurfaceOf(std::string_view name) override;
  void SetWidgetText(std::string_view name, std::string_view text) override;

 private:
  struct Pen {
    Rgb colour;
    double width;  // logical pixels
    PenStyle style;
  };
  struct Line {
    Pen pen;
    QPointF from, to;
  };
  struct Rect {
    Pen pen;
    QRectF area;
    bool filled;
  };
  struct Circle {
    Pen pen;
    QPointF centre;
    double radius;
  };
  struct Image {
    std::string file;
    QRectF area;
    Scaling scaling;
  };
  struct Text {
    Rgb colour;
    std::uint32_t font;
    QPointF at;
    std::string text;
  };
  struct Dots {
    Rgb colour;
    QRectF area;
    double step;
  };
  struct Symbol {
    Rgb colour;
    QPointF origin;
    std::vector<QRectF> areas;  // from the origin
  };
  struct Primitive {
    QRectF bounds;
    std::variant<Line, Rect, Circle, Image, Text, Dots, Symbol> shape;
  };
  class Painting;

  void Keep(const QRectF& bounds, decltype(Primitive::shape) shape);
  // In the order in which they were drawn.
  std::vector<std::uint32_t> Near(const QRectF& region) const;

  FontCache& fonts_;
  ImageCache& images_;
  WidgetLayer* layer_ = nullptr;
  NullSurface nowhere_;
  double scaleLeft_ = 0, width_ = 0, height_ = 0;
  Pen pen_{0, 1, PenStyle::Solid};
  Rgb foreground_ = 0;
  std::uint32_t font_ = 0;
  std::vector<FontSpec> specs_ = {FontSpec{}};
  std::unordered_map<std::string, std::uint32_t> specIndex_;
  std::vector<Primitive> primitives_;
  // Primitives by the stripes of the page that they touch; those that touch many are in `tall_`.
  std::unordered_map<std::int64_t, std::vector<std::uint32_t>> stripes_;
  std::vector<std::uint32_t> tall_;
};

}  // namespace kev
