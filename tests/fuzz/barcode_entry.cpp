// SPDX-License-Identifier: MIT
// Any text as a bar code: the first byte chooses the symbology, the second how it is painted.
#include <algorithm>
#include <array>

#include "barcode/barcode_kinds.h"
#include "barcode/element_codes.h"
#include "barcode/encoder.h"
#include "barcode/painters.h"
#include "document/symbologies.h"
#include "fuzz_support.h"
#include "surface/null_surface.h"

namespace {

using namespace kev;
using fuzz::Require;

constexpr auto kKeywords = std::to_array<std::string_view>(
    {"2/5BARRE", "2/5IND", "2/5INT", "39", "32", "EAN8", "EAN13", "UPC/A", "128C", "128B", "none"});

void CheckModules(std::string_view keyword, std::string_view text) {
  const BarcodeEncoder encoder;
  const std::string modules = encoder.Encode(keyword, text);
  Require(encoder.Knows(keyword) || modules.empty());
  if (IsEncodingError(modules)) return Require(modules.ends_with('/'));
  const bool widths = keyword == "128B", letters = keyword == "EAN13" || keyword == "UPC/A";
  const std::string_view bars = std::string_view(modules).substr(0, modules.find('/'));
  Require(bars.find_first_not_of(widths ? "1234ABCD" : letters ? "1A" : "10") == std::string_view::npos);
  if (!bars.empty() && !widths) Require(bars.front() == '1');
}

void CheckElements(std::string_view text) {
  for (const std::string& element : Code39Elements(text))
    Require(element.find_first_not_of("1234") == std::string::npos);
  const std::string widths = Code128BElements(text);
  Require(widths.find_first_not_of("1234") == std::string::npos);
}

void Paint(int kind, std::uint8_t how, std::string_view text) {
  NullSurface surface;
  BarcodeState state;
  const double width = how >> 4;
  UseBarWidth(state, width);
  const BarRequest request{.Kind = kind,
                           .Text = text,
                           .Target = (how & 1) != 0 ? BarTarget::Visual : BarTarget::Page,
                           .X = 300,
                           .Y = 400,
                           .Height = 600,
                           .BarWidth = width,
                           .IsVertical = (how & 2) != 0,
                           .ZoomFactor = (how & 4) != 0 ? 2.5 : 1};
  switch (BarPainterOf(kind)) {
    case BarPainter::None:
      break;
    case BarPainter::Code39:
      Code39Painter(surface, state, request);
      break;
    case BarPainter::Module:
      ModulePainter(surface, state, request);
      break;
    case BarPainter::Code128:
      Code128Painter(surface, state, request);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::string_view text = fuzz::TextOf(data + 2, size - 2);
  CheckModules(kKeywords[data[0] % kKeywords.size()], text);
  CheckElements(text);
  Paint(kSymbologies[data[0] % kSymbologies.size()].kind, data[1], text);
  const std::optional<int> named = KindFromName(text);
  Require(!named || KindName(*named) == SymbologyOfName(text)->name);
  return 0;
}
