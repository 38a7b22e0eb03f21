// SPDX-License-Identifier: MIT
#include "platform/display_list.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <optional>

#include "base/numbers.h"
#include "platform/qt_measurer.h"
#include "platform/symbol_image.h"

namespace kev {
namespace {

constexpr double kStripeHeight = 300 * kUnitsPerPixel;
constexpr std::int64_t kMostStripes = 6;
constexpr double kFarthest = 1e12;
// What is drawn beyond the painted region is cut this far outside it, so that lengths stay sane for the
// painter and the cut is never seen.
constexpr double kBeyond = 64;
constexpr double kThinnestPen = 1;  // logical pixels
constexpr double kThickestPen = 2000;

std::int64_t StripeOf(double y) {
  return static_cast<std::int64_t>(std::floor(std::clamp(y, -kFarthest, kFarthest) / kStripeHeight));
}

QRectF Between(double x1, double y1, double x2, double y2) {
  return QRectF(QPointF(std::min(x1, x2), std::min(y1, y2)), QPointF(std::max(x1, x2), std::max(y1, y2)));
}

QRectF Grown(const QRectF& area, double by) {
  return area.adjusted(-by, -by, by, by);
}

bool IsFinite(const QRectF& area) {
  return std::isfinite(area.left()) && std::isfinite(area.top()) && std::isfinite(area.right()) &&
         std::isfinite(area.bottom());
}

// Also true where one of them is flat, as the bounds of a level line are.
bool Touches(const QRectF& a, const QRectF& b) {
  return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

double PenRoom(double width) {
  return (width + 1) * kUnitsPerPixel;
}

QColor ToColour(Rgb colour) {
  return QColor::fromRgb(static_cast<QRgb>(colour | 0xFF000000U));
}

// The part of a line inside an area, from 0 to 1 along it; empty where `from` is above `to`.
struct Part {
  double from = 0, to = 1;

  void Cut(double start, double delta, double low, double high) {
    if (delta == 0) {
      if (start < low || start > high) to = -1;
      return;
    }
    const double a = (low - start) / delta;
    const double b = (high - start) / delta;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
  }
};

Part PartInside(const QLineF& line, const QRectF& area) {
  Part part;
  part.Cut(line.x1(), line.dx(), area.left(), area.right());
  part.Cut(line.y1(), line.dy(), area.top(), area.bottom());
  return part;
}

// Halves go the same way on both sides of a window's edge, or scrolling would shift what stands there.
QPointF NearestWhole(const QPointF& point) {
  constexpr double kHalf = 0.5 + 1e-6;
  return {std::floor(point.x() + kHalf), std::floor(point.y() + kHalf)};
}

}  // namespace

// One paint of a region. All lengths that reach the painter are logical pixels from the region's corner, so
// that they are small however far down the page the region lies.
class DisplayList::Painting {
 public:
  Painting(const DisplayList& list, QPainter& painter, const QRectF& region)
      : list_(list),
        painter_(painter),
        region_(region),
        window_(0, 0, region.width() / kUnitsPerPixel, region.height() / kUnitsPerPixel) {}

  void operator()(const Line& line) { DrawLine(QLineF(At(line.from), At(line.to)), line.pen); }
  void operator()(const Rect& rect);
  void operator()(const Circle& circle);
  void operator()(const Image& image) {
    pen_.reset();
    list_.images_.Paint(painter_, image.file, QRectF(At(image.area.topLeft()), image.area.size() * kPixel),
                        image.scaling);
  }
  void operator()(const Text& text);
  void operator()(const Dots& dots);
  void operator()(const Symbol& symbol);

 private:
  static constexpr double kPixel = 1 / kUnitsPerPixel;

  QPointF At(const QPointF& canvas) const { return (canvas - region_.topLeft()) * kPixel; }
  void UsePen(const Pen& pen, double dashOffset = 0);
  bool IsSame(const Pen& pen) const {
    return pen_ && pen_->colour == pen.colour && pen_->width == pen.width && pen_->style == pen.style;
  }
  void Smooth(bool on);
  void DrawLine(const QLineF& line, const Pen& pen);
  // What is left of an outline without width or height; a spot where both are missing.
  void DrawFlat(const QLineF& line, const Pen& pen);
  void DrawOutline(const QRectF& area, const Pen& pen);
  void DrawDotRow(const Dots& dots, double y);
  // On a bitmap or window, where the origin stands on a whole pixel.
  void DrawOnPixels(const Symbol& symbol, const QTransform& toDevice);

  const DisplayList& list_;
  QPainter& painter_;
  QRectF region_;
  QRectF window_;
  QList<QPointF> points_;
  // The pen that the painter has, where it is known: primitives of one look often come in rows.
  std::optional<Pen> pen_;
};

void DisplayList::Painting::Smooth(bool on) {
  if (painter_.testRenderHint(QPainter::Antialiasing) != on)
    painter_.setRenderHint(QPainter::Antialiasing, on);
}

void DisplayList::Painting::UsePen(const Pen& pen, double dashOffset) {
  if (IsSame(pen) && pen.style == PenStyle::Solid) return;
  pen_ = pen;
  QPen made(ToColour(pen.colour), pen.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  if (pen.style == PenStyle::Dotted) {
    made.setDashPattern({1, 2});
    made.setDashOffset(dashOffset / made.widthF());
  }
  painter_.setPen(made);
  painter_.setBrush(Qt::NoBrush);
}

void DisplayList::Painting::DrawLine(const QLineF& line, const Pen& pen) {
  const Part part = PartInside(line, Grown(window_, kBeyond + pen.width));
  if (part.from > part.to) return;
  UsePen(pen, part.from * line.length());
  const bool level = line.dx() == 0 || line.dy() == 0;
  Smooth(!level);
  painter_.drawLine(QLineF(line.pointAt(part.from), line.pointAt(part.to)));
}

void DisplayList::Painting::DrawFlat(const QLineF& line, const Pen& pen) {
  if (!line.isNull()) return DrawLine(line, pen);
  UsePen(pen);
  Smooth(false);
  painter_.drawPoint(line.p1());
}

void DisplayList::Painting::DrawOutline(const QRectF& area, const Pen& pen) {
  if (pen.style == PenStyle::Dotted) {
    DrawLine(QLineF(area.topLeft(), area.topRight()), pen);
    DrawLine(QLineF(area.topRight(), area.bottomRight()), pen);
    DrawLine(QLineF(area.bottomLeft(), area.bottomRight()), pen);
    DrawLine(QLineF(area.topLeft(), area.bottomLeft()), pen);
    return;
  }
  // The intersection of a flat rectangle with any other is none at all.
  if (area.isEmpty()) return DrawFlat(QLineF(area.topLeft(), area.bottomRight()), pen);
  UsePen(pen);
  Smooth(false);
  painter_.drawRect(area.intersected(Grown(window_, kBeyond + pen.width)));
}

void DisplayList::Painting::operator()(const Rect& rect) {
  const QRectF area(At(rect.area.topLeft()), rect.area.size() * kPixel);
  if (!rect.filled) return DrawOutline(area, rect.pen);
  Smooth(false);
  const QRectF atLeastOnePixel(area.topLeft(), area.size().expandedTo(QSizeF(1, 1)));
  painter_.fillRect(atLeastOnePixel.intersected(Grown(window_, kBeyond)), ToColour(rect.pen.colour));
  if (rect.pen.width > 1) DrawOutline(area, rect.pen);
}

void DisplayList::Painting::operator()(const Circle& circle) {
  UsePen(circle.pen);
  Smooth(true);
  const double radius = circle.radius * kPixel;
  painter_.drawEllipse(At(circle.centre), radius, radius);
}

void DisplayList::Painting::operator()(const Text& text) {
  pen_.reset();
  painter_.setPen(ToColour(text.colour));
  list_.fonts_.Print(painter_, list_.specs_[text.font], At(text.at), text.text);
}

void DisplayList::Painting::DrawDotRow(const Dots& dots, double y) {
  const double left = std::max(dots.area.left(), region_.left() - dots.step);
  const double right = std::min(dots.area.right(), region_.right() + dots.step);
  points_.clear();
  for (double n = std::ceil((left - dots.area.left()) / dots.step); dots.area.left() + n * dots.step <= right;
       ++n)
    points_.append(At(QPointF(dots.area.left() + n * dots.step, y)));
  painter_.drawPoints(points_.constData(), static_cast<int>(points_.size()));
}

void DisplayList::Painting::operator()(const Dots& dots) {
  Smooth(false);
  pen_.reset();
  painter_.setPen(QPen(ToColour(dots.colour), 1));
  const double top = std::max(dots.area.top(), region_.top() - dots.step);
  const double bottom = std::min(dots.area.bottom(), region_.bottom() + dots.step);
  for (double n = std::ceil((top - dots.area.top()) / dots.step); dots.area.top() + n * dots.step <= bottom;
       ++n)
    DrawDotRow(dots, dots.area.top() + n * dots.step);
}

void DisplayList::Painting::operator()(const Symbol& symbol) {
  const QTransform toDevice = painter_.deviceTransform();
  const bool isUpright = toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 && toDevice.m22() > 0;
  if (isUpright && painter_.paintEngine()->type() == QPaintEngine::Raster)
    return DrawOnPixels(symbol, toDevice);
  const QPointF origin = At(symbol.origin);
  const QRectF seen = Grown(window_, kBeyond);
  // One path, since areas that share a pixel must add up.
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const QRectF& area : symbol.areas) {
    const QRectF part = QRectF(origin + area.topLeft() * kPixel, area.size() * kPixel) & seen;
    if (!part.isEmpty()) path.addRect(part);
  }
  Smooth(true);
  painter_.fillPath(path, ToColour(symbol.colour));
}

void DisplayList::Painting::DrawOnPixels(const Symbol& symbol, const QTransform& toDevice) {
  const QRectF seen = toDevice.mapRect(window_);
  const QPointF origin = NearestWhole(toDevice.map(At(symbol.origin)));
  std::vector<QRectF> areas;
  QRectF bounds;
  for (const QRectF& area : symbol.areas) {
    const QPointF corner(area.left() * kPixel * toDevice.m11(), area.top() * kPixel * toDevice.m22());
    const QSizeF size(area.width() * kPixel * toDevice.m11(), area.height() * kPixel * toDevice.m22());
    const QRectF part = QRectF(origin + corner, size) & seen;
    if (part.isEmpty()) continue;
    areas.push_back(part);
    bounds |= part;
  }
  if (areas.empty()) return;
  const QRect box = bounds.toAlignedRect();
  // From here on the painter's unit is the pixel of the device.
  const QTransform kept = painter_.worldTransform();
  painter_.setWorldTransform(toDevice.inverted() * kept);
  painter_.drawImage(box.topLeft(), SymbolImage(areas, box, symbol.colour));
  painter_.setWorldTransform(kept);
}

void DisplayList::Paint(QPainter& painter, const QRectF& region) const {
  const QRectF shown = region.intersected(Canvas());
  if (shown.isEmpty()) return;
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  const QPointF corner = (shown.topLeft() - region.topLeft()) / kUnitsPerPixel;
  painter.setClipRect(QRectF(corner, shown.size() / kUnitsPerPixel), Qt::IntersectClip);
  Painting painting(*this, painter, region);
  for (const std::uint32_t index : Near(shown))
    std::visit(painting, primitives_[index].shape);
  painter.restore();
}

std::vector<std::uint32_t> DisplayList::Near(const QRectF& region) const {
  std::vector<std::uint32_t> found;
  const auto take = [&](const std::vector<std::uint32_t>& some) {
    std::copy_if(some.begin(), some.end(), std::back_inserter(found),
                 [&](std::uint32_t index) { return Touches(primitives_[index].bounds, region); });
  };
  take(tall_);
  const std::int64_t first = StripeOf(region.top());
  const std::int64_t last = StripeOf(region.bottom());
  if (last - first < static_cast<std::int64_t>(stripes_.size())) {
    for (std::int64_t stripe = first; stripe <= last; ++stripe)
      if (const auto known = stripes_.find(stripe); known != stripes_.end()) take(known->second);
  } else {
    for (const auto& [stripe, some] : stripes_)
      if (stripe >= first && stripe <= last) take(some);
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

void DisplayList::Keep(const QRectF& bounds, decltype(Primitive::shape) shape) {
  if (!IsFinite(bounds)) return;
  const auto index = static_cast<std::uint32_t>(primitives_.size());
  primitives_.push_back({bounds, std::move(shape)});
  const std::int64_t first = StripeOf(bounds.top());
  const std::int64_t last = StripeOf(bounds.bottom());
  if (last - first >= kMostStripes) return tall_.push_back(index);
  for (std::int64_t stripe = first; stripe <= last; ++stripe)
    stripes_[stripe].push_back(index);
}

bool DisplayList::HoldsTextsAlone() const {
  return std::all_of(primitives_.begin(), primitives_.end(), [](const Primitive& primitive) {
    return std::holds_alternative<Text>(primitive.shape);
  });
}

void DisplayList::ClearCanvas() {
  primitives_.clear();
  stripes_.clear();
  tall_.clear();
  specs_.assign(1, FontSpec{});
  specIndex_.clear();
  font_ = 0;
  images_.Forget();
}

void DisplayList::SetCanvasSize(double width, double height) {
  width_ = std::isfinite(width) ? std::max(width, 0.0) : 0;
  height_ = std::isfinite(height) ? std::max(height, 0.0) : 0;
}

void DisplayList::SetPen(Rgb colour, double width, PenStyle style) {
  // A file may hold any width; one below that of a pixel would take the room from what is drawn with it.
  pen_ = {colour, width > kThinnestPen ? std::min(width, kThickestPen) : kThinnestPen, style};
}

void DisplayList::DrawLine(double x1, double y1, double x2, double y2) {
  Keep(Grown(Between(x1, y1, x2, y2), PenRoom(pen_.width)), Line{pen_, {x1, y1}, {x2, y2}});
}

void DisplayList::DrawRect(double x1, double y1, double x2, double y2, bool filled) {
  const QRectF area = Between(x1, y1, x2, y2);
  Keep(Grown(area, PenRoom(pen_.width)), Rect{pen_, area, filled});
}

void DisplayList::DrawRectColour(double x1, double y1, double x2, double y2, Rgb colour, bool filled) {
  const QRectF area = Between(x1, y1, x2, y2);
  Pen pen = pen_;
  pen.colour = colour;
  Keep(Grown(area, PenRoom(pen.width)), Rect{pen, area, filled});
}

void DisplayList::DrawCircle(double cx, double cy, double radius) {
  const double r = std::abs(radius);
  Keep(Grown(Between(cx - r, cy - r, cx + r, cy + r), PenRoom(pen_.width)), Circle{pen_, {cx, cy}, r});
}

void DisplayList::PaintImage(std::string_view file, double x, double y, double width, double height) {
  const QRectF area(x, y, width, height);
  if (!file.empty() && !area.isEmpty()) Keep(area, Image{std::string(file), area, Scaling::Smooth});
}

void DisplayList::PaintImageSharp(std::string_view file, double x, double y, double width, double height) {
  const QRectF area(x, y, width, height);
  if (!file.empty() && !area.isEmpty()) Keep(area, Image{std::string(file), area, Scaling::Sharp});
}

void DisplayList::SetFont(const FontSpec& font) {
  if (specs_[font_] == font) return;
  std::string key = font.Name + '\n' + font.CharSet + '\n' + FormatNumber(font.Size);
  for (const bool style : {font.Bold, font.Italic, font.Strikethrough, font.Underline})
    key += style ? '1' : '0';
  const auto [known, isNew] = specIndex_.try_emplace(key, static_cast<std::uint32_t>(specs_.size()));
  if (isNew) specs_.push_back(font);
  font_ = known->second;
}

void DisplayList::PrintText(double x, double y, std::string_view text) {
  if (text.empty()) return;
  const TextExtent extent = QtMeasurer(fonts_).Measure(specs_[font_], text);
  // Slanted and accented letters reach out of their box.
  const QRectF bounds = Grown(QRectF(x, y, extent.Width, extent.Height), extent.Height / 2);
  Keep(bounds, Text{foreground_, font_, {x, y}, std::string(text)});
}

double DisplayList::TextWidth(std::string_view text) {
  return QtMeasurer(fonts_).Measure(specs_[font_], text).Width;
}

void DisplayList::DrawDots(double left, double top, double right, double bottom, double step) {
  const QRectF area = Between(left, top, right, bottom);
  // Farther out a step would no longer change the place that it is added to.
  const bool countable = QRectF(-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest).contains(area);
  if (!(step >= kUnitsPerPixel) || !countable) return;
  Keep(Grown(area, kUnitsPerPixel), Dots{pen_.colour, area, step});
}

void DisplayList::DrawSymbol(double x, double y, Rgb colour, std::span<const SymbolArea> areas) {
  Symbol symbol{colour, {x, y}, {}};
  QRectF bounds;
  for (const SymbolArea& area : areas) {
    symbol.areas.push_back(Between(area.Left, area.Top, area.Right, area.Bottom));
    bounds |= symbol.areas.back();
  }
  // The whole pixel of the origin may lie beside it.
  if (!bounds.isEmpty()) Keep(Grown(bounds.translated(x, y), kUnitsPerPixel), std::move(symbol));
}

void DisplayList::PlaceWidget(std::string_view name, double left, double top, double width, double height) {
  if (layer_) layer_->PlaceWidget(name, left, top, width, height);
}

void DisplayList::ShowWidget(std::string_view name, bool visible) {
  if (layer_) layer_->ShowWidget(name, visible);
}

SurfaceOps& DisplayList::SurfaceOf(std::string_view name) {
  if (layer_ == nullptr) return nowhere_;
  return layer_->SurfaceOf(name);
}

void DisplayList::SetWidgetText(std::string_view name, std::string_view text) {
  if (layer_ != nullptr) layer_->SetWidgetText(name, text);
}

}  // namespace kev
