// SPDX-License-Identifier: MIT
#include "platform/forms/inscol01.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

class Inscol01Test : public testing::Test {
 protected:
  Inscol01Test() {
    EXPECT_TRUE(designer.Load());
    ColumnTable& columns = designer.OpenDocument().Columns;
    columns[1] = {"$Col_01", 2400, ""};
    columns[2] = {"$Col_02", 100.5, ""};
  }
  void Open() {
    run.emplace(designer);
    dialog = std::make_unique<inscol01>(*run, designer.Texts());
    dialog->show();
    dialog->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  template <typename Child>
  Child& Find(const char* name) {
    Child* child = dialog->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  QListWidget& List() { return Find<QListWidget>("List1"); }
  QLineEdit& Position() { return Find<QLineEdit>("colposition"); }
  QString Name() { return Find<QLabel>("colname").text(); }
  QString Caption(const char* button) { return Find<QPushButton>(button).text().remove(QLatin1Char('&')); }
  void Click(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
  void ClickItem(int row) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                      List().visualItemRect(List().item(row)).center());
  }
  QString Items() {
    QStringList items;
    for (int row = 0; row < List().count(); ++row)
      items << List().item(row)->text();
    return items.join(QLatin1Char(' '));
  }
  void Type(const QString& text) {
    Position().selectAll();
    QTest::keyClicks(&Position(), text);
  }

  TempHome home;
  test::ScriptedHost host;
  FontCache fonts;
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::optional<ColumnsDialogRun> run;
  std::unique_ptr<inscol01> dialog;
};

TEST_F(Inscol01Test, ShowsItsWords) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Add/modify/remove columns"));
  EXPECT_EQ(Find<QLabel>("Label1").text(), QStringLiteral("Name"));
  EXPECT_EQ(Find<QLabel>("Label2").text().remove(QLatin1Char('&')), QStringLiteral("Position"));
  EXPECT_TRUE(Find<QLabel>("Label4").text().startsWith(QStringLiteral("Click on the column to modify")));
  EXPECT_EQ(Caption("Command1"), QStringLiteral("Add"));
  EXPECT_EQ(Caption("Command2"), QStringLiteral("Ok"));
  EXPECT_EQ(Caption("Command3"), QStringLiteral("Remove"));
  EXPECT_EQ(Caption("Command4"), QStringLiteral("Organize"));
}

TEST_F(Inscol01Test, EveryControlHasAnAccessibleName) {
  Open();
  for (const char* name : {"List1", "colname", "colposition", "Command1", "Command2", "Command3", "Command4",
                           "Label1", "Label2", "Label4"})
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
}

TEST_F(Inscol01Test, OpensOnTheProposalWithTheCursorInThePosition) {
  Open();
  EXPECT_EQ(Items(), QStringLiteral("$Col_01=2400 $Col_02=100.5"));
  EXPECT_EQ(Name(), QStringLiteral("$Col_03"));
  EXPECT_TRUE(Position().hasFocus());
  EXPECT_FALSE(Find<QPushButton>("Command3").isEnabled());
}

TEST_F(Inscol01Test, AClickedItemFillsTheFieldsAndSelectsThePosition) {
  Open();
  ClickItem(1);
  EXPECT_EQ(Name(), QStringLiteral("$Col_02"));
  EXPECT_EQ(Position().text(), QStringLiteral("100.5"));
  EXPECT_EQ(Position().selectedText(), QStringLiteral("100.5"));
  EXPECT_TRUE(Position().hasFocus());
  EXPECT_EQ(Caption("Command1"), QStringLiteral("Modify"));
  EXPECT_TRUE(Find<QPushButton>("Command3").isEnabled());
}

TEST_F(Inscol01Test, TheListGettingTheFocusChoosesNothing) {
  Open();
  List().setFocus();
  EXPECT_EQ(Name(), QStringLiteral("$Col_03"));
  EXPECT_EQ(Caption("Command1"), QStringLiteral("Add"));
}

TEST_F(Inscol01Test, ArrowsChooseItems) {
  Open();
  ClickItem(0);
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_Down);
  EXPECT_EQ(Name(), QStringLiteral("$Col_02"));
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(Inscol01Test, EnterInThePositionAdds) {
  Open();
  Type(QStringLiteral("1200"));
  QTest::keyClick(&Position(), Qt::Key_Return);
  EXPECT_EQ(designer.OpenDocument().Columns[3].Position, 1200);
  EXPECT_EQ(Items(), QStringLiteral("$Col_01=2400 $Col_02=100.5 $Col_03=1200"));
  EXPECT_EQ(Name(), QStringLiteral("$Col_04"));
  EXPECT_EQ(Position().text(), QString());
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(Inscol01Test, TheButtonModifiesWhatIsChosen) {
  Open();
  ClickItem(0);
  QTest::keyClicks(&Position(), QStringLiteral("900"));
  Click("Command1");
  EXPECT_EQ(designer.OpenDocument().Columns[1].Position, 900);
  EXPECT_EQ(Caption("Command1"), QStringLiteral("Add"));
  EXPECT_TRUE(List().selectedItems().isEmpty());
}

TEST_F(Inscol01Test, ARefusedPositionStays) {
  Open();
  Type(QStringLiteral("0"));
  QTest::keyClick(&Position(), Qt::Key_Return);
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Text, designer.Text(kTextColumnPositionRefused));
  EXPECT_EQ(Position().text(), QStringLiteral("0"));
}

TEST_F(Inscol01Test, ThePositionIsSelectedWhenItGetsTheFocus) {
  Open();
  Type(QStringLiteral("123"));
  Find<QPushButton>("Command2").setFocus();
  Position().deselect();
  Position().setFocus();
  EXPECT_EQ(Position().selectedText(), QStringLiteral("123"));
  Find<QPushButton>("Command2").setFocus();
  QTest::mouseClick(&Position(), Qt::LeftButton);
  EXPECT_EQ(Position().selectedText(), QStringLiteral("123"));
}

TEST_F(Inscol01Test, RemovesWhatIsChosen) {
  Open();
  ClickItem(0);
  Click("Command3");
  EXPECT_EQ(Items(), QStringLiteral("$Col_02=100.5"));
  EXPECT_EQ(Name(), QStringLiteral("$Col_02"));
  EXPECT_FALSE(Find<QPushButton>("Command3").isEnabled());
}

TEST_F(Inscol01Test, Organizes) {
  Open();
  Click("Command4");
  EXPECT_EQ(Items(), QStringLiteral("$Col_01=100 $Col_02=2400"));
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Text, designer.Text(kTextColumnsOrganized));
}

TEST_F(Inscol01Test, EscapeAndOkClose) {
  Open();
  QTest::keyClick(&Position(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  Open();
  Click("Command2");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(designer.OpenDocument().Columns[1].Position, 2400);
}

TEST_F(Inscol01Test, ACharacterThatTheTemplateCannotHoldIsPutBack) {
  Open();
  Position().setText(QString::fromUtf8("1ж"));
  Click("Command1");
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Detail, "ж");
  EXPECT_EQ(Position().text(), QString());
  EXPECT_EQ(List().count(), 2);
}

}  // namespace
}  // namespace kev
