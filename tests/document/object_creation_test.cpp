// SPDX-License-Identifier: MIT
#include "document/object_creation.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "chart/definition.h"

namespace kev {
namespace {

// Every character is as wide as half the size and as high as the size, in twips.
class PlainMeasurer final : public TextMeasurer {
 public:
  TextExtent Measure(const FontSpec& font, std::string_view text) const override {
    return {static_cast<double>(text.size()) * font.Size * 10, font.Size * 20};
  }
};

class OnePicture final : public PictureSource {
 public:
  PictureAnswer Look(std::string_view path) override {
    asked = path;
    return {"\\Cache\\logo.png", TextExtent{2000, 1000}};
  }
  std::string asked;
};

class ObjectCreation : public testing::Test {
 protected:
  ObjectRecord& Add(const NewObject& object) {
    CreationContext context{document, attributes, cursor, measurer, *source, zoom, {}};
    return document.Objects[AddObject(context, object)];
  }
  ObjectRecord& AddKind(ObjectKind kind) {
    NewObject object;
    object.kind = kind;
    return Add(object);
  }
  ObjectRecord& OpenSubsection(const std::string& section, const std::string& title) {
    NewObject object;
    object.kind = ObjectKind::Subsection;
    object.sectionName = section;
    object.title = title;
    return Add(object);
  }
  ObjectRecord& CloseSubsection() {
    NewObject object;
    object.kind = ObjectKind::EndOfSubsection;
    object.extra = std::to_string(cursor.OpenSubsection);
    return Add(object);
  }

  Document document;
  AttributeState attributes;
  LayoutCursor cursor;
  PlainMeasurer measurer;
  NoPictures noPictures;
  OnePicture onePicture;
  PictureSource* source = &noPictures;
  double zoom = 1;
};

struct KindRow {
  ObjectKind kind;
  std::string_view handles;
  Flag vertical, horizontal, resize;
  std::int16_t alignToGrid;  // where the state says 0
  std::string_view align;    // where the state says "C"
};

TEST_F(ObjectCreation, GivesEachKindItsGripsAndItsFreedom) {
  constexpr KindRow kRows[] = {
      {ObjectKind::Section, "00000000", 0, 0, 0, 1, ""},
      {ObjectKind::Subsection, "00000000", 0, 0, 0, 1, "L"},
      {ObjectKind::EndOfSubsection, "01000100", -1, 0, 0, 0, "L"},
      {ObjectKind::Command, "11101110", -1, -1, 0, 0, ""},
      {ObjectKind::Box, "11111111", -1, -1, -1, 0, "L"},
      {ObjectKind::Chart, "11111111", -1, -1, -1, 0, "L"},
      {ObjectKind::Line, "10010000", -1, -1, -1, 0, "L"},
      {ObjectKind::Circle, "01010101", -1, -1, -1, 0, "L"},
      {ObjectKind::AnyLine, "00000000", -1, -1, -1, 0, "L"},
      {ObjectKind::Picture, "11111111", -1, -1, -1, 0, "L"},
      {ObjectKind::Barcode, "10101010", -1, -1, 0, 0, "L"},
      {ObjectKind::Qr, "10101010", -1, -1, 0, 0, "L"},
      {ObjectKind::Label, "11101110", -1, -1, 0, 0, "C"},
      {ObjectKind::TextBox, "11101110", -1, -1, -1, 0, "L"},
  };
  attributes.AttrAtg = 0;
  attributes.AttrAlign = "C";
  for (const KindRow& row : kRows) {
    const ObjectRecord& record = AddKind(row.kind);
    EXPECT_EQ(record.Kind, row.kind);
    EXPECT_EQ(record.Handles, row.handles) << KindText(row.kind);
    EXPECT_EQ(record.MayMoveVertically, row.vertical) << KindText(row.kind);
    EXPECT_EQ(record.MayMoveHorizontally, row.horizontal) << KindText(row.kind);
    EXPECT_EQ(record.MayResize, row.resize) << KindText(row.kind);
    EXPECT_EQ(record.AlignToGrid, row.alignToGrid) << KindText(row.kind);
    EXPECT_EQ(record.Align, row.align) << KindText(row.kind);
  }
}

TEST_F(ObjectCreation, TakesTheFirstFreeRowWhateverTheKind) {
  for (int n = 0; n < 5; ++n)
    AddKind(ObjectKind::Box);
  document.Objects.ClearRow(3);
  EXPECT_EQ(&AddKind(ObjectKind::Circle), &document.Objects[3]);
}

TEST_F(ObjectCreation, OfNoKindChangesNothing) {
  CreationContext context{document, attributes, cursor, measurer, *source, 1, {}};
  EXPECT_EQ(AddObject(context, NewObject{}), 0);
  EXPECT_EQ(document.Objects[1], ObjectRecord{});
}

TEST_F(ObjectCreation, FailsAtTheEndOfTheTableAndLeavesNoPartialRow) {
  for (int n = 0; n < 2001; ++n)
    AddKind(ObjectKind::Box);
  const LayoutCursor before = cursor;
  EXPECT_THROW(AddKind(ObjectKind::Subsection), std::out_of_range);
  EXPECT_EQ(document.Objects[2001].Kind, ObjectKind::Box);
  EXPECT_EQ(document.Objects[0], ObjectRecord{});
  EXPECT_EQ(cursor.OpenSubsection, before.OpenSubsection);
}

TEST_F(ObjectCreation, TellsOfEachRowAsItIsTaken) {
  std::vector<std::pair<int, ObjectKind>> told;
  CreationContext context{document, attributes, cursor, measurer, *source, 1, [&](int row, ObjectKind kind) {
                            told.emplace_back(row, kind);
                          }};
  NewObject object;
  object.kind = ObjectKind::Box;
  AddObject(context, object);
  EXPECT_EQ(told, (std::vector<std::pair<int, ObjectKind>>{{1, ObjectKind::Box}}));
}

TEST_F(ObjectCreation, OfASectionBarMovesTheSurface) {
  cursor.SurfaceY = 50;
  const ObjectRecord& section = AddKind(ObjectKind::Section);
  EXPECT_EQ(section.AbsoluteY, 150);
  EXPECT_EQ(section.Height, 400);
  EXPECT_EQ(cursor.SurfaceY, 550);
}

TEST_F(ObjectCreation, OfASubsectionOpensIt) {
  cursor.SurfaceY = 1000;
  cursor.CursorY = cursor.SubsectionMaxY = 77;
  const ObjectRecord& bar = OpenSubsection("[DATA]", "[Items:a,b]");
  EXPECT_EQ(bar.SectionOwner, "[DATA]");
  EXPECT_EQ(bar.SectionTitle, "[DATA] [Items:a,b]");
  EXPECT_EQ(bar.SectionName, "ITEMS");
  EXPECT_EQ(bar.Content, "[DATA] [Items:a,b] [Starts in position: Current Y Value]");
  EXPECT_EQ(bar.StartY, "Current Y Value");
  EXPECT_EQ(bar.EndsAt, 200);
  EXPECT_EQ(bar.Height, 400);
  EXPECT_EQ(bar.Width, 100000);
  EXPECT_EQ(bar.FontName, "Arial");
  EXPECT_EQ(bar.FontSize, 8);
  EXPECT_EQ(bar.PrintFlag, -1);
  EXPECT_EQ(bar.ColorR, 200);
  EXPECT_EQ(bar.ColorG, 200);
  EXPECT_EQ(bar.ColorB, 200);
  EXPECT_EQ(bar.AbsoluteY, 1000);
  EXPECT_EQ(cursor.OpenSubsection, 1);
  EXPECT_EQ(cursor.SubsectionRow, 1);
  EXPECT_EQ(cursor.SubsectionTop, 1000);
  EXPECT_EQ(cursor.CursorY, 0);
  EXPECT_EQ(cursor.SubsectionMaxY, 0);
  EXPECT_EQ(cursor.SurfaceY, 1400);
}

struct TitleRow {
  std::string_view section, line, title, name, content;
};

TEST_F(ObjectCreation, ReducesTheTitleOfABaseSubsection) {
  constexpr TitleRow kRows[] = {
      {"[DATA]", "[DATA]", "[DATA]", "DATA]", "Section: [DATA]"},
      {"[DATA]", " [data] ", "[DATA]", "DATA]", "Section: [DATA]"},
      {"[HEADER]", "[HEADER]", "[HEADER]", "HEADER]", "Section: [HEADER]"},
      {"[FOOTER]", "[FOOTER]", "[FOOTER]", "FOOTER]", "Section: [FOOTER]"},
      {"[DATA]", "  [ITEMS]  ", "[DATA] [ITEMS]", "ITEMS]",
       "[DATA] [ITEMS] [Starts in position: Current Y Value]"},
      {"[DATA]", "[My Items : a]", "[DATA] [My Items : a]", "MY ITEMS ",
       "[DATA] [My Items : a] [Starts in position: Current Y Value]"},
      {"[CONFIGURATION]", "[CONFIGURATION]", "[CONFIGURATION] [CONFIGURATION]", "CONFIGURATION]",
       "[CONFIGURATION] [CONFIGURATION] [Starts in position: Current Y Value]"},
  };
  for (const TitleRow& row : kRows) {
    const ObjectRecord& bar = OpenSubsection(std::string(row.section), std::string(row.line));
    EXPECT_EQ(bar.SectionTitle, row.title);
    EXPECT_EQ(bar.SectionName, row.name);
    EXPECT_EQ(bar.Content, row.content);
  }
}

TEST_F(ObjectCreation, OfAnEndBarClosesTheSubsection) {
  const ObjectRecord& bar = OpenSubsection("[DATA]", "[ITEMS]");
  cursor.CursorY = 300;
  cursor.SubsectionMaxY = 700;
  const ObjectRecord& end = CloseSubsection();
  EXPECT_EQ(bar.EndRow, 2);
  EXPECT_EQ(bar.EndsAt, 700);
  EXPECT_EQ(bar.SectionCursorY, 300);
  EXPECT_EQ(end.OwnerName, "ITEMS]");
  EXPECT_EQ(end.Y, 700);
  EXPECT_EQ(end.AbsoluteY, 1100);
  EXPECT_EQ(end.Height, 80);
  EXPECT_EQ(end.Width, 100000);
  EXPECT_EQ(end.PrintFlag, -1);
  EXPECT_EQ(cursor.SurfaceY, 1180);
  EXPECT_EQ(cursor.OpenSubsection, 0);
}

TEST_F(ObjectCreation, OfAnEndBarBehindAPageBreakAddsOneStep) {
  document.Settings[Setting::Spacing] = "250";
  const ObjectRecord& bar = OpenSubsection("[DATA]", "[ITEMS]");
  cursor.CursorY = 300;
  cursor.SubsectionMaxY = 700;
  cursor.LastCommand = kPageBreak;
  CloseSubsection();
  EXPECT_EQ(bar.EndsAt, 950);
  EXPECT_EQ(bar.SectionCursorY, 950);
  EXPECT_EQ(cursor.LastCommand, "");
}

TEST_F(ObjectCreation, OfAnEndBarWithoutASubsectionStandsAlone) {
  const ObjectRecord& end = CloseSubsection();
  EXPECT_EQ(end.Kind, ObjectKind::EndOfSubsection);
  EXPECT_EQ(end.OwnerName, "");
  EXPECT_EQ(end.Y, 0);
  EXPECT_EQ(document.Objects[0], ObjectRecord{});
}

TEST_F(ObjectCreation, PlacesAtTheCursorOrAtTheGivenY) {
  cursor.SurfaceY = 1000;
  ObjectRecord& bar = OpenSubsection("[DATA]", "[ITEMS]");
  cursor.CursorY = 120;
  cursor.SurfaceY = 1520;
  NewObject object;
  object.kind = ObjectKind::Box;
  EXPECT_EQ(Add(object).Y, 120);
  EXPECT_EQ(Add(object).AbsoluteY, 1520);
  object.y = "50.5";
  EXPECT_EQ(Add(object).Y, 50);
  EXPECT_EQ(Add(object).AbsoluteY, 1450);
  bar.StartY = "30";
  EXPECT_EQ(Add(object).Y, 50);
  EXPECT_EQ(Add(object).AbsoluteY, 1420);
}

TEST_F(ObjectCreation, OwnsObjectsByTheOpenSubsectionAndItsFlags) {
  OpenSubsection("[DATA]", "[ITEMS]");
  attributes.AttrPrint = kFalse;
  attributes.AttrMBeu = 0;
  const ObjectRecord& box = AddKind(ObjectKind::Box);
  EXPECT_EQ(box.OwnerName, "ITEMS]");
  EXPECT_EQ(box.PrintFlag, 0);
  EXPECT_EQ(box.ModifiableByEndUser, 0);
}

TEST_F(ObjectCreation, OfACommandIsGreenAndBoldAndPrints) {
  attributes.AttrX = "$Col_02";
  attributes.AttrPrint = kFalse;
  NewObject object;
  object.kind = ObjectKind::Command;
  object.text = "@@pagebreak";
  const ObjectRecord& command = Add(object);
  EXPECT_EQ(command.Content, "@@pagebreak");
  EXPECT_EQ(command.ColorR, 0);
  EXPECT_EQ(command.ColorG, 128);
  EXPECT_EQ(command.ColorB, 0);
  EXPECT_EQ(command.Bold, -1);
  EXPECT_EQ(command.FontName, "Arial");
  EXPECT_EQ(command.FontSize, 8);
  EXPECT_EQ(command.XValue, "$Col_02");
  EXPECT_EQ(command.PrintFlag, -1);
}

TEST_F(ObjectCreation, OfABoxTakesItsSizeColourAndPen) {
  attributes.AttrColor = {1, 2, 3};
  attributes.AttrLineWidth = 2.5;
  NewObject object;
  object.kind = ObjectKind::Box;
  object.filled = true;
  object.xValue = " 100 ";
  object.widthOrEndX = "300.5";
  object.height = "x";
  const ObjectRecord& box = Add(object);
  EXPECT_EQ(box.Filled, -1);
  EXPECT_EQ(box.XValue, "100");
  EXPECT_EQ(box.Width, 300);
  EXPECT_EQ(box.Height, 0);
  EXPECT_EQ(box.ColorR, 1);
  EXPECT_EQ(box.ColorB, 3);
  EXPECT_EQ(box.LineWidth, 2);
}

TEST_F(ObjectCreation, OfALineIsFiftyHighAndAsWideAsItsEndsAreApart) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  NewObject object;
  object.kind = ObjectKind::Line;
  object.xValue = "$Col_01 + 100";
  object.widthOrEndX = "1000";
  object.extra = "1";
  const ObjectRecord& line = Add(object);
  EXPECT_EQ(line.X2Value, "1000");
  EXPECT_EQ(line.Width, -1500);
  EXPECT_EQ(line.Height, 50);
  EXPECT_EQ(line.LineFlag, -1);
}

TEST_F(ObjectCreation, OfACircleIsAsHighAsItIsWide) {
  NewObject object;
  object.kind = ObjectKind::Circle;
  object.widthOrEndX = "700";
  EXPECT_EQ(Add(object).Width, 700);
  EXPECT_EQ(Add(object).Height, 700);
}

TEST_F(ObjectCreation, OfASlantedLineEvaluatesItsWidth) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  NewObject object;
  object.kind = ObjectKind::AnyLine;
  object.widthOrEndX = "$Col_01 / 2";
  object.height = "-40";
  object.extra = "0";
  const ObjectRecord& line = Add(object);
  EXPECT_EQ(line.Width, 1200);
  EXPECT_EQ(line.Height, -40);
  EXPECT_EQ(line.LineFlag, 0);
}

TEST_F(ObjectCreation, OfAPictureFollowsTheProportionOfTheImage) {
  source = &onePicture;
  struct Row {
    std::string_view width, height;
    std::int32_t expectedWidth, expectedHeight;
    Flag fixedWidth, fixedHeight;
  };
  for (const Row& row :
       {Row{"", "", 2000, 1000, 0, 0}, Row{"500", "", 500, 250, -1, 0}, Row{"", "500", 1000, 500, 0, -1},
        Row{"300", "400", 300, 400, -1, -1}, Row{"0", "", 0, 0, -1, 0}, Row{"x", " ", 0, 0, -1, 0}}) {
    NewObject object;
    object.kind = ObjectKind::Picture;
    object.path = "pictures/logo.png";
    object.link = "http://example.com";
    object.widthOrEndX = row.width;
    object.height = row.height;
    const ObjectRecord& picture = Add(object);
    EXPECT_EQ(picture.Width, row.expectedWidth) << row.width << '/' << row.height;
    EXPECT_EQ(picture.Height, row.expectedHeight) << row.width << '/' << row.height;
    EXPECT_EQ(picture.PictureFixedWidth, row.fixedWidth);
    EXPECT_EQ(picture.PictureFixedHeight, row.fixedHeight);
    EXPECT_EQ(picture.PicturePath, "pictures/logo.png");
    EXPECT_EQ(picture.Content, "pictures/logo.png");
    EXPECT_EQ(picture.PictureFile, "\\Cache\\logo.png");
    EXPECT_EQ(picture.Link, "http://example.com");
    EXPECT_EQ(onePicture.asked, "pictures/logo.png");
  }
}

TEST_F(ObjectCreation, OfAPictureThatCannotBeHadHasSizeZeroWhereNoneIsGiven) {
  NewObject object;
  object.kind = ObjectKind::Picture;
  object.widthOrEndX = "600";
  const ObjectRecord& picture = Add(object);
  EXPECT_EQ(picture.Width, 600);
  EXPECT_EQ(picture.Height, 0);
  EXPECT_EQ(picture.PictureFile, "\\dashes.bmp");
}

TEST_F(ObjectCreation, OfABarCodeTakesTheSpecimenOfItsSymbology) {
  struct Row {
    int symbology;
    std::string_view sample;
  };
  for (const Row& row : {Row{1, "ABCDEF"}, Row{8, "12345678"}, Row{13, "1234567890123"},
                         Row{250, "1234567890"}, Row{251, "1234567890"}, Row{252, "1234567890"},
                         Row{1282, "123456"}, Row{1283, "123456"}, Row{12821, "(01)12345678"}, Row{32, ""}}) {
    attributes.AttrSymbology = row.symbology;
    NewObject object;
    object.kind = ObjectKind::Barcode;
    object.text = " @Code ";
    const ObjectRecord& code = Add(object);
    EXPECT_EQ(code.Content, "@Code");
    EXPECT_EQ(code.BarcodeKind, std::to_string(row.symbology));
    EXPECT_EQ(code.BarcodeSample, row.sample) << row.symbology;
  }
}

TEST_F(ObjectCreation, OfACode32TakesNineDigitsForItsSpecimen) {
  attributes.AttrSymbology = 32;
  NewObject object;
  object.kind = ObjectKind::Barcode;
  object.text = "012345676";
  EXPECT_EQ(Add(object).BarcodeSample, "012345676");
  object.text = "01234567";
  EXPECT_EQ(Add(object).BarcodeSample, "");
}

TEST_F(ObjectCreation, OfABarCodeTakesItsSizeFromTheState) {
  attributes.AttrSymbology = 13;
  attributes.AttrX = "$Col_01 + 5";
  attributes.AttrBarHeight = 600.5;
  attributes.AttrBarWidth = 3;
  attributes.AttrRotation = 90;
  attributes.AttrColor = {4, -1, -1};
  const ObjectRecord& code = AddKind(ObjectKind::Barcode);
  EXPECT_EQ(code.XValue, "$Col_01 + 5");
  EXPECT_EQ(code.Width, 1000);
  EXPECT_EQ(code.Height, 600);
  EXPECT_EQ(code.BarWidth, 3);
  EXPECT_EQ(code.VerticalBar, -1);
  EXPECT_EQ(code.ColorR, 4);
  EXPECT_EQ(code.ColorG, -1);
}

TEST_F(ObjectCreation, OfABarCodeWithoutAHeightIsAsHighAsTheLetterA) {
  attributes.AttrSymbology = 13;
  attributes.AttrSize = 12;
  EXPECT_EQ(AddKind(ObjectKind::Barcode).Height, 240);
}

TEST_F(ObjectCreation, OfAQrTakesItsPlaceAndSizeFromTheState) {
  attributes.AttrQrX = " 300 ";
  attributes.AttrQrSize = "900";
  attributes.AttrX = "5";
  attributes.AttrBarWidth = 1;
  NewObject object;
  object.kind = ObjectKind::Qr;
  object.text = " text ";
  const ObjectRecord& qr = Add(object);
  EXPECT_EQ(qr.XValue, "300");
  EXPECT_EQ(qr.Width, 900);
  EXPECT_EQ(qr.Height, 900);
  EXPECT_EQ(qr.Content, "text");
  EXPECT_EQ(qr.BarcodeKind, "9999");
  EXPECT_EQ(qr.BarWidth, 1);
}

TEST_F(ObjectCreation, OfALabelTakesTheWholeFontFromTheState) {
  attributes.AttrBold = attributes.AttrItalic = attributes.AttrUnderline = kTrue;
  attributes.AttrFontName = "Courier New";
  attributes.AttrSize = 12.5;
  attributes.AttrCharSet = "161";
  attributes.AttrCase = "U";
  attributes.AttrValueType = "Number";
  attributes.AttrAlign = "R";
  attributes.AttrStretch = "500";
  attributes.AttrColor = {9, 8, 7};
  NewObject object;
  object.kind = ObjectKind::Label;
  object.text = "  two words ";
  object.xValue = "0100.50";
  object.link = "http://a";
  object.format = "0.00";
  const ObjectRecord& label = Add(object);
  EXPECT_EQ(label.Content, "two words");
  EXPECT_EQ(label.XValue, "100.5");
  EXPECT_EQ(label.Bold, -1);
  EXPECT_EQ(label.Italic, -1);
  EXPECT_EQ(label.Underline, -1);
  EXPECT_EQ(label.Strikethrough, 0);
  EXPECT_EQ(label.FontName, "Courier New");
  EXPECT_EQ(label.FontSize, 12) << "12.5 rounds to even";
  EXPECT_EQ(label.CharSet, "161");
  EXPECT_EQ(label.CaseMode, "U");
  EXPECT_EQ(label.ValueType, "Number");
  EXPECT_EQ(label.Align, "R");
  EXPECT_EQ(label.Stretch, "500");
  EXPECT_EQ(label.Link, "http://a");
  EXPECT_EQ(label.Format, "0.00");
  EXPECT_EQ(label.ColorG, 8);
  EXPECT_EQ(label.Width, 9 * 120);
  EXPECT_EQ(label.Height, 240);
  EXPECT_EQ(label.Handles, "11111111");
  EXPECT_FALSE(attributes.AttrStretch) << "the next label does not inherit it";
}

TEST_F(ObjectCreation, OfALabelKeepsItsColumnAndUntrimmedText) {
  attributes.AttrTrim = kFalse;
  attributes.AttrFontName.clear();
  NewObject object;
  object.kind = ObjectKind::Label;
  object.text = "  x ";
  object.xValue = "$Col_01 + 120";
  const ObjectRecord& label = Add(object);
  EXPECT_EQ(label.Content, "  x ");
  EXPECT_EQ(label.XValue, "$Col_01 + 120");
  EXPECT_EQ(label.FontName, "Arial");
}

TEST_F(ObjectCreation, OfALabelScalesItsFontByTheZoom) {
  zoom = 1.5;
  EXPECT_EQ(AddKind(ObjectKind::Label).FontSize, 15);
}

TEST_F(ObjectCreation, OfATextBoxReadsItsList) {
  attributes.TextBoxProps = "285,Courier New,9,Y,,1,10,20,30,40,50,60,2.5";
  attributes.AttrCharSet = "238";
  attributes.AttrUnderline = attributes.AttrItalic = kTrue;
  attributes.AttrValueType = "Text";
  NewObject object;
  object.kind = ObjectKind::TextBox;
  object.xValue = "100";
  object.widthOrEndX = "3000";
  object.payload = "@Name";
  object.text = "your name";
  const ObjectRecord& box = Add(object);
  EXPECT_EQ(box.FontName, "Courier New");
  EXPECT_EQ(box.FontSize, 9);
  EXPECT_EQ(box.Bold, -1);
  EXPECT_EQ(box.TextBoxFrameValue, "1");
  EXPECT_EQ(box.ColorR, 10);
  EXPECT_EQ(box.ColorG, 20);
  EXPECT_EQ(box.ColorB, 30);
  EXPECT_EQ(box.BackColorR, 40);
  EXPECT_EQ(box.BackColorG, 50);
  EXPECT_EQ(box.BackColorB, 60);
  EXPECT_EQ(box.TextBoxExtraValue, 2.5);
  EXPECT_EQ(box.CharSet, "238");
  EXPECT_EQ(box.Underline, -1);
  EXPECT_EQ(box.Italic, -1);
  EXPECT_EQ(box.ValueType, "Text");
  EXPECT_EQ(box.CommandPayload, "@Name");
  EXPECT_EQ(box.Content, "your name");
  EXPECT_EQ(box.Width, 3000);
  EXPECT_EQ(box.Height, 285);
  EXPECT_EQ(box.Handles, "11111111");
}

TEST_F(ObjectCreation, OfATextBoxWithoutAListHasArialAndNoOptionalValues) {
  const ObjectRecord& box = AddKind(ObjectKind::TextBox);
  EXPECT_EQ(box.FontName, "Arial");
  EXPECT_EQ(box.FontSize, 0);
  EXPECT_FALSE(box.TextBoxFrameValue);
  EXPECT_FALSE(box.TextBoxExtraValue);
  EXPECT_FALSE(box.CommandPayload);
}

TEST_F(ObjectCreation, OfAChartTakesItsValues) {
  const ChartDefinition chart;
  NewObject object;
  object.kind = ObjectKind::Chart;
  object.widthOrEndX = "4000";
  object.height = "3000";
  object.chartValues = chart.Values;
  const ObjectRecord& record = Add(object);
  EXPECT_EQ(record.Width, 4000);
  EXPECT_EQ(record.Height, 3000);
  ASSERT_EQ(record.ChartValues.size(), 93U);
  EXPECT_EQ(record.ChartValues[0], "2D");
  EXPECT_EQ(record.ChartValues[92], "");
}

TEST(SectionNames, JoinObjectsWithTheirSubsection) {
  const CodePage& page = CodePage::Default();
  EXPECT_EQ(SectionNameOf("[ITEMS]", page), "ITEMS]");
  EXPECT_EQ(SectionNameOf("[ITEMS:1]", page), "ITEMS");
  EXPECT_EQ(SectionNameOf("[ITEMS:]", page), "ITEMS");
  EXPECT_EQ(SectionNameOf("  [it\xE9ms:a:b]", page), "IT\xC9MS");
  EXPECT_EQ(SectionNameOf("", page), "");
}

}  // namespace
}  // namespace kev
