// SPDX-License-Identifier: MIT
#include "base/holds_number.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

TEST(HoldsNumber, TellsAZeroFromNoNumber) {
  for (const char* text : {"0", "-0", " 12", "1 440", "+3", "-20.5", ".5", "12pt", "1e3", "2000000000000"})
    EXPECT_TRUE(HoldsNumber(text)) << text;
  for (const char* text : {"", " ", "-", "+", ".", "a1", "$A", "e3", "--1"})
    EXPECT_FALSE(HoldsNumber(text)) << text;
}

}  // namespace
}  // namespace kev
