// SPDX-License-Identifier: MIT
#include "platform/render.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "chart/definition.h"
#include "support/sample_page.h"
#include "template/reader.h"

namespace kev {
namespace {

using test::AddRow;
using test::AddSubsection;

class RenderTest : public testing::Test {
 protected:
  RenderTest() {
    document_.Settings[Setting::PAPERSIZE] = "(custom)";
    document_.Settings[Setting::PAGEWIDTH] = "6000";
    document_.Settings[Setting::PAGELENGHT] = "6000";
    AddSubsection(document_, "[DATA]", 0, 2000);
    const int box = AddRow(document_, ObjectKind::Box, "1500", 1000, 600, 300);
    document_.Objects[box].ColorR = 255;
    document_.Objects[box].Filled = kTrue;
    options_.folders.ProgramFolder = KEV_PROGRAM_DIR;
  }

  QImage Image() {
    auto image = RenderToImage(document_, options_);
    EXPECT_TRUE(image) << image.Error();
    return image ? *image : QImage();
  }
  std::string Path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)).toStdString(); }
  static QByteArray Bytes(const std::string& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder_;
  Document document_;
  RenderOptions options_;
};

constexpr QRgb kRed = 0xFFFF0000;

TEST_F(RenderTest, PaintsTheWholeCanvas) {
  const QImage image = Image();
  // The end bar lies 2400 down and is 80 high; 1000 are left free below.
  EXPECT_EQ(image.size(), QSize(400, 232));
  EXPECT_EQ(image.pixel(101, 67), kRed);
  EXPECT_EQ(image.pixel(138, 85), kRed);
  EXPECT_EQ(image.pixel(98, 70), 0xFFFFFFFF);
  EXPECT_NE(image.pixel(200, 20), 0xFFFFFFFF);
}

TEST_F(RenderTest, ZoomAndScaleMultiply) {
  options_.ZoomFactor = 0.5;
  options_.scale = 3;
  const QImage image = Image();
  EXPECT_EQ(image.size(), QSize(600, 348));
  EXPECT_EQ(image.pixel(152, 101), kRed);
}

TEST_F(RenderTest, MarginMovesTheOrigin) {
  document_.Settings[Setting::LM] = "600";
  const QImage image = Image();
  EXPECT_EQ(image.width(), 440);
  EXPECT_EQ(image.pixel(141, 70), kRed);
  EXPECT_EQ(image.pixel(138, 70), 0xFFFFFFFF);
  // The dotted mark stands as far from the right.
  int inked = 0;
  for (int y = 100; y < 130; ++y)
    inked += image.pixel(400, y) != 0xFFFFFFFF ? 1 : 0;
  EXPECT_GT(inked, 5);
  EXPECT_LT(inked, 20);
}

TEST_F(RenderTest, FilterAndGridReachThePage) {
  const int row = 3;
  document_.Objects[row].PrintFlag = kFalse;
  options_.filter = DisplayFilter::Print;
  options_.grid = true;
  const QImage image = Image();
  EXPECT_NE(image.pixel(101, 67), kRed);
  EXPECT_NE(image.pixel(40, 40), 0xFFFFFFFF);
  EXPECT_EQ(image.pixel(43, 43), 0xFFFFFFFF);
}

TEST_F(RenderTest, TilesOfALargePageJoin) {
  document_.Objects[3].Height = 100000;
  document_.Objects[1].EndsAt = 140000;
  const QImage image = Image();
  ASSERT_GT(image.height(), 8200);
  for (int y = 4000; y < 4200; ++y)
    ASSERT_EQ(image.pixel(120, y), kRed) << y;
}

TEST_F(RenderTest, TooLargeAPageIsRefusedForAPictureOnly) {
  document_.Objects[1].EndsAt = 2000000000;
  const auto image = RenderToImage(document_, options_);
  ASSERT_FALSE(image);
  EXPECT_NE(image.Error().find("pixels"), std::string::npos);
  EXPECT_TRUE(RenderToFile(document_, options_, Path("page.png")).has_value());
  EXPECT_FALSE(QFile::exists(QString::fromStdString(Path("page.png"))));
}

TEST_F(RenderTest, WritesEachFormatByItsEnding) {
  for (const auto& [name, start] :
       {std::pair{"page.png", "\x89PNG"}, {"page.PDF", "%PDF"}, {"page.svg", "<?xml"}}) {
    EXPECT_EQ(RenderToFile(document_, options_, Path(name)), std::nullopt);
    EXPECT_TRUE(Bytes(Path(name)).startsWith(start)) << name;
  }
  EXPECT_TRUE(RenderToFile(document_, options_, Path("page.gif")).has_value());
  EXPECT_TRUE(RenderToFile(document_, options_, Path("no/such/folder.png")).has_value());
}

TEST_F(RenderTest, LongPagesGoOnOnFurtherSheets) {
  document_.Objects[1].EndsAt = 700000;
  EXPECT_EQ(RenderToFile(document_, options_, Path("page.pdf")), std::nullopt);
  const QByteArray pdf = Bytes(Path("page.pdf"));
  EXPECT_EQ(pdf.count("/Type /Page\n"), 3);
}

TEST_F(RenderTest, FactorsThatAreNoneAreRefused) {
  for (const double factor : {0.0, -1.0, 1e9}) {
    options_.ZoomFactor = factor;
    EXPECT_FALSE(RenderToImage(document_, options_)) << factor;
  }
}

TEST_F(RenderTest, RowsLearnWhatPaintingFindsOut) {
  const int line = AddRow(document_, ObjectKind::Line, "100", 1500, 0, 50);
  document_.Objects[line].X2Value = "700";
  Image();
  EXPECT_EQ(document_.Objects[line].Width, 600);
  EXPECT_EQ(document_.Objects[line].LineWidth, 1);
}

TEST(RenderExamples, EveryExampleIsPaintedAtEveryZoom) {
  const QDir examples(QStringLiteral(KEV_EXAMPLES_DIR));
  const QStringList names = examples.entryList({QStringLiteral("*.kev")});
  ASSERT_FALSE(names.isEmpty());
  const BuiltInMeasurer measurer;
  for (const QString& name : names) {
    NoPictures pictures;
    auto read =
        ReadTemplate(examples.filePath(name).toStdString(), {.Measurer = measurer, .Pictures = pictures});
    ASSERT_TRUE(read) << name.toStdString();
    RenderOptions options;
    options.folders.ProgramFolder = KEV_PROGRAM_DIR;
    options.TemplateFolder = KEV_EXAMPLES_DIR;
    for (const double zoom : {0.25, 1.0, 2.0}) {
      options.ZoomFactor = zoom;
      const auto image = RenderToImage(read->Read, options);
      ASSERT_TRUE(image) << name.toStdString();
      const double width = image->width() / zoom;
      EXPECT_GT(width, 300) << name.toStdString();
      EXPECT_NE(image->pixel(image->width() / 2, static_cast<int>(13 * zoom)), 0xFFFFFFFF);
    }
  }
}

TEST_F(RenderTest, ChartsAreDrawnWithoutAFile) {
  const int chart = AddRow(document_, ObjectKind::Chart, "0", 400, 3000, 1500);
  document_.Objects[chart].ChartValues = ChartDefinition().Values;
  constexpr QRgb kBar = 0xFFC83811;
  for (const double scale : {1.0, 2.0}) {
    options_.scale = scale;
    const QImage image = Image();
    int bars = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        bars += image.pixel(x, y) == kBar ? 1 : 0;
    EXPECT_GT(bars, 1000 * scale) << scale;
  }
  EXPECT_TRUE(QDir(folder_.path()).isEmpty());
}

// As shapes, not as a picture of them.
TEST_F(RenderTest, ChartsStayDrawingsInDrawings) {
  const int chart = AddRow(document_, ObjectKind::Chart, "0", 400, 3000, 1500);
  document_.Objects[chart].ChartValues = ChartDefinition().Values;
  for (const char* name : {"a.svg", "a.pdf"}) {
    ASSERT_EQ(RenderToFile(document_, options_, Path(name)), std::nullopt);
    const QByteArray bytes = Bytes(Path(name));
    EXPECT_FALSE(bytes.contains("<image")) << name;
    EXPECT_FALSE(bytes.contains("/Subtype /Image")) << name;
  }
  EXPECT_TRUE(Bytes(Path("a.svg")).contains("#c83811"));
}

}  // namespace
}  // namespace kev
