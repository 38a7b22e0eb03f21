// SPDX-License-Identifier: MIT
#include "platform/qt_host.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <fstream>

#include "platform/app_style.h"
#include "platform/file_dialog.h"
#include "platform/print_qt.h"

namespace kev {
namespace {

// Runs once the box or dialog that the next call opens is on screen.
void WhenModal(std::function<void(QWidget&)> act) {
  QTimer::singleShot(0, qApp, [act] {
    QWidget* modal = QApplication::activeModalWidget();
    ASSERT_NE(modal, nullptr);
    act(*modal);
  });
}

TEST(QtHostMessages, ShowTitleTextDetailAndTheirButtons) {
  QtHost host;
  host.SetButtonCaption(BoxAnswer::Yes, QString::fromUtf8("Sí"));
  QString text, title, yes;
  WhenModal([&](QWidget& modal) {
    auto& box = dynamic_cast<QMessageBox&>(modal);
    text = box.text();
    title = box.windowTitle();
    yes = box.button(QMessageBox::Yes)->text();
    EXPECT_EQ(box.icon(), QMessageBox::Question);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    box.button(QMessageBox::Yes)->click();
  });
  const BoxAnswer answer = host.ShowMessage(
      {"Kev", "Save\r\nFile: ", "/t/<b>ñ</b>.kev", BoxIcon::Question, BoxButtons::YesNoCancel});
  EXPECT_EQ(answer, BoxAnswer::Yes);
  EXPECT_EQ(text, QString::fromUtf8("Save\nFile: /t/<b>ñ</b>.kev"));
  EXPECT_EQ(title, QStringLiteral("Kev"));
  EXPECT_EQ(yes, QString::fromUtf8("Sí"));
}

// In the style of the program, where a rule of the style once cut the text.
TEST(QtHostMessages, ShowTheWholeOfALongText) {
  ApplyStyle(*qApp);
  QtHost host;
  WhenModal([](QWidget& modal) {
    const auto* label = modal.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    ASSERT_NE(label, nullptr);
    EXPECT_TRUE(label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                  : label->width() >= label->sizeHint().width())
        << label->width();
    modal.close();
  });
  host.ShowMessage({"Kev", "The saved template uses columns that will get other names. Organize them all?",
                    "", BoxIcon::Warning, BoxButtons::YesNo});
  qApp->setStyleSheet(QString());
}

BoxAnswer AnswerToEscape(BoxButtons buttons) {
  QtHost host;
  WhenModal([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
  return host.ShowMessage({"", "Text", "", BoxIcon::Question, buttons});
}

TEST(QtHostMessages, EscapeNeverAgrees) {
  EXPECT_EQ(AnswerToEscape(BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(AnswerToEscape(BoxButtons::YesNo), BoxAnswer::No);
  EXPECT_EQ(AnswerToEscape(BoxButtons::YesNoCancel), BoxAnswer::Cancel);
  EXPECT_EQ(AnswerToEscape(BoxButtons::YesNoYesToAll), BoxAnswer::No);
}

TEST(QtHostMessages, EnterTakesNoWhereNoIsTheDefault) {
  QtHost host;
  WhenModal([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Return); });
  EXPECT_EQ(host.ShowMessage({"", "Text", "", BoxIcon::Warning, BoxButtons::YesNo, true}), BoxAnswer::No);
}

TEST(QtHostMessages, AnswerTheRestOfARowOfQuestionsWithOneButton) {
  QtHost host;
  host.SetButtonCaption(BoxAnswer::YesToAll, QStringLiteral("All of them"));
  QString caption;
  WhenModal([&](QWidget& modal) {
    QAbstractButton* all = dynamic_cast<QMessageBox&>(modal).button(QMessageBox::YesToAll);
    caption = all->text();
    all->click();
  });
  EXPECT_EQ(host.ShowMessage({"", "Text", "", BoxIcon::Warning, BoxButtons::YesNoYesToAll, true}),
            BoxAnswer::YesToAll);
  EXPECT_EQ(caption, QStringLiteral("All of them"));
}

TEST(QtHostSignals, CarryUnicode) {
  QtHost host;
  const QSignalSpy status(&host, &QtHost::StatusChanged);
  const QSignalSpy selection(&host, &QtHost::SelectionStatusChanged);
  const QSignalSpy caption(&host, &QtHost::CaptionChanged);
  host.ShowStatus(
      "Pr\xE9"
      "cis ",
      "/t/ж.kev");
  host.ShowSelectionStatus("2 \xF1");
  host.ShowCaption("ж.kev", true);
  EXPECT_EQ(status[0][0].toString(), QString::fromUtf8("Précis /t/ж.kev"));
  EXPECT_EQ(selection[0][0].toString(), QString::fromUtf8("2 ñ"));
  EXPECT_EQ(caption[0][0].toString(), QString::fromUtf8("ж.kev"));
  EXPECT_TRUE(caption[0][1].toBool());
}

class ChooserTest : public testing::Test {
 protected:
  ChooserTest() {
    host.UseNativeDialogs(false);
    std::ofstream(folder.filePath(QStringLiteral("one.kev")).toStdString()) << "x";
  }

  FileChoice Choice() const {
    return {"Save as", folder.path().toStdString(), "one.kev", {{"Templates", "*.kev *.KEV"}}};
  }
  QTemporaryDir folder;
  QtHost host;
};

TEST_F(ChooserTest, ANameWithoutAnEndingGetsTheOneOfTheFilter) {
  WhenModal([](QWidget& modal) { AnswerFileDialog(modal, QString::fromUtf8("dos ñ")); });
  EXPECT_EQ(host.ChooseFileToSave(Choice()), folder.path().toStdString() + "/dos ñ.kev");
}

TEST_F(ChooserTest, TheSuggestedNameStandsInTheDialog) {
  WhenModal([](QWidget& modal) {
    EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QStringLiteral("one.kev"));
    QTest::keyClick(&modal, Qt::Key_Escape);
  });
  EXPECT_EQ(host.ChooseFileToSave(Choice()), std::nullopt);
}

TEST_F(ChooserTest, TheKindOfFileIsOfferedAndTold) {
  FileChoice choice = Choice();
  choice.Filters = {{"Plain", "*.kev"}, {"Encoded", "*.kev"}, {"All", "*"}};
  int kind = 1;
  choice.Filter = &kind;
  QString offered;
  WhenModal([&](QWidget& modal) {
    auto& dialog = dynamic_cast<QFileDialog&>(modal);
    offered = dialog.selectedNameFilter();
    dialog.selectNameFilter(QStringLiteral("Plain (*.kev)"));
    AnswerFileDialog(modal, QStringLiteral("two"));
  });
  EXPECT_EQ(host.ChooseFileToSave(choice), folder.path().toStdString() + "/two.kev");
  EXPECT_EQ(offered, QStringLiteral("Encoded (*.kev)"));
  EXPECT_EQ(kind, 0);
  kind = 2;
  WhenModal([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
  EXPECT_EQ(host.ChooseFileToSave(choice), std::nullopt);
  EXPECT_EQ(kind, 2);
}

TEST_F(ChooserTest, AKindThatWasNeverOfferedLeavesTheOneThatWas) {
  FileChoice choice = Choice();
  choice.Filters = {{"Plain", "*.kev"}, {"Encoded", "*.kev"}};
  int kind = 1;
  choice.Filter = &kind;
  WhenModal([](QWidget& modal) {
    dynamic_cast<QFileDialog&>(modal).setNameFilters({QStringLiteral("Of the desktop (*.kev)")});
    AnswerFileDialog(modal, QStringLiteral("two"));
  });
  EXPECT_EQ(host.ChooseFileToSave(choice), folder.path().toStdString() + "/two.kev");
  EXPECT_EQ(kind, 1);
}

TEST_F(ChooserTest, AnExistingFileIsChosenToOpen) {
  WhenModal([](QWidget& modal) { AnswerFileDialog(modal, QStringLiteral("one.kev")); });
  EXPECT_EQ(host.ChooseFileToOpen(Choice()), folder.path().toStdString() + "/one.kev");
}

}  // namespace
}  // namespace kev
