// SPDX-License-Identifier: MIT
#include "surface/insertion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "base/text_numbers.h"
#include "chart/definition.h"
#include "document/sections.h"
#include "support/recording_surface.h"
#include "support/run_tool.h"
#include "support/sample_page.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

using test::AddSubsection;

// Keeps the order of what is asked for; a repaint derives the geometry as the designer does.
class KeepingServices final : public PageServices {
 public:
  KeepingServices(Document& document, const TextMeasurer& measurer)
      : document_(document), measurer_(measurer) {}

  std::vector<std::string> Calls;
  int CountAtPush = -1;

  void PushUndo() override {
    Calls.emplace_back("push");
    CountAtPush = 0;
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
      CountAtPush += document_.Objects[row].Kind == ObjectKind::None ? 0 : 1;
  }
  void MarkChanged() override { Calls.emplace_back("mark"); }
  void FullRepaint() override {
    Calls.emplace_back("repaint");
    DeriveGeometry(document_);
    ApplyRedrawWriteBack(document_, measurer_, DisplayFilter::All);
  }
  void BandsChanged() override { Calls.emplace_back("bands"); }
  void BuildRulers() override { Calls.emplace_back("rulers"); }
  void SelectionChanged() override {}
  void CommandsChanged() override {}
  const std::string& Text(int number) const override {
    return texts_[number] = "text " + std::to_string(number);
  }
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons) override {
    Calls.push_back("box " + std::to_string(textNumber) + (icon == BoxIcon::Critical ? " critical" : ""));
    return BoxAnswer::Ok;
  }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int row) override { Calls.push_back("open " + std::to_string(row)); }
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 private:
  Document& document_;
  const TextMeasurer& measurer_;
  mutable std::map<int, std::string> texts_;
};

class OnePicture final : public PictureSource {
 public:
  PictureAnswer Look(std::string_view path) override {
    if (!path.ends_with("good.png") && !path.ends_with("a,b.png"))
      return {std::string(kMissingPicture), std::nullopt};
    return {std::string(path), TextExtent{1500, 750}};
  }
};

class Inserting : public testing::Test {
 protected:
  Inserting() {
    bar_ = AddSubsection(document_, "[DATA] [ITEMS:@code,@text]", 0, 3000);
    document_.Objects[bar_].SectionName = "ITEMS";
    other_ = AddSubsection(document_, "[FOOTER]", 3600, 1000);
    document_.Objects[other_].SectionName = "FOOTER]";
    ClickAt(600, 1000);
  }
  void ClickAt(double x, double y) {
    pointer_.LastX = x;
    pointer_.LastY = y;
  }
  PageWork Page() {
    return {document_, pointer_, surface_, services_, measurer_, zoom_, DisplayFilter::All, {}, 0, 0};
  }
  int Put(Insertion what) {
    PageWork page = Page();
    InsertionWork work{page, last_, pictures_, host_, sample_};
    return Insert(work, what);
  }
  void PutFromMenu(Insertion what) {
    PageWork page = Page();
    InsertionWork work{page, last_, pictures_, host_, sample_};
    InsertFromMenu(work, what);
  }
  const ObjectRecord& Inserted(Insertion what) { return document_.Objects[Put(what)]; }
  void UseSample(const std::string& bytes) {
    sample_ = folder_ / "data.ked";
    test::WriteBytes(sample_, bytes);
  }
  int Count() const {
    int count = 0;
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
      count += document_.Objects[row].Kind == ObjectKind::None ? 0 : 1;
    return count;
  }

  test::TemporaryFolder folder_;
  Document document_;
  PointerState pointer_;
  test::RecordingSurface surface_;
  BuiltInMeasurer measurer_;
  KeepingServices services_{document_, measurer_};
  OnePicture pictures_;
  test::ScriptedHost host_;
  LastUsed last_;
  std::string sample_;
  double zoom_ = 1;
  int bar_ = 0, other_ = 0;
};

struct Expected {
  Insertion id;
  std::string_view tool;
  ObjectKind kind;
  std::string_view handles;
  Flag mayResize;
  std::int32_t width, height;  // -1: measured
  std::string_view content;
  std::int16_t lineWidth;
};

constexpr auto kExpected = std::to_array<Expected>({
    {Insertion::Label, "LABEL", ObjectKind::Label, "11111110", 0, -1, -1, "Label", 0},
    {Insertion::NextVariable, "LABELVAR", ObjectKind::Label, "11111110", 0, -1, -1, "Label", 0},
    {Insertion::TextBox, "TEXTBOX", ObjectKind::TextBox, "10111010", -1, 1000, 285, "Textbox", 0},
    {Insertion::Picture, "PICTURE", ObjectKind::Picture, "11111111", -1, 500, 500, "", 0},
    {Insertion::Box, "BOX", ObjectKind::Box, "11111111", -1, 1000, 400, "", 1},
    {Insertion::HorizontalLine, "LINE", ObjectKind::Line, "00010001", -1, 1000, 25, "", 1},
    {Insertion::AnyLine, "ANYLINE", ObjectKind::AnyLine, "00000000", -1, 1000, 1000, "", 1},
    {Insertion::Circle, "", ObjectKind::Circle, "01010101", -1, 200, 200, "", 1},
    {Insertion::Barcode, "BARCODE", ObjectKind::Barcode, "10101010", 0, -1, 200, "ABCDEF", 0},
    {Insertion::Qr, "QR", ObjectKind::Qr, "11111111", 0, 2000, 2000, "QRCODE", 0},
    {Insertion::Chart, "CHART", ObjectKind::Chart, "11111111", -1, 3500, 2500, "", 0},
    {Insertion::PageBreak, "COMMAND", ObjectKind::Command, "11101110", 0, -1, -1, "@@pagebreak", 0},
    {Insertion::ExecuteCommand, "", ObjectKind::Command, "11101110", 0, -1, -1, "@@execute", 0},
    {Insertion::PostShowCommand, "", ObjectKind::Command, "11101110", 0, -1, -1, "@@postshow", 0},
});

bool IsSize(std::int32_t size, std::int32_t expected) {
  return expected < 0 ? size > 0 : size == expected;
}

TEST_F(Inserting, GivesEachKindItsOwnFields) {
  ASSERT_EQ(kExpected.size(), kInsertions.size());
  for (const Expected& expected : kExpected) {
    const ObjectRecord& record = Inserted(expected.id);
    SCOPED_TRACE(std::string(KindText(expected.kind)) + " " + std::string(expected.content));
    EXPECT_EQ(RowOf(expected.id).id, expected.id);
    EXPECT_EQ(record.Kind, expected.kind);
    EXPECT_EQ(record.Handles, expected.handles);
    EXPECT_EQ(record.MayMoveVertically, kTrue);
    EXPECT_EQ(record.MayMoveHorizontally, kTrue);
    EXPECT_EQ(record.MayResize, expected.mayResize);
    EXPECT_EQ(record.Content, expected.content);
    EXPECT_EQ(record.LineWidth, expected.lineWidth);
    EXPECT_TRUE(IsSize(record.Width, expected.width)) << record.Width;
    EXPECT_TRUE(IsSize(record.Height, expected.height)) << record.Height;
  }
}

TEST_F(Inserting, GivesEveryKindWhatAllHaveInCommon) {
  for (const InsertionRow& row : kInsertions) {
    const ObjectRecord& record = Inserted(row.id);
    SCOPED_TRACE(row.handles);
    EXPECT_EQ(record.ModifiableByEndUser, 1);
    EXPECT_EQ(record.PrintFlag, kTrue);
    EXPECT_EQ(record.AlignToGrid, 1);
    EXPECT_EQ(record.Align, "L");
    EXPECT_EQ(record.OwnerName, "ITEMS");
    EXPECT_EQ(record.AbsoluteY, 1000);
    EXPECT_EQ(record.Y, 600);
    EXPECT_EQ(record.XValue, "600");
    EXPECT_EQ(record.Selected, kFalse);
  }
}

TEST_F(Inserting, KnowsItsToolsByName) {
  for (const Expected& expected : kExpected) {
    if (expected.tool.empty()) continue;
    EXPECT_EQ(InsertionOfTool(expected.tool), expected.id) << expected.tool;
  }
  EXPECT_EQ(InsertionOfTool(""), std::nullopt);
  EXPECT_EQ(InsertionOfTool("label"), std::nullopt);
  EXPECT_EQ(InsertionOfTool("CIRCLE"), std::nullopt);
}

TEST_F(Inserting, PushesBeforeTheChangeAndShowsTheRowBehindIt) {
  const int before = Count();
  const int row = Put(Insertion::Box);
  EXPECT_EQ(services_.Calls, (std::vector<std::string>{"push", "repaint"}));
  EXPECT_EQ(services_.CountAtPush, before);
  EXPECT_EQ(Count(), before + 1);
  EXPECT_EQ(document_.Objects.CurrentObject, row);
}

TEST_F(Inserting, TakesTheFirstFreeRow) {
  const int first = Put(Insertion::Box);
  Put(Insertion::Box);
  document_.Objects.ClearRow(first);
  EXPECT_EQ(Put(Insertion::Circle), first);
}

TEST_F(Inserting, EndsInAFailureWhereTheTableIsFull) {
  for (int row = 1; row <= ObjectTable::kLastRow; ++row)
    if (document_.Objects[row].Kind == ObjectKind::None) document_.Objects[row].Kind = ObjectKind::Box;
  document_.Objects.ObjectCount = 2010;
  EXPECT_THROW(Put(Insertion::Box), std::out_of_range);
}

// --- Where it goes

TEST_F(Inserting, RefusesAPlaceOutsideAllBodiesAndKeepsTheSnapshot) {
  const int before = Count();
  for (const double y : {-10.0, 0.0, 399.0, 3401.0, 3999.0, 5001.0}) {
    services_.Calls.clear();
    ClickAt(600, y);
    EXPECT_EQ(Put(Insertion::Label), 0) << y;
    EXPECT_EQ(services_.Calls, (std::vector<std::string>{"push", "box 764 critical"})) << y;
  }
  EXPECT_EQ(Count(), before);
}

TEST_F(Inserting, RefusesWhereThePointerWasNeverOnThePage) {
  pointer_.ForgetPosition();
  EXPECT_EQ(Put(Insertion::Label), 0);
  EXPECT_EQ(services_.Calls.back(), "box 764 critical");
}

TEST_F(Inserting, CountsBothEdgesOfABodyAsInside) {
  for (const double y : {400.0, 3400.0}) {
    ClickAt(0, y);
    EXPECT_EQ(Inserted(Insertion::Box).OwnerName, "ITEMS") << y;
  }
  for (const double y : {4000.0, 5000.0}) {
    ClickAt(0, y);
    EXPECT_EQ(Inserted(Insertion::Box).OwnerName, "FOOTER]") << y;
  }
}

TEST_F(Inserting, TakesTheFirstOfTwoBodiesThatHoldThePoint) {
  document_.Objects[other_].AbsoluteY = 200;
  EXPECT_EQ(SubsectionUnder(Page(), 1000), bar_);
}

TEST_F(Inserting, CountsInTwipsAtAnyZoom) {
  zoom_ = 2;
  ClickAt(1200, 2000);
  const ObjectRecord& record = Inserted(Insertion::HorizontalLine);
  EXPECT_EQ(record.AbsoluteY, 1000);
  EXPECT_EQ(record.Y, 600);
  EXPECT_EQ(record.XValue, "600");
  EXPECT_EQ(record.X2Value, "1600");
  EXPECT_EQ(record.Width, 1000);
  ClickAt(1200, 799);
  EXPECT_EQ(Put(Insertion::Box), 0);
  ClickAt(1200, 6800);
  EXPECT_NE(Put(Insertion::Box), 0);
}

TEST_F(Inserting, KeepsToWholeTwips) {
  zoom_ = 1.2;
  ClickAt(100, 1001);
  const ObjectRecord& record = Inserted(Insertion::Box);
  EXPECT_EQ(record.XValue, "83");
  EXPECT_EQ(record.AbsoluteY, 834);
}

TEST_F(Inserting, DoesNotSnapAndMayHangOverTheEnd) {
  ClickAt(613, 3391);
  const ObjectRecord& record = Inserted(Insertion::Qr);
  EXPECT_EQ(record.XValue, "613");
  EXPECT_EQ(record.Y, 2991);
  EXPECT_EQ(document_.Objects[bar_].EndsAt, 3000);
}

// --- What it holds

TEST_F(Inserting, ALabelTakesTheLastFontAndColour) {
  last_.Label = {"Courier New", 14, true, true, true, "10,20,30", "0"};
  const ObjectRecord& record = Inserted(Insertion::Label);
  EXPECT_EQ(record.FontName, "Courier New");
  EXPECT_EQ(record.FontSize, 14);
  EXPECT_EQ(record.Bold, kTrue);
  EXPECT_EQ(record.Italic, kTrue);
  EXPECT_EQ(record.Underline, kTrue);
  EXPECT_EQ(record.Strikethrough, kFalse);
  EXPECT_EQ((Colour{record.ColorR, record.ColorG, record.ColorB}), (Colour{10, 20, 30}));
  EXPECT_EQ(record.CaseMode, "N");
  EXPECT_EQ(record.ValueType, "General");
  const TextExtent extent = measurer_.Measure(FontOf(record), "Label");
  EXPECT_EQ(record.Width, static_cast<std::int32_t>(extent.Width + 0.5));
  EXPECT_EQ(record.Height, static_cast<std::int32_t>(extent.Height + 0.5));
}

TEST_F(Inserting, ATextBoxHasAStyleOfItsOwnAndNoBackColour) {
  last_.Label.FontName = "Courier New";
  last_.TextBox = {"Times New Roman", 11, false, true, true, "1,2,3", "161"};
  const ObjectRecord& record = Inserted(Insertion::TextBox);
  EXPECT_EQ(record.FontName, "Times New Roman");
  EXPECT_EQ(record.FontSize, 11);
  EXPECT_EQ(record.Italic, kTrue);
  EXPECT_EQ(record.Underline, kTrue);
  EXPECT_EQ(record.CharSet, "161");
  EXPECT_EQ((Colour{record.ColorR, record.ColorG, record.ColorB}), (Colour{1, 2, 3}));
  EXPECT_EQ((Colour{record.BackColorR, record.BackColorG, record.BackColorB}), (Colour{-1, -1, -1}));
}

TEST_F(Inserting, ACommandIsGreenAndBoldWhateverWasLastUsed) {
  last_.Label = {"Courier New", 14, false, true, true, "10,20,30", "0"};
  for (const Insertion what : {Insertion::PageBreak, Insertion::ExecuteCommand, Insertion::PostShowCommand}) {
    const ObjectRecord& record = Inserted(what);
    EXPECT_EQ(record.FontName, "Arial");
    EXPECT_EQ(record.FontSize, 8);
    EXPECT_EQ(record.Bold, kTrue);
    EXPECT_EQ(record.Italic, kFalse);
    EXPECT_EQ((Colour{record.ColorR, record.ColorG, record.ColorB}), (Colour{0, 128, 0}));
  }
}

TEST_F(Inserting, ABarcodeIsCode39OfTheLineStep) {
  document_.Settings[Setting::Spacing] = "350";
  const ObjectRecord& record = Inserted(Insertion::Barcode);
  EXPECT_EQ(record.Height, 350);
  EXPECT_EQ(record.BarcodeKind, "1");
  EXPECT_EQ(record.BarcodeSample, "ABCDEF");
  EXPECT_EQ(record.BarWidth, 10);
  EXPECT_EQ((Colour{record.ColorR, record.ColorG, record.ColorB}), Colour{});
}

TEST_F(Inserting, ACircleIsAsWideAsTheLineStep) {
  document_.Settings[Setting::Spacing] = "350";
  const ObjectRecord& record = Inserted(Insertion::Circle);
  EXPECT_EQ(record.Width, 350);
  EXPECT_EQ(record.Height, 350);
}

TEST_F(Inserting, ALineEndsAThousandTwipsFurther) {
  const ObjectRecord& record = Inserted(Insertion::HorizontalLine);
  EXPECT_EQ(record.XValue, "600");
  EXPECT_EQ(record.X2Value, "1600");
}

TEST_F(Inserting, AChartHasRoundBarsAndNamedSeries) {
  const ObjectRecord& record = Inserted(Insertion::Chart);
  ASSERT_EQ(record.ChartValues.size(), kChartSlotCount);
  const auto value = [&](const std::string& key) { return record.ChartValues[*ChartKeyIndex(key)]; };
  constexpr std::array<std::string_view, 8> kColours = {"200,56,17", "108,220,130", "0,150,200", "150,0,140",
                                                        "255,128,0", "255,128,192", "0,128,64",  "128,128,0"};
  EXPECT_EQ(value("GRAPH_TYPE"), "2D");
  for (std::size_t n = 1; n <= 8; ++n) {
    const std::string stem = "GRAPH_SERIE_" + std::to_string(n) + "_";
    EXPECT_EQ(value(stem + "TYPE"), "BARROUND");
    EXPECT_EQ(value(stem + "NAME"), "Serie " + std::to_string(n));
    EXPECT_EQ(value(stem + "COLOR"), kColours[n - 1]);
    EXPECT_EQ(value(stem + "VALUES"), "");
  }
  EXPECT_EQ(value("GRAPH_SERIES"), "1");
}

TEST_F(Inserting, AChartOpensItsDialogFromTheMenuAlone) {
  Put(Insertion::Chart);
  EXPECT_EQ(services_.Calls.back(), "repaint");
  PutFromMenu(Insertion::Chart);
  EXPECT_EQ(services_.Calls.back(), "open " + std::to_string(document_.Objects.CurrentObject));
}

TEST_F(Inserting, ARefusedChartOpensNothing) {
  ClickAt(0, 0);
  PutFromMenu(Insertion::Chart);
  EXPECT_EQ(services_.Calls.back(), "box 764 critical");
}

TEST_F(Inserting, AQrCodeSaysThatItIsOne) {
  EXPECT_EQ(Inserted(Insertion::Qr).BarcodeKind, "9999");
}

// --- Pictures

TEST_F(Inserting, APictureStaysTheStandInWhereNoFileIsChosen) {
  const ObjectRecord& record = Inserted(Insertion::Picture);
  ASSERT_EQ(host_.Choices.size(), 1U);
  EXPECT_EQ(host_.Choices[0].Filters[0].first, "Image file");
  EXPECT_EQ(record.PictureFile, "\\dashes.bmp");
  EXPECT_EQ(record.PicturePath, "");
  EXPECT_EQ(record.Width, 500);
  EXPECT_EQ(record.Height, 500);
}

TEST_F(Inserting, AChosenPictureIsShownInItsOwnSizeWithOneSnapshot) {
  host_.FilesToOpen = {"/pictures/good.png"};
  const ObjectRecord& record = Inserted(Insertion::Picture);
  EXPECT_EQ(record.PicturePath, "/pictures/good.png");
  EXPECT_EQ(record.Content, "/pictures/good.png");
  EXPECT_EQ(record.PictureFile, "/pictures/good.png");
  EXPECT_EQ(record.Width, 1500);
  EXPECT_EQ(record.Height, 750);
  EXPECT_EQ(services_.Calls, (std::vector<std::string>{"push", "repaint", "repaint"}));
}

TEST_F(Inserting, AFileThatIsNoPictureOrCannotBeNamedIsRefused) {
  for (const char* path : {"/pictures/bad.png", "/pictures/a,b.png", "/{x}/good.png", "/a;b/good.png"}) {
    host_.FilesToOpen = {path};
    const ObjectRecord& record = Inserted(Insertion::Picture);
    EXPECT_EQ(services_.Calls.back(), "box 775 critical") << path;
    EXPECT_EQ(record.PictureFile, "\\dashes.bmp") << path;
    EXPECT_EQ(record.PicturePath, "") << path;
  }
}

TEST_F(Inserting, ACharacterThatTheCodePageLacksIsNamed) {
  host_.FilesToOpen = {"/\xE6\x97\xA5/good.png"};
  const ObjectRecord& record = Inserted(Insertion::Picture);
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Text, "text 1221 ");
  EXPECT_EQ(host_.Messages[0].Detail, "\xE6\x97\xA5");
  EXPECT_EQ(record.PicturePath, "");
}

// --- The next variable

TEST_F(Inserting, TheFirstLabelOfAFreshFileGetsItsFirstVariable) {
  UseSample("TEMPLATE=a.kev\r\n@number=1\r\n@name=x\r\n");
  const ObjectRecord& record = Inserted(Insertion::NextVariable);
  EXPECT_EQ(record.Content, "@number");
  EXPECT_EQ(record.Width,
            static_cast<std::int32_t>(measurer_.Measure(FontOf(record), "@number").Width + 0.5));
  EXPECT_EQ(services_.Calls, (std::vector<std::string>{"push", "repaint", "repaint", "rulers"}));
}

TEST_F(Inserting, TheSecondGetsTheNextAndTheLastKeepsItsText) {
  UseSample("@number=1\r\n@name=x\r\n");
  Put(Insertion::NextVariable);
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "@name");
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "Label");
}

TEST_F(Inserting, EachSubsectionBeginsAnew) {
  UseSample("@number=1\r\n");
  Put(Insertion::NextVariable);
  ClickAt(0, 4100);
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "@number");
}

TEST_F(Inserting, AVariableInsideAnotherTextCountsAsUsed) {
  UseSample("@number=1\r\n@name=x\r\n");
  document_.Objects[Put(Insertion::Label)].Content = "No. @NUMBER of 10";
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "@name");
}

TEST_F(Inserting, ARecordFileGivesTheFieldsOfTheSubsection) {
  sample_ = "/nowhere/data.kex";
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "@code");
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "@text");
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "Label");
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Inserting, AMissingVariableFileIsToldAndTheLabelStays) {
  sample_ = folder_ / "gone.ked";
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "Label");
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Title, "text 760");
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(host_.Messages[0].Text,
            "It was not possible to open Kex/Ked file. It looks like it doesn't exist. Please verify.");
}

TEST_F(Inserting, WithoutSampleDataTheLabelStaysAndNothingIsSaid) {
  EXPECT_EQ(Inserted(Insertion::NextVariable).Content, "Label");
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Inserting, TheMenuFillsTheCurrentLabelWithOneSnapshot) {
  UseSample("@number=1\r\n");
  const int row = Put(Insertion::Label);
  const int before = Count();
  services_.Calls.clear();
  PutFromMenu(Insertion::NextVariable);
  EXPECT_EQ(document_.Objects[row].Content, "@number");
  EXPECT_EQ(Count(), before);
  EXPECT_EQ(services_.Calls, (std::vector<std::string>{"push", "repaint", "rulers"}));
}

TEST_F(Inserting, RepeatedFromTheMenuItAlternates) {
  UseSample("@one=1\r\n@two=2\r\n@three=3\r\n");
  const int row = Put(Insertion::Label);
  for (const char* expected : {"@one", "@two", "@one", "@two"}) {
    PutFromMenu(Insertion::NextVariable);
    EXPECT_EQ(document_.Objects[row].Content, expected);
  }
}

TEST_F(Inserting, WithNoneLeftTheMenuChangesNothing) {
  UseSample("@one=1\r\n");
  const int row = Put(Insertion::Label);
  PutFromMenu(Insertion::NextVariable);
  services_.Calls.clear();
  PutFromMenu(Insertion::NextVariable);
  EXPECT_EQ(document_.Objects[row].Content, "@one");
  EXPECT_TRUE(services_.Calls.empty());
}

TEST_F(Inserting, WithAnotherKindCurrentTheMenuInsertsALabel) {
  UseSample("@one=1\r\n");
  const int box = Put(Insertion::Box);
  services_.Calls.clear();
  PutFromMenu(Insertion::NextVariable);
  const int row = document_.Objects.CurrentObject;
  EXPECT_NE(row, box);
  EXPECT_EQ(document_.Objects[row].Content, "@one");
  EXPECT_EQ(services_.Calls.front(), "push");
  EXPECT_EQ(std::count(services_.Calls.begin(), services_.Calls.end(), "push"), 1);
}

}  // namespace
}  // namespace kev
