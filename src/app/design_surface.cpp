// SPDX-License-Identifier: MIT
#include "app/design_surface.h"

#include <utility>

#include "app/designer.h"
#include "base/text_numbers.h"
#include "document/sections.h"
#include "surface/column_lines.h"
#include "surface/null_surface.h"
#include "surface/page_background.h"
#include "surface/qr_image.h"
#include "surface/selection.h"

namespace kev {

DesignSurface::DesignSurface(Designer& designer) : designer_(designer) {}

DesignSurface::~DesignSurface() = default;

PageWork DesignSurface::Work() {
  return {designer_.OpenDocument(),
          pointer_,
          designer_.Canvas(),
          *this,
          designer_.Measurer(),
          designer_.ZoomFactor(),
          designer_.Filter(),
          designer_.Images(),
          canvasWidth_,
          canvasHeight_,
          designer_.Made(),
          &bars_};
}

// --- Painting ---

void DesignSurface::Redraw() {
  Document& document = designer_.OpenDocument();
  PaintContext context{document,
                       designer_.Canvas(),
                       designer_.Measurer(),
                       designer_.ZoomFactor(),
                       designer_.Filter(),
                       0,
                       designer_.Images(),
                       designer_.Made(),
                       &bars_};
  const std::set<int> stoppedBefore = bars_.Stopped;
  const SortedRows sorted = SetSortKeys(document);
  painted_ = PaintPage(context, drawGrid_, sorted);
  canvasWidth_ = context.canvasWidth;
  canvasHeight_ = CanvasHeightOf(sorted) * designer_.ZoomFactor();
  document.Objects.SelectionCount = painted_.SelectionCount;
  pointer_.MultiSelected = painted_.MultiSelected();
  pointer_.Bounds = painted_.SelectionBounds;
  PageWork work = Work();
  SyncColumnLines(work);
  if (bars_.Stopped != stoppedBefore) designer_.PaintFindingsChanged();
  designer_.PageShown();
}

void DesignSurface::ShowMadePictures() {
  Redraw();
  PageWork work = Work();
  const ObjectTable& objects = designer_.OpenDocument().Objects;
  // Other overlays show nothing of it, and one may lie below a text that is being typed.
  if (objects[objects.CurrentObject].Kind == ObjectKind::Qr) ShowCurrentAgain(work);
}

void DesignSurface::RemakeQrImage(int row) {
  PageWork work = Work();
  if (MakeQrImage(work, row)) ShowMadePictures();
}

void DesignSurface::Renew(PageWork& work) {
  work.ZoomFactor = designer_.ZoomFactor();
  work.filter = designer_.Filter();
  work.canvasWidth = canvasWidth_;
  work.canvasHeight = canvasHeight_;
}

void DesignSurface::FullRepaint() {
  designer_.DeriveGeometryAndRedraw();
  PageWork work = Work();
  ShowCurrentAgain(work);
  SelectionChanged();
}

void DesignSurface::BandsChanged() {
  Document& document = designer_.OpenDocument();
  NormaliseSubsections(document, SetSortKeys(document));
  FullRepaint();
  BuildRulers();
}

void DesignSurface::BuildRulers() {
  designer_.ShowRulers();
}

void DesignSurface::NextRulerMode() {
  const int before = rulerMode_;
  rulerMode_ = kev::NextRulerMode(before);
  designer_.GuardedView([this] { BuildRulers(); }, [&] { rulerMode_ = before; });
}

void DesignSurface::ToggleDrawGrid() {
  drawGrid_ = !drawGrid_;
  designer_.GuardedView([this] { Redraw(); }, [this] { drawGrid_ = !drawGrid_; });
}

// --- What the designer tells ---

void DesignSurface::DocumentReplaced() {
  PageWork work = Work();
  CancelTextEdit(work, edit_);
  tracker_.Reset();
  HideHandles(work);
  HideOverlay(work);
  ParkColumnLines(work);
  pointer_ = PointerState();
  work.document.Objects.CurrentObject = 0;
  undo_.Clear();
  bars_.Stopped.clear();
  SelectionChanged();
}

void DesignSurface::ZoomChanged(double before) {
  const double scale = designer_.ZoomFactor() / before;
  if (pointer_.HasPosition()) {
    pointer_.LastX *= scale;
    pointer_.LastY *= scale;
  }
  PageWork old = Work();
  HideHandles(old);
  HideOverlay(old);
  Redraw();
  BuildRulers();
  PageWork work = Work();
  ShowCurrentAgain(work);
}

void DesignSurface::FilterChanged() {
  PageWork work = Work();
  EndGroup(work);
  Deselect(work);
  Redraw();
  SelectionChanged();
}

void DesignSurface::GoToObject(int row) {
  CommitOpenEdits();
  PageWork work = Work();
  // The object may be gone since it was listed.
  if (std::as_const(work.document).Objects[row].Kind == ObjectKind::None) return;
  SelectObject(work, row);
  Redraw();
  designer_.ShowArea(AreaOf(work.document.Objects[row], work.document, work.ZoomFactor));
  SelectionChanged();
}

// --- Selection and words ---

void DesignSurface::SelectionChanged() {
  designer_.TheHost().ShowSelectionStatus(SelectionText(Work()));
  designer_.Sheets().Refresh();
  ShowFontTools();
  designer_.Quick().UpdateQuickPanel();
  CommandsChanged();
}

void DesignSurface::CommandsChanged() {
  designer_.CommandsChanged();
}

const std::string& DesignSurface::Text(int number) const {
  return designer_.Text(number);
}

BoxAnswer DesignSurface::ShowBox(int textNumber, BoxIcon icon, BoxButtons buttons) {
  MessageBox box{designer_.Text(kTextProgramTitle), designer_.Text(textNumber), {}, icon, buttons};
  box.NoIsDefault = buttons == BoxButtons::YesNoYesToAll;
  return designer_.TheHost().ShowMessage(box);
}

// --- The window ---

void DesignSurface::OpenContextMenu(ContextMenu menu) {
  // What it offers depends on what is below the pointer.
  CommandsChanged();
  if (DesignerView* view = designer_.View()) view->OpenContextMenu(menu);
}

// A subsection and a chart have a dialog; everything else is in its sheet.
void DesignSurface::OpenProperties(int row) {
  const ObjectKind kind = std::as_const(designer_).OpenDocument().Objects[row].Kind;
  if (kind == ObjectKind::Subsection) return OpenSubsection(row);
  if (kind == ObjectKind::Chart) return OpenChart(row);
  designer_.Sheets().Properties();
}

void DesignSurface::ShowFieldScreen(const FieldScreenLook& look) {
  if (DesignerView* view = designer_.View()) view->ShowFieldScreen(look);
}

void DesignSurface::HideFieldScreen() {
  if (DesignerView* view = designer_.View()) view->HideFieldScreen();
}

void DesignSurface::StartAllowTimer(int milliseconds, std::function<void()> done) {
  if (DesignerView* view = designer_.View()) view->StartAllowTimer(milliseconds, std::move(done));
}

}  // namespace kev
