// SPDX-License-Identifier: MIT
#include "platform/upper_layer.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/layer_widget.h"
#include "platform/print_qt.h"

namespace kev {
namespace {

const UpperLayer::Takes kAnything = [](const PointerInput&) { return true; };

class UpperLayerTest : public testing::Test {
 protected:
  QString ShownText(const char* name) {
    auto* widget = dynamic_cast<LayerWidget*>(canvas_.findChild<QWidget*>(QString::fromLatin1(name)));
    return widget == nullptr ? QStringLiteral("no such widget") : widget->Text();
  }

  // The darkest pixel of a widget, from 0 to 255.
  int Darkest(const char* name) {
    const QImage picture = canvas_.findChild<QWidget*>(QString::fromLatin1(name))->grab().toImage();
    int darkest = 255;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        darkest = std::min(darkest, picture.pixelColor(x, y).lightness());
    return darkest;
  }

  FontCache fonts_{*CodePage::Find("windows-1251")};
  ImageCache images_{{}};
  DisplayList list_{fonts_, images_};
  PageCanvas canvas_{list_};
  UpperLayer layer_{canvas_, fonts_, images_};
};

TEST_F(UpperLayerTest, NamesOfColumnsAreReadInThePageOfTheTemplate) {
  const QString name = QStringLiteral("$\u041A\u043E\u043B");
  layer_.PlaceWidget("linecolumn(1)", 1500, 0, 15, 9000);
  layer_.SetWidgetText("linecolumn(1)", "$\xCA\xEE\xEB");
  layer_.ShowWidget("linecolumn(1)", true);
  EXPECT_EQ(layer_.TipAt({1500, 300}), name);
  layer_.SetWidgetText("indicatorCOLUMN", "$\xCA\xEE\xEB = 1500  ");
  EXPECT_EQ(ShownText("indicatorCOLUMN"), name + QStringLiteral(" = 1500  "));
}

TEST_F(UpperLayerTest, ALineIsHadFromTwoPixelsBesideIt) {
  layer_.PlaceWidget("linecolumn(7)", 1500, 0, 15, 9000);
  layer_.ShowWidget("linecolumn(7)", true);
  for (const double x : {1470.0, 1500.0, 1530.0}) {
    EXPECT_EQ(layer_.At({x, 300}, kAnything).Source, PointerSource::ColumnLine) << x;
    EXPECT_EQ(layer_.At({x, 300}, kAnything).Index, 7) << x;
  }
  EXPECT_EQ(layer_.At({1469, 300}, kAnything).Source, PointerSource::Page);
  EXPECT_EQ(layer_.At({1531, 300}, kAnything).Source, PointerSource::Page);
}

TEST_F(UpperLayerTest, ATextIsPaintedOnceUntilItIsDraggedAway) {
  layer_.PlaceWidget("lblob(1)", 1500, 300, 1500, 300);
  SurfaceOps& panel = layer_.SurfaceOf("lblob(1)");
  panel.SetForeground(0);
  panel.PrintText(1500, 300, "Total");
  layer_.ShowWidget("lblob(1)", true);
  EXPECT_GT(Darkest("lblob(1)"), 100);
  layer_.PlaceWidget("lblob(1)", 1800, 300, 1500, 300);
  EXPECT_LT(Darkest("lblob(1)"), 100);
}

TEST_F(UpperLayerTest, ThePanelsOfABoxAreAlwaysPainted) {
  layer_.PlaceWidget("lblob(1)", 1500, 300, 1500, 300);
  layer_.SurfaceOf("lblob(1)").DrawRectColour(1500, 300, 3000, 600, 0, true);
  layer_.ShowWidget("lblob(1)", true);
  EXPECT_LT(Darkest("lblob(1)"), 100);
}

TEST_F(UpperLayerTest, GuidesLetThePointerThrough) {
  layer_.PlaceWidget("linecolumn(7)", 1500, 0, 15, 9000);
  layer_.ShowWidget("linecolumn(7)", true);
  layer_.PlaceWidget("indicatorX", 1500, 0, 15, 9000);
  layer_.ShowWidget("indicatorX", true);
  EXPECT_EQ(layer_.At({1500, 300}, kAnything).Source, PointerSource::ColumnLine);
}

}  // namespace
}  // namespace kev
