// SPDX-License-Identifier: MIT
// A surface that keeps each operation as one line of text: "line 0 10 200 10". Colours are six hexadecimal
// digits.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/numbers.h"
#include "surface/surface_ops.h"

namespace kev::test {

class RecordingSurface : public SurfaceOps {
 public:
  std::vector<std::string> Lines;
  // The areas of each symbol that was drawn.
  std::vector<std::vector<SymbolArea>> Symbols;

  // All lines as one text, and none of them from now on.
  std::string Take() {
    std::string all;
    for (const std::string& line : Lines)
      all += line + '\n';
    Lines.clear();
    return all;
  }
  // Whether some line begins with the text.
  bool Has(std::string_view start) const {
    for (const std::string& line : Lines)
      if (line.starts_with(start)) return true;
    return false;
  }
  // The lines that begin with the word.
  std::vector<std::string> Only(std::string_view word) const {
    std::vector<std::string> found;
    for (const std::string& line : Lines)
      if (line.starts_with(word)) found.push_back(line);
    return found;
  }

  void ClearCanvas() override { Keep("clear", {}); }
  void SetCanvasSize(double width, double height) override { Keep("canvas", {width, height}); }
  void SetScaleLeft(double value) override { Keep("scaleleft", {value}); }
  void SetPen(Rgb colour, double width, PenStyle style) override {
    Keep("pen " + Hex(colour), {width}, style == PenStyle::Dotted ? " dotted" : "");
  }
  void DrawLine(double x1, double y1, double x2, double y2) override { Keep("line", {x1, y1, x2, y2}); }
  void DrawRect(double x1, double y1, double x2, double y2, bool filled) override {
    Keep("rect", {x1, y1, x2, y2}, filled ? " filled" : "");
  }
  void DrawRectColour(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override {
    Keep("rect", {x1, y1, x2, y2}, " " + Hex(colour) + (filled ? " filled" : ""));
  }
  void DrawCircle(double cx, double cy, double radius) override { Keep("circle", {cx, cy, radius}); }
  void PaintImage(std::string_view file, double x, double y, double width, double height) override {
    Keep("image", {x, y, width, height}, " " + std::string(file));
  }
  void PaintImageSharp(std::string_view file, double x, double y, double width, double height) override {
    Keep("sharp", {x, y, width, height}, " " + std::string(file));
  }
  void SetFont(const FontSpec& font) override {
    font_ = font;
    std::string style;
    if (font.Bold) style += " bold";
    if (font.Italic) style += " italic";
    if (font.Strikethrough) style += " struck";
    if (font.Underline) style += " underlined";
    Lines.push_back("font " + font.Name + " " + FormatNumber(font.Size) + style + " cs" + font.CharSet);
  }
  void SetForeground(Rgb colour) override { Lines.push_back("foreground " + Hex(colour)); }
  void PrintText(double x, double y, std::string_view text) override {
    Keep("text", {x, y}, " " + std::string(text));
  }
  double TextWidth(std::string_view text) override { return measurer_.Measure(font_, text).Width; }
  void DrawDots(double left, double top, double right, double bottom, double step) override {
    Keep("dots", {left, top, right, bottom, step});
  }
  // Each area behind a colon: "symbol 720 400 000000: 0 0 10 200: 26 0 56 200".
  void DrawSymbol(double x, double y, Rgb colour, std::span<const SymbolArea> areas) override {
    std::string line = "symbol " + FormatNumber(x) + ' ' + FormatNumber(y) + ' ' + Hex(colour);
    for (const SymbolArea& area : areas) {
      line += ':';
      for (const double edge : {area.Left, area.Top, area.Right, area.Bottom})
        line += ' ' + FormatNumber(edge);
    }
    Lines.push_back(std::move(line));
    Symbols.emplace_back(areas.begin(), areas.end());
  }
  void PlaceWidget(std::string_view name, double left, double top, double width, double height) override {
    Keep("place " + std::string(name), {left, top, width, height});
  }
  void ShowWidget(std::string_view name, bool visible) override {
    Lines.push_back((visible ? "show " : "hide ") + std::string(name));
  }
  // What follows goes to the widget; the surface is the same.
  SurfaceOps& SurfaceOf(std::string_view name) override {
    Lines.push_back("on " + std::string(name));
    return *this;
  }
  void SetWidgetText(std::string_view name, std::string_view text) override {
    Lines.push_back("say " + std::string(name) + " " + std::string(text));
  }

 private:
  static std::string Hex(Rgb colour) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%06X", static_cast<unsigned>(colour & 0xFFFFFFU));
    return digits;
  }
  void Keep(std::string line, std::initializer_list<double> numbers, std::string_view tail = {}) {
    for (const double number : numbers)
      line += ' ' + FormatNumber(number);
    Lines.push_back(line.append(tail));
  }

  FontSpec font_;
  BuiltInMeasurer measurer_;
};

}  // namespace kev::test
