// SPDX-License-Identifier: MIT
// The property panel as the designer drives it: its places, what it shows, and when an open cell is stored.
#include "app/property_sheets.h"

#include <gmock/gmock.h>

#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kTwoLabels = "{500;}Alpha{3000;}Beta{\\n}\r\n";

class PropertySheetsTest : public test::DesignerTest {
 protected:
  PropertySheetsTest() {
    designer_ = Start({Made("a.kev", test::TemplateWith(kTwoLabels))});
    alpha_ = RowOf("Alpha");
    beta_ = RowOf("Beta");
  }

  DesignSurface& Surface() { return designer_->Surface(); }
  PropertySheets& Sheets() { return designer_->Sheets(); }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  const DesignerOptions& Options() { return designer_->Options(); }
  int RowOf(const std::string& content) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Content == content) return row;
    return 0;
  }
  int KindRow(ObjectKind kind) {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == kind) return row;
    return 0;
  }
  // As a click on the page.
  void Click(int row) {
    const CanvasArea area = AreaOf(Objects()[row], designer_->OpenDocument(), designer_->ZoomFactor());
    const PointerInput at{PointerSource::Page, 0, PointerButton::Left, 0, area.Left + 30, area.Top + 30};
    Surface().PointerPress(at);
    Surface().PointerRelease(at);
  }
  void Type(const std::string& caption, const std::string& text) { Sheets().Edited(RowNamed(caption), text); }
  int RowNamed(const std::string& caption) {
    const auto& rows = view_.Shown.Rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
      if (rows[i].Caption == caption) return static_cast<int>(i) + 1;
    return 0;
  }
  std::string Shown(const std::string& caption) {
    return view_.Shown.Rows[static_cast<std::size_t>(RowNamed(caption)) - 1].Value;
  }
  // A cell is open in which this was typed.
  void OpenCell(const std::string& caption, const std::string& text) {
    view_.OnCommitCell = [this, row = RowNamed(caption), text] { Sheets().Edited(row, text); };
  }
  std::string Title(int number) { return designer_->Text(number); }

  std::unique_ptr<Designer> designer_;
  int alpha_ = 0, beta_ = 0;
};

// --- What is shown
// -----------------------------------------------------------------------------------------------

TEST_F(PropertySheetsTest, TheSheetFollowsTheSelection) {
  EXPECT_EQ(view_.ShownTitle, Title(kTextSheetDocument));
  EXPECT_EQ(view_.Shown.Rows.size(), 33U);
  Click(alpha_);
  EXPECT_EQ(view_.ShownTitle, Title(kTextSheetLabel));
  EXPECT_EQ(Shown("Expression"), "Alpha");
  Click(beta_);
  EXPECT_EQ(Shown("Expression"), "Beta");
  Surface().GoToObject(alpha_);
  EXPECT_EQ(Shown("Expression"), "Alpha");
  EXPECT_TRUE(designer_->Run(Command::SelectAll));
  EXPECT_TRUE(view_.Shown.Rows.empty());
  EXPECT_EQ(view_.ShownTitle, Title(kTextMultiSelected) + " 2");
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  designer_->NewTemplate();
  EXPECT_EQ(view_.ShownTitle, Title(kTextSheetDocument));
}

TEST_F(PropertySheetsTest, AnEndBarLeavesTheSheetStandingDisabled) {
  Click(alpha_);
  Surface().GoToObject(KindRow(ObjectKind::EndOfSubsection));
  EXPECT_FALSE(view_.Shown.Enabled);
  EXPECT_EQ(view_.ShownTitle, Title(kTextSheetLabel));
  Type("Expression", "Other");
  EXPECT_EQ(Objects()[alpha_].Content, "Alpha");
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PropertySheetsTest, AnEditIsStoredShownAndTakenBackByUndo) {
  Click(alpha_);
  Type("Expression", "Gamma");
  EXPECT_EQ(Objects()[alpha_].Content, "Gamma");
  EXPECT_EQ(Shown("Expression"), "Gamma");
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(Objects()[alpha_].Content, "Alpha");
  EXPECT_EQ(view_.ShownTitle, Title(kTextSheetDocument));
}

TEST_F(PropertySheetsTest, ARefusedEditShowsTheOldValueAndLeavesAStep) {
  Click(alpha_);
  Type("X/Column", "$Col_99");
  ExpectMessage(*designer_, kTextPositionRefused);
  EXPECT_EQ(Shown("X/Column"), "500");
  EXPECT_EQ(Objects()[alpha_].XValue, "500");
  EXPECT_TRUE(designer_->Enabled(Command::Undo));
}

TEST_F(PropertySheetsTest, ARefusedPageSizeSelectsItsRow) {
  const int row = RowNamed("PageWidth");
  const std::string before = Shown("PageWidth");
  Type("PageWidth", "99");
  EXPECT_EQ(view_.SelectedRow, row);
  EXPECT_EQ(Shown("PageWidth"), before);
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(PropertySheetsTest, ANewPaperOrMarginShowsAnotherPage) {
  const auto last = [this](const std::string& word) {
    const std::vector<std::string> lines = view_.Page.Only(word);
    return lines.empty() ? std::string() : lines.back();
  };
  EXPECT_TRUE(last("canvas ").starts_with("canvas 11900 "));
  view_.Page.Take();
  Type("Papersize", "A3, 297 x 420 mm");
  EXPECT_TRUE(last("canvas ").starts_with("canvas 16840 ")) << last("canvas ");
  EXPECT_EQ(Shown("PageWidth"), "16840");
  view_.Page.Take();
  Type("Left margin", "500");
  EXPECT_EQ(last("scaleleft "), "scaleleft -500");
  EXPECT_TRUE(last("canvas ").starts_with("canvas 17340 ")) << last("canvas ");
}

TEST_F(PropertySheetsTest, ColumnLinesArePlacedAnewBehindAnEdit) {
  ASSERT_TRUE(designer_->OpenTemplate(Made("b.kev", "$Col_01=2400\r\n" + test::TemplateWith(kTwoLabels))));
  Click(RowOf("Alpha"));
  view_.Page.Take();
  Type("X/Column", "$Col_01");
  EXPECT_TRUE(view_.Page.Has("place linecolumn(1) 2400 0 "));
}

TEST_F(PropertySheetsTest, AnAddressCanBeTypedWhileRemotePicturesAreOff) {
  test::WriteBytes(Data("KEV.INI"), "REMOTEPICTURES=N\r\n");
  designer_ = Start({Made("b.kev", test::TemplateWith("{Pic=logo.png,500,,900,600,}{\\n}\r\n"))});
  Click(KindRow(ObjectKind::Picture));
  Type("File", "https://example.org/shop/");
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(Objects()[KindRow(ObjectKind::Picture)].PicturePath, "https://example.org/shop/");
  EXPECT_TRUE(host_.Fetches.empty());
}

TEST_F(PropertySheetsTest, AnObjectThatItsEditHidesIsDeselected) {
  EXPECT_TRUE(designer_->SetFilter(DisplayFilter::Print));
  Click(alpha_);
  ASSERT_EQ(Shown("Print at runtime"), "Yes");
  Type("Print at runtime", "No");
  EXPECT_EQ(Objects().CurrentObject, 0);
  EXPECT_EQ(view_.ShownTitle, Title(kTextSheetDocument));
}

TEST_F(PropertySheetsTest, AnEditForAnotherObjectStoresNothingAndShowsTheRightSheet) {
  Click(alpha_);
  const int row = RowNamed("Expression");
  Objects().CurrentObject = beta_;
  Sheets().Edited(row, "Gamma");
  EXPECT_EQ(Objects()[alpha_].Content, "Alpha");
  EXPECT_EQ(Objects()[beta_].Content, "Beta");
  EXPECT_FALSE(designer_->Modified());
  EXPECT_EQ(Shown("Expression"), "Beta");
}

TEST_F(PropertySheetsTest, DescriptionsAreThoseOfTheSheetThatIsShown) {
  EXPECT_EQ(Sheets().Description(1), Title(828));
  Click(alpha_);
  EXPECT_EQ(Sheets().Description(1), Title(854));
  EXPECT_EQ(Sheets().Description(16), std::nullopt);
}

// --- Open cells
// --------------------------------------------------------------------------------------------------

TEST_F(PropertySheetsTest, AnOpenCellIsStoredInItsObjectBeforeAnotherIsSelected) {
  Click(alpha_);
  OpenCell("Expression", "Gamma");
  Click(beta_);
  EXPECT_EQ(Objects()[alpha_].Content, "Gamma");
  EXPECT_EQ(Objects()[beta_].Content, "Beta");
  EXPECT_EQ(Shown("Expression"), "Beta");
  OpenCell("Expression", "Delta");
  Surface().GoToObject(alpha_);
  EXPECT_EQ(Objects()[beta_].Content, "Delta");
  EXPECT_EQ(Objects()[alpha_].Content, "Gamma");
}

TEST_F(PropertySheetsTest, AnOpenCellIsStoredBeforeACommand) {
  Click(alpha_);
  OpenCell("Expression", "Gamma");
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(Objects()[RowOf("Alpha")].Kind, ObjectKind::Label) << "undo takes the new text back";
  Click(alpha_);
  OpenCell("Expression", "Gamma");
  EXPECT_TRUE(designer_->Run(Command::SelectAll));
  EXPECT_NE(RowOf("Gamma"), 0);
}

TEST_F(PropertySheetsTest, AnOpenCellIsStoredBeforeAFilterOrAToolOrAColumnIsChosen) {
  const std::vector<std::function<void()>> doings = {[this] { designer_->SetFilter(DisplayFilter::Ebeu); },
                                                     [this] { Surface().ToggleTool("insertlabel"); },
                                                     [this] { Surface().ChooseColumn(0); }};
  for (std::size_t i = 0; i < doings.size(); ++i) {
    designer_->SetFilter(DisplayFilter::All);
    Surface().Pointer().PendingTool = {};
    Click(alpha_);
    OpenCell("Expression", "Text " + std::to_string(i));
    doings[i]();
    EXPECT_EQ(Objects()[alpha_].Content, "Text " + std::to_string(i));
    host_.Messages.clear();
  }
}

TEST_F(PropertySheetsTest, AnOpenCellIsStoredBeforeTheDocumentIsLeft) {
  Click(alpha_);
  OpenCell("Expression", "Gamma");
  host_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(designer_->MayClose());
  ASSERT_EQ(host_.Messages.size(), 1U) << "the new text is asked about";
  EXPECT_EQ(Objects()[alpha_].Content, "Gamma");
  OpenCell("Expression", "Delta");
  host_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(designer_->MayClose());
  EXPECT_NE(ReadWholeFile(Work("a.kev"))->find("Delta"), std::string::npos);
}

TEST_F(PropertySheetsTest, AnOpenCellIsStoredBeforeThePanelGoesElsewhere) {
  Click(alpha_);
  OpenCell("Expression", "Gamma");
  Sheets().SwitchPlace();
  EXPECT_EQ(Objects()[alpha_].Content, "Gamma");
  OpenCell("Expression", "Delta");
  Sheets().CloseProperties();
  EXPECT_EQ(Objects()[alpha_].Content, "Delta");
}

// --- Places
// ------------------------------------------------------------------------------------------------------

TEST_F(PropertySheetsTest, ThePanelStandsWhereTheOptionsSay) {
  EXPECT_THAT(view_.PanelStates, ElementsAre(kPanelDocked));
  for (const std::int32_t state : {kPanelClosed, kPanelFloating, kPanelDocked, kPanelWide}) {
    designer_->Options().PropFix = state;
    view_.PanelStates.clear();
    Sheets().Start();
    EXPECT_THAT(view_.PanelStates, ElementsAre(state));
    EXPECT_EQ(view_.Shown.Place, state == kPanelFloating ? SheetPlace::Floating : SheetPlace::Docked);
  }
}

TEST_F(PropertySheetsTest, ADoubleClickOnTheTitleTakesThePanelOffAndBack) {
  Click(alpha_);
  view_.PanelStates.clear();
  EXPECT_NE(RowNamed("Font strike"), 0);
  Sheets().SwitchPlace();
  EXPECT_EQ(Options().PropFix, kPanelFloating);
  EXPECT_NE(RowNamed("Font Strike"), 0);
  Sheets().SwitchPlace();
  EXPECT_EQ(Options().PropFix, kPanelDocked);
  EXPECT_NE(RowNamed("Font strike"), 0);
  EXPECT_THAT(view_.PanelStates, ElementsAre(kPanelFloating, kPanelDocked));
}

TEST_F(PropertySheetsTest, TheWideAndTheClosedPanelIgnoreTheDoubleClick) {
  for (const std::int32_t state : {kPanelWide, kPanelClosed}) {
    designer_->Options().PropFix = state;
    view_.PanelStates.clear();
    Sheets().SwitchPlace();
    EXPECT_EQ(Options().PropFix, state);
    EXPECT_THAT(view_.PanelStates, IsEmpty());
  }
}

TEST_F(PropertySheetsTest, AClosedPanelComesBackWhereItWas) {
  for (const std::int32_t state : {kPanelFloating, kPanelDocked, kPanelWide}) {
    designer_->Options().PropFix = state;
    Sheets().CloseProperties();
    EXPECT_EQ(Options().PropFix, kPanelClosed);
    Sheets().CloseProperties();
    EXPECT_TRUE(designer_->Run(Command::Properties));
    EXPECT_EQ(Options().PropFix, state);
  }
}

TEST_F(PropertySheetsTest, APanelClosedInTheLastRunComesBackBesideThePage) {
  designer_->Options().PropFix = kPanelClosed;
  Sheets().Start();
  Sheets().Properties();
  EXPECT_EQ(Options().PropFix, kPanelDocked);
}

TEST_F(PropertySheetsTest, TheCommandGoesToAPanelThatIsOpen) {
  EXPECT_TRUE(designer_->Run(Command::Properties));
  EXPECT_EQ(view_.PanelFocused, 1);
  EXPECT_EQ(Options().PropFix, kPanelDocked);
}

TEST_F(PropertySheetsTest, PlaceAndSizeAreKeptForTheNextRun) {
  Sheets().SwitchPlace();
  Sheets().FloatingMoved({1515, 2025, 3000, 4500});
  designer_->ShutDown();
  const std::unique_ptr<Designer> next = Make();
  ASSERT_TRUE(next->Load());
  EXPECT_TRUE(next->BeginActivation());
  next->SplashLoad();
  next->AfterSplash();
  EXPECT_EQ(next->Options().PropFix, kPanelFloating);
  EXPECT_EQ(next->Options().PropLeft, 1515);
  EXPECT_EQ(next->Options().PropTop, 2025);
  EXPECT_EQ(next->Options().PropWidth, 3000);
  EXPECT_EQ(next->Options().PropHeight, 4500);
}

// --- Double click, button, focus
// ---------------------------------------------------------------------------------

TEST_F(PropertySheetsTest, ADoubleClickOnARowIsOneOnItsObject) {
  Sheets().DoubleClicked();
  EXPECT_EQ(view_.PanelFocused, 0) << "the document has nothing to open";
  Click(alpha_);
  Sheets().DoubleClicked();
  EXPECT_EQ(view_.PanelFocused, 1);
  Surface().GoToObject(KindRow(ObjectKind::EndOfSubsection));
  Sheets().DoubleClicked();
  EXPECT_EQ(view_.PanelFocused, 1);
}

TEST_F(PropertySheetsTest, ACustomRowWhoseDialogIsGivenUpLeavesNothing) {
  ASSERT_TRUE(designer_->OpenTemplate(
      Made("b.kev", test::TemplateWith("[ITEMS]\r\n{Graph_Height=2000;Graph_Width=3000}\r\n"
                                       "{Buildgraph=500,}\r\n{Spacing=2400;\\n}\r\n"))));
  int opened = 0;
  view_.OnSubsection = [&](SubsectionDialog&, const std::function<bool()>&) { ++opened; };
  view_.OnChartWizard = [&](ChartWizardRun&) { ++opened; };
  int items = 0;
  for (int row = 1; row <= Objects().LastScanned(); ++row)
    if (Objects()[row].SectionName == "ITEMS]") items = row;
  for (const int row : {items, KindRow(ObjectKind::Chart)}) {
    Surface().GoToObject(row);
    for (std::size_t each = 1; each <= view_.Shown.Rows.size(); ++each)
      Sheets().PressButton(static_cast<int>(each));
  }
  EXPECT_EQ(opened, 2);
  EXPECT_FALSE(designer_->Modified());
  EXPECT_FALSE(designer_->Enabled(Command::Undo));
}

TEST_F(PropertySheetsTest, TheFocusOfTheGridIsKnown) {
  EXPECT_FALSE(Sheets().HasGridFocus());
  Sheets().SetGridFocus(true);
  EXPECT_TRUE(Sheets().HasGridFocus());
  Sheets().SetGridFocus(false);
  EXPECT_FALSE(Sheets().HasGridFocus());
}

}  // namespace
}  // namespace kev
