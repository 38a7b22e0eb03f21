// SPDX-License-Identifier: MIT
#include "platform/forms/colour_widgets.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "chart/gradient.h"

namespace kev {
namespace {

constexpr QRgb kEdge = 0xFF80868E;
constexpr double kCorner = 3;
constexpr int kGreyColumn = 16;  // pixels
constexpr int kHues = 360;

QPen EdgePen(bool focused, const QPalette& palette) {
  return focused ? QPen(palette.color(QPalette::Highlight), 2) : QPen(QColor(kEdge), 1);
}

QColor PaletteColour(double across, double down) {
  // White, the pure colour in the middle, black.
  const double lightness = 1 - down;
  return QColor::fromHslF(static_cast<float>(std::min(across * kHues, kHues - 1.0) / kHues), 1.0F,
                          static_cast<float>(std::clamp(lightness, 0.0, 1.0)));
}

}  // namespace

// --- ColourSwatch ---

ColourSwatch::ColourSwatch(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setFixedSize(sizeHint());
}

void ColourSwatch::SetColour(Rgb colour) {
  colour_ = colour;
  update();
}

void ColourSwatch::ShowOnly() {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ColourSwatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(EdgePen(hasFocus(), palette()));
  painter.setBrush(QColor::fromRgb(colour_));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCorner, kCorner);
}

// --- GradientPicture ---

GradientPicture::GradientPicture(QWidget* parent) : QWidget(parent) {}

void GradientPicture::SetEnds(const std::array<int, 6>& ends) {
  ends_ = ends;
  update();
}

void GradientPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto& [red1, green1, blue1, red2, green2, blue2] = ends_;
  const std::vector<Rgb> rows = BuildBackGround(red1, green1, blue1, red2, green2, blue2, height());
  int y = 0;
  for (const Rgb row : rows)
    painter.fillRect(0, y++, width(), 1, QColor::fromRgb(row));
  painter.setPen(QColor(kEdge));
  painter.drawRect(0, 0, width() - 1, height() - 1);
}

// --- PalettePicture ---

PalettePicture::PalettePicture(QWidget* parent) : QWidget(parent) {
  setCursor(Qt::CrossCursor);
}

void PalettePicture::resizeEvent(QResizeEvent*) {
  image_ = QImage(size(), QImage::Format_RGB32);
  const int colours = std::max(1, width() - kGreyColumn);
  for (int y = 0; y < height(); ++y) {
    const double down = height() > 1 ? static_cast<double>(y) / (height() - 1) : 0;
    const int grey = static_cast<int>(std::lround(255 * (1 - down)));
    for (int x = 0; x < width(); ++x) {
      const QColor colour =
          x < colours ? PaletteColour(static_cast<double>(x) / colours, down) : QColor(grey, grey, grey);
      image_.setPixel(x, y, colour.rgb());
    }
  }
}

Rgb PalettePicture::ColourAt(const QPoint& at) const {
  if (image_.isNull()) return 0;
  const QPoint inside(std::clamp(at.x(), 0, image_.width() - 1), std::clamp(at.y(), 0, image_.height() - 1));
  return image_.pixel(inside) & 0xFFFFFFU;
}

void PalettePicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), image_);
}

void PalettePicture::mousePressEvent(QMouseEvent* event) {
  Pick(*event);
}

void PalettePicture::mouseMoveEvent(QMouseEvent* event) {
  Pick(*event);
}

void PalettePicture::Pick(const QMouseEvent& event) {
  if (event.buttons().testFlag(Qt::LeftButton)) Q_EMIT Picked(ColourAt(event.position().toPoint()));
}

}  // namespace kev
