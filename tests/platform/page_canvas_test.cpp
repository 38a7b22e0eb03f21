// SPDX-License-Identifier: MIT
#include "platform/page_canvas.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace kev {
namespace {

constexpr QRgb kRed = 0xFFFF0000;

class PageCanvasTest : public testing::Test {
 protected:
  PageCanvasTest() : canvas_(list_) {
    list_.SetCanvasSize(30000, 60000);
    list_.SetScaleLeft(-300);
    list_.DrawRectColour(0, 0, 150, 150, 0xFF0000, true);
    list_.DrawRectColour(3000, 45000, 4500, 46500, 0xFF0000, true);
    canvas_.resize(400, 300);
    canvas_.show();
    canvas_.ShowList();
    QCoreApplication::processEvents();
  }

  QRgb Pixel(const QPointF& canvasPoint) {
    return canvas_.viewport()->grab().toImage().pixel(canvas_.ToViewport(canvasPoint).toPoint());
  }
  void Wheel(int delta, Qt::KeyboardModifiers modifiers) {
    QWheelEvent event(QPointF(50, 60), canvas_.viewport()->mapToGlobal(QPointF(50, 60)), {}, {0, delta},
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(canvas_.viewport(), &event);
  }

  FontCache fonts_;
  ImageCache images_{[](std::string_view) { return std::string(); }};
  DisplayList list_{fonts_, images_};
  PageCanvas canvas_;
};

TEST_F(PageCanvasTest, IsTheObjectP1) {
  EXPECT_EQ(canvas_.objectName(), u"p1");
}

TEST_F(PageCanvasTest, ShowsThePageWithADeskAround) {
  EXPECT_EQ(Pixel({75, 75}), kRed);
  EXPECT_EQ(Pixel({600, 600}), 0xFFFFFFFF);
  EXPECT_EQ(Pixel({-150, 600}), 0xFFFFFFFF);
  EXPECT_NE(Pixel({-450, 600}), 0xFFFFFFFF);
}

class PaintCount final : public QObject {
 public:
  explicit PaintCount(QObject& widget) { widget.installEventFilter(this); }
  int Count() const { return count_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count_ += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }

 private:
  int count_ = 0;
};

TEST_F(PageCanvasTest, WhatIsShownAndHiddenAboveThePagePaintsNoScrollBar) {
  auto* overlay = new QLabel(canvas_.viewport());
  canvas_.PlaceOverlay(overlay, {0, 0, 1500, 1500});
  const auto show = [overlay](bool shown) {
    overlay->setVisible(shown);
    QCoreApplication::processEvents();
  };
  // Whatever else the window has to paint is painted by then.
  show(true);
  show(false);
  const PaintCount page(*canvas_.viewport()), bar(*canvas_.verticalScrollBar());
  show(true);
  show(false);
  EXPECT_GT(page.Count(), 0);
  EXPECT_EQ(bar.Count(), 0);
}

TEST_F(PageCanvasTest, ScrollingShowsWhatLiesFartherDown) {
  canvas_.EnsureVisible({3000, 45000, 1500, 1500});
  QCoreApplication::processEvents();
  EXPECT_TRUE(canvas_.VisibleCanvas().contains(QRectF(3000, 45000, 1500, 1500)));
  EXPECT_EQ(Pixel({3750, 45750}), kRed);
  EXPECT_EQ(Pixel({2900, 45750}), 0xFFFFFFFF);
}

TEST_F(PageCanvasTest, PointsGoBothWays) {
  canvas_.verticalScrollBar()->setValue(500);
  const QPointF point(1234, 9876);
  EXPECT_EQ(canvas_.ToCanvas(canvas_.ToViewport(point)), point);
}

TEST_F(PageCanvasTest, ScrollToKeepsAPlaceUnderThePointer) {
  canvas_.ScrollTo({15000, 30000}, {100, 120});
  EXPECT_LT((canvas_.ToViewport({15000, 30000}) - QPointF(100, 120)).manhattanLength(), 2);
}

TEST_F(PageCanvasTest, PageThatFitsHasNoScrollBars) {
  list_.SetCanvasSize(1500, 1500);
  canvas_.verticalScrollBar()->setValue(300);
  canvas_.ShowList();
  EXPECT_EQ(canvas_.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(canvas_.horizontalScrollBar()->maximum(), 0);
}

TEST_F(PageCanvasTest, PageThatIsTallerOrWiderScrollsSomewhatBeyondItsEnd) {
  EXPECT_EQ(canvas_.verticalScrollBar()->maximum(), 4134 - canvas_.viewport()->height());
  EXPECT_EQ(canvas_.horizontalScrollBar()->maximum(), 2134 - canvas_.viewport()->width());
  // One that the view just cuts off shows its end too.
  list_.SetCanvasSize(1500, canvas_.viewport()->height() * 15);
  canvas_.ShowList();
  canvas_.EnsureVisible(list_.Canvas());
  canvas_.verticalScrollBar()->setValue(canvas_.verticalScrollBar()->maximum());
  EXPECT_LT(canvas_.ToViewport(list_.Canvas().bottomLeft()).y(), canvas_.viewport()->height());
}

TEST_F(PageCanvasTest, OverlaysEndBeforeTheirCanvasDoes) {
  auto canvas = std::make_unique<PageCanvas>(list_);
  auto* overlay = new QLabel(canvas->viewport());
  canvas->PlaceOverlay(overlay, {0, 0, 150, 150});
  const QObject* owner = canvas.get();
  bool wholeThen = false;
  QObject::connect(overlay, &QObject::destroyed,
                   [&wholeThen, owner] { wholeThen = owner->inherits("kev::PageCanvas"); });
  canvas.reset();
  EXPECT_TRUE(wholeThen);
}

TEST_F(PageCanvasTest, OverlaysMoveWithThePage) {
  QLabel overlay(canvas_.viewport());
  canvas_.PlaceOverlay(&overlay, {1500, 3000, 600, 300});
  const QPoint before = overlay.pos();
  EXPECT_EQ(overlay.size(), QSize(40, 20));
  EXPECT_EQ(before, canvas_.ToViewport({1500, 3000}).toPoint());
  canvas_.verticalScrollBar()->setValue(70);
  EXPECT_EQ(overlay.pos(), before - QPoint(0, 70));
  EXPECT_EQ(canvas_.OverlayArea(&overlay), QRectF(1500, 3000, 600, 300));
}

TEST_F(PageCanvasTest, OverlayThatIsGoneIsForgotten) {
  auto overlay = std::make_unique<QLabel>(canvas_.viewport());
  canvas_.PlaceOverlay(overlay.get(), {0, 0, 150, 150});
  overlay.reset();
  canvas_.verticalScrollBar()->setValue(70);
  canvas_.ShowList();
}

TEST_F(PageCanvasTest, PointerIsToldInCanvasUnits) {
  std::vector<PagePointer> told;
  QObject::connect(&canvas_, &PageCanvas::Pointer, [&](const PagePointer& event) { told.push_back(event); });
  const QPoint at = canvas_.ToViewport({600, 900}).toPoint();
  QTest::mousePress(canvas_.viewport(), Qt::LeftButton, Qt::ShiftModifier, at);
  QTest::mouseRelease(canvas_.viewport(), Qt::LeftButton, Qt::NoModifier, at);
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0].action, PagePointer::Action::Press);
  EXPECT_EQ(told[0].canvas, QPointF(600, 900));
  EXPECT_TRUE(told[0].modifiers.testFlag(Qt::ShiftModifier));
  EXPECT_EQ(told[1].action, PagePointer::Action::Release);
  EXPECT_EQ(told[1].buttons, Qt::NoButton);
}

TEST_F(PageCanvasTest, WheelScrollsAndWithControlAsksForAZoom) {
  int asked = 0;
  QObject::connect(&canvas_, &PageCanvas::ZoomRequested, [&](int steps, const QPointF&) { asked += steps; });
  Wheel(-120, Qt::NoModifier);
  EXPECT_GT(canvas_.verticalScrollBar()->value(), 0);
  EXPECT_EQ(asked, 0);
  Wheel(-60, Qt::ControlModifier);
  EXPECT_EQ(asked, 0);
  Wheel(-60, Qt::ControlModifier);
  EXPECT_EQ(asked, -1);
  Wheel(240, Qt::ControlModifier);
  EXPECT_EQ(asked, 1);
}

TEST_F(PageCanvasTest, WheelWithShiftScrollsSideways) {
  Wheel(-120, Qt::ShiftModifier);
  const int once = canvas_.horizontalScrollBar()->value();
  EXPECT_GT(once, 0);
  EXPECT_LT(once, canvas_.viewport()->width() / 2);
  EXPECT_EQ(canvas_.verticalScrollBar()->value(), 0);
  Wheel(120, Qt::ShiftModifier);
  EXPECT_EQ(canvas_.horizontalScrollBar()->value(), 0);
}

TEST_F(PageCanvasTest, StepsOfTheScrollBarsFollowTheView) {
  EXPECT_EQ(canvas_.verticalScrollBar()->pageStep(), canvas_.viewport()->height() * 4 / 10);
  EXPECT_EQ(canvas_.verticalScrollBar()->singleStep(), canvas_.viewport()->height() * 4 / 100);
  EXPECT_TRUE(canvas_.verticalScrollBar()->isVisible());
  list_.SetCanvasSize(1500, 1500);
  canvas_.ShowList();
  QCoreApplication::processEvents();
  EXPECT_FALSE(canvas_.verticalScrollBar()->isVisible());
  EXPECT_FALSE(canvas_.horizontalScrollBar()->isVisible());
  EXPECT_EQ(canvas_.ToViewport({-300, 0}), canvas_.ToViewport(list_.Canvas().topLeft()));
}

TEST_F(PageCanvasTest, ArrowKeysAreLeftToThePage) {
  QTest::keyClick(&canvas_, Qt::Key_Down);
  EXPECT_EQ(canvas_.verticalScrollBar()->value(), 0);
  QTest::keyClick(&canvas_, Qt::Key_PageDown);
  EXPECT_GT(canvas_.verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace kev
