// SPDX-License-Identifier: MIT
#include "picture_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "base/files.h"
#include "platform/text_bridge.h"

namespace kev::tool {
namespace {

constexpr QSize kSmallestWindow(240, 160);
constexpr double kPartOfScreen = 0.8;

}  // namespace

PictureWindow::PictureWindow(ImageCache& images, std::string path) : images_(images), path_(std::move(path)) {
  const QString name = FromNative(FileNameOf(path_));
  setWindowTitle(name);
  setAccessibleName(name);
  const QSize most = QGuiApplication::primaryScreen()->availableSize() * kPartOfScreen;
  const QSize picture = images_.SizeOf(path_);
  const bool fits = picture.width() <= most.width() && picture.height() <= most.height();
  resize((fits ? picture : picture.scaled(most, Qt::KeepAspectRatio)).expandedTo(kSmallestWindow));
}

void PictureWindow::paintEvent(QPaintEvent* /*event*/) {
  const QSize picture = images_.SizeOf(path_);
  const bool fits = picture.width() <= width() && picture.height() <= height();
  QRect place(QPoint(), fits ? picture : picture.scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  images_.Paint(painter, path_, place);
}

void PictureWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace kev::tool
