// SPDX-License-Identifier: MIT
// Small pictures of colours in the chart dialogs.
#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QWidget>
#include <array>

#include "surface/surface_ops.h"

namespace kev {

// A field of one colour that can be clicked.
class ColourSwatch final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ColourSwatch(QWidget* parent = nullptr);

  void SetColour(Rgb colour);
  Rgb Colour() const { return colour_; }
  // Nothing happens on a click, and the keyboard passes it over.
  void ShowOnly();
  QSize sizeHint() const override { return {30, 24}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Rgb colour_ = 0;
};

// A gradient from top to bottom between the two colours of six numbers.
class GradientPicture final : public QWidget {
  Q_OBJECT

 public:
  explicit GradientPicture(QWidget* parent = nullptr);

  void SetEnds(const std::array<int, 6>& ends);
  const std::array<int, 6>& Ends() const { return ends_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::array<int, 6> ends_{};
};

// All colours to choose from, and grey at the right.
class PalettePicture final : public QWidget {
  Q_OBJECT

 public:
  explicit PalettePicture(QWidget* parent = nullptr);

  // Of the pixel at this place of the widget.
  Rgb ColourAt(const QPoint& at) const;

 Q_SIGNALS:
  void Picked(kev::Rgb colour);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void Pick(const QMouseEvent& event);

  QImage image_;
};

}  // namespace kev
