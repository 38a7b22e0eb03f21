// SPDX-License-Identifier: MIT
#include "platform/chart_control.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt_measurer.h"

namespace kev {

KevGraph::KevGraph(FontCache& fonts, ImageCache& images, QWidget* parent)
    : QWidget(parent), fonts_(fonts), images_(images) {
  setObjectName(QStringLiteral("KevGraph"));
}

void KevGraph::Show(const ChartLook& look) {
  if (look == look_) return;
  look_ = look;
  picture_ = LayOutChart(look_, QtMeasurer(fonts_));
  updateGeometry();
  update();
}

void KevGraph::EnlargeUpTo(double factor) {
  largest_ = factor;
  update();
}

QImage KevGraph::Image(double scale) const {
  return ChartImageOf(picture_, scale, fonts_, images_);
}

QSize KevGraph::sizeHint() const {
  const QSizeF whole(picture_.Width, picture_.Height);
  return whole.boundedTo(QSizeF(4096, 4096)).toSize();
}

void KevGraph::paintEvent(QPaintEvent*) {
  if (picture_.Width <= 0 || picture_.Height <= 0) return;
  QPainter painter(this);
  const double fit = std::min({largest_, width() / picture_.Width, height() / picture_.Height});
  painter.translate(std::floor((width() - picture_.Width * fit) / 2),
                    std::floor((height() - picture_.Height * fit) / 2));
  painter.scale(fit, fit);
  PaintChartPicture(painter, picture_, fonts_, images_);
}

}  // namespace kev
