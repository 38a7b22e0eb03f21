// SPDX-License-Identifier: MIT
// The columns in the main window: menu, toolbar and dialogs together.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include "platform/forms/combocol.h"
#include "platform/forms/inscol01.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/forms/set_this_column.h"
#include "platform/page_canvas.h"
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
    OpenColumns();
  }
  void OpenColumns() {
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

// --- With the pointer, in a window that is on the screen
// ---------------------------------------------------------

struct SplashWatch final : QObject {
  bool eventFilter(QObject* watched, QEvent* event) override {
    gone = gone || (event->type() == QEvent::Hide && qobject_cast<kavsplash*>(watched) != nullptr);
    return false;
  }
  bool gone = false;
};

class ShownColumnWindowTest : public ColumnWindowTest {
 protected:
  ShownColumnWindowTest() {
    window->show();
    CloseSplash();
    OpenColumns();
    EXPECT_TRUE(designer.SetZoom("200"));
  }
  // It goes by itself; behind it the program's own template comes.
  void CloseSplash() {
    SplashWatch watch;
    qApp->installEventFilter(&watch);
    EXPECT_TRUE(QTest::qWaitFor([&] { return watch.gone && window->findChild<kavsplash*>() == nullptr; }));
  }
  PageCanvas& Page() { return *window->findChild<PageCanvas*>(QStringLiteral("p1")); }
  QWidget& Rhor() { return *window->findChild<QWidget*>(QStringLiteral("rhor")); }
  const ColumnTable& Columns() { return designer.OpenDocument().Columns; }
  QPointF InView(double x, double y) { return Page().ToViewport(QPointF(x, y)); }
  void Send(QEvent::Type type, const QPointF& at, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, Page().viewport()->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(Page().viewport(), &event);
  }
  void Drag(const QPointF& from, const QPointF& to) {
    Send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    Send(QEvent::MouseMove, from + QPointF(10, 0), Qt::NoButton, Qt::LeftButton);
    Send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    Send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  }
  // By the keyboard, in the menu that a right click opens.
  void ChooseInMenu(const char* command) {
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions())
      if (action->objectName() == QLatin1String(command)) menu->setActiveAction(action);
    ASSERT_NE(menu->activeAction(), nullptr);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
};

TEST_F(ShownColumnWindowTest, ADragThatEndsOnThePageCountsInTwips) {
  Drag(InView(1400, 600), InView(1530, 900));
  EXPECT_EQ(Columns()[2].Position, 800);
  EXPECT_TRUE(designer.Enabled(Command::Undo));
}

TEST_F(ShownColumnWindowTest, ADragThatEndsOverTheRulerCountsOnTheCanvas) {
  Drag(InView(1400, 600), QPointF(InView(1530, 0).x(), -Rhor().height() / 2.0));
  EXPECT_EQ(Columns()[2].Position, 750);
  EXPECT_EQ(Columns()[1].Position, 2400);
}

TEST_F(ShownColumnWindowTest, TheMenuOfTheRulerMakesAColumnWhereItWasClicked) {
  const QPoint at(qRound(InView(3150, 0).x()), 5);
  QTest::mouseClick(&Rhor(), Qt::RightButton, Qt::NoModifier, at);
  ChooseInMenu("insertcolumnhere");
  EXPECT_EQ(Columns()[3].Name, "$Col_03");
  EXPECT_EQ(Columns()[3].Position, 1600);
  EXPECT_EQ(Box().count(), 3);
}

TEST_F(ShownColumnWindowTest, TheMenuOfALineRemovesItsColumn) {
  Send(QEvent::MouseButtonPress, InView(1400, 600), Qt::RightButton, Qt::RightButton);
  Send(QEvent::MouseButtonRelease, InView(1400, 600), Qt::RightButton, Qt::NoButton);
  ChooseInMenu("removecolumn");
  EXPECT_EQ(Columns()[2].Name, "");
  EXPECT_EQ(Columns()[1].Name, "$Col_01");
  EXPECT_TRUE(window->findChild<QWidget*>(QStringLiteral("linecolumn(2)"))->isHidden());
}

TEST_F(ShownColumnWindowTest, ThePointerOverALineShowsItsColumnInTheList) {
  Send(QEvent::MouseMove, InView(1400, 600), Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(Box().currentText(), QStringLiteral("$Col_02 = 700"));
  EXPECT_EQ(Page().viewport()->cursor().shape(), Qt::SizeHorCursor);
}

TEST_F(ShownColumnWindowTest, ATextThatIsTypedIsStoredBeforeTheZoomChanges) {
  ObjectTable& objects = designer.OpenDocument().Objects;
  int label = 1;
  while (objects[label].Kind != ObjectKind::Label)
    ++label;
  objects.CurrentObject = label;
  QTest::keyClick(&Page(), Qt::Key_F2);
  auto* field = window->findChild<QLineEdit*>(QStringLiteral("FieldScreen"));
  ASSERT_NE(field, nullptr);
  ASSERT_TRUE(field->isVisible());
  QTest::keyClicks(field, QStringLiteral("s"));
  EXPECT_TRUE(designer.SetZoom("100"));
  EXPECT_FALSE(field->isVisible());
  EXPECT_FALSE(designer.Surface().Edit().Active());
  EXPECT_EQ(objects[label].Content, "Totals");
}

}  // namespace
}  // namespace kev
