// SPDX-License-Identifier: MIT
// Clipboard, group commands and font tools as the window gives them.
#include <gtest/gtest.h>

#include "app/designer_fixture.h"
#include "surface/selection.h"

namespace kev {
namespace {

class GroupsOfDesigner : public test::DesignerTest {
 protected:
  void StartWith(const std::string& data, const std::string& head = {}) {
    const std::string path = Made("page.kev", head + test::TemplateWith(data));
    designer_ = Start({path});
    ASSERT_EQ(designer_->DocumentTitle(), "page.kev");
    host_.Messages.clear();
  }
  void StartWithTwo() {
    StartWith(
        "{F=Arial;S=10}\r\n{1000;}Alpha{\\n}\r\n{Spacing=600;\\n}\r\n{2000;}Beta{\\n}\r\n{Spacing=3000;\\n}"
        "\r\n");
  }
  Document& Doc() { return designer_->OpenDocument(); }
  DesignSurface& Surface() { return designer_->Surface(); }
  // 0 where there is none; the last of several.
  int Label(std::string_view content) {
    int found = 0;
    for (int row = 1; row <= Doc().Objects.LastScanned(); ++row)
      if (Doc().Objects[row].Kind == ObjectKind::Label && Doc().Objects[row].Content == content) found = row;
    return found;
  }
  ObjectRecord& At(std::string_view content) { return Doc().Objects[Label(content)]; }
  int Labels() { return test::CountOf(*designer_, ObjectKind::Label); }
  void Select(int row) {
    PageWork work = Surface().Work();
    SelectObject(work, row);
  }
  void SelectBoth() {
    Doc().Objects.CurrentObject = 0;
    At("Alpha").Selected = At("Beta").Selected = kTrue;
    Surface().FullRepaint();
  }
  void ClickAt(double x, double y) { Surface().Pointer().KeepPosition({x, y}); }
  // A place in the body of [DATA], below its objects.
  void ClickInBody() { ClickAt(5000, At("Beta").AbsoluteY + 1000); }
  int Level() { return Surface().Undo().UndoIndex(); }

  std::unique_ptr<Designer> designer_;
};

// --- Clipboard ---

TEST_F(GroupsOfDesigner, CopyAndPasteByCommand) {
  StartWithTwo();
  EXPECT_FALSE(designer_->Enabled(Command::Copy));
  EXPECT_FALSE(designer_->Enabled(Command::Cut));
  EXPECT_FALSE(designer_->Enabled(Command::Paste));
  Select(Label("Alpha"));
  EXPECT_TRUE(designer_->Enabled(Command::Copy));
  EXPECT_TRUE(designer_->Run(Command::Copy));
  EXPECT_EQ(Level(), 0);
  EXPECT_FALSE(designer_->Modified());
  EXPECT_TRUE(designer_->Enabled(Command::Paste));
  ClickInBody();
  EXPECT_TRUE(designer_->Run(Command::Paste));
  EXPECT_EQ(Labels(), 3);
  EXPECT_EQ(Level(), 1);
  EXPECT_EQ(Doc().Objects.CurrentObject, Label("Alpha"));
  EXPECT_EQ(At("Alpha").XValue, "5000");
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(Labels(), 2);
}

TEST_F(GroupsOfDesigner, CutLeavesALevelAndTheContextMenusDoTheSame) {
  StartWithTwo();
  for (const Command cut : {Command::Cut, Command::CutContext, Command::CutGroup}) {
    Select(Label("Alpha"));
    const int before = Level();
    EXPECT_TRUE(designer_->Run(cut));
    EXPECT_EQ(Level(), before + 1);
    EXPECT_EQ(Labels(), 1);
    ClickInBody();
    EXPECT_TRUE(designer_->Run(Command::Paste));
    EXPECT_EQ(Labels(), 2);
  }
  for (const Command copy : {Command::Copy, Command::CopyContext, Command::CopyGroup}) {
    Select(Label("Beta"));
    EXPECT_TRUE(designer_->Run(copy));
    EXPECT_EQ(Surface().Clipboard().Rows.count(Label("Beta")), 1U);
    Select(Label("Alpha"));
    EXPECT_TRUE(designer_->Run(copy));
  }
}

TEST_F(GroupsOfDesigner, AGroupOverwritesTheCurrentObjectWhenItIsCutAndPasted) {
  StartWithTwo();
  SelectBoth();
  EXPECT_TRUE(designer_->Run(Command::CutGroup));
  EXPECT_EQ(Labels(), 0);
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(host_.Selection, "");
  ClickAt(3000, 1700);
  EXPECT_TRUE(designer_->Run(Command::Paste));
  EXPECT_EQ(Labels(), 2);
  EXPECT_TRUE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(At("Alpha").XValue, "3000");
  EXPECT_EQ(At("Beta").XValue, "4000");
}

TEST_F(GroupsOfDesigner, WhatWasCopiedCanBePastedIntoAnotherDocument) {
  StartWith("{F=Courier New;S=14}\r\n{$Col_01;}Total{\\n}\r\n", "$Col_01=2400\r\n");
  Select(Label("Total"));
  EXPECT_TRUE(designer_->Run(Command::Copy));
  ASSERT_TRUE(designer_->OpenTemplate(Made("other.kev", test::TemplateWith("{100;}Only{\\n}\r\n"))));
  EXPECT_TRUE(designer_->Enabled(Command::Paste)) << "the clipboard outlives the document";
  EXPECT_TRUE(designer_->Run(Command::Paste));
  ExpectMessage(*designer_, kTextNoSubsectionHere);
  ClickAt(700, At("Only").AbsoluteY);
  EXPECT_TRUE(designer_->Run(Command::Paste));
  ASSERT_NE(Label("Total"), 0);
  EXPECT_EQ(At("Total").XValue, "700");
  EXPECT_EQ(At("Total").FontName, "Courier New");
  EXPECT_EQ(At("Total").FontSize, 14);
  EXPECT_EQ(At("Total").OwnerName, At("Only").OwnerName);
}

TEST_F(GroupsOfDesigner, WhatThePageOfTheOtherDocumentLacksIsRefusedByName) {
  StartWithTwo();
  At("Alpha").Content = "\x80";  // the euro sign
  Select(Label("\x80"));
  EXPECT_TRUE(designer_->Run(Command::Copy));
  Doc().Page = CodePage::Find("windows-1251");
  ClickInBody();
  const int before = Level();
  EXPECT_TRUE(designer_->Run(Command::Paste));
  ASSERT_TRUE(host_.Messages.empty()) << "this page has the euro sign elsewhere";
  EXPECT_NE(Label("\x88"), 0);
  EXPECT_TRUE(designer_->Run(Command::Undo));
  Doc().Page = &CodePage::Default();
  At("Beta").Content = "\xE9";  // e with acute
  Select(Label("\xE9"));
  EXPECT_TRUE(designer_->Run(Command::Copy));
  Doc().Page = CodePage::Find("windows-1251");
  ClickAt(5000, 1700);
  EXPECT_TRUE(designer_->Run(Command::Paste));
  EXPECT_EQ(Level(), before);
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Detail, "\xC3\xA9");
  ExpectMessage(*designer_, kTextPasteRefused);
  EXPECT_EQ(Labels(), 2);
}

TEST_F(GroupsOfDesigner, TheGridAndATextBoxKeepTheKeys) {
  StartWithTwo();
  Select(Label("Alpha"));
  EXPECT_TRUE(designer_->Run(Command::Copy));
  ClickInBody();
  const auto none = [&] {
    for (const Command command : {Command::Cut, Command::Copy, Command::Paste}) {
      EXPECT_FALSE(designer_->Enabled(command)) << static_cast<int>(command);
      EXPECT_TRUE(designer_->Run(command));
    }
    EXPECT_EQ(Labels(), 2);
  };
  designer_->Sheets().SetGridFocus(true);
  none();
  designer_->Sheets().SetGridFocus(false);
  EXPECT_TRUE(designer_->Enabled(Command::Paste));
  EXPECT_TRUE(Surface().KeyDown(113, 0, ""));
  ASSERT_TRUE(Surface().Edit().Active());
  none();
  Surface().EndFieldScreen(false);
  EXPECT_TRUE(designer_->Enabled(Command::Cut));
  EXPECT_TRUE(designer_->Enabled(Command::Paste));
}

TEST_F(GroupsOfDesigner, ToolsAndContextMenusActWhileATextHasTheKeys) {
  StartWithTwo();
  for (const Command copy : {Command::CopyContext, Command::CopyGroup}) {
    Select(Label("Alpha"));
    designer_->Sheets().SetGridFocus(true);
    EXPECT_TRUE(designer_->Enabled(copy)) << static_cast<int>(copy);
    EXPECT_TRUE(designer_->Run(copy));
    EXPECT_EQ(Surface().Clipboard().Rows.count(Label("Alpha")), 1U);
    Select(Label("Beta"));
    EXPECT_TRUE(designer_->Run(copy));
    EXPECT_EQ(Surface().Clipboard().Rows.count(Label("Beta")), 1U);
  }
  EXPECT_TRUE(designer_->Run(Command::CutContext));
  EXPECT_EQ(Labels(), 1);
  designer_->Sheets().SetGridFocus(false);
  Select(Label("Alpha"));
  EXPECT_TRUE(Surface().KeyDown(113, 0, ""));
  ASSERT_TRUE(Surface().Edit().Active());
  Surface().FieldTextChanged("Typed");
  EXPECT_TRUE(designer_->Run(Command::CutGroup));
  EXPECT_FALSE(Surface().Edit().Active());
  EXPECT_EQ(Labels(), 0);
  ASSERT_EQ(Surface().Clipboard().Rows.size(), 1U);
  EXPECT_EQ(Surface().Clipboard().Rows.begin()->second.Content, "Typed");
}

TEST_F(GroupsOfDesigner, ASectionBarIsRefusedWithItsMessage) {
  StartWithTwo();
  int bar = 0;
  for (int row = 1; row <= Doc().Objects.LastScanned(); ++row)
    if (Doc().Objects[row].SectionName == "DATA]" && Doc().Objects[row].Kind == ObjectKind::Subsection)
      bar = row;
  ASSERT_NE(bar, 0);
  Select(bar);
  for (const Command command : {Command::Cut, Command::Copy}) {
    EXPECT_TRUE(designer_->Run(command));
    ExpectMessage(*designer_, kTextNotWithSection);
  }
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupsOfDesigner, APasteBeyondTheTableIsTakenBack) {
  StartWithTwo();
  SelectBoth();
  EXPECT_TRUE(designer_->Run(Command::Copy));
  ObjectTable& objects = Doc().Objects;
  // One row is left for two objects.
  objects.ObjectCount = ObjectTable::kLastRow;
  for (int row = 1; row < ObjectTable::kLastRow; ++row) {
    if (objects[row].Kind != ObjectKind::None) continue;
    objects[row] = At("Alpha");
    objects[row].Content = "Filler";
  }
  ClickInBody();
  EXPECT_TRUE(designer_->Run(Command::Paste));
  ExpectMessage(*designer_, kTextOperationFailed);
  EXPECT_EQ(std::as_const(objects)[ObjectTable::kLastRow].Kind, ObjectKind::None);
  EXPECT_EQ(Level(), 0);
}

// --- The menu of a group ---

TEST_F(GroupsOfDesigner, ItsMenuHoldsEveryCommandOfAGroup) {
  const auto rows = ContextMenuRows(ContextMenu::Group);
  std::vector<std::string_view> names;
  for (const std::optional<Command>& row : rows)
    if (row) names.push_back(RowOf(*row).name);
  EXPECT_EQ(names,
            (std::vector<std::string_view>{"cut22", "copyuy", "deleteselection", "selectall", "alignhor",
                                           "placethis", "aligntogrid", "modienduser", "menprintnoprint"}));
}

TEST_F(GroupsOfDesigner, ItsCommandsNeedAGroup) {
  StartWithTwo();
  const auto all = {Command::DeleteSelection, Command::AlignHorizontally, Command::PlaceAt,
                    Command::AlignToGrid,     Command::ModifyEndUser,     Command::PrintNoPrint};
  Select(Label("Alpha"));
  for (const Command command : all)
    EXPECT_FALSE(designer_->Enabled(command));
  SelectBoth();
  for (const Command command : all)
    EXPECT_TRUE(designer_->Enabled(command));
  EXPECT_TRUE(designer_->Run(Command::DeleteSelection));
  EXPECT_EQ(Labels(), 0);
}

TEST_F(GroupsOfDesigner, AlignedObjectsComeBackByOneUndo) {
  StartWithTwo();
  const std::int32_t alpha = At("Alpha").AbsoluteY, beta = At("Beta").AbsoluteY;
  ASSERT_LT(alpha, beta);
  SelectBoth();
  EXPECT_TRUE(designer_->Run(Command::AlignHorizontally));
  EXPECT_EQ(At("Beta").AbsoluteY, alpha);
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(host_.Selection, "");
  EXPECT_EQ(Level(), 1);
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(At("Beta").AbsoluteY, beta);
}

TEST_F(GroupsOfDesigner, ObjectsTooFarApartAreToldUnderTheProgramsTitle) {
  StartWithTwo();
  SelectBoth();
  At("Beta").AbsoluteY = At("Alpha").AbsoluteY + 1200;
  EXPECT_TRUE(designer_->Run(Command::AlignHorizontally));
  ExpectMessage(*designer_, kTextObjectsTooFarApart);
  EXPECT_EQ(Level(), 0);
  EXPECT_TRUE(Surface().Pointer().MultiSelected);
}

TEST_F(GroupsOfDesigner, TheDialogPlacesTheGroup) {
  StartWithTwo();
  SelectBoth();
  view_.OnPlaceSelection = [&](PlaceSelectionRun& run) {
    EXPECT_EQ(run.State().Combocol, "1000");
    EXPECT_EQ(run.State().YPosition, FormatNumber(At("Alpha").Y));
    run.TypeX("abc");
    EXPECT_FALSE(run.Accept());
    ExpectMessage(*designer_, kTextPositionRefused);
    run.TypeX("3000");
    run.TypeY("200");
    EXPECT_TRUE(run.Accept());
  };
  EXPECT_TRUE(designer_->Run(Command::PlaceAt));
  EXPECT_EQ(At("Alpha").XValue, "3000");
  EXPECT_EQ(At("Beta").XValue, "4000");
  EXPECT_EQ(At("Alpha").Y, 200);
  EXPECT_EQ(Level(), 1);
}

TEST_F(GroupsOfDesigner, ADialogThatIsCancelledLeavesEverything) {
  StartWithTwo();
  SelectBoth();
  for (const Command command :
       {Command::PlaceAt, Command::AlignToGrid, Command::ModifyEndUser, Command::PrintNoPrint})
    EXPECT_TRUE(designer_->Run(command));
  EXPECT_EQ(Level(), 0);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(GroupsOfDesigner, TheGridDialogSnapsAndTellsOfIt) {
  StartWithTwo();
  At("Alpha").XValue = "1010";
  SelectBoth();
  view_.OnAlignToGrid = [](AlignToGridRun& run) {
    EXPECT_EQ(run.State(), (AlignToGrid{false, false, true}));
    run.Accept({true, true, false});
  };
  EXPECT_TRUE(designer_->Run(Command::AlignToGrid));
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Information);
  ExpectMessage(*designer_, kTextGridDone);
  EXPECT_NE(At("Alpha").XValue, "1010");
  EXPECT_EQ(At("Alpha").AlignToGrid, 0);
}

TEST_F(GroupsOfDesigner, TheTwoPropertiesAreSetAndTheFilterFollows) {
  StartWithTwo();
  SelectBoth();
  At("Alpha").ModifiableByEndUser = At("Beta").ModifiableByEndUser = 0;
  view_.OnModifyEndUser = [](GroupFlagRun& run) {
    EXPECT_FALSE(run.State());
    run.Accept(true);
  };
  view_.OnPrintNoPrint = [](GroupFlagRun& run) {
    EXPECT_TRUE(run.State());
    run.Accept(false);
  };
  EXPECT_TRUE(designer_->Run(Command::ModifyEndUser));
  EXPECT_EQ(At("Alpha").ModifiableByEndUser, 1);
  EXPECT_TRUE(designer_->SetFilter(DisplayFilter::Ebeu));
  EXPECT_TRUE(designer_->SetFilter(DisplayFilter::Print));
  SelectBoth();
  const int level = Level();
  EXPECT_TRUE(designer_->Run(Command::PrintNoPrint));
  EXPECT_EQ(At("Beta").PrintFlag, 0);
  EXPECT_EQ(Level(), level + 1);
  EXPECT_FALSE(Surface().Pointer().MultiSelected) << "the page shows none of them any more";
}

// --- Font tools ---

TEST_F(GroupsOfDesigner, TheToolsFollowTheSelection) {
  StartWithTwo();
  EXPECT_FALSE(view_.Fonts.Enabled);
  Select(Label("Alpha"));
  EXPECT_TRUE(view_.Fonts.Enabled);
  EXPECT_EQ(view_.Fonts.ComboFont, "Arial");
  EXPECT_EQ(view_.Fonts.Combosize, "10");
  PageWork work = Surface().Work();
  Deselect(work);
  EXPECT_FALSE(view_.Fonts.Enabled);
  EXPECT_EQ(view_.Fonts.ComboFont, "");
}

TEST_F(GroupsOfDesigner, WhatTheToolsGiveIsWhatTheNextLabelBeginsWith) {
  StartWithTwo();
  Select(Label("Alpha"));
  view_.ChosenColour = Colour{1, 2, 3};
  Surface().ChooseFont("Courier New");
  Surface().ChooseFontSize("20");
  Surface().PressFontTool(FontTool::Bold);
  Surface().ChooseTextColour();
  EXPECT_EQ(Level(), 4);
  EXPECT_EQ(view_.OfferedColour, (Colour{0, 0, 0}));
  EXPECT_TRUE(view_.Fonts.Checked(FontTool::Bold));
  EXPECT_EQ(view_.Fonts.Combosize, "20");
  ClickInBody();
  EXPECT_TRUE(designer_->Run(Command::InsertLabel));
  const ObjectRecord& label = At("Label");
  EXPECT_EQ(label.FontName, "Courier New");
  EXPECT_EQ(label.FontSize, 20);
  EXPECT_EQ(label.Bold, kTrue);
  EXPECT_EQ(label.ColorR, 1);
  EXPECT_EQ(label.ColorG, 2);
  EXPECT_EQ(label.ColorB, 3);
}

TEST_F(GroupsOfDesigner, ARefusedSizeIsPutBack) {
  StartWithTwo();
  Select(Label("Alpha"));
  view_.Fonts.Combosize = "721";
  Surface().ChooseFontSize("721");
  EXPECT_EQ(view_.Fonts.Combosize, "10");
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupsOfDesigner, NoColourChosenChangesNothing) {
  StartWithTwo();
  Select(Label("Alpha"));
  Surface().ChooseTextColour();
  EXPECT_EQ(Level(), 0);
  EXPECT_EQ(designer_->Last().Label.Color, "0,0,0");
}

TEST_F(GroupsOfDesigner, ChangesOfTheToolsWhileTheyAreBeingFilledAreNoEdits) {
  StartWithTwo();
  int told = 0;
  view_.OnFontTools = [&] {
    ++told;
    Surface().ChooseFontSize("30");
    Surface().ChooseFont("Courier New");
  };
  Select(Label("Alpha"));
  EXPECT_GT(told, 0);
  EXPECT_EQ(At("Alpha").FontSize, 10);
  EXPECT_EQ(At("Alpha").FontName, "Arial");
  EXPECT_EQ(Level(), 0);
}

TEST_F(GroupsOfDesigner, AnUndoEmptiesTheTools) {
  StartWithTwo();
  Select(Label("Alpha"));
  Surface().PressFontTool(FontTool::Italic);
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(At("Alpha").Italic, kFalse);
  EXPECT_FALSE(view_.Fonts.Enabled);
}

TEST_F(GroupsOfDesigner, AToolCommitsATextThatIsBeingTyped) {
  StartWithTwo();
  Select(Label("Alpha"));
  EXPECT_TRUE(Surface().KeyDown(113, 0, ""));
  Surface().FieldTextChanged("Omega");
  Surface().PressFontTool(FontTool::Bold);
  EXPECT_FALSE(Surface().Edit().Active());
  ASSERT_NE(Label("Omega"), 0);
  EXPECT_EQ(At("Omega").Bold, kTrue);
}

TEST_F(GroupsOfDesigner, AColumnChosenForAGroupIsWrittenToEach) {
  StartWith("{1000;}Alpha{\\n}\r\n{Spacing=600;\\n}\r\n{2000;}Beta{\\n}\r\n", "$Col_01=2400\r\n");
  SelectBoth();
  Surface().ChooseColumn(0);
  EXPECT_EQ(At("Alpha").XValue, "$Col_01");
  EXPECT_EQ(At("Beta").XValue, "$Col_01");
  EXPECT_EQ(Level(), 1);
}

}  // namespace
}  // namespace kev
