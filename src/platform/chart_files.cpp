// SPDX-License-Identifier: MIT
#include "platform/chart_files.h"

#include <QBuffer>
#include <QGuiApplication>

#include "base/files.h"
#include "platform/chart_painter.h"

namespace kev {

bool ChartFiles::SaveChart(const ChartPicture& picture, double scale, const std::string& path) {
  const QImage image = ChartImageOf(picture, scale, fonts_, images_);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (image.isNull() || !image.save(&buffer, "BMP")) return false;
  images_.Drop(FromNative(path));
  return !WritePlainFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

void ChartFiles::ShowPointer(int number) {
  if (number == kNormalPointer)
    QGuiApplication::restoreOverrideCursor();
  else
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace kev
