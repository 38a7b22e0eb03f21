// SPDX-License-Identifier: MIT
// What the two dialogs of the columns hold and do. A form shows the struct and calls the procedures; each is
// one event of the user's.
#pragma once

#include <string>
#include <vector>

#include "base/text_numbers.h"
#include "surface/column_commands.h"
#include "surface/page_work.h"

namespace kev {

// `inscol01`, "Add/modify/remove columns". The members have the names of the controls.
struct ColumnsDialog {
  std::vector<std::string> List1;  // "$Col_01=2400", in the order of the slots
  int Chosen = -1;                 // the selected item, counted from 0; -1 is none
  std::string colname;
  std::string colposition;
  int Command1 = kTextColumnAdd;  // number of its caption
  bool Command3 = false;          // can be used

  bool operator==(const ColumnsDialog&) const = default;
};

// As the dialog opens. The proposed name counts the columns and may be one that is in use.
ColumnsDialog OpenedColumnsDialog(const Document& document);
// An item of the list was clicked.
void ChooseColumn(ColumnsDialog& dialog, int item);
// `Command1`: adds a column, or gives the chosen one its position. The snapshot is taken even where the
// position is refused.
void AddOrModifyColumn(PageWork& work, ColumnsDialog& dialog);
// `Command3`: unlike `removecolumn` without a snapshot, and objects keep the name.
void RemoveChosenColumn(PageWork& work, ColumnsDialog& dialog);
// `Command4`.
void OrganizeFromDialog(PageWork& work, ColumnsDialog& dialog, const SavedText& savedText);

// `SetThisColumn`.
struct SetColumnDialog {
  int Slot = 0;
  std::string Text2;  // the name
  std::string Text1;  // the position

  bool operator==(const SetColumnDialog&) const = default;
};

SetColumnDialog OpenedSetColumnDialog(const Document& document, int slot);
// `Command2`: false when the dialog stays open. Without a snapshot; the second end of a line keeps the old
// name.
bool AcceptSetColumn(PageWork& work, SetColumnDialog& dialog, const SavedText& savedText);

}  // namespace kev
