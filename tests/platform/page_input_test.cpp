// SPDX-License-Identifier: MIT
// The mouse and the keys on the page of the main window, down to what becomes of the document.
#include "platform/page_input.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <cmath>

#include "platform/forms/field_screen.h"
#include "platform/forms/kav_edit01.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"

namespace kev {
namespace {

class PageInputTest : public testing::Test {
 protected:
  PageInputTest() {
    EXPECT_TRUE(designer.Load());
    window = std::make_unique<KavEdit01>(designer, host, fonts, images);
    std::string data = "{500;}Alpha{\\n}\r\n";
    for (int line = 0; line < 11; ++line)
      data += "{\\n}\r\n";
    EXPECT_TRUE(designer.OpenFresh("KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n" + data +
                                   "[FOOTER]\r\n{Spacing=400;\\n}\r\n"));
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Content == "Alpha") label = row;
    EXPECT_NE(label, 0);
  }

  ObjectTable& Objects() { return designer.OpenDocument().Objects; }
  DesignSurface& Surface() { return designer.Surface(); }
  PageCanvas& Page() { return *window->findChild<PageCanvas*>(QStringLiteral("p1")); }
  FieldScreen& Field() { return *window->findChild<FieldScreen*>(QStringLiteral("FieldScreen")); }
  // The pixel of the viewport at twips from the corner of the row.
  QPoint PixelAt(int row, double x, double y) {
    const CanvasArea area = AreaOf(Objects()[row], designer.OpenDocument(), designer.ZoomFactor());
    return Page().ToViewport(QPointF(area.Left + x, area.Top + y)).toPoint();
  }
  void Press(QPoint at) { QTest::mousePress(Page().viewport(), Qt::LeftButton, Qt::NoModifier, at); }
  void MoveHeld(QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, Page().viewport()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(Page().viewport(), &move);
  }
  void Release(QPoint at) { QTest::mouseRelease(Page().viewport(), Qt::LeftButton, Qt::NoModifier, at); }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    MoveHeld((from + to) / 2);
    MoveHeld(to);
    Release(to);
  }
  int AddBox() {
    const int row = Objects().TakeFreeRow();
    ObjectRecord& box = Objects()[row];
    box.Kind = ObjectKind::Box;
    box.XValue = "1500";
    box.AbsoluteY = Objects()[label].AbsoluteY + 600;
    box.Width = 3000;
    box.Height = 1500;
    box.Align = "L";
    box.LineWidth = 1;
    box.Handles = "11111111";
    box.MayMoveVertically = box.MayMoveHorizontally = box.MayResize = kTrue;
    Objects().CurrentObject = row;
    Surface().FullRepaint();
    return row;
  }

  TempHome home;
  QtHost host;
  FontCache fonts;
  ImageCache images{{}};
  QtMeasurer measurer{fonts};
  Designer designer{host, measurer, home.Input({})};
  std::unique_ptr<KavEdit01> window;
  int label = 0;
};

TEST_F(PageInputTest, AnObjectIsDraggedByTheMouse) {
  const QPoint from = PixelAt(label, 60, 60);
  Drag(from, from + QPoint(20, 10));
  EXPECT_EQ(Objects()[label].XValue, "800");
  EXPECT_EQ(Surface().Undo().UndoIndex(), 1);
  EXPECT_FALSE(Surface().Busy());
  EXPECT_EQ(Objects().CurrentObject, label);
  // Now by its overlay.
  const QPoint again = PixelAt(label, 60, 60);
  Drag(again, again - QPoint(40, 0));
  EXPECT_EQ(Objects()[label].XValue, "200");
  EXPECT_EQ(Surface().Undo().UndoIndex(), 2);
}

TEST_F(PageInputTest, AnotherWindowGivesTheDragUp) {
  const QPoint from = PixelAt(label, 60, 60);
  Press(from);
  MoveHeld(from + QPoint(20, 10));
  EXPECT_TRUE(Surface().Pointer().ObjectDrag);
  QEvent away(QEvent::WindowDeactivate);
  QCoreApplication::sendEvent(&Page(), &away);
  EXPECT_FALSE(Surface().Busy());
  Release(from + QPoint(20, 10));
  EXPECT_EQ(Objects()[label].XValue, "500");
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
}

TEST_F(PageInputTest, EscapeGivesTheDragUp) {
  const QPoint from = PixelAt(label, 60, 60);
  Press(from);
  MoveHeld(from + QPoint(20, 10));
  QTest::keyClick(&Page(), Qt::Key_Escape);
  EXPECT_FALSE(Surface().Busy());
  Release(from + QPoint(20, 10));
  EXPECT_EQ(Objects()[label].XValue, "500");
}

TEST_F(PageInputTest, AHandleThatOnlyMarksLetsThePointerThroughToTheSideOfTheBox) {
  const int box = AddBox();
  const QPoint from = PixelAt(box, 1500, -12);
  Drag(from, from + QPoint(20, 0));
  EXPECT_EQ(Objects()[box].XValue, "1800");
  EXPECT_EQ(Objects()[box].Width, 3000);
}

TEST_F(PageInputTest, AHandleThatActsSizesAndKeepsItsShapeAwayFromIt) {
  const int box = AddBox();
  const QPoint from = PixelAt(box, 3050, 750);
  Press(from);
  MoveHeld(from + QPoint(20, 0));
  MoveHeld(from + QPoint(20, 30));
  EXPECT_EQ(Page().viewport()->cursor().shape(), Qt::SizeHorCursor);
  Release(from + QPoint(20, 30));
  EXPECT_EQ(Objects()[box].Width, 3300);
  EXPECT_EQ(Objects()[box].Height, 1500);
}

TEST_F(PageInputTest, ThePlaceOfThePointerIsInWholeUnits) {
  EXPECT_TRUE(designer.SetZoom("75%"));
  designer.OpenDocument().Settings[Setting::LM] = "567";
  Surface().Redraw();
  QTest::mouseClick(Page().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(301, 203));
  const CanvasPoint at = Surface().Pointer().LastPoint();
  EXPECT_EQ(at.X, std::round(at.X));
  EXPECT_EQ(at.Y, std::round(at.Y));
}

TEST_F(PageInputTest, TheKeyThatOpensTheTextBoxIsTypedIntoIt) {
  QTest::mouseClick(Page().viewport(), Qt::LeftButton, Qt::NoModifier, PixelAt(label, 60, 60));
  ASSERT_EQ(Objects().CurrentObject, label);
  QTest::keyClick(&Page(), Qt::Key_X, Qt::NoModifier);
  EXPECT_FALSE(Field().isHidden());
  EXPECT_EQ(Field().text(), QStringLiteral("Alphax"));
  QTest::keyClicks(&Field(), QStringLiteral("yz"));
  EXPECT_EQ(Field().text(), QStringLiteral("Alphaxyz"));
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_TRUE(Field().isHidden());
  EXPECT_EQ(Objects()[label].Content, "Alphaxyz");
  EXPECT_EQ(Surface().Undo().UndoIndex(), 1);
}

TEST_F(PageInputTest, EscapeInTheTextBoxBringsTheOldTextBack) {
  QTest::mouseClick(Page().viewport(), Qt::LeftButton, Qt::NoModifier, PixelAt(label, 60, 60));
  QTest::keyClick(&Page(), Qt::Key_F2);
  EXPECT_EQ(Field().text(), QStringLiteral("Alpha"));
  QTest::keyClicks(&Field(), QStringLiteral("yz"));
  QTest::keyClick(&Field(), Qt::Key_Escape);
  EXPECT_TRUE(Field().isHidden());
  EXPECT_EQ(Objects()[label].Content, "Alpha");
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
}

TEST_F(PageInputTest, ADoubleClickBeginsNoGesture) {
  const QPoint at = PixelAt(label, 60, 60);
  QTest::mouseClick(Page().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  QTest::mouseDClick(Page().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  MoveHeld(at + QPoint(30, 0));
  EXPECT_FALSE(Surface().Busy());
  EXPECT_EQ(Objects()[label].XValue, "500");
  EXPECT_EQ(Objects().CurrentObject, label);
}

TEST_F(PageInputTest, ACharacterWithoutACodeOnlyMattersWhereItWouldBeTyped) {
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(0x0416)));
  QCoreApplication::sendEvent(&Page(), &key);  // a box would never return
  EXPECT_FALSE(Surface().Edit().Active());
}

TEST_F(PageInputTest, TheKeyThatOpensTheTextBoxWorksInIt) {
  Surface().GoToObject(label);
  QTest::keyClick(Page().viewport(), Qt::Key_Backspace);
  EXPECT_EQ(Field().text(), QStringLiteral("Alph"));
  QTest::keyClick(&Field(), Qt::Key_Escape);
  QTest::keyClick(Page().viewport(), Qt::Key_Home);
  ASSERT_FALSE(Field().isHidden());
  EXPECT_EQ(Field().cursorPosition(), 0);
  EXPECT_EQ(Field().text(), QStringLiteral("Alpha"));
}

}  // namespace
}  // namespace kev
