// SPDX-License-Identifier: MIT
#include "platform/qt_measurer.h"

#include <QFontMetricsF>
#include <algorithm>

namespace kev {
namespace {

constexpr double kTwipsPerPoint = 20;

double Ems(const FaceMetrics& face, const QString& whole) {
  return QFontMetricsF(face.design).horizontalAdvance(whole) / face.design.pixelSize();
}

}  // namespace

TextExtent QtMeasurer::Measure(const FontSpec& font, std::string_view text) const {
  const FaceMetrics& face = fonts_.Face(font);
  double ems = 0;
  bool shaped = false;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    ems += face.advance[code];
    shaped = shaped || face.shaped[code];
  }
  if (shaped) ems = Ems(face, fonts_.Text(font, text));
  const double em = font.Size * kTwipsPerPoint;
  return {ems * em, (face.ascent + face.descent) * em};
}

}  // namespace kev
