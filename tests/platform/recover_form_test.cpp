// SPDX-License-Identifier: MIT
#include "platform/forms/recover_form.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFrame>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "app/designer.h"
#include "base/text_numbers.h"
#include "platform/file_dialog.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

const char kFirst[] = "Recovered_090530_my_own_report.kev";
const char kSecond[] = "Recovered_101500_b.kev";

class RecoverFormTest : public testing::Test {
 protected:
  RecoverFormTest() {
    for (const char* name : {kFirst, kSecond})
      test::WriteBytes(home_.Path("temp/Kev/Cache/") + name,
                       "KEXVER=4\r\n[HEADER]\r\n[DATA]\r\n{100;}Text{\\n}\r\n[FOOTER]\r\n");
    texts_ = *LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", 'E');
    dialog_ = ListRecovered(home_.Path("temp/Kev/Cache"));
  }

  void Show() {
    form_ = std::make_unique<Recover_form>(dialog_, host_, texts_);
    form_->show();
  }
  template <typename Child>
  Child& Find(const char* name) {
    Child* child = form_->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  QTreeWidget& List() { return Find<QTreeWidget>("File1"); }
  bool ActionsShown() {
    return Find<QFrame>("recoverframe").isVisible() && Find<QFrame>("deleteframe").isVisible();
  }
  void Choose(int index) { List().setCurrentItem(List().topLevelItem(index)); }
  void Click(const char* name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }

  TempHome home_;
  test::ScriptedHost host_;
  LanguageTexts texts_;
  RecoverDialog dialog_;
  std::unique_ptr<Recover_form> form_;
};

TEST_F(RecoverFormTest, EveryControlHasItsCaptionAndAName) {
  Show();
  EXPECT_EQ(form_->windowTitle(), ToQString(texts_.Text(kTextRecoverDialog)));
  for (const auto& [name, text] :
       {std::pair("recover", kTextRecoverOne), std::pair("delete", kTextRecoverDelete),
        std::pair("delete_all", kTextRecoverDeleteAll),
        std::pair("continue_without", kTextRecoverContinue)}) {
    EXPECT_EQ(Find<QPushButton>(name).text(), ToQString(texts_.Text(text)));
    EXPECT_FALSE(Find<QPushButton>(name).accessibleName().isEmpty()) << name;
  }
  EXPECT_FALSE(List().accessibleName().isEmpty());
}

TEST_F(RecoverFormTest, ListsTheDocumentsWithTheirFilesInTheTip) {
  Show();
  ASSERT_EQ(List().topLevelItemCount(), 2);
  EXPECT_EQ(List().topLevelItem(0)->text(0), QStringLiteral("my_own_report.kev"));
  EXPECT_FALSE(List().topLevelItem(0)->text(1).isEmpty());
  EXPECT_EQ(List().topLevelItem(1)->toolTip(0), QString::fromLatin1(kSecond));
}

TEST_F(RecoverFormTest, ASelectionShowsTheTwoFramesOfActions) {
  Show();
  EXPECT_FALSE(Find<QFrame>("recoverframe").isVisible());
  EXPECT_FALSE(Find<QFrame>("deleteframe").isVisible());
  Choose(0);
  EXPECT_TRUE(ActionsShown());
  List().clearSelection();
  EXPECT_FALSE(ActionsShown());
}

TEST_F(RecoverFormTest, TheButtonRecovers) {
  Show();
  Choose(1);
  Click("recover");
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(form_->result(), QDialog::Accepted);
  EXPECT_TRUE(dialog_.Recovering);
  EXPECT_EQ(dialog_.DocumentTitle, "b.kev");
}

TEST_F(RecoverFormTest, EnterInTheListRecovers) {
  Show();
  QTest::keyClick(&List(), Qt::Key_Down);
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_TRUE(dialog_.Recovering);
}

TEST_F(RecoverFormTest, ADoubleClickInTheListRecovers) {
  Show();
  const QPoint place = List().visualItemRect(List().topLevelItem(1)).center();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(dialog_.DocumentTitle, "b.kev");
}

TEST_F(RecoverFormTest, EscapeAndTheButtonGoOnWithout) {
  Show();
  Choose(0);
  QTest::keyClick(&List(), Qt::Key_Escape);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_FALSE(dialog_.Recovering);
  Show();
  Click("continue_without");
  EXPECT_FALSE(form_->isVisible());
  EXPECT_FALSE(dialog_.Recovering);
}

TEST_F(RecoverFormTest, DeleteTakesTheFileFromTheListAndHidesTheActions) {
  Show();
  Choose(0);
  Click("delete");
  EXPECT_TRUE(form_->isVisible());
  EXPECT_TRUE(host_.Messages.empty());
  ASSERT_EQ(List().topLevelItemCount(), 1);
  EXPECT_EQ(List().topLevelItem(0)->text(0), QStringLiteral("b.kev"));
  EXPECT_FALSE(ActionsShown());
}

TEST_F(RecoverFormTest, DeleteAllAsksFirst) {
  Show();
  Choose(0);
  host_.Answers = {BoxAnswer::No, BoxAnswer::Yes};
  Click("delete_all");
  EXPECT_EQ(List().topLevelItemCount(), 2);
  EXPECT_TRUE(ActionsShown());
  Click("delete_all");
  EXPECT_EQ(List().topLevelItemCount(), 0);
  EXPECT_FALSE(ActionsShown());
  EXPECT_FALSE(Find<QPushButton>("delete_all").isEnabled());
  EXPECT_EQ(host_.Messages.size(), 2U);
}

// The whole road in the real window: splash, form, save dialog, page.
TEST_F(RecoverFormTest, TheStartOffersAndOpensAtTheChosenPlace) {
  QtHost host;
  host.UseNativeDialogs(false);
  FontCache fonts;
  ImageCache images{{}};
  const QtMeasurer measurer(fonts);
  Designer designer(host, measurer, home_.Input({}));
  ASSERT_TRUE(designer.Load());
  KavEdit01 window(designer, host, fonts, images);
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, &window, [&] {
    QWidget* open = QApplication::activeModalWidget();
    if (auto* splash = qobject_cast<kavsplash*>(open)) {
      QTest::mouseClick(splash, Qt::LeftButton);
    } else if (auto* form = qobject_cast<Recover_form*>(open)) {
      auto* list = form->findChild<QTreeWidget*>(QStringLiteral("File1"));
      list->setCurrentItem(list->topLevelItem(0));
      QTest::keyClick(list, Qt::Key_Return);
    } else if (open != nullptr && open->isVisible()) {
      user.stop();
      AnswerFileDialog(*open, QString::fromStdString(home_.Path("work/saved.kev")));
    }
  });
  user.start(5);
  window.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !window.windowTitle().isEmpty(); }));
  EXPECT_EQ(window.windowTitle(), QStringLiteral("saved.kev - Kev Visual Editor"));
  EXPECT_FALSE(std::filesystem::exists(home_.Path("temp/Kev/Cache/") + kFirst));
  EXPECT_TRUE(std::filesystem::exists(home_.Path("temp/Kev/Cache/") + kSecond));
}

}  // namespace
}  // namespace kev
