// SPDX-License-Identifier: MIT
#include "document/colours.h"

#include <algorithm>
#include <array>

namespace kev {
namespace {

constexpr std::int16_t kMissing = -1;

constexpr auto kBasicColours = std::to_array<Colour>({
    {0, 0, 0},
    {0, 0, 128},
    {0, 128, 0},
    {0, 128, 128},
    {128, 0, 0},
    {128, 0, 128},
    {128, 128, 0},
    {192, 192, 192},
    {128, 128, 128},
    {0, 0, 255},
    {0, 255, 0},
    {0, 255, 255},
    {255, 0, 0},
    {255, 0, 255},
    {255, 255, 0},
    {255, 255, 255},
});

std::int16_t Clamped(std::int16_t part) {
  return std::clamp<std::int16_t>(part, 0, 255);
}

}  // namespace

Colour NormaliseColour(const Colour& colour) {
  if (colour.Red == kMissing || colour.Green == kMissing || colour.Blue == kMissing) {
    const bool known = colour.Red >= 0 && colour.Red < static_cast<int>(kBasicColours.size());
    return kBasicColours[known ? static_cast<std::size_t>(colour.Red) : 0];
  }
  return {Clamped(colour.Red), Clamped(colour.Green), Clamped(colour.Blue)};
}

}  // namespace kev
