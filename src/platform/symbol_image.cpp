// SPDX-License-Identifier: MIT
#include "platform/symbol_image.h"

#include <algorithm>
#include <cmath>

namespace kev {
namespace {

// How much of each pixel, from the first one that is touched on, lies between two places.
struct Shares {
  int first = 0;
  std::vector<float> parts;
};

Shares SharesOf(double from, double to) {
  Shares shares{static_cast<int>(std::floor(from)), {}};
  for (int pixel = shares.first; pixel < to; ++pixel)
    shares.parts.push_back(
        static_cast<float>(std::min(to, pixel + 1.0) - std::max(from, static_cast<double>(pixel))));
  return shares;
}

// Opacities of a part of the device, from 0 to 1 and above where areas lie on each other.
class Coverage {
 public:
  explicit Coverage(const QRect& box) : box_(box), opacities_(Size(box.width()) * Size(box.height())) {}

  void Add(const QRectF& area) {
    const QRectF part = (area & QRectF(box_)).translated(-box_.topLeft());
    if (part.isEmpty()) return;
    const Shares across = SharesOf(part.left(), part.right());
    const Shares down = SharesOf(part.top(), part.bottom());
    for (std::size_t y = 0; y < down.parts.size(); ++y) {
      float* row = Row(down.first + static_cast<int>(y)) + across.first;
      for (const float share : across.parts)
        *row++ += share * down.parts[y];
    }
  }
  float* Row(int y) { return opacities_.data() + Size(y) * Size(box_.width()); }

 private:
  static std::size_t Size(int length) { return static_cast<std::size_t>(length); }

  QRect box_;
  std::vector<float> opacities_;
};

}  // namespace

QImage SymbolImage(const std::vector<QRectF>& areas, const QRect& box, QRgb colour) {
  Coverage coverage(box);
  for (const QRectF& area : areas)
    coverage.Add(area);
  QImage image(box.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < box.height(); ++y) {
    const float* from = coverage.Row(y);
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < box.width(); ++x) {
      const int alpha = static_cast<int>(std::lround(255 * std::min(from[x], 1.0F)));
      to[x] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), alpha));
    }
  }
  return image;
}

}  // namespace kev
