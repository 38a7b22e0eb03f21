// SPDX-License-Identifier: MIT
// The dialog of a subsection as the menu of the real window opens it.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "base/text_numbers.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/forms/sub_section_propert.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

class SubsectionWindowTest : public testing::Test {
 protected:
  SubsectionWindowTest() {
    designer_ = std::make_unique<Designer>(host_, measurer_, home_.Input({home_.CopyOf("invoice.kev")}));
    EXPECT_TRUE(designer_->Load());
    window_ = std::make_unique<KavEdit01>(*designer_, host_, fonts_, images_);
    window_->show();
    CloseSplash();
  }

  // The splash runs an event loop of its own, so that only a timer reaches it.
  void CloseSplash() {
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, window_.get(), [this] {
      auto* splash = window_->findChild<kavsplash*>();
      if (splash != nullptr && splash->isVisible()) QTest::mouseClick(splash, Qt::LeftButton);
    });
    closer.start(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window_->windowTitle().isEmpty(); }));
  }
  void Trigger(const char* name) { window_->findChild<QAction*>(QString::fromLatin1(name))->trigger(); }
  // Runs once the dialog is open; closes it where `act` leaves it open, so that no test waits for ever.
  void InDialog(const std::function<void(QLineEdit& name)>& act) {
    QTimer::singleShot(0, window_.get(), [this, act] {
      auto* dialog = qobject_cast<SubSectionpropert*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      ++dialogs_;
      act(*dialog->findChild<QLineEdit*>(QStringLiteral("subsect_name")));
      dialog->reject();
    });
  }
  int SubsectionsNamed(std::string_view name) const {
    int count = 0;
    const ObjectTable& objects = designer_->OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row) {
      if (objects[row].Kind == ObjectKind::Subsection && objects[row].SectionName == name) ++count;
    }
    return count;
  }

  TempHome home_;
  QtHost host_;
  FontCache fonts_;
  ImageCache images_{{}};
  QtMeasurer measurer_{fonts_};
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<KavEdit01> window_;
  int dialogs_ = 0;
};

TEST_F(SubsectionWindowTest, TheMenuOpensItAndEnterMakesTheSubsection) {
  InDialog([](QLineEdit& name) {
    QTest::keyClicks(&name, QStringLiteral("Extra"));
    QTest::keyClick(&name, Qt::Key_Return);
  });
  Trigger("newsubsection");
  EXPECT_EQ(dialogs_, 1);
  EXPECT_EQ(SubsectionsNamed("EXTRA"), 1);
  EXPECT_TRUE(designer_->Modified());
}

TEST_F(SubsectionWindowTest, ARefusedNameIsToldAboveTheDialog) {
  QString told;
  InDialog([&told](QLineEdit& name) {
    QTimer::singleShot(0, &name, [&told] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      told = box->text();
      box->accept();
    });
    QTest::keyClicks(&name, QStringLiteral("A:B"));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_TRUE(name.isVisible());
  });
  Trigger("newsubsection");
  EXPECT_EQ(told, ToQString(designer_->Text(kTextSubsectionNameRefused)));
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(SubsectionWindowTest, ABarOpensItWithItsName) {
  int row = 1;
  while (designer_->OpenDocument().Objects[row].SectionName != "ITEMS")
    ++row;
  QString shown;
  InDialog([&shown](QLineEdit& name) { shown = name.text(); });
  designer_->Surface().OpenProperties(row);
  EXPECT_EQ(shown, QStringLiteral("ITEMS"));
}

}  // namespace
}  // namespace kev
