// SPDX-License-Identifier: MIT
#include "platform/forms/fastopen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>

#include "app/recent_files.h"
#include "base/text_numbers.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

class FastopenTest : public testing::Test {
 protected:
  FastopenTest() {
    EXPECT_TRUE(designer.Load());
    for (const char* name : {"first.kev", "second.kev"})
      test::WriteBytes(home.Path("work/") + name, "x");
    // The picture of the first page is red.
    QImage red(60, 85, QImage::Format_RGB32);
    red.fill(Qt::red);
    EXPECT_TRUE(
        red.save(QString::fromStdString(*ThumbnailPath(designer.Folders(), Path("first.kev"))), "BMP"));
  }
  std::string Path(const char* name) const { return home.Path("work/") + name; }
  void Open(std::vector<const char*> names = {"first.kev", "second.kev"}) {
    std::string lines;
    for (const char* name : names)
      lines += Path(name) + "\r\n";
    test::WriteBytes(home.Path("data/Kev/temp/lastfiles"), lines);
    designer.RefreshRecentMenu();
    run.emplace(designer);
    form = std::make_unique<Fastopen>(*run, designer.Texts(), QStringLiteral(KEV_PROGRAM_DIR "/Pbms/"));
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  template <typename Child>
  Child& Find(const char* name) {
    Child* child = form->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  QListWidget& List() { return Find<QListWidget>("recentlist"); }
  QLabel& Picture() { return Find<QLabel>("Picc"); }
  QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
  QPoint MiddleOf(int row) { return List().visualItemRect(List().item(row)).center(); }
  void ClickRow(int row) { QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(row)); }
  bool ShowsRed() {
    const QPixmap shown = Picture().pixmap(Qt::ReturnByValue);
    return !shown.isNull() && shown.toImage().pixelColor(shown.rect().center()) == QColor(Qt::red);
  }
  // What was chosen runs, as behind the form.
  std::string OpenedTitle() {
    run->Finish();
    return designer.DocumentTitle();
  }

  TempHome home;
  test::ScriptedHost host;
  FontCache fonts;
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::optional<WelcomeRun> run;
  std::unique_ptr<Fastopen> form;
};

TEST_F(FastopenTest, EveryControlHasItsCaptionAndAName) {
  Open();
  EXPECT_EQ(form->windowTitle(), ToQString(designer.Text(kTextWelcomeDialog)));
  for (const auto& [name, text] :
       {std::pair("openbutt", kTextWelcomeOpen), std::pair("prevbutt", kTextWelcomePreview),
        std::pair("newtemplate", kTextWelcomeNew), std::pair("opentemplate", kTextWelcomeOpenOther)}) {
    EXPECT_EQ(Button(name).text().remove(QLatin1Char('&')), ToQString(designer.Text(text)));
    EXPECT_EQ(Button(name).accessibleName(), ToQString(designer.Text(text)));
  }
  EXPECT_EQ(Find<QCheckBox>("Check1").text().remove(QLatin1Char('&')),
            ToQString(designer.Text(kTextWelcomeNotAgain)));
  EXPECT_FALSE(List().accessibleName().isEmpty());
  EXPECT_FALSE(Picture().accessibleName().isEmpty());
}

TEST_F(FastopenTest, ListsTheFilesWithTheirPaths) {
  Open();
  ASSERT_EQ(List().count(), 2);
  EXPECT_EQ(List().item(0)->text(), QString::fromStdString(Path("first.kev")));
  EXPECT_EQ(List().item(1)->toolTip(), QString::fromStdString(Path("second.kev")));
}

TEST_F(FastopenTest, AClickChoosesAndTheButtonOpens) {
  Open();
  EXPECT_TRUE(Button("openbutt").isEnabled());
  EXPECT_TRUE(Button("prevbutt").isEnabled());
  ClickRow(1);
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(Button("openbutt").isEnabled());
  EXPECT_FALSE(Button("prevbutt").isEnabled());
  QTest::mouseClick(&Button("openbutt"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(run->Chosen(), 1);
}

TEST_F(FastopenTest, AClickOnlyChoosesWhereADesktopOpensByOne) {
  const auto putBack = qScopeGuard([before = qApp->styleSheet()] { qApp->setStyleSheet(before); });
  qApp->setStyleSheet(QStringLiteral("QAbstractItemView { activate-on-singleclick: 1; }"));
  Open();
  ClickRow(1);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(run->Chosen(), 1);
}

TEST_F(FastopenTest, ADoubleClickOpens) {
  test::WriteBytes(Path("second.kev"), "[HEADER]\r\n[DATA]\r\n[FOOTER]\r\n");
  Open();
  ClickRow(1);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(1));
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(OpenedTitle(), "second.kev");
}

TEST_F(FastopenTest, EnterOpensTheNewestAndTheArrowsChooseAnother) {
  for (const char* name : {"first.kev", "second.kev"})
    test::WriteBytes(Path(name), "[HEADER]\r\n[DATA]\r\n[FOOTER]\r\n");
  Open();
  EXPECT_TRUE(List().hasFocus());
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(OpenedTitle(), "first.kev");
  Open();
  QTest::keyClick(&List(), Qt::Key_Down);
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_EQ(OpenedTitle(), "second.kev");
}

TEST_F(FastopenTest, EscapeClosesAndNothingRuns) {
  Open();
  ClickRow(0);
  QTest::keyClick(&List(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Rejected);
  EXPECT_EQ(OpenedTitle(), "Noname.kev");
}

TEST_F(FastopenTest, ThePictureFollowsThePointerAndComesBackToTheChosenFile) {
  Open();
  EXPECT_TRUE(ShowsRed());
  ClickRow(1);
  EXPECT_EQ(Picture().text(), ToQString(designer.Text(kTextWelcomeNoPicture)));
  QTest::mouseMove(List().viewport(), MiddleOf(0));
  EXPECT_TRUE(QTest::qWaitFor([this] { return ShowsRed(); }));
  EXPECT_EQ(run->Chosen(), 1);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(List().viewport(), &leave);
  EXPECT_FALSE(ShowsRed());
}

TEST_F(FastopenTest, ThePreviewIsShownByTheViewer) {
  Open();
  ClickRow(0);
  EXPECT_TRUE(ShowsRed());
  QTest::mouseClick(&Button("prevbutt"), Qt::LeftButton);
  EXPECT_TRUE(form->isVisible());
  ASSERT_EQ(host.Programs.size(), 1U);
  EXPECT_EQ(host.Programs[0].Start.Arguments,
            std::vector<std::string>{*ThumbnailPath(designer.Folders(), Path("first.kev"))});
}

TEST_F(FastopenTest, TheFixedEntriesCloseTheForm) {
  host.FilesToOpen = {std::nullopt};
  for (const char* name : {"newtemplate", "opentemplate"}) {
    Open();
    QTest::mouseClick(&Button(name), Qt::LeftButton);
    EXPECT_FALSE(form->isVisible()) << name;
    run->Finish();
  }
  EXPECT_EQ(host.Choices.size(), 1U);
}

TEST_F(FastopenTest, TheTickIsStored) {
  designer.Options().ShowWelcome = 1;
  Open();
  EXPECT_FALSE(Find<QCheckBox>("Check1").isChecked());
  QTest::keyClick(&Find<QCheckBox>("Check1"), Qt::Key_Space);
  EXPECT_EQ(designer.Options().ShowWelcome, 0);
  Open();
  EXPECT_TRUE(Find<QCheckBox>("Check1").isChecked());
}

TEST_F(FastopenTest, WithoutFilesItSaysSo) {
  Open({});
  ASSERT_EQ(List().count(), 1);
  EXPECT_EQ(List().item(0)->text(), ToQString(designer.Text(kTextWelcomeNoRecent)));
  EXPECT_TRUE(Button("newtemplate").hasFocus());
  ClickRow(0);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(0));
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(run->Chosen(), -1);
  EXPECT_FALSE(Button("openbutt").isEnabled());
}

TEST_F(FastopenTest, TheBarsAreDrawn) {
  Open();
  const QImage head = Find<QWidget>("welcomehead").grab().toImage();
  // The band, and something white of the logo on it.
  EXPECT_GT(head.pixelColor(head.width() - 5, 10).blue(), 150);
  bool hasWhite = false;
  for (int x = 0; x < 240; ++x)
    hasWhite |= head.pixelColor(x, head.height() / 2).lightness() > 240;
  EXPECT_TRUE(hasWhite);
}

}  // namespace
}  // namespace kev
