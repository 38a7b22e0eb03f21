// SPDX-License-Identifier: MIT
#include "app/toolbar_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>

namespace kev {
namespace {

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
  std::optional<FontTool> fontTool = std::nullopt;
};

constexpr auto kExpectedButtons = std::to_array<ExpectedButton>({
    {"Imgbutton1", "newICss", 893, "", "", Command::New},
    {"ImgButton2", "openICss", 0, "", "", Command::Open},
    {"ImgButton3", "saveicss", 895, "", "", Command::Save},
    {"ImgButton4", "runicss", 889, "", "", Command::TestRun},
    {"ImgButton5", "propics", 888, "", "", Command::Properties},
    {"ImgButton6", "labelICs", 896, "", "LABEL", {}},
    {"ImgButton7", "imageICs", 897, "", "PICTURE", {}},
    {"ImgButton8", "boxICs", 899, "", "BOX", {}},
    {"ImgButton9", "barcodeics", 900, "", "BARCODE", {}},
    {"ImgButton25", "qrics", 900, "", "QR", {}},
    {"ImgButton10", "boldicss", 901, "", "", {}, FontTool::Bold},
    {"ImgButton11", "italicicss", 0, "Font Italic", "", {}, FontTool::Italic},
    {"ImgButton12", "underlineicss", 902, "", "", {}, FontTool::Underline},
    {"ImgButton13", "lefticss", 903, "", "", {}, FontTool::AlignLeft},
    {"ImgButton14", "centericss", 904, "", "", {}, FontTool::AlignCentre},
    {"ImgButton15", "righticss", 905, "", "", {}, FontTool::AlignRight},
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
    EXPECT_EQ(row->command, expected.command) << expected.name;
    EXPECT_EQ(row->fontTool, expected.fontTool) << expected.name;
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
