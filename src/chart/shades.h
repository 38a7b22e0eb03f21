// SPDX-License-Identifier: MIT
// Lighter and darker tones of a colour.
#pragma once

#include <cmath>

#include "surface/surface_ops.h"

namespace kev {

inline constexpr Rgb kChartWhite = 0xFFFFFF;
inline constexpr Rgb kChartBlack = 0x000000;

// `share` of the second colour, 0 to 1.
inline Rgb MixColours(Rgb first, Rgb second, double share) {
  Rgb mixed = 0;
  for (int shift = 16; shift >= 0; shift -= 8) {
    const double a = (first >> shift) & 0xFF;
    const double b = (second >> shift) & 0xFF;
    mixed |= static_cast<Rgb>(std::lround(a + (b - a) * share)) << shift;
  }
  return mixed;
}
inline Rgb Lighter(Rgb colour, double share) {
  return MixColours(colour, kChartWhite, share);
}
inline Rgb Darker(Rgb colour, double share) {
  return MixColours(colour, kChartBlack, share);
}

// From 0 for black to 1 for white, as the eye weighs the parts.
inline double BrightnessOf(Rgb colour) {
  return (0.299 * ((colour >> 16) & 0xFF) + 0.587 * ((colour >> 8) & 0xFF) + 0.114 * (colour & 0xFF)) / 255;
}

}  // namespace kev
