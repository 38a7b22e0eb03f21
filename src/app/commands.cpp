// SPDX-License-Identifier: MIT
#include "app/commands.h"

#include <algorithm>
#include <array>
#include <set>

#include "base/code_page.h"
#include "base/text_numbers.h"

namespace kev {

namespace {

constexpr std::array kMenus = {
    MenuRow{MenuId::File, "menfile", kTextMenuFile},
    MenuRow{MenuId::Edit, "edit", kTextMenuEdit},
    MenuRow{MenuId::Insert, "meninsert", kTextMenuInsert},
    MenuRow{MenuId::View, "menview", kTextMenuView},
    MenuRow{MenuId::Columns, "mencolumns", kTextMenuColumns},
    MenuRow{MenuId::Report, "menreport", kTextMenuReport},
    MenuRow{MenuId::Help, "menhelp", kTextMenuHelp},
};

constexpr bool kDialog = true;
constexpr bool kNoDialog = false;
constexpr bool kGroup = true;

constexpr std::array kCommands = {
    CommandRow{Command::New, MenuId::File, "newmen", kTextMenuNew, "Ctrl+N"},
    CommandRow{Command::NewFromData, MenuId::File, "newfromdata", kTextMenuNewFromData, "Ctrl+Shift+N",
               CommandKind::Plain, kDialog},
    CommandRow{Command::Open, MenuId::File, "openmen", kTextMenuOpen, "Ctrl+O", CommandKind::Plain, kDialog},
    CommandRow{Command::Save, MenuId::File, "savemen", kTextMenuSave, "Ctrl+S", CommandKind::Plain, kNoDialog,
               kGroup},
    CommandRow{Command::SaveAs, MenuId::File, "saveas", kTextMenuSaveAs, "Ctrl+Shift+S", CommandKind::Plain,
               kDialog},
    CommandRow{Command::DocumentProperties, MenuId::File, "docproperties", kTextMenuDocumentProperties, "",
               CommandKind::Plain, kDialog, kGroup},
    CommandRow{Command::Exit, MenuId::File, "exitmen", kTextMenuExit, "Ctrl+Q", CommandKind::Plain, kNoDialog,
               kGroup},
    CommandRow{Command::Undo, MenuId::Edit, "undochanges_", kTextMenuUndo, "Ctrl+Z"},
    CommandRow{Command::Redo, MenuId::Edit, "redochanges", kTextMenuRedo, "Ctrl+Y"},
    CommandRow{Command::Cut, MenuId::Edit, "Cuthis", kTextMenuCut, "Ctrl+X", CommandKind::Plain, kNoDialog,
               kGroup},
    CommandRow{Command::Copy, MenuId::Edit, "copythis", kTextMenuCopy, "Ctrl+C"},
    CommandRow{Command::Paste, MenuId::Edit, "pastehere", kTextMenuPaste, "Ctrl+V"},
    CommandRow{Command::DeleteObject, MenuId::Edit, "deleteobject", kTextMenuDelete, "Del"},
    CommandRow{Command::SelectAll, MenuId::Edit, "selectall", kTextMenuSelectAll, "Ctrl+A",
               CommandKind::Plain, kNoDialog, kGroup},
    CommandRow{Command::MoveUp, MenuId::Edit, "moveup", kTextMenuMoveUp, "", CommandKind::Plain, kNoDialog,
               kGroup},
    CommandRow{Command::MoveDown, MenuId::Edit, "movedown", kTextMenuMoveDown, ""},
    CommandRow{Command::InsertLabel, MenuId::Insert, "insertlabel", kTextMenuLabel, ""},
    CommandRow{Command::InsertNextVariable, MenuId::Insert, "insertnextvariable", kTextMenuNextVariable, ""},
    CommandRow{Command::InsertTextBox, MenuId::Insert, "inserttextbox", kTextMenuTextBox, ""},
    CommandRow{Command::InsertPicture, MenuId::Insert, "insertpicture", kTextMenuPicture, "",
               CommandKind::Plain, kDialog},
    CommandRow{Command::InsertBox, MenuId::Insert, "insertbox", kTextMenuBox, "", CommandKind::Plain,
               kNoDialog, kGroup},
    CommandRow{Command::InsertHorizontalLine, MenuId::Insert, "inserthorline", kTextMenuHorizontalLine, ""},
    CommandRow{Command::InsertAnyLine, MenuId::Insert, "insertline", kTextMenuLine, ""},
    CommandRow{Command::InsertCircle, MenuId::Insert, "insertcircle", kTextMenuCircle, ""},
    CommandRow{Command::InsertBarcode, MenuId::Insert, "insertbarcode", kTextMenuBarcode, "",
               CommandKind::Plain, kNoDialog, kGroup},
    CommandRow{Command::InsertQr, MenuId::Insert, "insertqr", kTextMenuQrCode, ""},
    CommandRow{Command::InsertChart, MenuId::Insert, "inschart", kTextMenuChart, "", CommandKind::Plain,
               kDialog},
    CommandRow{Command::InsertPageBreak, MenuId::Insert, "pagebreak", kTextMenuPageBreak, "",
               CommandKind::Plain, kNoDialog, kGroup},
    CommandRow{Command::InsertExecuteCommand, MenuId::Insert, "executecommand", kTextMenuExecuteCommand, ""},
    CommandRow{Command::InsertPostShowCommand, MenuId::Insert, "postshowcommand", kTextMenuPostShowCommand,
               ""},
    CommandRow{Command::NewSubsection, MenuId::Insert, "newsubsection", kTextMenuSubsection, "",
               CommandKind::Plain, kDialog, kGroup},
    CommandRow{Command::SetColumns, MenuId::Columns, "inscol", kTextMenuSetColumns, "", CommandKind::Plain,
               kDialog},
    CommandRow{Command::InsertColumnHere, MenuId::None, "insertcolumnhere", kTextMenuInsertColumnHere, ""},
    CommandRow{Command::RemoveColumn, MenuId::None, "removecolumn", kTextMenuRemoveColumn, ""},
    CommandRow{Command::SetColumn, MenuId::None, "setcolumn", kTextMenuSetColumn, "", CommandKind::Plain,
               kDialog},
    CommandRow{Command::OrganizeColumns, MenuId::Columns, "organizecolumns", kTextMenuOrganizeColumns, ""},
    CommandRow{Command::CutContext, MenuId::None, "CutContext", kTextMenuCut, ""},
    CommandRow{Command::CopyContext, MenuId::None, "copycontext", kTextMenuCopy, ""},
    CommandRow{Command::CutGroup, MenuId::None, "cut22", kTextMenuCut, ""},
    CommandRow{Command::CopyGroup, MenuId::None, "copyuy", kTextMenuCopy, ""},
    CommandRow{Command::DeleteSelection, MenuId::None, "deleteselection", kTextMenuDeleteSelection, ""},
    CommandRow{Command::AlignHorizontally, MenuId::None, "alignhor", kTextMenuAlignHorizontally, ""},
    CommandRow{Command::PlaceAt, MenuId::None, "placethis", kTextMenuPlaceAt, "", CommandKind::Plain,
               kDialog},
    CommandRow{Command::AlignToGrid, MenuId::None, "aligntogrid", kTextMenuAlignToGrid, "",
               CommandKind::Plain, kDialog},
    CommandRow{Command::ModifyEndUser, MenuId::None, "modienduser", kTextMenuModifiable, "",
               CommandKind::Plain, kDialog},
    CommandRow{Command::PrintNoPrint, MenuId::None, "menprintnoprint", kTextMenuPrintOrNot, "",
               CommandKind::Plain, kDialog},
    CommandRow{Command::Properties, MenuId::View, "Properties", kTextMenuProperties, "F4"},
    CommandRow{Command::ShowQuickPanel, MenuId::View, "showquick", kTextMenuQuickPanel, ""},
    CommandRow{Command::SeeAll, MenuId::View, "seeall", kTextFilterAll, "", CommandKind::Exclusive, kNoDialog,
               kGroup},
    CommandRow{Command::SeeModifiable, MenuId::View, "see_ebeu", kTextFilterEndUser, "",
               CommandKind::Exclusive},
    CommandRow{Command::SeePrinted, MenuId::View, "see_printnoprint", kTextFilterPrint, "",
               CommandKind::Exclusive},
    CommandRow{Command::DrawGrid, MenuId::View, "viewdrawgrid", kTextMenuDrawGrid, "Ctrl+G",
               CommandKind::Check, kNoDialog, kGroup},
    CommandRow{Command::ShowFindings, MenuId::View, "viewfindings", kTextMenuFindings, "Ctrl+Shift+F",
               CommandKind::Check},
    CommandRow{Command::TestRun, MenuId::Report, "testreport", kTextMenuTestRun, "F5"},
    CommandRow{Command::ShowTemplateCode, MenuId::Report, "setempcode", kTextMenuShowCode, "",
               CommandKind::Plain, kNoDialog, kGroup},
    CommandRow{Command::ShowDataFile, MenuId::Report, "seedatafile", kTextMenuShowData, ""},
    CommandRow{Command::Documentation, MenuId::Help, "helpmen", kTextMenuDocumentation, "F1"},
};

char MarkedLetter(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return CodePage::Default().Upper(caption[i + 1]);
    ++i;
  }
  return '\0';
}

bool IsPlainLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

void MarkFirstFree(std::string& caption, std::set<char>& taken) {
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const char letter = CodePage::Default().Upper(caption[i]);
    if (!IsPlainLetter(caption[i]) || !taken.insert(letter).second) continue;
    caption.insert(i, 1, '&');
    return;
  }
}

}  // namespace

std::span<const MenuRow> MenuRows() {
  return kMenus;
}

std::span<const CommandRow> CommandRows() {
  return kCommands;
}

const CommandRow& RowOf(Command id) {
  return *std::find_if(kCommands.begin(), kCommands.end(),
                       [id](const CommandRow& row) { return row.id == id; });
}

bool IsPageCommand(Command id) {
  return id >= Command::Undo && id <= Command::Properties;
}

std::span<const std::optional<Command>> ContextMenuRows(ContextMenu menu) {
  using Row = std::optional<Command>;
  static constexpr std::array kObject = {
      Row(Command::CutContext), Row(Command::CopyContext), Row(), Row(Command::DeleteObject), Row(),
      Row(Command::MoveUp),     Row(Command::MoveDown),    Row(), Row(Command::Properties)};
  static constexpr std::array kEdit = {
      Row(Command::Undo), Row(Command::Redo), Row(), Row(Command::Paste), Row(), Row(Command::SelectAll)};
  static constexpr std::array kRuler = {Row(Command::InsertColumnHere), Row(Command::SetColumns)};
  static constexpr std::array kColumn = {Row(Command::SetColumn), Row(Command::RemoveColumn), Row(),
                                         Row(Command::OrganizeColumns)};
  static constexpr std::array kGroupMenu = {Row(Command::CutGroup),          Row(Command::CopyGroup),
                                            Row(Command::DeleteSelection),   Row(),
                                            Row(Command::SelectAll),         Row(),
                                            Row(Command::AlignHorizontally), Row(Command::PlaceAt),
                                            Row(Command::AlignToGrid),       Row(),
                                            Row(Command::ModifyEndUser),     Row(Command::PrintNoPrint)};
  switch (menu) {
    case ContextMenu::Edit:
      return kEdit;
    case ContextMenu::Object:
      return kObject;
    case ContextMenu::Ruler:
      return kRuler;
    case ContextMenu::ColumnLine:
      return kColumn;
    case ContextMenu::Group:
      return kGroupMenu;
  }
  return {};
}

std::string CommandCaption(const CommandRow& row, std::string_view text) {
  std::string caption(text);
  if (row.opensDialog) caption += " ...";
  return caption;
}

std::vector<std::string> WithMnemonics(std::vector<std::string> captions) {
  std::set<char> taken;
  for (const std::string& caption : captions)
    taken.insert(MarkedLetter(caption));
  for (std::string& caption : captions) {
    if (MarkedLetter(caption) == '\0') MarkFirstFree(caption, taken);
  }
  return captions;
}

}  // namespace kev
