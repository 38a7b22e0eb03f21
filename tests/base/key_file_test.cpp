// SPDX-License-Identifier: MIT
#include "base/key_file.h"

#include <gtest/gtest.h>

#include "support/run_tool.h"

namespace kev {
namespace {

struct ValueRow {
  std::string_view text;
  std::string_view key;
  std::string_view value;
};

TEST(KeyFile, FindsTheValueOfAKey) {
  constexpr ValueRow kRows[] = {
      {"Spacing=100", "SPACING", "100"},
      {"spacing=100", "Spacing", "100"},
      {"  Spacing=  a b  ", "Spacing", "a b"},
      {"Spacing=", "Spacing", ""},
      {"Spacing", "Spacing", ""},
      {"Spacing =5", "Spacing", ""},
      {"Link=a=b", "Link", "a=b"},
      {"Link==a=b", "Link", "a=b"},
      {"Link= =a", "Link", "=a"},
      {"Link=a=", "Link", "a="},
      {"#Spacing=1\r\nSpacing=2", "Spacing", "2"},
      {"[Spacing=1\r\nSpacing=2", "Spacing", "2"},
      {"  # Spacing=1\n", "Spacing", ""},
      {"x\r\ny\r\nSpacing=3\r\n", "Spacing", "3"},
      {"\tSpacing=3", "Spacing", ""},
      {"", "Spacing", ""},
  };
  for (const ValueRow& row : kRows)
    EXPECT_EQ(KeyFile(row.text).Value(row.key), row.value) << row.text;
}

TEST(KeyFile, TakesTheFirstOccurrenceAlsoWhereItIsEmpty) {
  EXPECT_EQ(KeyFile("A=1\nA=2").Value("A"), "1");
  EXPECT_EQ(KeyFile("A=\nA=2").Value("A"), "");
}

TEST(KeyFile, FindsKeysBelowTheLayoutToo) {
  EXPECT_EQ(KeyFile("[HEADER]\nSpacing=300\n").Value("Spacing"), "300");
}

TEST(KeyFile, LooksAtAHundredLinesOnly) {
  EXPECT_EQ(KeyFile(std::string(99, '\n') + "A=1").Value("A"), "1");
  EXPECT_EQ(KeyFile(std::string(100, '\n') + "A=1").Value("A"), "");
  EXPECT_EQ(KeyFile(std::string(119, '\n') + "A=1").Value("A"), "");
}

TEST(KeyFile, ComparesCapitalsOfTheCodePage) {
  EXPECT_EQ(KeyFile("\xE9tat=1").Value("\xC9TAT"), "1");
}

TEST(KeyFile, TellsTheLineOfAKeyAndListsEveryEntry) {
  const KeyFile keys("x\na=1\n\nb=2\nA=3");
  EXPECT_EQ(keys.Line("A"), 2U);
  EXPECT_EQ(keys.Line("B"), 4U);
  EXPECT_EQ(keys.Line("C"), 0U);
  ASSERT_EQ(keys.Entries().size(), 3U);
  EXPECT_EQ(keys.Entries()[2].key, "A");
  EXPECT_EQ(keys.Entries()[2].value, "3");
  EXPECT_EQ(keys.Entries()[2].line, 5U);
}

TEST(ReadKey, ReadsOneKeyOfAFileAndNothingOfAMissingOne) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "a.ini", "LANG=E\r\nTHEME=2\r\n");
  EXPECT_EQ(ReadKey(folder / "a.ini", "theme"), "2");
  EXPECT_EQ(ReadKey(folder / "b.ini", "theme"), "");
  EXPECT_EQ(ReadKey(folder / "", "theme"), "");
}

}  // namespace
}  // namespace kev
