// SPDX-License-Identifier: MIT
// A surface that shows nothing, for what is wanted of a redraw beside its picture.
#pragma once

#include "surface/surface_ops.h"

namespace kev {

class NullSurface final : public SurfaceOps {
 public:
  void ClearCanvas() override {}
  void SetCanvasSize(double, double) override {}
  void SetScaleLeft(double) override {}
  void SetPen(Rgb, double, PenStyle) override {}
  void DrawLine(double, double, double, double) override {}
  void DrawRect(double, double, double, double, bool) override {}
  void DrawRectColour(double, double, double, double, Rgb, bool) override {}
  void DrawCircle(double, double, double) override {}
  void PaintImage(std::string_view, double, double, double, double) override {}
  void SetFont(const FontSpec&) override {}
  void SetForeground(Rgb) override {}
  void PrintText(double, double, std::string_view) override {}
  double TextWidth(std::string_view) override { return 0; }
  void DrawDots(double, double, double, double, double) override {}
  void DrawSymbol(double, double, Rgb, std::span<const SymbolArea>) override {}
  void PlaceWidget(std::string_view, double, double, double, double) override {}
  void ShowWidget(std::string_view, bool) override {}
  SurfaceOps& SurfaceOf(std::string_view) override { return *this; }
  void SetWidgetText(std::string_view, std::string_view) override {}
};

}  // namespace kev
