// SPDX-License-Identifier: MIT
// How each kind is painted, and what the kinds share.
#pragma once

#include "document/colours.h"
#include "surface/visuals.h"

namespace kev {

inline constexpr Rgb kBlack = 0x000000;
inline constexpr Rgb kWhite = 0xFFFFFF;

Rgb ToRgb(const Colour& colour);

// A position of the row in canvas units; 0 for a text without a value.
double CanvasX(const PaintContext& context, std::string_view expression);
inline double CanvasY(const PaintContext& context, const ObjectRecord& record) {
  return record.AbsoluteY * context.ZoomFactor;
}
// The font of the row at the context's zoom.
FontSpec ZoomedFont(const PaintContext& context, const ObjectRecord& record);

inline void RestorePen(SurfaceOps& surface) {
  surface.SetPen(kRestingPen, 1, PenStyle::Solid);
}

void PaintSection(PaintContext& context, const ObjectRecord& record);
void PaintSubsection(PaintContext& context, const ObjectRecord& record);
void PaintEndOfSubsection(PaintContext& context, const ObjectRecord& record);

void PaintLabel(PaintContext& context, const ObjectRecord& record);
void PaintCommand(PaintContext& context, ObjectRecord& record);
void PaintTextBox(PaintContext& context, const ObjectRecord& record);

void PaintBox(PaintContext& context, ObjectRecord& record);
void PaintLine(PaintContext& context, ObjectRecord& record);
void PaintAnyLine(PaintContext& context, ObjectRecord& record);
void PaintCircle(PaintContext& context, ObjectRecord& record);

void PaintPicture(PaintContext& context, const ObjectRecord& record);
void PaintQr(PaintContext& context, ObjectRecord& record, int row);
void PaintChart(PaintContext& context, ObjectRecord& record, int row);
void PaintBarcode(PaintContext& context, ObjectRecord& record, int row);
// On the panel of the current object, whose corner is at `area`.
void PaintBarcodePanel(PaintContext& context, ObjectRecord& record, const CanvasArea& area);

// A thin frame with a caption in its middle, cut where it has no room.
void PaintPlaceholder(PaintContext& context, const CanvasArea& area, std::string_view caption);

}  // namespace kev
