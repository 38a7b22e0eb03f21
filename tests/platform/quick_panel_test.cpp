// SPDX-License-Identifier: MIT
// The quick panel in the main window, with real widgets.
#include "platform/forms/quick_panel.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "base/text_numbers.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/page_canvas.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"
#include "support/run_tool.h"

namespace kev {
namespace {

constexpr const char* kTemplate =
    "Sample_Kex_file=data.kex\r\nKEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n"
    "[ITEMS:@code,@text]\r\n{510;}Alpha{3000;}Beta{\\n}\r\n{Box=100,400,500,300}\r\n{Spacing=400;\\n}\r\n"
    "[FOOTER]\r\n{Spacing=400;\\n}\r\n";

class QuickPanelTest : public testing::Test {
 protected:
  QuickPanelTest() {
    test::WriteBytes(home.Path("work/data.kex"), "TEMPLATE=a.kev\r\n|ITEMS|1|bolt|\r\n|ITEMS|2|nut|\r\n");
    test::WriteBytes(home.Path("work/a.kev"), kTemplate);
    EXPECT_TRUE(designer.Load());
    window = std::make_unique<KavEdit01>(designer, host, fonts, images);
    window->show();
    CloseSplash();
    EXPECT_TRUE(designer.OpenTemplate(home.Path("work/a.kev")));
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Page().setFocus();
  }
  void CloseSplash() {
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, window.get(), [this] {
      if (auto* splash = window->findChild<kavsplash*>()) QTest::mouseClick(splash, Qt::LeftButton);
    });
    closer.start(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->windowTitle().isEmpty(); }));
  }
  template <typename Child>
  Child& Find(const char* name) {
    Child* child = window->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  ObjectTable& Objects() { return designer.OpenDocument().Objects; }
  int RowOf(const std::string& content) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Content == content) return row;
    return 0;
  }
  int Row(ObjectKind kind) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == kind) return row;
    return 0;
  }
  void Select(int row) { designer.Surface().GoToObject(row); }
  QuickPanelForm& Panel() { return Find<QuickPanelForm>("quickprops"); }
  PageCanvas& Page() { return Find<PageCanvas>("p1"); }
  QLineEdit& Value() { return Find<QLineEdit>("Label_Value"); }
  QListWidget& Fields() { return Find<QListWidget>("ListVariables"); }
  QListWidget& Functions() { return Find<QListWidget>("ListFunctions"); }
  QListWidget& Values() { return Find<QListWidget>("ListValues"); }
  QString Title() { return Find<QLabel>("frame_label").text(); }
  QString Word(int number) { return ToQString(designer.Text(number)); }
  static QStringList Items(const QListWidget& list) {
    QStringList items;
    for (int row = 0; row < list.count(); ++row)
      items << list.item(row)->text();
    return items;
  }
  static void ClickItem(QListWidget& list, int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
  }
  static void DoubleClickItem(QListWidget& list, int row) {
    ClickItem(list, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
  }
  void Click(const char* button) { QTest::mouseClick(&Find<QWidget>(button), Qt::LeftButton); }
  // Answers the next box and keeps its text.
  void WhenBox() {
    QTimer::singleShot(0, qApp, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      boxText = box->text();
      box->accept();
    });
  }
  bool IsInsidePage() { return Page().viewport()->geometry().contains(Panel().geometry()); }
  void Drag(QPoint by) {
    auto& bar = Find<QWidget>("BarTitle02");
    QTest::mousePress(&bar, Qt::LeftButton, {}, {20, 10});
    const QPoint end = bar.mapToGlobal(QPoint(20, 10)) + by;
    QTest::mouseMove(&bar, bar.mapFromGlobal(end));
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, bar.mapFromGlobal(end));
  }

  TempHome home;
  QtHost host;
  FontCache fonts;
  ImageCache images{{}};
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::unique_ptr<KavEdit01> window;
  QString boxText;
};

TEST_F(QuickPanelTest, ShowsThePageOfWhatIsSelectedAndLeavesTheKeyboard) {
  EXPECT_TRUE(Panel().isHidden());
  Select(RowOf("Alpha"));
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_TRUE(Find<QFrame>("Frame1").isVisible());
  EXPECT_FALSE(Find<QFrame>("Frame2").isVisible());
  EXPECT_EQ(Title(), Word(kTextQuickLabel));
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha"));
  EXPECT_EQ(Items(Fields()), (QStringList{QStringLiteral("@code"), QStringLiteral("@text")}));
  EXPECT_EQ(Functions().count(), 11);
  EXPECT_EQ(Values().count(), 0);
  EXPECT_TRUE(Page().hasFocus());
  Select(Row(ObjectKind::Box));
  EXPECT_FALSE(Find<QFrame>("Frame1").isVisible());
  EXPECT_TRUE(Find<QFrame>("Frame2").isVisible());
  EXPECT_TRUE(IsInsidePage());
  EXPECT_TRUE(Page().hasFocus());
}

TEST_F(QuickPanelTest, AGroupShowsItsTitleAlone) {
  Select(RowOf("Alpha"));
  designer.Surface().Pointer().LastY = Objects()[RowOf("Alpha")].AbsoluteY + 20;
  designer.Surface().Pointer().LastX = 600;
  EXPECT_TRUE(designer.Run(Command::SelectAll));
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(Title(), Word(kTextMultiSelected) + QStringLiteral(" 3"));
  EXPECT_FALSE(Find<QFrame>("Frame1").isVisible());
  EXPECT_FALSE(Find<QFrame>("Frame2").isVisible());
}

TEST_F(QuickPanelTest, AChosenFieldShowsItsValues) {
  Select(RowOf("Alpha"));
  ClickItem(Fields(), 1);
  EXPECT_EQ(Items(Values()), (QStringList{QStringLiteral("bolt"), QStringLiteral("nut")}));
  EXPECT_EQ(Find<QLabel>("recordsshown").text(), Word(kTextQuickRecordsShown) + QStringLiteral(" 2"));
  QTest::keyClick(&Fields(), Qt::Key_Up);
  EXPECT_EQ(Items(Values()), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
  Select(RowOf("Beta"));
  EXPECT_EQ(Values().count(), 0);
  EXPECT_EQ(Fields().currentRow(), -1);
  EXPECT_TRUE(Find<QLabel>("recordsshown").text().isEmpty());
}

TEST_F(QuickPanelTest, NothingOfItIsCutOff) {
  const auto isWhole = [](const QLabel& label) { return label.width() >= label.sizeHint().width(); };
  Select(Row(ObjectKind::Box));
  EXPECT_TRUE(isWhole(Find<QLabel>("frame_label")));
  Select(RowOf("Alpha"));
  EXPECT_TRUE(isWhole(Find<QLabel>("frame_label")));
  const QSize before = Panel().size();
  ClickItem(Fields(), 0);
  Find<QLabel>("recordsshown").setText(Word(kTextQuickRecordsShown) + QStringLiteral(" 100"));
  QCoreApplication::processEvents();
  EXPECT_TRUE(isWhole(Find<QLabel>("recordsshown")));
  EXPECT_EQ(Panel().size(), before);
}

TEST_F(QuickPanelTest, ChoicesAreAddedByButtonDoubleClickAndEnter) {
  Select(RowOf("Alpha"));
  Click("Command2");
  Click("Command3");
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha"));
  DoubleClickItem(Fields(), 0);
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha @code"));
  ClickItem(Fields(), 1);
  Click("Command2");
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha @code @text"));
  DoubleClickItem(Functions(), 3);
  QTest::keyClick(&Functions(), Qt::Key_Return);
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha @code @text @@Date @@Date"));
  // The label itself is another matter.
  EXPECT_NE(RowOf("Alpha"), 0);
}

TEST_F(QuickPanelTest, ADoubleClickBesideTheEntriesAddsNothing) {
  Select(RowOf("Alpha"));
  // There is a place below the entries once most of them are away.
  for (int row = 2; row < Functions().count(); ++row)
    Functions().setRowHidden(row, true);
  const QPoint beside(5, Functions().viewport()->height() - 3);
  ASSERT_EQ(Functions().itemAt(beside), nullptr);
  QTest::mouseClick(Functions().viewport(), Qt::LeftButton, {}, beside);
  QTest::mouseDClick(Functions().viewport(), Qt::LeftButton, {}, beside);
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha"));
  DoubleClickItem(Functions(), 1);
  EXPECT_NE(Value().text(), QStringLiteral("Alpha"));
}

TEST_F(QuickPanelTest, TheTextIsAppliedAndTheListsStay) {
  const int alpha = RowOf("Alpha");
  Select(alpha);
  ClickItem(Fields(), 1);
  Click("Command2");
  Click("Command1");
  EXPECT_EQ(Objects()[alpha].Content, "Alpha @text");
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha @text"));
  EXPECT_EQ(Fields().currentRow(), 1);
  EXPECT_EQ(Values().count(), 2);
  Value().setFocus();
  Value().selectAll();
  QTest::keyClicks(&Value(), QStringLiteral("Gamma"));
  QTest::keyClick(&Value(), Qt::Key_Return);
  EXPECT_EQ(Objects()[alpha].Content, "Gamma");
  EXPECT_TRUE(Value().hasFocus());
  window->Run(Command::Undo);
  EXPECT_EQ(Objects()[alpha].Content, "Alpha @text");
  EXPECT_TRUE(Panel().isHidden());
  EXPECT_TRUE(Page().hasFocus());
}

TEST_F(QuickPanelTest, ABlankTextIsRefusedAndTheOldOneStandsThereAgain) {
  Select(RowOf("Alpha"));
  Value().setText(QStringLiteral("  "));
  WhenBox();
  Click("Command1");
  EXPECT_EQ(boxText, Word(kTextEmptyTextRefused));
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha"));
  EXPECT_NE(RowOf("Alpha"), 0);
}

TEST_F(QuickPanelTest, ACharacterThatThePageLacksIsRefusedByName) {
  const int alpha = RowOf("Alpha");
  Select(alpha);
  Value().setText(QStringLiteral("A\u03A9"));
  WhenBox();
  Click("Command1");
  EXPECT_TRUE(boxText.startsWith(Word(kTextCharacterNotInPage)));
  EXPECT_TRUE(boxText.contains(QStringLiteral("\u03A9")));
  EXPECT_EQ(Objects()[alpha].Content, "Alpha");
}

TEST_F(QuickPanelTest, ALabelIsTypedInItsOwnCharacterSet) {
  const int alpha = RowOf("Alpha");
  Objects()[alpha].CharSet = "204";
  Objects()[alpha].Content = "\xC4\xE0";
  Select(alpha);
  EXPECT_EQ(Value().text(), QStringLiteral("\u0414\u0430"));
  Value().setText(QStringLiteral("\u0414\u043D\u0438"));
  Click("Command1");
  EXPECT_EQ(Objects()[alpha].Content, "\xC4\xED\xE8");
}

TEST_F(QuickPanelTest, ChecksAreFilledWithoutActingAndActWhenClicked) {
  const int alpha = RowOf("Alpha");
  const int box = Row(ObjectKind::Box);
  Objects()[alpha].AlignToGrid = 0;
  Objects()[box].AlignToGrid = 1;
  Select(box);
  EXPECT_TRUE(Find<QCheckBox>("Check2").isChecked());
  Select(alpha);
  EXPECT_FALSE(Find<QCheckBox>("Check1").isChecked());
  EXPECT_FALSE(designer.Modified());
  QTest::mouseClick(&Find<QCheckBox>("Check1"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(Objects()[alpha].AlignToGrid, 1);
  EXPECT_EQ(Objects()[alpha].XValue, "600");
  EXPECT_TRUE(Find<QCheckBox>("Check1").isChecked());
  Select(box);
  QTest::mouseClick(&Find<QCheckBox>("Check2"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(Objects()[box].AlignToGrid, 0);
}

TEST_F(QuickPanelTest, WhatIsTypedStaysThroughARepaintAndNoPageKeyIsRun) {
  const int alpha = RowOf("Alpha");
  Select(alpha);
  Value().setFocus();
  QTest::keyClicks(&Value(), QStringLiteral(" x"));
  designer.Surface().FullRepaint();
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha x"));
  Functions().setFocus();
  QTest::keyClick(&Functions(), Qt::Key_Delete);
  QTest::keyClick(&Functions(), Qt::Key_F2);
  QTest::keyClick(&Functions(), Qt::Key_X);
  EXPECT_EQ(Objects()[alpha].Content, "Alpha");
  EXPECT_FALSE(designer.Surface().Edit().Active());
}

TEST_F(QuickPanelTest, EscapeGivesTheTextUpAndGoesBackToThePage) {
  Select(RowOf("Alpha"));
  Value().setFocus();
  QTest::keyClicks(&Value(), QStringLiteral(" x"));
  QTest::keyClick(&Value(), Qt::Key_Escape);
  EXPECT_EQ(Value().text(), QStringLiteral("Alpha"));
  EXPECT_TRUE(Page().hasFocus());
  EXPECT_EQ(Objects().CurrentObject, RowOf("Alpha"));
}

TEST_F(QuickPanelTest, TabGoesThroughAllOfIt) {
  Select(RowOf("Alpha"));
  Value().setFocus();
  QStringList names;
  for (int step = 0; step < 9; ++step) {
    names << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(names.first(7), (QStringList{QStringLiteral("Label_Value"), QStringLiteral("Command1"),
                                         QStringLiteral("ListVariables"), QStringLiteral("Command2"),
                                         QStringLiteral("ListFunctions"), QStringLiteral("Command3"),
                                         QStringLiteral("ListValues")}));
  EXPECT_EQ(names.at(7), QStringLiteral("Check1"));
}

TEST_F(QuickPanelTest, EveryControlHasAnAccessibleName) {
  for (const char* name : {"quickprops", "Label_Value", "Command1", "Command2", "Command3", "ListVariables",
                           "ListFunctions", "ListValues", "Check1", "Check2", "CloseQuickProps"})
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
  for (const char* name : {"varstoadd", "exprtoadd", "samplevalues"})
    EXPECT_FALSE(Find<QLabel>(name).text().isEmpty()) << name;
}

TEST_F(QuickPanelTest, IsClosedAndShownAgain) {
  Select(RowOf("Alpha"));
  Click("CloseQuickProps");
  EXPECT_TRUE(Panel().isHidden());
  EXPECT_EQ(designer.Options().ShowQuickProps, 0);
  Select(RowOf("Beta"));
  EXPECT_TRUE(Panel().isHidden());
  Find<QAction>("showquick").trigger();
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(Value().text(), QStringLiteral("Beta"));
}

TEST_F(QuickPanelTest, IsDraggedByItsBarAndStaysThere) {
  Select(RowOf("Alpha"));
  const QPoint before = Panel().pos();
  Drag({-60, -40});
  EXPECT_EQ(Panel().pos(), before + QPoint(-60, -40));
  const QPoint place = Panel().pos() - Page().viewport()->pos();
  EXPECT_EQ(designer.Options().QuickPropsX, place.x() * 15);
  EXPECT_EQ(designer.Options().QuickPropsY, place.y() * 15);
  Select(RowOf("Beta"));
  EXPECT_EQ(Panel().pos(), before + QPoint(-60, -40));
  Drag({-5000, 5000});
  EXPECT_TRUE(IsInsidePage());
  EXPECT_EQ(designer.Options().QuickPropsX, 0);
}

TEST_F(QuickPanelTest, StaysInsideThePageWhenTheWindowShrinks) {
  Select(RowOf("Alpha"));
  designer.Quick().Moved(9000, 6000);
  designer.Quick().UpdateQuickPanel();
  const QPoint wide = Panel().pos();
  const QSize full = window->size();
  window->resize(full - QSize(60, 160));
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsInsidePage(); }));
  // The place that was chosen is not forgotten.
  EXPECT_EQ(designer.Options().QuickPropsX, 9000);
  window->resize(full);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Panel().pos() == wide; }));
}

TEST_F(QuickPanelTest, DoesNotCoverTheObjectUntilItIsPutSomewhere) {
  for (const int row : {RowOf("Alpha"), RowOf("Beta"), Row(ObjectKind::Box)}) {
    Select(row);
    const CanvasArea area = AreaOf(Objects()[row], designer.OpenDocument(), designer.ZoomFactor());
    const QRectF object(Page().ToViewport({area.Left, area.Top}),
                        Page().ToViewport({area.Right, area.Bottom}));
    EXPECT_FALSE(QRectF(Panel().geometry()).intersects(object)) << row;
  }
}

TEST_F(QuickPanelTest, AMissingSampleFileIsSaidInTheList) {
  test::WriteBytes(home.Path("work/b.kev"), std::string(kTemplate).replace(16, 8, "gone.kex"));
  ASSERT_TRUE(designer.OpenTemplate(home.Path("work/b.kev")));
  Select(RowOf("Alpha"));
  ClickItem(Fields(), 0);
  EXPECT_EQ(Values().count(), 0);
  EXPECT_EQ(Find<QLabel>("recordsshown").text(), Word(kTextQuickRecordsShown) + QStringLiteral(" 0"));
}

}  // namespace
}  // namespace kev
