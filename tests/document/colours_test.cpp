// SPDX-License-Identifier: MIT
#include "document/colours.h"

#include <gtest/gtest.h>

#include <array>

namespace kev {
namespace {

TEST(BasicColours, AreTheSixteenOfTheirIndex) {
  constexpr auto kExpected = std::to_array<Colour>({{0, 0, 0},
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
                                                    {255, 255, 255}});
  for (std::size_t index = 0; index < kExpected.size(); ++index)
    EXPECT_EQ(NormaliseColour({static_cast<std::int16_t>(index), -1, -1}), kExpected[index]) << index;
}

TEST(BasicColours, AreMeantWhereAnyPartIsMissing) {
  EXPECT_EQ(NormaliseColour({4, -1, 7}), (Colour{128, 0, 0}));
  EXPECT_EQ(NormaliseColour({4, 7, -1}), (Colour{128, 0, 0}));
  EXPECT_EQ(NormaliseColour({-1, 7, 7}), (Colour{0, 0, 0}));
  EXPECT_EQ(NormaliseColour({-2, 7, 256}), (Colour{0, 7, 255}));
}

}  // namespace
}  // namespace kev
