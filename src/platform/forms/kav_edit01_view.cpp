// SPDX-License-Identifier: MIT
// What the designer shows in the main window: the page, its panels and the dialogs above it.
#include <QMenu>
#include <QTimer>
#include <utility>

#include "platform/forms/combocol.h"
#include "platform/forms/command_menus.h"
#include "platform/forms/findings_dock.h"
#include "platform/forms/inscol01.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/page_frame.h"
#include "platform/forms/panel_place.h"
#include "platform/forms/recover_form.h"
#include "platform/forms/set_this_column.h"
#include "platform/forms/status_panels.h"
#include "platform/forms/sub_section_propert.h"
#include "platform/forms/tool_bars.h"
#include "platform/forms/wizard1.h"
#include "platform/forms/zoom_box.h"
#include "platform/forms/zoom_menu.h"
#include "platform/text_bridge.h"

namespace kev {

void KavEdit01::DocumentReplaced() {
  page_.DocumentReplaced();
}

void KavEdit01::PageShown() {
  page_.Shown();
  shownRatio_ = charts_.DeviceRatio();
  ShowRulers();
}

void KavEdit01::ShowRulers() {
  frame_->ShowRulers(designer_.OpenDocument(), designer_.ZoomFactor(), designer_.Surface().RulerMode());
}

void KavEdit01::ShowArea(const CanvasArea& area) {
  page_.Canvas().EnsureVisible(QRectF(QPointF(area.Left, area.Top), QPointF(area.Right, area.Bottom)));
}

void KavEdit01::ShowZoom(std::string_view text) {
  zoomBox_->ShowZoom(ToQString(text));
  zoomMenu_->ShowZoom(ToQString(text));
}

void KavEdit01::OpenSubsectionDialog(SubsectionDialog& dialog, const std::function<bool()>& accept) {
  SubSectionpropert(dialog, {designer_.Texts(), *designer_.OpenDocument().Page, host_, accept}, this).exec();
}

void KavEdit01::FindingsChanged() {
  findings_->Show(designer_.Findings(), *designer_.OpenDocument().Page);
  status_->ShowFindingCount(static_cast<int>(designer_.Findings().size()));
}

void KavEdit01::CommandsChanged() {
  const auto enabled = [this](Command command) { return designer_.Enabled(command); };
  menus_->ShowEnabled(enabled);
  toolBars_->Show(enabled, designer_.Surface().Pointer().PendingTool);
  input_.RefreshCursor();
}

void KavEdit01::OpenContextMenu(ContextMenu menu) {
  QMenu& popup = menus_->ContextMenuOf(menu);
  // Opened behind the event that asked for it, or the pointer's release would go to the menu.
  QTimer::singleShot(0, &popup, [&popup] { popup.popup(QCursor::pos()); });
}

void KavEdit01::StartAllowTimer(int milliseconds, std::function<void()> done) {
  input_.StartAllowTimer(milliseconds, std::move(done));
}

void KavEdit01::ShowSheet(const Sheet& sheet, const std::string& title, int selectRow) {
  panel_->Panel().ShowSheet(sheet, title, selectRow);
}

// Behind the event that asked for it, which may be one of the panel itself.
void KavEdit01::ShowPanel(std::int32_t state) {
  QTimer::singleShot(0, this, [this, state] { panel_->Show(state); });
}

void KavEdit01::FocusPanel() {
  panel_->Panel().FocusGrid();
}

void KavEdit01::CommitOpenCell() {
  panel_->Panel().CommitOpenCell();
}

void KavEdit01::ShowRecoverDialog(RecoverDialog& dialog) {
  Recover_form form(dialog, host_, designer_.Texts(), this);
  form.exec();
}

void KavEdit01::ShowColumnList(const ColumnList& list) {
  columnBox_->ShowList(list, *designer_.OpenDocument().Page);
}

void KavEdit01::OpenColumnsDialog(ColumnsDialogRun& run) {
  inscol01(run, designer_.Texts(), this).exec();
}

void KavEdit01::OpenSetThisColumn(SetColumnRun& run) {
  SetThisColumn(run, designer_.Texts(), this).exec();
}

void KavEdit01::OpenChartWizard(ChartWizardRun& run) {
  Wizard1(run, {designer_.Texts(), fonts_, images_}, this).exec();
}

}  // namespace kev
