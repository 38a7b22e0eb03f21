// SPDX-License-Identifier: MIT
// The small panel over the page as the designer drives it.
#include "app/quick_properties.h"

#include "app/designer_fixture.h"
#include "document/object_creation.h"

namespace kev {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kItems =
    "[ITEMS:@code,@text]\r\n{510;}Alpha{3000;}Beta{\\n}\r\n{Box=100,400,500,300}\r\n{Spacing=400;\\n}\r\n";
constexpr const char* kRecords = "TEMPLATE=a.kev\r\n|ITEMS|1|bolt|\r\n|ITEMS|2|nut|\r\n";

class QuickPropertiesTest : public test::DesignerTest {
 protected:
  QuickPropertiesTest() {
    Made("data.kex", kRecords);
    Open("data.kex");
  }
  void Open(const std::string& sample) {
    const std::string head = sample.empty() ? "" : "Sample_Kex_file=" + sample + "\r\n";
    designer_ = Start({Made("a.kev", head + test::TemplateWith(kItems))});
    alpha_ = RowOf("Alpha");
    beta_ = RowOf("Beta");
  }
  DesignSurface& Surface() { return designer_->Surface(); }
  QuickProperties& Quick() { return designer_->Quick(); }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  ObjectRecord& Alpha() { return Objects()[alpha_]; }
  int RowOf(const std::string& content) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Content == content) return row;
    return 0;
  }
  int Row(ObjectKind kind) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == kind) return row;
    return 0;
  }
  int BarOfItems() {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == ObjectKind::Subsection && Objects()[row].SectionName == "ITEMS") return row;
    return 0;
  }
  void Select(int row) { Surface().GoToObject(row); }
  Texts Fields() const {
    Texts names;
    for (const QuickField& field : view_.Quick.Fields)
      names.push_back(field.Name);
    return names;
  }

  std::unique_ptr<Designer> designer_;
  int alpha_ = 0, beta_ = 0;
};

TEST_F(QuickPropertiesTest, ThePanelFollowsTheSelection) {
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
  Select(alpha_);
  EXPECT_EQ(view_.Quick.Page, QuickPage::Label);
  EXPECT_EQ(view_.QuickTitle, designer_->Text(kTextQuickLabel));
  EXPECT_EQ(view_.Quick.Content, "Alpha");
  EXPECT_EQ(Fields(), (Texts{"@code", "@text"}));
  Select(beta_);
  EXPECT_EQ(view_.Quick.Content, "Beta");
  Select(Row(ObjectKind::Box));
  EXPECT_EQ(view_.Quick.Page, QuickPage::Shape);
  Surface().Pointer().LastX = 600;
  Surface().Pointer().LastY = Alpha().AbsoluteY + 20;
  EXPECT_TRUE(Surface().Run(Command::SelectAll));
  EXPECT_EQ(view_.Quick.Page, QuickPage::Group);
  EXPECT_EQ(view_.QuickTitle, designer_->Text(kTextMultiSelected) + " 3");
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
  Select(alpha_);
  designer_->NewTemplate();
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
}

TEST_F(QuickPropertiesTest, ItIsClosedShownAndRemembered) {
  Select(alpha_);
  Quick().CloseQuickProps();
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
  EXPECT_EQ(designer_->Options().ShowQuickProps, 0);
  Select(beta_);
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
  Quick().ShowQuickPanel();
  EXPECT_EQ(view_.Quick.Content, "Beta");
  EXPECT_EQ(designer_->Options().ShowQuickProps, 1);
  Quick().CloseQuickProps();
  Quick().Moved(1500, -30);
  designer_->ShutDown();
  const std::string options = test::ReadBytes(Data("LASTRV.DAT"));
  EXPECT_NE(options.find("SHOWQUICKPROPS=0\r\nQUICKPROPSX=1500\r\nQUICKPROPSY=-30\r\n"), std::string::npos)
      << options;
  designer_ = Start({Work("a.kev")});
  Select(RowOf("Alpha"));
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
  EXPECT_EQ(designer_->Options().QuickPropsX, 1500);
}

TEST_F(QuickPropertiesTest, AFieldShowsItsValues) {
  Select(alpha_);
  EXPECT_EQ(Quick().ValuesOf(0).Items, (Texts{"1", "2"}));
  const SampleValues values = Quick().ValuesOf(1);
  EXPECT_EQ(values.Items, (Texts{"bolt", "nut"}));
  EXPECT_EQ(Quick().RecordsShown(values), designer_->Text(kTextQuickRecordsShown) + " 2");
  EXPECT_TRUE(Quick().ValuesOf(2).Items.empty());
}

TEST_F(QuickPropertiesTest, AMissingSampleFileShowsNoRecords) {
  Open("gone.kex");
  Select(alpha_);
  EXPECT_EQ(Fields(), (Texts{"@code", "@text"}));
  EXPECT_TRUE(Quick().ValuesOf(0).FileMissing);
  EXPECT_EQ(Quick().RecordsShown(Quick().ValuesOf(0)), designer_->Text(kTextQuickRecordsShown) + " 0");
  Open("");
  Select(alpha_);
  EXPECT_TRUE(Quick().ValuesOf(0).FileMissing);
}

TEST_F(QuickPropertiesTest, AKedFileGivesItsVariablesAndIsReadAnewWhenItChanges) {
  Made("data.ked", "TEMPLATE=a.kev\r\n@Name=Jo\r\n@Sum=5\r\n");
  Open("data.ked");
  Select(alpha_);
  EXPECT_EQ(Fields(), (Texts{"@Name", "@Sum"}));
  EXPECT_EQ(Quick().ValuesOf(1).Items, Texts{"5"});
  Made("data.ked", "TEMPLATE=a.kev\r\n@Name=Jo\r\n@Sum=5\r\n@New=1\r\n");
  Select(beta_);
  EXPECT_EQ(Fields(), (Texts{"@Name", "@Sum", "@New"}));
}

TEST_F(QuickPropertiesTest, AnotherSampleFileInTheSheetOfTheDocumentIsTheOneThatIsRead) {
  Select(alpha_);
  const std::string other = Made("other.kex", "TEMPLATE=a.kev\r\n|ITEMS|7|screw|\r\n");
  const PointerInput empty{PointerSource::Page, 0, PointerButton::Left, 0, 9000, 6100};
  Surface().PointerPress(empty);
  Surface().PointerRelease(empty);
  const auto& rows = view_.Shown.Rows;
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (rows[i].Caption == "Sample Kex/Ked file") designer_->Sheets().Edited(static_cast<int>(i) + 1, other);
  ASSERT_EQ(designer_->SampleDataPath(), other);
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
  Select(alpha_);
  EXPECT_EQ(view_.Quick.SampleFile, other);
  EXPECT_EQ(Quick().ValuesOf(1).Items, Texts{"screw"});
}

TEST_F(QuickPropertiesTest, TheTextIsStoredMeasuredAndTakenBackByUndo) {
  Select(alpha_);
  const std::int32_t width = Alpha().Width;
  Quick().StoreText("Alpha @code");
  EXPECT_EQ(Alpha().Content, "Alpha @code");
  EXPECT_GT(Alpha().Width, width);
  EXPECT_EQ(view_.Quick.Content, "Alpha @code");
  EXPECT_EQ(Objects().CurrentObject, alpha_);
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(Surface().Run(Command::Undo));
  EXPECT_EQ(Alpha().Content, "Alpha");
  EXPECT_EQ(view_.Quick.Page, QuickPage::Hidden);
}

TEST_F(QuickPropertiesTest, ABlankTextIsRefusedAndTheSameOneChangesNothing) {
  Select(alpha_);
  for (const char* text : {"", "   "}) {
    Quick().StoreText(text);
    ExpectMessage(*designer_, kTextEmptyTextRefused);
    EXPECT_EQ(Alpha().Content, "Alpha");
  }
  Quick().StoreText("Alpha");
  EXPECT_FALSE(designer_->Modified());
  EXPECT_FALSE(Surface().Enabled(Command::Undo));
}

TEST_F(QuickPropertiesTest, NothingIsStoredInWhatIsNotShown) {
  Quick().StoreText("Gamma");
  Quick().SetAlignToGrid(true);
  Select(Row(ObjectKind::Box));
  Quick().StoreText("Gamma");
  EXPECT_EQ(RowOf("Gamma"), 0);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(QuickPropertiesTest, SwitchedOnItMovesToTheGridAndLeavesItsColumn) {
  designer_->OpenDocument().Columns[1].Name = "$Col_01";
  designer_->OpenDocument().Columns[1].Position = 530;
  Alpha().XValue = "$Col_01";
  Alpha().AlignToGrid = 0;
  Alpha().Y = 0;
  Select(alpha_);
  const std::int32_t endsAt = Objects()[BarOfItems()].EndsAt;
  Quick().SetAlignToGrid(true);
  EXPECT_EQ(Alpha().AlignToGrid, 1);
  EXPECT_EQ(Alpha().XValue, "600");
  EXPECT_EQ(Alpha().Y, 0);
  EXPECT_TRUE(view_.Quick.AlignToGrid);
  EXPECT_EQ(Objects()[BarOfItems()].EndsAt, endsAt);
  EXPECT_TRUE(Surface().Run(Command::Undo));
  EXPECT_EQ(Alpha().XValue, "$Col_01");
  EXPECT_EQ(Alpha().AlignToGrid, 0);
}

TEST_F(QuickPropertiesTest, SwitchedOffItStaysWhereItIs) {
  Alpha().AlignToGrid = 1;
  Select(alpha_);
  Quick().SetAlignToGrid(false);
  EXPECT_EQ(Alpha().AlignToGrid, 0);
  EXPECT_EQ(Alpha().XValue, "510");
  EXPECT_TRUE(Surface().Enabled(Command::Undo));
  // What is so already is no change.
  Surface().Run(Command::Undo);
  Select(alpha_);
  const bool redo = Surface().Enabled(Command::Redo);
  Quick().SetAlignToGrid(true);
  EXPECT_EQ(Surface().Enabled(Command::Redo), redo);
}

TEST_F(QuickPropertiesTest, WhereTheObjectThenOverflowsTheSubsectionGrows) {
  const int bar = BarOfItems();
  const int footer = RowOf("Section: [FOOTER]");
  ASSERT_NE(footer, 0);
  Objects()[bar].EndsAt = 1100;
  Alpha().Y = 1000;
  Alpha().AbsoluteY = Objects()[bar].AbsoluteY + 400 + 1000;
  Alpha().AlignToGrid = 0;
  Surface().FullRepaint();
  Select(alpha_);
  ASSERT_EQ(Alpha().Y, 1000);
  designer_->OpenDocument().Settings[Setting::Spacing] = "300";
  const std::int32_t below = Objects()[footer].AbsoluteY;
  Quick().SetAlignToGrid(true);
  EXPECT_EQ(Alpha().Y, 900);
  EXPECT_EQ(Objects()[bar].EndsAt, 900 + Alpha().Height + 400);
  EXPECT_EQ(Alpha().OwnerName, "ITEMS");
  EXPECT_EQ(Objects()[footer].AbsoluteY, below + Objects()[bar].EndsAt - 1100);
  EXPECT_EQ(Objects()[Objects()[bar].EndRow].AbsoluteY,
            Objects()[bar].AbsoluteY + 400 + Objects()[bar].EndsAt);
}

TEST_F(QuickPropertiesTest, AShapeSnapsAsWell) {
  const int box = Row(ObjectKind::Box);
  Objects()[box].AlignToGrid = 0;
  Select(box);
  Quick().SetAlignToGrid(true);
  EXPECT_EQ(Objects()[box].AlignToGrid, 1);
  EXPECT_EQ(Objects()[box].XValue, "200");
}

TEST_F(QuickPropertiesTest, SavedElsewhereItsSampleFileIsTheOneThere) {
  Select(alpha_);
  std::filesystem::create_directories(Work("other"));
  const std::string there = Made("other/data.kex", "TEMPLATE=a.kev\r\n|ITEMS|7|screw|\r\n");
  host_.FilesToSave = {Work("other/a.kev")};
  ASSERT_TRUE(designer_->SaveAs());
  EXPECT_EQ(view_.Quick.SampleFile, there);
  EXPECT_EQ(Quick().ValuesOf(1).Items, Texts{"screw"});
}

TEST_F(QuickPropertiesTest, ALineKeepsItsLength) {
  designer_ = Start({Made("line.kev", test::TemplateWith("[ITEMS:@code]\r\n{Line=510,1510}\r\n"
                                                         "{Spacing=400;\\n}\r\n"))});
  const int line = Row(ObjectKind::Line);
  ASSERT_NE(line, 0);
  Objects()[line].AlignToGrid = 0;
  Select(line);
  Quick().SetAlignToGrid(true);
  EXPECT_EQ(Objects()[line].XValue, "600");
  EXPECT_EQ(Objects()[line].X2Value, "1600");
  EXPECT_EQ(Objects()[line].Width, 1000);
}

TEST_F(QuickPropertiesTest, TheNameOfTheSampleFileMayBeInTheCodePageOnTheDisk) {
  const std::string data = Made("d\xE9.kex", kRecords);
  Open("d\xE9.kex");
  EXPECT_EQ(designer_->SampleDataPath(), data);
  Select(alpha_);
  EXPECT_EQ(Quick().ValuesOf(1).Items, (Texts{"bolt", "nut"}));
  const std::string inUtf8 = Made("d\xC3\xA9.kex", kRecords);
  EXPECT_EQ(designer_->SampleDataPath(), inUtf8);
}

}  // namespace
}  // namespace kev
