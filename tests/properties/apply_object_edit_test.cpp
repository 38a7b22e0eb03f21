// SPDX-License-Identifier: MIT
// What an edit of an object does beside storing a row.
#include "properties/sheet_fixture.h"

namespace kev {
namespace {

using test::SheetTest;
using ApplyObjectEdit = SheetTest;

TEST_F(ApplyObjectEdit, UnchangedTextIsNoEdit) {
  Make(ObjectKind::Box);
  EXPECT_EQ(Type({{"Width", "2400"}, {"Color", "10,20,30"}}), "");
  EXPECT_EQ(outcome_.Shown, Shown());
}

TEST_F(ApplyObjectEdit, OneSnapshotIsTakenForAnEditAlsoForARefusedOne) {
  Make(ObjectKind::Box);
  EXPECT_EQ(Type({{"Width", "1"}, {"Height", "2"}}), "push, repaint");
  EXPECT_EQ(Type("Line width", "11"), "push, box 929, repaint");
}

TEST_F(ApplyObjectEdit, RowsThatWereNotTouchedAreNotStored) {
  ObjectRecord& record = Make(ObjectKind::Box);
  record.ColorR = 4;
  record.ColorG = record.ColorB = -1;
  record.XValue = "0.0";  // would be refused
  record.PrintFlag = 7;
  EXPECT_EQ(Type("Width", "50"), "push, repaint");
  EXPECT_EQ(Record().ColorR, 4);
  EXPECT_EQ(Record().ColorG, -1);
  EXPECT_EQ(Record().XValue, "0.0");
  EXPECT_EQ(Record().PrintFlag, 7);
}

TEST_F(ApplyObjectEdit, EditForAnotherObjectStoresNothing) {
  Make(ObjectKind::Box);
  const Sheet old = Shown();
  const int box = object_;
  Make(ObjectKind::Box);
  SheetWork work = Work();
  const RowEdit edit{3, "77"};
  const SheetOutcome outcome = ApplySheetEdit(work, old, {&edit, 1});
  EXPECT_EQ(services_.Take(), "");
  EXPECT_EQ(document_.Objects[box].Width, 2400);
  EXPECT_EQ(Record().Width, 2400);
  EXPECT_EQ(outcome.Shown.Object, object_);
}

TEST_F(ApplyObjectEdit, EditForAnotherKindOrPlaceStoresNothing) {
  Make(ObjectKind::Box);
  const Sheet old = Shown();
  const RowEdit edit{3, "77"};
  Record().Kind = ObjectKind::Circle;
  SheetWork work = Work();
  ApplySheetEdit(work, old, {&edit, 1});
  Record().Kind = ObjectKind::Box;
  work.place = SheetPlace::Floating;
  ApplySheetEdit(work, old, {&edit, 1});
  EXPECT_EQ(services_.Take(), "");
  EXPECT_EQ(Record().Width, 2400);
}

TEST_F(ApplyObjectEdit, EditOfADisabledSheetStoresNothing) {
  Make(ObjectKind::Box);
  Sheet sheet = Shown();
  sheet.Enabled = false;
  const RowEdit edit{3, "77"};
  SheetWork work = Work();
  ApplySheetEdit(work, sheet, {&edit, 1});
  EXPECT_EQ(services_.Take(), "");
}

TEST_F(ApplyObjectEdit, DocumentSheetStoresNothingWhileAGroupIsSelected) {
  const Sheet sheet = Shown();
  pointer_.MultiSelected = true;
  const RowEdit edit{1, "Other"};
  SheetWork work = Work();
  const SheetOutcome outcome = ApplySheetEdit(work, sheet, {&edit, 1});
  EXPECT_EQ(services_.Take(), "");
  EXPECT_EQ(Settings()[Setting::Report_Title], "No title");
  EXPECT_EQ(outcome.Shown.Subject, SheetSubject::Group);
}

TEST_F(ApplyObjectEdit, OnlyYesAndNoAreStored) {
  Make(ObjectKind::Box);
  for (const std::string text : {"yes", "Y", "1", "", "maybe"}) {
    EXPECT_EQ(Type("Print at runtime", text), "push, repaint");
    EXPECT_EQ(Record().PrintFlag, kFalse);
  }
  Type("Print at runtime", "Yes");
  EXPECT_EQ(Record().PrintFlag, kTrue);
  Type("Align to grid", "No");
  EXPECT_EQ(Record().AlignToGrid, 0);
  Type("Align to grid", "Yes");
  EXPECT_EQ(Record().AlignToGrid, 1);
  Type("Modifyable by EU", "No");
  EXPECT_EQ(Record().ModifiableByEndUser, 0);
}

TEST_F(ApplyObjectEdit, ObjectFollowsItsTypedPositionOnTheSurface) {
  Make(ObjectKind::Box);
  Type("Y position", "850");
  EXPECT_EQ(Record().Y, 850);
  EXPECT_EQ(Record().AbsoluteY, 1250);
  EXPECT_EQ(Record().OwnerName, "DATA]");
}

TEST_F(ApplyObjectEdit, LineThatIsTypedOutOfItsBodyIsOwnedByTheNext) {
  Make(ObjectKind::AnyLine);
  EXPECT_EQ(Type("Y position", "1650"), "push, repaint");
  EXPECT_EQ(Record().AbsoluteY, 2050);
  EXPECT_EQ(Record().OwnerName, "FOOTER]");
  EXPECT_EQ(Record().Y, 50);
}

TEST_F(ApplyObjectEdit, ObjectWithoutAnOwnerStaysWhereItWas) {
  Make(ObjectKind::Box).OwnerName = "GONE";
  Record().AbsoluteY = 9000;
  EXPECT_EQ(Type("Y position", "1000000"), "push, repaint");
  EXPECT_EQ(Record().Y, 1000000);
  EXPECT_EQ(Record().AbsoluteY, 9000);
  EXPECT_EQ(Type("Y position", "-1"), "push, box 927, repaint");
}

TEST_F(ApplyObjectEdit, LabelAndCommandAreMeasuredAfterTextFontAndCharset) {
  for (const ObjectKind kind : {ObjectKind::Label, ObjectKind::Command}) {
    const bool label = kind == ObjectKind::Label;
    Make(kind);
    Type(label ? "Expression" : "Command", label ? "Another text" : "@@pagebreak");
    const TextExtent extent = measurer_.Measure(FontOf(Record()), Record().Content);
    EXPECT_EQ(Record().Width, ToInt32(extent.Width));
    EXPECT_EQ(Record().Height, ToInt32(extent.Height));
  }
  Make(ObjectKind::Label);
  Type("Font", "Arial|40|1|0");
  EXPECT_EQ(Record().Width, ToInt32(measurer_.Measure(FontOf(Record()), Record().Content).Width));
  Record().Width = 1;
  Type("Charset", "2 - Symbol");
  EXPECT_NE(Record().Width, 1);
  Record().Width = 1;
  Type("Alignment", "Left");
  EXPECT_EQ(Record().Width, 1);
}

TEST_F(ApplyObjectEdit, TextBoxKeepsItsSizeWhenTextAndFontChange) {
  Make(ObjectKind::TextBox);
  Type({{"Initial expression", ""}, {"Font", "Arial|40|1|0"}});
  EXPECT_EQ(Record().Content, "");
  EXPECT_EQ(Record().Width, 2400);
}

TEST_F(ApplyObjectEdit, PositionStaysWhenTheAlignmentChanges) {
  Make(ObjectKind::Label);
  Type("Alignment", "Center");
  EXPECT_EQ(Record().Align, "C");
  EXPECT_EQ(Record().XValue, "$Col_02");
  Type("Alignment", "middle");
  EXPECT_EQ(Record().Align, "C");
}

TEST_F(ApplyObjectEdit, FontIsSplitIntoItsFields) {
  Make(ObjectKind::Label);
  Type("Font", "Odd|Name|12|0|1");
  EXPECT_EQ(Record().FontName, "Odd|Name");
  EXPECT_EQ(Record().FontSize, 12);
  EXPECT_EQ(Record().Bold, kFalse);
  EXPECT_EQ(Record().Italic, kTrue);
  EXPECT_EQ(Record().Underline, kTrue);
}

TEST_F(ApplyObjectEdit, ValueThatIsNoFontIsPutBackWithoutAWord) {
  Make(ObjectKind::Label);
  for (const std::string text : {"", "Arial", "Arial|0|0|0", "Arial|721|0|0", "|10|0|0"}) {
    EXPECT_EQ(Type("Font", text), "push, repaint") << text;
    EXPECT_EQ(ValueOf("Font"), "Arial|10|1|0");
  }
}

TEST_F(ApplyObjectEdit, CodesAreTakenFromTheItems) {
  Make(ObjectKind::Label);
  Type({{"Charset", "129 - Korean, ks_c_5601-1987"}, {"Text conversion", "lower"}});
  EXPECT_EQ(Record().CharSet, "129");
  EXPECT_EQ(Record().CaseMode, "L");
  Type({{"Text conversion", "none"}, {"XLS field type", "Generally"}});
  EXPECT_EQ(Record().CaseMode, "N");
  EXPECT_EQ(Record().ValueType, "General");
  Type("Text conversion", "Upper");
  EXPECT_EQ(Record().CaseMode, "N");
}

TEST_F(ApplyObjectEdit, EmptyOptionalTextsAreNoValue) {
  Make(ObjectKind::Label);
  Type("Stretch Text", "  ");
  EXPECT_EQ(Record().Stretch, std::nullopt);
  Make(ObjectKind::TextBox);
  Type({{"@Variable", ""}, {"Border style", ""}});
  EXPECT_EQ(Record().CommandPayload, std::nullopt);
  EXPECT_EQ(Record().TextBoxFrameValue, std::nullopt);
}

TEST_F(ApplyObjectEdit, BorderIsAWholeNumberOrNothing) {
  Make(ObjectKind::TextBox);
  for (const auto& [text, stored] : std::vector<std::pair<std::string, std::string>>{
           {"2 - 3D border", "2"}, {"17", "17"}, {"-1", "-1"}, {"1.5", "-1"}, {"wide", "-1"}, {"-", "-1"}}) {
    EXPECT_EQ(Type("Border style", text), "push, repaint") << text;
    EXPECT_EQ(Record().TextBoxFrameValue, stored) << text;
  }
}

TEST_F(ApplyObjectEdit, CaseModeOfATextBoxStays) {
  Make(ObjectKind::TextBox).CaseMode = "U";
  Type("Width", "5");
  EXPECT_EQ(Record().CaseMode, "U");
}

TEST_F(ApplyObjectEdit, ColoursAreWrittenBackAsTheyStand) {
  Make(ObjectKind::Box);
  const std::vector<std::pair<std::string, std::string>> colours = {{"300,0,0", "255,0,0"},
                                                                    {"4", "128,0,0"},
                                                                    {"255,0", "0,0,0"},
                                                                    {"1,2,3", "1,2,3"},
                                                                    {"abc", "0,0,0"},
                                                                    {"9,9,9", "9,9,9"},
                                                                    {"", "0,0,0"},
                                                                    {"70000,1,2", "255,1,2"},
                                                                    {"65535,1,2", "0,0,0"},
                                                                    {"12,-1,0", "255,0,0"},
                                                                    {"-5,7,8", "0,7,8"},
                                                                    {"15,65535,1", "255,255,255"},
                                                                    {" 1 , 2 , 3 ,4", "1,2,3"},
                                                                    {"12,x,0", "255,0,0"},
                                                                    {"99999999999,0,0", "255,0,0"}};
  for (const auto& [typed, shown] : colours) {
    EXPECT_EQ(Type("Color", typed), "push, repaint") << typed;
    EXPECT_EQ(ValueOf("Color"), shown) << typed;
  }
}

TEST_F(ApplyObjectEdit, BackColourOfNoneIsKeptUntilItIsChanged) {
  Make(ObjectKind::TextBox);
  Type("Font color", "1,1,1");
  EXPECT_EQ(Record().BackColorR, -1);
  Type("Back color", "255,255,254");
  EXPECT_EQ(Record().BackColorR, 255);
  EXPECT_EQ(Record().BackColorB, 254);
  EXPECT_EQ(Record().ColorR, 1);
}

TEST_F(ApplyObjectEdit, PasswordIsStoredAsOneOrZero) {
  Make(ObjectKind::TextBox);
  Type("Password field", "Yes");
  EXPECT_EQ(Record().TextBoxExtraValue, 1);
  Type("Password field", "No");
  EXPECT_EQ(Record().TextBoxExtraValue, 0);
}

TEST_F(ApplyObjectEdit, SampleAlwaysFollowsTheSymbology) {
  Make(ObjectKind::Barcode);
  const std::vector<std::pair<std::string, std::string>> samples = {{"STANDARD 3-9", "ABCDEF"},
                                                                    {"EAN-8", "12345678"},
                                                                    {"128 B", "123456"},
                                                                    {"EAN-13", "1234567890123"},
                                                                    {"128 C", "123456"},
                                                                    {"UCC EAN 128", "(01)12345678"},
                                                                    {"2 OF 5 STANDARD", "1234567890"},
                                                                    {"2 OF 5 INTERLEAVE", "1234567890"},
                                                                    {"2 OF 5 INDUSTRIAL", "1234567890"}};
  for (const auto& [name, sample] : samples) {
    Type({{"Barcode type", name}, {"Sample value", "typed"}});
    EXPECT_EQ(ValueOf("Barcode type"), name);
    EXPECT_EQ(Record().BarcodeSample, sample);
  }
  Record().BarcodeSample = "old";
  Type("Height", "700");
  EXPECT_EQ(Record().BarcodeSample, "1234567890");
  EXPECT_EQ(Record().Width, 2400);
}

TEST_F(ApplyObjectEdit, SymbologyWithoutASpecimenKeepsTheTypedSample) {
  Make(ObjectKind::Barcode).BarcodeKind = "32";
  EXPECT_EQ(Type("Sample value", " 123456789 "), "push, repaint");
  EXPECT_EQ(Record().BarcodeSample, "123456789");
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(ApplyObjectEdit, UnknownSymbologyShowsItsWordsAndKeepsTheCode) {
  Make(ObjectKind::Barcode);
  EXPECT_EQ(Type("Barcode type", "CODABAR"), "push, repaint");
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Text, "Barcode not found. ADD IT!");
  EXPECT_EQ(host_.Messages[0].Title, services_.Text(760));
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(Record().BarcodeKind, "13");
}

TEST_F(ApplyObjectEdit, DiameterIsWidthAndHeight) {
  Make(ObjectKind::Circle);
  Type("Diameter", "500");
  EXPECT_EQ(Record().Width, 500);
  EXPECT_EQ(Record().Height, 500);
}

TEST_F(ApplyObjectEdit, LineIsAsWideAsItsEndsAreApart) {
  Make(ObjectKind::Line);
  Type("X2 /Column", "$Col_01 + 500");
  EXPECT_EQ(Record().Width, 1500 - 5000);
  Type("X/Column", "100");
  EXPECT_EQ(Record().Width, 1400);
}

TEST_F(ApplyObjectEdit, QrSizeIsBothAndMustBeAboveZero) {
  Make(ObjectKind::Qr);
  Type("Height/width", "900");
  EXPECT_EQ(Record().Width, 900);
  EXPECT_EQ(Record().Height, 900);
  for (const std::string text : {"0", "-5", ""}) {
    EXPECT_EQ(Type("Height/width", text), "push, repaint");
    EXPECT_EQ(Record().Height, 900);
  }
}

TEST_F(ApplyObjectEdit, QrImageIsOldOnlyBesideThePageAndOnlyForTextSizeAndPlace) {
  Make(ObjectKind::Qr);
  const test::SheetTest::Typed edits = {
      {"Text", "new"}, {"X/Column", "17"}, {"Y position", "18"}, {"Height/width", "800"}};
  for (const auto& edit : edits) {
    Type({edit});
    EXPECT_TRUE(outcome_.QrImageIsOld) << edit.first;
  }
  Type({{"Color", "1,1,1"}, {"Print at runtime", "Yes"}});
  EXPECT_FALSE(outcome_.QrImageIsOld);
  place_ = SheetPlace::Floating;
  Type("Text", "newer");
  EXPECT_FALSE(outcome_.QrImageIsOld);
  place_ = SheetPlace::Docked;
  Make(ObjectKind::Box);
  Type("Y position", "1");
  EXPECT_FALSE(outcome_.QrImageIsOld);
}

TEST_F(ApplyObjectEdit, PictureFileIsTakenWithItsSize) {
  pictures_.Pictures = {{"logo.png", {1000, 500}}, {"wide.png", {4000, 500}}};
  Make(ObjectKind::Picture);  // width fixed at 2400
  Type("File", "wide.png");
  EXPECT_EQ(Record().PicturePath, "wide.png");
  EXPECT_EQ(Record().Content, "wide.png");
  EXPECT_EQ(Record().PictureFile, "wide.png");
  EXPECT_EQ(Record().Width, 2400);
  EXPECT_EQ(Record().Height, 300);
}

TEST_F(ApplyObjectEdit, TypedPictureSizeIsFixed) {
  pictures_.Pictures = {{"logo.png", {1000, 500}}};
  Make(ObjectKind::Picture);
  Type("Height", "77");
  EXPECT_EQ(Record().PictureFixedHeight, kTrue);
  EXPECT_EQ(Record().Height, 77);
  EXPECT_EQ(ValueOf("Calculate height at runtime"), "No");
  Type({{"Calculate width at runtime", "Yes"}, {"Calculate height at runtime", "Yes"}});
  EXPECT_EQ(Record().PictureFixedWidth, kFalse);
  EXPECT_EQ(Record().Width, 1000);
  EXPECT_EQ(Record().Height, 500);
}

TEST_F(ApplyObjectEdit, PicturePathsOfDataAndAddressesAreAccepted) {
  for (const std::string path : {"@Logo", "$Logo", "https://shop.example/a.png", ""}) {
    Make(ObjectKind::Picture);
    EXPECT_EQ(Type("File", path), "push, repaint") << path;
    EXPECT_EQ(Record().PicturePath, path);
    EXPECT_EQ(Record().Width, 2400);
    EXPECT_EQ(Record().Height, 600);
  }
}

TEST_F(ApplyObjectEdit, CommandStoresTheRowsThatCarryItsArgument) {
  Make(ObjectKind::Command).Content = "@@page";
  Type({{"Execute", "other"}, {"Mode", "Always"}, {"Context", "Viewer"}, {"Value", " 7 "}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().ExecuteArg2, "Once");
  EXPECT_EQ(Record().CommandPayload, "7");
  Make(ObjectKind::Command).Content = "@@pagebreak";
  Type({{"Execute", "other"}, {"Value", "7"}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().CommandPayload, "12");
}

TEST_F(ApplyObjectEdit, CommandStoresArgumentsForTheContentThatIsTypedWithThem) {
  Make(ObjectKind::Command);
  Type({{"Command", "@@page"}, {"Execute", "other"}, {"Value", "7"}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().CommandPayload, "7");
}

TEST_F(ApplyObjectEdit, OnlyTheDockedPanelKnowsBase64) {
  Make(ObjectKind::Command).Content = "@@base64";
  Type({{"Execute", "other"}, {"Value", "7"}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().CommandPayload, "7");
  place_ = SheetPlace::Floating;
  Type({{"Execute", "other"}, {"Value", "8"}});
  EXPECT_EQ(Record().ExecuteCommand, "other");
  EXPECT_EQ(Record().CommandPayload, "7");
}

TEST_F(ApplyObjectEdit, ChoosingPageBreakDisablesTheArgumentsAtOnce) {
  Make(ObjectKind::Command);
  Type("Command", "@@pagebreak");
  EXPECT_FALSE(outcome_.Shown.Rows[1].Enabled);
  EXPECT_FALSE(outcome_.Shown.Rows[3].Enabled);
  EXPECT_TRUE(outcome_.Shown.Rows[4].Enabled);
  Type("Command", "@@page");
  EXPECT_TRUE(outcome_.Shown.Rows[1].Enabled);
}

TEST_F(ApplyObjectEdit, ObjectThatIsNoLongerSelectedBehindTheEditShowsTheNextSheet) {
  class Deselecting final : public test::RecordingServices {
   public:
    explicit Deselecting(Document& document) : RecordingServices(document), target(document) {}
    void FullRepaint() override { target.Objects.CurrentObject = 0; }
    Document& target;
  };
  Make(ObjectKind::Box);
  const Sheet sheet = Shown();
  Deselecting services(document_);
  PageWork page{document_, pointer_, surface_, services, measurer_, 1, DisplayFilter::Print, {}, 0, 0};
  SheetWork work{page, host_, pictures_, "", place_};
  const RowEdit edit{3, "5"};
  EXPECT_EQ(ApplySheetEdit(work, sheet, {&edit, 1}).Shown.Subject, SheetSubject::Document);
}

TEST_F(ApplyObjectEdit, SectionHeightFollowsTheEndThatItEqualled) {
  document_.Objects.CurrentObject = bar_;
  Bar().SectionCursorY = 1000;
  Type("Section ends at", "1500");
  EXPECT_EQ(Bar().SectionCursorY, 1500);
  Type("Section ends at", "600");
  EXPECT_EQ(Bar().SectionCursorY, 600);
  Type("Height", "400");
  Type("Section ends at", "300");
  EXPECT_EQ(Bar().SectionCursorY, 300);
}

TEST_F(ApplyObjectEdit, BodiesBelowMoveWithTheEndOfASection) {
  Make(ObjectKind::Box);
  const int box = object_;
  ObjectRecord& below = Make(ObjectKind::Box);
  below.OwnerName = "FOOTER]";
  below.AbsoluteY = 2300;
  document_.Objects.CurrentObject = bar_;
  EXPECT_EQ(Type("Section ends at", "3000"), "push, bands");
  EXPECT_EQ(document_.Objects[footer_].AbsoluteY, 3600);
  EXPECT_EQ(document_.Objects[object_].AbsoluteY, 4300);
  EXPECT_EQ(document_.Objects[object_].OwnerName, "FOOTER]");
  EXPECT_EQ(document_.Objects[box].AbsoluteY, 700);
  EXPECT_EQ(document_.Objects[Bar().EndRow].Y, 3000);
}

TEST_F(ApplyObjectEdit, ButtonStoresNothing) {
  Make(ObjectKind::Chart);
  const ObjectRecord before = Record();
  EXPECT_EQ(Type("Custom", ""), "");
  EXPECT_EQ(Record(), before);
}

}  // namespace
}  // namespace kev
