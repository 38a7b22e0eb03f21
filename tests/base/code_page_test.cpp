// SPDX-License-Identifier: MIT
#include "base/code_page.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

constexpr std::string_view kPages[] = {"windows-1250", "windows-1251", "windows-1252", "windows-1253",
                                       "windows-1254", "windows-1255", "windows-1256", "windows-1257",
                                       "windows-1258", "windows-874"};

TEST(CodePage, IsFoundByNameInAnyCase) {
  for (const std::string_view name : kPages) {
    const CodePage* page = CodePage::Find(name);
    ASSERT_NE(page, nullptr) << name;
    EXPECT_EQ(page->Name(), name);
    EXPECT_EQ(CodePage::Find(CodePage::Default().Upper(name)), page);
  }
  EXPECT_EQ(CodePage::Find("utf-8"), nullptr);
  EXPECT_EQ(CodePage::Find(""), nullptr);
  EXPECT_EQ(CodePage::Default().Name(), "windows-1252");
}

TEST(CodePage, MakesCapitalsOfTheLettersOfThePage) {
  struct Row {
    std::string_view page, text, capitals;
  };
  constexpr Row kRows[] = {
      {"windows-1252", "abz\xE0\xE9\xFE\xFF\x9A\x9C\x9E", "ABZ\xC0\xC9\xDE\x9F\x8A\x8C\x8E"},
      {"windows-1252", "\xF7\xD7\xDF[1]", "\xF7\xD7\xDF[1]"},
      {"windows-1251", "\xE0\xFF\xB8", "\xC0\xDF\xA8"},
      {"windows-1250", "\xE8\x9E\xB3", "\xC8\x8E\xA3"},
      {"windows-1253", "\xE1\xDC\xF2", "\xC1\xA2\xD3"}};
  for (const Row& row : kRows)
    EXPECT_EQ(CodePage::Find(row.page)->Upper(row.text), row.capitals) << row.page;
}

TEST(CodePage, MakesSmallLettersOfCapitals) {
  EXPECT_EQ(CodePage::Default().Lower("LABEL\xC9\x8A"), "label\xE9\x9A");
}

TEST(CodePage, ComparesAndSearchesWithoutRegardToCase) {
  const CodePage& page = CodePage::Default();
  EXPECT_TRUE(page.EqualsIgnoringCase("caf\xE9", "CAF\xC9"));
  EXPECT_FALSE(page.EqualsIgnoringCase("caf\xE9", "CAFE"));
  EXPECT_FALSE(page.EqualsIgnoringCase("a", "ab"));
  EXPECT_TRUE(page.ContainsIgnoringCase("x \xE9 y", "\xC9"));
  EXPECT_TRUE(page.ContainsIgnoringCase("", ""));
  EXPECT_FALSE(page.ContainsIgnoringCase("", "a"));
}

TEST(Utf8EqualsIgnoringCase, ComparesCharacters) {
  EXPECT_TRUE(Utf8EqualsIgnoringCase("a\u00FC\u0448\u03C3\u20AC", "A\u00DC\u0428\u03A3\u20AC"));
  EXPECT_TRUE(Utf8EqualsIgnoringCase("\U0001F600", "\U0001F600"));
  EXPECT_FALSE(Utf8EqualsIgnoringCase("\u00DC", "\u00CC"));
  EXPECT_FALSE(Utf8EqualsIgnoringCase("\u041A", "\u040A"));
  EXPECT_FALSE(Utf8EqualsIgnoringCase("a", "ab"));
  // Cut characters, bytes alone, and a letter that is written longer than it need be.
  EXPECT_TRUE(Utf8EqualsIgnoringCase("A\xC3", "a\xC3"));
  EXPECT_FALSE(Utf8EqualsIgnoringCase("\xE9", "\xC9"));
  EXPECT_FALSE(Utf8EqualsIgnoringCase("\xE9", "\u00E9"));
  EXPECT_FALSE(Utf8EqualsIgnoringCase("\xC1\x81", "A"));
}

TEST(CodePage, TurnsTextIntoUnicodeAndBack) {
  const CodePage& page = CodePage::Default();
  EXPECT_EQ(page.ToUtf8("\x80 \xE9"), "\xE2\x82\xAC \xC3\xA9");
  EXPECT_EQ(page.FromUtf8("\xE2\x82\xAC \xC3\xA9"), "\x80 \xE9");
  EXPECT_EQ(CodePage::Find("windows-1251")->ToUtf8("\xC6"), "\xD0\x96");
}

// Bytes that a page leaves undefined pass through unchanged, so each byte has its own place in Unicode.
TEST(CodePage, BringsBackEveryByteOfEveryPage) {
  for (const std::string_view name : kPages) {
    const CodePage& page = *CodePage::Find(name);
    for (int code = 0; code < 256; ++code) {
      const std::string text(1, static_cast<char>(code));
      EXPECT_EQ(page.FromUtf8(page.ToUtf8(text)), text) << name << ' ' << code;
    }
  }
}

TEST(CodePage, NamesTheCharacterThatItDoesNotHold) {
  std::string missing;
  EXPECT_FALSE(CodePage::Default().FromUtf8("a\xD0\x96z", &missing));
  EXPECT_EQ(missing, "\xD0\x96");
  EXPECT_FALSE(CodePage::Default().FromUtf8("\xF0\x9F\x98\x80", &missing));
  EXPECT_EQ(missing, "\xF0\x9F\x98\x80");
  EXPECT_FALSE(CodePage::Default().FromUnicode(0x416));
}

}  // namespace
}  // namespace kev
