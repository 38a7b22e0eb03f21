// SPDX-License-Identifier: MIT
// A symbol in the display list: one primitive, area-true, its origin on a whole device pixel.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <vector>

#include "platform/display_list.h"

namespace kev {
namespace {

class SymbolPaintingTest : public testing::Test {
 protected:
  SymbolPaintingTest() { list_.SetCanvasSize(1500, 1500); }

  void Draw(double x, double y, const std::vector<SymbolArea>& areas) { list_.DrawSymbol(x, y, 0, areas); }
  QImage Painted(const QRectF& region, double scale = 1) const {
    QImage image((region.size() / kUnitsPerPixel * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    list_.Paint(painter, region);
    return image;
  }
  QImage Painted(double scale = 1) const { return Painted(list_.Canvas(), scale); }
  static int GreyAt(const QImage& image, int x, int y) { return qGray(image.pixel(x, y)); }

  FontCache fonts_;
  ImageCache images_{[](std::string_view) { return std::string(); }};
  DisplayList list_{fonts_, images_};
};

constexpr int kBlackest = 3, kWhitest = 252, kNoise = 3;

TEST_F(SymbolPaintingTest, IsOnePrimitiveOfManyAreas) {
  Draw(150, 150, {{0, 0, 30, 150}, {60, 0, 75, 150}, {105, 0, 150, 150}});
  EXPECT_EQ(list_.Count(), 1U);
  const QImage image = Painted();
  for (const auto& [x, dark] : std::vector<std::pair<int, bool>>{{9, false},
                                                                 {10, true},
                                                                 {11, true},
                                                                 {12, false},
                                                                 {13, false},
                                                                 {14, true},
                                                                 {15, false},
                                                                 {16, false},
                                                                 {17, true},
                                                                 {19, true},
                                                                 {20, false}}) {
    EXPECT_EQ(GreyAt(image, x, 15) < kBlackest, dark) << x;
    EXPECT_EQ(GreyAt(image, x, 15) > kWhitest, !dark) << x;
  }
  EXPECT_GT(GreyAt(image, 10, 9), kWhitest);
  EXPECT_GT(GreyAt(image, 10, 20), kWhitest);
}

TEST_F(SymbolPaintingTest, NothingToPaintIsNoPrimitive) {
  Draw(150, 150, {});
  Draw(150, 150, {{10, 10, 10, 10}});
  EXPECT_EQ(list_.Count(), 0U);
}

TEST_F(SymbolPaintingTest, APixelIsAsDarkAsItIsCovered) {
  // One and a third pixels, and from there a third that begins inside the next.
  Draw(150, 150, {{0, 0, 20, 150}, {35, 0, 40, 150}});
  const QImage image = Painted();
  EXPECT_LT(GreyAt(image, 10, 15), kBlackest);
  EXPECT_NEAR(GreyAt(image, 11, 15), 255 * 2 / 3, kNoise);
  EXPECT_NEAR(GreyAt(image, 12, 15), 255 * 2 / 3, kNoise);
  EXPECT_GT(GreyAt(image, 13, 15), kWhitest);
}

TEST_F(SymbolPaintingTest, AreasThatShareAPixelAddUp) {
  Draw(150, 150, {{0, 0, 5, 150}, {10, 0, 15, 150}});
  EXPECT_NEAR(GreyAt(Painted(), 10, 15), 255 / 3, kNoise);
}

TEST_F(SymbolPaintingTest, OriginStandsOnTheNearestWholePixel) {
  Draw(157, 144, {{0, 0, 30, 150}});
  QImage image = Painted();
  EXPECT_LT(GreyAt(image, 10, 10), kBlackest);
  EXPECT_LT(GreyAt(image, 11, 19), kBlackest);
  EXPECT_GT(GreyAt(image, 9, 15), kWhitest);
  EXPECT_GT(GreyAt(image, 12, 15), kWhitest);
  // Half a logical pixel is a whole one of the device.
  image = Painted(2);
  EXPECT_GT(GreyAt(image, 20, 30), kWhitest);
  EXPECT_LT(GreyAt(image, 21, 30), kBlackest);
  EXPECT_LT(GreyAt(image, 24, 30), kBlackest);
  EXPECT_GT(GreyAt(image, 25, 30), kWhitest);
}

TEST_F(SymbolPaintingTest, PaintsThePartThatTheWindowShows) {
  Draw(150, 150, {{0, 0, 30, 150}, {60, 0, 900, 150}});
  const QImage part = Painted(QRectF(300, 150, 150, 150));
  EXPECT_LT(GreyAt(part, 0, 0), kBlackest);
  EXPECT_LT(GreyAt(part, 9, 9), kBlackest);
  EXPECT_EQ(list_.CountNear(QRectF(0, 600, 1500, 100)), 0U);
}

TEST_F(SymbolPaintingTest, FarAndHugeSymbolsAreCut) {
  Draw(-1e9, 150, {{0, 0, 2e9, 150}});
  Draw(1e300, 150, {{0, 0, 1e300, 1e300}});
  EXPECT_LT(GreyAt(Painted(), 50, 15), kBlackest);
}

TEST_F(SymbolPaintingTest, VectorsKeepTheirOwnPlace) {
  Draw(157, 150, {{0, 0, 30, 150}});
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setViewBox(QRectF(0, 0, 100, 100));
  QPainter painter(&generator);
  list_.Paint(painter, list_.Canvas());
  painter.end();
  EXPECT_NE(bytes.indexOf("M10.4667,10"), -1) << bytes.toStdString();
}

}  // namespace
}  // namespace kev
