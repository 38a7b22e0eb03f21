// SPDX-License-Identifier: MIT
#include "surface/column_dialogs.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "surface/column_lines.h"

namespace kev {
namespace {

// The line stands at the position as it is; painting the page then puts it where the zoom wants it.
void StorePosition(PageWork& work, int slot, double position) {
  work.document.Columns[slot].Position = position;
  PlaceColumnLine(work, slot, position);
}

void ShowPageAnew(PageWork& work) {
  work.services.FullRepaint();
  work.services.BuildRulers();
}

std::string WithDollar(std::string_view name) {
  return (name.starts_with('$') ? "" : "$") + std::string(name);
}

int FirstFreeSlot(const ColumnTable& columns) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    if (columns[slot].Name.empty()) return slot;
  }
  return 0;
}

// --- inscol01 ---

std::vector<std::string> ListItems(const ColumnTable& columns) {
  std::vector<std::string> items;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    const Column& column = columns[slot];
    if (!column.Name.empty()) items.push_back(column.Name + "=" + FormatNumber(column.Position));
  }
  return items;
}

void AddColumn(PageWork& work, const std::string& name, double position) {
  const int slot = FirstFreeSlot(work.document.Columns);
  if (slot == 0) return;
  work.document.Columns[slot].Name = name;
  StorePosition(work, slot, position);
}

void MoveColumns(PageWork& work, const std::string& name, double position) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    if (work.document.Page->EqualsIgnoringCase(work.document.Columns[slot].Name, name))
      StorePosition(work, slot, position);
  }
}

// Both fields empty but for the proposal, nothing chosen, and the list as the table is now.
ColumnsDialog Emptied(const Document& document, std::size_t proposedNumber) {
  ColumnsDialog dialog;
  dialog.List1 = ListItems(document.Columns);
  dialog.colname = GeneratedColumnName(static_cast<int>(proposedNumber));
  return dialog;
}

// --- SetThisColumn ---

// What neither a position nor a line of the file could hold.
bool IsUsableName(std::string_view name, const DocumentSettings& settings) {
  const std::string refused = " ,;=" + settings[Setting::Open] + settings[Setting::Close];
  const bool control = std::any_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < static_cast<unsigned char>(kBlank);
  });
  return !control && name.find_first_of(refused) == std::string_view::npos;
}

bool IsTaken(const Document& document, int slot, std::string_view name) {
  for (int other = 1; other <= ColumnTable::kLastSlot; ++other) {
    if (other != slot && document.Page->EqualsIgnoringCase(document.Columns[other].Name, name)) return true;
  }
  return false;
}

bool MayRename(PageWork& work, std::string_view oldName, const SavedText& savedText) {
  const std::string saved = savedText();
  LineQuestion question(work.services, kTextRenameUsedColumn);
  for (const std::string_view line : SplitLines(saved)) {
    if (work.document.Page->ContainsIgnoringCase(line, oldName) && !question.Agreed()) return false;
  }
  return true;
}

void RenameInPosition(std::string& position, std::string_view oldName, std::string_view newName,
                      const CodePage& page) {
  if (position.find('$') == std::string::npos) return;
  const Tokens tokens = SplitTokens(position, kBlank);
  if (tokens.Count() == 1) {
    if (page.EqualsIgnoringCase(Trim(position), Trim(oldName))) position = newName;
    return;
  }
  std::string renamed;
  for (std::size_t n = 1; n <= tokens.Count(); ++n) {
    if (n > 1) renamed += kBlank;
    renamed += page.EqualsIgnoringCase(tokens[n], oldName) ? newName : tokens[n];
  }
  if (const std::string_view trimmed = Trim(renamed); !trimmed.empty()) position = std::string(trimmed);
}

void RenameInObjects(Document& document, std::string_view oldName, std::string_view newName) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    RenameInPosition(document.Objects[row].XValue, oldName, newName, *document.Page);
}

bool Refused(PageWork& work, int textNumber) {
  work.services.ShowBox(textNumber, BoxIcon::Critical);
  return false;
}

// False when the user gives up, or has to type another name.
bool Rename(PageWork& work, SetColumnDialog& dialog, const SavedText& savedText) {
  Document& document = work.document;
  const std::string oldName = document.Columns[dialog.Slot].Name;
  const std::string name = WithDollar(Trim(dialog.Text2));
  if (!IsUsableName(name, document.Settings)) return Refused(work, kTextColumnNameRefused);
  if (IsTaken(document, dialog.Slot, name)) return Refused(work, kTextColumnNameTaken);
  if (!MayRename(work, oldName, savedText)) return false;
  RenameInObjects(document, oldName, name);
  dialog.Text2 = name;
  return true;
}

}  // namespace

ColumnsDialog OpenedColumnsDialog(const Document& document) {
  return Emptied(document, ListItems(document.Columns).size() + 1);
}

void ChooseColumn(ColumnsDialog& dialog, int item) {
  const std::string& text = dialog.List1.at(static_cast<std::size_t>(item));
  dialog.Chosen = item;
  dialog.colname = NthToken(text, 1, '=');
  dialog.colposition = NthToken(text, 2, '=');
  dialog.Command1 = kTextColumnModify;
  dialog.Command3 = true;
}

void AddOrModifyColumn(PageWork& work, ColumnsDialog& dialog) {
  work.services.PushUndo();
  const std::string name = WithDollar(Trim(dialog.colname));
  const double position = NumericPrefix(dialog.colposition);
  if (position == 0) {
    work.services.ShowBox(kTextColumnPositionRefused, BoxIcon::Critical);
    return;
  }
  const bool add = dialog.Chosen < 0;
  if (add)
    AddColumn(work, name, position);
  else
    MoveColumns(work, name, position);
  dialog = Emptied(work.document, dialog.List1.size() + (add ? 2 : 1));
  ShowPageAnew(work);
}

void RemoveChosenColumn(PageWork& work, ColumnsDialog& dialog) {
  if (dialog.Chosen < 0) return;
  Document& document = work.document;
  const std::string_view item = dialog.List1.at(static_cast<std::size_t>(dialog.Chosen));
  if (const int slot = document.Columns.Find(Trim(NthToken(item, 1, '=')), *document.Page); slot != 0) {
    work.services.MarkChanged();
    document.Columns[slot] = {};
    ParkColumnLine(work, slot);
  }
  ShowColumnText(work, {});
  dialog = OpenedColumnsDialog(document);
  ShowPageAnew(work);
}

void OrganizeFromDialog(PageWork& work, ColumnsDialog& dialog, const SavedText& savedText) {
  OrganizeColumns(work, savedText);
  dialog = OpenedColumnsDialog(work.document);
}

SetColumnDialog OpenedSetColumnDialog(const Document& document, int slot) {
  const Column& column = document.Columns[slot];
  return {slot, column.Name, FormatNumber(column.Position)};
}

bool AcceptSetColumn(PageWork& work, SetColumnDialog& dialog, const SavedText& savedText) {
  Document& document = work.document;
  if (!IsColumn(document.Columns, dialog.Slot)) return true;
  Column& column = document.Columns[dialog.Slot];
  const bool sameName = document.Page->EqualsIgnoringCase(column.Name, Trim(dialog.Text2));
  if (!sameName && !Rename(work, dialog, savedText)) return false;
  const double position = NumericPrefix(dialog.Text1);
  if (column.Name == Trim(dialog.Text2) && column.Position == position) return true;
  work.services.MarkChanged();
  column.Name = Trim(dialog.Text2);
  StorePosition(work, dialog.Slot, position);
  ShowPageAnew(work);
  return true;
}

}  // namespace kev
