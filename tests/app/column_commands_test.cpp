// SPDX-License-Identifier: MIT
// The commands of the columns as the window gives them.
#include <gtest/gtest.h>

#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

std::string TemplateWithColumns(const std::string& columns, const std::string& data) {
  return "KEXVER=4\r\n" + columns + "[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n" + data +
         "{Spacing=400;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n";
}

class ColumnCommandsOfDesigner : public test::DesignerTest {
 protected:
  void StartWith(const std::string& columns, const std::string& data = {}) {
    path_ = Made("columns.kev", TemplateWithColumns(columns, data));
    designer_ = Start({path_});
    ASSERT_EQ(designer_->DocumentTitle(), "columns.kev");
    view_.Page.Take();
    host_.Messages.clear();
  }
  ColumnTable& Columns() { return designer_->OpenDocument().Columns; }
  PointerState& Pointer() { return designer_->Surface().Pointer(); }
  bool Shown(const std::string& line) const { return view_.Page.Has(line); }
  int Label() const {
    const ObjectTable& objects = designer_->OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == ObjectKind::Label) return row;
    return 0;
  }

  std::string path_;
  std::unique_ptr<Designer> designer_;
};

TEST_F(ColumnCommandsOfDesigner, LinesAndListFollowAReadTemplate) {
  const std::string path = Made("read.kev", TemplateWithColumns("$Col_01=2400\r\n$x=100\r\n", ""));
  designer_ = Start({path});
  EXPECT_TRUE(Shown("place linecolumn(1) 2400 0 "));
  EXPECT_TRUE(Shown("place linecolumn(2) 100 0 "));
  EXPECT_EQ(view_.Columns.Items, (std::vector<std::string>{"$Col_01 = 2400", "$x = 100"}));
}

TEST_F(ColumnCommandsOfDesigner, LinesReachOverTheWholeCanvas) {
  StartWith("$Col_01=2400\r\n");
  designer_->Surface().Redraw();
  const PageWork work = designer_->Surface().Work();
  EXPECT_GT(work.canvasHeight, 1000);
  EXPECT_TRUE(Shown("place linecolumn(1) 2400 0 15 " + FormatNumber(work.canvasHeight)));
}

TEST_F(ColumnCommandsOfDesigner, LinesFollowTheZoom) {
  StartWith("$Col_01=2400\r\n");
  EXPECT_TRUE(designer_->SetZoom("50"));
  EXPECT_TRUE(Shown("place linecolumn(1) 1200 0 "));
}

TEST_F(ColumnCommandsOfDesigner, LinesOfTheOldDocumentAreGoneWithIt) {
  StartWith("$Col_01=2400\r\n$Col_02=100\r\n");
  Pointer().ColumnText = "$Col_02 = 100";
  EXPECT_TRUE(designer_->OpenTemplate(Made("other.kev", TemplateWithColumns("$y=5\r\n", ""))));
  EXPECT_TRUE(Shown("hide linecolumn(2)"));
  EXPECT_EQ(view_.Columns.Text, "");
  EXPECT_EQ(view_.Columns.Items, std::vector<std::string>{"$y = 5"});
  designer_->NewTemplate();
  EXPECT_FALSE(view_.Columns.Enabled);
}

TEST_F(ColumnCommandsOfDesigner, TheRulersMenuMakesAColumn) {
  StartWith("");
  Pointer().MenuAt.RulerX = 1490;
  EXPECT_TRUE(designer_->Run(Command::InsertColumnHere));
  EXPECT_EQ(Columns()[1].Name, "$Col_01");
  EXPECT_EQ(Columns()[1].Position, 1500);
  EXPECT_TRUE(Shown("show linecolumn(1)"));
  EXPECT_TRUE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, TheLinesMenuNeedsAColumn) {
  StartWith("$Col_01=2400\r\n");
  for (const Command command : {Command::RemoveColumn, Command::SetColumn}) {
    for (const int slot : {0, 2}) {
      Pointer().MenuAt.Slot = slot;
      EXPECT_FALSE(designer_->Enabled(command)) << slot;
      EXPECT_TRUE(designer_->Run(command));
    }
    Pointer().MenuAt.Slot = 1;
    EXPECT_TRUE(designer_->Enabled(command));
  }
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, AMenuKnowsWhatItCanDoBeforeItOpens) {
  class MenuView final : public DesignerView {
   public:
    explicit MenuView(Designer& designer) : designer_(designer) {}
    bool Offered = false, OfferedWhenOpened = false;
    void DocumentReplaced() override {}
    SurfaceOps& Canvas() override { return page_; }
    void PageShown() override {}
    void ShowZoom(std::string_view) override {}
    void FindingsChanged() override {}
    void CommandsChanged() override { Offered = designer_.Enabled(Command::RemoveColumn); }
    void OpenContextMenu(ContextMenu) override { OfferedWhenOpened = Offered; }

   private:
    Designer& designer_;
    NullSurface page_;
  };
  StartWith("$Col_01=2400\r\n");
  MenuView view(*designer_);
  designer_->AttachView(&view);
  Pointer().MenuAt.Slot = 1;
  designer_->Surface().OpenContextMenu(ContextMenu::ColumnLine);
  EXPECT_TRUE(view.OfferedWhenOpened);
  designer_->AttachView(&view_);
}

TEST_F(ColumnCommandsOfDesigner, TheLinesMenuRemovesItsColumn) {
  StartWith("$Col_01=2400\r\n", "{$Col_01;}Total\r\n");
  ASSERT_NE(Label(), 0);
  Pointer().MenuAt.Slot = 1;
  EXPECT_TRUE(designer_->Run(Command::RemoveColumn));
  EXPECT_EQ(Columns()[1], Column());
  EXPECT_EQ(designer_->OpenDocument().Objects[Label()].XValue, "2400");
  EXPECT_TRUE(Shown("hide linecolumn(1)"));
  EXPECT_FALSE(view_.Columns.Enabled);
  EXPECT_TRUE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, HoveringOverALineShowsItsPlaceInTheList) {
  StartWith("$Col_01=2400\r\n");
  designer_->Surface().PointerMove({.Source = PointerSource::ColumnLine, .Index = 1, .X = 2400, .Y = 50});
  EXPECT_EQ(view_.Columns.Text, "$Col_01 = 2400");
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, HoveringOverThePageLeavesTheList) {
  StartWith("$Col_01=2400\r\n");
  designer_->Surface().PointerMove({.Source = PointerSource::Page, .Index = 1, .X = 2400, .Y = 50});
  EXPECT_EQ(view_.Columns.Text, "");
}

TEST_F(ColumnCommandsOfDesigner, AnItemOfTheListTiesTheCurrentObject) {
  StartWith("$Col_01=2400\r\n$Col_02=3000\r\n", "{100;}Total\r\n");
  designer_->OpenDocument().Objects.CurrentObject = Label();
  designer_->Surface().ChooseColumn(1);
  EXPECT_EQ(designer_->OpenDocument().Objects[Label()].XValue, "$Col_02");
  EXPECT_EQ(view_.Columns.Text, "$Col_02 = 3000");
  EXPECT_TRUE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, OrganisingAsksUnderTheProgramsTitleWithNoAsDefault) {
  StartWith("$Col_01=3000\r\n$Col_02=1000\r\n");
  host_.Answers = {BoxAnswer::No};
  EXPECT_TRUE(designer_->Run(Command::OrganizeColumns));
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Title, designer_->Text(kTextProgramTitle));
  EXPECT_EQ(host_.Messages[0].Text, designer_->Text(kTextOrganizeUsedColumns));
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Warning);
  EXPECT_EQ(host_.Messages[0].Buttons, BoxButtons::YesNoYesToAll);
  EXPECT_TRUE(host_.Messages[0].NoIsDefault);
  EXPECT_EQ(Columns()[1].Position, 3000);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, AFileWithoutTheNamesAsksNothing) {
  StartWith("$Col_01=3000\r\n$Col_02=1000\r\n");
  ASSERT_FALSE(WriteWholeFile(path_, "[HEADER]\r\n"));
  EXPECT_TRUE(designer_->Run(Command::OrganizeColumns));
  ExpectMessage(*designer_, kTextColumnsOrganized);
  EXPECT_EQ(Columns()[1].Position, 1000);
}

TEST_F(ColumnCommandsOfDesigner, AFileThatHasGoneAsksNothing) {
  StartWith("$Col_01=3000\r\n$Col_02=1000\r\n");
  DeleteFileIfThere(path_);
  EXPECT_TRUE(designer_->Run(Command::OrganizeColumns));
  ExpectMessage(*designer_, kTextColumnsOrganized);
}

TEST_F(ColumnCommandsOfDesigner, OrganisingThatFailsPutsColumnsAndObjectsBack) {
  StartWith("$Col_01=3000\r\n$Col_02=1000\r\n", "{$Col_01;}Total\r\n");
  DeleteFileIfThere(path_);
  const std::string tooManyParts = "$Col_01" + std::string(300, ' ');
  designer_->OpenDocument().Objects[Label()].X2Value = tooManyParts;
  const ColumnTable before = Columns();
  EXPECT_TRUE(designer_->Run(Command::OrganizeColumns));
  ExpectMessage(*designer_, kTextOperationFailed);
  EXPECT_EQ(Columns(), before);
  EXPECT_EQ(designer_->OpenDocument().Objects[Label()].XValue, "$Col_01");
}

TEST_F(ColumnCommandsOfDesigner, TheColumnsDialogAddsModifiesAndRemoves) {
  StartWith("$Col_01=3000\r\n", "{$Col_01;}Total\r\n");
  bool opened = false;
  view_.OnColumnsDialog = [&](ColumnsDialogRun& run) {
    opened = true;
    run.TypePosition("500");
    run.AddOrModify();
    EXPECT_EQ(Columns()[2].Name, "$Col_02");
    EXPECT_EQ(Columns()[2].Position, 500);
    EXPECT_TRUE(Shown("place linecolumn(2) 500 "));
    run.Choose(0);
    run.TypePosition("700");
    run.AddOrModify();
    EXPECT_EQ(Columns()[1].Position, 700);
    run.Choose(0);
    run.Remove();
    EXPECT_EQ(Columns()[1], Column());
    EXPECT_EQ(run.State().List1, std::vector<std::string>{"$Col_02=500"});
  };
  EXPECT_TRUE(designer_->Run(Command::SetColumns));
  EXPECT_TRUE(opened);
  EXPECT_TRUE(designer_->Modified());
  EXPECT_EQ(designer_->OpenDocument().Objects[Label()].XValue, "$Col_01");
}

TEST_F(ColumnCommandsOfDesigner, ALineOfTheColumnsDialogEndsAtItsPlaceOnTheZoomedPage) {
  StartWith("$Col_01=3000\r\n");
  ASSERT_TRUE(designer_->SetZoom("200"));
  view_.OnColumnsDialog = [](ColumnsDialogRun& run) {
    run.TypePosition("1000");
    run.AddOrModify();
  };
  EXPECT_TRUE(designer_->Run(Command::SetColumns));
  const std::vector<std::string> places = view_.Page.Only("place linecolumn(2) ");
  ASSERT_FALSE(places.empty());
  EXPECT_TRUE(places.back().starts_with("place linecolumn(2) 2000 0 ")) << places.back();
}

TEST_F(ColumnCommandsOfDesigner, TheColumnsDialogRefusesZero) {
  StartWith("");
  view_.OnColumnsDialog = [](ColumnsDialogRun& run) {
    run.TypePosition("0");
    run.AddOrModify();
  };
  EXPECT_TRUE(designer_->Run(Command::SetColumns));
  ExpectMessage(*designer_, kTextColumnPositionRefused);
}

TEST_F(ColumnCommandsOfDesigner, ADialogThatFailsShowsWhatItShowedBefore) {
  StartWith("$Col_01=3000\r\n", "{$Col_01;}Total\r\n");
  DeleteFileIfThere(path_);
  designer_->OpenDocument().Objects[Label()].X2Value = "$Col_01" + std::string(300, ' ');
  view_.OnColumnsDialog = [](ColumnsDialogRun& run) {
    run.Choose(0);
    const ColumnsDialog before = run.State();
    run.Organize();
    EXPECT_EQ(run.State(), before);
    run.Choose(7);
    EXPECT_EQ(run.State(), before);
  };
  EXPECT_TRUE(designer_->Run(Command::SetColumns));
  ASSERT_EQ(host_.Messages.size(), 2U);
}

TEST_F(ColumnCommandsOfDesigner, TheDialogOfOneColumnRenamesItAfterTheQuestionsOfTheFile) {
  StartWith("$Col_01=3000\r\n", "{$Col_01;}Total\r\n");
  Pointer().MenuAt.Slot = 1;
  host_.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
  bool accepted = false;
  view_.OnSetThisColumn = [&](SetColumnRun& run) {
    EXPECT_EQ(run.State().Text2, "$Col_01");
    EXPECT_EQ(run.State().Text1, "3000");
    run.TypeName("Total");
    run.TypePosition("800");
    accepted = run.Accept();
  };
  EXPECT_TRUE(designer_->Run(Command::SetColumn));
  EXPECT_TRUE(accepted);
  EXPECT_EQ(host_.Messages.size(), 2U);
  EXPECT_EQ(Columns()[1].Name, "$Total");
  EXPECT_EQ(Columns()[1].Position, 800);
  EXPECT_EQ(designer_->OpenDocument().Objects[Label()].XValue, "$Total");
  EXPECT_TRUE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, WhatChangesNothingNeitherMarksNorForgetsRedo) {
  StartWith("$Col_01=3000\r\n", "{$Col_01;}A{\\n}\r\n");
  designer_->Surface().PushUndo();
  designer_->Run(Command::Undo);
  ASSERT_TRUE(designer_->Save());
  ASSERT_TRUE(designer_->Enabled(Command::Redo));
  Pointer().MenuAt.Slot = 1;
  view_.OnSetThisColumn = [](SetColumnRun& run) { EXPECT_TRUE(run.Accept()); };
  designer_->Run(Command::SetColumn);
  host_.Answers = {BoxAnswer::YesToAll};
  designer_->Run(Command::OrganizeColumns);
  EXPECT_FALSE(designer_->Modified());
  EXPECT_TRUE(designer_->Enabled(Command::Redo));
}

TEST_F(ColumnCommandsOfDesigner, ARefusedNameLeavesTheDialogOpen) {
  StartWith("$Col_01=3000\r\n");
  Pointer().MenuAt.Slot = 1;
  view_.OnSetThisColumn = [](SetColumnRun& run) {
    run.TypeName("a b");
    EXPECT_FALSE(run.Accept());
    EXPECT_EQ(run.State().Text2, "a b");
  };
  EXPECT_TRUE(designer_->Run(Command::SetColumn));
  ExpectMessage(*designer_, kTextColumnNameRefused);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(ColumnCommandsOfDesigner, ACharacterThatTheTemplateCannotHoldIsTold) {
  StartWith("$Col_01=3000\r\n");
  Pointer().MenuAt.Slot = 1;
  view_.OnSetThisColumn = [](SetColumnRun& run) { run.RefuseCharacter("ж"); };
  EXPECT_TRUE(designer_->Run(Command::SetColumn));
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Detail, "ж");
  ExpectMessage(*designer_, kTextCharacterNotInPage);
}

}  // namespace
}  // namespace kev
