// SPDX-License-Identifier: MIT
#include "surface/page_background.h"

#include <algorithm>
#include <cmath>

#include "document/kind_defaults.h"
#include "document/papers.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

constexpr Rgb kMarginMark = 0x7D7D7D;
constexpr double kRoomBelow = 1000;       // twips
constexpr double kUsualStep = 200;        // twips
constexpr double kLeastDotStep = 2 * 15;  // canvas units: two pixels

// Whole grid steps that are far enough apart to be told from a grey area.
double DotStep(double gridStep, double zoom) {
  const double step = (gridStep > 0 ? gridStep : kUsualStep) * zoom;
  return step * std::max(1.0, std::ceil(kLeastDotStep / step));
}

void DrawMarginMark(PaintContext& context, double pageWidth, double leftMargin, double height) {
  if (leftMargin == 0) return;
  context.surface.SetPen(kMarginMark, 1, PenStyle::Dotted);
  const double x = (pageWidth - leftMargin) * context.ZoomFactor;
  context.surface.DrawLine(x, -1, x, height);
  RestorePen(context.surface);
}

void DrawGrid(PaintContext& context, double gridStep, double pageWidth, const SortedRows& sorted) {
  const double zoom = context.ZoomFactor;
  const double step = DotStep(gridStep, zoom);
  RestorePen(context.surface);
  for (const int row : sorted.Rows) {
    const ObjectRecord& bar = context.document.Objects[row];
    if (bar.Kind != ObjectKind::Subsection) continue;
    const double top = (static_cast<double>(bar.AbsoluteY) + kBarHeight) * zoom;
    context.surface.DrawDots(0, top, pageWidth * zoom, top + bar.EndsAt * zoom, step);
  }
}

}  // namespace

PageSize PageSizeOf(const DocumentSettings& settings) {
  PageSize upright{settings.Number(Setting::PAGEWIDTH), settings.Number(Setting::PAGELENGHT)};
  if (const auto paper = LookupPaper(settings[Setting::PAPERSIZE]))
    upright = {static_cast<double>(paper->Width), static_cast<double>(paper->Length)};
  return settings[Setting::Orientation].starts_with('1') ? upright : PageSize{upright.Height, upright.Width};
}

double LeftMarginOf(const DocumentSettings& settings) {
  return settings.Number(Setting::LM);
}

double CanvasHeightOf(const SortedRows& sorted) {
  return sorted.BottomMost + kRoomBelow;
}

void DrawPageBackground(PaintContext& context, const PageBackground& background, const SortedRows& sorted) {
  const double zoom = context.ZoomFactor;
  const double pageWidth = PageSizeOf(context.document.Settings).Width;
  const double leftMargin = LeftMarginOf(context.document.Settings);
  const double height = CanvasHeightOf(sorted) * zoom;
  context.canvasWidth = (leftMargin + pageWidth) * zoom;
  context.surface.SetCanvasSize(context.canvasWidth, height);
  context.surface.SetScaleLeft(-leftMargin * zoom);
  DrawMarginMark(context, pageWidth, leftMargin, height);
  if (background.DrawGrid) DrawGrid(context, background.GridStep, pageWidth, sorted);
}

PaintResult PaintPage(PaintContext& context, bool drawGrid, const SortedRows& sorted) {
  context.surface.ClearCanvas();
  const double step = context.document.Settings.SpacingTwips();
  DrawPageBackground(context, {.GridStep = step, .DrawGrid = drawGrid}, sorted);
  return RedrawDocument(context, sorted);
}

}  // namespace kev
