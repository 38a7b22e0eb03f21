// SPDX-License-Identifier: MIT
#include "platform/forms/zoom_box.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "platform/forms/zoom_menu.h"
#include "platform/print_qt.h"

namespace kev {
namespace {

class ZoomBoxTest : public testing::Test {
 protected:
  ZoomBoxTest() {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(box);
    layout->addWidget(other);
    box->ShowZoom(QStringLiteral("100%"));
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
  }

  void Type(const QString& text) {
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), text);
  }

  QWidget window;
  ZoomBox* box = new ZoomBox;
  QLineEdit* other = new QLineEdit;
  QSignalSpy chosen{box, &ZoomBox::ZoomChosen};
};

TEST_F(ZoomBoxTest, OffersTheNineValues) {
  QStringList entries;
  for (int i = 0; i < box->count(); ++i)
    entries << box->itemText(i);
  EXPECT_EQ(entries.join(QLatin1Char(' ')), QStringLiteral("25% 50% 75% 80% 100% 120% 150% 180% 200%"));
}

TEST_F(ZoomBoxTest, EnterGivesATypedValueOnce) {
  Type(QStringLiteral("133"));
  EXPECT_EQ(chosen.count(), 0);
  QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("133"));
  box->ShowZoom(QStringLiteral("133%"));
  other->setFocus();
  EXPECT_EQ(chosen.count(), 1);
}

TEST_F(ZoomBoxTest, LeavingGivesATypedValue) {
  Type(QStringLiteral("66"));
  QTest::keyClick(box->lineEdit(), Qt::Key_Tab);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("66"));
}

TEST_F(ZoomBoxTest, EscapePutsTheOldValueBack) {
  Type(QStringLiteral("500"));
  QTest::keyClick(box->lineEdit(), Qt::Key_Escape);
  EXPECT_EQ(box->currentText(), QStringLiteral("100%"));
  QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ZoomBoxTest, TypingIsNotCompletedFromTheList) {
  Type(QStringLiteral("2"));
  EXPECT_EQ(box->currentText(), QStringLiteral("2"));
}

TEST_F(ZoomBoxTest, AnEntryIsChosenByKeyboard) {
  QTest::keyClick(box, Qt::Key_Down);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("120%"));
}

TEST_F(ZoomBoxTest, ARefusedValueIsReplacedByWhatTheDesignerShows) {
  Type(QStringLiteral("9"));
  QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  box->ShowZoom(QStringLiteral("100%"));
  EXPECT_EQ(box->currentText(), QStringLiteral("100%"));
  Type(QStringLiteral("9"));
  QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(chosen.count(), 2);
}

TEST(ZoomMenu, MarksTheZoomInForceAndNoneForATypedOne) {
  ZoomMenu menu(QStringLiteral("Zoom"));
  menu.ShowZoom(QStringLiteral("150%"));
  EXPECT_TRUE(menu.findChild<QAction*>(QStringLiteral("zoom150%"))->isChecked());
  menu.ShowZoom(QStringLiteral("133%"));
  for (const QAction* action : menu.actions())
    EXPECT_FALSE(action->isChecked()) << action->text().toStdString();
}

TEST(ZoomMenu, TheMarkedEntryStaysMarkedWhenItIsChosenAgain) {
  ZoomMenu menu(QStringLiteral("Zoom"));
  menu.ShowZoom(QStringLiteral("100%"));
  const QSignalSpy chosen(&menu, &ZoomMenu::ZoomChosen);
  auto* entry = menu.findChild<QAction*>(QStringLiteral("zoom100%"));
  entry->trigger();
  EXPECT_TRUE(entry->isChecked());
  EXPECT_EQ(chosen.count(), 1);
}

}  // namespace
}  // namespace kev
