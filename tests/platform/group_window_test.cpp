// SPDX-License-Identifier: MIT
// Clipboard, the dialogs of a group and the tools for text in the main window.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "base/text_numbers.h"
#include "platform/forms/align_to_grid_frm.h"
#include "platform/forms/group_flag_forms.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/placeselection.h"
#include "platform/forms/prop_grid.h"
#include "platform/forms/show_colors.h"
#include "platform/forms/text_tools.h"
#include "platform/page_canvas.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"
#include "surface/selection.h"

namespace kev {
namespace {

class GroupWindowTest : public testing::Test {
 protected:
  GroupWindowTest() {
    EXPECT_TRUE(designer.Load());
    window = std::make_unique<KavEdit01>(designer, host, fonts, images);
    EXPECT_TRUE(designer.OpenFresh(
        "KEXVER=4\r\n$Col_01=2400\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n{F=Arial;S=10}\r\n"
        "{1000;}Alpha{\\n}\r\n{Spacing=600;\\n}\r\n{2000;}Beta{\\n}\r\n{Spacing=3000;\\n}\r\n"
        "[FOOTER]\r\n{Spacing=400;\\n}\r\n"));
  }
  // For tests of the keyboard.
  void ShowWindow() {
    designer.BeginActivation();  // no splash, no start
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QCoreApplication::processEvents();
  }
  Document& Doc() { return designer.OpenDocument(); }
  ObjectTable& Objects() { return designer.OpenDocument().Objects; }
  int Row(std::string_view content) {
    int found = 0;
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == ObjectKind::Label && Objects()[row].Content == content) found = row;
    return found;
  }
  ObjectRecord& At(std::string_view content) { return Objects()[Row(content)]; }
  void Select(std::string_view content) {
    PageWork work = designer.Surface().Work();
    SelectObject(work, Row(content));
  }
  void SelectBoth() {
    Objects().CurrentObject = 0;
    At("Alpha").Selected = At("Beta").Selected = kTrue;
    designer.Surface().FullRepaint();
  }
  int Level() { return designer.Surface().Undo().UndoIndex(); }
  int Labels() {
    int count = 0;
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      count += Objects()[row].Kind == ObjectKind::Label ? 1 : 0;
    return count;
  }

  template <typename Child>
  Child& Find(const QWidget& parent, const char* name) {
    Child* child = parent.findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  QToolButton& Button(const char* name) { return Find<QToolButton>(*window, name); }
  ComboFont& Font() { return Find<ComboFont>(*window, "ComboFont"); }
  Combosize& Size() { return Find<Combosize>(*window, "Combosize"); }
  PColor& ColourButton() { return Find<PColor>(*window, "PColor"); }
  PageCanvas& Canvas() { return *window->findChild<PageCanvas*>(); }
  QAction& Action(const char* name) {
    QAction* action = window->findChild<QAction*>(QString::fromLatin1(name));
    if (action == nullptr) throw std::runtime_error(std::string("no action ") + name);
    return *action;
  }
  static void Click(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton); }

  // Runs in the dialog that the next command opens; one that is still open behind it is closed.
  template <typename Dialog>
  void InDialog(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, qApp, [this, act] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      ++dialogs;
      act(*dialog);
      if (dialog->isVisible()) dialog->close();
    });
  }
  // Reads the text of the box that the next step shows, and answers it.
  void AnswerBox(QString& text) {
    QTimer::singleShot(0, qApp, [&text] {
      QWidget* box = QApplication::activeModalWidget();
      ASSERT_NE(box, nullptr);
      text = box->property("text").toString();
      QTest::keyClick(box, Qt::Key_Return);
    });
  }
  static void ExpectNames(const QDialog& dialog) {
    EXPECT_FALSE(dialog.accessibleName().isEmpty());
    for (const char* name : {"Command1", "Command2"})
      EXPECT_FALSE(dialog.findChild<QPushButton*>(QString::fromLatin1(name))->accessibleName().isEmpty());
  }

  TempHome home;
  QtHost host;
  FontCache fonts;
  ImageCache images{{}};
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::unique_ptr<KavEdit01> window;
  int dialogs = 0;
};

// --- placeselection ---

TEST_F(GroupWindowTest, PlaceSelectionShowsThePlaceAndSelectsIt) {
  SelectBoth();
  InDialog<placeselection>([&](placeselection& dialog) {
    ExpectNames(dialog);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Place the selection"));
    auto& y = Find<QLineEdit>(dialog, "YPosition");
    auto& x = Find<QComboBox>(dialog, "Combocol");
    EXPECT_EQ(y.text(), QString::number(At("Alpha").Y));
    EXPECT_EQ(x.currentText(), QStringLiteral("1000"));
    ASSERT_EQ(x.count(), 1);
    EXPECT_EQ(x.itemText(0), QStringLiteral("$Col_01 = 2400"));
    EXPECT_FALSE(y.accessibleName().isEmpty());
    EXPECT_FALSE(x.accessibleName().isEmpty());
    x.setFocus();
    y.setFocus();
    EXPECT_EQ(y.selectedText(), y.text());
    Click(Find<QPushButton>(dialog, "Command2"));
    EXPECT_FALSE(dialog.isVisible());
  });
  Action("placethis").trigger();
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupWindowTest, PlaceSelectionPlacesTheGroupByKeys) {
  SelectBoth();
  InDialog<placeselection>([&](placeselection& dialog) {
    auto& y = Find<QLineEdit>(dialog, "YPosition");
    y.selectAll();
    QTest::keyClicks(&y, QStringLiteral("200"));
    Find<QComboBox>(dialog, "Combocol").setCurrentIndex(0);
    QTest::keyClick(&y, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  Action("placethis").trigger();
  EXPECT_EQ(At("Alpha").XValue, "2400");
  EXPECT_EQ(At("Beta").XValue, "3400");
  EXPECT_EQ(At("Alpha").Y, 200);
  EXPECT_EQ(Level(), 1);
}

TEST_F(GroupWindowTest, PlaceSelectionStaysOpenWhereThePlaceIsRefused) {
  SelectBoth();
  QString told;
  InDialog<placeselection>([&](placeselection& dialog) {
    auto& y = Find<QLineEdit>(dialog, "YPosition");
    auto& x = Find<QComboBox>(dialog, "Combocol");
    y.setText(QStringLiteral("-1"));
    Click(Find<QPushButton>(dialog, "Command1"));
    EXPECT_TRUE(dialog.isVisible());
    y.setText(QStringLiteral("0"));
    x.setEditText(QStringLiteral("abc"));
    AnswerBox(told);
    Click(Find<QPushButton>(dialog, "Command1"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(told, ToQString(designer.Text(kTextPositionRefused)));
    x.setEditText(QString::fromUtf8("ж"));
    AnswerBox(told);
    Click(Find<QPushButton>(dialog, "Command1"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(told.contains(QString::fromUtf8("ж")));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Action("placethis").trigger();
  EXPECT_EQ(Level(), 0);
}

// --- AlignToGridFrm ---

TEST_F(GroupWindowTest, AlignToGridDoesWhatIsTicked) {
  SelectBoth();
  At("Alpha").XValue = "1190";
  QString told;
  InDialog<AlignToGridFrm>([&](AlignToGridFrm& dialog) {
    ExpectNames(dialog);
    auto& snap = Find<QCheckBox>(dialog, "Check1");
    auto& set = Find<QCheckBox>(dialog, "Check2");
    auto& value = Find<QComboBox>(dialog, "Combo1");
    EXPECT_FALSE(snap.isChecked());
    EXPECT_FALSE(set.isChecked());
    EXPECT_EQ(set.accessibleName(), QStringLiteral("Set the property \"Align to grid\" to:"));
    EXPECT_EQ(value.itemText(0), QStringLiteral("Yes"));
    EXPECT_EQ(value.itemText(1), QStringLiteral("No"));
    snap.click();
    set.click();
    value.setCurrentIndex(1);
    AnswerBox(told);
    Click(Find<QPushButton>(dialog, "Command1"));
    EXPECT_FALSE(dialog.isVisible());
  });
  Action("aligntogrid").trigger();
  EXPECT_EQ(told, ToQString(designer.Text(kTextGridDone)));
  EXPECT_EQ(At("Alpha").AlignToGrid, 0);
  EXPECT_NE(At("Alpha").XValue, "1190");
  EXPECT_EQ(Level(), 1);
}

// --- Modifyenduser, PrintNoPrintFrm ---

TEST_F(GroupWindowTest, ModifyEndUserAndPrintStoreTheOption) {
  SelectBoth();
  At("Alpha").ModifiableByEndUser = 1;
  InDialog<Modifyenduser>([&](Modifyenduser& dialog) {
    ExpectNames(dialog);
    EXPECT_TRUE(Find<QRadioButton>(dialog, "Option1").isChecked());
    Find<QRadioButton>(dialog, "Option2").click();
    Click(Find<QPushButton>(dialog, "Command1"));
    EXPECT_FALSE(dialog.isVisible());
  });
  Action("modienduser").trigger();
  EXPECT_EQ(At("Alpha").ModifiableByEndUser, 0);
  InDialog<PrintNoPrintFrm>([&](PrintNoPrintFrm& dialog) {
    ExpectNames(dialog);
    EXPECT_TRUE(Find<QRadioButton>(dialog, "Option1").isChecked());
    Find<QRadioButton>(dialog, "Option2").click();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Action("menprintnoprint").trigger();
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(At("Alpha").PrintFlag, 0);
  EXPECT_EQ(At("Beta").PrintFlag, 0);
  EXPECT_EQ(Level(), 2);
}

TEST_F(GroupWindowTest, ACancelledDialogStoresNothing) {
  SelectBoth();
  const auto cancel = [&](auto& dialog) { Click(Find<QPushButton>(dialog, "Command2")); };
  InDialog<Modifyenduser>(cancel);
  Action("modienduser").trigger();
  InDialog<PrintNoPrintFrm>(cancel);
  Action("menprintnoprint").trigger();
  InDialog<AlignToGridFrm>(cancel);
  Action("aligntogrid").trigger();
  EXPECT_EQ(dialogs, 3);
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupWindowTest, TheCommandsOfAGroupNeedOne) {
  for (const char* name : {"alignhor", "placethis", "aligntogrid", "modienduser", "menprintnoprint",
                           "deleteselection", "cut22", "copyuy"}) {
    Select("Alpha");
    EXPECT_EQ(Action(name).isEnabled(), std::string_view(name).starts_with("c")) << name;
    SelectBoth();
    EXPECT_TRUE(Action(name).isEnabled()) << name;
    EXPECT_FALSE(Action(name).text().isEmpty()) << name;
  }
}

// --- Clipboard ---

TEST_F(GroupWindowTest, KeysAndToolsCopyCutAndPaste) {
  ShowWindow();
  EXPECT_FALSE(Button("ImgButton17").isEnabled());
  Select("Alpha");
  Canvas().setFocus();
  EXPECT_TRUE(Button("ImgButton17").isEnabled());
  EXPECT_FALSE(Action("pastehere").isEnabled());
  QTest::keyClick(&Canvas(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Action("pastehere").isEnabled());
  designer.Surface().Pointer().KeepPosition({4000, double(At("Beta").AbsoluteY) + 900});
  QTest::keyClick(&Canvas(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Labels(), 3);
  EXPECT_EQ(At("Alpha").XValue, "4000");
  Click(Button("ImgButton17"));
  EXPECT_EQ(Labels(), 2);
  QTest::keyClick(&Canvas(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Labels(), 3);
  Click(Button("ImgButton18"));
  QTest::keyClick(&Canvas(), Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Labels(), 2);
}

TEST_F(GroupWindowTest, TheGridKeepsItsKeys) {
  ShowWindow();
  Select("Alpha");
  Canvas().setFocus();
  auto* grid = window->findChild<PropGrid*>();
  ASSERT_NE(grid, nullptr);
  grid->setFocus();
  QCoreApplication::processEvents();
  ASSERT_TRUE(designer.Sheets().HasGridFocus());
  EXPECT_FALSE(Action("Cuthis").isEnabled());
  EXPECT_FALSE(Action("copythis").isEnabled());
  QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(designer.Surface().Clipboard().Empty());
  Click(Button("ImgButton18"));
  EXPECT_FALSE(designer.Surface().Clipboard().Empty()) << "a tool is no key";
  EXPECT_TRUE(designer.Sheets().HasGridFocus());
  Canvas().setFocus();
  EXPECT_TRUE(Action("Cuthis").isEnabled());
}

// --- Tools for text ---

TEST_F(GroupWindowTest, TheTextToolsFollowTheSelection) {
  const auto all = [&]() -> std::vector<QWidget*> {
    return {&Font(),
            &Size(),
            &ColourButton(),
            &Button("ImgButton10"),
            &Button("ImgButton11"),
            &Button("ImgButton12"),
            &Button("ImgButton13"),
            &Button("ImgButton14"),
            &Button("ImgButton15")};
  };
  for (const QWidget* tool : all()) {
    EXPECT_FALSE(tool->isEnabled()) << tool->objectName().toStdString();
    EXPECT_FALSE(tool->accessibleName().isEmpty()) << tool->objectName().toStdString();
  }
  EXPECT_EQ(Font().currentText(), QString());
  EXPECT_EQ(Size().currentText(), QString());
  At("Alpha").Italic = kTrue;
  Select("Alpha");
  for (const QWidget* tool : all())
    EXPECT_TRUE(tool->isEnabled()) << tool->objectName().toStdString();
  EXPECT_EQ(Font().currentText(), QStringLiteral("Arial"));
  EXPECT_EQ(Size().currentText(), QStringLiteral("10"));
  EXPECT_TRUE(Button("ImgButton11").isChecked());
  EXPECT_TRUE(Button("ImgButton13").isChecked());
  EXPECT_FALSE(Button("ImgButton10").isChecked());
  designer.NewTemplate();
  EXPECT_FALSE(Font().isEnabled());
  EXPECT_EQ(Font().currentText(), QString());
  EXPECT_EQ(Size().currentText(), QString());
  EXPECT_FALSE(Button("ImgButton11").isChecked());
}

TEST_F(GroupWindowTest, AFontThatIsNotInstalledIsShownAllTheSame) {
  At("Alpha").FontName = "No Such Font";
  Select("Alpha");
  EXPECT_EQ(Font().currentText(), QStringLiteral("No Such Font"));
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupWindowTest, AFontIsChosenByKeysAndThePageHasThemAgain) {
  ShowWindow();
  Select("Alpha");
  Font().setFocus();
  const int before = Font().currentIndex();
  QTest::keyClick(&Font(), Qt::Key_Down);
  EXPECT_EQ(At("Alpha").FontName, Font().itemText(before + 1).toStdString());
  EXPECT_EQ(designer.Last().Label.FontName, At("Alpha").FontName);
  EXPECT_EQ(window->focusWidget(), &Canvas());
}

TEST_F(GroupWindowTest, ASizeIsTypedAndARefusedOneIsPutBack) {
  ShowWindow();
  Select("Alpha");
  QLineEdit& line = *Size().lineEdit();
  Size().setFocus();
  line.selectAll();
  QTest::keyClicks(&line, QStringLiteral("24"));
  EXPECT_EQ(At("Alpha").FontSize, 10) << "only Enter takes it";
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(At("Alpha").FontSize, 24);
  EXPECT_EQ(Level(), 1) << "one change";
  EXPECT_EQ(window->focusWidget(), &Canvas());
  for (const char* refused : {"0", "721", "abc", ""}) {
    Size().setFocus();
    line.setText(QString::fromLatin1(refused));
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(Size().currentText(), QStringLiteral("24")) << refused;
  }
  EXPECT_EQ(Level(), 1);
  Size().setFocus();
  line.setText(QStringLiteral("30"));
  QTest::keyClick(&Size(), Qt::Key_Escape);
  EXPECT_EQ(Size().currentText(), QStringLiteral("24"));
  line.setText(QStringLiteral("30"));
  Canvas().setFocus();
  EXPECT_EQ(At("Alpha").FontSize, 30) << "leaving the box takes it too";
}

TEST_F(GroupWindowTest, FillingTheSizeIsNoEdit) {
  Select("Alpha");
  At("Beta").FontSize = 33;
  Select("Beta");
  EXPECT_EQ(Size().currentText(), QStringLiteral("33"));
  Select("Alpha");
  EXPECT_EQ(At("Alpha").FontSize, 10);
  EXPECT_EQ(At("Beta").FontSize, 33);
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupWindowTest, TheButtonsToggleAndStayDownAsTheTextIs) {
  SelectBoth();
  At("Alpha").Bold = kTrue;
  designer.Surface().FullRepaint();
  EXPECT_TRUE(Button("ImgButton10").isChecked());
  Click(Button("ImgButton10"));
  EXPECT_FALSE(Button("ImgButton10").isChecked());
  EXPECT_EQ(At("Alpha").Bold, kFalse);
  Click(Button("ImgButton12"));
  EXPECT_EQ(At("Beta").Underline, kTrue);
  EXPECT_TRUE(Button("ImgButton12").isChecked());
  Click(Button("ImgButton15"));
  EXPECT_EQ(At("Beta").Align, "R");
  EXPECT_TRUE(Button("ImgButton15").isChecked());
  EXPECT_FALSE(Button("ImgButton13").isChecked());
  Click(Button("ImgButton15"));
  EXPECT_TRUE(Button("ImgButton15").isChecked()) << "an alignment is not taken off";
  EXPECT_EQ(Level(), 4);
}

TEST_F(GroupWindowTest, TheColourIsChosenInADialog) {
  Select("Alpha");
  InDialog<ShowColors>([this](ShowColors& dialog) {
    for (const auto& [name, text] :
         {std::pair("red_value", "10"), {"Green_value", "20"}, {"blue_value", "30"}}) {
      auto& box = Find<QLineEdit>(dialog, name);
      box.selectAll();
      QTest::keyClicks(&box, QString::fromLatin1(text));
    }
    QTest::mouseClick(&Find<QPushButton>(dialog, "Command1"), Qt::LeftButton);
  });
  Click(ColourButton());
  EXPECT_EQ(At("Alpha").ColorR, 10);
  EXPECT_EQ(At("Alpha").ColorG, 20);
  EXPECT_EQ(At("Alpha").ColorB, 30);
  EXPECT_EQ(designer.Last().Label.Color, "10,20,30");
  InDialog<ShowColors>([](ShowColors& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  Click(ColourButton());
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(Level(), 1);
}

}  // namespace
}  // namespace kev
