// SPDX-License-Identifier: MIT
// The texts of a record that are no std::string: they are values like any other.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "document/fixed_text.h"
#include "document/object_record.h"
#include "document/rare_text.h"

namespace kev {
namespace {

TEST(RareText, IsEmptyUntilSomethingIsAssigned) {
  RareText text;
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(text.size(), 0U);
  EXPECT_EQ(text.Text(), "");
  EXPECT_EQ(std::string_view(text), "");
  text = "a picture";
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(text.size(), 9U);
  const std::string& read = text;
  EXPECT_EQ(read, "a picture");
}

TEST(RareText, ThatWasEmptiedIsOneThatWasNeverSet) {
  RareText text;
  text = std::string("x");
  text = "";
  EXPECT_EQ(text, RareText());
  text = "x";
  text.clear();
  EXPECT_EQ(text, RareText());
}

TEST(RareText, CopiesShareNothing) {
  RareText text;
  text = "one";
  RareText copy = text;
  copy = "two";
  EXPECT_EQ(text, "one");
  EXPECT_EQ(copy, "two");
  copy = text;
  EXPECT_EQ(copy, text);
  text.clear();
  EXPECT_EQ(copy, "one");
}

TEST(RareText, CanBeAssignedItselfAndAPartOfItself) {
  RareText text;
  text = "$Col_01 + 20";
  const RareText& same = text;
  text = same;
  EXPECT_EQ(text, "$Col_01 + 20");
  text = std::string_view(text).substr(1, 6);
  EXPECT_EQ(text, "Col_01");
}

TEST(RareOptional, TellsNoneFromEmpty) {
  RareOptional<std::string> text;
  EXPECT_FALSE(text);
  EXPECT_EQ(text.value_or("none"), "none");
  text = "";
  EXPECT_TRUE(text);
  EXPECT_EQ(text.value_or("none"), "");
  EXPECT_FALSE(text == RareOptional<std::string>());
  text = std::optional<std::string>();
  EXPECT_EQ(text, RareOptional<std::string>());
}

TEST(RareOptional, CopiesShareNothing) {
  RareOptional<double> number;
  number = 1;
  RareOptional<double> copy = number;
  EXPECT_EQ(copy, number);
  copy = 2;
  EXPECT_EQ(*number, 1);
  number = copy;
  EXPECT_EQ(*number, 2);
  copy.reset();
  EXPECT_TRUE(number);
  number = copy;
  EXPECT_FALSE(number);
}

TEST(FixedText, IsCutToItsLength) {
  FixedText<4> text;
  EXPECT_TRUE(text.empty());
  text = "abcdef";
  EXPECT_EQ(text, "abcd");
  text = std::string("xy");
  EXPECT_EQ(text, "xy");
  EXPECT_EQ(text.front(), 'x');
  EXPECT_FALSE(text == "xyz");
  text.clear();
  EXPECT_TRUE(text.empty());
}

TEST(FixedText, EqualTextsAreEqualWhateverWasThereBefore) {
  FixedText<4> text, other;
  text = "abcd";
  text = "a";
  other = "a";
  EXPECT_EQ(text, other);
  other = std::string_view("a\0", 2);
  EXPECT_FALSE(text == other);
}

TEST(FixedText, CanBeAssignedAPartOfItself) {
  FixedText<4> text;
  text = "abcd";
  text = std::string_view(text).substr(2);
  EXPECT_EQ(text, "cd");
}

// Records are copied and compared by the thousand, and a table of them is to stay in the cache.
TEST(ObjectRecord, IsSmall) {
  EXPECT_LE(sizeof(ObjectRecord), 512U);
}

}  // namespace
}  // namespace kev
