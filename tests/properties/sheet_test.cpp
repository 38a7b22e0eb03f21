// SPDX-License-Identifier: MIT
// The sheets as whole texts.
#include "properties/sheet.h"

#include "properties/sheet_fixture.h"

namespace kev {
namespace {

using test::SheetTest;

struct GoldenSheet {
  ObjectKind kind;
  std::string_view docked, floating;
};

constexpr auto kGoldenSheets = std::to_array<GoldenSheet>({
    {ObjectKind::Label, "label.docked", "label.floating"},
    {ObjectKind::TextBox, "textbox.docked", "textbox.floating"},
    {ObjectKind::Picture, "picture", "picture"},
    {ObjectKind::Box, "box", "box"},
    {ObjectKind::Line, "line", "line"},
    {ObjectKind::AnyLine, "anyline", "anyline"},
    {ObjectKind::Circle, "circle", "circle"},
    {ObjectKind::Barcode, "barcode", "barcode"},
    {ObjectKind::Qr, "qr", "qr"},
    {ObjectKind::Chart, "chart", "chart"},
    {ObjectKind::Command, "command.docked", "command.floating"},
});

TEST_F(SheetTest, EveryKindShowsItsRowsInBothPlaces) {
  for (const GoldenSheet& golden : kGoldenSheets) {
    Make(golden.kind);
    place_ = SheetPlace::Docked;
    EXPECT_EQ(TextOf(Shown()), Golden(golden.docked));
    place_ = SheetPlace::Floating;
    EXPECT_EQ(TextOf(Shown()), Golden(golden.floating));
  }
}

TEST_F(SheetTest, OnlyTheTextThatThePageShowsIsInTheObjectsCharacterSet) {
  for (const ObjectKind kind : {ObjectKind::Label, ObjectKind::TextBox}) {
    Make(kind);
    document_.Objects[document_.Objects.CurrentObject].CharSet = "204";
    int inCharSet = 0;
    for (const PropertyRow& row : Shown().Rows) {
      const bool text = row.Caption == "Expression" || row.Caption == "Initial expression";
      EXPECT_EQ(row.CharSet, text ? "204" : "") << row.Caption;
      inCharSet += text ? 1 : 0;
    }
    EXPECT_EQ(inCharSet, 1);
  }
}

TEST_F(SheetTest, MainSectionsShowTheirHeights) {
  document_.Objects.CurrentObject = bar_;
  for (const std::string title : {"[DATA]", " [data] ", "[Header]", "[FOOTER]"}) {
    Bar().SectionTitle = title;
    EXPECT_EQ(TextOf(Shown()), Golden("section"));
    place_ = SheetPlace::Floating;
    EXPECT_EQ(TextOf(Shown()), Golden("section"));
  }
}

TEST_F(SheetTest, OtherSubsectionsHaveAButtonThatOpensTheirDialog) {
  document_.Objects.CurrentObject = bar_;
  for (const std::string title : {"[DATA] [ITEMS]", "[CONFIGURATION]", "[HEADER] [DATA]"}) {
    Bar().SectionTitle = title;
    EXPECT_EQ(TextOf(Shown()), Golden("subsection"));
    EXPECT_EQ(ActionOf(Shown(), 1), SheetAction::SubsectionDialog);
  }
}

TEST_F(SheetTest, ChartHasAButtonThatOpensTheWizard) {
  Make(ObjectKind::Chart);
  EXPECT_EQ(ActionOf(Shown(), 1), SheetAction::ChartWizard);
  EXPECT_EQ(ActionOf(Shown(), 2), SheetAction::None);
  Make(ObjectKind::Box);
  EXPECT_EQ(ActionOf(Shown(), 1), SheetAction::None);
}

TEST_F(SheetTest, DocumentShowsItsSettings) {
  using enum Setting;
  const std::vector<std::pair<Setting, std::string>> values = {{Report_Title, "Stock"},
                                                               {Orientation, "2"},
                                                               {Sample_Kex_file, "/data/stock.kex"},
                                                               {PAPERSIZE, "A4"},
                                                               {TM, "10"},
                                                               {LM, "20"},
                                                               {PTM, "30"},
                                                               {PLM, "40"},
                                                               {MAXY, "15000"},
                                                               {DecimalPoint, ","},
                                                               {Conversion, "c1"},
                                                               {DataConversion, "c2"},
                                                               {Print_Allowed, "No"},
                                                               {MAILTO, "me@shop.example"},
                                                               {PAGELENGHT, "16840"},
                                                               {PAGEWIDTH, "11900"},
                                                               {Copies, "2"},
                                                               {Spacing, "240"},
                                                               {PAGAUX, "5"},
                                                               {ZoomToPrint, "90"},
                                                               {ViewerOptions, "-q"},
                                                               {PRINTER, "Laser"},
                                                               {ZoomToOpen, "75"},
                                                               {PDFFROMPS, "Yes"},
                                                               {PDFNAME, "stock.pdf"}};
  for (const auto& [id, value] : values)
    Settings()[id] = value;
  EXPECT_EQ(TextOf(Shown()), Golden("document"));
  place_ = SheetPlace::Floating;
  EXPECT_EQ(TextOf(Shown()), Golden("document"));
}

TEST_F(SheetTest, OrientationShowsPortraitForAOneAndLandscapeForTheRest) {
  for (const auto& [value, shown] : std::vector<std::pair<std::string, std::string>>{
           {"1", "1 - Portrait"}, {"1x", "1 - Portrait"}, {"2", "2 - Landscape"}, {"", "2 - Landscape"}}) {
    Settings()[Setting::Orientation] = value;
    EXPECT_EQ(ValueOf("Orientation"), shown);
  }
}

TEST_F(SheetTest, PreviewShowsAPercentSign) {
  for (const auto& [value, shown] :
       std::vector<std::pair<std::string, std::string>>{{"100", "100%"}, {"50%", "50%"}, {"fit", "fit"}}) {
    Settings()[Setting::ZoomToOpen] = value;
    EXPECT_EQ(ValueOf("Preview at"), shown);
  }
}

TEST_F(SheetTest, PageBreakDisablesTheRowsOfItsArguments) {
  Make(ObjectKind::Command).Content = "@@pagebreak";
  EXPECT_EQ(TextOf(Shown()), Golden("command.pagebreak"));
  for (const std::string content : {"@@page", "@@execute", "@@postshow", "@@base64"}) {
    Record().Content = content;
    for (const PropertyRow& row : Shown().Rows)
      EXPECT_TRUE(row.Enabled) << content << " " << row.Caption;
  }
}

TEST_F(SheetTest, DocumentWithoutColumnsOffersNoItemAndStaysFree) {
  document_.Columns.Clear();
  Make(ObjectKind::Box);
  const PropertyRow row = Shown().Rows[0];
  EXPECT_EQ(MarkerText(row), "#COMBOEDIT|$Col_02|");
  EXPECT_TRUE(row.Items.empty());
  EXPECT_EQ(row.Editor, EditorKind::OpenList);
}

TEST_F(SheetTest, ColumnsAreOfferedInTheOrderOfTheirSlotsWithoutTheFreeOnes) {
  document_.Columns[2] = {"$Odd|name", 1, ""};
  Make(ObjectKind::Box);
  EXPECT_EQ(Shown().Rows[0].Items, (std::vector<std::string>{"$Col_01", "$Odd|name", "$Col_02"}));
}

TEST_F(SheetTest, AlignmentIsShownByItsCapitalLetterAndLeftForAnythingElse) {
  Make(ObjectKind::Label);
  for (const auto& [code, shown] : std::vector<std::pair<std::string, std::string>>{
           {"l", "Left"}, {"c", "Center"}, {"R", "Right"}, {"", "Left"}, {"x", "Left"}}) {
    Record().Align = code;
    EXPECT_EQ(ValueOf("Alignment"), shown);
  }
}

TEST_F(SheetTest, CharsetShowsItsItemOrTheBareCode) {
  Make(ObjectKind::Label);
  for (const auto& [code, shown] : std::vector<std::pair<std::string, std::string>>{{"0", "0 - Western"},
                                                                                    {"", "0 - Western"},
                                                                                    {"2", "2 - Symbol"},
                                                                                    {"204", "204 - Cyrillic"},
                                                                                    {"77", "77"}}) {
    Record().CharSet = code;
    EXPECT_EQ(ValueOf("Charset"), shown);
  }
}

TEST_F(SheetTest, CaseModeThatIsNotKnownShowsNone) {
  Make(ObjectKind::Label);
  for (const auto& [code, shown] : std::vector<std::pair<std::string, std::string>>{
           {"N", "none"}, {"U", "UPPER"}, {"L", "lower"}, {"F", "First Up"}, {"", "none"}, {"Q", "none"}}) {
    Record().CaseMode = code;
    EXPECT_EQ(ValueOf("Text conversion"), shown);
  }
}

TEST_F(SheetTest, BorderShowsItsItemOrWhatItHolds) {
  Make(ObjectKind::TextBox);
  for (const auto& [code, shown] : std::vector<std::pair<std::string, std::string>>{
           {"0", "0 - No border"}, {"2", "2 - 3D border"}, {"7", "7"}, {"wide", "wide"}}) {
    Record().TextBoxFrameValue = code;
    EXPECT_EQ(ValueOf("Border style"), shown);
  }
  Record().TextBoxFrameValue.reset();
  EXPECT_EQ(ValueOf("Border style"), "");
}

TEST_F(SheetTest, PasswordIsYesForAnyNumberButZero) {
  Make(ObjectKind::TextBox);
  EXPECT_EQ(ValueOf("Password field"), "No");
  for (const auto& [value, shown] :
       std::vector<std::pair<double, std::string>>{{0, "No"}, {1, "Yes"}, {13, "Yes"}}) {
    Record().TextBoxExtraValue = value;
    EXPECT_EQ(ValueOf("Password field"), shown);
  }
}

TEST_F(SheetTest, SymbologyIsShownByNameAndWithoutANameByTheFixedWords) {
  Make(ObjectKind::Barcode);
  const std::vector<std::pair<std::string, std::string>> names = {{"1", "STANDARD 3-9"},
                                                                  {"8", "EAN-8"},
                                                                  {"13", "EAN-13"},
                                                                  {"250", "2 OF 5 STANDARD"},
                                                                  {"251", "2 OF 5 INTERLEAVE"},
                                                                  {"252", "2 OF 5 INDUSTRIAL"},
                                                                  {"1282", "128 B"},
                                                                  {"1283", "128 C"},
                                                                  {"12821", "UCC EAN 128"},
                                                                  {"32", "Barcode not found. ADD IT!"},
                                                                  {"4711", "Barcode not found. ADD IT!"}};
  for (const auto& [kind, name] : names) {
    Record().BarcodeKind = kind;
    EXPECT_EQ(ValueOf("Barcode type"), name);
  }
  // Shown as it stands, and no item of the list.
  EXPECT_EQ(Shown().Rows[0].Items.size(), 8U);
}

TEST_F(SheetTest, BasicColourIsShownAsItsParts) {
  ObjectRecord& record = Make(ObjectKind::Box);
  record.ColorR = 4;
  record.ColorG = record.ColorB = -1;
  EXPECT_EQ(ValueOf("Color"), "128,0,0");
}

TEST_F(SheetTest, FlagsOfTheEndUserAndTheGridAreOneAndTheOthersMinusOne) {
  ObjectRecord& record = Make(ObjectKind::Box);
  record.ModifiableByEndUser = record.AlignToGrid = -1;
  record.PrintFlag = record.Filled = 1;
  EXPECT_EQ(ValueOf("Modifyable by EU"), "No");
  EXPECT_EQ(ValueOf("Align to grid"), "No");
  EXPECT_EQ(ValueOf("Print at runtime"), "No");
  EXPECT_EQ(ValueOf("Filled box"), "No");
}

TEST_F(SheetTest, NothingSelectedShowsTheDocument) {
  EXPECT_EQ(Shown().Subject, SheetSubject::Document);
  EXPECT_EQ(Shown().Rows.size(), 33U);
}

TEST_F(SheetTest, GroupShowsATitleWithItsCountAndNoRows) {
  pointer_.MultiSelected = true;
  document_.Objects.SelectionCount = 7;
  EXPECT_EQ(TextOf(Shown()), "title 173 Multiselected: 7\n");
}

TEST_F(SheetTest, GroupWithACurrentObjectShowsThatObject) {
  Make(ObjectKind::Box);
  pointer_.MultiSelected = true;
  EXPECT_EQ(TextOf(Shown()), Golden("box"));
}

TEST_F(SheetTest, EndBarAndSectionLeaveTheOldSheetDisabled) {
  Make(ObjectKind::Box);
  const Sheet box = Shown();
  const int section = test::AddRow(document_, ObjectKind::Section, "0", 0, 0, 400);
  for (const int row : {static_cast<int>(Bar().EndRow), section}) {
    document_.Objects.CurrentObject = row;
    const Sheet left = SheetOfSelection(document_, false, place_, box);
    EXPECT_FALSE(left.Enabled);
    EXPECT_EQ(left.Object, object_);
    EXPECT_EQ(left.Rows, box.Rows);
    EXPECT_EQ(ShowSheetFor(document_, row, place_), std::nullopt);
  }
}

TEST_F(SheetTest, DescriptionStaysWhereARowHasNone) {
  Make(ObjectKind::Box);
  const Sheet sheet = Shown();
  EXPECT_EQ(DescriptionOf(sheet, RowOfCaption(sheet, "Print at runtime"), services_), std::nullopt);
  EXPECT_EQ(DescriptionOf(sheet, 0, services_), std::nullopt);
  EXPECT_EQ(DescriptionOf(sheet, 99, services_), std::nullopt);
  EXPECT_EQ(DescriptionOf(sheet, 1, services_), services_.Text(855));
}

}  // namespace
}  // namespace kev
