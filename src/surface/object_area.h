// SPDX-License-Identifier: MIT
// Where an object lies on the canvas.
#pragma once

#include "document/document.h"

namespace kev {

// Canvas units, with Left <= Right and Top <= Bottom.
struct CanvasArea {
  double Left = 0, Top = 0, Right = 0, Bottom = 0;

  double Width() const { return Right - Left; }
  double Height() const { return Bottom - Top; }
  bool operator==(const CanvasArea&) const = default;
};

// 'L', 'R' or 'C': which point of the object its XValue names. Only LABEL and COMMAND are anchored by Align.
char AnchorOf(const ObjectRecord& record);

// The left edge of the object in twips.
double LeftOf(const ObjectRecord& record, const Document& document);

// A vertical bar code is as wide as its Height says and as high as its Width says.
bool IsVerticalBarcode(const ObjectRecord& record);

// The rectangle of the object. Negative sizes are mirrored.
CanvasArea AreaOf(const ObjectRecord& record, const Document& document, double zoomFactor);

// The rectangle at which the object shows its marks: a vertical bar code is painted without the zoom, and
// only the left edge of its marks follows it.
CanvasArea MarkedAreaOf(const ObjectRecord& record, const Document& document, double zoomFactor);

}  // namespace kev
