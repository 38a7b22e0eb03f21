// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Trim, TakesBlanksOffBothEndsAndNothingElse) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\xA0x\xA0"), "\xA0x\xA0");
  EXPECT_EQ(TrimLeft("  a  "), "a  ");
}

TEST(NthToken, CountsFromOneAndIsEmptyWhereThereAreFewerParts) {
  struct Row {
    std::size_t n;
    std::string_view part;
  };
  for (const Row& row : {Row{0, ""}, Row{1, "a"}, Row{2, ""}, Row{3, "b"}, Row{4, ""}, Row{9, ""}}) {
    EXPECT_EQ(NthToken("a,,b,", row.n, ','), row.part) << row.n;
  }
  EXPECT_EQ(NthToken("", 1, ','), "");
}

TEST(SplitTokens, CountsTheTextBehindTheLastSeparatorEvenWhereItIsEmpty) {
  EXPECT_EQ(SplitTokens("", ';').Count(), 1U);
  EXPECT_EQ(SplitTokens("a", ';').Count(), 1U);
  EXPECT_EQ(SplitTokens("a;", ';').Count(), 2U);
  EXPECT_EQ(SplitTokens(";;", ';').Count(), 3U);
}

TEST(SplitTokens, GivesPartsFromOneAndEmptyTextsElsewhere) {
  const Tokens tokens = SplitTokens("x; y ;", ';');
  EXPECT_EQ(tokens[0], "");
  EXPECT_EQ(tokens[1], "x");
  EXPECT_EQ(tokens[2], " y ");
  EXPECT_EQ(tokens[3], "");
  EXPECT_EQ(tokens[4], "");
}

TEST(SplitTokens, HoldsTwoHundredPartsAndNotOneMore) {
  EXPECT_EQ(SplitTokens(std::string(199, ';'), ';').Count(), 200U);
  EXPECT_THROW(SplitTokens(std::string(200, ';'), ';'), std::out_of_range);
}

TEST(SplitLines, EndsALineAtLineFeedAndDropsOneCarriageReturnBeforeIt) {
  EXPECT_THAT(SplitLines("a\r\nb\nc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(SplitLines("a\r\r\n\r\n"), ElementsAre("a\r", ""));
  EXPECT_THAT(SplitLines("a\r"), ElementsAre("a\r"));
  EXPECT_THAT(SplitLines("\n"), ElementsAre(""));
  EXPECT_THAT(SplitLines(""), IsEmpty());
}

TEST(SplitLines, TakesTheEndOfFileCharacterForACharacter) {
  EXPECT_THAT(SplitLines("a\x1A\r\nb"), ElementsAre("a\x1A", "b"));
}

TEST(TakeLine, LeavesTheRestBehind) {
  std::string_view rest = "one\r\ntwo";
  EXPECT_EQ(TakeLine(rest), "one");
  EXPECT_EQ(rest, "two");
  EXPECT_EQ(TakeLine(rest), "two");
  EXPECT_TRUE(rest.empty());
}

TEST(CountLines, CountsALastLineWithoutAnEnd) {
  EXPECT_EQ(CountLines(""), 0U);
  EXPECT_EQ(CountLines("a"), 1U);
  EXPECT_EQ(CountLines("a\n"), 1U);
  EXPECT_EQ(CountLines("a\n\nb"), 3U);
}

TEST(ReplaceAll, ReplacesEveryOne) {
  std::string text = "a.b.c";
  ReplaceAll(text, '.', '/');
  EXPECT_EQ(text, "a/b/c");
}

}  // namespace
}  // namespace kev
