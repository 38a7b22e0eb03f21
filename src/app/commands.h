// SPDX-License-Identifier: MIT
// The commands of the main window as one table. Menus and shortcuts are made from it; the window only says
// what each command does.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "surface/page_work.h"

namespace kev {

enum class Command : std::uint8_t {
  New,
  Open,
  Save,
  SaveAs,
  Exit,
  Undo,
  Redo,
  DeleteObject,
  SelectAll,
  MoveUp,
  MoveDown,
  InsertLabel,
  InsertNextVariable,
  InsertTextBox,
  InsertPicture,
  InsertBox,
  InsertHorizontalLine,
  InsertAnyLine,
  InsertCircle,
  InsertBarcode,
  InsertQr,
  InsertChart,
  InsertPageBreak,
  InsertExecuteCommand,
  InsertPostShowCommand,
  NewSubsection,
  SetColumns,
  InsertColumnHere,
  RemoveColumn,
  SetColumn,
  OrganizeColumns,
  Cut,
  Copy,
  Paste,
  CutContext,
  CopyContext,
  CutGroup,
  CopyGroup,
  DeleteSelection,
  AlignHorizontally,
  PlaceAt,
  AlignToGrid,
  ModifyEndUser,
  PrintNoPrint,
  Properties,
  SeeAll,
  SeeModifiable,
  SeePrinted,
  DrawGrid,
  ShowFindings,
  Documentation,
  DocumentProperties,
  TestRun,
  ShowTemplateCode,
  ShowDataFile,
  ShowQuickPanel,
  NewFromData
};

enum class MenuId : std::uint8_t { File, Edit, Insert, View, Columns, Report, Help, None };

// None: the command stands in context menus alone.
struct MenuRow {
  MenuId id;
  std::string_view name;  // the window system's name of the menu
  int text;
};

// Exclusive commands of one menu that stand side by side exclude each other.
enum class CommandKind : std::uint8_t { Plain, Check, Exclusive };

struct CommandRow {
  Command id;
  MenuId menu;
  std::string_view name;  // the window system's name of the entry
  int text;
  std::string_view shortcut;  // "Ctrl+Shift+S"; may be empty
  CommandKind kind = CommandKind::Plain;
  bool opensDialog = false;      // its caption ends with " ..."
  bool separatorBefore = false;  // a new group of the menu begins
};

// In the order of the menu bar and of the menus.
std::span<const MenuRow> MenuRows();
std::span<const CommandRow> CommandRows();
const CommandRow& RowOf(Command id);

// Whether the page that is worked on runs it; the others are the window's and the designer's.
bool IsPageCommand(Command id);
// The entries of a context menu, in order. Nothing stands for a separator.
std::span<const std::optional<Command>> ContextMenuRows(ContextMenu menu);

// The entry's caption from its text.
std::string CommandCaption(const CommandRow& row, std::string_view text);

// Gives each caption that marks no letter a "&" before the first letter that no other caption of the same
// menu marks, so that every entry can be had by keyboard. A caption without a free letter stays as it is.
std::vector<std::string> WithMnemonics(std::vector<std::string> captions);

}  // namespace kev
