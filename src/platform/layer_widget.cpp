// SPDX-License-Identifier: MIT
#include "platform/layer_widget.h"

#include <QPainter>
#include <array>
#include <charconv>
#include <cmath>

#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr double kMargin = 6;       // pixels around a place, for pens and rounded corners
constexpr double kReach = 3;        // pixels beside a thin thing from which it is still had
constexpr double kColumnReach = 2;  // the same for column lines
const QColor kAccent(0x1F, 0x6F, 0xC5);
const QColor kColumnColour(0x2E, 0x9E, 0x6B, 120);
const QColor kBandColour(0, 0, 255);

constexpr std::array kRows = {
    LayerRow{"linecolumn", LayerLook::Column, 1, true, PointerSource::ColumnLine},
    LayerRow{"lblob", LayerLook::Panel, 2, true, PointerSource::Overlay},
    LayerRow{"Lineaviva", LayerLook::Stroke, 3, true, PointerSource::LineBody},
    LayerRow{"lnh", LayerLook::Frame, 4, false, PointerSource::Page},
    LayerRow{"lnv", LayerLook::Frame, 4, false, PointerSource::Page},
    LayerRow{"dot_", LayerLook::Grip, 5, true, PointerSource::Handle},
    LayerRow{"ObjL", LayerLook::LineEnd, 5, true, PointerSource::LineEnd},
    LayerRow{"LineSelect", LayerLook::Band, 6, false, PointerSource::Page},
    LayerRow{"indicatorCOLUMN", LayerLook::Caption, 8, false, PointerSource::Page},
    LayerRow{"indicator", LayerLook::Guide, 7, false, PointerSource::Page},
    LayerRow{"", LayerLook::Panel, 2, false, PointerSource::Page},
};

double DistanceToSegment(const QPointF& point, const QPointF& from, const QPointF& to) {
  const QPointF along = to - from;
  const double length = QPointF::dotProduct(along, along);
  const double part =
      length == 0 ? 0 : std::clamp(QPointF::dotProduct(point - from, along) / length, 0.0, 1.0);
  const QPointF off = point - (from + along * part);
  return std::hypot(off.x(), off.y());
}

QRectF Grown(const QRectF& area, double pixels) {
  const double by = pixels * kUnitsPerPixel;
  return area.adjusted(-by, -by, by, by);
}

}  // namespace

const LayerRow& LayerRowOf(std::string_view name) {
  for (const LayerRow& row : kRows)
    if (name.starts_with(row.prefix)) return row;
  return kRows.back();
}

int IndexInName(std::string_view name) {
  const std::size_t digit = name.find_first_of("0123456789");
  int index = 0;
  if (digit != std::string_view::npos) std::from_chars(name.data() + digit, name.data() + name.size(), index);
  return index;
}

LayerWidget::LayerWidget(std::string_view name, FontCache& fonts, ImageCache& images, QWidget* parent)
    : QWidget(parent), row_(LayerRowOf(name)), index_(IndexInName(name)), list_(fonts, images) {
  setObjectName(ToQString(name));
  setAccessibleName(ToQString(name));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

QRectF LayerWidget::Room() const {
  return Grown(place_.normalized(), kMargin);
}

bool LayerWidget::Holds(const QPointF& point) const {
  const double reach = kReach * kUnitsPerPixel;
  switch (row_.look) {
    case LayerLook::Stroke:
      return DistanceToSegment(point, place_.topLeft(), place_.bottomRight()) <= reach;
    case LayerLook::Column:
      return std::abs(point.x() - place_.left()) <= kColumnReach * kUnitsPerPixel &&
             point.y() >= place_.top() && point.y() <= place_.bottom();
    case LayerLook::Panel: {
      const QRectF area = place_.normalized();
      const double x = std::max(0.0, reach - area.width() / 2);
      const double y = std::max(0.0, reach - area.height() / 2);
      return area.adjusted(-x, -y, x, y).contains(point);
    }
    default:
      return Grown(place_.normalized(), 1).contains(point);
  }
}

SurfaceOps& LayerWidget::BeginPainting() {
  paintedAt_ = place_;
  // A list paints nothing outside its canvas.
  list_.SetScaleLeft(Room().left());
  list_.SetCanvasSize(Room().width(), Room().bottom());
  update();
  return list_;
}

void LayerWidget::SetText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  update();
}

void LayerWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  switch (row_.look) {
    case LayerLook::Panel:
      return PaintPanel(painter);
    case LayerLook::Grip:
    case LayerLook::LineEnd:
      return PaintGrip(painter);
    case LayerLook::Stroke:
      return PaintStroke(painter);
    case LayerLook::Frame: {
      const QRectF area(rect().adjusted(6, 6, -6, -6));
      painter.setPen(QPen(kAccent, 1, Qt::DashLine));
      return painter.drawLine(area.topLeft() + QPointF(0.5, 0.5),
                              area.width() > area.height() ? area.topRight() + QPointF(0.5, 0.5)
                                                           : area.bottomLeft() + QPointF(0.5, 0.5));
    }
    case LayerLook::Band:
      return painter.fillRect(rect().adjusted(6, 6, -6, -6), kBandColour);
    case LayerLook::Column:
    case LayerLook::Guide:
      return PaintColumn(painter);
    case LayerLook::Caption:
      return PaintCaption(painter);
  }
}

// Away from where it was painted it is being dragged: it covers what is below it without hiding it. At rest
// the page shows the same text in the same place, and painted twice it would look bold.
void LayerWidget::PaintPanel(QPainter& painter) {
  const QRectF area = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const bool dragged = place_.topLeft() != paintedAt_.topLeft();
  if (dragged) painter.fillRect(area, QColor(255, 255, 255, 150));
  if (dragged || !list_.HoldsTextsAlone()) {
    painter.save();
    list_.Paint(painter, Grown(paintedAt_.normalized(), kMargin));
    painter.restore();
  }
  QColor tint = kAccent;
  tint.setAlpha(dragged ? 30 : 16);
  painter.fillRect(area, tint);
}

void LayerWidget::PaintGrip(QPainter& painter) {
  const QRectF area = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const bool sizes = row_.look == LayerLook::LineEnd || (index_ >= 4 && index_ <= 6);
  painter.setPen(QPen(kAccent, 1));
  painter.setBrush(sizes ? kAccent : QColor(Qt::white));
  painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
}

void LayerWidget::PaintStroke(QPainter& painter) {
  list_.Paint(painter, Grown(paintedAt_.normalized(), kMargin));
}

void LayerWidget::PaintColumn(QPainter& painter) {
  const QRectF area = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const bool guide = row_.look == LayerLook::Guide;
  painter.setPen(QPen(guide ? kAccent : kColumnColour, 1, guide ? Qt::DashLine : Qt::SolidLine));
  const double x = std::floor(area.left()) + 0.5;
  painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
}

void LayerWidget::PaintCaption(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x2B, 0x2F, 0x36, 230));
  painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 3, 3);
  painter.setPen(Qt::white);
  painter.drawText(rect(), Qt::AlignCenter, text_.trimmed());
}

}  // namespace kev
