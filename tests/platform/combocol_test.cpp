// SPDX-License-Identifier: MIT
#include "platform/forms/combocol.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/print_qt.h"

namespace kev {
namespace {

class CombocolTest : public testing::Test {
 protected:
  CombocolTest() {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(box);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void Show(std::string text) {
    box->ShowList({{"$Col_01 = 2400", "$x = 5"}, std::move(text), true}, CodePage::Default());
  }

  QWidget window;
  Combocol* box = new Combocol(QStringLiteral("Column of the object"));
  QSignalSpy chosen{box, &Combocol::ColumnChosen};
};

TEST_F(CombocolTest, IsDisabledWithoutColumns) {
  EXPECT_FALSE(box->isEnabled());
  Show("");
  EXPECT_TRUE(box->isEnabled());
  box->ShowList({{}, "kept", false}, CodePage::Default());
  EXPECT_FALSE(box->isEnabled());
  EXPECT_EQ(box->count(), 0);
  EXPECT_EQ(box->currentText(), QStringLiteral("kept"));
}

TEST_F(CombocolTest, ATextOfTheProgramsIsNoChoice) {
  for (const char* text : {"$Col_01 = 2400", "$Col_01 = 2350  ", "$x = 5", ""}) {
    Show(text);
    EXPECT_EQ(box->currentText(), QString::fromLatin1(text));
  }
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(CombocolTest, ItemsStandInTheOrderOfTheSlots) {
  Show("");
  ASSERT_EQ(box->count(), 2);
  EXPECT_EQ(box->itemText(0), QStringLiteral("$Col_01 = 2400"));
  EXPECT_EQ(box->itemText(1), QStringLiteral("$x = 5"));
}

TEST_F(CombocolTest, AChosenItemIsToldByItsNumber) {
  Show("");
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Down);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 0);
  QTest::keyClick(box, Qt::Key_Down);
  ASSERT_EQ(chosen.count(), 2);
  EXPECT_EQ(chosen[1][0].toInt(), 1);
}

TEST_F(CombocolTest, NothingCanBeTyped) {
  Show("$x = 5");
  box->setFocus();
  QTest::keyClicks(box, QStringLiteral("12"));
  EXPECT_EQ(box->currentText(), QStringLiteral("$x = 5"));
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(CombocolTest, TheWheelChoosesNothing) {
  Show("");
  const QPoint middle = box->rect().center();
  QWheelEvent event(middle, box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(box, &event);
  EXPECT_EQ(chosen.count(), 0);
  EXPECT_EQ(box->currentText(), QString());
}

}  // namespace
}  // namespace kev
