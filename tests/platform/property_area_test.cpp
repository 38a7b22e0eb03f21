// SPDX-License-Identifier: MIT
#include "platform/forms/property_area.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include "platform/forms/page_frame.h"

namespace kev {
namespace {

class PropertyAreaTest : public testing::Test {
 protected:
  PropertyAreaTest() {
    list_.SetCanvasSize(12000, 12000);
    frame_.resize(800, 400);
    frame_.show();
    QCoreApplication::processEvents();
  }
  void ShowPanel() {
    frame_.Properties().SetContent(new QLabel(QStringLiteral("rows")));
    frame_.Properties().ShowArea(true);
    QCoreApplication::processEvents();
  }
  QWidget& Find(const char* name) { return *frame_.findChild<QWidget*>(QString::fromLatin1(name)); }
  QWidget& Divider() { return Find("Picturedivisor"); }
  QWidget& Line() { return Find("Picturedivisor2"); }

  void Press() { QTest::mousePress(&Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 100)); }
  void MoveBy(int dx) { QTest::mouseMove(&Divider(), QPoint(2 + dx, 100)); }
  void Release(int dx) {
    QTest::mouseRelease(&Divider(), Qt::LeftButton, Qt::NoModifier, QPoint(2 + dx, 100));
    QCoreApplication::processEvents();
  }
  int PanelWidth() { return frame_.Properties().width(); }

  FontCache fonts_;
  ImageCache images_{[](std::string_view) { return std::string(); }};
  DisplayList list_{fonts_, images_};
  // Ends in its frame.
  PageCanvas* canvas_ = new PageCanvas(list_);
  DesignerOptions options_;
  LanguageTexts texts_;
  PageFrame frame_{*canvas_, fonts_, options_, texts_};
};

TEST_F(PropertyAreaTest, IsHiddenUntilItHasContentAndIsShown) {
  EXPECT_TRUE(frame_.Properties().isHidden());
  EXPECT_TRUE(Divider().isHidden());
  const int whole = canvas_->width();
  frame_.Properties().ShowArea(true);
  EXPECT_TRUE(frame_.Properties().isHidden());
  frame_.Properties().SetContent(new QLabel);
  EXPECT_TRUE(frame_.Properties().isHidden());
  frame_.Properties().ShowArea(true);
  EXPECT_FALSE(frame_.Properties().isHidden());
  EXPECT_FALSE(Divider().isHidden());
  EXPECT_EQ(canvas_->width(), whole - PanelWidth() - Divider().width());
  frame_.Properties().ShowArea(false);
  EXPECT_EQ(canvas_->width(), whole);
  EXPECT_TRUE(Divider().isHidden());
}

TEST_F(PropertyAreaTest, HasTheWidthOfTheOptionsAtTheRight) {
  ShowPanel();
  EXPECT_EQ(PanelWidth(), 3500 / 15);
  EXPECT_EQ(frame_.Properties().geometry().right() + 1, frame_.width());
  EXPECT_EQ(Divider().geometry().right() + 1, frame_.Properties().x());
  EXPECT_EQ(canvas_->geometry().right() + 1, Divider().x());
}

TEST_F(PropertyAreaTest, OtherContentTakesThePlaceOfTheFirst) {
  ShowPanel();
  const QPointer<QWidget> first = frame_.Properties().Content();
  auto* second = new QLabel;
  frame_.Properties().SetContent(second);
  EXPECT_TRUE(first.isNull());
  EXPECT_EQ(second->parentWidget(), &frame_.Properties());
  frame_.Properties().SetContent(nullptr);
  EXPECT_TRUE(frame_.Properties().isHidden());
}

TEST_F(PropertyAreaTest, ADragShowsItsLineAndTheReleaseTheWidth) {
  ShowPanel();
  const int before = PanelWidth();
  const int page = canvas_->width();
  EXPECT_TRUE(Line().isHidden());
  Press();
  MoveBy(-60);
  EXPECT_FALSE(Line().isHidden());
  EXPECT_EQ(Line().x(), Divider().x() - 60);
  EXPECT_EQ(Line().height(), frame_.height());
  EXPECT_EQ(PanelWidth(), before);
  EXPECT_EQ(options_.PropFixWidth, 3500);
  Release(-60);
  EXPECT_TRUE(Line().isHidden());
  EXPECT_EQ(PanelWidth(), before + 60);
  EXPECT_EQ(canvas_->width(), page - 60);
  EXPECT_EQ(options_.PropFixWidth, (before + 60) * 15);
}

TEST_F(PropertyAreaTest, PageAndPanelKeepTheirLeast) {
  ShowPanel();
  Press();
  MoveBy(-5000);
  Release(-5000);
  EXPECT_EQ(canvas_->width(), 100);
  Press();
  MoveBy(5000);
  Release(5000);
  EXPECT_EQ(PanelWidth(), 100);
  EXPECT_EQ(options_.PropFixWidth, 1500);
}

TEST_F(PropertyAreaTest, ANarrowWindowKeepsTheStoredWidth) {
  ShowPanel();
  options_.PropFixWidth = 9000;
  frame_.resize(500, 400);
  EXPECT_EQ(canvas_->width(), 100);
  EXPECT_EQ(options_.PropFixWidth, 9000);
  frame_.resize(1200, 400);
  EXPECT_EQ(PanelWidth(), 600);
}

TEST_F(PropertyAreaTest, EscapeGivesTheDragUp) {
  ShowPanel();
  const int before = PanelWidth();
  Press();
  MoveBy(-60);
  QTest::keyClick(&Divider(), Qt::Key_Escape);
  EXPECT_TRUE(Line().isHidden());
  Release(-60);
  EXPECT_EQ(PanelWidth(), before);
  EXPECT_EQ(options_.PropFixWidth, 3500);
}

TEST_F(PropertyAreaTest, TheFrameCanBecomeAsNarrowAsItsPartsAllow) {
  const int without = frame_.minimumSizeHint().width();
  ShowPanel();
  EXPECT_EQ(frame_.minimumSizeHint().width(), without + 100 + Divider().width());
}

}  // namespace
}  // namespace kev
