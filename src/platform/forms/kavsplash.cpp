// SPDX-License-Identifier: MIT
#include "platform/forms/kavsplash.h"

#include <QCoreApplication>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include "platform/app_style.h"

namespace kev {

namespace {

constexpr int kWidth = 480;
constexpr int kHeight = 260;
constexpr int kIconSize = 96;
constexpr int kMargin = 40;

QFont Scaled(QFont font, double factor, QFont::Weight weight) {
  font.setPointSizeF(font.pointSizeF() * factor);
  font.setWeight(weight);
  return font;
}

// A faint sheet with lines of text and a ruler, at the right edge.
void PaintSheet(QPainter& painter) {
  painter.save();
  painter.translate(kWidth - 130, 46);
  painter.rotate(8);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 26));
  painter.drawRoundedRect(QRectF(0, 0, 190, 250), 6, 6);
  painter.setBrush(QColor(255, 255, 255, 34));
  painter.drawRect(QRectF(22, 26, 92, 12));
  for (int line = 0; line < 6; ++line)
    painter.drawRect(QRectF(22, 62 + line * 24, line % 2 == 0 ? 146 : 112, 7));
  painter.restore();
}

}  // namespace

kavsplash::kavsplash(const QString& programTitle, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), programTitle_(programTitle) {
  setObjectName(QStringLiteral("kavsplash"));
  setAccessibleName(programTitle);
  setModal(true);
  setFixedSize(kWidth, kHeight);
}

void kavsplash::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (parentWidget() != nullptr) move(parentWidget()->geometry().center() - rect().center());
  QTimer::singleShot(kMilliseconds, this, &QDialog::accept);
}

void kavsplash::paintEvent(QPaintEvent* /*event*/) {
  QTimer::singleShot(0, this, &QDialog::accept);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient blend(0, 0, kWidth, kHeight);
  blend.setColorAt(0, QColor(0x12, 0x3A, 0x6F));
  blend.setColorAt(1, QColor(0x1B, 0x6A, 0xC9));
  painter.fillRect(rect(), blend);
  PaintSheet(painter);
  ProgramIcon().paint(&painter, QRect(kMargin, kMargin, kIconSize, kIconSize));
  painter.setPen(Qt::white);
  painter.setFont(Scaled(font(), 2.0, QFont::DemiBold));
  painter.drawText(QRect(kMargin, kMargin + kIconSize + 22, kWidth - 2 * kMargin, 40),
                   Qt::AlignLeft | Qt::AlignVCenter, programTitle_);
  painter.setPen(QColor(255, 255, 255, 190));
  painter.setFont(Scaled(font(), 1.0, QFont::Normal));
  painter.drawText(QRect(kMargin, kHeight - kMargin - 14, kWidth - 2 * kMargin, 24),
                   Qt::AlignLeft | Qt::AlignVCenter, QCoreApplication::applicationVersion());
}

void kavsplash::mousePressEvent(QMouseEvent* /*event*/) {
  accept();
}

void kavsplash::keyPressEvent(QKeyEvent* /*event*/) {
  accept();
}

}  // namespace kev
