// SPDX-License-Identifier: MIT
// The columns in the main window: menu, toolbar and dialogs together.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "platform/forms/combocol.h"
#include "platform/forms/inscol01.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/set_this_column.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"

namespace kev {
namespace {

class ColumnWindowTest : public testing::Test {
 protected:
  ColumnWindowTest() {
    EXPECT_TRUE(designer.Load());
    window = std::make_unique<KavEdit01>(designer, host, fonts, images);
    EXPECT_TRUE(designer.OpenFresh(
        "KEXVER=4\r\n$Col_01=2400\r\n$Col_02=700\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n"
        "[DATA]\r\n{100;}Total\r\n{Spacing=400;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n"));
  }
  Combocol& Box() { return *window->findChild<Combocol*>(QStringLiteral("Combocol")); }
  // Runs in the dialog that the next command opens, which then closes.
  template <typename Dialog>
  void InDialog(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, qApp, [act] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
      dialog->close();
    });
  }

  TempHome home;
  QtHost host;
  FontCache fonts;
  ImageCache images{{}};
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::unique_ptr<KavEdit01> window;
};

TEST_F(ColumnWindowTest, TheToolbarListsTheColumnsOfTheDocument) {
  EXPECT_TRUE(Box().isEnabled());
  ASSERT_EQ(Box().count(), 2);
  EXPECT_EQ(Box().itemText(1), QStringLiteral("$Col_02 = 700"));
  EXPECT_FALSE(Box().accessibleName().isEmpty());
  designer.NewTemplate();
  EXPECT_FALSE(Box().isEnabled());
}

TEST_F(ColumnWindowTest, AChosenColumnGoesToTheCurrentObject) {
  ObjectTable& objects = designer.OpenDocument().Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (objects[row].Kind == ObjectKind::Label) objects.CurrentObject = row;
  ASSERT_NE(objects.CurrentObject, 0);
  const int label = objects.CurrentObject;
  QTest::keyClick(&Box(), Qt::Key_Down);
  EXPECT_EQ(objects[label].XValue, "$Col_01");
  EXPECT_EQ(Box().currentText(), QStringLiteral("$Col_01 = 2400"));
}

TEST_F(ColumnWindowTest, TheMenuOpensTheColumnsDialog) {
  bool opened = false;
  InDialog<inscol01>([&](inscol01& dialog) {
    opened = true;
    auto& position = *dialog.findChild<QLineEdit*>(QStringLiteral("colposition"));
    QTest::keyClicks(&position, QStringLiteral("900"));
    QTest::keyClick(&position, Qt::Key_Return);
    EXPECT_EQ(Box().count(), 3);
  });
  window->findChild<QAction*>(QStringLiteral("inscol"))->trigger();
  EXPECT_TRUE(opened);
  EXPECT_EQ(designer.OpenDocument().Columns[3].Position, 900);
}

TEST_F(ColumnWindowTest, TheLinesMenuOpensTheDialogOfItsColumn) {
  designer.Surface().Pointer().MenuAt.Slot = 2;
  QString name;
  InDialog<SetThisColumn>(
      [&](SetThisColumn& dialog) { name = dialog.findChild<QLineEdit*>(QStringLiteral("Text2"))->text(); });
  window->Run(Command::SetColumn);
  EXPECT_EQ(name, QStringLiteral("$Col_02"));
}

}  // namespace
}  // namespace kev
