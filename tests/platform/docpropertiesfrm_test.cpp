// SPDX-License-Identifier: MIT
#include "platform/forms/docpropertiesfrm.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "app/designer.h"
#include "base/text_numbers.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

class DocPropertiesTest : public testing::Test {
 protected:
  DocPropertiesTest() {
    EXPECT_TRUE(designer.Load());
    test::WriteBytes(
        home.Path("work/a.kev"),
        "FILEFORMAT=2\r\nEBEU=Y\r\nEBEUBY=Mu\xF1oz\r\nReport_Title=<b>Invoice</b>\r\nKEXVER=4\r\n"
        "[HEADER]\r\n{100;}A{\\n}\r\n[DATA]\r\n{100;}B{\\n}\r\n[FOOTER]\r\n");
    EXPECT_TRUE(designer.OpenTemplate(home.Path("work/a.kev")));
    run.emplace(designer);
    form = std::make_unique<docpropertiesfrm>(*run, designer.Texts());
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
  QString Fact(const char* name) { return Find<QLabel>(name).text(); }
  QLineEdit& Who() { return Find<QLineEdit>("ebeuby"); }
  const std::string& Setting(enum Setting id) { return designer.OpenDocument().Settings[id]; }

  TempHome home;
  test::ScriptedHost host;
  FontCache fonts;
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::optional<DocumentPropertiesRun> run;
  std::unique_ptr<docpropertiesfrm> form;
};

TEST_F(DocPropertiesTest, ShowsTheFacts) {
  EXPECT_EQ(form->windowTitle(), ToQString(designer.Text(kTextFactsDialog)));
  EXPECT_EQ(Fact("Report_title_lbl"), QStringLiteral("<b>Invoice</b>"));
  EXPECT_EQ(Fact("FileNameLbl"), QString::fromStdString(home.Path("work/a.kev")));
  EXPECT_EQ(Fact("objectslbl"), QStringLiteral("2"));
  EXPECT_EQ(Fact("subsectionslbl"), QStringLiteral("0"));
  EXPECT_EQ(Fact("FileFormat"), QStringLiteral("2 (Encoded template)"));
  EXPECT_EQ(Find<QComboBox>("EditableYESNO").currentText(), QStringLiteral("Y"));
  EXPECT_EQ(Who().text(), QString::fromUtf8("Mu\xC3\xB1oz"));
  for (const char* name : {"Report_title_lbl", "FileNameLbl", "objectslbl", "subsectionslbl", "FileFormat",
                           "EditableYESNO", "ebeuby", "Command1", "Command2"})
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
}

TEST_F(DocPropertiesTest, TheFirstButtonStoresAndCloses) {
  QTest::keyClick(&Find<QComboBox>("EditableYESNO"), Qt::Key_N);
  Who().setText(QString::fromUtf8("G\xC3\xB3mez"));
  QTest::mouseClick(&Find<QPushButton>("Command1"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Setting(Setting::EBEU), "N");
  EXPECT_EQ(Setting(Setting::EBEUBY), "G\xF3mez");
  EXPECT_TRUE(designer.Modified());
}

TEST_F(DocPropertiesTest, TheSecondButtonAndEscapeStoreNothing) {
  QTest::keyClicks(&Who(), QStringLiteral("x"));
  QTest::mouseClick(&Find<QPushButton>("Command2"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  form->show();
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Setting(Setting::EBEUBY), "Mu\xF1oz");
  EXPECT_FALSE(designer.Modified());
}

TEST_F(DocPropertiesTest, ACharacterThatTheTemplateCannotHoldIsTold) {
  Who().setText(QString::fromUtf8("\xE2\x98\x83"));
  QTest::mouseClick(&Find<QPushButton>("Command1"), Qt::LeftButton);
  EXPECT_TRUE(form->isVisible());
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_EQ(host.Messages[0].Text, designer.Text(kTextCharacterNotInPage) + " ");
  EXPECT_EQ(Setting(Setting::EBEUBY), "Mu\xF1oz");
}

}  // namespace
}  // namespace kev
