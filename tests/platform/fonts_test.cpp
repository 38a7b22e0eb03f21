// SPDX-License-Identifier: MIT
#include "platform/fonts.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QImage>
#include <QPainter>

#include "platform/qt_measurer.h"

namespace kev {
namespace {

class FontsTest : public testing::Test {
 protected:
  FontCache fonts_;
  QtMeasurer measurer_{fonts_};
};

TEST_F(FontsTest, MeasuresAsTheBuiltInMetricsDo) {
  const BuiltInMeasurer builtIn;
  for (const char* name : {"Arial", "Times New Roman", "Courier New"}) {
    for (const int style : {0, 1, 2, 3}) {
      for (const double size : {6.0, 10.0, 36.0}) {
        const FontSpec font{.Name = name, .Size = size, .Bold = style % 2 == 1, .Italic = style / 2 == 1};
        for (const char* text : {"Total amount", "WAVE fi To. 1,234.50", "\xC4rger \x80 20", "i"}) {
          const TextExtent expected = builtIn.Measure(font, text);
          const TextExtent measured = measurer_.Measure(font, text);
          EXPECT_NEAR(measured.Width, expected.Width, expected.Width / 100) << name << style << text;
          EXPECT_NEAR(measured.Height, expected.Height, expected.Height / 100) << name << style << text;
        }
      }
    }
  }
}

// The last column of pixels that a text reaches.
int RightEdge(FontCache& fonts, const FontSpec& font, std::string_view text) {
  QImage image(1200, 200, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  fonts.Print(painter, font, QPointF(0, 0), text);
  painter.end();
  int right = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qGray(image.pixel(x, y)) < 128) right = std::max(right, x);
  return right;
}

TEST_F(FontsTest, TextIsPaintedAsWideAsItIsMeasured) {
  const std::string text = "WAVE fi To. 1,234.50 |";
  for (const double size : {5.0, 8.0, 10.0, 13.3, 24.0}) {
    const FontSpec font{.Size = size};
    const double measured = measurer_.Measure(font, text).Width / 15;
    // The bar at the end stands in the middle of its width.
    const double bar = measurer_.Measure(font, "|").Width / 15;
    EXPECT_NEAR(RightEdge(fonts_, font, text), measured - bar / 2, 1.2) << size;
  }
}

TEST_F(FontsTest, OnePointIsTwentyTwips) {
  EXPECT_NEAR(QFontInfo(fonts_.Font({.Size = 12}, 96)).pixelSize(), 16, 0.01);
  EXPECT_NEAR(fonts_.Font({.Size = 12}, 192).pointSizeF(), 6, 0.01);
}

TEST_F(FontsTest, FontsAreMadeOnce) {
  const QFont* first = &fonts_.Font({.Size = 12}, 96);
  fonts_.Font({.Size = 13}, 96);
  EXPECT_EQ(&fonts_.Font({.Size = 12}, 96), first);
}

TEST_F(FontsTest, StylesReachTheFont) {
  const QFont font =
      fonts_.Font({.Bold = true, .Italic = true, .Strikethrough = true, .Underline = true}, 96);
  EXPECT_TRUE(font.bold() && font.italic() && font.strikeOut() && font.underline());
  EXPECT_FALSE(fonts_.Font({}, 96).bold());
}

TEST_F(FontsTest, MissingFamiliesHaveStandInsOfEqualWidth) {
  if (InstalledFamily("Arial") != u"Arial") {
    EXPECT_EQ(InstalledFamily("ARIAL"), u"Liberation Sans");
    EXPECT_EQ(InstalledFamily("Helvetica"), u"Liberation Sans");
  }
  EXPECT_EQ(InstalledFamily("Liberation Mono"), u"Liberation Mono");
  EXPECT_EQ(InstalledFamily("No such family"), u"No such family");
}

TEST_F(FontsTest, BytesAreReadThroughTheCharset) {
  EXPECT_EQ(fonts_.Text({}, "\xE9\x80"), u"\u00E9\u20AC");
  EXPECT_EQ(fonts_.Text({.CharSet = "1"}, "\xE9"), u"\u00E9");
  EXPECT_EQ(fonts_.Text({.CharSet = "204"}, "\xC4\xE0"), u"\u0414\u0430");
  EXPECT_EQ(fonts_.Text({.CharSet = "238"}, "\xE8"), u"\u010D");
  EXPECT_EQ(fonts_.Text({.CharSet = "161"}, "\xE1"), u"\u03B1");
  EXPECT_EQ(fonts_.Text({.CharSet = "162"}, "\xFE"), u"\u015F");
  EXPECT_EQ(fonts_.Text({.CharSet = "177"}, "\xE0"), u"\u05D0");
  EXPECT_EQ(fonts_.Text({.CharSet = "178"}, "\xC7"), u"\u0627");
  EXPECT_EQ(fonts_.Text({.CharSet = "186"}, "\xE0"), u"\u0105");
  EXPECT_EQ(fonts_.Text({.CharSet = "163"}, "\xE3"), u"\u0103");
  EXPECT_EQ(fonts_.Text({.CharSet = "222"}, "\xA1\xDF\x80"), u"\u0E01\u0E3F\u20AC");
  EXPECT_EQ(fonts_.Text({.CharSet = "77"}, "\xE9"), u"\u00E9");
}

TEST_F(FontsTest, CharsetOfZeroIsThePageOfTheDocument) {
  fonts_.SetPage(*CodePage::Find("windows-1251"));
  EXPECT_EQ(fonts_.Text({}, "\xC4"), u"\u0414");
  EXPECT_EQ(fonts_.Text({.CharSet = "238"}, "\xE8"), u"\u010D");
}

TEST_F(FontsTest, TheLargestFontKeepsItsSizeAtTheLargestZoom) {
  EXPECT_DOUBLE_EQ(fonts_.Font({.Size = 720 * 8}, 96).pointSizeF(), 5760);
  EXPECT_NEAR(measurer_.Measure({.Size = 720 * 8}, "M").Width,
              measurer_.Measure({.Size = 720}, "M").Width * 8, 1);
}

TEST_F(FontsTest, SizesBeyondReasonDoNotFail) {
  EXPECT_GT(fonts_.Font({.Size = 0}, 96).pointSizeF(), 0);
  EXPECT_GT(fonts_.Font({.Size = -3}, 96).pointSizeF(), 0);
  EXPECT_LT(fonts_.Font({.Size = 1e300}, 96).pointSizeF(), 1e5);
}

}  // namespace
}  // namespace kev
