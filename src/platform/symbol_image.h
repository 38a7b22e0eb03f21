// SPDX-License-Identifier: MIT
// A symbol as a picture of device pixels: what a path painter makes of many upright rectangles, at a fraction
// of its time.
#pragma once

#include <QImage>
#include <QRectF>
#include <vector>

namespace kev {

// The areas and the part of the device that is wanted, both in device pixels. A pixel is as opaque as it is
// covered; areas that share one add up.
QImage SymbolImage(const std::vector<QRectF>& areas, const QRect& box, QRgb colour);

}  // namespace kev
