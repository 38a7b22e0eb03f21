// SPDX-License-Identifier: MIT
#include "app/property_sheets.h"

#include <array>
#include <utility>

#include "app/designer.h"

namespace kev {

void PropertySheets::Start() {
  if (State() != kPanelClosed) remembered_ = State();
  if (DesignerView* view = designer_.View()) view->ShowPanel(State());
  Refresh();
}

std::int32_t PropertySheets::State() const {
  return designer_.Options().PropFix;
}

SheetPlace PropertySheets::Place() const {
  return State() == kPanelFloating ? SheetPlace::Floating : SheetPlace::Docked;
}

void PropertySheets::Refresh() {
  sheet_ = SheetOfSelection(designer_.OpenDocument(), designer_.Surface().Pointer().MultiSelected, Place(),
                            sheet_);
  Show(0);
}

void PropertySheets::Show(int selectRow) {
  if (DesignerView* view = designer_.View())
    view->ShowSheet(sheet_, SheetTitle(sheet_, designer_.Surface()), selectRow);
}

void PropertySheets::Edited(int row, std::string text) {
  const Sheet edited = sheet_;
  int selectRow = 0;
  bool qrImageIsOld = false;
  designer_.Guarded([&] {
    PageWork page = designer_.Surface().Work();
    const std::string folder = designer_.DocumentPath().empty() ? std::string() : designer_.TemplateFolder();
    SheetWork work{page, designer_.TheHost(), designer_.Pictures(), folder, Place()};
    const std::array edits = {RowEdit{row, std::move(text)}};
    SheetOutcome outcome = ApplySheetEdit(work, edited, edits);
    sheet_ = std::move(outcome.Shown);
    selectRow = outcome.SelectRow;
    qrImageIsOld = outcome.QrImageIsOld;
  });
  // Also behind a refusal or a failure: the cells show what the record holds.
  Show(selectRow);
  // Last, since the user can act while the tools are waited for.
  if (qrImageIsOld) designer_.GuardedView([&] { designer_.Surface().RemakeQrImage(edited.Object); });
}

void PropertySheets::PressButton(int row) {
  if (sheet_.Object == 0 || !sheet_.Enabled) return;
  switch (ActionOf(sheet_, row)) {
    case SheetAction::SubsectionDialog:
    case SheetAction::ChartWizard:
      return designer_.Surface().OpenProperties(sheet_.Object);
    case SheetAction::None:
      return;
  }
}

void PropertySheets::DoubleClicked() {
  if (sheet_.Object != 0 && sheet_.Enabled) designer_.Surface().OpenProperties(sheet_.Object);
}

void PropertySheets::SetGridFocus(bool has) {
  if (has == std::exchange(gridFocus_, has)) return;
  designer_.CommandsChanged();
}

std::optional<std::string> PropertySheets::Description(int row) const {
  return DescriptionOf(sheet_, row, designer_.Surface());
}

void PropertySheets::SwitchPlace() {
  if (State() == kPanelWide || State() == kPanelClosed) return;
  SetState(State() == kPanelDocked ? kPanelFloating : kPanelDocked);
}

void PropertySheets::CloseProperties() {
  if (State() == kPanelClosed) return;
  remembered_ = State();
  SetState(kPanelClosed);
}

void PropertySheets::Properties() {
  if (State() == kPanelClosed) return SetState(remembered_);
  if (DesignerView* view = designer_.View()) view->FocusPanel();
}

// The rows are other ones at another place; what is open belongs to those of now.
void PropertySheets::SetState(std::int32_t state) {
  designer_.Surface().CommitOpenEdits();
  designer_.Options().PropFix = state;
  if (DesignerView* view = designer_.View()) view->ShowPanel(state);
  Refresh();
}

void PropertySheets::FloatingMoved(const PanelArea& area) {
  DesignerOptions& options = designer_.Options();
  options.PropLeft = area.Left;
  options.PropTop = area.Top;
  options.PropWidth = area.Width;
  options.PropHeight = area.Height;
}

}  // namespace kev
