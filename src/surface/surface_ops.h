// SPDX-License-Identifier: MIT
// The operations of the design surface. Lengths are canvas units: twips times the zoom factor, X counted from
// the left margin, Y from the top of the first band. 15 units are one logical pixel. Colours are 24 bits,
// 0xRRGGBB.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "document/text_measurer.h"

namespace kev {

using Rgb = std::uint32_t;

inline constexpr Rgb kRestingPen = 0x787878;  // the pen between objects

enum class PenStyle : std::uint8_t { Solid, Dotted };

// A part of a symbol, from its origin.
struct SymbolArea {
  double Left = 0, Top = 0, Right = 0, Bottom = 0;

  bool operator==(const SymbolArea&) const = default;
};

class SurfaceOps {
 public:
  virtual ~SurfaceOps() = default;

  // The lower layer: the page canvas `p1`. What is drawn is kept until ClearCanvas.
  virtual void ClearCanvas() = 0;
  virtual void SetCanvasSize(double width, double height) = 0;
  virtual void SetScaleLeft(double value) = 0;
  // Width in pixels.
  virtual void SetPen(Rgb colour, double width, PenStyle style) = 0;
  virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
  virtual void DrawRect(double x1, double y1, double x2, double y2, bool filled) = 0;
  virtual void DrawRectColour(double x1, double y1, double x2, double y2, Rgb colour, bool filled) = 0;
  virtual void DrawCircle(double cx, double cy, double radius) = 0;
  // A file as a record or the theme names it ("\Pbms\sectpic.prbm", "logo.png"); one that cannot be had
  // paints nothing.
  virtual void PaintImage(std::string_view file, double x, double y, double width, double height) = 0;
  // The same without smoothing: each pixel of the surface gets that of one pixel of the picture.
  virtual void PaintImageSharp(std::string_view file, double x, double y, double width, double height) {
    PaintImage(file, x, y, width, height);
  }
  virtual void SetFont(const FontSpec& font) = 0;
  // At the top left of the text, in the foreground colour.
  virtual void SetForeground(Rgb colour) = 0;
  virtual void PrintText(double x, double y, std::string_view text) = 0;
  // In the current font.
  virtual double TextWidth(std::string_view text) = 0;

  // Many equal dots at once (the drawn grid): a dot of the pen's colour at each multiple of `step` inside.
  virtual void DrawDots(double left, double top, double right, double bottom, double step) = 0;

  // Many filled areas of one colour as one primitive (a bar code). Its origin stands on a whole pixel of the
  // device, and a pixel that an area covers in part is as dark as that part is large: scanners measure
  // widths.
  virtual void DrawSymbol(double x, double y, Rgb colour, std::span<const SymbolArea> areas) = 0;

  // The upper layer: the widgets that show the one current object ("lblob(1)" to "lblob(4)", "dot_1" to
  // "dot_8", "ObjL1", "ObjL2", "Lineaviva"), frames ("lnh01", "LineSelectHor01" and their like), column lines
  // ("linecolumn(7)") and guides. A widget is made when it is first named.
  virtual void PlaceWidget(std::string_view name, double left, double top, double width, double height) = 0;
  virtual void ShowWidget(std::string_view name, bool visible) = 0;
  // Where a widget is painted, in the canvas units of the page as it stands at that time; what is painted
  // moves with the widget from then on. ClearCanvas empties it. Good until the next call.
  virtual SurfaceOps& SurfaceOf(std::string_view name) = 0;
  // The words that a widget shows: the tooltip of a grip, the caption of a guide.
  virtual void SetWidgetText(std::string_view name, std::string_view text) = 0;
};

}  // namespace kev
