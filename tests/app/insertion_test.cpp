// SPDX-License-Identifier: MIT
// Insertion through the designer: commands of the menu, tools that wait, and what a save keeps of it.
#include <gtest/gtest.h>

#include <algorithm>
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

// --- The tool bars

TEST(ToolButtons, StandOnceEachUnderTheirOwnNames) {
  std::set<std::string_view> names;
  std::set<std::string_view> images;
  for (const ToolButtonRow& row : kToolButtons) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_TRUE(images.insert(row.image).second) << row.image;
    EXPECT_FALSE(row.command && !row.tool.empty()) << row.name;
    EXPECT_TRUE(std::filesystem::exists(std::string(KEV_TEST_DATA_DIR "/../assets/Pbms/") +
                                        std::string(row.image) + ".prbm"))
        << row.image;
  }
  EXPECT_EQ(names.size(), 26U);
}

TEST(ToolButtons, AllHaveATooltipButTheOneThatOpens) {
  for (const ToolButtonRow& row : kToolButtons)
    EXPECT_EQ(row.tooltip != 0 || !row.fixedTooltip.empty(), row.name != "ImgButton2") << row.name;
}

struct ExpectedButton {
  std::string_view name, image;
  int tooltip;
  std::string_view fixedTooltip;
  std::string_view tool;
  std::optional<Command> command;
};

constexpr auto kExpectedButtons = std::to_array<ExpectedButton>({
    {"Imgbutton1", "newICss", 893, "", "", Command::New},
    {"ImgButton2", "openICss", 0, "", "", Command::Open},
    {"ImgButton3", "saveicss", 895, "", "", Command::Save},
    {"ImgButton4", "runicss", 889, "", "", {}},
    {"ImgButton5", "propics", 888, "", "", Command::Properties},
    {"ImgButton6", "labelICs", 896, "", "LABEL", {}},
    {"ImgButton7", "imageICs", 897, "", "PICTURE", {}},
    {"ImgButton8", "boxICs", 899, "", "BOX", {}},
    {"ImgButton9", "barcodeics", 900, "", "BARCODE", {}},
    {"ImgButton25", "qrics", 900, "", "QR", {}},
    {"ImgButton10", "boldicss", 901, "", "", {}},
    {"ImgButton11", "italicicss", 0, "Font Italic", "", {}},
    {"ImgButton12", "underlineicss", 902, "", "", {}},
    {"ImgButton13", "lefticss", 903, "", "", {}},
    {"ImgButton14", "centericss", 904, "", "", {}},
    {"ImgButton15", "righticss", 905, "", "", {}},
    {"ImgButton16", "anylineics", 906, "", "ANYLINE", {}},
    {"ImgButton17", "cuticss", 805, "", "", Command::CutContext},
    {"ImgButton18", "copyicss", 806, "", "", Command::CopyContext},
    {"ImgButton19", "configics", 907, "", "COMMAND", {}},
    {"ImgButton20", "chartics", 908, "", "CHART", {}},
    {"ImgButton21", "undoicss", 803, "", "", Command::Undo},
    {"ImgButton22", "redoicss", 804, "", "", Command::Redo},
    {"ImgButton23", "lineics", 909, "", "LINE", {}},
    {"ImgButton24", "textboxICs", 0, "insert a textbox", "TEXTBOX", {}},
    {"ImgButton32", "atICs", 910, "", "LABELVAR", {}},
});

TEST(ToolButtons, ShowTheirImageAndTooltipAndDoWhatTheyAreFor) {
  EXPECT_EQ(kExpectedButtons.size(), kToolButtons.size());
  for (const ExpectedButton& expected : kExpectedButtons) {
    const auto row = std::find_if(kToolButtons.begin(), kToolButtons.end(),
                                  [&](const ToolButtonRow& each) { return each.name == expected.name; });
    ASSERT_NE(row, kToolButtons.end()) << expected.name;
    EXPECT_EQ(row->image, expected.image);
    EXPECT_EQ(row->tooltip, expected.tooltip) << expected.name;
    EXPECT_EQ(row->fixedTooltip, expected.fixedTooltip) << expected.name;
    EXPECT_EQ(row->tool, expected.tool) << expected.name;
    if (expected.command) {
      EXPECT_EQ(row->command, expected.command) << expected.name;
    }
  }
}

TEST(ToolButtons, StandForEveryToolOnce) {
  std::set<std::string_view> tools;
  for (const ToolButtonRow& row : kToolButtons) {
    if (row.tool.empty()) continue;
    EXPECT_TRUE(InsertionOfTool(row.tool).has_value()) << row.tool;
    EXPECT_TRUE(tools.insert(row.tool).second) << row.tool;
  }
  EXPECT_EQ(tools.size(), 11U);
}

}  // namespace
}  // namespace kev
