// SPDX-License-Identifier: MIT
#include <array>

#include "base/text.h"
#include "document/position.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr auto kHandleNames =
    std::to_array<std::string_view>({"dot_1", "dot_2", "dot_3", "dot_4", "dot_5", "dot_6", "dot_7", "dot_8"});
constexpr auto kGripNames =
    std::to_array<std::string_view>({"ObjL1", "ObjL2", "lnh01", "lnh02", "lnv01", "lnv02", "Lineaviva"});

// The text of a label may be wider or narrower than the label.
double RightHandleOf(const ObjectRecord& record, const PageWork& work, const CanvasArea& area) {
  if (record.Kind != ObjectKind::Label || record.ShapeTag <= 0) return area.Right;
  const Document& document = work.document;
  const double x = PositionOrZero(record.XValue, document.Columns, *document.Page);
  switch (AnchorOf(record)) {
    case 'R':
      return x * work.ZoomFactor;
    case 'C':
      return (x + record.ShapeTag / 2.0) * work.ZoomFactor;
    default:
      return (x + record.ShapeTag) * work.ZoomFactor;
  }
}

}  // namespace

void HideHandles(PageWork& work) {
  for (const std::string_view name : kHandleNames)
    work.surface.ShowWidget(name, false);
  for (const std::string_view name : kGripNames)
    work.surface.ShowWidget(name, false);
}

void ShowHandles(PageWork& work, std::string_view mask) {
  const bool all = Trim(mask).empty();
  for (std::size_t i = 0; i < kHandleNames.size(); ++i)
    if (all || (i < mask.size() && mask[i] == '1')) work.surface.ShowWidget(kHandleNames[i], true);
}

void PlaceHandles(PageWork& work, int row) {
  const Document& document = work.document;
  const ObjectRecord& record = document.Objects[row];
  const CanvasArea area = AreaOf(record, document, work.ZoomFactor);
  const double left = area.Left - kHandleSide;
  const double centre = (area.Left + area.Right - kHandleSide) / 2;
  const double top = area.Top - kHandleSide;
  const double middle = (area.Top + area.Bottom - kHandleSide) / 2;
  const std::array<CanvasPoint, kHandleNames.size()> corners = {{{left, top},
                                                                 {centre, top},
                                                                 {area.Right, top},
                                                                 {RightHandleOf(record, work, area), middle},
                                                                 {area.Right, area.Bottom},
                                                                 {centre, area.Bottom},
                                                                 {left, area.Bottom},
                                                                 {left, middle}}};
  for (std::size_t i = 0; i < corners.size(); ++i)
    work.surface.PlaceWidget(kHandleNames[i], corners[i].X, corners[i].Y, kHandleSide, kHandleSide);
}

}  // namespace kev
