// SPDX-License-Identifier: MIT
#include "template/template_check.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

TEST(TemplateCheck, EachSectionHasItsCharacter) {
  EXPECT_EQ(CheckTemplateBytes("[HEADER]\r\n[DATA]\r\n[FOOTER]\r\n"), "11113");
  EXPECT_EQ(CheckTemplateBytes("[HEADER]\n"), "10013");
  EXPECT_EQ(CheckTemplateBytes("[DATA]\n"), "01013");
  EXPECT_EQ(CheckTemplateBytes("[FOOTER]"), "00113");
}

TEST(TemplateCheck, SectionsAreTrimmedAndInAnyCase) {
  EXPECT_EQ(CheckTemplateBytes("  [header]  \n [Data]\n[fOOTER]"), "11113");
  // A tab is no blank.
  EXPECT_EQ(CheckTemplateBytes("\t[HEADER]"), "00003");
  EXPECT_EQ(CheckTemplateBytes("[HEADER]x\n"), "00003");
}

TEST(TemplateCheck, AnyBracketedLineCounts) {
  EXPECT_EQ(CheckTemplateBytes("[anything]"), "00013");
  EXPECT_EQ(CheckTemplateBytes("[open"), "00003");
  EXPECT_EQ(CheckTemplateBytes("[ITEMS:1]"), "00013");
}

TEST(TemplateCheck, ThreeLinesWithAFieldBehindABlankTurnTheDigitToZero) {
  EXPECT_EQ(CheckTemplateBytes("").back(), '3');
  EXPECT_EQ(CheckTemplateBytes("@a\n").back(), '3');
  EXPECT_EQ(CheckTemplateBytes(" @a\n @b\n").back(), '3');
  EXPECT_EQ(CheckTemplateBytes(" @a\n @b\n @c\n").back(), '0');
  // Several in one line count once; without the blank each line counts one.
  EXPECT_EQ(CheckTemplateBytes(" @a @b @c\n").back(), '3');
  std::string many = " @a\n @b\n";
  for (int line = 0; line < 999; ++line)
    many += "{100;}@x\n";
  EXPECT_EQ(CheckTemplateBytes(many).back(), '3');
  EXPECT_EQ(CheckTemplateBytes(many + "@x").back(), '0');
}

TEST(TemplateCheck, AFileThatCannotBeReadIsLikeAnEmptyOne) {
  EXPECT_EQ(CheckTemplate("/nowhere/at/all.kev"), "00003");
  EXPECT_EQ(CheckTemplate("/"), "00003");
}

TEST(TemplateCheck, RefusalsComeInTheirOrder) {
  EXPECT_EQ(RefusalOf("00003"), Refusal::NoSections);
  EXPECT_EQ(RefusalOf("00000"), Refusal::NoSections);
  EXPECT_EQ(RefusalOf("01113"), Refusal::NoHeader);
  EXPECT_EQ(RefusalOf("11100"), Refusal::WrongStructure);
  EXPECT_EQ(RefusalOf("11113"), Refusal::None);
}

TEST(TemplateCheck, ATemplateWithManyFieldsIsNotRefused) {
  const std::string check = CheckTemplateBytes("[HEADER]\n @a\n @b\n @c\n[DATA]\n[FOOTER]\n");
  EXPECT_EQ(check, "11110");
  EXPECT_EQ(RefusalOf(check), Refusal::None);
}

}  // namespace
}  // namespace kev
