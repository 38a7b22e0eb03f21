// SPDX-License-Identifier: MIT
#include "chart/colour_dialogs.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "chart/gradient.h"

namespace kev {
namespace {

constexpr int kLargestPart = 255;

int Clamped(int value) {
  return std::clamp(value, 0, kLargestPart);
}

int PartOf(std::string_view text) {
  return static_cast<int>(std::clamp(RoundToEven(NumericPrefix(text)), 0.0, double{kLargestPart}));
}

template <typename State>
void Slide(State& state, std::size_t slider, int value) {
  state.Sliders.at(slider) = Clamped(value);
  state.Boxes.at(slider) = std::to_string(state.Sliders[slider]);
}

int HexDigit(char digit) {
  return digit <= '9' ? digit - '0' : digit - 'A' + 10;
}

int HexPair(std::string_view digits) {
  return HexDigit(digits[0]) * 16 + HexDigit(digits[1]);
}

}  // namespace

Back01State OpenedBack01(std::string_view ends) {
  Back01State state;
  const std::array<int, 6> values = GradientOf(ends);
  for (std::size_t n = 0; n < values.size(); ++n)
    Slide(state, n, values[n]);
  return state;
}

void SlideBack01(Back01State& state, std::size_t slider, int value) {
  Slide(state, slider, value);
}

void LeaveBack01(Back01State& state, std::size_t slider, std::string_view text) {
  Slide(state, slider, PartOf(text));
}

ShowColorsState OpenedShowColors(Rgb colour) {
  ShowColorsState state;
  for (std::size_t n = 0; n < state.Sliders.size(); ++n)
    Slide(state, n, static_cast<int>(colour >> (16 - 8 * n) & 0xFF));
  return state;
}

void SlideColour(ShowColorsState& state, std::size_t slider, int value) {
  Slide(state, slider, value);
}

void TypeColour(ShowColorsState& state, std::size_t slider, std::string text) {
  const double number = RoundToEven(NumericPrefix(text));
  if (number != PartOf(text)) return Slide(state, slider, PartOf(text));
  state.Sliders.at(slider) = PartOf(text);
  state.Boxes.at(slider) = std::move(text);
}

void LeaveColour(ShowColorsState& state, std::size_t slider) {
  Slide(state, slider, state.Sliders.at(slider));
}

void PickFromPalette(ShowColorsState& state, Rgb pixel) {
  const std::string hex = PaletteHex(pixel);
  const std::string_view digits = hex;
  Slide(state, 2, HexPair(digits.substr(0, 2)));
  Slide(state, 1, HexPair(digits.substr(2, 2)));
  Slide(state, 0, HexPair(digits.substr(4, 2)));
}

Rgb ResultantColour(const ShowColorsState& state) {
  Rgb colour = 0;
  for (const int value : state.Sliders)
    colour = colour << 8 | static_cast<Rgb>(value);
  return colour;
}

std::string PaletteHex(Rgb pixel) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex;
  for (const unsigned shift : {0U, 8U, 16U}) {
    hex += kDigits[pixel >> (shift + 4) & 0xF];
    hex += kDigits[pixel >> shift & 0xF];
  }
  return hex;
}

}  // namespace kev
