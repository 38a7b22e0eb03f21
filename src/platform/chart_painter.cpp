// SPDX-License-Identifier: MIT
#include "platform/chart_painter.h"

#include <QLinearGradient>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "chart/gradient.h"

namespace kev {
namespace {

constexpr double kThinnestLine = 0.75;  // device pixels
constexpr int kMostRows = 4096;

QColor ToColour(Rgb colour, double opacity = 1) {
  QColor made = QColor::fromRgb(static_cast<QRgb>(colour | 0xFF000000U));
  made.setAlphaF(static_cast<float>(opacity));
  return made;
}

QRectF ToRect(const ChartRect& area) {
  return {QPointF(area.Left, area.Top), QPointF(area.Right, area.Bottom)};
}

QPolygonF ToPolygon(const std::vector<ChartPoint>& points) {
  QPolygonF polygon;
  for (const ChartPoint& point : points)
    polygon.append(QPointF(point.X, point.Y));
  return polygon;
}

bool IsLevel(const QPolygonF& points) {
  for (qsizetype n = 1; n < points.size(); ++n)
    if (points[n].x() != points[n - 1].x() && points[n].y() != points[n - 1].y()) return false;
  return true;
}

class ChartPainting {
 public:
  ChartPainting(QPainter& painter, FontCache& fonts, ImageCache& images)
      : painter_(painter),
        fonts_(fonts),
        images_(images),
        toDevice_(painter.deviceTransform()),
        scale_(std::max(1e-6, std::hypot(toDevice_.m11(), toDevice_.m12()))),
        onPixels_(painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster &&
                  toDevice_.type() <= QTransform::TxScale) {}

  void operator()(const ChartPolygon& polygon);
  void operator()(const ChartPolyline& line);
  void operator()(const ChartGradient& gradient);
  void operator()(const ChartImage& image) { images_.Paint(painter_, image.File, ToRect(image.Area)); }
  void operator()(const ChartText& text);

 private:
  QBrush BrushOf(const ChartFill& fill, const QRectF& bounds) const;
  QPen PenOf(Rgb colour, double width, double opacity = 1) const;
  // Straight edges lie on whole device pixels, so that they are sharp at every zoom.
  QPolygonF OnPixels(const QPolygonF& points, double penWidth) const;
  static QPointF Rounded(const QPointF& point) { return {std::round(point.x()), std::round(point.y())}; }

  QPainter& painter_;
  FontCache& fonts_;
  ImageCache& images_;
  QTransform toDevice_;
  double scale_;
  bool onPixels_;
};

QBrush ChartPainting::BrushOf(const ChartFill& fill, const QRectF& bounds) const {
  if (fill.Colours.empty()) return Qt::NoBrush;
  if (fill.Colours.size() == 1) return ToColour(fill.Colours.front(), fill.Opacity);
  QLinearGradient gradient(bounds.topLeft(),
                           fill.Direction == ChartFill::Run::Down ? bounds.bottomLeft() : bounds.topRight());
  const auto last = static_cast<double>(fill.Colours.size() - 1);
  for (std::size_t n = 0; n < fill.Colours.size(); ++n)
    gradient.setColorAt(static_cast<double>(n) / last, ToColour(fill.Colours[n], fill.Opacity));
  return gradient;
}

QPen ChartPainting::PenOf(Rgb colour, double width, double opacity) const {
  if (width <= 0) return Qt::NoPen;
  const double shown = onPixels_ ? std::max(width, kThinnestLine / scale_) : width;
  return {ToColour(colour, opacity), shown, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPolygonF ChartPainting::OnPixels(const QPolygonF& points, double penWidth) const {
  if (!onPixels_ || !IsLevel(points)) return points;
  const bool odd = penWidth > 0 && static_cast<int>(std::max(1L, std::lround(penWidth * scale_))) % 2 == 1;
  const QPointF half = odd ? QPointF(0.5, 0.5) : QPointF();
  const QTransform back = toDevice_.inverted();
  QPolygonF snapped;
  for (const QPointF& point : points)
    snapped.append(back.map(
        odd ? QPointF(std::floor(toDevice_.map(point).x()), std::floor(toDevice_.map(point).y())) + half
            : Rounded(toDevice_.map(point))));
  return snapped;
}

void ChartPainting::operator()(const ChartPolygon& polygon) {
  const QPolygonF points = OnPixels(ToPolygon(polygon.Points), polygon.EdgeWidth);
  painter_.setPen(PenOf(polygon.EdgeColour, polygon.EdgeWidth));
  painter_.setBrush(BrushOf(polygon.Fill, points.boundingRect()));
  painter_.drawPolygon(points);
}

void ChartPainting::operator()(const ChartPolyline& line) {
  const QPolygonF whole = ToPolygon(line.Points);
  QPen pen = PenOf(line.Colour, line.Width, line.Opacity);
  if (onPixels_ && IsLevel(whole)) {
    pen.setWidthF(std::max(1.0, std::round(pen.widthF() * scale_)) / scale_);
    pen.setCapStyle(Qt::SquareCap);
    pen.setJoinStyle(Qt::MiterJoin);
  }
  if (line.Dotted) pen.setDashPattern({1, 2});
  painter_.setPen(pen);
  painter_.setBrush(Qt::NoBrush);
  painter_.drawPolyline(OnPixels(whole, line.Width));
}

void ChartPainting::operator()(const ChartGradient& gradient) {
  const QRectF area = ToRect(gradient.Area);
  const auto& ends = gradient.Ends;
  const int rows = std::clamp(static_cast<int>(std::lround(area.height() * scale_)), 1, kMostRows);
  const std::vector<Rgb> colours =
      BuildBackGround(ends[0], ends[1], ends[2], ends[3], ends[4], ends[5], rows);
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing, false);
  const double row = area.height() / rows;
  // Rows of one colour are one strip; a file of a drawing would be full of lines otherwise.
  for (std::size_t from = 0, to = 0; from < colours.size(); from = to) {
    while (to < colours.size() && colours[to] == colours[from])
      ++to;
    painter_.fillRect(QRectF(area.left(), area.top() + row * static_cast<double>(from), area.width(),
                             row * static_cast<double>(to - from)),
                      ToColour(colours[from]));
  }
  painter_.restore();
}

void ChartPainting::operator()(const ChartText& text) {
  painter_.save();
  painter_.translate(text.At.X, text.At.Y);
  painter_.rotate(text.Degrees);
  painter_.setPen(ToColour(text.Colour));
  fonts_.Print(painter_, text.Font, QPointF(0, 0), text.Text);
  painter_.restore();
}

}  // namespace

void PaintChartPicture(QPainter& painter, const ChartPicture& picture, FontCache& fonts, ImageCache& images) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  painter.setClipRect(QRectF(0, 0, picture.Width, picture.Height), Qt::IntersectClip);
  ChartPainting painting(painter, fonts, images);
  for (const ChartShape& shape : picture.Shapes)
    std::visit(painting, shape);
  painter.restore();
}

QImage ChartImageOf(const ChartPicture& picture, double scale, FontCache& fonts, ImageCache& images) {
  const double pixels = picture.Width * picture.Height * scale * scale;
  if (!(pixels > 0) || !std::isfinite(pixels)) return {};
  if (pixels > kMostChartPixels) scale *= std::sqrt(kMostChartPixels / pixels);
  const auto side = [&](double length) { return std::max(1, static_cast<int>(std::lround(length * scale))); };
  QImage image(side(picture.Width), side(picture.Height), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(image.width() / picture.Width, image.height() / picture.Height);
  PaintChartPicture(painter, picture, fonts, images);
  return image;
}

}  // namespace kev
