// SPDX-License-Identifier: MIT
#include "platform/symbol_image.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kev {
namespace {

// How much of the pixel lies between two places.
float ShareOf(int pixel, double from, double to) {
  return static_cast<float>(std::min(to, pixel + 1.0) - std::max(from, static_cast<double>(pixel)));
}

std::size_t Size(int length) {
  return static_cast<std::size_t>(length);
}

// Opacities of a part of the device, from 0 to 1 and above where areas lie on each other. Areas of the same
// top and bottom, as the bars of a symbol are, are summed up in one row before that row is spread over all of
// them.
class Coverage {
 public:
  explicit Coverage(const QRect& box)
      : box_(box), opacities_(Size(box.width()) * Size(box.height())), across_(Size(box.width())) {}

  void Add(const QRectF& area) {
    const QRectF part = (area & QRectF(box_)).translated(-box_.topLeft());
    if (part.isEmpty()) return;
    if (part.top() != top_ || part.bottom() != bottom_) Spread();
    top_ = part.top();
    bottom_ = part.bottom();
    const int first = static_cast<int>(std::floor(part.left()));
    int pixel = first;
    for (; pixel < part.right(); ++pixel)
      across_[Size(pixel)] += ShareOf(pixel, part.left(), part.right());
    from_ = std::min(from_, first);
    to_ = std::max(to_, pixel);
  }
  // Behind the last area.
  void Spread() {
    for (int y = static_cast<int>(std::floor(top_)); y < bottom_ && from_ < to_; ++y) {
      const float down = ShareOf(y, top_, bottom_);
      float* row = opacities_.data() + Size(y) * Size(box_.width());
      for (int x = from_; x < to_; ++x)
        row[x] += across_[Size(x)] * down;
    }
    std::fill(across_.begin(), across_.end(), 0.0F);
    from_ = box_.width();
    to_ = 0;
  }
  const float* Row(int y) const { return opacities_.data() + Size(y) * Size(box_.width()); }

 private:
  QRect box_;
  std::vector<float> opacities_;
  // The row that is being summed up, the pixels of it that are not empty, and where it is to stand.
  std::vector<float> across_;
  int from_ = 0, to_ = 0;
  double top_ = 0, bottom_ = 0;
};

// The colour at each opacity.
std::array<QRgb, 256> ShadesOf(QRgb colour) {
  std::array<QRgb, 256> shades{};
  for (std::size_t alpha = 0; alpha < shades.size(); ++alpha)
    shades[alpha] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), static_cast<int>(alpha)));
  return shades;
}

}  // namespace

QImage SymbolImage(const std::vector<QRectF>& areas, const QRect& box, QRgb colour) {
  Coverage coverage(box);
  for (const QRectF& area : areas)
    coverage.Add(area);
  coverage.Spread();
  const std::array<QRgb, 256> shades = ShadesOf(colour);
  QImage image(box.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < box.height(); ++y) {
    const float* from = coverage.Row(y);
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    // Most rows of a bar code are the one above them once more.
    if (y > 0 && std::equal(from, from + box.width(), coverage.Row(y - 1))) {
      std::copy_n(reinterpret_cast<const QRgb*>(image.constScanLine(y - 1)), box.width(), to);
      continue;
    }
    std::transform(from, from + box.width(), to, [&](float opacity) {
      return shades[static_cast<std::size_t>(255 * std::min(opacity, 1.0F) + 0.5F)];
    });
  }
  return image;
}

}  // namespace kev
