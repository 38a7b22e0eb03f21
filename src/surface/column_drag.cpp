// SPDX-License-Identifier: MIT
// The line of a column is dragged by two guides; the line itself stays where it is until the end.
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "base/numbers.h"
#include "document/position.h"
#include "surface/column_lines.h"
#include "surface/gesture.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr std::array<std::string_view, 2> kGuides = {"indicatorX", "indicatorX2"};
constexpr std::string_view kCaption = "indicatorCOLUMN";
constexpr double kCaptionDistance = 100;
constexpr double kColumnStep = 100;

class ColumnDrag final : public Gesture {
 public:
  ColumnDrag(PageWork& work, int slot, CanvasPoint at);
  void Move(PageWork& work, CanvasPoint at) override;
  void End(PageWork& work, int shift) override;
  void Cancel(PageWork& work) override;

 private:
  void PlaceGuides(PageWork& work);
  void ShowCaption(PageWork& work, double top);
  void HideGuides(PageWork& work);
  double NewPlace(const PageWork& work) const;
  void MoveFollowers(PageWork& work, double place) const;
  // Neither over the ruler nor over the line itself.
  bool OverPage(const PageWork& work) const {
    return !work.pointer.OverRuler && work.pointer.OverLine != slot_;
  }

  int slot_;
  double offset_;  // of the line from the pointer
  double guide_;
  std::string textBefore_;  // of the list in the toolbar
};

ColumnDrag::ColumnDrag(PageWork& work, int slot, CanvasPoint at)
    : slot_(slot),
      offset_(RoundToEven(work.ZoomFactor * work.document.Columns[slot].Position) - at.X),
      guide_(at.X + offset_),
      textBefore_(work.pointer.ColumnText) {
  HideHandles(work);
  work.pointer.ColumnDrag = true;
  work.pointer.MenuAt.Slot = slot;
  PlaceGuides(work);
  for (const std::string_view guide : kGuides)
    work.surface.ShowWidget(guide, true);
}

void ColumnDrag::Move(PageWork& work, CanvasPoint at) {
  guide_ = at.X + offset_;
  PlaceGuides(work);
  ShowCaption(work, at.Y);
}

void ColumnDrag::PlaceGuides(PageWork& work) {
  for (const std::string_view guide : kGuides)
    work.surface.PlaceWidget(guide, guide_, 0, kColumnLineWidth, work.canvasHeight);
}

void ColumnDrag::ShowCaption(PageWork& work, double top) {
  std::string text = ColumnCaption(work.document.Columns[slot_], guide_, work.ZoomFactor) + "  ";
  const TextExtent size = work.measurer.Measure(FontSpec{}, text);
  work.surface.SetWidgetText(kCaption, text);
  work.surface.PlaceWidget(kCaption, guide_ + kCaptionDistance, top, size.Width, size.Height);
  work.surface.ShowWidget(kCaption, true);
  ShowColumnText(work, std::move(text));
}

void ColumnDrag::HideGuides(PageWork& work) {
  for (const std::string_view guide : kGuides) {
    work.surface.PlaceWidget(guide, kParkedGuide, 0, kColumnLineWidth, work.canvasHeight);
    work.surface.ShowWidget(guide, false);
  }
  work.surface.ShowWidget(kCaption, false);
  work.pointer.ColumnDrag = false;
}

// On the ruler the step counts in canvas units, on the page in twips; on the line a place in twips is taken
// for one on the canvas. At 100 % they agree.
double ColumnDrag::NewPlace(const PageWork& work) const {
  if (work.pointer.OverRuler) return SnapToStep(guide_, kColumnStep);
  if (OverPage(work)) return SnapToStep(guide_, RoundToEven(work.ZoomFactor * kColumnStep));
  return SnapToStep(RoundToEven(guide_ / work.ZoomFactor), kColumnStep);
}

// Canvas units are added to twips; exact at 100 % only.
void ColumnDrag::MoveFollowers(PageWork& work, double place) const {
  ColumnTable& columns = work.document.Columns;
  const double old = columns[slot_].Position;
  const double delta = place - work.ZoomFactor * old;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    Column& column = columns[slot];
    if (slot == slot_ || column.Name.empty() || column.Position < old) continue;
    column.Position = RoundToEven((column.Position + delta) / work.ZoomFactor);
  }
}

void ColumnDrag::End(PageWork& work, int shift) {
  work.services.PushUndo();
  HideGuides(work);
  const double place = NewPlace(work);
  if (OverPage(work) && (shift & kShiftKey) != 0) MoveFollowers(work, place);
  Column& column = work.document.Columns[slot_];
  column.Position = RoundToEven(place / work.ZoomFactor);
  PlaceColumnLine(work, slot_, place);
  ShowColumnText(work, ColumnCaption(column, place, work.ZoomFactor));
  work.services.FullRepaint();
}

void ColumnDrag::Cancel(PageWork& work) {
  HideGuides(work);
  ShowColumnText(work, std::move(textBefore_));
  ShowCurrentAgain(work);
}

}  // namespace

std::unique_ptr<Gesture> BeginColumnDrag(PageWork& work, int slot, CanvasPoint at) {
  if (!IsColumn(work.document.Columns, slot)) return nullptr;
  return std::make_unique<ColumnDrag>(work, slot, at);
}

}  // namespace kev
