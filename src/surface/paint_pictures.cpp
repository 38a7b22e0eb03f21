// SPDX-License-Identifier: MIT
#include "surface/paint_kinds.h"

namespace kev {

std::string QrImageName(const WorkImages& images, int row, std::int32_t y) {
  // Row 3 at 1200 and row 31 at 200 would meet in one name without the mark between.
  return images.TempFolder + '\\' + std::to_string(row) + '_' + std::to_string(y) + ".bmp";
}

std::string ChartImageName(const WorkImages& images, int row) {
  const std::string session = std::to_string(images.SessionNumber);
  return images.TempFolder + "\\Sc" + std::to_string(row) + (session.size() < 2 ? "0" : "") + session +
         ".bmp";
}

void PaintPicture(PaintContext& context, const ObjectRecord& record) {
  const double zoom = context.ZoomFactor;
  context.surface.PaintImage(record.PictureFile, CanvasX(context, record.XValue), CanvasY(context, record),
                             record.Width * zoom, record.Height * zoom);
}

}  // namespace kev
