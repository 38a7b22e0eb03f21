// SPDX-License-Identifier: MIT
#include "barcode/barcode_kinds.h"

#include <array>

#include "document/symbologies.h"

namespace kev {
namespace {

struct KindRow {
  int kind;
  BarPainter painter;
  std::string_view keyword;
};

constexpr auto kKinds = std::to_array<KindRow>({
    {1, BarPainter::Code39, ""},
    {250, BarPainter::Module, "2/5BARRE"},
    {251, BarPainter::Module, "2/5INT"},
    {252, BarPainter::Module, "2/5IND"},
    {13, BarPainter::Module, "EAN13"},
    {8, BarPainter::Module, "EAN8"},
    {32, BarPainter::Module, "32"},
    {1283, BarPainter::Module, "128C"},
    {1282, BarPainter::Code128, ""},
    {kPageOnlyKind, BarPainter::Code128, ""},
});
static_assert(kKinds.size() == kSymbologies.size());

const KindRow* RowOf(int kind) {
  for (const KindRow& row : kKinds)
    if (row.kind == kind) return &row;
  return nullptr;
}

}  // namespace

BarPainter BarPainterOf(int kind) {
  const KindRow* row = RowOf(kind);
  return row == nullptr ? BarPainter::None : row->painter;
}

std::string_view EncoderKeyword(int kind) {
  const KindRow* row = RowOf(kind);
  return row == nullptr ? std::string_view() : row->keyword;
}

std::string_view KindName(int kind) {
  const Symbology* row = SymbologyOfKind(kind);
  return row == nullptr || row->name.empty() ? kNoSuchKind : row->name;
}

std::optional<int> KindFromName(std::string_view name) {
  const Symbology* row = SymbologyOfName(name);
  return row == nullptr ? std::nullopt : std::optional(row->kind);
}

}  // namespace kev
