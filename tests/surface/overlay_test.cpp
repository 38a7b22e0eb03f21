// SPDX-License-Identifier: MIT
#include "surface/overlay.h"

#include "support/page_fixture.h"

namespace kev {
namespace {

class OverlayTest : public test::PageFixture {
 protected:
  // Selects the row; gives what its panel shows.
  std::string OverlayOf(int row) {
    Forget();
    Select(row);
    return PaintedOn("lblob(1)");
  }
  std::string OnPage(int row) {
    page_.canvas.Lines.clear();
    PaintContext context{page_.document, page_.canvas,      page_.measurer, page_.zoom,
                         page_.filter,   page_.canvasWidth, {"/t", 7}};
    PaintObject(context, row);
    return page_.canvas.Take();
  }
};

TEST_F(OverlayTest, LabelIsPrintedExactlyOverItselfInEachAlignment) {
  const int row = AddText("5000", 2000, 1000, "Total");
  Record(row).ColorR = 255;
  page_.zoom = 1.5;
  for (const char* align : {"L", "R", "C", ""}) {
    Record(row).Align = align;
    EXPECT_EQ(OverlayOf(row), "clear\n" + OnPage(row)) << align;
  }
  Record(row).Align = "R";
  Select(row);
  EXPECT_EQ(PlaceOf("lblob(1)"), "6000 3000 1500 345");
  EXPECT_EQ(Pointer().Overlay[1], (CanvasArea{6000, 3000, 7500, 3345}));
}

TEST_F(OverlayTest, CommandIsPrintedLikeALabel) {
  const int row = Add(ObjectKind::Command, "1000", 2000, 1000, 230);
  Record(row).Content = "@@pagebreak";
  EXPECT_EQ(OverlayOf(row), "clear\nforeground 000000\nfont Arial 10 cs0\ntext 1000 2000 @@pagebreak\n");
}

TEST_F(OverlayTest, TextBoxHasItsBackColourAndALineAboveItsBottomEdge) {
  const int row = Add(ObjectKind::TextBox, "100", 2000, 1000, 285);
  Record(row).Content = "Name";
  Record(row).BackColorR = Record(row).BackColorG = Record(row).BackColorB = 240;
  EXPECT_EQ(OverlayOf(row),
            "clear\n"
            "foreground 000000\n"
            "rect 100 2000 1100 2285 F0F0F0 filled\n"
            "foreground 000000\n"
            "font Arial 10 cs0\n"
            "text 100 2000 Name\n"
            "pen 000000 1\n"
            "line 100 2280 1100 2280\n");
}

TEST_F(OverlayTest, BandsHaveAnOverlayAsWideAsThePage) {
  Open();
  EXPECT_EQ(OverlayOf(bar_), "clear\n" + OnPage(bar_));
  EXPECT_EQ(Pointer().Overlay[1], (CanvasArea{0, 0, page_.canvasWidth, 400}));
  EXPECT_EQ(OverlayOf(end_), "clear\n" + OnPage(end_));
  EXPECT_EQ(Pointer().Overlay[1], (CanvasArea{0, 9400, page_.canvasWidth, 9480}));
  const int section = Add(ObjectKind::Section, "0", 9600, 100000, 400);
  Record(section).SectionTitle = "[CONFIGURATION]";
  EXPECT_EQ(OverlayOf(section), "clear\n" + OnPage(section));
  EXPECT_TRUE(Shown("lblob(1)"));
}

TEST_F(OverlayTest, PicturesAndShapesAreCopied) {
  const int picture = Add(ObjectKind::Picture, "1000", 2000, 800, 600);
  Record(picture).PictureFile = "logo.png";
  EXPECT_EQ(OverlayOf(picture), "clear\nimage 1000 2000 800 600 logo.png\n");
  const int circle = Add(ObjectKind::Circle, "1000", 3000, 800, 800);
  EXPECT_EQ(OverlayOf(circle),
            "clear\nforeground 000000\npen 000000 1\ncircle 1400 3400 400\npen 787878 1\n");
  const int qr = Add(ObjectKind::Qr, "1000", 4000, 800, 800);
  EXPECT_EQ(OverlayOf(qr), "clear\n" + OnPage(qr));
  EXPECT_EQ(PlaceOf("lblob(1)"), "1000 4000 800 800");
}

TEST_F(OverlayTest, LineIsSizedToItself) {
  const int row = Add(ObjectKind::Line, "3000", 2000, -1000, 50);
  Record(row).X2Value = "2000";
  Record(row).LineWidth = 2;
  Record(row).LineFlag = kTrue;
  EXPECT_EQ(OverlayOf(row),
            "clear\nforeground 000000\npen 000000 2 dotted\nline 3000 2000 2000 2000\npen 787878 1\n");
  EXPECT_EQ(PlaceOf("lblob(1)"), "2000 2000 1000 50");
}

TEST_F(OverlayTest, BarcodeShowsItsBarsAndOneSymbologyNothing) {
  const int row = Add(ObjectKind::Barcode, "1000", 2000, 3000, 500);
  Record(row).BarcodeKind = "1";
  Record(row).BarcodeSample = "A";
  Record(row).BarWidth = 10;
  const std::string shown = OverlayOf(row);
  EXPECT_TRUE(
      shown.starts_with("clear\nclear\nforeground 000000\npen 000000 1\n"
                        "symbol 1000 2000 000000: 0 0 10 550: 46 0 56 550:"))
      << shown;
  EXPECT_EQ(Record(row).Width, 653);
  Record(row).BarcodeKind = "12821";
  EXPECT_EQ(OverlayOf(row), "clear\n");
  EXPECT_TRUE(Shown("lblob(1)"));
}

TEST_F(OverlayTest, VerticalBarcodeHasItsSizesSwapped) {
  const int row = Add(ObjectKind::Barcode, "1000", 2000, 3000, 500);
  Record(row).VerticalBar = kTrue;
  Select(row);
  EXPECT_EQ(PlaceOf("lblob(1)"), "1000 2000 500 3000");
}

TEST_F(OverlayTest, BoxIsFourBarsOutsideIt) {
  const int row = Add(ObjectKind::Box, "1000", 2000, 800, 600);
  page_.zoom = 0.5;
  EXPECT_EQ(OverlayOf(row), "clear\nrect 475 975 925 1000 E6E6E6 filled\n");
  EXPECT_EQ(PlaceOf("lblob(1)"), "475 975 450 25");
  EXPECT_EQ(PlaceOf("lblob(2)"), "900 975 25 350");
  EXPECT_EQ(PlaceOf("lblob(3)"), "475 1300 450 25");
  EXPECT_EQ(PlaceOf("lblob(4)"), "475 975 25 350");
  for (int bar = 1; bar <= 4; ++bar)
    EXPECT_TRUE(Shown("lblob(" + std::to_string(bar) + ")")) << bar;
  EXPECT_EQ(Pointer().Overlay[1].Left, 475);
  EXPECT_EQ(Pointer().Overlay[3].Bottom, 1325);
}

TEST_F(OverlayTest, ChartKeepsItsPictureBesideTheBars) {
  const int row = Add(ObjectKind::Chart, "1000", 2000, 800, 600);
  EXPECT_EQ(OverlayOf(row), "clear\n" + OnPage(row));
  EXPECT_EQ(PlaceOf("lblob(1)"), "1000 2000 800 600");
  EXPECT_EQ(PlaceOf("lblob(2)"), "1800 1975 25 650");
  EXPECT_EQ(PaintedOn("lblob(3)"), "clear\nrect 975 2600 1825 2625 E6E6E6 filled\n");
  EXPECT_TRUE(Shown("lblob(4)"));
}

TEST_F(OverlayTest, AnyLineHasGripsAtItsEndsAndALineBetween) {
  const int row = Add(ObjectKind::AnyLine, "3000", 2000, -1000, 500);
  Record(row).LineWidth = 3;
  Record(row).LineFlag = kTrue;
  page_.zoom = 2;
  EXPECT_EQ(OverlayOf(row), "");
  EXPECT_FALSE(Shown("lblob(1)"));
  EXPECT_EQ(PlaceOf("ObjL1"), "5955 3955 90 90");
  EXPECT_EQ(PlaceOf("ObjL2"), "3955 4955 90 90");
  EXPECT_EQ(PlaceOf("Lineaviva"), "6000 4000 -2000 1000");
  EXPECT_EQ(PaintedOn("Lineaviva"), "clear\npen 000000 3 dotted\nline 6000 4000 4000 5000\n");
  for (const char* name : {"ObjL1", "ObjL2", "Lineaviva"})
    EXPECT_TRUE(Shown(name)) << name;
  EXPECT_TRUE(page_.surface.Has("say ObjL1 First point"));
  EXPECT_EQ(Pointer().LineStart, (CanvasPoint{6000, 4000}));
  EXPECT_EQ(Pointer().LineEnd, (CanvasPoint{4000, 5000}));
}

TEST_F(OverlayTest, OnlyThePanelsOfTheCurrentObjectStay) {
  const int box = Add(ObjectKind::Box, "1000", 2000, 800, 600);
  const int label = AddText("5000", 2000, 1000, "Total");
  Select(box);
  Select(label);
  EXPECT_TRUE(Shown("lblob(1)"));
  for (const char* name : {"lblob(2)", "lblob(3)", "lblob(4)"})
    EXPECT_FALSE(Shown(name)) << name;
  EXPECT_EQ(Pointer().Overlay[2], CanvasArea());
}

}  // namespace
}  // namespace kev
