// SPDX-License-Identifier: MIT
// The frame around the painted objects: size and origin of the canvas, margin mark, grid.
#pragma once

#include "surface/visuals.h"

namespace kev {

// Twips.
struct PageSize {
  double Width = 0;
  double Height = 0;

  bool operator==(const PageSize&) const = default;
};

// The paper by its name, turned by the orientation, or the two numbers of a paper without a name.
PageSize PageSizeOf(const DocumentSettings& settings);

// Twips.
double LeftMarginOf(const DocumentSettings& settings);
// Twips: what stands lowest, and room below it.
double CanvasHeightOf(const SortedRows& sorted);

struct PageBackground {
  double GridStep = 200;  // twips; 0 and less count as 200
  bool DrawGrid = false;
};

// Sizes the canvas, sets its origin and draws what lies below the objects. Stores the canvas width in the
// context for the painting that follows.
void DrawPageBackground(PaintContext& context, const PageBackground& background, const SortedRows& sorted);

// The whole page anew: clear, background with the document's own step, objects.
PaintResult PaintPage(PaintContext& context, bool drawGrid, const SortedRows& sorted);

}  // namespace kev
