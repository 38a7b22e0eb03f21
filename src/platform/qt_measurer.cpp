// SPDX-License-Identifier: MIT
#include "platform/qt_measurer.h"

namespace kev {
namespace {

constexpr double kTwipsPerPoint = 20;

}  // namespace

TextExtent QtMeasurer::Measure(const FontSpec& font, std::string_view text) const {
  FaceMetrics& face = fonts_.Face(font);
  double ems = 0;
  bool shaped = false;
  for (const char c : text) {
    const FaceMetrics::Byte& byte = face.Of(c);
    ems += byte.advance;
    shaped = shaped || byte.shaped;
  }
  if (shaped) ems = face.Advance(fonts_.Text(font, text));
  const double em = font.Size * kTwipsPerPoint;
  return {ems * em, face.Height() * em};
}

}  // namespace kev
