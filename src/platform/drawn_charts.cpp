// SPDX-License-Identifier: MIT
#include "platform/drawn_charts.h"

#include <QPainter>

#include "platform/chart_painter.h"
#include "platform/qt_measurer.h"

namespace kev {

bool DrawnCharts::IsReady(int, const ObjectRecord& record, const std::string& file, double) {
  ChartPicture picture = LayOutChart(LookOf(record), QtMeasurer(fonts_));
  if (picture.Width <= 0 || picture.Height <= 0) return false;
  images_.SetDrawing(file, [this, chart = std::move(picture)](QPainter& painter, const QRectF& target) {
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(target.width() / chart.Width, target.height() / chart.Height);
    PaintChartPicture(painter, chart, fonts_, images_);
    painter.restore();
  });
  return true;
}

}  // namespace kev
