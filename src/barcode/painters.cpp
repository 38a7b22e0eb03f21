// SPDX-License-Identifier: MIT
#include "barcode/painters.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "barcode/barcode_kinds.h"
#include "barcode/element_codes.h"
#include "barcode/encoder.h"
#include "base/numbers.h"

namespace kev {
namespace {

constexpr double kUnitsPerModule = 15;
constexpr double kPanelRoom = 50;  // bars of Code 39 are longer by it on a panel

// A length of whole twips: the least part that is wanting comes from the arithmetic.
double WholeTwips(double length) {
  constexpr double kNoise = 1e-9;
  return std::max(0.0, std::floor(length + kNoise));
}

// The bars of one symbol, gathered while its painter walks along it.
class Symbol {
 public:
  // `length` is that of the bars.
  Symbol(bool isVertical, double length) : isVertical_(isVertical), length_(length) {}

  // Along the symbol, from its origin.
  void Bar(double from, double to) {
    if (!(to > from)) return;
    if (!bars_.empty() && To(bars_.back()) == from) return Extend(to);
    bars_.push_back(isVertical_ ? SymbolArea{0, from, length_, to} : SymbolArea{from, 0, to, length_});
  }
  bool HasBars() const { return !bars_.empty(); }
  void Draw(SurfaceOps& surface, double x, double y, Rgb colour) const {
    if (HasBars()) surface.DrawSymbol(x, y, colour, bars_);
  }

 private:
  double To(const SymbolArea& bar) const { return isVertical_ ? bar.Bottom : bar.Right; }
  void Extend(double to) { (isVertical_ ? bars_.back().Bottom : bars_.back().Right) = to; }

  bool isVertical_;
  double length_;
  std::vector<SymbolArea> bars_;
};

void BeginPainting(SurfaceOps& surface, BarcodeState& state, const BarRequest& request) {
  if (request.Target == BarTarget::Visual) surface.ClearCanvas();
  surface.SetForeground(request.Colour);
  surface.SetPen(request.Colour, 1, PenStyle::Solid);
  UseBarWidth(state, request.BarWidth);
}

void PutPenBack(SurfaceOps& surface) {
  surface.SetPen(kRestingPen, 1, PenStyle::Solid);
}

// Where the symbol starts on the target, unless its painter says otherwise.
struct Start {
  double x = 0, y = 0;

  double Along(bool isVertical) const { return isVertical ? y : x; }
};

Start StartOf(const BarRequest& request) {
  return request.Target == BarTarget::Visual ? Start{} : Start{request.X, request.Y};
}

void DrawAt(SurfaceOps& surface, const Symbol& symbol, const BarRequest& request, const Start& start) {
  symbol.Draw(surface, request.OriginX + start.x, request.OriginY + start.y, request.Colour);
}

// --- Code 39 ---

// Paints one element and gives how far it reaches.
double Code39Element(Symbol& symbol, char digit, double cursor, double k) {
  switch (digit) {
    case '3':
      symbol.Bar(cursor, cursor + WholeTwips(10 * k));
      return 10 * k;
    case '4':
      symbol.Bar(cursor, cursor + 30 * k);
      return 30 * k;
    case '1':
      return 16 * k;
    default:
      return 36 * k;
  }
}

// --- Modules ---

double ToFourDecimals(double value) {
  return RoundToEven(value * 1e4) / 1e4;
}

// Across and along the symbol: the direction of its bars and of its modules.
struct Direction {
  double sine, cosine;
};

Direction DirectionOf(bool isVertical) {
  constexpr double kCircle = 3.14159265;
  const double radians = (isVertical ? 90 : 360) * kCircle / 180;
  return {std::sin(radians), std::cos(radians)};
}

// --- Code 128 ---

std::optional<int> Narrow(double value) {
  const double rounded = RoundToEven(value);
  const bool fits = rounded >= std::numeric_limits<std::int16_t>::min() &&
                    rounded <= std::numeric_limits<std::int16_t>::max();
  return fits ? std::optional(static_cast<int>(rounded)) : std::nullopt;
}

// Walks the elements from `first`, which is where the symbol starts; false where a place does not fit.
bool WalkCode128(Symbol& symbol, std::string_view elements, int first, int unit, double& end) {
  int cursor = first;
  for (std::size_t at = 0; at < elements.size(); ++at) {
    const std::optional<int> length = Narrow((elements[at] - '0') * unit);
    const std::optional<int> edge = length ? Narrow(cursor + *length) : std::nullopt;
    if (!edge) return false;
    if (at % 2 == 0) {
      symbol.Bar(cursor - first, *edge - first);
      end = *edge;
    }
    const std::optional<int> next = Narrow(*edge + 1);
    if (!next) return false;
    cursor = *next;
  }
  return true;
}

BarResult PaintCode128(SurfaceOps& surface, const BarRequest& request, double unitLength) {
  constexpr double kFirstEnd = 50;
  const bool onPanel = request.Target == BarTarget::Visual;
  const std::optional<int> x = onPanel ? 1 : Narrow(request.X);
  const std::optional<int> y = onPanel ? 1 : Narrow(request.Y);
  const std::optional<int> unit = Narrow(unitLength);
  BarResult result{.End = kFirstEnd};
  if (!x || !y || !unit) return {.End = kFirstEnd, .Stopped = true};
  Symbol symbol(request.IsVertical, request.Height);
  const int first = request.IsVertical ? *y : *x;
  result.Stopped = !WalkCode128(symbol, Code128BElements(request.Text), first, *unit, result.End);
  result.HasBars = symbol.HasBars();
  DrawAt(surface, symbol, request, {static_cast<double>(*x), static_cast<double>(*y)});
  return result;
}

}  // namespace

void UseBarWidth(BarcodeState& state, double barWidth) {
  if (barWidth == 1 || barWidth == 2 || barWidth == 3)
    state.BarMultiplier = barWidth;
  else if (barWidth > 3)
    state.BarMultiplier = barWidth / 10;
}

BarResult Code39Painter(SurfaceOps& surface, BarcodeState& state, const BarRequest& request) {
  constexpr double kBetweenCharacters = 33;
  BeginPainting(surface, state, request);
  const double k = state.BarMultiplier * request.ZoomFactor;
  const Start start = StartOf(request);
  const double room = request.Target == BarTarget::Visual ? kPanelRoom : 0;
  Symbol symbol(request.IsVertical, request.Height + room);
  double cursor = 0;
  for (const std::string& character : Code39Elements(request.Text)) {
    for (const char digit : character)
      cursor += Code39Element(symbol, digit, cursor, k);
    cursor += kBetweenCharacters * k;
  }
  DrawAt(surface, symbol, request, start);
  return {.End = start.Along(request.IsVertical) + cursor, .HasBars = symbol.HasBars()};
}

BarResult ModulePainter(SurfaceOps& surface, BarcodeState& state, const BarRequest& request) {
  BeginPainting(surface, state, request);
  const auto [sine, cosine] = DirectionOf(request.IsVertical);
  const double across = ToFourDecimals(request.Height * (request.IsVertical ? sine : cosine));
  const double along = ToFourDecimals(request.Height * (request.IsVertical ? cosine : sine));
  const double width = WholeTwips(state.BarMultiplier * (request.ZoomFactor * kUnitsPerModule));
  Symbol symbol(request.IsVertical, across);
  BarResult result;
  double counter = 0;
  if (!request.Text.empty()) {
    for (const char module : BarcodeEncoder().Encode(EncoderKeyword(request.Kind), request.Text)) {
      const double from = std::exchange(counter, counter + width);
      if (module != '1') continue;
      symbol.Bar(from, counter);
      const double reached = ToFourDecimals(counter * (request.IsVertical ? sine : cosine));
      result.End = std::max(result.End, reached + along);
    }
  }
  result.HasBars = symbol.HasBars();
  DrawAt(surface, symbol, request, StartOf(request));
  PutPenBack(surface);
  return result;
}

BarResult Code128Painter(SurfaceOps& surface, BarcodeState& state, const BarRequest& request) {
  BeginPainting(surface, state, request);
  BarResult result;
  if (!request.Text.empty()) {
    const double unit = request.ZoomFactor * kUnitsPerModule * state.BarMultiplier;
    result = PaintCode128(surface, request, unit);
  }
  PutPenBack(surface);
  return result;
}

}  // namespace kev
