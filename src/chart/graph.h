// SPDX-License-Identifier: MIT
// How a chart looks, as plain shapes: pure geometry without a painter, so that it can be looked at by tests
// and drawn at any zoom. Lengths are logical pixels at 100 % (15 twips), from the top left corner of the
// chart; who draws at another zoom scales the whole picture, so that texts keep their place in it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "document/object_record.h"
#include "document/text_measurer.h"
#include "surface/surface_ops.h"

namespace kev {

struct ChartPoint {
  double X = 0, Y = 0;
  bool operator==(const ChartPoint&) const = default;
};

struct ChartRect {
  double Left = 0, Top = 0, Right = 0, Bottom = 0;

  double Width() const { return Right - Left; }
  double Height() const { return Bottom - Top; }
  ChartPoint Centre() const { return {(Left + Right) / 2, (Top + Bottom) / 2}; }
  bool operator==(const ChartRect&) const = default;
};

// One colour, or several that run evenly from one side of the shape's bounds to the other.
struct ChartFill {
  enum class Run : std::uint8_t { Down, Across };

  std::vector<Rgb> Colours;  // none fills nothing
  Run Direction = Run::Down;
  double Opacity = 1;
};

struct ChartPolygon {
  std::vector<ChartPoint> Points;
  ChartFill Fill;
  Rgb EdgeColour = 0;
  double EdgeWidth = 0;  // 0 has no edge
};

struct ChartPolyline {
  std::vector<ChartPoint> Points;
  Rgb Colour = 0;
  double Width = 1;
  double Opacity = 1;
  bool Dotted = false;
};

// The rows of BuildBackGround, as many as the painter has.
struct ChartGradient {
  ChartRect Area;
  std::array<int, 6> Ends{};
};

// A file as the record names it, stretched; one that cannot be had shows the area's colour.
struct ChartImage {
  ChartRect Area;
  std::string File;
};

// One line of text in the code page of the template. `At` is its top left corner; it turns clockwise about
// it.
struct ChartText {
  ChartPoint At;
  double Width = 0, Height = 0;  // as measured, not turned
  std::string Text;
  FontSpec Font;  // points at 100 %
  Rgb Colour = 0;
  double Degrees = 0;
};

// The corners of the text's box on the picture, turned.
std::array<ChartPoint, 4> CornersOf(const ChartText& text);

using ChartShape = std::variant<ChartPolygon, ChartPolyline, ChartGradient, ChartImage, ChartText>;

// In the order in which they are painted.
struct ChartPicture {
  double Width = 0, Height = 0;
  std::vector<ChartShape> Shapes;
};

// What is drawn: the texts of the slots (one that is missing counts as its default) and the size.
struct ChartLook {
  std::vector<std::string> Values;
  double Width = 0, Height = 0;  // logical pixels at 100 %

  bool operator==(const ChartLook&) const = default;
};

ChartLook LookOf(const ObjectRecord& record);

// Puts samples where a template names data that only the run knows: six labels for a list that begins with
// "@"; "10,20,30,40,30,10" for the values of a series that begin with "@", are "0,0,0,0,0,0" or empty.
// LayOutChart does it by itself.
ChartLook WithSamples(ChartLook look);

// Never fails: a chart without room, or of senseless values, has fewer shapes. Everything lies inside the
// picture, no two texts overlap and no number is infinite.
ChartPicture LayOutChart(const ChartLook& look, const TextMeasurer& measurer);

}  // namespace kev
