// SPDX-License-Identifier: MIT
// Bar codes as the page and the panel of the current object show them.
#include <gtest/gtest.h>

#include <map>

#include "support/recording_surface.h"
#include "support/sample_page.h"
#include "surface/page_background.h"
#include "surface/paint_kinds.h"
#include "surface/visuals.h"

namespace kev {
namespace {

using test::AddRow;
using test::RecordingSurface;

constexpr int kStoredWidth = 777;

class PaintBarcodeTest : public testing::Test {
 protected:
  int Add(const char* kind, const char* text, int barWidth = 10) {
    const int row = AddRow(document_, ObjectKind::Barcode, "3000", 800, kStoredWidth, 400);
    Record(row).BarcodeKind = kind;
    Record(row).BarcodeSample = text;
    Record(row).BarWidth = static_cast<std::int16_t>(barWidth);
    return row;
  }
  ObjectRecord& Record(int row) { return document_.Objects[row]; }
  PaintContext Context(double zoom) {
    return {.document = document_,
            .surface = surface_,
            .measurer = measurer_,
            .ZoomFactor = zoom,
            .images = {},
            .bars = &bars_};
  }
  void Paint(int row, double zoom = 1) {
    Forget();
    PaintContext context = Context(zoom);
    PaintObject(context, row);
  }
  void PaintPanel(int row, double zoom = 1) {
    Forget();
    PaintContext context = Context(zoom);
    PaintBarcodePanel(context, Record(row), {100, 200, 300, 400});
  }
  void Redraw(double zoom = 1) {
    Forget();
    PaintContext context = Context(zoom);
    RedrawDocument(context, SetSortKeys(document_));
  }
  void Forget() {
    surface_.Lines.clear();
    surface_.Symbols.clear();
  }
  bool Starts(const std::string& line) const { return surface_.Has("symbol " + line); }
  bool IsBlank() const { return surface_.Symbols.empty(); }
  double FirstWidth() const { return surface_.Symbols.at(0).at(0).Right; }

  Document document_;
  RecordingSurface surface_;
  BuiltInMeasurer measurer_;
  BarcodeState bars_;
};

TEST_F(PaintBarcodeTest, EachKindHasItsPainter) {
  for (const auto& [kind, text, first] :
       std::initializer_list<std::tuple<const char*, const char*, double>>{{"1", "ABCDEF", 10},
                                                                           {"8", "12345670", 15},
                                                                           {"13", "5901234123457", 15},
                                                                           {"32", "026089019", 15},
                                                                           {"250", "12", 45},
                                                                           {"251", "12", 15},
                                                                           {"252", "12", 15},
                                                                           {"1282", "AB", 30},
                                                                           {"1283", "12", 30},
                                                                           {"12821", "AB", 30}}) {
    Paint(Add(kind, text));
    ASSERT_EQ(surface_.Symbols.size(), 1U) << kind;
    EXPECT_EQ(FirstWidth(), first) << kind;
  }
}

TEST_F(PaintBarcodeTest, OtherKindsPaintNothing) {
  for (const char* kind : {"", "0", "39", "9999", "EAN"}) {
    const int row = Add(kind, "123456");
    Paint(row);
    EXPECT_TRUE(IsBlank()) << kind;
    EXPECT_EQ(Record(row).Width, kStoredWidth);
  }
}

TEST_F(PaintBarcodeTest, UprightCode39AndModulesAreZoomedWithTheirBarWidth) {
  const int code39 = Add("1", "A");
  const int ean = Add("8", "12345670");
  // Width 10 becomes 20, which is a factor of two, and the unit has the zoom again.
  Paint(code39, 2);
  EXPECT_TRUE(Starts("6000 1600 000000: 0 0 40 800:"));
  Paint(ean, 2);
  EXPECT_TRUE(Starts("6000 1600 000000: 0 0 60 800:"));
  // Width 10 at 50 % is 5, a factor of 0.5.
  Paint(code39, 0.5);
  EXPECT_TRUE(Starts("1500 400 000000: 0 0 2 200:"));
  Paint(ean, 0.5);
  EXPECT_TRUE(Starts("1500 400 000000: 0 0 3 200:"));
}

TEST_F(PaintBarcodeTest, WidthsFollowTheZoomInTheirOwnWay) {
  const int two = Add("1", "A", 2);
  Paint(two, 2);  // 4 is a factor of 0.4
  EXPECT_EQ(FirstWidth(), 8);
  const int ten = Add("1", "A", 10);
  Paint(ten, 0.3);  // 3 is a factor of 3
  EXPECT_EQ(FirstWidth(), 9);
  const int one = Add("1", "A", 1);
  Paint(one, 0.75);  // 0.75 leaves the factor as it was
  EXPECT_EQ(bars_.BarMultiplier, 3);
  Paint(two);
  const int three = Add("1", "A", 3);
  Paint(three, 0.5);  // 1.5 leaves it too, and the bars have the factor of the code before and the zoom
  EXPECT_EQ(bars_.BarMultiplier, 2);
  EXPECT_EQ(FirstWidth(), 10);
}

TEST_F(PaintBarcodeTest, Code128StandsUnzoomedWithZoomedBars) {
  for (const char* kind : {"1282", "12821"}) {
    const int row = Add(kind, "A");
    Paint(row, 2);
    EXPECT_TRUE(Starts("3000 800 000000: 0 0 60 400:")) << kind;
    EXPECT_EQ(bars_.BarMultiplier, 1);
    EXPECT_EQ(Record(row).Width, 46 * 30 + 24);
  }
}

TEST_F(PaintBarcodeTest, VerticalCodesStandUnzoomedWithZoomedBars) {
  struct Case {
    const char *kind, *text;
    std::map<double, const char*> firstBars;  // by the zoom
  };
  for (const auto& [kind, text, bars] : {Case{"1", "A", {{0.5, "5"}, {1, "10"}, {2, "20"}}},
                                         Case{"8", "12345670", {{0.5, "7"}, {1, "15"}, {2, "30"}}},
                                         Case{"1282", "A", {{0.5, "16"}, {1, "30"}, {2, "60"}}}}) {
    const int row = Add(kind, text);
    Record(row).VerticalBar = kTrue;
    for (const auto& [zoom, bar] : bars) {
      Paint(row, zoom);
      EXPECT_TRUE(Starts(std::string("3000 800 000000: 0 0 400 ") + bar + ":")) << kind << ' ' << zoom;
      EXPECT_EQ(bars_.BarMultiplier, 1);
    }
  }
}

TEST_F(PaintBarcodeTest, WidthOfTheBarsIsStored) {
  const int code39 = Add("1", "A");
  Paint(code39);
  EXPECT_EQ(Record(code39).Width, 653);
  Paint(code39, 2);  // drawn 4 times as wide, and times the zoom
  EXPECT_EQ(Record(code39).Width, 2 * 4 * 653);
  Record(code39).VerticalBar = kTrue;
  Paint(code39);
  EXPECT_EQ(Record(code39).Width, 653);
  Paint(code39, 2);
  EXPECT_EQ(Record(code39).Width, 2 * 653);
}

TEST_F(PaintBarcodeTest, WidthOfModulesTakesNothingOff) {
  const int ean = Add("13", "5901234123457");
  Paint(ean);
  EXPECT_EQ(Record(ean).Width, 95 * 15);
  Paint(ean, 2);
  EXPECT_EQ(Record(ean).Width, 2 * 95 * 60);
  Record(ean).VerticalBar = kTrue;
  Paint(ean, 2);
  EXPECT_EQ(Record(ean).Width, 95 * 30);
}

TEST_F(PaintBarcodeTest, WidthOfCode128IsItsOwn) {
  const int row = Add("1282", "A");
  Paint(row);
  EXPECT_EQ(Record(row).Width, 46 * 15 + 24);
  Record(row).VerticalBar = kTrue;
  Paint(row);
  EXPECT_EQ(Record(row).Width, 46 * 15 + 24);
}

TEST_F(PaintBarcodeTest, WithoutBarsTheWidthStays) {
  for (const auto& [kind, text] : std::initializer_list<std::pair<const char*, const char*>>{
           {"1", ""}, {"8", ""}, {"1282", ""}, {"8", "1234567"}, {"251", "123"}, {"1283", "12,3"}}) {
    const int row = Add(kind, text);
    Paint(row);
    EXPECT_TRUE(IsBlank()) << kind << ' ' << text;
    EXPECT_EQ(Record(row).Width, kStoredWidth) << kind << ' ' << text;
    PaintPanel(row);
    EXPECT_EQ(Record(row).Width, kStoredWidth) << kind << ' ' << text;
  }
}

TEST_F(PaintBarcodeTest, WidthThatDoesNotFitStays) {
  const int row = Add("1", "ABCDEF", 32767);
  Record(row).BarcodeSample = std::string(500, 'A');
  Paint(row, 8);
  EXPECT_FALSE(IsBlank());
  EXPECT_EQ(Record(row).Width, kStoredWidth);
}

TEST_F(PaintBarcodeTest, TheKindOfThePageAloneHasNoVerticalFormAndNoPanel) {
  const int row = Add("12821", "(01)12345678");
  Paint(row);
  // Start, 12 characters and check of 11 modules, and the stop of 13.
  EXPECT_EQ(Record(row).Width, (14 * 11 + 13) * 15 + 14 * 6 + 6);
  Record(row).Width = kStoredWidth;
  PaintPanel(row);
  EXPECT_TRUE(surface_.Lines.empty());
  Record(row).VerticalBar = kTrue;
  Paint(row);
  EXPECT_TRUE(IsBlank());
  EXPECT_EQ(Record(row).Width, kStoredWidth);
}

TEST_F(PaintBarcodeTest, PanelTakesEverythingAsStored) {
  const int code39 = Add("1", "A");
  PaintPanel(code39, 2);
  EXPECT_TRUE(Starts("100 200 000000: 0 0 20 450:"));
  EXPECT_EQ(Record(code39).Width, 2 * 653);
  const int ean = Add("8", "12345670");
  PaintPanel(ean, 2);
  EXPECT_TRUE(Starts("100 200 000000: 0 0 30 400:"));
  EXPECT_EQ(Record(ean).Width, 67 * 30);
  const int code128 = Add("1282", "A");
  PaintPanel(code128, 2);
  EXPECT_TRUE(Starts("101 201 000000: 0 0 60 400:"));
  EXPECT_EQ(Record(code128).Width, 1 + 46 * 30 + 24);
}

TEST_F(PaintBarcodeTest, FullRedrawGivesTheSamePrimitivesAgain) {
  Add("1", "ABCDEF");
  Add("13", "1234567890123", 15);
  Add("1282", "123456", 2);
  Add("251", "1234567890", 3);
  for (const double zoom : {1.0, 0.5, 1.5, 8.0}) {
    Redraw(zoom);
    const std::string first = surface_.Take();
    Redraw(zoom);
    EXPECT_EQ(surface_.Take(), first) << zoom;
  }
}

TEST_F(PaintBarcodeTest, FactorIsCarriedFromOnePaintingToTheNext) {
  const int first = Add("1", "A", 0);
  Add("1", "A", 3);
  Record(first).AbsoluteY = 0;
  Redraw();
  EXPECT_EQ(FirstWidth(), 10);
  Redraw();
  EXPECT_EQ(FirstWidth(), 30);
}

TEST_F(PaintBarcodeTest, WithoutAStateEachRedrawBeginsAnewAndCarriesWithin) {
  const int last = Add("1", "A", 0);
  Add("1", "A", 3);
  Record(last).AbsoluteY = 5000;
  for (int round = 0; round < 2; ++round) {
    Forget();
    PaintContext context = Context(1);
    context.bars = nullptr;
    RedrawDocument(context, SetSortKeys(document_));
    EXPECT_EQ(surface_.Symbols.at(1).at(0).Right, 30);
  }
}

TEST_F(PaintBarcodeTest, WriteBackWithoutASurfaceStoresTheSameWidth) {
  const int row = Add("13", "5901234123457");
  ApplyRedrawWriteBack(document_, measurer_, DisplayFilter::All, {}, &bars_);
  EXPECT_EQ(Record(row).Width, 95 * 15);
}

TEST_F(PaintBarcodeTest, AnOverflowStopsOneObjectAlone) {
  const int wide = Add("1282", "123456");
  Record(wide).XValue = "32000";
  const int after = Add("8", "12345670");
  Record(after).AbsoluteY = 2000;
  Redraw();
  EXPECT_EQ(bars_.Stopped, std::set<int>{wide});
  EXPECT_EQ(Record(wide).Width, kStoredWidth);
  EXPECT_EQ(surface_.Symbols.size(), 2U);
  EXPECT_EQ(Record(after).Width, 67 * 15);
  Record(wide).XValue = "100";
  Redraw();
  EXPECT_TRUE(bars_.Stopped.empty());
}

TEST_F(PaintBarcodeTest, AWidePageAtHighZoomStopsCode128) {
  const int row = Add("1282", "ABCDEFGHIJ");
  Record(row).XValue = "20000";
  Redraw();
  EXPECT_TRUE(bars_.Stopped.empty());
  Redraw(8);
  EXPECT_EQ(bars_.Stopped, std::set<int>{row});
}

TEST_F(PaintBarcodeTest, BasicColoursAreTakenByTheirIndex) {
  const int row = Add("1", "A");
  Record(row).ColorR = 4;
  Record(row).ColorG = Record(row).ColorB = -1;
  Paint(row);
  EXPECT_TRUE(Starts("3000 800 800000:"));
  Record(row).ColorR = 1;
  Record(row).ColorG = 2;
  Record(row).ColorB = 3;
  Paint(row);
  EXPECT_TRUE(Starts("3000 800 010203:"));
}

}  // namespace
}  // namespace kev
