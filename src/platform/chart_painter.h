// SPDX-License-Identifier: MIT
// Draws the shapes of a chart.
#pragma once

#include <QImage>

#include "chart/graph.h"
#include "platform/fonts.h"
#include "platform/images.h"

class QPainter;

namespace kev {

// The painter's unit is the logical pixel at 100 %, its origin the picture's top left corner; who wants
// another size scales the painter before.
void PaintChartPicture(QPainter& painter, const ChartPicture& picture, FontCache& fonts, ImageCache& images);

// The whole picture, `scale` device pixels to the logical pixel at 100 % (the zoom times the device ratio).
// A scale that would take more than kMostChartPixels is made smaller. Null for a chart without a size.
inline constexpr double kMostChartPixels = 24e6;
QImage ChartImageOf(const ChartPicture& picture, double scale, FontCache& fonts, ImageCache& images);

}  // namespace kev
