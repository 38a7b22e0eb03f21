// SPDX-License-Identifier: MIT
#include "platform/page_strips.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

namespace kev {
namespace {

constexpr int kBytesPerPixel = 4;
constexpr double kMostPixels = 1e8;
constexpr int kQuiet = 50;  // milliseconds behind a paint

int StripAt(int y) {
  return y / PageStrips::kHeight;
}

// Only then do pixels that were moved by a logical pixel fall on pixels of the device.
bool IsWhole(double ratio) {
  return ratio >= 1 && ratio == std::floor(ratio);
}

}  // namespace

int WholePixels(double units) {
  return static_cast<int>(std::min(std::ceil(units / kUnitsPerPixel), kMostPixels));
}

QSize PageStrips::PageSize() const {
  return {WholePixels(list_.Canvas().width()), WholePixels(list_.Canvas().height())};
}

std::vector<int> PageStrips::Wanted(const QRect& seen, double ratio) const {
  const QSize page = PageSize();
  const QRect onPage = seen & QRect(QPoint(), page);
  if (onPage.isEmpty() || !IsWhole(ratio)) return {};
  std::vector<int> wanted;
  const auto add = [&](int top, int bottom) {
    top = std::max(top, 0);
    bottom = std::min(bottom, page.height() - 1);
    for (int strip = StripAt(top); top <= bottom && strip <= StripAt(bottom); ++strip)
      if (std::find(wanted.begin(), wanted.end(), strip) == wanted.end()) wanted.push_back(strip);
  };
  add(onPage.top(), onPage.bottom());
  add(onPage.bottom() + 1, onPage.bottom() + seen.height());
  add(onPage.top() - seen.height(), onPage.top() - 1);
  const double bytes = page.width() * ratio * kHeight * ratio * kBytesPerPixel;
  const auto most = static_cast<std::size_t>(static_cast<double>(kMostBytes) / bytes);
  if (wanted.size() > most) wanted.resize(most);
  return wanted;
}

bool PageStrips::IsAhead(const QRect& seen, double ratio) const {
  const std::vector<int> wanted = Wanted(seen, ratio);
  if (wanted.empty()) return true;
  return Fit(ratio) &&
         std::all_of(wanted.begin(), wanted.end(), [this](int strip) { return strips_.contains(strip); });
}

bool PageStrips::PaintAhead(const QRect& seen, double ratio) {
  const std::vector<int> wanted = Wanted(seen, ratio);
  if (wanted.empty()) return false;
  if (!Fit(ratio)) Forget();
  canvas_ = list_.Canvas();
  ratio_ = ratio;
  const auto missing =
      std::find_if(wanted.begin(), wanted.end(), [this](int strip) { return !strips_.contains(strip); });
  if (missing == wanted.end()) return false;
  QImage made = MakeStrip(*missing);
  if (made.isNull()) return false;
  std::erase_if(strips_, [&](const auto& known) {
    return std::find(wanted.begin(), wanted.end(), known.first) == wanted.end();
  });
  strips_.emplace(*missing, std::move(made));
  return true;
}

// All are of one size but the last one of the page.
QImage PageStrips::MakeStrip(int strip) const {
  const QSize page = PageSize();
  const int top = strip * kHeight;
  const QSize size(page.width(), std::min(kHeight, page.height() - top));
  QImage image(size * ratio_, QImage::Format_RGB32);
  if (image.isNull()) return image;
  QPainter painter(&image);
  painter.scale(ratio_, ratio_);
  painter.translate(0, -top);
  PaintFromList(painter, QRect(QPoint(0, top), size));
  return image;
}

void PageStrips::PaintFromList(QPainter& painter, const QRect& part) const {
  painter.fillRect(part, Qt::white);
  painter.save();
  painter.setClipRect(part, Qt::IntersectClip);
  painter.translate(part.topLeft());
  list_.Paint(painter, QRectF(list_.Canvas().topLeft() + QPointF(part.topLeft()) * kUnitsPerPixel,
                              QSizeF(part.size()) * kUnitsPerPixel));
  painter.restore();
}

void PageStrips::PaintStrip(QPainter& painter, int strip, const QRect& part) const {
  const int ratio = static_cast<int>(ratio_);
  const QPoint inStrip = (part.topLeft() - QPoint(0, strip * kHeight)) * ratio;
  const QPoint onDevice = painter.deviceTransform().map(QPointF(part.topLeft())).toPoint();
  // Pixel for pixel.
  const QTransform kept = painter.worldTransform();
  painter.setWorldTransform(painter.deviceTransform().inverted() * kept);
  painter.drawImage(onDevice, strips_.at(strip), QRect(inStrip, part.size() * ratio));
  painter.setWorldTransform(kept);
}

void PageStrips::Paint(QPainter& painter, const QRect& part) const {
  const QRect shown = part & QRect(QPoint(), PageSize());
  if (shown.isEmpty()) return;
  const QTransform toDevice = painter.deviceTransform();
  const bool fit = toDevice.type() <= QTransform::TxScale && Fit(toDevice.m11()) && toDevice.m22() == ratio_;
  // What has no strip is painted in runs, since each looks at the list once.
  int from = shown.top();
  const auto paintUpTo = [&](int end) {
    if (from < end) PaintFromList(painter, QRect(shown.left(), from, shown.width(), end - from));
  };
  for (int strip = StripAt(shown.top()); fit && strip <= StripAt(shown.bottom()); ++strip) {
    if (!strips_.contains(strip)) continue;
    const QRect area = shown & QRect(0, strip * kHeight, shown.right() + 1, kHeight);
    paintUpTo(area.top());
    PaintStrip(painter, strip, area);
    from = area.bottom() + 1;
  }
  paintUpTo(shown.bottom() + 1);
}

// --- When they are painted --------------------------------------------------------------------------------

StripsAhead::StripsAhead(const DisplayList& list, const QWidget& viewport, std::function<QRect()> seen)
    : strips_(list), viewport_(viewport), seen_(std::move(seen)) {
  quiet_.setSingleShot(true);
  QObject::connect(&quiet_, &QTimer::timeout, &quiet_, [this] { PaintNext(); });
}

void StripsAhead::Forget() {
  strips_.Forget();
  quiet_.stop();
}

void StripsAhead::Paint(QPainter& painter, const QRect& part) {
  strips_.Paint(painter, part);
  if (!quiet_.isActive() && !IsDone()) quiet_.start(kQuiet);
}

bool StripsAhead::IsDone() const {
  return strips_.IsAhead(seen_(), viewport_.devicePixelRatioF());
}

void StripsAhead::PaintNext() {
  if (viewport_.isVisible() && strips_.PaintAhead(seen_(), viewport_.devicePixelRatioF())) quiet_.start(0);
}

}  // namespace kev
