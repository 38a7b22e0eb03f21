// SPDX-License-Identifier: MIT
#include "platform/display_list.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QTemporaryDir>
#include <chrono>
#include <fstream>
#include <limits>

#include "app/picture_source.h"
#include "platform/qt_measurer.h"

namespace kev {
namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kPaper = 0xFFFFFFFF;

class DisplayListTest : public testing::Test {
 protected:
  DisplayListTest() { list_.SetCanvasSize(1500, 1500); }

  QImage Painted(const QRectF& region, double scale = 1) const {
    const QSizeF size = region.size() / kUnitsPerPixel * scale;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    list_.Paint(painter, region);
    return image;
  }
  QImage Painted() const { return Painted(list_.Canvas()); }

  // What is not white; empty for a blank picture.
  static QRect Inked(const QImage& image) {
    QRect inked;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixel(x, y) != kPaper) inked |= QRect(x, y, 1, 1);
    return inked;
  }

  QTemporaryDir folder_;
  FontCache fonts_;
  ImageCache images_{[this](std::string_view file) {
    return ResolvePictureFile(file, {.TempFolder = {}, .DataFolder = {}, .ProgramFolder = KEV_PROGRAM_DIR},
                              folder_.path().toStdString(), CodePage::Default())
        .value_or(std::string());
  }};
  DisplayList list_{fonts_, images_};
};

TEST_F(DisplayListTest, FifteenUnitsAreOnePixel) {
  list_.DrawRectColour(150, 300, 450, 600, 0xFF0000, true);
  EXPECT_EQ(Inked(Painted()), QRect(10, 20, 20, 20));
  EXPECT_EQ(Painted().pixel(15, 25), kRed);
}

TEST_F(DisplayListTest, DeviceRatioAddsPixels) {
  list_.DrawRectColour(150, 300, 450, 600, 0xFF0000, true);
  EXPECT_EQ(Inked(Painted(list_.Canvas(), 2)), QRect(20, 40, 40, 40));
}

TEST_F(DisplayListTest, OriginIsTheLeftMargin) {
  list_.SetScaleLeft(-300);
  list_.DrawRectColour(0, 0, 150, 150, 0xFF0000, true);
  EXPECT_EQ(Inked(Painted()), QRect(20, 0, 10, 10));
}

TEST_F(DisplayListTest, NothingIsPaintedBesideTheCanvas) {
  list_.DrawRectColour(-600, -600, 3000, 3000, 0xFF0000, true);
  EXPECT_EQ(Inked(Painted(QRectF(-300, -300, 3000, 3000))), QRect(20, 20, 100, 100));
}

TEST_F(DisplayListTest, LevelLinesAreSharpAndAsWideAsTheirPen) {
  list_.SetPen(0xFF0000, 1, PenStyle::Solid);
  list_.DrawLine(150, 300, 450, 300);
  const QImage thin = Painted();
  EXPECT_EQ(Inked(thin).height(), 1);
  EXPECT_EQ(thin.pixel(20, 20), kRed);
  list_.ClearCanvas();
  list_.SetPen(0xFF0000, 4, PenStyle::Solid);
  list_.DrawLine(150, 300, 450, 300);
  EXPECT_EQ(Inked(Painted()).height(), 4);
}

TEST_F(DisplayListTest, OutlinesLeaveTheirInsideFree) {
  list_.SetPen(0x0000FF, 1, PenStyle::Solid);
  list_.DrawRect(150, 150, 450, 450, false);
  const QImage image = Painted();
  EXPECT_EQ(image.pixel(10, 10), 0xFF0000FF);
  EXPECT_EQ(image.pixel(30, 30), 0xFF0000FF);
  EXPECT_EQ(image.pixel(20, 20), kPaper);
}

TEST_F(DisplayListTest, FlatOutlinesAreLines) {
  list_.SetPen(0xFF0000, 1, PenStyle::Solid);
  list_.DrawRect(150, 300, 450, 300, false);
  const QImage level = Painted();
  EXPECT_EQ(Inked(level).height(), 1);
  EXPECT_GE(Inked(level).width(), 20);
  list_.ClearCanvas();
  list_.SetPen(0xFF0000, 3, PenStyle::Solid);
  list_.DrawRectColour(300, 150, 300, 450, 0x0000FF, false);
  const QImage upright = Painted();
  EXPECT_EQ(Inked(upright).width(), 3);
  EXPECT_GE(Inked(upright).height(), 20);
  EXPECT_EQ(upright.pixel(20, 20), 0xFF0000FF);
  list_.ClearCanvas();
  list_.DrawRect(300, 300, 300, 300, false);
  EXPECT_EQ(Inked(Painted()).size(), QSize(3, 3));
}

TEST_F(DisplayListTest, FlatFilledBoxesAreAsThickAsTheirPen) {
  for (const double pen : {1.0, 4.0}) {
    list_.ClearCanvas();
    list_.SetPen(0xFF0000, pen, PenStyle::Solid);
    list_.DrawRect(150, 300, 450, 300, true);
    EXPECT_EQ(Inked(Painted()).height(), pen);
    list_.ClearCanvas();
    list_.DrawRect(300, 150, 300, 450, true);
    EXPECT_EQ(Inked(Painted()).width(), pen);
  }
}

TEST_F(DisplayListTest, PenWidthsBeyondReasonAreLimited) {
  for (const double width : {-300.0, 0.0, std::numeric_limits<double>::quiet_NaN()}) {
    list_.ClearCanvas();
    list_.SetPen(0xFF0000, width, PenStyle::Solid);
    list_.DrawRect(150, 150, 900, 900, false);
    list_.DrawLine(150, 1200, 900, 1200);
    const QImage image = Painted();
    EXPECT_EQ(image.pixel(30, 10), kRed) << width;
    EXPECT_EQ(image.pixel(30, 60), kRed) << width;
    EXPECT_EQ(Inked(image.copy(20, 70, 20, 20)).height(), 1) << width;
  }
  list_.SetCanvasSize(1500, 60000);
  list_.ClearCanvas();
  list_.SetPen(0xFF0000, 1e9, PenStyle::Solid);
  list_.DrawLine(0, 30000, 1500, 30000);
  EXPECT_EQ(Inked(Painted()).height(), 2000);
}

TEST_F(DisplayListTest, DottedPenHasGapsThatStayWhereTheyAre) {
  list_.SetPen(0xFF0000, 1, PenStyle::Dotted);
  list_.DrawLine(0, 150, 1500, 150);
  const QImage whole = Painted();
  int inked = 0;
  for (int x = 0; x < 100; ++x)
    inked += whole.pixel(x, 10) != kPaper ? 1 : 0;
  EXPECT_GT(inked, 25);
  EXPECT_LT(inked, 45);
  // A part painted by itself joins the whole.
  EXPECT_EQ(Painted(QRectF(600, 0, 600, 300)), whole.copy(40, 0, 40, 20));
}

TEST_F(DisplayListTest, EveryPartJoinsTheWhole) {
  list_.SetScaleLeft(-75);
  list_.SetPen(0x008000, 3, PenStyle::Dotted);
  list_.DrawRect(100, 100, 1200, 900, false);
  list_.SetPen(0x800000, 2, PenStyle::Solid);
  list_.DrawCircle(700, 700, 200);
  list_.PrintText(450, 500, "Sum");
  list_.DrawDots(0, 0, 1400, 1400, 100);
  const QImage whole = Painted();
  const QRect part(30, 30, 40, 50);
  const QRectF region(list_.Canvas().topLeft() + QPointF(30, 30) * kUnitsPerPixel,
                      QSizeF(40, 50) * kUnitsPerPixel);
  const QImage alone = Painted(region);
  for (int y = 0; y < part.height(); ++y)
    for (int x = 0; x < part.width(); ++x)
      EXPECT_NEAR(qGray(alone.pixel(x, y)), qGray(whole.pixel(part.topLeft() + QPoint(x, y))), 2)
          << x << ", " << y;
}

TEST_F(DisplayListTest, LaterOperationsCoverEarlierOnes) {
  list_.DrawRectColour(0, 0, 1500, 1500, 0x0000FF, true);
  list_.DrawRectColour(0, 0, 300, 300, 0xFF0000, true);
  EXPECT_EQ(Painted().pixel(5, 5), kRed);
  EXPECT_EQ(Painted().pixel(50, 50), 0xFF0000FF);
}

TEST_F(DisplayListTest, TextStandsBelowItsTopAndKeepsItsMeasuredBox) {
  list_.SetCanvasSize(6000, 3000);
  const FontSpec font{.Name = "Arial", .Size = 30};
  list_.SetFont(font);
  list_.SetForeground(0xFF0000);
  list_.PrintText(300, 600, "Hg");
  const TextExtent extent = QtMeasurer(fonts_).Measure(font, "Hg");
  const QRect inked = Inked(Painted());
  EXPECT_GE(inked.left(), 20);
  EXPECT_GE(inked.top(), 40);
  EXPECT_LE(inked.bottom(), 40 + extent.Height / 15);
  EXPECT_LE(inked.right(), 20 + extent.Width / 15 + 1);
  EXPECT_GT(inked.width(), extent.Width / 15 * 0.85);
  EXPECT_DOUBLE_EQ(list_.TextWidth("Hg"), extent.Width);
}

TEST_F(DisplayListTest, EachTextKeepsItsOwnFont) {
  list_.SetCanvasSize(6000, 3000);
  list_.SetForeground(0xFF0000);
  for (const double size : {40.0, 8.0, 40.0}) {
    list_.SetFont({.Name = "Arial", .Size = size});
    list_.PrintText(size == 8 ? 3000 : 0, 0, "H");
  }
  const QImage image = Painted();
  EXPECT_GT(Inked(image.copy(0, 0, 100, 200)).height(), 30);
  EXPECT_LT(Inked(image.copy(200, 0, 100, 200)).height(), 12);
}

TEST_F(DisplayListTest, DotsStandAtEachStep) {
  list_.SetPen(0xFF0000, 1, PenStyle::Solid);
  list_.DrawDots(0, 150, 1500, 450, 150);
  const QImage image = Painted();
  EXPECT_EQ(image.pixel(30, 10), kRed);
  EXPECT_EQ(image.pixel(30, 30), kRed);
  EXPECT_EQ(image.pixel(30, 40), kPaper);
  EXPECT_EQ(image.pixel(35, 10), kPaper);
}

TEST_F(DisplayListTest, ImagesAreStretchedAndReadAgainWhenTheyChange) {
  const QString path = folder_.filePath(QStringLiteral("Logo.png"));
  QImage red(3, 3, QImage::Format_RGB32);
  red.fill(kRed);
  ASSERT_TRUE(red.save(path));
  list_.PaintImage("LOGO.PNG", 150, 150, 300, 450);
  EXPECT_EQ(Inked(Painted()), QRect(10, 10, 20, 30));
  QImage blue(5, 5, QImage::Format_RGB32);
  blue.fill(0xFF0000FF);
  ASSERT_TRUE(blue.save(path));
  // A paint by itself looks at no file that was found before.
  EXPECT_EQ(Painted().pixel(20, 20), kRed);
  list_.ClearCanvas();
  list_.PaintImage("LOGO.PNG", 150, 150, 300, 450);
  EXPECT_EQ(Painted().pixel(20, 20), 0xFF0000FF);
}

TEST_F(DisplayListTest, MissingAndBrokenImagesPaintNothing) {
  std::ofstream(folder_.filePath(QStringLiteral("broken.png")).toStdString()) << "no picture";
  std::ofstream(folder_.filePath(QStringLiteral("broken.svg")).toStdString()) << "<svg";
  for (const char* file : {"nothere.png", "broken.png", "broken.svg", "", "\\Pbms\\none.prbm", "/dev/zero"})
    list_.PaintImage(file, 0, 0, 1500, 1500);
  EXPECT_TRUE(Inked(Painted()).isNull());
}

TEST_F(DisplayListTest, OwnDrawingsAreFoundBesideTheProgram) {
  list_.PaintImage("\\Pbms\\sectpic.prbm", 0, 0, 1500, 400);
  list_.PaintImage("\\Pbms\\eos.prbm", 0, 600, 1500, 80);
  list_.PaintImage("\\dashes.bmp", 0, 750, 1500, 750);
  const QImage image = Painted();
  EXPECT_NE(image.pixel(50, 13), kPaper);
  EXPECT_NE(image.pixel(50, 42), kPaper);
  EXPECT_NE(image.pixel(50, 75), kPaper);
  EXPECT_EQ(image.pixel(50, 32), kPaper);
}

TEST_F(DisplayListTest, PaintingLooksOnlyAtWhatLiesNear) {
  list_.SetCanvasSize(12000, 800000);
  for (int i = 0; i < 2000; ++i)
    list_.DrawLine(0, i * 400, 3000, i * 400);
  list_.DrawLine(0, 0, 0, 800000);
  EXPECT_EQ(list_.Count(), 2001U);
  EXPECT_LE(list_.CountNear(QRectF(0, 600000, 12000, 9000)), 26U);
  EXPECT_EQ(list_.CountNear(QRectF(0, 0, 12000, 800000)), 2001U);
}

TEST_F(DisplayListTest, FarPartsOfATallPageAreSharp) {
  list_.SetCanvasSize(12000, 6400000);
  list_.DrawRectColour(150, 6300150, 450, 6300450, 0xFF0000, true);
  EXPECT_EQ(Inked(Painted(QRectF(0, 6300000, 1500, 1500))), QRect(10, 10, 20, 20));
}

TEST_F(DisplayListTest, AbsurdPlacesNeitherHangNorFail) {
  const auto start = std::chrono::steady_clock::now();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  for (const double far : {1e9, 1e15, 1e200}) {
    list_.SetPen(0xFF0000, 1, PenStyle::Dotted);
    list_.DrawLine(-far, -far, far, far);
    list_.DrawRect(-far, 30, far, far, false);
    list_.SetPen(0xFF0000, 30000, PenStyle::Solid);
    list_.DrawCircle(0, 0, far);
    list_.DrawRect(0, 0, far, far, true);
    list_.PrintText(far, 0, "far");
    list_.PaintImage("\\dashes.bmp", 0, 0, far, far);
    list_.DrawDots(-far, -far, far, far, 200);
  }
  list_.DrawLine(kNone, 0, 100, 100);
  Painted();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_LT(taken.count(), 5);
}

TEST_F(DisplayListTest, WidgetsGoToTheLayerAboveThePage) {
  struct Layer : WidgetLayer {
    std::string told;
    NullSurface surface;
    SurfaceOps& SurfaceOf(std::string_view name) override {
      told += std::string(name) + "*";
      return surface;
    }
    void SetWidgetText(std::string_view name, std::string_view text) override {
      told += std::string(name) + ":" + std::string(text);
    }
    void PlaceWidget(std::string_view name, double left, double, double, double) override {
      told += std::string(name) + std::to_string(static_cast<int>(left));
    }
    void ShowWidget(std::string_view name, bool visible) override {
      told += std::string(name) + (visible ? "+" : "-");
    }
  } layer;
  list_.PlaceWidget("dot_1", 5, 0, 0, 0);
  list_.SetWidgetLayer(&layer);
  list_.PlaceWidget("dot_2", 7, 0, 0, 0);
  list_.ShowWidget("dot_2", false);
  EXPECT_EQ(&list_.SurfaceOf("lblob(1)"), &layer.surface);
  list_.SetWidgetText("ObjL1", "First point");
  EXPECT_EQ(layer.told, "dot_27dot_2-lblob(1)*ObjL1:First point");
}

}  // namespace
}  // namespace kev
