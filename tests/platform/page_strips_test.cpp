// SPDX-License-Identifier: MIT
#include "platform/page_strips.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <cstdlib>

#include "platform/page_canvas.h"

namespace kev {
namespace {

// The painter rounds the smooth edges of slanted lines by where they are cut; nobody sees it.
constexpr int kUnseen = 8;

bool AreAlike(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return false;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      if (std::abs(qRed(p) - qRed(q)) > kUnseen || std::abs(qGreen(p) - qGreen(q)) > kUnseen ||
          std::abs(qBlue(p) - qBlue(q)) > kUnseen)
        return false;
    }
  return true;
}

class PageStripsTest : public testing::Test {
 protected:
  PageStripsTest() { Fill(60000); }

  // Lines, dots, texts and circles that cross the borders of strips.
  void Fill(double height) {
    list_.ClearCanvas();
    list_.SetCanvasSize(9007, height);
    list_.SetScaleLeft(-305);
    list_.DrawDots(0, 0, 9000, height, 900);
    for (int n = 0; n < 40; ++n) {
      // Solid ones, since dashes shift by a pixel with where the painter cuts them.
      list_.SetPen(0x2060A0, 1 + n % 3, PenStyle::Solid);
      list_.DrawLine(100, 1501.3 * n, 8000 - n * 40, 1501.3 * n + 2600);
      list_.DrawCircle(4000, 1400.7 * n, 900);
      list_.DrawRectColour(6000, 1501 * n, 7000, 1501 * n + 1201, 0xC08040, n % 2 == 0);
      list_.PrintText(2000, 1503.9 * n, "Subtotal of all the rows");
    }
  }
  void PaintAllAhead(const QRect& seen, double ratio = 1) {
    while (strips_.PaintAhead(seen, ratio)) {
    }
  }
  static QImage Blank(const QRect& part, double ratio) {
    QImage image(part.size() * ratio, QImage::Format_RGB32);
    image.fill(Qt::gray);
    return image;
  }
  QImage FromStrips(const QRect& part, int ratio = 1) {
    QImage image = Blank(part, ratio);
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    painter.translate(-part.topLeft());
    strips_.Paint(painter, part);
    return image;
  }
  QImage FromList(const QRect& part, int ratio = 1) {
    QImage image = Blank(part, ratio);
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    painter.fillRect(QRect(QPoint(), part.size()) & QRect(-part.topLeft(), strips_.PageSize()), Qt::white);
    list_.Paint(painter, QRectF(list_.Canvas().topLeft() + QPointF(part.topLeft()) * kUnitsPerPixel,
                                QSizeF(part.size()) * kUnitsPerPixel));
    return image;
  }

  FontCache fonts_;
  ImageCache images_{[](std::string_view) { return std::string(); }};
  DisplayList list_{fonts_, images_};
  PageStrips strips_{list_};
};

TEST_F(PageStripsTest, ShowWhatTheListWouldPaint) {
  for (const int ratio : {1, 2}) {
    PaintAllAhead({0, 300, 400, 300}, ratio);
    EXPECT_GE(strips_.Count(), 4U);
    for (const QRect part : {QRect(0, 300, 400, 300), QRect(-16, -16, 640, 700), QRect(31, 517, 77, 39),
                             QRect(0, 2500, 400, 300), QRect(0, 800, 300, 400)})
      EXPECT_TRUE(AreAlike(FromStrips(part, ratio), FromList(part, ratio))) << part.top() << " at " << ratio;
  }
}

TEST_F(PageStripsTest, ReachAViewAboveAndBelow) {
  const QRect seen(0, 1024, 400, 512);
  EXPECT_FALSE(strips_.IsAhead(seen, 1));
  PaintAllAhead(seen);
  EXPECT_TRUE(strips_.IsAhead(seen, 1));
  EXPECT_EQ(strips_.Count(), 6U);
  EXPECT_FALSE(strips_.IsAhead(seen, 2));
  EXPECT_FALSE(strips_.IsAhead(seen.translated(0, 256), 1));
}

TEST_F(PageStripsTest, PaintWhatIsSeenFirst) {
  ASSERT_TRUE(strips_.PaintAhead({0, 1024, 400, 256}, 1));
  list_.ClearCanvas();
  // The strip of the view still shows the list of before.
  EXPECT_FALSE(AreAlike(FromStrips({0, 1024, 400, 256}), FromList({0, 1024, 400, 256})));
  EXPECT_TRUE(AreAlike(FromStrips({0, 1280, 400, 256}), FromList({0, 1280, 400, 256})));
}

TEST_F(PageStripsTest, AreNotUsedForAnotherPageOrRatio) {
  PaintAllAhead({0, 0, 400, 300});
  EXPECT_TRUE(AreAlike(FromStrips({0, 0, 400, 300}, 2), FromList({0, 0, 400, 300}, 2)));
  Fill(30000);
  list_.DrawRectColour(0, 0, 900, 900, 0xFF0000, true);
  EXPECT_TRUE(AreAlike(FromStrips({0, 0, 400, 300}), FromList({0, 0, 400, 300})));
}

TEST_F(PageStripsTest, AreForgotten) {
  PaintAllAhead({0, 0, 400, 300});
  list_.DrawRectColour(0, 0, 900, 900, 0xFF0000, true);
  strips_.Forget();
  EXPECT_TRUE(AreAlike(FromStrips({0, 0, 400, 300}), FromList({0, 0, 400, 300})));
}

TEST_F(PageStripsTest, HoldNoMoreThanTheirBound) {
  list_.SetCanvasSize(60000, 800000);
  for (int top = 0; top < 50000; top += 400)
    PaintAllAhead({0, top, 400, 800});
  const qint64 bytes = qint64{4000} * PageStrips::kHeight * 4;
  EXPECT_LE(static_cast<qint64>(strips_.Count()) * bytes, PageStrips::kMostBytes);
  EXPECT_GE(strips_.Count(), 10U);
}

TEST_F(PageStripsTest, CannotBeHadOfAPageThatIsTooWideOrOfABrokenRatio) {
  EXPECT_FALSE(strips_.PaintAhead({0, 0, 400, 300}, 1.5));
  EXPECT_TRUE(strips_.IsAhead({0, 0, 400, 300}, 1.5));
  list_.SetCanvasSize(1e9, 1e9);
  EXPECT_FALSE(strips_.PaintAhead({0, 0, 400, 300}, 1));
  list_.SetCanvasSize(0, 0);
  EXPECT_FALSE(strips_.PaintAhead({0, 0, 400, 300}, 1));
}

TEST_F(PageStripsTest, OfTheWindowComeWhenNothingHappensAndShowTheSame) {
  PageCanvas canvas(list_);
  canvas.resize(500, 400);
  canvas.show();
  canvas.ShowList();
  QCoreApplication::processEvents();
  EXPECT_FALSE(canvas.IsPaintedAhead());
  const QImage direct = canvas.viewport()->grab().toImage();
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas.IsPaintedAhead(); }));
  EXPECT_TRUE(AreAlike(canvas.viewport()->grab().toImage(), direct));
  // Further down, from the strips, and the same painted from the list.
  canvas.verticalScrollBar()->setValue(333);
  const QImage scrolled = canvas.viewport()->grab().toImage();
  canvas.ShowList();
  EXPECT_TRUE(AreAlike(canvas.viewport()->grab().toImage(), scrolled));
}

TEST_F(PageStripsTest, OfTheWindowGoWithTheListThatTheyShow) {
  PageCanvas canvas(list_);
  canvas.resize(500, 400);
  canvas.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas.IsPaintedAhead(); }));
  list_.DrawRectColour(0, 0, 900, 900, 0xFF0000, true);
  canvas.ShowList();
  const QImage image = canvas.viewport()->grab().toImage();
  EXPECT_EQ(image.pixel(canvas.ToViewport({450, 450}).toPoint()), 0xFFFF0000);
}

}  // namespace
}  // namespace kev
