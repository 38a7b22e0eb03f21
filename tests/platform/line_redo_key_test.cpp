// SPDX-License-Identifier: MIT
#include "platform/forms/line_redo_key.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "platform/print_qt.h"

namespace kev {
namespace {

// As the window system sends a key: first the question whether the focused widget has a use for it.
bool PressRedo(QWidget& focused) {
  QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_Y, Qt::ControlModifier);
  question.ignore();
  QCoreApplication::sendEvent(&focused, &question);
  if (!question.isAccepted()) return false;
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Y, Qt::ControlModifier);
  QCoreApplication::sendEvent(&focused, &press);
  return true;
}

TEST(LineRedoKey, RedoesTheTypingAndNotThePage) {
  QLineEdit line;
  TakeRedoKey(line, line);
  line.insert(QStringLiteral("typed"));
  line.undo();
  ASSERT_EQ(line.text(), QString());
  EXPECT_TRUE(PressRedo(line));
  EXPECT_EQ(line.text(), QStringLiteral("typed"));
  EXPECT_TRUE(PressRedo(line)) << "also where nothing is left to redo";
}

TEST(LineRedoKey, OfAListGoesToItsLine) {
  QComboBox list;
  list.setEditable(true);
  TakeRedoKey(list, *list.lineEdit());
  list.lineEdit()->insert(QStringLiteral("12"));
  list.lineEdit()->undo();
  EXPECT_TRUE(PressRedo(list));
  EXPECT_EQ(list.currentText(), QStringLiteral("12"));
}

TEST(LineRedoKey, LeavesOtherKeysAlone) {
  QLineEdit line;
  TakeRedoKey(line, line);
  QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_Y, Qt::ControlModifier | Qt::ShiftModifier);
  question.ignore();
  QCoreApplication::sendEvent(&line, &question);
  EXPECT_FALSE(question.isAccepted());
}

}  // namespace
}  // namespace kev
