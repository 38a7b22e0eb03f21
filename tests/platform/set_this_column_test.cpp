// SPDX-License-Identifier: MIT
#include "platform/forms/set_this_column.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

class SetThisColumnTest : public testing::Test {
 protected:
  SetThisColumnTest() {
    EXPECT_TRUE(designer.Load());
    Columns()[1] = {"$Col_01", 2400, ""};
    Columns()[2] = {"$Col_02", 100.5, ""};
    run.emplace(designer, 1);
    dialog = std::make_unique<SetThisColumn>(*run, designer.Texts());
    dialog->show();
    dialog->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  ColumnTable& Columns() { return designer.OpenDocument().Columns; }
  template <typename Child>
  Child& Find(const char* name) {
    Child* child = dialog->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  QLineEdit& Name() { return Find<QLineEdit>("Text2"); }
  QLineEdit& Position() { return Find<QLineEdit>("Text1"); }
  QString Word(const char* name) { return Find<QLabel>(name).text().remove(QLatin1Char('&')); }
  void Ok() { QTest::mouseClick(&Find<QPushButton>("Command2"), Qt::LeftButton); }

  TempHome home;
  test::ScriptedHost host;
  FontCache fonts;
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::optional<SetColumnRun> run;
  std::unique_ptr<SetThisColumn> dialog;
};

TEST_F(SetThisColumnTest, ShowsItsWordsAndTheColumn) {
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Set this column"));
  EXPECT_EQ(Word("Label2"), QStringLiteral("Name"));
  EXPECT_EQ(Word("Label1"), QStringLiteral("Position"));
  EXPECT_EQ(Find<QPushButton>("Command2").accessibleName(), QStringLiteral("Ok"));
  EXPECT_EQ(Find<QPushButton>("Command1").accessibleName(), QStringLiteral("Cancel"));
  EXPECT_EQ(Name().text(), QStringLiteral("$Col_01"));
  EXPECT_EQ(Position().text(), QStringLiteral("2400"));
}

TEST_F(SetThisColumnTest, EveryControlHasAnAccessibleName) {
  for (const char* name : {"Text1", "Text2", "Command1", "Command2", "Label1", "Label2"})
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
}

TEST_F(SetThisColumnTest, TheBlankKeyTypesNothingIntoTheName) {
  Name().clear();
  QTest::keyClicks(&Name(), QStringLiteral("a b c"));
  EXPECT_EQ(Name().text(), QStringLiteral("abc"));
  Position().clear();
  QTest::keyClicks(&Position(), QStringLiteral("1 2"));
  EXPECT_EQ(Position().text(), QStringLiteral("1 2"));
}

TEST_F(SetThisColumnTest, APastedBlankIsRefused) {
  QGuiApplication::clipboard()->setText(QStringLiteral("a b"));
  Name().selectAll();
  Name().paste();
  ASSERT_EQ(Name().text(), QStringLiteral("a b"));
  Ok();
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Text, designer.Text(kTextColumnNameRefused));
  EXPECT_EQ(Name().text(), QStringLiteral("a b"));
}

TEST_F(SetThisColumnTest, ThePositionIsSelectedWhenItGetsTheFocus) {
  Position().setFocus();
  EXPECT_EQ(Position().selectedText(), QStringLiteral("2400"));
  Name().setFocus();
  QTest::mouseClick(&Position(), Qt::LeftButton);
  EXPECT_EQ(Position().selectedText(), QStringLiteral("2400"));
}

TEST_F(SetThisColumnTest, OkStoresNameAndPositionAndCloses) {
  Name().setText(QStringLiteral("Total"));
  Position().setText(QStringLiteral("700"));
  Ok();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Columns()[1], (Column{"$Total", 700, ""}));
}

TEST_F(SetThisColumnTest, EnterIsOk) {
  Position().setText(QStringLiteral("700"));
  QTest::keyClick(&Position(), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Columns()[1].Position, 700);
}

TEST_F(SetThisColumnTest, CancelAndEscapeChangeNothing) {
  Position().setText(QStringLiteral("700"));
  QTest::mouseClick(&Find<QPushButton>("Command1"), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  dialog->show();
  QTest::keyClick(&Position(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Columns()[1].Position, 2400);
}

TEST_F(SetThisColumnTest, ANameInUseKeepsTheDialogOpen) {
  Name().setText(QStringLiteral("$COL_02"));
  Ok();
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Text, designer.Text(kTextColumnNameTaken));
  EXPECT_EQ(Name().text(), QStringLiteral("$COL_02"));
}

TEST_F(SetThisColumnTest, ACharacterThatTheTemplateCannotHoldIsPutBack) {
  Name().setText(QString::fromUtf8("$ж"));
  Ok();
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Detail, "ж");
  EXPECT_EQ(Name().text(), QStringLiteral("$Col_01"));
}

}  // namespace
}  // namespace kev
