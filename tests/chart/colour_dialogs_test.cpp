// SPDX-License-Identifier: MIT
#include "chart/colour_dialogs.h"

#include <gtest/gtest.h>

#include "chart/wizard.h"

namespace kev {
namespace {

TEST(Back01, OpensWithTheSixNumbersOfTheCaller) {
  const Back01State state = OpenedBack01("1,22,333,-4,x");
  EXPECT_EQ(state.Sliders, (std::array{1, 22, 255, 0, 0, 0}));
  EXPECT_EQ(state.Boxes[2], "255");
  EXPECT_EQ(state.Boxes[5], "0");
  EXPECT_EQ(OpenedBack01("").Sliders, (std::array{255, 255, 255, 255, 255, 255}));
}

TEST(Back01, ASliderWritesItsBox) {
  Back01State state = OpenedBack01("0,0,0,0,0,0");
  SlideBack01(state, 4, 77);
  EXPECT_EQ(state.Boxes[4], "77");
  EXPECT_EQ(GradientText(state.Sliders), "0,0,0,0,77,0");
  SlideBack01(state, 0, 999);
  EXPECT_EQ(state.Sliders[0], 255);
}

TEST(Back01, ABoxThatIsLeftMovesItsSlider) {
  Back01State state = OpenedBack01("0,0,0,0,0,0");
  for (const auto& [typed, value] : std::initializer_list<std::pair<const char*, int>>{
           {"128", 128}, {"300", 255}, {"-1", 0}, {"abc", 0}, {"", 0}, {"2.5", 2}, {"99999999999", 255}}) {
    LeaveBack01(state, 3, typed);
    EXPECT_EQ(state.Sliders[3], value) << typed;
    EXPECT_EQ(state.Boxes[3], std::to_string(value)) << typed;
  }
  EXPECT_THROW(LeaveBack01(state, 6, "1"), std::out_of_range);
}

TEST(ShowColors, OpensWithTheColourOfTheCaller) {
  const ShowColorsState state = OpenedShowColors(0x0A80FFU);
  EXPECT_EQ(state.Sliders, (std::array{10, 128, 255}));
  EXPECT_EQ(state.Boxes[0], "10");
  EXPECT_EQ(ResultantColour(state), 0x0A80FFU);
}

TEST(ShowColors, SlidersAndBoxesFollowEachOther) {
  ShowColorsState state = OpenedShowColors(0);
  SlideColour(state, 1, 200);
  EXPECT_EQ(state.Boxes[1], "200");
  TypeColour(state, 2, "17");
  EXPECT_EQ(state.Sliders[2], 17);
  EXPECT_EQ(ResultantColour(state), 0x00C811U);
}

TEST(ShowColors, ATypedTextStaysWhileItStandsForItsNumber) {
  ShowColorsState state = OpenedShowColors(0xFFFFFFU);
  TypeColour(state, 0, "");
  EXPECT_EQ(state.Sliders[0], 0);
  EXPECT_EQ(state.Boxes[0], "");
  TypeColour(state, 0, "007");
  EXPECT_EQ(state.Sliders[0], 7);
  EXPECT_EQ(state.Boxes[0], "007");
  LeaveColour(state, 0);
  EXPECT_EQ(state.Boxes[0], "7");
  TypeColour(state, 0, "300");
  EXPECT_EQ(state.Sliders[0], 255);
  EXPECT_EQ(state.Boxes[0], "255");
  TypeColour(state, 0, "-8");
  EXPECT_EQ(state.Boxes[0], "0");
}

TEST(ShowColors, APaletteColourIsSplitFromItsHexDigits) {
  EXPECT_EQ(PaletteHex(0xFF0000U), "0000FF");
  EXPECT_EQ(PaletteHex(0x000000U), "000000");
  EXPECT_EQ(PaletteHex(0x0A2BC3U), "C32B0A");
  ShowColorsState state = OpenedShowColors(0x123456U);
  PickFromPalette(state, 0xFF0000U);
  EXPECT_EQ(state.Sliders, (std::array{255, 0, 0}));
  PickFromPalette(state, 0x0A2BC3U);
  EXPECT_EQ(state.Boxes, (std::array<std::string, 3>{"10", "43", "195"}));
  PickFromPalette(state, 0);
  EXPECT_EQ(state.Sliders, (std::array{0, 0, 0}));
}

}  // namespace
}  // namespace kev
