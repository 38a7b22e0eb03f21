// SPDX-License-Identifier: MIT
#include "platform/svg_icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <memory>
#include <utility>

namespace kev {
namespace {

constexpr double kDisabledOpacity = 0.35;

class SvgIconEngine final : public QIconEngine {
 public:
  explicit SvgIconEngine(std::shared_ptr<QSvgRenderer> drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const double before = painter->opacity();
    if (mode == QIcon::Disabled) painter->setOpacity(before * kDisabledOpacity);
    drawing_->render(painter, rect);
    painter->setOpacity(before);
  }
  // In pixels of the screen: the caller has multiplied by its ratio.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap made(size);
    made.fill(Qt::transparent);
    QPainter painter(&made);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return made;
  }
  QIconEngine* clone() const override { return std::make_unique<SvgIconEngine>(drawing_).release(); }

 private:
  std::shared_ptr<QSvgRenderer> drawing_;
};

}  // namespace

QIcon SvgIcon(const QString& file) {
  if (!QFile::exists(file)) return {};
  auto drawing = std::make_shared<QSvgRenderer>(file);
  // The icon owns its engine.
  return drawing->isValid() ? QIcon(std::make_unique<SvgIconEngine>(std::move(drawing)).release()) : QIcon();
}

}  // namespace kev
