// SPDX-License-Identifier: MIT
// The property panel: which sheet it shows, where it stands, and what its edits do. The window shows what it
// is told and sends what is typed.
#pragma once

#include <optional>
#include <string>

#include "app/options.h"
#include "properties/apply_sheet_edit.h"
#include "properties/sheet.h"

namespace kev {

class Designer;

// PROPFIX. Wide is docked and can't be taken off by a double click.
inline constexpr std::int32_t kPanelFloating = 0;
inline constexpr std::int32_t kPanelDocked = 1;
inline constexpr std::int32_t kPanelWide = 3;

class PropertySheets {
 public:
  explicit PropertySheets(Designer& designer) : designer_(designer) {}

  // The panel stands where the last run left it; called when the options are read.
  void Start();
  // What is selected now is shown.
  void Refresh();
  // The row's cell holds another text: it is stored, or put back. Runs in a guard.
  void Edited(int row, std::string text);
  void PressButton(int row);
  // A double click on a row is one on the object that the sheet stands for.
  void DoubleClicked();
  // While the grid has the keyboard, cut, copy and paste act on its text and not on objects.
  void SetGridFocus(bool has);
  bool HasGridFocus() const { return gridFocus_; }
  // What the line under the grid says; nothing where it stays.
  std::optional<std::string> Description(int row) const;

  // `PROPFIX`.
  std::int32_t State() const;
  SheetPlace Place() const;
  // A double click on the title bar.
  void SwitchPlace();
  // Remembers the place and hides the panel.
  void CloseProperties();
  // The menu command: the panel comes back where it was.
  void Properties();
  // The floating form was moved or sized; twips.
  void FloatingMoved(const PanelArea& area);

  const Sheet& Shown() const { return sheet_; }

 private:
  void SetState(std::int32_t state);
  void Show(int selectRow);

  Designer& designer_;
  Sheet sheet_;
  std::int32_t remembered_ = kPanelDocked;
  bool gridFocus_ = false;
};

}  // namespace kev
