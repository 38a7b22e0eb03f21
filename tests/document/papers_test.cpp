// SPDX-License-Identifier: MIT
#include "document/papers.h"

#include <gtest/gtest.h>

#include <string>

namespace kev {
namespace {

struct Expected {
  const char* name;
  int code, width, length;
};

TEST(Papers, TellingRowsHaveTheirExactSizes) {
  constexpr Expected kRows[] = {{"LETTER", 1, 12240, 15840},     {"LEGAL", 5, 12240, 20160},
                                {"EXECUTIVE", 7, 10440, 15120},  {"A3", 8, 16840, 23820},
                                {"A4", 9, 11900, 16840},         {"A5", 11, 8390, 11905},
                                {"ENVELOPEDL", 27, 6236, 12473}, {"A2", 66, 23812, 33676}};
  for (const Expected& row : kRows) {
    const auto paper = LookupPaper(row.name);
    ASSERT_TRUE(paper) << row.name;
    EXPECT_EQ(paper->Code, row.code) << row.name;
    EXPECT_EQ(paper->Width, row.width) << row.name;
    EXPECT_EQ(paper->Length, row.length) << row.name;
  }
}

TEST(Papers, OtherSizesFollowThePrintedOnes) {
  constexpr Expected kRows[] = {{"Tabloid", 3, 15840, 24480},
                                {"Ledger", 4, 24480, 15840},
                                {"Statement", 6, 7920, 12240},
                                {"B5", 13, 10318, 14570},
                                {"Envelope #10", 20, 5940, 13680},
                                {"Envelope #12", 22, 6840, 15840},
                                {"ESizeSheet", 26, 48960, 63360},
                                {"Envelope C5", 28, 9184, 12983},
                                {"Envelope B6", 35, 9978, 7087},
                                {"6 3/4 Envelope", 38, 5220, 9360},
                                {"US Std Fanfold", 39, 21420, 15840},
                                {"Envelope Invite", 47, 12472, 12472},
                                {"A4 Extra", 53, 13349, 18274},
                                {"Letter Extra Transverse", 56, 13680, 17280},
                                {"Super B", 58, 17291, 27609},
                                {"Japanese Double Postcard", 69, 11339, 8391},
                                {"A6", 70, 5953, 8391},
                                {"JCHOU3", 73, 6803, 13323},
                                {"A4 Rotated", 77, 16838, 11906},
                                {"B5(JIS)ROTATED", 80, 14570, 10318}};
  for (const Expected& row : kRows) {
    const auto paper = LookupPaper(row.name);
    ASSERT_TRUE(paper) << row.name;
    EXPECT_EQ(paper->Code, row.code) << row.name;
    EXPECT_EQ(paper->Width, row.width) << row.name;
    EXPECT_EQ(paper->Length, row.length) << row.name;
  }
}

TEST(Papers, EveryCodeIsFoundByItsNumberAndHasASize) {
  for (int code = 1; code <= 80; ++code) {
    const auto paper = LookupPaper(std::to_string(code));
    ASSERT_TRUE(paper) << code;
    EXPECT_EQ(paper->Code, code);
    EXPECT_GT(paper->Width, 1000) << code;
    EXPECT_GT(paper->Length, 1000) << code;
  }
  EXPECT_FALSE(LookupPaper("0"));
  EXPECT_FALSE(LookupPaper("81"));
  EXPECT_FALSE(LookupPaper("09"));
}

TEST(Papers, CaseBlanksAndWhatFollowsTheCommaDoNotMatter) {
  for (const char* name : {"9", "A4", " a 4 ", "A4, 210 x 297 mm", "a4,"})
    EXPECT_EQ(LookupPaper(name).value_or(Paper{}).Code, 9) << name;
}

TEST(Papers, AlternativeNamesGiveTheSameRow) {
  constexpr std::pair<const char*, int> kNames[] = {{"b5", 13},     {"b5jis", 13},   {"jisb5", 13},
                                                    {"jisb4", 12},  {"b4 jis", 12},  {"Envelope10", 20},
                                                    {"JKAKU2", 71}, {"B4 (ISO)", 42}};
  for (const auto& [name, code] : kNames)
    EXPECT_EQ(LookupPaper(name).value_or(Paper{}).Code, code) << name;
}

TEST(Papers, ThirtyNineNamesAreOfferedAndEachIsFoundByItsOwnCode) {
  const auto names = PaperDisplayNames();
  ASSERT_EQ(names.size(), 39U);
  for (std::size_t at = 0; at < names.size(); ++at) {
    EXPECT_NE(names[at].find(", "), std::string_view::npos) << names[at];
    EXPECT_EQ(LookupPaper(names[at]).value_or(Paper{}).Code, static_cast<int>(at) + 1) << names[at];
  }
  EXPECT_EQ(names[0], "Letter, 8 1/2 x 11 in.");
  EXPECT_EQ(names[8], "A4, 210 x 297 mm");
  EXPECT_EQ(names[26], "Envelope DL, 110 x 220 mm");
}

TEST(Papers, UnknownNamesGiveNothing) {
  for (const char* name : {"", " ", ",", "(custom)", "A99", "\xff\x01", "A4;"})
    EXPECT_FALSE(LookupPaper(name)) << name;
}

}  // namespace
}  // namespace kev
