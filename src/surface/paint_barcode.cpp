// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "base/numbers.h"
#include "document/symbologies.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

constexpr std::array kCode128 = {1282, 1283, 12821};

std::string_view SymbologyNameOf(const ObjectRecord& record) {
  const Symbology* row = SymbologyOfKind(Int32Of(record.BarcodeKind));
  return row == nullptr || row->name.empty() ? "BARCODE" : row->name;
}

// The bars of these are made at their own size and stand where the record says, whatever the zoom.
bool IsPaintedUnzoomed(const ObjectRecord& record) {
  const int kind = Int32Of(record.BarcodeKind);
  return IsVerticalBarcode(record) || std::find(kCode128.begin(), kCode128.end(), kind) != kCode128.end();
}

}  // namespace

void PaintBarcode(PaintContext& context, const ObjectRecord& record) {
  const double zoom = IsPaintedUnzoomed(record) ? 1 : context.ZoomFactor;
  PaintPlaceholder(context, AreaOf(record, context.document, zoom), SymbologyNameOf(record));
}

}  // namespace kev
