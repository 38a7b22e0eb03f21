// SPDX-License-Identifier: MIT
// The background composer `Back01` and the colour picker `ShowColors` without their windows. A slider and its
// text box hold one number from 0 to 255.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "surface/surface_ops.h"

namespace kev {

struct ColourSlider {
  std::string_view Slider, Box;  // the names of the two controls
};

// --- Back01: the first colour, then the second ---

inline constexpr auto kBackSliders = std::to_array<ColourSlider>({{"Red1", "Red1_crt"},
                                                                  {"Green1", "Green1_crt"},
                                                                  {"Blue1", "Blue1_crt"},
                                                                  {"Red2", "Red2_crt"},
                                                                  {"Green2", "Green2_crt"},
                                                                  {"Blue2", "Blue2_crt"}});

struct Back01State {
  std::array<int, 6> Sliders{};
  std::array<std::string, 6> Boxes;
};

// From six numbers between commas.
Back01State OpenedBack01(std::string_view ends);
void SlideBack01(Back01State& state, std::size_t slider, int value);
// A box is left, or Enter was pressed in it.
void LeaveBack01(Back01State& state, std::size_t slider, std::string_view text);

// --- ShowColors ---

inline constexpr auto kColourSliders =
    std::to_array<ColourSlider>({{"red", "red_value"}, {"green", "Green_value"}, {"blue", "blue_value"}});

struct ShowColorsState {
  std::array<int, 3> Sliders{};
  std::array<std::string, 3> Boxes;
};

ShowColorsState OpenedShowColors(Rgb colour);
void SlideColour(ShowColorsState& state, std::size_t slider, int value);
// At each change of a box. Its text stays while it stands for the slider's number ("" for 0, "007").
void TypeColour(ShowColorsState& state, std::size_t slider, std::string text);
// The box is left: it holds the slider's number.
void LeaveColour(ShowColorsState& state, std::size_t slider);
// The palette was clicked on a pixel of this colour.
void PickFromPalette(ShowColorsState& state, Rgb pixel);
// `resultantcolor`.
Rgb ResultantColour(const ShowColorsState& state);

// Six hexadecimal digits: blue, green, red.
std::string PaletteHex(Rgb pixel);

}  // namespace kev
