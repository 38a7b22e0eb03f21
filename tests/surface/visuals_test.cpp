// SPDX-License-Identifier: MIT
#include "surface/visuals.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "document/colours.h"
#include "support/recording_surface.h"
#include "support/sample_page.h"

namespace kev {
namespace {

using test::AddLabel;
using test::AddRow;
using test::AddSubsection;
using test::RecordingSurface;

class VisualsTest : public testing::Test {
 protected:
  PaintContext Context(double zoom = 1, DisplayFilter filter = DisplayFilter::All) {
    return {.document = document_,
            .surface = surface_,
            .measurer = measurer_,
            .ZoomFactor = zoom,
            .filter = filter,
            .canvasWidth = 12000,
            .images = {"/t", 7}};
  }
  PaintResult Redraw(double zoom = 1, DisplayFilter filter = DisplayFilter::All) {
    PaintContext context = Context(zoom, filter);
    return RedrawDocument(context, SetSortKeys(document_));
  }
  // The operations of one row.
  std::string Painted(int row, double zoom = 1) {
    PaintContext context = Context(zoom);
    PaintObject(context, row);
    return surface_.Take();
  }
  ObjectRecord& Record(int row) { return document_.Objects[row]; }

  Document document_;
  RecordingSurface surface_;
  BuiltInMeasurer measurer_;
};

TEST_F(VisualsTest, LabelIsPrintedAtItsTopLeftInZoomedFont) {
  const int row = AddLabel(document_, "720", 400, "Total");
  Record(row).ColorR = 255;
  Record(row).Bold = kTrue;
  EXPECT_EQ(Painted(row, 2),
            "foreground FF0000\n"
            "font Arial 20 bold cs0\n"
            "text 1440 800 Total\n");
}

TEST_F(VisualsTest, LabelIsAnchoredByItsAlignment) {
  const int row = AddLabel(document_, "5000", 0, "Total");
  const double width = measurer_.Measure(FontSpec{}, "Total").Width;
  Record(row).Align = "R";
  EXPECT_EQ(Painted(row),
            "foreground 000000\nfont Arial 10 cs0\ntext " + FormatNumber(5000 - width) + " 0 Total\n");
  Record(row).Align = "C";
  EXPECT_EQ(Painted(row),
            "foreground 000000\nfont Arial 10 cs0\ntext " + FormatNumber(5000 - width / 2) + " 0 Total\n");
  Record(row).Align = "";
  EXPECT_EQ(Painted(row), "foreground 000000\nfont Arial 10 cs0\ntext 5000 0 Total\n");
}

TEST_F(VisualsTest, OnlyLabelAndCommandAreAnchored) {
  const int row = AddRow(document_, ObjectKind::TextBox, "5000", 0, 1000, 285);
  Record(row).Align = "R";
  EXPECT_TRUE(Painted(row).starts_with("foreground 000000\nrect 5000 0 6000 285"));
}

TEST_F(VisualsTest, PositionFollowsItsColumn) {
  document_.Columns[3] = {"$Col_03", 2000, ""};
  const int row = AddLabel(document_, "$Col_03", 0, "x");
  EXPECT_EQ(Painted(row, 0.5), "foreground 000000\nfont Arial 5 cs0\ntext 1000 0 x\n");
}

TEST_F(VisualsTest, CommandIsMeasuredWhenPainted) {
  const int row = AddRow(document_, ObjectKind::Command, "0", 0, 0, 0);
  Record(row).Content = "@@pagebreak";
  const TextExtent extent = measurer_.Measure(FontSpec{}, "@@pagebreak");
  EXPECT_EQ(Painted(row, 4), "foreground 000000\nfont Arial 40 cs0\ntext 0 0 @@pagebreak\n");
  EXPECT_EQ(Record(row).Width, ToInt32(extent.Width));
  EXPECT_EQ(Record(row).Height, ToInt32(extent.Height));
}

TEST_F(VisualsTest, TextBoxIsFilledPrintedAndFramed) {
  const int row = AddRow(document_, ObjectKind::TextBox, "100", 200, 1000, 285);
  ObjectRecord& record = Record(row);
  record.Content = "Name";
  record.ColorB = 128;
  record.BackColorR = record.BackColorG = record.BackColorB = 240;
  EXPECT_EQ(Painted(row),
            "foreground 000080\n"
            "rect 100 200 1100 485 F0F0F0 filled\n"
            "foreground 000080\n"
            "font Arial 10 cs0\n"
            "text 100 200 Name\n");
  for (const char* style : {"1", "2"}) {
    record.TextBoxFrameValue = style;
    EXPECT_TRUE(Painted(row).ends_with("text 100 200 Name\nrect 100 200 1100 485 000080\n")) << style;
  }
  record.TextBoxFrameValue = "3";
  EXPECT_TRUE(Painted(row).ends_with("text 100 200 Name\n"));
}

TEST_F(VisualsTest, TextBoxWithoutBackColourIsWhite) {
  const int row = AddRow(document_, ObjectKind::TextBox, "0", 0, 100, 100);
  ObjectRecord& record = Record(row);
  record.BackColorR = record.BackColorG = record.BackColorB = -1;
  EXPECT_NE(Painted(row).find("rect 0 0 100 100 FFFFFF filled"), std::string::npos);
  record.BackColorR = 4;
  EXPECT_NE(Painted(row).find("rect 0 0 100 100 800000 filled"), std::string::npos);
}

TEST_F(VisualsTest, BoxIsDrawnInItsOwnPenAndThePenRests) {
  const int row = AddRow(document_, ObjectKind::Box, "10", 20, 300, 400);
  Record(row).LineWidth = 3;
  Record(row).ColorG = 128;
  EXPECT_EQ(Painted(row, 2), "foreground 008000\npen 008000 3\nrect 20 40 620 840\npen 787878 1\n");
  Record(row).Filled = kTrue;
  Record(row).LineFlag = kTrue;
  EXPECT_EQ(Painted(row),
            "foreground 008000\npen 008000 3 dotted\nrect 10 20 310 420 filled\npen 787878 1\n");
}

TEST_F(VisualsTest, LineWidthZeroIsStoredAsOneWhenPainted) {
  for (const ObjectKind kind : {ObjectKind::Box, ObjectKind::Line, ObjectKind::AnyLine, ObjectKind::Circle}) {
    const int row = AddRow(document_, kind, "0", 0, 100, 100);
    EXPECT_NE(Painted(row).find("pen 000000 1\n"), std::string::npos);
    EXPECT_EQ(Record(row).LineWidth, 1);
  }
}

TEST_F(VisualsTest, LineIsLevelAndStoresItsWidth) {
  const int row = AddRow(document_, ObjectKind::Line, "1000", 50, 7, 50);
  Record(row).X2Value = "400";
  Record(row).LineFlag = kTrue;
  EXPECT_EQ(Painted(row, 2), "foreground 000000\npen 000000 1 dotted\nline 2000 100 800 100\npen 787878 1\n");
  EXPECT_EQ(Record(row).Width, -600);
}

TEST_F(VisualsTest, AnyLineTakesNegativeSizes) {
  const int row = AddRow(document_, ObjectKind::AnyLine, "1000", 500, -300, -100);
  EXPECT_EQ(Painted(row), "foreground 000000\npen 000000 1\nline 1000 500 700 400\npen 787878 1\n");
}

TEST_F(VisualsTest, CircleIsRoundByItsWidth) {
  const int row = AddRow(document_, ObjectKind::Circle, "0", 0, 1000, 500);
  EXPECT_EQ(Painted(row), "foreground 000000\npen 000000 1\ncircle 500 500 500\npen 787878 1\n");
}

TEST_F(VisualsTest, PictureIsStretchedIntoItsRectangle) {
  const int row = AddRow(document_, ObjectKind::Picture, "10", 20, 300, 400);
  Record(row).PictureFile = "\\dashes.bmp";
  EXPECT_EQ(Painted(row, 0.5), "image 5 10 150 200 \\dashes.bmp\n");
}

// A file of that name may be there, left by another run.
TEST_F(VisualsTest, QrAndChartAreNamedByRowAndFramedAlone) {
  const int qr = AddRow(document_, ObjectKind::Qr, "0", 0, 2000, 2000);
  Record(qr).Y = 120;
  const std::string framed = Painted(qr);
  EXPECT_NE(framed.find("rect 0 0 2000 2000 A0A0A0\n"), std::string::npos);
  EXPECT_EQ(framed.find("image"), std::string::npos);
  EXPECT_EQ(Record(qr).PictureFile, "/t\\1_120.bmp");
  const int chart = AddRow(document_, ObjectKind::Chart, "0", 0, 4000, 2000);
  Record(chart).ChartValues = {"PIE"};
  const std::string painted = Painted(chart);
  EXPECT_NE(painted.find(" CHART PIE\n"), std::string::npos);
  EXPECT_EQ(painted.find("image"), std::string::npos);
  EXPECT_EQ(Record(chart).PictureFile, "/t\\Sc207.bmp");
}

TEST_F(VisualsTest, CaptionsOfPlaceholdersAreCutWhereTheyHaveNoRoom) {
  const FontSpec font{.Name = "Arial", .Size = 8};
  const int chart = AddRow(document_, ObjectKind::Chart, "0", 0, 2000, 1000);
  Record(chart).ChartValues = {"Sales by month"};
  EXPECT_NE(Painted(chart).find(" CHART Sales by month\n"), std::string::npos);
  Record(chart).Width = ToInt32(measurer_.Measure(font, "CHART Sales...").Width + 1);
  EXPECT_NE(Painted(chart).find(" CHART Sales...\n"), std::string::npos);
  Record(chart).Width = 50;
  EXPECT_EQ(Painted(chart).find("text"), std::string::npos);
  Record(chart).Width = 2000;
  Record(chart).ChartValues = {std::string(100000, 'x')};
  EXPECT_NE(Painted(chart).find("...\n"), std::string::npos);
}

TEST_F(VisualsTest, SessionNumberOfThreeDigitsIsNotCut) {
  EXPECT_EQ(ChartImageName({"/t", 123}, 5), "/t\\Sc5123.bmp");
}

TEST_F(VisualsTest, SectionCaptionStaysAtTheHeadOfThePage) {
  const int row = AddRow(document_, ObjectKind::Section, "0", 700, 0, 400);
  Record(row).SectionTitle = "Report";
  EXPECT_EQ(Painted(row, 2),
            "rect 0 1400 12000 2200 AAAAAA filled\n"
            "foreground 000000\n"
            "font Arial 8 cs0\n"
            "text 20 20 Report\n");
}

TEST_F(VisualsTest, SubsectionBandsCarryTheirCaption) {
  const int base = AddSubsection(document_, "[Data]", 1000, 500);
  EXPECT_EQ(Painted(base, 2),
            "image 0 2000 12000 800 \\Pbms\\sectpic.prbm\n"
            "foreground 000000\n"
            "font Arial 16 cs0\n"
            "text 20 2020 Section: [Data]\n");
  EXPECT_EQ(Painted(Record(base).EndRow), "image 0 1900 12000 80 \\Pbms\\eos.prbm\n");
}

TEST_F(VisualsTest, SubsectionNameIsCutInItsCaption) {
  const int row = AddSubsection(document_, "[DATA] [" + std::string(300, 'x') + "]", 0, 500);
  Record(row).StartY = "1200";
  const std::string painted = Painted(row);
  EXPECT_NE(painted.find(std::string(192, 'x') + " [Starts in position: 1200]\n"), std::string::npos);
  EXPECT_EQ(painted.find(std::string(193, 'x')), std::string::npos);
}

TEST_F(VisualsTest, RowsArePaintedFromTopToBottomThenLeftToRightThenByRow) {
  AddLabel(document_, "500", 300, "d");
  AddLabel(document_, "500", 100, "b");
  AddLabel(document_, "-500", 100, "a");
  AddLabel(document_, "500", 100, "c");
  Redraw();
  EXPECT_EQ(surface_.Only("text"), (std::vector<std::string>{"text -500 100 a", "text 500 100 b",
                                                             "text 500 100 c", "text 500 300 d"}));
}

TEST_F(VisualsTest, FilterHidesRowsButNoBands) {
  AddSubsection(document_, "[DATA]", 0, 500);
  const int mine = AddLabel(document_, "0", 500, "mine");
  Record(mine).ModifiableByEndUser = 1;
  const int silent = AddLabel(document_, "0", 600, "silent");
  Record(silent).PrintFlag = kFalse;
  // Only 1 says so, unlike a flag.
  const int flagged = AddLabel(document_, "0", 700, "flagged");
  Record(flagged).ModifiableByEndUser = kTrue;
  Redraw(1, DisplayFilter::Ebeu);
  EXPECT_TRUE(surface_.Has("text 0 500 mine"));
  EXPECT_FALSE(surface_.Has("text 0 700 flagged"));
  EXPECT_FALSE(surface_.Has("text 0 600 silent"));
  EXPECT_EQ(surface_.Only("image").size(), 2U);
  surface_.Take();
  Record(mine).PrintFlag = kTrue;
  Redraw(1, DisplayFilter::Print);
  EXPECT_FALSE(surface_.Has("text 0 600 silent"));
  surface_.Take();
  Redraw();
  EXPECT_TRUE(surface_.Has("text 0 600 silent"));
}

TEST_F(VisualsTest, SelectedObjectsCarryMarksAndBounds) {
  Record(AddRow(document_, ObjectKind::Box, "100", 200, 1000, 500)).Selected = kTrue;
  Record(AddRow(document_, ObjectKind::Box, "3000", 900, 100, 100)).Selected = kTrue;
  const PaintResult result = Redraw(2);
  EXPECT_EQ(result.SelectionCount, 2);
  EXPECT_TRUE(result.MultiSelected());
  EXPECT_EQ(result.SelectionBounds, (CanvasArea{200, 400, 6200, 2000}));
  const auto fills = surface_.Only("rect");
  EXPECT_EQ(fills[1], "rect 200 400 275 475 F5F5F5 filled");
  EXPECT_EQ(fills[2], "rect 200 400 275 475 0000FF");
  EXPECT_EQ(fills[3], "rect 2125 400 2200 475 F5F5F5 filled");
  EXPECT_EQ(fills[4], "rect 2125 400 2200 475 0000FF");
  EXPECT_EQ(fills[5], "rect 2125 1325 2200 1400 F5F5F5 filled");
  EXPECT_EQ(fills[6], "rect 2125 1325 2200 1400 0000FF");
  EXPECT_EQ(fills[7], "rect 200 1325 275 1400 F5F5F5 filled");
  EXPECT_EQ(fills[8], "rect 200 1325 275 1400 0000FF");
}

TEST_F(VisualsTest, WhatAFilterHidesIsNoMemberOfAGroupAnyMore) {
  const int row = AddLabel(document_, "0", 0, "x");
  Record(row).Selected = kTrue;
  Record(row).PrintFlag = kFalse;
  EXPECT_TRUE(Redraw().MultiSelected());
  EXPECT_FALSE(Redraw(1, DisplayFilter::Print).MultiSelected());
  EXPECT_EQ(Record(row).Selected, kFalse);
  EXPECT_FALSE(Redraw().MultiSelected());
}

TEST_F(VisualsTest, BoundsOfFlatObjectsCanBeTakenHoldOf) {
  Record(AddRow(document_, ObjectKind::AnyLine, "1000", 500, -300, 0)).Selected = kTrue;
  EXPECT_EQ(Redraw().SelectionBounds, (CanvasArea{700, 500, 1000, 575}));
}

TEST_F(VisualsTest, MarksOfAVerticalBarcodeFollowTheZoomOnlySideways) {
  const int row = AddRow(document_, ObjectKind::Barcode, "1000", 800, 600, 200);
  Record(row).VerticalBar = kTrue;
  Record(row).Selected = kTrue;
  const PaintResult result = Redraw(0.5);
  EXPECT_TRUE(surface_.Has("rect 500 800 575 875 F5F5F5 filled"));
  EXPECT_TRUE(surface_.Has("rect 625 1325 700 1400 F5F5F5 filled"));
  EXPECT_EQ(result.SelectionBounds, (CanvasArea{500, 400, 600, 700}));
}

TEST_F(VisualsTest, StatusNamesSeveralSelectedObjects) {
  EXPECT_EQ(SelectionStatus(3, "selected"), "3 selected");
  EXPECT_EQ(SelectionStatus(1, "selected"), "");
  EXPECT_EQ(SelectionStatus(0, "selected"), "");
}

TEST_F(VisualsTest, WriteBackWithoutSurfaceEqualsARedraw) {
  AddRow(document_, ObjectKind::Box, "0", 0, 10, 10);
  Record(AddRow(document_, ObjectKind::Line, "100", 0, 5, 50)).X2Value = "900";
  Record(AddRow(document_, ObjectKind::Command, "0", 30, 0, 0)).Content = "@@page";
  AddRow(document_, ObjectKind::Qr, "0", 60, 100, 100);
  AddRow(document_, ObjectKind::Chart, "0", 90, 100, 100);
  const int hidden = AddRow(document_, ObjectKind::Circle, "0", 0, 10, 10);
  Record(hidden).PrintFlag = kFalse;
  Document copy = document_;
  ApplyRedrawWriteBack(copy, measurer_, DisplayFilter::Print, {"/t", 7});
  Redraw(3, DisplayFilter::Print);
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
    EXPECT_EQ(copy.Objects[row], document_.Objects[row]) << row;
  EXPECT_EQ(copy.Objects[1].LineWidth, 1);
  EXPECT_EQ(copy.Objects[2].Width, 800);
  EXPECT_GT(copy.Objects[3].Width, 0);
  EXPECT_EQ(copy.Objects[hidden].LineWidth, 0);
}

TEST(Colours, IndexIsLookedUpAndPartsAreClamped) {
  EXPECT_EQ(NormaliseColour({4, -1, -1}), (Colour{128, 0, 0}));
  EXPECT_EQ(NormaliseColour({15, -1, -1}), (Colour{255, 255, 255}));
  EXPECT_EQ(NormaliseColour({9, 0, -1}), (Colour{0, 0, 255}));
  EXPECT_EQ(NormaliseColour({16, -1, -1}), (Colour{0, 0, 0}));
  EXPECT_EQ(NormaliseColour({-1, -1, -1}), (Colour{0, 0, 0}));
  EXPECT_EQ(NormaliseColour({255, 0, -1}), (Colour{0, 0, 0}));
  EXPECT_EQ(NormaliseColour({300, -5, 20}), (Colour{255, 0, 20}));
}

}  // namespace
}  // namespace kev
