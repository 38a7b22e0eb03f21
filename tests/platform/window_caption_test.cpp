// SPDX-License-Identifier: MIT
#include "platform/window_caption.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "platform/print_qt.h"

namespace kev {
namespace {

QString Caption(const QString& title, bool modified) {
  return WindowCaption(title, modified, QStringLiteral("Modified"), QStringLiteral("Kev Visual Editor"));
}

TEST(WindowCaption, NamesTheDocumentAndTheProgram) {
  EXPECT_EQ(Caption(QStringLiteral("invoice.kev"), false), QStringLiteral("invoice.kev - Kev Visual Editor"));
}

TEST(WindowCaption, TellsUnsavedChangesBehindTheName) {
  EXPECT_EQ(Caption(QStringLiteral("Noname.kev"), true),
            QStringLiteral("Noname.kev - Kev Visual Editor [Modified]"));
}

TEST(WindowCaption, ANameWithTheWindowSystemsMarkIsShownAsItIs) {
  const QString caption = Caption(QStringLiteral("a[*].kev"), false);
  EXPECT_EQ(caption, QStringLiteral("a[*][*].kev - Kev Visual Editor"));
}

}  // namespace
}  // namespace kev
