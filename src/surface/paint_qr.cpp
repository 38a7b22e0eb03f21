// SPDX-License-Identifier: MIT
#include "surface/paint_kinds.h"

namespace kev {

void PaintQr(PaintContext& context, ObjectRecord& record, int row) {
  record.PictureFile = QrImageName(context.images, row, record.Y);
  const CanvasArea area = AreaOf(record, context.document, context.ZoomFactor);
  if (context.pictures.Qr == nullptr) return PaintPlaceholder(context, area, "QR");
  if (!context.pictures.Qr->IsReady(row, record, record.PictureFile)) return;
  context.surface.PaintImageSharp(record.PictureFile, area.Left, area.Top, area.Width(), area.Height());
}

}  // namespace kev
