// SPDX-License-Identifier: MIT
#include "platform/text_bridge.h"

#include <gtest/gtest.h>

#include "platform/print_qt.h"

namespace kev {
namespace {

TEST(TextBridge, EveryByteOfThePageComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    all.push_back(static_cast<char>(byte));
  for (const char* name : {"windows-1252", "windows-1250", "windows-1251"}) {
    const CodePage* page = CodePage::Find(name);
    ASSERT_NE(page, nullptr) << name;
    EXPECT_EQ(FromQString(ToQString(all, *page), *page), all) << name;
  }
}

TEST(TextBridge, TheSameByteIsAnotherLetterInAnotherPage) {
  EXPECT_EQ(ToQString("\xE9"), QString::fromUtf8("é"));
  EXPECT_EQ(ToQString("\xE9", *CodePage::Find("windows-1251")), QString::fromUtf8("й"));
}

TEST(TextBridge, ACharacterOutsideThePageIsNamedAndNothingIsStored) {
  QString refused;
  EXPECT_EQ(FromQString(QString::fromUtf8("preço ж"), CodePage::Default(), &refused), std::nullopt);
  EXPECT_EQ(refused, QString::fromUtf8("ж"));
}

TEST(TextBridge, ACharacterOfTwoUnitsIsNamedWhole) {
  QString refused;
  EXPECT_EQ(FromQString(QString::fromUtf8("a😀"), CodePage::Default(), &refused), std::nullopt);
  EXPECT_EQ(refused, QString::fromUtf8("😀"));
}

TEST(TextBridge, PathsPassByTheCodePage) {
  const std::string path = "/home/u/plantillas ñ ж.kev";
  EXPECT_EQ(ToNative(FromNative(path)), path);
}

TEST(TextBridge, AFieldOfOneLineHasNoBreaks) {
  EXPECT_EQ(OneLine(QString::fromUtf8("a\r\nb\nc\rd\te\u2028f")), QStringLiteral("a b c d e f"));
  EXPECT_EQ(FromLine(QStringLiteral("Title\nOpen=<"), CodePage::Default()), "Title Open=<");
}

TEST(TextBridge, ADetailIsPartedFromItsTextByOneBlank) {
  EXPECT_EQ(WithDetail("Missing:", "/a"), QStringLiteral("Missing: /a"));
  EXPECT_EQ(WithDetail("Missing ", "/a"), QStringLiteral("Missing /a"));
  EXPECT_EQ(WithDetail("Missing\r\n", "/a"), QStringLiteral("Missing\r\n/a"));
  EXPECT_EQ(WithDetail("Ready", ""), QStringLiteral("Ready"));
  EXPECT_EQ(WithDetail("", "/a"), QStringLiteral("/a"));
}

}  // namespace
}  // namespace kev
