// SPDX-License-Identifier: MIT
// The chart control: shows a chart as its values say, scaled down where the control has less room.
#pragma once

#include <QImage>
#include <QWidget>

#include "chart/graph.h"
#include "platform/chart_painter.h"

namespace kev {

class KevGraph final : public QWidget {
  Q_OBJECT

 public:
  // Both outlive the control. Its objectName is "KevGraph"; the accessible name is the caller's to set.
  KevGraph(FontCache& fonts, ImageCache& images, QWidget* parent = nullptr);

  // What is shown from now on. The same look once more costs nothing.
  void Show(const ChartLook& look);
  const ChartLook& Look() const { return look_; }
  const ChartPicture& Picture() const { return picture_; }
  // A chart with less than the control's room is shown up to this many times as large; 1 from the start.
  void EnlargeUpTo(double factor);
  // The chart by itself, as ChartImageOf.
  QImage Image(double scale) const;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  FontCache& fonts_;
  ImageCache& images_;
  ChartLook look_;
  ChartPicture picture_;
  double largest_ = 1;
};

}  // namespace kev
