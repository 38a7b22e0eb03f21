// SPDX-License-Identifier: MIT
// What the designer shows in the main window: the page, its panels and the dialogs above it.
#include <QCoreApplication>
#include <QMenu>
#include <QTimer>
#include <utility>

#include "base/numbers.h"
#include "base/text_numbers.h"
#include "platform/forms/align_to_grid_frm.h"
#include "platform/forms/combocol.h"
#include "platform/forms/command_menus.h"
#include "platform/forms/docpropertiesfrm.h"
#include "platform/forms/fastopen.h"
#include "platform/forms/findings_dock.h"
#include "platform/forms/group_flag_forms.h"
#include "platform/forms/inscol01.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/new_template.h"
#include "platform/forms/page_frame.h"
#include "platform/forms/panel_place.h"
#include "platform/forms/placeselection.h"
#include "platform/forms/quick_panel.h"
#include "platform/forms/recent_menu.h"
#include "platform/forms/recover_form.h"
#include "platform/forms/set_this_column.h"
#include "platform/forms/show_colors.h"
#include "platform/forms/status_panels.h"
#include "platform/forms/sub_section_propert.h"
#include "platform/forms/text_tools.h"
#include "platform/forms/tool_bars.h"
#include "platform/forms/wizard1.h"
#include "platform/forms/zoom_box.h"
#include "platform/forms/zoom_menu.h"
#include "platform/text_bridge.h"
#include "surface/paint_kinds.h"

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
  page_.SelectionChanged();
}

// The page itself is painted first: nobody waits for the small picture.
std::string KavEdit01::PaintThumbnail(const ThumbnailLook& look) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
  return page_.Thumbnail(look);
}

void KavEdit01::OpenContextMenu(ContextMenu menu) {
  QMenu& popup = menus_->ContextMenuOf(menu);
  // Opened behind the event that asked for it, or the pointer's release would go to the menu.
  QTimer::singleShot(0, &popup, [&popup, at = input_.TakeMenuPlace()] { popup.popup(at); });
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

void KavEdit01::OpenPlaceSelection(PlaceSelectionRun& run) {
  placeselection(run, designer_.Texts(), this).exec();
}

void KavEdit01::OpenAlignToGrid(AlignToGridRun& run) {
  AlignToGridFrm(run, designer_.Texts(), this).exec();
}

void KavEdit01::OpenModifyEndUser(GroupFlagRun& run) {
  Modifyenduser(run, designer_.Texts(), this).exec();
}

void KavEdit01::OpenPrintNoPrint(GroupFlagRun& run) {
  PrintNoPrintFrm(run, designer_.Texts(), this).exec();
}

void KavEdit01::ShowFontTools(const FontTools& tools) {
  toolBars_->ShowFontTools(tools);
  textTools_->Show(tools);
}

std::optional<Colour> KavEdit01::ChooseColour(const Colour& first) {
  const std::optional<Rgb> chosen = ShowColors::Choose(ToRgb(first), designer_.Texts(), this);
  if (!chosen) return std::nullopt;
  const auto part = [&](int shift) { return ToInt16((*chosen >> shift) & 0xFFU); };
  return Colour{part(16), part(8), part(0)};
}

void KavEdit01::ShowRecentFiles(const std::vector<std::string>& captions) {
  recentMenu_->Show(captions);
}

// Whoever wants the program to end wants no welcome.
void KavEdit01::OpenWelcome(WelcomeRun& run) {
  if (closeWanted_ || ended_) return;
  const std::string images = InProgramFolder(designer_.Folders(), kButtonImages);
  Fastopen(run, designer_.Texts(), FromNative(images), this).exec();
}

void KavEdit01::OpenDocumentProperties(DocumentPropertiesRun& run) {
  docpropertiesfrm(run, designer_.Texts(), this).exec();
}

void KavEdit01::ShowQuickPanel(const QuickPanel& panel, const std::string& title) {
  quick_->ShowPanel(panel, ToQString(title));
}

void KavEdit01::OpenNewTemplate(NewTemplateRun& run) {
  NewTemplate(run, designer_.Texts(), this).exec();
}

void KavEdit01::OpenChartWizard(ChartWizardRun& run) {
  Wizard1(run, {designer_.Texts(), fonts_, images_}, this).exec();
}

}  // namespace kev
