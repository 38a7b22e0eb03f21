// SPDX-License-Identifier: MIT
// Insertion through the designer: commands of the menu, tools that wait, and what a save keeps of it.
#include <gtest/gtest.h>

#include <set>

#include "app/designer_fixture.h"
#include "app/toolbar_table.h"

namespace kev {
namespace {

using test::CountOf;

class Inserted : public test::DesignerTest {
 protected:
  void SetUp() override {
    designer_ = Start({Made("a.kev", test::TemplateWith("{Spacing=4000;\\n}\r\n"))});
    surface_ = &designer_->Surface();
    ClickInData();
  }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  void ClickInData() {
    for (int row = 1; row <= Objects().LastScanned(); ++row) {
      const ObjectRecord& bar = std::as_const(Objects())[row];
      if (bar.Kind != ObjectKind::Subsection || bar.SectionOwner != "[DATA]") continue;
      surface_->Pointer().LastX = 600;
      surface_->Pointer().LastY = bar.AbsoluteY + 600;
    }
  }
  const ObjectRecord& Current() { return Objects()[Objects().CurrentObject]; }

  std::unique_ptr<Designer> designer_;
  DesignSurface* surface_ = nullptr;
};

TEST_F(Inserted, EachCommandOfTheMenuPutsItsKindOnThePage) {
  for (const auto& [command, insertion] : kInsertionCommands) {
    const InsertionRow& row = RowOf(insertion);
    const int before = CountOf(*designer_, row.kind);
    EXPECT_TRUE(designer_->Enabled(command));
    EXPECT_TRUE(designer_->Run(command));
    EXPECT_EQ(CountOf(*designer_, row.kind), before + 1) << RowOf(command).name;
    if (row.kind == ObjectKind::Command) {
      EXPECT_EQ(Current().Content, row.content);
    }
    // The next variable would go into a current label.
    Objects().CurrentObject = 0;
  }
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Inserted, TheMenuHoldsACommandForEverythingThatCanBeInserted) {
  std::set<Insertion> reached;
  for (const auto& [command, insertion] : kInsertionCommands) {
    EXPECT_EQ(RowOf(command).menu, MenuId::Insert);
    EXPECT_TRUE(IsPageCommand(command));
    EXPECT_TRUE(reached.insert(insertion).second);
  }
  EXPECT_EQ(reached.size(), kInsertions.size());
}

TEST_F(Inserted, WithoutAClickTheMenuSaysWhereToClick) {
  surface_->Pointer().ForgetPosition();
  designer_->Run(Command::InsertBox);
  ExpectMessage(*designer_, kTextNoSubsectionHere);
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 0);
}

TEST_F(Inserted, AToolWaitsForOneClickOnly) {
  surface_->ToggleTool("BOX");
  EXPECT_EQ(surface_->Pointer().PendingTool, "BOX");
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 0);
  surface_->RunPendingTool();
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 1);
  EXPECT_EQ(surface_->Pointer().PendingTool, "");
  surface_->RunPendingTool();
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 1);
}

TEST_F(Inserted, EveryToolInsertsItsKind) {
  for (const InsertionRow& row : kInsertions) {
    if (row.tool.empty()) continue;
    const int before = CountOf(*designer_, row.kind);
    surface_->ToggleTool(row.tool);
    surface_->RunPendingTool();
    EXPECT_EQ(CountOf(*designer_, row.kind), before + 1) << row.tool;
  }
}

TEST_F(Inserted, APressedToolIsGivenUpByItsOwnButtonAndReplacedByAnother) {
  surface_->ToggleTool("PICTURE");
  surface_->ToggleTool("PICTURE");
  EXPECT_EQ(surface_->Pointer().PendingTool, "");
  surface_->ToggleTool("PICTURE");
  surface_->ToggleTool("QR");
  EXPECT_EQ(surface_->Pointer().PendingTool, "QR");
}

TEST_F(Inserted, EscapeGivesAToolUp) {
  surface_->ToggleTool("QR");
  EXPECT_TRUE(surface_->KeyDown(kKeyEscape, 0, {}));
  EXPECT_EQ(surface_->Pointer().PendingTool, "");
}

TEST_F(Inserted, AClickOutsideAllBodiesEndsTheToolWithAMessage) {
  surface_->Pointer().LastY = 0;
  surface_->ToggleTool("LABEL");
  surface_->RunPendingTool();
  ExpectMessage(*designer_, kTextNoSubsectionHere);
  EXPECT_EQ(surface_->Pointer().PendingTool, "");
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Label), 0);
}

TEST_F(Inserted, AnotherDocumentKnowsNothingOfTheTool) {
  surface_->ToggleTool("LABEL");
  designer_->NewTemplate();
  EXPECT_EQ(surface_->Pointer().PendingTool, "");
}

TEST_F(Inserted, AFullTableIsToldAndLeavesTheDocumentAsItWas) {
  for (int row = 1; row <= ObjectTable::kLastRow; ++row) {
    if (std::as_const(Objects())[row].Kind == ObjectKind::None) {
      Objects()[row].Kind = ObjectKind::Circle;
      Objects().RowChanged(row);
    }
  }
  Objects().ObjectCount = 2010;
  designer_->Run(Command::InsertBox);
  ExpectMessage(*designer_, kTextOperationFailed);
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 0);
}

TEST_F(Inserted, TheSampleFileOfTheDocumentGivesTheVariable) {
  Made("data.ked", "TEMPLATE=a.kev\r\n@total=5\r\n");
  designer_->OpenDocument().Settings[Setting::Sample_Kex_file] = "data.ked";
  surface_->ToggleTool("LABELVAR");
  surface_->RunPendingTool();
  EXPECT_EQ(Current().Content, "@total");
}

TEST_F(Inserted, WhatWasInsertedComesBackFromTheFile) {
  for (const Command command :
       {Command::InsertLabel, Command::InsertBox, Command::InsertHorizontalLine, Command::InsertAnyLine,
        Command::InsertCircle, Command::InsertQr, Command::InsertChart, Command::InsertPageBreak}) {
    ASSERT_TRUE(designer_->Run(command));
    surface_->Pointer().LastY += 300;
  }
  ASSERT_TRUE(designer_->Save());
  ASSERT_TRUE(designer_->OpenTemplate(designer_->DocumentPath()));
  for (const ObjectKind kind : {ObjectKind::Label, ObjectKind::Box, ObjectKind::Line, ObjectKind::AnyLine,
                                ObjectKind::Circle, ObjectKind::Qr, ObjectKind::Chart, ObjectKind::Command})
    EXPECT_EQ(CountOf(*designer_, kind), 1) << KindText(kind);
  EXPECT_TRUE(host_.Messages.empty()) << host_.Messages[0].Text;
}

TEST_F(Inserted, WhatIsFreshlyInsertedComesBackWithoutAFinding) {
  for (const auto& [command, insertion] : kInsertionCommands) {
    // A body ends at a page break that is its last object, and the viewer alone reads the other commands.
    if (RowOf(insertion).kind == ObjectKind::Command) continue;
    Objects().CurrentObject = 0;
    ASSERT_TRUE(designer_->Run(command));
    surface_->Pointer().LastY += 150;
  }
  ASSERT_TRUE(designer_->Save());
  for (const Finding& finding : designer_->Findings())
    ADD_FAILURE() << finding.Text;
}

TEST_F(Inserted, ALabelBeginsWithTheLastFontAndTheOptionsKeepIt) {
  designer_->Last().Label = {"Courier New", 12, true, true, true, "1,2,3", "0"};
  designer_->Run(Command::InsertLabel);
  EXPECT_EQ(Current().FontName, "Courier New");
  designer_->ShutDown();
  designer_ = Start();
  const TextStyle kept = designer_->Last().Label;
  EXPECT_EQ(kept, (TextStyle{"Courier New", 12, false, true, true, "1,2,3", "0"}));
}

TEST_F(Inserted, AClickPutsTheToolsObjectThereAndSelectsIt) {
  const double x = 900, y = surface_->Pointer().LastY + 150;
  surface_->Pointer().ForgetPosition();
  surface_->ToggleTool("BOX");
  PointerInput at{PointerSource::Page, 0, PointerButton::Left, 0, x, y};
  EXPECT_EQ(surface_->Cursor(at), CursorShape::Cross);
  surface_->PointerPress(at);
  surface_->PointerRelease(at);
  at.Button = PointerButton::None;
  surface_->PointerMove(at);
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 1);
  EXPECT_EQ(Current().Kind, ObjectKind::Box);
  EXPECT_EQ(Current().XValue, "900");
  EXPECT_NE(surface_->Cursor(at), CursorShape::Cross);
  surface_->PointerPress({PointerSource::Page, 0, PointerButton::Left, 0, x + 3000, y + 600});
  surface_->PointerRelease({PointerSource::Page, 0, PointerButton::Left, 0, x + 3000, y + 600});
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Box), 1);
}

TEST_F(Inserted, TheFirstDragOfAnInsertedObjectSnaps) {
  surface_->Pointer().LastX = 613;
  ASSERT_TRUE(designer_->Run(Command::InsertBox));
  ASSERT_EQ(Current().XValue, "613");
  const double y = Current().AbsoluteY + 300.0;
  surface_->PointerPress({PointerSource::Overlay, 4, PointerButton::Left, 0, 613, y});
  for (const double x : {650.0, 703.0})
    surface_->PointerMove({PointerSource::Page, 0, PointerButton::Left, 0, x, y});
  surface_->PointerRelease({PointerSource::Page, 0, PointerButton::Left, 0, 703, y});
  EXPECT_EQ(Current().XValue, "800");
}

}  // namespace
}  // namespace kev
