// SPDX-License-Identifier: MIT
#include "surface/paint_kinds.h"

namespace kev {
namespace {

std::string ChartCaption(const ObjectRecord& record) {
  return record.ChartValues.empty() || record.ChartValues.front().empty()
             ? "CHART"
             : "CHART " + record.ChartValues.front();
}

}  // namespace

void PaintChart(PaintContext& context, ObjectRecord& record, int row) {
  record.PictureFile = ChartImageName(context.images, row);
  const CanvasArea area = AreaOf(record, context.document, context.ZoomFactor);
  ChartPictures* charts = context.pictures.Charts;
  if (charts == nullptr || !charts->IsReady(row, record, record.PictureFile, context.ZoomFactor))
    return PaintPlaceholder(context, area, ChartCaption(record));
  context.surface.PaintImage(record.PictureFile, area.Left, area.Top, area.Width(), area.Height());
}

}  // namespace kev
