// SPDX-License-Identifier: MIT
#include "base/shift_text.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace kev {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int code = 0; code < 256; ++code) {
    bytes += static_cast<char>(code);
  }
  return bytes;
}

TEST(ShiftText, AddsTheDigitsOfTheKeyInTurn) {
  EXPECT_EQ(ShiftText("AAAA", "13"), "BDBD");
  EXPECT_EQ(ShiftText("abc", "907"), "jbj");
}

TEST(ShiftText, AnEmptyKeyIsTwoOnes) {
  EXPECT_EQ(ShiftText("HAL", ""), "IBM");
  EXPECT_EQ(UnshiftText("IBM", ""), "HAL");
}

TEST(ShiftText, ABlankStaysAndTheKeyMovesOnOverIt) {
  EXPECT_EQ(ShiftText("A A", "135"), "B F");
  EXPECT_EQ(ShiftText("   ", "9"), "   ");
  EXPECT_EQ(UnshiftText("B F", "135"), "A A");
}

TEST(ShiftText, AKeyOfTwentyDigitsIsTheLongest) {
  EXPECT_EQ(ShiftText(std::string(21, 'A'), "12345678901234567890"), "BCDEFGHIJABCDEFGHIJAB");
  EXPECT_THROW(ShiftText("A", std::string(21, '1')), std::out_of_range);
  EXPECT_THROW(ShiftText("", std::string(21, '1')), std::out_of_range);
  EXPECT_THROW(UnshiftText("A", std::string(21, '1')), std::out_of_range);
}

TEST(ShiftText, ACharacterOfTheKeyThatIsNoDigitCountsAsZero) {
  EXPECT_EQ(ShiftText("AAA", "1x\xE9"), "BAA");
}

TEST(ShiftText, CodesAbove255StartAnew) {
  EXPECT_EQ(ShiftText("\xFF\xFE", "3"), "\x02\x01");
  EXPECT_EQ(UnshiftText("\x02\x01", "3"), "\xFF\xFE");
}

TEST(ShiftText, ATextOfNothingStaysSo) {
  EXPECT_EQ(ShiftText("", "13"), "");
}

TEST(UnshiftText, LosesOnlyTheCharacterThatBecomesABlank) {
  for (char digit = '0'; digit <= '9'; ++digit) {
    const std::string key(1, digit);
    for (const char character : AllBytes()) {
      const std::string text(1, character);
      const bool lost = character == ' ' + (digit - '0') && digit != '0';
      EXPECT_EQ(ShiftText(UnshiftText(text, key), key) == text, !lost) << digit << ' ' << int{character};
    }
  }
}

TEST(LanguageFileKey, HasOnlyDigitsThatLoseNoLetterAndNoQuote) {
  EXPECT_LE(kLanguageFileKey.size(), kShiftKeyLimit);
  EXPECT_EQ(kLanguageFileKey.find_first_not_of("13"), std::string_view::npos);
  EXPECT_NE(kLanguageFileKey.find('1'), std::string_view::npos);
  EXPECT_NE(kLanguageFileKey.find('3'), std::string_view::npos);
}

}  // namespace
}  // namespace kev
