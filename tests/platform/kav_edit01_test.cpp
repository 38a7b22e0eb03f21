// SPDX-License-Identifier: MIT
#include "platform/forms/kav_edit01.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QWheelEvent>
#include <fstream>
#include <new>

#include "app/documentation.h"
#include "base/files.h"
#include "base/text_numbers.h"
#include "platform/file_dialog.h"
#include "platform/forms/kavsplash.h"
#include "platform/forms/page_frame.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/termination.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

// Answers boxes by the name of the button and keeps their texts.
class BoxAnswers : public QObject {
 public:
  explicit BoxAnswers(QMessageBox::StandardButton answer) : answer_(answer) {
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
    timer_.start(5);
  }
  QStringList texts;

 private:
  void Look() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    texts << box->text();
    QAbstractButton* button = box->button(answer_);
    (button != nullptr ? button : box->buttons().constFirst())->click();
  }

  QMessageBox::StandardButton answer_;
  QTimer timer_;
};

class BreakableMeasurer final : public TextMeasurer {
 public:
  explicit BreakableMeasurer(FontCache& fonts) : measurer_(fonts) {}
  bool Broken = false;

  TextExtent Measure(const FontSpec& font, std::string_view text) const override {
    if (Broken) throw std::bad_alloc();
    return measurer_.Measure(font, text);
  }

 private:
  QtMeasurer measurer_;
};

class KavEdit01Test : public testing::Test {
 protected:
  // The whole start up to the idle program.
  void Start(std::vector<std::string> arguments = {}) {
    designer = std::make_unique<Designer>(host, measurer, home.Input(std::move(arguments)));
    host.UseNativeDialogs(false);
    ASSERT_TRUE(designer->Load());
    window = std::make_unique<KavEdit01>(*designer, host, fonts, images);
    window->show();
    CloseSplash();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->windowTitle().isEmpty(); }));
  }

  template <typename Child>
  Child& Find(const char* name) {
    Child* child = window->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  void Trigger(const char* name) { Find<QAction>(name).trigger(); }
  QComboBox& Zoom() { return Find<QComboBox>("combozoom"); }
  PageCanvas& Page() { return Find<PageCanvas>("p1"); }
  QString Status() { return Find<QLabel>("statustext").text(); }

  void TypeZoom(const QString& text) {
    Zoom().lineEdit()->selectAll();
    QTest::keyClicks(Zoom().lineEdit(), text);
    QTest::keyClick(Zoom().lineEdit(), Qt::Key_Return);
  }
  void CtrlWheel(QPoint at, int up) {
    QWheelEvent event(at, Page().viewport()->mapToGlobal(at), {}, {0, up * 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Page().viewport(), &event);
  }
  // The place of the page, in twips, that stands at a point of the screen.
  QPointF OnPage(const QPointF& global) {
    return Page().ToCanvas(Page().viewport()->mapFromGlobal(global)) / designer->ZoomFactor();
  }
  Ruler& RulerNamed(const char* name) { return Find<Ruler>(name); }
  // The splash runs an event loop of its own, so that only a timer reaches it.
  void CloseSplash() {
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, window.get(), [this] {
      auto* splash = window->findChild<kavsplash*>();
      if (splash != nullptr && splash->isVisible()) QTest::mouseClick(splash, Qt::LeftButton);
    });
    closer.start(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->windowTitle().isEmpty(); }));
  }
  // The end of a loop that was never begun would end the loops of later tests.
  void EndInItsLoop() {
    QTimer::singleShot(0, qApp, [this] { window->EndWithoutAsking(); });
    EXPECT_EQ(QApplication::exec(), 0);
  }
  // Types a path into the file dialog that the next call opens.
  static void WhenFileDialog(const std::string& path) {
    QTimer::singleShot(0, qApp, [path] {
      AnswerFileDialog(*QApplication::activeModalWidget(), QString::fromStdString(path));
    });
  }
  static void Drop(KavEdit01& target, const std::string& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &drop);
    QCoreApplication::processEvents();
  }

  TempHome home;
  QtHost host;
  FontCache fonts;
  ImageCache images{{}};
  BreakableMeasurer measurer{fonts};
  std::unique_ptr<Designer> designer;
  std::unique_ptr<KavEdit01> window;
};

TEST_F(KavEdit01Test, StartsWithAFreshDocument) {
  Start();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Noname.kev - Kev Visual Editor"));
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("100%"));
  EXPECT_TRUE(Find<QAction>("seeall").isChecked());
  EXPECT_TRUE(FileExists(home.Path("data/Kev/SN.DAT")));
}

TEST_F(KavEdit01Test, StartsOnTheTemplateOfTheCommandLine) {
  Start({home.CopyOf("letter.kev")});
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
}

TEST_F(KavEdit01Test, AMissingTemplateIsToldInTheStatusLine) {
  Start({home.Path("work/none.kev")});
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Noname.kev - Kev Visual Editor"));
  EXPECT_TRUE(Status().contains(QStringLiteral("none.kev"))) << Status().toStdString();
}

TEST_F(KavEdit01Test, EveryEntryOfTheMenusHasACaptionAndACommand) {
  Start();
  for (const CommandRow& row : CommandRows()) {
    const auto& action = Find<QAction>(std::string(row.name).c_str());
    EXPECT_FALSE(action.text().isEmpty()) << row.name;
    EXPECT_EQ(action.text().endsWith(QStringLiteral(" ...")), row.opensDialog) << row.name;
    EXPECT_EQ(action.shortcut().toString(),
              QString::fromLatin1(row.shortcut.data(), qsizetype(row.shortcut.size())));
  }
}

TEST_F(KavEdit01Test, EveryControlHasANameAndAnAccessibleName) {
  Start();
  for (const char* name : {"menubar", "toolbar1", "p1", "vscrollbar", "hscrollbar", "statusbar",
                           "statusselection", "statustext", "findings", "combozoom", "progresswindow"}) {
    EXPECT_NE(window->findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
  }
  for (const char* name :
       {"p1", "toolbar1", "vscrollbar", "hscrollbar", "findings", "findingslist", "combozoom",
        "findingsbutton", "rhor", "rverint", "Picturedivisor", "propertyarea"}) {
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(KavEdit01Test, ATypedZoomIsApplied) {
  Start();
  TypeZoom(QStringLiteral("133"));
  EXPECT_DOUBLE_EQ(designer->ZoomFactor(), 1.33);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("133%"));
}

TEST_F(KavEdit01Test, AZoomOutsideItsLimitsIsPutBack) {
  Start();
  for (const char* typed : {"9", "801", "abc", "", "-50", "1e9"}) {
    TypeZoom(QString::fromLatin1(typed));
    EXPECT_EQ(Zoom().currentText(), QStringLiteral("100%")) << typed;
    EXPECT_DOUBLE_EQ(designer->ZoomFactor(), 1) << typed;
  }
  TypeZoom(QStringLiteral("10"));
  EXPECT_DOUBLE_EQ(designer->ZoomFactor(), 0.1);
  TypeZoom(QStringLiteral("800"));
  EXPECT_DOUBLE_EQ(designer->ZoomFactor(), 8);
}

TEST_F(KavEdit01Test, TheMiddleOfTheViewStaysOverAZoom) {
  Start({home.CopyOf("invoice.kev")});
  TypeZoom(QStringLiteral("200"));
  Find<QScrollBar>("vscrollbar").setValue(700);
  const QPointF middle = Page().viewport()->mapToGlobal(QRectF(Page().viewport()->rect()).center());
  const QPointF before = OnPage(middle);
  TypeZoom(QStringLiteral("400"));
  const QPointF after = OnPage(middle);
  EXPECT_NEAR(before.x(), after.x(), 15);
  EXPECT_NEAR(before.y(), after.y(), 15);
}

TEST_F(KavEdit01Test, TheWheelWithCtrlZoomsAroundThePointer) {
  Start({home.CopyOf("invoice.kev")});
  TypeZoom(QStringLiteral("180"));
  Find<QScrollBar>("vscrollbar").setValue(600);
  const QPoint pointer(200, 150);
  const QPointF onScreen = Page().viewport()->mapToGlobal(QPointF(pointer));
  const QPointF before = OnPage(onScreen);
  CtrlWheel(pointer, 1);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("200%"));
  const QPointF after = OnPage(onScreen);
  EXPECT_NEAR(before.y(), after.y(), 15);
  CtrlWheel(pointer, -2);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("150%"));
}

TEST_F(KavEdit01Test, ATypedPercentSignIsNoHindrance) {
  Start();
  TypeZoom(QStringLiteral("133%"));
  EXPECT_DOUBLE_EQ(designer->ZoomFactor(), 1.33);
}

TEST_F(KavEdit01Test, KeysWalkTheZoomValues) {
  Start({home.CopyOf("invoice.kev")});
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Find<QScrollBar>("vscrollbar").setValue(300);
  const QPointF middle = Page().viewport()->mapToGlobal(QRectF(Page().viewport()->rect()).center());
  const QPointF before = OnPage(middle);
  QTest::keyClick(&Page(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("120%"));
  EXPECT_NEAR(before.y(), OnPage(middle).y(), 15);
  QTest::keyClick(&Page(), Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("150%"));
  QTest::keyClick(&Page(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("120%"));
  QTest::keyClick(&Page(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("100%"));
}

TEST_F(KavEdit01Test, RulersFollowThePageThatIsOpened) {
  Start();
  const QImage fresh = RulerNamed("rverint").grab().toImage();
  EXPECT_TRUE(designer->OpenTemplate(home.CopyOf("invoice.kev")));
  EXPECT_NE(RulerNamed("rverint").grab().toImage(), fresh);
  const QImage atFullSize = RulerNamed("rhor").grab().toImage();
  TypeZoom(QStringLiteral("200"));
  EXPECT_GT(RulerNamed("rhor").height(), atFullSize.height());
  TypeZoom(QStringLiteral("100"));
  EXPECT_EQ(RulerNamed("rhor").grab().toImage(), atFullSize);
}

TEST_F(KavEdit01Test, TheThirdDoubleClickOnTheRulerComesBackToTwips) {
  Start();
  std::vector<QImage> pictures;
  for (const int mode : {2, 3, 1}) {
    pictures.push_back(RulerNamed("rhor").grab().toImage());
    QTest::mouseDClick(&RulerNamed("rhor"), Qt::LeftButton);
    EXPECT_EQ(designer->Surface().RulerMode(), mode);
  }
  EXPECT_NE(pictures[0], pictures[1]);
  EXPECT_NE(pictures[1], pictures[2]);
  EXPECT_EQ(RulerNamed("rhor").grab().toImage(), pictures[0]);
}

TEST_F(KavEdit01Test, ThePanelsWidthIsKeptForTheNextRun) {
  Start();
  auto& frame = Find<PageFrame>("pageframe");
  frame.Properties().SetContent(new QLabel);
  frame.Properties().ShowArea(true);
  auto& divider = Find<QWidget>("Picturedivisor");
  QTest::mousePress(&divider, Qt::LeftButton, Qt::NoModifier, QPoint(2, 50));
  QTest::mouseRelease(&divider, Qt::LeftButton, Qt::NoModifier, QPoint(2 - 100, 50));
  EXPECT_TRUE(window->close());
  EXPECT_NE(ReadWholeFile(home.Path("data/Kev/LASTRV.DAT"))->find("PROPFIXWIDTH=4995"), std::string::npos);
}

TEST_F(KavEdit01Test, TheZoomMenuAndTheBoxAgree) {
  Start();
  Trigger("zoom150%");
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("150%"));
  EXPECT_DOUBLE_EQ(designer->ZoomFactor(), 1.5);
  TypeZoom(QStringLiteral("80"));
  EXPECT_TRUE(Find<QAction>("zoom80%").isChecked());
  EXPECT_FALSE(Find<QAction>("zoom150%").isChecked());
}

TEST_F(KavEdit01Test, PageFiltersExcludeEachOther) {
  Start();
  Trigger("see_ebeu");
  EXPECT_EQ(designer->Filter(), DisplayFilter::Ebeu);
  EXPECT_FALSE(Find<QAction>("seeall").isChecked());
  Trigger("see_printnoprint");
  EXPECT_EQ(designer->Filter(), DisplayFilter::Print);
  Trigger("seeall");
  EXPECT_EQ(designer->Filter(), DisplayFilter::All);
  EXPECT_FALSE(Find<QAction>("see_printnoprint").isChecked());
}

TEST_F(KavEdit01Test, TheGridChangesThePageAndItsMark) {
  Start();
  const QImage without = Page().viewport()->grab().toImage();
  Trigger("viewdrawgrid");
  EXPECT_TRUE(Find<QAction>("viewdrawgrid").isChecked());
  EXPECT_NE(Page().viewport()->grab().toImage(), without);
  Trigger("viewdrawgrid");
  EXPECT_EQ(Page().viewport()->grab().toImage(), without);
}

TEST_F(KavEdit01Test, ACommandOpensTheChosenTemplate) {
  Start();
  WhenFileDialog(home.CopyOf("letter.kev"));
  Trigger("openmen");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
}

TEST_F(KavEdit01Test, SaveAsWritesUnderTheNewNameAndGoesOnWithIt) {
  Start({home.CopyOf("letter.kev")});
  WhenFileDialog(home.Path("work/copy.kev"));
  Trigger("saveas");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("copy.kev - Kev Visual Editor"));
  EXPECT_TRUE(FileExists(home.Path("work/copy.kev")));
  DeleteFileIfThere(home.Path("work/copy.kev"));
  Trigger("savemen");
  EXPECT_TRUE(FileExists(home.Path("work/copy.kev")));
}

TEST_F(KavEdit01Test, AChangeShowsInTheCaptionAndSavingTakesItAway) {
  Start({home.CopyOf("letter.kev")});
  designer->MarkModified();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor [Modified]"));
  Trigger("savemen");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
}

TEST_F(KavEdit01Test, ClosingWithoutChangesAsksNothingAndWritesTheOptions) {
  Start();
  const BoxAnswers answers(QMessageBox::Cancel);
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(answers.texts.isEmpty());
  EXPECT_TRUE(ReadWholeFile(home.Path("data/Kev/LASTRV.DAT"))->starts_with("# LAST RUN DESIGNER OPTIONS"));
}

TEST_F(KavEdit01Test, CancelKeepsTheWindowOpen) {
  Start({home.CopyOf("letter.kev")});
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::Cancel);
  EXPECT_FALSE(window->close());
  EXPECT_TRUE(window->isVisible());
  ASSERT_EQ(answers.texts.size(), 1);
  EXPECT_TRUE(answers.texts[0].endsWith(QStringLiteral(" letter.kev"))) << answers.texts[0].toStdString();
}

TEST_F(KavEdit01Test, NoClosesWithoutSaving) {
  const std::string copy = home.CopyOf("letter.kev");
  const std::string before = *ReadWholeFile(copy);
  Start({copy});
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::No);
  EXPECT_TRUE(window->close());
  EXPECT_EQ(*ReadWholeFile(copy), before);
}

TEST_F(KavEdit01Test, YesSavesAndCloses) {
  const std::string copy = home.CopyOf("letter.kev");
  Start({copy});
  DeleteFileIfThere(copy);
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::Yes);
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(FileExists(copy));
}

TEST_F(KavEdit01Test, ASaveThatFailsStopsTheClose) {
  const std::string copy = home.CopyOf("letter.kev");
  Start({copy});
  std::filesystem::remove_all(home.Path("work"));
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::Yes);
  EXPECT_FALSE(window->close());
  EXPECT_EQ(answers.texts.size(), 2);
}

TEST_F(KavEdit01Test, EndingTheSessionAsksNothing) {
  Start();
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::Cancel);
  EndInItsLoop();
  EXPECT_TRUE(answers.texts.isEmpty());
  EXPECT_TRUE(window->close());
}

TEST_F(KavEdit01Test, EndingTheSessionKeepsUnsavedWork) {
  Start({home.CopyOf("letter.kev")});
  designer->Surface().PushUndo();
  EndInItsLoop();
  EXPECT_EQ(RecoveryFilesIn(home.Path("temp/Kev/Cache")).size(), 1U);
}

TEST_F(KavEdit01Test, ClosingWithoutSavingDeletesTheRecoveryFile) {
  Start({home.CopyOf("letter.kev")});
  designer->Surface().PushUndo();
  EXPECT_FALSE(std::filesystem::is_empty(home.Path("temp/Kev/Cache")));
  const BoxAnswers answers(QMessageBox::No);
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(std::filesystem::is_empty(home.Path("temp/Kev/Cache")));
}

TEST_F(KavEdit01Test, EndingTheSessionShowsNoMessageWhenTheOptionsCannotBeWritten) {
  Start();
  DeleteFileIfThere(home.Path("data/Kev/LASTRV.DAT"));
  std::filesystem::create_directory(home.Path("data/Kev/LASTRV.DAT"));
  const BoxAnswers answers(QMessageBox::Ok);
  testing::internal::CaptureStderr();
  EndInItsLoop();
  EXPECT_NE(testing::internal::GetCapturedStderr().find("LASTRV.DAT"), std::string::npos);
  EXPECT_TRUE(answers.texts.isEmpty());
}

TEST_F(KavEdit01Test, EndingTheSessionLeavesAnOpenQuestionAndAllThatWouldFollow) {
  Start();
  int asked = 0;
  QTimer::singleShot(0, qApp, [&] {
    QTimer::singleShot(0, qApp, [&] { window->EndWithoutAsking(); });
    for (; asked < 2; ++asked)
      host.ShowMessage({"", "Text", "", BoxIcon::Question, BoxButtons::YesNo});
  });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(asked, 2);
}

TEST_F(KavEdit01Test, TheDesktopsQuitAsksNothing) {
  Start();
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::Cancel);
  const TerminationWatch watch([this] { window->EndWithoutAsking(); });
  QTimer::singleShot(0, qApp, [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(answers.texts.isEmpty());
}

TEST_F(KavEdit01Test, ACloseWhileABoxIsOpenRunsAfterwards) {
  Start();
  QTimer::singleShot(0, qApp, [this] {
    window->close();
    EXPECT_TRUE(window->isVisible());
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  host.ShowMessage({"", "Text", ""});
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
}

TEST_F(KavEdit01Test, ACloseWhileAFileDialogIsOpenRunsAfterwards) {
  Start();
  QTimer::singleShot(0, qApp, [this] {
    window->close();
    EXPECT_TRUE(window->isVisible());
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  Trigger("openmen");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
}

TEST_F(KavEdit01Test, ASecondCloseDuringTheQuestionAsksNoSecondTime) {
  Start();
  designer->MarkModified();
  QTimer::singleShot(0, qApp, [this] { window->close(); });
  const BoxAnswers answers(QMessageBox::Cancel);
  EXPECT_FALSE(window->close());
  QTest::qWait(30);
  EXPECT_EQ(answers.texts.size(), 1);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(KavEdit01Test, WorkThatFailsInTheWindowEndsInOneMessage) {
  // Where a code of the page is made, the page is painted once more, which fails by itself.
  home.InstallProgram();
  Start({home.CopyOf("letter.kev")});
  const BoxAnswers answers(QMessageBox::Ok);
  int told = 0;
  const auto expectOneMore = [&](const char* what) { EXPECT_EQ(answers.texts.size(), ++told) << what; };
  measurer.Broken = true;
  Trigger("see_printnoprint");
  expectOneMore("filter");
  EXPECT_TRUE(Find<QAction>("seeall").isChecked());
  EXPECT_EQ(designer->Filter(), DisplayFilter::All);
  Trigger("viewdrawgrid");
  expectOneMore("grid");
  EXPECT_FALSE(Find<QAction>("viewdrawgrid").isChecked());
  TypeZoom(QStringLiteral("150"));
  expectOneMore("typed zoom");
  Trigger("zoom50%");
  expectOneMore("chosen zoom");
  EXPECT_TRUE(Find<QAction>("zoom100%").isChecked());
  CtrlWheel({200, 150}, 1);
  expectOneMore("wheel");
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("100%"));
  Drop(*window, home.CopyOf("invoice.kev"));
  expectOneMore("drop");
}

TEST_F(KavEdit01Test, TheLanguageInForceIsNoChoice) {
  Start();
  const BoxAnswers answers(QMessageBox::Ok);
  Trigger("languageE");
  EXPECT_TRUE(answers.texts.isEmpty());
  EXPECT_TRUE(Find<QAction>("languageE").isChecked());
  EXPECT_FALSE(FileExists(home.Path("data/Kev/activelang")));
}

TEST_F(KavEdit01Test, AStoredLanguageIsMarkedAndMayBeTakenBack) {
  Start();
  const BoxAnswers answers(QMessageBox::Ok);
  Trigger("languageS");
  EXPECT_TRUE(Find<QAction>("languageS").isChecked());
  Trigger("languageE");
  EXPECT_TRUE(Find<QAction>("languageE").isChecked());
  EXPECT_EQ(*ReadWholeFile(home.Path("data/Kev/activelang")), "ACTIVELANG=E\r\n");
  EXPECT_EQ(answers.texts.size(), 2);
}

TEST_F(KavEdit01Test, ALanguageThatCannotBeStoredLeavesTheMark) {
  Start();
  std::filesystem::create_directory(home.Path("data/Kev/activelang"));
  const BoxAnswers answers(QMessageBox::Ok);
  Trigger("languageS");
  EXPECT_EQ(answers.texts.size(), 1);
  EXPECT_TRUE(Find<QAction>("languageE").isChecked());
  EXPECT_FALSE(Find<QAction>("languageS").isChecked());
}

TEST_F(KavEdit01Test, DocumentationThatNothingShowsIsToldAsSuch) {
  home.InstallProgram();
  std::filesystem::create_directory(home.Path("program/docs"));
  std::ofstream(home.Path("program/docs/README.md")) << "text";
  Start();
  const BoxAnswers answers(QMessageBox::Ok);
  window->Run(Command::Documentation);
  ASSERT_EQ(answers.texts.size(), 1);
  EXPECT_TRUE(answers.texts[0].startsWith(ToQString(designer->Text(kTextDocumentationNotOpened))));
  EXPECT_TRUE(answers.texts[0].endsWith(QStringLiteral("program/docs/README.md")));
}

TEST_F(KavEdit01Test, TheDocumentsLieBesideTheProgram) {
  const std::optional<std::string> documents = InstalledDocumentation(KEV_PROGRAM_DIR);
  ASSERT_TRUE(documents);
  EXPECT_TRUE(documents->ends_with("docs/README.md"));
}

TEST_F(KavEdit01Test, APanelThatWasClosedStaysClosedAtTheNextStart) {
  std::ofstream(home.Path("data/Kev/LASTRV.DAT")) << "SHOWWELCOME=0\r\nPROPFIX=-1\r\n";
  Start();
  EXPECT_FALSE(Find<QWidget>("FrameProps").isVisible());
  window->Run(Command::Properties);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Find<QWidget>("FrameProps").isVisible(); }));
}

TEST_F(KavEdit01Test, TheWheelRoundsNoTypedZoom) {
  Start();
  TypeZoom(QStringLiteral("333.3333333"));
  CtrlWheel({200, 150}, 1);
  EXPECT_EQ(designer->ZoomFactor() * 100, 333.3333333);
  EXPECT_EQ(Zoom().currentText(), QStringLiteral("333.3333333%"));
}

TEST_F(KavEdit01Test, ADroppedTemplateOpens) {
  Start();
  Drop(*window, home.CopyOf("letter.kev"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
}

TEST_F(KavEdit01Test, ADropAsksToSaveFirst) {
  Start();
  designer->MarkModified();
  const BoxAnswers answers(QMessageBox::Cancel);
  Drop(*window, home.CopyOf("letter.kev"));
  EXPECT_EQ(answers.texts.size(), 1);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Noname.kev - Kev Visual Editor [Modified]"));
}

TEST_F(KavEdit01Test, ADroppedDataFileOpensTheAssistant) {
  Start();
  std::string shown;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, window.get(), [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog->objectName() != QLatin1String("NewTemplate")) return;
    auto* create = dialog->findChild<QPushButton*>(QStringLiteral("CreateTemplate"));
    if (!create->isEnabled()) return;
    shown = ToNative(dialog->findChild<QLineEdit*>(QStringLiteral("Text1"))->text());
    create->click();
  });
  look.start(10);
  const std::string path = home.CopyOf("invoice.kex");
  Drop(*window, path);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return !shown.empty() && QApplication::activeModalWidget() == nullptr; }));
  EXPECT_EQ(shown, path);
  EXPECT_EQ(designer->SampleDataPath(), path);
  EXPECT_EQ(designer->DocumentPath(), "");
}

TEST_F(KavEdit01Test, OtherFilesAreNoDrop) {
  Start();
  Drop(*window, std::string(KEV_EXAMPLES_DIR) + "/logo.png");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Noname.kev - Kev Visual Editor"));
}

TEST_F(KavEdit01Test, FindingsAreListedWithTheirLines) {
  const std::string path = home.Path("work/odd.kev");
  std::ofstream(path)
      << "SPACING=200\r\n[HEADER]\r\n{Nonsense=1;}Title{\\n}\r\n[DATA]\r\n[FOOTER]\r\nLost text\r\n";
  Start({path});
  ASSERT_FALSE(designer->Findings().empty());
  EXPECT_TRUE(Find<QToolButton>("findingsbutton").isVisible());
  Find<QToolButton>("findingsbutton").click();
  EXPECT_TRUE(Find<QDockWidget>("findings").isVisible());
  EXPECT_TRUE(Find<QAction>("viewfindings").isChecked());
  EXPECT_EQ(Find<QTreeWidget>("findingslist").topLevelItemCount(), int(designer->Findings().size()));
  Trigger("viewfindings");
  EXPECT_FALSE(Find<QDockWidget>("findings").isVisible());
  EXPECT_FALSE(Find<QAction>("viewfindings").isChecked());
}

// A page that is longer than the window, with something wrong at its top, at its end and in its head.
constexpr const char* kOddTemplate =
    "Nonsense=1\r\n[HEADER]\r\n{Other=1;}{100;}First{\\n}\r\n[DATA]\r\n{Spacing=12000;\\n}\r\n"
    "{$Gone;}Last{\\n}\r\n[FOOTER]\r\n";

TEST_F(KavEdit01Test, AFindingLeadsToItsObject) {
  const std::string path = home.Path("work/odd.kev");
  std::ofstream(path) << kOddTemplate;
  Start({path});
  Find<QToolButton>("findingsbutton").click();
  auto& list = Find<QTreeWidget>("findingslist");
  ASSERT_EQ(list.topLevelItemCount(), 3);
  EXPECT_TRUE(list.topLevelItem(0)->text(0).endsWith(QStringLiteral(" 1:1")));
  EXPECT_TRUE(list.topLevelItem(2)->text(0).endsWith(QStringLiteral(" 6:9")));
  const ObjectTable& objects = designer->OpenDocument().Objects;
  const auto click = [&](int n) {
    const QRect item = list.visualItemRect(list.topLevelItem(n));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, item.center());
  };
  auto& scroll = Find<QScrollBar>("vscrollbar");
  EXPECT_EQ(scroll.value(), 0);
  click(2);
  EXPECT_EQ(objects[objects.CurrentObject].Content, "Last");
  const int below = scroll.value();
  EXPECT_GT(below, 0);
  // What belongs to no object leaves the selection as it is.
  click(0);
  EXPECT_EQ(objects[objects.CurrentObject].Content, "Last");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(objects[objects.CurrentObject].Content, "First");
  EXPECT_LT(scroll.value(), below);
}

TEST_F(KavEdit01Test, TheListOfFindingsFollowsTheDocument) {
  const std::string path = home.Path("work/odd.kev");
  std::ofstream(path) << kOddTemplate;
  Start({path});
  auto& list = Find<QTreeWidget>("findingslist");
  EXPECT_EQ(list.topLevelItemCount(), 3);
  EXPECT_TRUE(designer->Save());
  // The file has lost its unknown keys; the column is still unknown.
  ASSERT_EQ(list.topLevelItemCount(), 1);
  EXPECT_EQ(list.topLevelItem(0)->text(2), QStringLiteral("$Gone"));
  designer->NewTemplate();
  EXPECT_EQ(list.topLevelItemCount(), 0);
  EXPECT_FALSE(Find<QToolButton>("findingsbutton").isVisible());
}

TEST_F(KavEdit01Test, AFileThatIsNoTemplateIsRefusedAndTheOpenOneStays) {
  Start({home.CopyOf("letter.kev")});
  const std::string path = home.Path("work/no.kev");
  std::ofstream(path) << "just text\n";
  const BoxAnswers answers(QMessageBox::Ok);
  Drop(*window, path);
  EXPECT_EQ(answers.texts.size(), 1);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
}

// --- The tools

TEST_F(KavEdit01Test, AToolButtonStaysDownUntilTheToolIsGivenUp) {
  Start();
  QToolButton& box = Find<QToolButton>("ImgButton8");
  QToolButton& label = Find<QToolButton>("ImgButton6");
  QTest::mouseClick(&box, Qt::LeftButton);
  EXPECT_TRUE(box.isChecked());
  EXPECT_EQ(designer->Surface().Pointer().PendingTool, "BOX");
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_FALSE(box.isChecked());
  EXPECT_TRUE(label.isChecked());
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_FALSE(label.isChecked());
  EXPECT_EQ(designer->Surface().Pointer().PendingTool, "");
  QTest::mouseClick(&box, Qt::LeftButton);
  QTest::keyClick(&Page(), Qt::Key_Escape);
  EXPECT_FALSE(box.isChecked());
}

TEST_F(KavEdit01Test, TheZoomBoxStandsInTheFirstBar) {
  Start();
  EXPECT_EQ(Zoom().parentWidget()->objectName(), QStringLiteral("toolbar1"));
  EXPECT_EQ(Find<QToolButton>("Imgbutton1").parentWidget(), Zoom().parentWidget());
  EXPECT_EQ(Find<QToolButton>("ImgButton6").parentWidget()->objectName(), QStringLiteral("toolbar2"));
}

}  // namespace
}  // namespace kev
