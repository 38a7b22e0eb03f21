// SPDX-License-Identifier: MIT
// The property panel in the main window, as the user works it.
#include "platform/forms/property_panel.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <fstream>

#include "base/files.h"
#include "base/text_numbers.h"
#include "platform/forms/form_props.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/forms/prop_grid_model.h"
#include "platform/forms/property_area.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr const char* kTemplate =
    "KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n{500;}Alpha{3000;}Beta{\\n}\r\n"
    "[FOOTER]\r\n{Spacing=400;\\n}\r\n";

class PropertyPanelTest : public testing::Test {
 protected:
  void SetUp() override {
    const std::string path = home_.Path("work/a.kev");
    std::ofstream(path, std::ios::binary) << kTemplate;
    designer_ = std::make_unique<Designer>(host_, measurer_, home_.Input({path}));
    host_.UseNativeDialogs(false);
    ASSERT_TRUE(designer_->Load());
    window_ = std::make_unique<KavEdit01>(*designer_, host_, fonts_, images_);
    window_->show();
    window_->activateWindow();
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, window_.get(), [this] {
      auto* splash = window_->findChild<kavsplash*>();
      if (splash != nullptr && splash->isVisible()) QTest::mouseClick(splash, Qt::LeftButton);
    });
    closer.start(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->windowTitle().isEmpty(); }));
    closer.stop();
    Settle();
    Activate();
  }
  // Where there is no window manager, a dialog that closes leaves no window active.
  void Activate() {
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  // What was put off behind the event has run.
  static void Settle() {
    for (int i = 0; i < 4; ++i)
      QCoreApplication::processEvents();
  }

  template <typename Child>
  Child& Find(const char* name) {
    Child* child = window_->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  PropGrid& Grid() { return Find<PropGrid>("PropGrid1"); }
  PropertyPanel& Panel() { return Find<PropertyPanel>("FrameProps"); }
  PanelTitle& Title() { return Find<PanelTitle>("bartitle1"); }
  PageCanvas& Page() { return Find<PageCanvas>("p1"); }
  FormPROPS* Form() { return window_->findChild<FormPROPS*>(QStringLiteral("FormPROPS")); }
  QString Description() { return Find<QLabel>("descriptionlabel").text(); }
  QString Text(int number) { return ToQString(designer_->Text(number)); }

  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  int RowOf(const std::string& content) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Content == content) return row;
    return 0;
  }
  int SubsectionRow() {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == ObjectKind::Subsection && Objects()[row].SectionTitle == "[DATA]")
        return row;
    return 0;
  }
  void ClickObject(int row) {
    const CanvasArea area = AreaOf(Objects()[row], designer_->OpenDocument(), designer_->ZoomFactor());
    const QPoint at = Page().ToViewport(QPointF(area.Left + 45, area.Top + 45)).toPoint();
    QTest::mouseClick(Page().viewport(), Qt::LeftButton, Qt::NoModifier, at);
    Settle();
  }
  int GridRow(const QString& caption) {
    const QAbstractItemModel& model = *Grid().model();
    for (int row = 0; row < model.rowCount(); ++row)
      if (model.index(row, 0).data().toString() == caption) return row + 1;
    return 0;
  }
  QString Value(const QString& caption) {
    return Grid().model()->index(GridRow(caption) - 1, 1).data(Qt::EditRole).toString();
  }
  void OpenCell(const char* caption, const char* typed) {
    Grid().setFocus();
    Grid().SetCurrentRow(GridRow(QString::fromLatin1(caption)));
    Key(Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(typed));
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
    Settle();
  }
  void DoubleClickTitle() {
    QTest::mouseDClick(&Title(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 10));
    Settle();
  }

  TempHome home_;
  QtHost host_;
  FontCache fonts_;
  ImageCache images_{{}};
  QtMeasurer measurer_{fonts_};
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<KavEdit01> window_;
};

// Closes message boxes and other dialogs and keeps their texts.
class Boxes : public QObject {
 public:
  Boxes() {
    QObject::connect(&timer_, &QTimer::timeout, this, [this] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      auto* box = qobject_cast<QMessageBox*>(dialog);
      texts << (box != nullptr ? box->text() : dialog->objectName());
      dialog->reject();
    });
    timer_.start(5);
  }
  QStringList texts;

 private:
  QTimer timer_;
};

// --- What is shown
// -----------------------------------------------------------------------------------------------

TEST_F(PropertyPanelTest, StandsBesideThePageWithTheDocumentsSheet) {
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(Title().accessibleName(), Text(kTextSheetDocument));
  EXPECT_EQ(Grid().model()->rowCount(), 33);
  EXPECT_EQ(Value(QStringLiteral("Spacing")),
            ToQString(designer_->OpenDocument().Settings[Setting::Spacing]));
}

TEST_F(PropertyPanelTest, FollowsTheSelection) {
  ClickObject(RowOf("Beta"));
  EXPECT_EQ(Title().accessibleName(), Text(kTextSheetLabel));
  EXPECT_EQ(Value(QStringLiteral("Expression")), QStringLiteral("Beta"));
  ClickObject(RowOf("Alpha"));
  EXPECT_EQ(Value(QStringLiteral("Expression")), QStringLiteral("Alpha"));
  EXPECT_TRUE(Page().hasFocus());
}

TEST_F(PropertyPanelTest, TheLineUnderTheGridExplainsTheCurrentRow) {
  Grid().SetCurrentRow(2);
  EXPECT_EQ(Description(), Text(829));
  ClickObject(RowOf("Alpha"));
  EXPECT_EQ(Description(), Text(855)) << "row 2 of the label";
  Grid().SetCurrentRow(1);
  EXPECT_EQ(Description(), Text(854));
  Grid().SetCurrentRow(15);
  EXPECT_EQ(Description(), Text(1044));
  Grid().SetCurrentRow(16);
  EXPECT_EQ(Description(), Text(1044)) << "a row without a text leaves the line";
}

TEST_F(PropertyPanelTest, EveryControlHasAnAccessibleName) {
  for (const char* name : {"PropGrid1", "bartitle1", "CloseProperties"})
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
  for (const char* name : {"seeall", "see_ebeu", "see_printnoprint"})
    EXPECT_FALSE(Find<QRadioButton>(name).text().isEmpty()) << name;
}

// The docked panel at its first width.
TEST_F(PropertyPanelTest, TitlesAndFiltersAreWholeInEveryLanguage) {
  constexpr int kPanelWidth = 3500 / 15;
  QFont words(QStringLiteral("Arial"));
  words.setPixelSize(13);
  words.setBold(true);
  const QFontMetrics title(words);
  const QFontMetrics radio(Find<QRadioButton>("seeall").fontMetrics());
  for (const char language : {'E', 'S', 'I', 'P'}) {
    const Result<LanguageTexts> texts = LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", language);
    ASSERT_TRUE(texts);
    std::vector<int> titles = {kTextSheetDocument, kTextSheetTextBox};
    for (int number = kTextSheetChart; number <= kTextSheetPicture; ++number)
      titles.push_back(number);
    for (const int number : titles)
      EXPECT_LE(title.horizontalAdvance(ToQString(texts->Text(number))), kPanelWidth - 36)
          << texts->Text(number);
    for (const int number : {kTextFilterAll, kTextFilterEndUser, kTextFilterPrint})
      EXPECT_LE(radio.horizontalAdvance(ToQString(texts->Text(number))), kPanelWidth - 40)
          << texts->Text(number);
  }
}

TEST_F(PropertyPanelTest, TheFiltersOfPanelAndMenuAreOne) {
  EXPECT_TRUE(Find<QRadioButton>("seeall").isChecked());
  Find<QRadioButton>("see_ebeu").click();
  EXPECT_EQ(designer_->Filter(), DisplayFilter::Ebeu);
  EXPECT_TRUE(Find<QAction>("see_ebeu").isChecked());
  Find<QAction>("see_printnoprint").trigger();
  EXPECT_EQ(designer_->Filter(), DisplayFilter::Print);
  EXPECT_TRUE(Find<QRadioButton>("see_printnoprint").isChecked());
  EXPECT_FALSE(Find<QRadioButton>("see_ebeu").isChecked());
}

TEST_F(PropertyPanelTest, ACaptionWithoutRoomIsElidedAndToldByItsTip) {
  auto& button = Find<QRadioButton>("see_printnoprint");
  button.setMinimumWidth(0);
  button.resize(90, button.height());
  EXPECT_EQ(button.toolTip(), button.text());
  button.resize(600, button.height());
  EXPECT_EQ(button.toolTip(), QString());
  EXPECT_GE(button.mapTo(&Panel(), QPoint()).x(), 8);
}

// --- Edits
// -------------------------------------------------------------------------------------------------------

TEST_F(PropertyPanelTest, AnEditIsStoredAndTheRowKeepsTheKeyboard) {
  ClickObject(RowOf("Alpha"));
  OpenCell("Expression", "Gamma");
  Key(Qt::Key_Return);
  EXPECT_NE(RowOf("Gamma"), 0);
  EXPECT_TRUE(Grid().hasFocus());
  EXPECT_EQ(Grid().CurrentRow(), 1);
  EXPECT_EQ(Title().accessibleName(), Text(kTextSheetLabel));
  Key(Qt::Key_Down);
  EXPECT_EQ(Grid().CurrentRow(), 2);
}

TEST_F(PropertyPanelTest, ClickingAnotherObjectStoresTheCellInTheFirst) {
  const int alpha = RowOf("Alpha");
  const int beta = RowOf("Beta");
  ClickObject(alpha);
  OpenCell("Expression", "Gamma");
  ClickObject(beta);
  EXPECT_EQ(Objects()[alpha].Content, "Gamma");
  EXPECT_EQ(Objects()[beta].Content, "Beta");
  EXPECT_EQ(Objects().CurrentObject, beta);
  EXPECT_EQ(Value(QStringLiteral("Expression")), QStringLiteral("Beta"));
  EXPECT_TRUE(Page().hasFocus());
}

TEST_F(PropertyPanelTest, ACellWhoseObjectIsGoneIsClosedWithoutAnEdit) {
  ClickObject(RowOf("Alpha"));
  OpenCell("Expression", "Gamma");
  Objects().CurrentObject = RowOf("Beta");
  designer_->Sheets().Refresh();
  Settle();
  EXPECT_EQ(Value(QStringLiteral("Expression")), QStringLiteral("Beta"));
  EXPECT_TRUE(Grid().hasFocus());
  EXPECT_EQ(RowOf("Gamma"), 0);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PropertyPanelTest, SavingStoresTheOpenCellFirst) {
  ClickObject(RowOf("Alpha"));
  OpenCell("Expression", "Gamma");
  Find<QAction>("savemen").trigger();
  EXPECT_NE(ReadWholeFile(home_.Path("work/a.kev"))->find("Gamma"), std::string::npos);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PropertyPanelTest, ClosingTheWindowAsksAboutTheOpenCell) {
  ClickObject(RowOf("Alpha"));
  OpenCell("Expression", "Gamma");
  const Boxes boxes;
  window_->close();
  EXPECT_EQ(boxes.texts.size(), 1);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_NE(RowOf("Gamma"), 0);
}

TEST_F(PropertyPanelTest, ARefusedValueShowsItsBoxAndTheOldOneAgain) {
  ClickObject(RowOf("Alpha"));
  const Boxes boxes;
  OpenCell("X/Column", "$Col_99");
  Key(Qt::Key_Return);
  EXPECT_EQ(boxes.texts, QStringList(Text(kTextPositionRefused)));
  EXPECT_EQ(Value(QStringLiteral("X/Column")), QStringLiteral("500"));
  EXPECT_EQ(window_->focusWidget(), &Grid());
  EXPECT_EQ(Grid().CurrentRow(), 2);
}

TEST_F(PropertyPanelTest, ARefusalOnTheWayToThePageLeavesNoGesture) {
  ClickObject(RowOf("Alpha"));
  const Boxes boxes;
  OpenCell("X/Column", "$Col_99");
  ClickObject(RowOf("Beta"));
  EXPECT_EQ(boxes.texts.size(), 1);
  EXPECT_FALSE(designer_->Surface().Busy());
  EXPECT_EQ(Objects()[RowOf("Alpha")].XValue, "500");
}

TEST_F(PropertyPanelTest, ACharacterThatCannotBeWrittenIsNamed) {
  ClickObject(RowOf("Alpha"));
  const Boxes boxes;
  OpenCell("Hyperlink", "x");
  qobject_cast<QLineEdit*>(QApplication::focusWidget())->setText(QStringLiteral("\u03A9"));
  Key(Qt::Key_Return);
  ASSERT_EQ(boxes.texts.size(), 1);
  EXPECT_TRUE(boxes.texts.first().contains(QChar(0x03A9)));
  EXPECT_EQ(Value(QStringLiteral("Hyperlink")), QString());
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PropertyPanelTest, AnEditThatHidesItsObjectEndsOnTheDocumentsSheet) {
  Find<QRadioButton>("see_printnoprint").click();
  ClickObject(RowOf("Alpha"));
  OpenCell("Print at runtime", "No");
  Key(Qt::Key_Return);
  EXPECT_EQ(Title().accessibleName(), Text(kTextSheetDocument));
  EXPECT_TRUE(Grid().hasFocus());
}

TEST_F(PropertyPanelTest, DeleteInTheGridLeavesTheObject) {
  const int alpha = RowOf("Alpha");
  ClickObject(alpha);
  Grid().setFocus();
  Key(Qt::Key_Delete);
  Key(Qt::Key_Delete);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Objects()[alpha].Content, "Alpha");
  EXPECT_EQ(Objects()[alpha].Kind, ObjectKind::Label);
}

TEST_F(PropertyPanelTest, TheDesignerKnowsWhenTheGridHasTheKeyboard) {
  ClickObject(RowOf("Alpha"));
  EXPECT_FALSE(designer_->Sheets().HasGridFocus());
  OpenCell("Expression", "Gamma");
  EXPECT_TRUE(designer_->Sheets().HasGridFocus());
  Key(Qt::Key_Return);
  EXPECT_TRUE(designer_->Sheets().HasGridFocus());
  ClickObject(RowOf("Beta"));
  EXPECT_FALSE(designer_->Sheets().HasGridFocus());
}

TEST_F(PropertyPanelTest, ADoubleClickOnARowOpensTheSubsectionsDialog) {
  designer_->Surface().GoToObject(SubsectionRow());
  EXPECT_EQ(Title().accessibleName(), Text(923));
  const Boxes boxes;
  QTest::mouseDClick(Grid().viewport(), Qt::LeftButton, Qt::NoModifier,
                     Grid().visualRect(Grid().model()->index(0, 0)).center());
  EXPECT_EQ(boxes.texts.size(), 1);
}

TEST_F(PropertyPanelTest, ACustomRowOpensTheWizardOfAChart) {
  std::ofstream(home_.Path("work/chart.kev"), std::ios::binary)
      << "KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n{Graph_Height=2000;Graph_Width=3000}\r\n"
         "{Buildgraph=500,100;\\n}\r\n{Spacing=3000;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n";
  ASSERT_TRUE(designer_->OpenTemplate(home_.Path("work/chart.kev")));
  for (int row = 1; row <= Objects().LastScanned(); ++row)
    if (Objects()[row].Kind == ObjectKind::Chart) ClickObject(row);
  ASSERT_EQ(Title().accessibleName(), Text(915));
  const Boxes boxes;
  Grid().setFocus();
  Grid().SetCurrentRow(1);
  Key(Qt::Key_Return);
  EXPECT_EQ(boxes.texts, QStringList(QStringLiteral("Wizard1")));
}

TEST_F(PropertyPanelTest, AnInsertionByTheMenuTakesTheKeyboardToThePage) {
  ClickObject(RowOf("Alpha"));
  Grid().setFocus();
  ASSERT_TRUE(Grid().hasFocus());
  Find<QAction>("insertlabel").trigger();
  Settle();
  EXPECT_TRUE(Page().hasFocus());
}

TEST_F(PropertyPanelTest, TheButtonOfAColourOpensThePicker) {
  ClickObject(RowOf("Alpha"));
  Grid().setFocus();
  Grid().SetCurrentRow(GridRow(QStringLiteral("Font color")));
  const Boxes boxes;
  Key(Qt::Key_F2);
  Key(Qt::Key_F4);
  EXPECT_EQ(boxes.texts, QStringList(QStringLiteral("ShowColors")));
  EXPECT_EQ(Value(QStringLiteral("Font color")), QStringLiteral("0,0,0"));
}

// --- Places
// ------------------------------------------------------------------------------------------------------

TEST_F(PropertyPanelTest, TheCrossClosesThePanelAndTheCommandBringsItBack) {
  Find<QToolButton>("CloseProperties").click();
  Settle();
  EXPECT_EQ(designer_->Options().PropFix, kPanelClosed);
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_FALSE(Find<QWidget>("Picturedivisor").isVisible());
  Find<QAction>("Properties").trigger();
  Settle();
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(designer_->Options().PropFix, kPanelDocked);
}

TEST_F(PropertyPanelTest, ADoubleClickTakesThePanelOffThePageAndBack) {
  ClickObject(RowOf("Alpha"));
  DoubleClickTitle();
  ASSERT_NE(Form(), nullptr);
  EXPECT_TRUE(Form()->isVisible());
  EXPECT_TRUE(Form()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(Panel().window(), Form());
  EXPECT_FALSE(Find<QWidget>("propertyarea").isVisible());
  EXPECT_NE(GridRow(QStringLiteral("Font Strike")), 0);
  DoubleClickTitle();
  EXPECT_FALSE(Form()->isVisible());
  EXPECT_EQ(Panel().window(), window_.get());
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_NE(GridRow(QStringLiteral("Font strike")), 0);
}

TEST_F(PropertyPanelTest, TheFloatingPanelEditsAndShowsEverythingAsWell) {
  DoubleClickTitle();
  Form()->activateWindow();
  ClickObject(RowOf("Alpha"));
  Form()->activateWindow();
  OpenCell("Expression", "Gamma");
  Key(Qt::Key_Return);
  EXPECT_NE(RowOf("Gamma"), 0);
  EXPECT_TRUE(Find<QRadioButton>("seeall").isChecked());
  Find<QRadioButton>("see_ebeu").click();
  EXPECT_TRUE(Find<QAction>("see_ebeu").isChecked());
}

TEST_F(PropertyPanelTest, DraggingTheTitleMovesTheFormAndIsKept) {
  DoubleClickTitle();
  const QPoint before = Form()->pos();
  QTest::mousePress(&Title(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 10));
  QTest::mouseMove(&Title(), QPoint(70, 30));
  QTest::mouseRelease(&Title(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 10));
  Settle();
  EXPECT_EQ(Form()->pos(), before + QPoint(30, 20));
  Form()->resize(260, 333);
  Settle();
  EXPECT_EQ(designer_->Options().PropLeft, Form()->x() * 15);
  EXPECT_EQ(designer_->Options().PropTop, Form()->y() * 15);
  EXPECT_EQ(designer_->Options().PropWidth, 260 * 15);
  EXPECT_EQ(designer_->Options().PropHeight, 333 * 15);
}

TEST_F(PropertyPanelTest, DraggingTheTitleBesideThePageMovesNothing) {
  DoubleClickTitle();
  const QPoint before = Form()->pos();
  DoubleClickTitle();
  QTest::mousePress(&Title(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 10));
  QTest::mouseMove(&Title(), QPoint(140, 60));
  QTest::mouseRelease(&Title(), Qt::LeftButton, Qt::NoModifier, QPoint(140, 60));
  DoubleClickTitle();
  EXPECT_EQ(Form()->pos(), before);
}

TEST_F(PropertyPanelTest, TheFormComesBackWhereItWas) {
  const PanelArea place{600, 750, 4200, 6000};
  FormPROPS form(place, QStringLiteral("Properties"), window_.get());
  form.show();
  Settle();
  EXPECT_EQ(form.pos(), QPoint(40, 50));
  EXPECT_EQ(form.size(), QSize(280, 400));
}

TEST_F(PropertyPanelTest, ClosingTheFormClosesThePanel) {
  DoubleClickTitle();
  Form()->close();
  Settle();
  EXPECT_FALSE(Form()->isVisible());
  EXPECT_EQ(designer_->Options().PropFix, kPanelClosed);
  Find<QAction>("Properties").trigger();
  Settle();
  EXPECT_TRUE(Form()->isVisible());
  EXPECT_EQ(designer_->Options().PropFix, kPanelFloating);
}

TEST_F(PropertyPanelTest, TheWidePanelStaysBesideThePage) {
  designer_->Options().PropFix = kPanelWide;
  designer_->Sheets().Start();
  Settle();
  DoubleClickTitle();
  EXPECT_EQ(Form(), nullptr);
  EXPECT_EQ(designer_->Options().PropFix, kPanelWide);
  EXPECT_TRUE(Panel().isVisible());
}

TEST_F(PropertyPanelTest, TheProgramEndsWhileThePanelFloats) {
  DoubleClickTitle();
  bool ended = false;
  QApplication::setQuitOnLastWindowClosed(true);
  QTimer::singleShot(0, window_.get(), [this] { window_->close(); });
  QTimer late;
  late.setSingleShot(true);
  QObject::connect(&late, &QTimer::timeout, qApp, [] { QCoreApplication::exit(3); });
  late.start(5000);
  ended = QApplication::exec() == 0;
  QApplication::setQuitOnLastWindowClosed(false);
  EXPECT_TRUE(ended);
  EXPECT_EQ(designer_->Options().PropFix, kPanelFloating);
}

}  // namespace
}  // namespace kev
