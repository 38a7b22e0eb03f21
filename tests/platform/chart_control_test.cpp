// SPDX-License-Identifier: MIT
#include "platform/chart_control.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include "chart/chart_look.h"
#include "chart/gradient.h"
#include "platform/chart_files.h"
#include "platform/qt_measurer.h"

namespace kev {
namespace {

using test::LookWith;

constexpr QRgb kFirstColour = 0xFFC83811;

int Count(const QImage& image, QRgb colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      count += image.pixel(x, y) == colour ? 1 : 0;
  return count;
}

class ChartPaintingTest : public testing::Test {
 protected:
  QImage Image(const ChartLook& look, double scale = 1) {
    return ChartImageOf(LayOutChart(look, QtMeasurer(fonts_)), scale, fonts_, images_);
  }

  QTemporaryDir folder_;
  FontCache fonts_;
  ImageCache images_{[](std::string_view file) { return std::string(file); }};
};

TEST_F(ChartPaintingTest, EachTypeAndFormPaintsSomethingOfItsOwn) {
  QList<QImage> seen;
  for (const char* form : {"2D", "3D", "PIE"}) {
    for (const char* type : {"BarFlat", "BARROUND", "BarSquared", "Line", "Area"}) {
      const QImage image = Image(LookWith({{"Graph_Type", form}, {"Graph_serie_1_type", type}}));
      EXPECT_EQ(image.size(), QSize(480, 240));
      // A pie has no types of series.
      EXPECT_TRUE(std::string_view(form) == "PIE" || !seen.contains(image)) << form << ' ' << type;
      seen.append(image);
    }
  }
}

TEST_F(ChartPaintingTest, BarsHaveTheirColourAndSharpEdgesAtEveryScale) {
  for (const double scale : {0.5, 0.75, 1.0, 1.25, 2.0, 3.0}) {
    const QImage image = Image(LookWith({{"Graph_serie_1_values", "5"},
                                         {"Graph_ShowAxis", "N"},
                                         {"Graph_ShowAxisBackGround", "N"},
                                         {"Graph_serie_1_ShowValues", "N"}}),
                               scale);
    const int all = image.width() * image.height();
    EXPECT_GT(Count(image, kFirstColour), 0);
    // Nothing between the bar and the paper.
    EXPECT_EQ(Count(image, kFirstColour) + Count(image, 0xFFFFFFFF), all) << scale;
  }
}

TEST_F(ChartPaintingTest, TheScaleMultipliesTheSizeUpToALimit) {
  EXPECT_EQ(Image(LookWith({}), 2.5).size(), QSize(1200, 600));
  const QImage huge = Image(LookWith({}, 9000, 9000), 8);
  EXPECT_LE(static_cast<double>(huge.width()) * huge.height(), kMostChartPixels * 1.01);
  EXPECT_FALSE(huge.isNull());
  EXPECT_TRUE(Image(LookWith({}, 0, 100)).isNull());
  EXPECT_TRUE(Image(LookWith({}), 0).isNull());
}

TEST_F(ChartPaintingTest, TheGradientEndsInTheSecondColour) {
  const QImage image = Image(LookWith({{"Graph_BackGround", "0,0,0,250,100,50"}}, 60, 100));
  const std::vector<Rgb> rows = BuildBackGround(0, 0, 0, 250, 100, 50, 100);
  for (const int row : {1, 2, 50, 99, 100})
    EXPECT_EQ(image.pixel(0, row - 1) & 0xFFFFFF, rows[static_cast<std::size_t>(row) - 1]) << row;
}

TEST_F(ChartPaintingTest, ABackgroundPictureIsStretchedOverTheChart) {
  const QString path = folder_.filePath(QStringLiteral("back.png"));
  QImage back(4, 4, QImage::Format_RGB32);
  back.fill(QColor(1, 2, 3));
  ASSERT_TRUE(back.save(path));
  const QImage image = Image(LookWith({{"Graph_BackGround_picture", path.toStdString()}}));
  EXPECT_EQ(image.pixel(0, 0), 0xFF010203);
  EXPECT_EQ(image.pixel(479, 239), 0xFF010203);
  // One that cannot be had leaves the gradient.
  EXPECT_EQ(Image(LookWith({{"Graph_BackGround_picture", "/nowhere.png"}})).pixel(0, 0), 0xFFFFFFFF);
}

TEST_F(ChartPaintingTest, TheControlShowsTheChartScaledToItsRoom) {
  KevGraph control(fonts_, images_);
  EXPECT_EQ(control.objectName(), QStringLiteral("KevGraph"));
  const ChartLook look = LookWith({{"Graph_serie_1_values", "5"}});
  control.Show(look);
  EXPECT_EQ(control.Look(), look);
  EXPECT_EQ(control.sizeHint(), QSize(480, 240));
  control.resize(480, 240);
  const int whole = Count(control.grab().toImage(), kFirstColour);
  EXPECT_GT(whole, 1000);
  control.resize(240, 400);
  const QImage small = control.grab().toImage();
  EXPECT_NEAR(Count(small, kFirstColour), whole / 4, whole / 20);
  // In the middle of its room.
  EXPECT_NE(small.pixel(120, 200), small.pixel(120, 2));
  EXPECT_EQ(control.Image(1), Image(look));
  control.Show(ChartLook());
  EXPECT_EQ(Count(control.grab().toImage(), kFirstColour), 0);
}

TEST_F(ChartPaintingTest, AFileThatIsMadeAnewIsPaintedAnew) {
  const QWidget window;
  ChartFiles files(fonts_, images_, window);
  const std::string path = folder_.filePath(QStringLiteral("Sc100.bmp")).toStdString();
  const auto painted = [&] {
    QImage page(480, 240, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    images_.Paint(painter, path, QRectF(0, 0, 480, 240));
    return page;
  };
  const QtMeasurer measurer(fonts_);
  // Files of one size, written one right behind the other.
  for (const char* colour : {"10,20,30", "40,50,60", "70,80,90"}) {
    const ChartLook look = LookWith({{"Graph_serie_1_color", colour}});
    ASSERT_TRUE(files.SaveChart(LayOutChart(look, measurer), files.DeviceRatio(), path));
    EXPECT_GT(Count(painted(), 0xFF000000 | ChartColourOf(colour)), 500) << colour;
    EXPECT_EQ(painted(), Image(look).convertToFormat(QImage::Format_RGB32));
  }
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(2), "BM");
}

TEST_F(ChartPaintingTest, AnImageBetweenPixelsStaysSharp) {
  const QWidget window;
  ChartFiles files(fonts_, images_, window);
  const std::string path = folder_.filePath(QStringLiteral("Sc200.bmp")).toStdString();
  const ChartLook look = LookWith({});
  ASSERT_TRUE(files.SaveChart(LayOutChart(look, QtMeasurer(fonts_)), 1, path));
  QImage page(500, 260, QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  images_.Paint(painter, path, QRectF(7.4, 3.6, 480, 240));
  painter.end();
  EXPECT_EQ(page.copy(7, 4, 480, 240), Image(look).convertToFormat(QImage::Format_RGB32));
}

TEST_F(ChartPaintingTest, AFolderThatCannotBeWrittenToIsTold) {
  const QWidget window;
  ChartFiles files(fonts_, images_, window);
  const ChartPicture picture = LayOutChart(LookWith({}), QtMeasurer(fonts_));
  EXPECT_FALSE(files.SaveChart(picture, 1, "/nowhere/at/all/Sc100.bmp"));
  EXPECT_FALSE(files.SaveChart(ChartPicture(), 1, folder_.filePath(QStringLiteral("a.bmp")).toStdString()));
}

TEST_F(ChartPaintingTest, TheWaitPointerIsTakenBack) {
  const QWidget window;
  ChartFiles files(fonts_, images_, window);
  files.ShowPointer(kWaitPointer);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  files.ShowPointer(kNormalPointer);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace kev
