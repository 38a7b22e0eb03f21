// SPDX-License-Identifier: MIT
// The buttons of the two tool bars, and the insertion that each entry of the menu stands for.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "surface/font_tools.h"
#include "surface/insertion_table.h"

namespace kev {

enum class ToolBarId : std::uint8_t { First, Second };

struct ToolButtonRow {
  std::string_view name;   // the window system's name of the button
  std::string_view image;  // its file in "\Pbms\", without the ending
  int tooltip;             // number of the text; 0 where the next column tells it
  std::string_view fixedTooltip;
  ToolBarId bar;
  // One of the two; a button that has neither, and no font tool, is not shown.
  std::optional<Command> command;
  std::string_view tool;         // waits for a click on the page; its button stays down meanwhile
  bool separatorBefore = false;  // a new group of the bar begins
  // Changes a text and stays down while the text is so; such a button has neither of the two above.
  std::optional<FontTool> fontTool = std::nullopt;
};

inline constexpr std::string_view kButtonImages = "\\Pbms\\";
inline constexpr std::string_view kButtonImageEnding = ".prbm";

// The order within a bar is the order on the screen.
inline constexpr auto kToolButtons = std::to_array<ToolButtonRow>({
    {"Imgbutton1", "newICss", kTextTipNewTemplate, "", ToolBarId::First, Command::New, ""},
    {"ImgButton2", "openICss", 0, "", ToolBarId::First, Command::Open, ""},
    {"ImgButton3", "saveicss", kTextTipSave, "", ToolBarId::First, Command::Save, ""},
    {"ImgButton4", "runicss", kTextTipTestRun, "", ToolBarId::First, Command::TestRun, "", true},
    {"ImgButton5", "propics", kTextTipProperties, "", ToolBarId::First, Command::Properties, ""},
    {"ImgButton21", "undoicss", kTextTipUndo, "", ToolBarId::First, Command::Undo, "", true},
    {"ImgButton22", "redoicss", kTextTipRedo, "", ToolBarId::First, Command::Redo, ""},
    {"ImgButton17", "cuticss", kTextTipCut, "", ToolBarId::First, Command::CutContext, "", true},
    {"ImgButton18", "copyicss", kTextTipCopy, "", ToolBarId::First, Command::CopyContext, ""},
    {"ImgButton10", "boldicss", kTextTipFontBold, "", ToolBarId::First, std::nullopt, "", true,
     FontTool::Bold},
    {"ImgButton11", "italicicss", 0, "Font Italic", ToolBarId::First, std::nullopt, "", false,
     FontTool::Italic},
    {"ImgButton12", "underlineicss", kTextTipFontUnderline, "", ToolBarId::First, std::nullopt, "", false,
     FontTool::Underline},
    {"ImgButton13", "lefticss", kTextTipAlignLeft, "", ToolBarId::First, std::nullopt, "", true,
     FontTool::AlignLeft},
    {"ImgButton14", "centericss", kTextTipAlignCentre, "", ToolBarId::First, std::nullopt, "", false,
     FontTool::AlignCentre},
    {"ImgButton15", "righticss", kTextTipAlignRight, "", ToolBarId::First, std::nullopt, "", false,
     FontTool::AlignRight},
    {"ImgButton6", "labelICs", kTextTipInsertLabel, "", ToolBarId::Second, std::nullopt, "LABEL"},
    {"ImgButton32", "atICs", kTextTipInsertNextVariable, "", ToolBarId::Second, std::nullopt, "LABELVAR"},
    {"ImgButton24", "textboxICs", 0, "insert a textbox", ToolBarId::Second, std::nullopt, "TEXTBOX"},
    {"ImgButton7", "imageICs", kTextTipInsertPicture, "", ToolBarId::Second, std::nullopt, "PICTURE", true},
    {"ImgButton8", "boxICs", kTextTipInsertBox, "", ToolBarId::Second, std::nullopt, "BOX"},
    {"ImgButton23", "lineics", kTextTipInsertHorizontalLine, "", ToolBarId::Second, std::nullopt, "LINE"},
    {"ImgButton16", "anylineics", kTextTipInsertAnyLine, "", ToolBarId::Second, std::nullopt, "ANYLINE"},
    {"ImgButton9", "barcodeics", kTextTipInsertCode, "", ToolBarId::Second, std::nullopt, "BARCODE", true},
    {"ImgButton25", "qrics", kTextTipInsertCode, "", ToolBarId::Second, std::nullopt, "QR"},
    {"ImgButton20", "chartics", kTextTipInsertChart, "", ToolBarId::Second, std::nullopt, "CHART", true},
    {"ImgButton19", "configics", kTextTipInsertCommand, "", ToolBarId::Second, std::nullopt, "COMMAND"},
});

struct InsertionCommand {
  Command command;
  Insertion insertion;
};

inline constexpr auto kInsertionCommands = std::to_array<InsertionCommand>({
    {Command::InsertLabel, Insertion::Label},
    {Command::InsertNextVariable, Insertion::NextVariable},
    {Command::InsertTextBox, Insertion::TextBox},
    {Command::InsertPicture, Insertion::Picture},
    {Command::InsertBox, Insertion::Box},
    {Command::InsertHorizontalLine, Insertion::HorizontalLine},
    {Command::InsertAnyLine, Insertion::AnyLine},
    {Command::InsertCircle, Insertion::Circle},
    {Command::InsertBarcode, Insertion::Barcode},
    {Command::InsertQr, Insertion::Qr},
    {Command::InsertChart, Insertion::Chart},
    {Command::InsertPageBreak, Insertion::PageBreak},
    {Command::InsertExecuteCommand, Insertion::ExecuteCommand},
    {Command::InsertPostShowCommand, Insertion::PostShowCommand},
});

// Nothing for a command that inserts nothing.
constexpr std::optional<Insertion> InsertionOf(Command command) {
  for (const InsertionCommand& row : kInsertionCommands)
    if (row.command == command) return row.insertion;
  return std::nullopt;
}

}  // namespace kev
