// SPDX-License-Identifier: MIT
// Pictures that are scanned: stretched without smoothing, and read again when they are made anew.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>
#include <filesystem>
#include <set>

#include "base/files.h"
#include "platform/display_list.h"

namespace kev {
namespace {

class SharpImages : public testing::Test {
 protected:
  SharpImages() { list_.SetCanvasSize(1500, 1500); }

  std::string File() const { return folder_.path().toStdString() + "/code.bmp"; }
  // A board of single pixels.
  void MakeBoard(int side, QRgb first = qRgb(0, 0, 0)) {
    QImage board(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x)
        board.setPixel(x, y, (x + y) % 2 == 0 ? first : qRgb(255, 255, 255));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(board.save(&buffer, "BMP"));
    ASSERT_FALSE(WriteWholeFile(File(), bytes.toStdString()));
  }
  QImage Painted(double scale = 1, const QPointF& from = {}) const {
    QImage image((QSizeF(100, 100) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    list_.Paint(painter, QRectF(from, QSizeF(1500, 1500)));
    return image;
  }
  static std::set<QRgb> Colours(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        colours.insert(image.pixel(x, y));
    return colours;
  }

  QTemporaryDir folder_;
  FontCache fonts_;
  ImageCache images_{[](std::string_view file) { return std::string(file); }};
  DisplayList list_{fonts_, images_};
};

TEST_F(SharpImages, HaveTheColoursOfThePictureAlone) {
  const std::set<QRgb> two = {0xFF000000, 0xFFFFFFFF};
  for (const int side : {7, 29, 250}) {
    MakeBoard(side);
    list_.ClearCanvas();
    list_.PaintImageSharp(File(), 103.5, 52, 1333, 1333);
    for (const double scale : {0.5, 1.0, 1.25, 2.0, 3.0})
      EXPECT_EQ(Colours(Painted(scale)), two) << side << " at " << scale;
  }
}

TEST_F(SharpImages, AreUnlikeOrdinaryOnes) {
  MakeBoard(29);
  list_.PaintImage(File(), 103.5, 52, 1333, 1333);
  EXPECT_GT(Colours(Painted()).size(), 2U);
}

TEST_F(SharpImages, LeaveTheOrdinaryOnesBehindThemSmooth) {
  MakeBoard(29);
  list_.PaintImageSharp(File(), 0, 0, 500, 500);
  list_.PaintImage(File(), 600, 600, 777, 777);
  EXPECT_GT(Colours(Painted()).size(), 2U);
}

TEST_F(SharpImages, HaveModulesOfOneWidthWithinAPixel) {
  MakeBoard(29);
  list_.PaintImageSharp(File(), 0, 0, 1500, 1500);
  const QImage image = Painted(2);
  int start = 0;
  for (int x = 1; x < image.width(); ++x) {
    if (image.pixel(x, 3) == image.pixel(x - 1, 3)) continue;
    EXPECT_GE(x - start, 6);
    EXPECT_LE(x - start, 7);
    start = x;
  }
}

// What is painted piece by piece is the same picture.
TEST_F(SharpImages, FitTogetherAtTheSeamsOfTwoPaints) {
  MakeBoard(29);
  list_.PaintImageSharp(File(), 20, 20, 1400, 1400);
  const QImage whole = Painted(2);
  const QImage right = Painted(2, QPointF(40 * kUnitsPerPixel, 0));
  EXPECT_EQ(whole.copy(80, 0, 120, 200), right.copy(0, 0, 120, 200));
}

TEST_F(SharpImages, AreReadAgainWhenTheyWereMadeAnewWithTheSameSizeAndTime) {
  MakeBoard(7, qRgb(0, 0, 0));
  const auto time = std::filesystem::last_write_time(File());
  list_.PaintImageSharp(File(), 0, 0, 1500, 1500);
  EXPECT_TRUE(Colours(Painted()).contains(0xFF000000));
  MakeBoard(7, qRgb(255, 0, 0));
  std::filesystem::last_write_time(File(), time);
  images_.Forget();
  EXPECT_TRUE(Colours(Painted()).contains(0xFFFF0000));
}

TEST_F(SharpImages, ThatCannotBeReadPaintNothing) {
  ASSERT_FALSE(WriteWholeFile(File(), "rubbish"));
  list_.PaintImageSharp(File(), 0, 0, 1500, 1500);
  EXPECT_EQ(Colours(Painted()), std::set<QRgb>{0xFFFFFFFF});
  std::filesystem::remove(File());
  EXPECT_EQ(Colours(Painted()), std::set<QRgb>{0xFFFFFFFF});
}

}  // namespace
}  // namespace kev
