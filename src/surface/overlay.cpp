// SPDX-License-Identifier: MIT
#include "surface/overlay.h"

#include <algorithm>
#include <array>
#include <utility>

#include "document/position.h"
#include "surface/paint_kinds.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr auto kPanelNames =
    std::to_array<std::string_view>({"", "lblob(1)", "lblob(2)", "lblob(3)", "lblob(4)"});
constexpr double kBarOffset = 25;
constexpr double kUnderlineAbove = 5;
constexpr Rgb kBarFill = 0xE6E6E6;

void Place(SurfaceOps& surface, std::string_view name, const CanvasArea& area) {
  surface.PlaceWidget(name, area.Left, area.Top, area.Width(), area.Height());
}

// Bands are wider than any page; what lies behind its edge can't be seen.
CanvasArea PanelAreaOf(const PageWork& work, const ObjectRecord& record) {
  CanvasArea area = AreaOf(record, work.document, work.ZoomFactor);
  if (IsBand(record.Kind)) area.Right = std::min(area.Right, std::max(area.Left, work.canvasWidth));
  return area;
}

void PaintBody(PageWork& work, SurfaceOps& panel, int row, const CanvasArea& area) {
  ObjectRecord& record = work.document.Objects[row];
  PaintContext context{work.document,    panel,       work.measurer, work.ZoomFactor, work.filter,
                       work.canvasWidth, work.images, work.pictures, work.bars};
  if (record.Kind == ObjectKind::Barcode) return PaintBarcodePanel(context, record, area);
  PaintObject(context, row);
  if (record.Kind != ObjectKind::TextBox) return;
  panel.SetPen(kBlack, 1, PenStyle::Solid);
  const double y = area.Bottom - kUnderlineAbove;
  panel.DrawLine(area.Left, y, area.Right, y);
}

void ShowBody(PageWork& work, int row) {
  const CanvasArea area = PanelAreaOf(work, work.document.Objects[row]);
  const std::string_view name = kPanelNames[1];
  work.pointer.Overlay[1] = area;
  Place(work.surface, name, area);
  SurfaceOps& panel = work.surface.SurfaceOf(name);
  panel.ClearCanvas();
  PaintBody(work, panel, row, area);
  work.surface.ShowWidget(name, true);
}

void ShowBar(PageWork& work, std::size_t index, const CanvasArea& area) {
  work.pointer.Overlay[index] = area;
  Place(work.surface, kPanelNames[index], area);
  SurfaceOps& panel = work.surface.SurfaceOf(kPanelNames[index]);
  panel.ClearCanvas();
  panel.DrawRectColour(area.Left, area.Top, area.Right, area.Bottom, kBarFill, true);
  work.surface.ShowWidget(kPanelNames[index], true);
}

void PlaceGrip(SurfaceOps& surface, std::string_view name, CanvasPoint centre) {
  surface.PlaceWidget(name, centre.X - kGripSide / 2, centre.Y - kGripSide / 2, kGripSide, kGripSide);
}

void ShowGrips(PageWork& work, int row) {
  const Document& document = work.document;
  const ObjectRecord& record = document.Objects[row];
  const double zoom = work.ZoomFactor;
  const double x = PositionOrZero(record.XValue, document.Columns, *document.Page) * zoom;
  const double y = record.AbsoluteY * zoom;
  work.pointer.LineStart = {x, y};
  work.pointer.LineEnd = {x + record.Width * zoom, y + record.Height * zoom};
  PlaceLineGrips(work, row);
  work.surface.SetWidgetText("ObjL1", "First point");
  for (const std::string_view name : {"Lineaviva", "ObjL1", "ObjL2"})
    work.surface.ShowWidget(name, true);
}

}  // namespace

void PlaceLineGrips(PageWork& work, int row) {
  const ObjectRecord& record = std::as_const(work.document).Objects[row];
  const CanvasPoint from = work.pointer.LineStart, to = work.pointer.LineEnd;
  const double penWidth = std::max<int>(1, record.LineWidth);
  work.surface.PlaceWidget("Lineaviva", from.X, from.Y, to.X - from.X, to.Y - from.Y);
  SurfaceOps& line = work.surface.SurfaceOf("Lineaviva");
  line.ClearCanvas();
  line.SetPen(ToRgb(TextColourOf(record)), penWidth,
              record.LineFlag == kTrue ? PenStyle::Dotted : PenStyle::Solid);
  line.DrawLine(from.X, from.Y, to.X, to.Y);
  PlaceGrip(work.surface, "ObjL1", from);
  PlaceGrip(work.surface, "ObjL2", to);
}

void ShowOverlay(PageWork& work, int row) {
  switch (std::as_const(work.document).Objects[row].Kind) {
    case ObjectKind::None:
      return;
    case ObjectKind::Box:
      return ShowBoxOverlay(work, row);
    case ObjectKind::Chart:
      ShowBody(work, row);
      return ShowBoxOverlay(work, row);
    case ObjectKind::AnyLine:
      return ShowGrips(work, row);
    case ObjectKind::Section:
    case ObjectKind::Subsection:
    case ObjectKind::EndOfSubsection:
    case ObjectKind::Command:
    case ObjectKind::Line:
    case ObjectKind::Circle:
    case ObjectKind::Picture:
    case ObjectKind::Barcode:
    case ObjectKind::Qr:
    case ObjectKind::Label:
    case ObjectKind::TextBox:
      return ShowBody(work, row);
  }
}

void ShowBoxOverlay(PageWork& work, int row) {
  const ObjectRecord& record = std::as_const(work.document).Objects[row];
  const CanvasArea in = AreaOf(record, work.document, work.ZoomFactor);
  const CanvasArea out = {in.Left - kBarOffset, in.Top - kBarOffset, in.Right + kBarOffset,
                          in.Bottom + kBarOffset};
  // The first panel of a chart is its picture.
  if (record.Kind != ObjectKind::Chart) ShowBar(work, 1, {out.Left, out.Top, out.Right, in.Top});
  ShowBar(work, 2, {in.Right, out.Top, out.Right, out.Bottom});
  ShowBar(work, 3, {out.Left, in.Bottom, out.Right, out.Bottom});
  ShowBar(work, 4, {out.Left, out.Top, in.Left, out.Bottom});
}

void HideOverlay(PageWork& work) {
  for (std::size_t index = 1; index < kPanelNames.size(); ++index)
    work.surface.ShowWidget(kPanelNames[index], false);
  work.pointer.Overlay = {};
}

}  // namespace kev
