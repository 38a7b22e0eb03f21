// SPDX-License-Identifier: MIT
#include "surface/object_area.h"

#include <algorithm>

#include "document/position.h"

namespace kev {
namespace {

CanvasArea AreaFrom(double x, double y, double width, double height) {
  return {std::min(x, x + width), std::min(y, y + height), std::max(x, x + width), std::max(y, y + height)};
}

struct Size {
  double width, height;
};

Size SizeOf(const ObjectRecord& record) {
  const Size size{static_cast<double>(record.Width), static_cast<double>(record.Height)};
  return IsVerticalBarcode(record) ? Size{size.height, size.width} : size;
}

}  // namespace

char AnchorOf(const ObjectRecord& record) {
  const bool anchored = record.Kind == ObjectKind::Label || record.Kind == ObjectKind::Command;
  return anchored && (record.Align == "R" || record.Align == "C") ? record.Align.front() : 'L';
}

double LeftOf(const ObjectRecord& record, const Document& document) {
  const double x = PositionOrZero(record.XValue, document.Columns, *document.Page);
  switch (AnchorOf(record)) {
    case 'R':
      return x - record.Width;
    case 'C':
      return x - record.Width / 2.0;
    default:
      return x;
  }
}

bool IsVerticalBarcode(const ObjectRecord& record) {
  return record.Kind == ObjectKind::Barcode && record.VerticalBar == kTrue;
}

CanvasArea AreaOf(const ObjectRecord& record, const Document& document, double zoomFactor) {
  const auto [width, height] = SizeOf(record);
  return AreaFrom(LeftOf(record, document) * zoomFactor, record.AbsoluteY * zoomFactor, width * zoomFactor,
                  height * zoomFactor);
}

CanvasArea MarkedAreaOf(const ObjectRecord& record, const Document& document, double zoomFactor) {
  if (!IsVerticalBarcode(record)) return AreaOf(record, document, zoomFactor);
  const auto [width, height] = SizeOf(record);
  return AreaFrom(LeftOf(record, document) * zoomFactor, record.AbsoluteY, width, height);
}

}  // namespace kev
