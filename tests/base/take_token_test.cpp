// SPDX-License-Identifier: MIT
#include "base/take_token.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kev {
namespace {

using testing::ElementsAre;

std::vector<std::string> Taken(std::string_view text) {
  std::vector<std::string> parts;
  std::optional<std::string_view> rest = text;
  while (rest)
    parts.emplace_back(TakeToken(rest, ';'));
  return parts;
}

TEST(TakeToken, GivesThePartsThatAListOfThemHolds) {
  EXPECT_THAT(Taken("a;b"), ElementsAre("a", "b"));
  EXPECT_THAT(Taken(""), ElementsAre(""));
  EXPECT_THAT(Taken(";a;;"), ElementsAre("", "a", "", ""));
}

TEST(CheckTokenCount, TakesTwoHundredPartsAndNoMore) {
  const std::string most(199, ';');
  EXPECT_NO_THROW(CheckTokenCount(most, ';'));
  EXPECT_NO_THROW(CheckTokenCount(most + std::string(500, 'x'), ';'));
  EXPECT_THROW(CheckTokenCount(most + ";", ';'), std::out_of_range);
  EXPECT_NO_THROW(CheckTokenCount(most + ";", ','));
}

}  // namespace
}  // namespace kev
