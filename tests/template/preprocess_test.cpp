// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <stdexcept>

#include "template/reader.h"

namespace kev {
namespace {

struct Row {
  std::string_view line;
  std::string_view prepared;  // "(" and ")" stand for the delimiters of a disarmed block
};

std::string Prepared(std::string_view line, char open, char close) {
  std::string prepared = PreprocessLine(line, open, close, CodePage::Default());
  for (char& c : prepared) {
    if (c == '\1') c = '(';
    if (c == '\2') c = ')';
  }
  return prepared;
}

TEST(PreprocessLine, DisarmsABlockWithoutAPositionThatTextFollows) {
  constexpr Row kRows[] = {
      {"", ""},
      {"plain text", "plain text"},
      // attributes with nothing behind them but more blocks
      {"{DEF}", "{DEF}"},
      {"  {DEF}  ", "  {DEF}  "},
      {"{f=Arial;s=10}", "{f=Arial;s=10}"},
      {"{DEF}{b=y} {i=y}", "{DEF}{b=y} {i=y}"},
      {"{}", "{}"},
      // the same before text
      {"{b=y}Text", "(b=y)Text"},
      {"{b=y}Text{\\n}", "(b=y)Text{\\n}"},
      {"{} Text", "() Text"},
      {"{Rem=a} # b", "(Rem=a) # b"},
      // only the text up to the next block counts
      {"{b=y}{100;}Text{\\n}", "{b=y}{100;}Text{\\n}"},
      {"{b=y}x{100;}Text{\\n}", "(b=y)x{100;}Text{\\n}"},
      {"{b=y}{i=y}Text", "{b=y}(i=y)Text"},
      {"{500;}A{\\n}{0;}B{\\n}", "{500;}A{\\n}{0;}B{\\n}"},
      {"{100;}Total {in EUR} 5{\\n}", "{100;}Total (in EUR) 5{\\n}"},
      {"{100;}a {b} {c} d{\\n}", "{100;}a {b} (c) d{\\n}"},
      // a section line is left alone
      {"[ITEMS {b} x]", "[ITEMS {b} x]"},
      {"   [ITEMS {b} x]", "   [ITEMS {b} x]"},
      // braces that make no block
      {"a } b", "a } b"},
      {"a { b", "a { b"},
      {"{b=y} } Text", "(b=y) } Text"},
      {"{b=y} {", "(b=y) {"},
      {"{a {b} c", "{a (b) c"},
      {"}{b=y}", "}{b=y}"},
  };
  for (const Row& row : kRows)
    EXPECT_EQ(Prepared(row.line, '{', '}'), row.prepared) << row.line;
}

TEST(PreprocessLine, KnowsAPositionByItsFirstCharacterOrItsKey) {
  for (const std::string_view item :
       {"$Col_01",  "0",      "100",       "9x",     "-5",       "+5",        " 100 ",  "$Col_01 + 5=x",
        "LINE=1,2", "line",   "Box=1",     "BOXF=1", "xyline",   "AnyLine=1", "CIRCLE", "Circ=1",
        "Pic=a",    "xy=0,1", "TextBox=1", "qr=1",   "QrCode=1", "b=y;100",   "a;b;c;0"}) {
    const std::string line = "{" + std::string(item) + "}Text";
    EXPECT_EQ(Prepared(line, '{', '}'), line);
  }
}

TEST(PreprocessLine, TakesNothingElseForAPosition) {
  for (const std::string_view item : {"", ";", "b=y", "b=100", "f=$x", "=100", ".5", "x100", "LINES=1",
                                      "Buildgraph=100,", "\\n", "DEF", "#1", "Spacing=400;\\n", "BAR"}) {
    const std::string inside(item);
    EXPECT_EQ(Prepared("{" + inside + "}Text", '{', '}'), "(" + inside + ")Text");
  }
}

TEST(PreprocessLine, RearmsWithBracesWhateverTheDocumentsDelimitersAre) {
  constexpr Row kRows[] = {{"<DEF>", "{DEF}"},
                           {"<DEF;0>", "<DEF;0>"},
                           {"<0>", "<0>"},
                           {"<100;>Text<0>", "<100;>Text<0>"},
                           {"<b=y>Text", "(b=y)Text"},
                           {"{DEF} <5>x", "{DEF} <5>x"}};
  for (const Row& row : kRows)
    EXPECT_EQ(Prepared(row.line, '<', '>'), row.prepared) << row.line;
}

TEST(PreprocessLine, ReadsABlockWhoseTwoDelimitersAreOne) {
  EXPECT_NO_THROW(Prepared("|100;|Text|b=y|x", '|', '|'));
}

TEST(PreprocessLine, HoldsTwoHundredItemsInABlock) {
  EXPECT_NO_THROW(Prepared("{" + std::string(199, ';') + "}", '{', '}'));
  EXPECT_THROW(Prepared("{" + std::string(200, ';') + "}", '{', '}'), std::out_of_range);
}

}  // namespace
}  // namespace kev
