// SPDX-License-Identifier: MIT
#include "barcode/element_codes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFrame = "3231414131";
constexpr const char* kA = "413132314";
constexpr const char* kB = "314132314";

TEST(Code39Elements, FramesATextThatIsNotFramed) {
  EXPECT_THAT(Code39Elements("A"), ElementsAre(kFrame, kA, kFrame));
  EXPECT_EQ(Code39Elements("  A "), Code39Elements("A"));
  EXPECT_EQ(Code39Elements("#A#"), Code39Elements("A"));
}

TEST(Code39Elements, OneFrameCharacterIsNoFrame) {
  EXPECT_THAT(Code39Elements("#A"), ElementsAre(kFrame, kFrame, kA, kFrame));
  EXPECT_THAT(Code39Elements("A#"), ElementsAre(kFrame, kA, kFrame, kFrame));
}

TEST(Code39Elements, FramedTextKeepsItsBlanks) {
  EXPECT_THAT(Code39Elements("# A#"), ElementsAre(kFrame, "324131413", kA, kFrame));
}

TEST(Code39Elements, NothingBetweenTheFramesIsNothing) {
  EXPECT_THAT(Code39Elements(""), IsEmpty());
  EXPECT_THAT(Code39Elements("   "), IsEmpty());
  EXPECT_THAT(Code39Elements("##"), IsEmpty());
}

TEST(Code39Elements, TakesLowerCase) {
  EXPECT_EQ(Code39Elements("kev"), Code39Elements("KEV"));
}

TEST(Code39Elements, UnknownCharacterRepeatsTheOneBefore) {
  EXPECT_EQ(Code39Elements("A,B"), Code39Elements("AAB"));
  EXPECT_THAT(Code39Elements(",A"), ElementsAre(kFrame, kFrame, kA, kFrame));
  EXPECT_EQ(Code39Elements("B\xE9,A"), Code39Elements("BBBA"));
}

TEST(Code39Elements, StarIsData) {
  EXPECT_THAT(Code39Elements("*"), ElementsAre(kFrame, "323141413", kFrame));
}

TEST(Code39Elements, HasTheTableOfTheStandard) {
  EXPECT_THAT(Code39Elements("1B%"), ElementsAre(kFrame, "413231314", kB, "313232323", kFrame));
}

constexpr const char* kStartB = "211214";
constexpr const char* kStop = "2331112";

TEST(Code128BElements, HasStartCheckAndStop) {
  // 104 + 33 leaves 34.
  EXPECT_EQ(Code128BElements("A"), std::string(kStartB) + "111323" + "131123" + kStop);
  EXPECT_EQ(Code128BElements(" ").substr(6, 6), "212222");
  EXPECT_EQ(Code128BElements("I").substr(6, 6), "231311");
}

TEST(Code128BElements, WhatItDoesNotHoldIsABlank) {
  EXPECT_EQ(Code128BElements("A\xE9"
                             "B"),
            Code128BElements("A B"));
  EXPECT_EQ(Code128BElements("\x7F\x1F"), Code128BElements("  "));
  EXPECT_NE(Code128BElements("~"), Code128BElements(" "));
}

TEST(Code128BElements, ParenthesesAreData) {
  EXPECT_EQ(Code128BElements("(01)12345678").size(), 6U + 12 * 6 + 6 + 7);
  // "(" is 8, ")" is 9.
  EXPECT_EQ(Code128BElements("(01)12345678").substr(6, 6), "132212");
  EXPECT_EQ(Code128BElements("(01)12345678").substr(24, 6), "221213");
}

TEST(Code128BElements, NeverChangesItsSet) {
  EXPECT_EQ(Code128BElements("123456").size(), 6U + 6 * 6 + 6 + 7);
}

}  // namespace
}  // namespace kev
