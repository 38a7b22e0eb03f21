// SPDX-License-Identifier: MIT
#include "platform/forms/new_template.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "base/text_numbers.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

class NewTemplateTest : public testing::Test {
 protected:
  NewTemplateTest() { EXPECT_TRUE(designer.Load()); }

  void Open(const std::string& path = {}) {
    run.emplace(designer, path);
    dialog = std::make_unique<NewTemplate>(*run, designer.Texts());
    dialog->show();
    dialog->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  std::string Made(const std::string& name, const std::string& bytes) {
    test::WriteBytes(home.Path("work/" + name), bytes);
    return home.Path("work/" + name);
  }
  // The dialog with a file of many pieces, each of which takes a while.
  void OpenSlow() {
    std::string bytes = "TEMPLATE=a\r\n";
    for (int line = 0; line < 400000; ++line)
      bytes += "|ITEMS|12|bolt|\r\n";
    const std::string path = Made("large.kex", bytes);
    Open();
    run->TypePath(path);
    run->OnProgress = [show = run->OnProgress] {
      QTest::qSleep(20);
      show();
    };
    Choose("usekex");
  }
  template <typename Child>
  Child& Find(const char* name) {
    Child* child = dialog->findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *child;
  }
  QLineEdit& Path() { return Find<QLineEdit>("Text1"); }
  QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
  QString Status() { return Find<QLabel>("StatusLabel").text(); }
  void Click(const char* button) { QTest::mouseClick(&Button(button), Qt::LeftButton); }
  void Choose(const char* option) {
    auto& button = Find<QRadioButton>(option);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(12, button.height() / 2));
  }
  QString Text(int number) { return ToQString(designer.Text(number)); }

  TempHome home;
  test::ScriptedHost host;
  FontCache fonts;
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::optional<NewTemplateRun> run;
  std::unique_ptr<NewTemplate> dialog;
};

TEST_F(NewTemplateTest, BeginsWithAnEmptyTemplate) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("New template"));
  EXPECT_TRUE(Find<QRadioButton>("usenothing").isChecked());
  EXPECT_TRUE(Button("CreateTemplate").isEnabled());
  for (const char* button : {"Command1", "EditKEX", "ReloadKEX"})
    EXPECT_FALSE(Button(button).isEnabled()) << button;
  EXPECT_FALSE(Path().isEnabled());
  EXPECT_FALSE(Button("Command3").isVisible());
}

TEST_F(NewTemplateTest, EveryControlHasANameForThoseWhoDoNotSeeIt) {
  Open();
  for (const QWidget* control : dialog->findChildren<QWidget*>()) {
    if (control->objectName().isEmpty() || control->objectName().startsWith(QLatin1String("qt_"))) continue;
    if (control->objectName() == QLatin1String("StatusLabel")) continue;
    EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
  }
}

TEST_F(NewTemplateTest, ChosenFileIsCheckedAndMadeATemplate) {
  host.FilesToOpen.push_back(Made("data.kex", "TEMPLATE=a\r\n|ORDERS|1|\r\n"));
  Open();
  Choose("usekex");
  EXPECT_TRUE(Path().isEnabled());
  EXPECT_FALSE(Button("CreateTemplate").isEnabled());
  Click("Command1");
  EXPECT_EQ(ToNative(Path().text()), home.Path("work/data.kex"));
  EXPECT_TRUE(Status().startsWith(Text(kTextAssistantGood))) << Status().toStdString();
  EXPECT_TRUE(Status().endsWith(QStringLiteral(" 1 - 0 - 2"))) << Status().toStdString();
  EXPECT_EQ(Find<QProgressBar>("Progress1").value(), 1000);
  Click("CreateTemplate");
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(designer.DocumentTitle(), "Noname.kev");
}

TEST_F(NewTemplateTest, TypedPathIsCheckedByEnterAndMadeBySecondEnter) {
  const std::string path = Made("data.ked", "TEMPLATE=a\r\n@a=1\r\n");
  Open();
  Choose("useked");
  QTest::keyClicks(&Path(), FromNative(path));
  EXPECT_EQ(Status(), QString());
  EXPECT_FALSE(Button("CreateTemplate").isEnabled());
  QTest::keyClick(&Path(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Button("CreateTemplate").isEnabled(); }));
  EXPECT_TRUE(dialog->isVisible());
  QTest::keyClick(&Path(), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(NewTemplateTest, BadFileIsToldAndCanBeEdited) {
  Open(Made("data.kex", "TEMPLATE=a\r\nabc\r\n"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Status().isEmpty(); }));
  EXPECT_EQ(Status(), Text(kTextAssistantBad));
  EXPECT_EQ(host.Messages.size(), 1U);
  EXPECT_TRUE(Find<QRadioButton>("usekex").isChecked());
  EXPECT_FALSE(Button("CreateTemplate").isEnabled());
  Click("EditKEX");
  EXPECT_EQ(host.Programs.size(), 1U);
  Made("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  Click("ReloadKEX");
  EXPECT_TRUE(Button("CreateTemplate").isEnabled());
}

TEST_F(NewTemplateTest, RefusedTemplateLeavesTheDialogOpen) {
  const std::string path = Made("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  Open(path);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Button("CreateTemplate").isEnabled(); }));
  designer.MarkModified();
  host.Answers = {BoxAnswer::Cancel};
  Click("CreateTemplate");
  EXPECT_TRUE(dialog->isVisible());
  Click("Command2");
  EXPECT_FALSE(dialog->isVisible());
}

// Presses behind the event that is under way, while the file is read.
template <typename Press>
void WhileChecking(NewTemplateRun& run, Press press) {
  auto* timer = new QTimer(QCoreApplication::instance());
  QObject::connect(timer, &QTimer::timeout, timer, [timer, &run, press] {
    if (!run.State().Checking) return;
    timer->deleteLater();
    press();
  });
  timer->start(10);
}

TEST_F(NewTemplateTest, LongCheckIsStoppedByItsButtonAndNothingElseActs) {
  OpenSlow();
  WhileChecking(*run, [this] {
    QTest::mouseClick(&Button("Command2"), Qt::LeftButton);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(run->State().Checking);
    EXPECT_TRUE(Button("Command3").isVisible());
    QTest::mouseClick(&Button("Command3"), Qt::LeftButton);
  });
  Click("ReloadKEX");
  EXPECT_EQ(Status(), Text(kTextCheckStopped));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(Button("CreateTemplate").isEnabled());
  EXPECT_FALSE(Button("Command3").isVisible());
}

TEST_F(NewTemplateTest, EscapeStopsALongCheckAndTheNextOneClosesTheDialog) {
  OpenSlow();
  WhileChecking(*run, [this] { QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape); });
  Click("ReloadKEX");
  EXPECT_EQ(Status(), Text(kTextCheckStopped));
  EXPECT_TRUE(dialog->isVisible());
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

}  // namespace
}  // namespace kev
