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
  EXPECT_FALSE(Record().Stretch);
  Make(ObjectKind::TextBox);
  Type({{"@Variable", ""}, {"Border style", ""}});
  EXPECT_FALSE(Record().CommandPayload);
  EXPECT_FALSE(Record().TextBoxFrameValue);
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

}  // namespace
}  // namespace kev
