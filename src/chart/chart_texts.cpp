// SPDX-License-Identifier: MIT
#include "chart/chart_texts.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kev {
namespace {

constexpr double kTwipsPerPixel = 15;
constexpr std::string_view kDots = "...";

struct Range {
  double low, high;
};

Range Shadow(const std::array<ChartPoint, 4>& corners, ChartPoint axis) {
  Range range{INFINITY, -INFINITY};
  for (const ChartPoint& corner : corners) {
    const double at = corner.X * axis.X + corner.Y * axis.Y;
    range = {std::min(range.low, at), std::max(range.high, at)};
  }
  return range;
}

// Whether a line along one of the sides of `box` parts it from the other.
bool Parts(const std::array<ChartPoint, 4>& box, const std::array<ChartPoint, 4>& other) {
  for (const std::size_t next : {std::size_t{1}, std::size_t{3}}) {
    const ChartPoint axis{box[next].X - box[0].X, box[next].Y - box[0].Y};
    const Range a = Shadow(box, axis);
    const Range b = Shadow(other, axis);
    if (a.high <= b.low || b.high <= a.low) return true;
  }
  return false;
}

}  // namespace

double ChartTexts::WidthOf(const ChartTextStyle& style, std::string_view text) const {
  return measurer_.Measure(style.Font, text).Width / kTwipsPerPixel;
}

double ChartTexts::HeightOf(const ChartTextStyle& style) const {
  return measurer_.Measure(style.Font, "0").Height / kTwipsPerPixel;
}

std::string ChartTexts::Elided(const ChartTextStyle& style, std::string_view text, double room) const {
  if (WidthOf(style, text) <= room) return std::string(text);
  const auto fits = [&](std::size_t kept) {
    return WidthOf(style, std::string(text.substr(0, kept)).append(kDots)) <= room;
  };
  std::size_t low = 0, high = text.size();
  while (high - low > 1) {
    const std::size_t middle = (low + high) / 2;
    (fits(middle) ? low : high) = middle;
  }
  if (low == 0) return {};
  std::string kept(text.substr(0, low));
  kept.erase(kept.find_last_not_of(' ') + 1);
  return kept.append(kDots);
}

ChartText ChartTexts::Make(const ChartTextStyle& style, std::string_view text) const {
  return {.At = {},
          .Width = WidthOf(style, text),
          .Height = HeightOf(style),
          .Text = std::string(text),
          .Font = style.Font,
          .Colour = style.Colour};
}

ChartTexts::Box ChartTexts::BoxOf(const ChartText& text) {
  Box box{CornersOf(text), {INFINITY, INFINITY, -INFINITY, -INFINITY}};
  for (const ChartPoint& corner : box.Corners) {
    box.Bounds.Left = std::min(box.Bounds.Left, corner.X);
    box.Bounds.Top = std::min(box.Bounds.Top, corner.Y);
    box.Bounds.Right = std::max(box.Bounds.Right, corner.X);
    box.Bounds.Bottom = std::max(box.Bounds.Bottom, corner.Y);
  }
  return box;
}

bool ChartTexts::Overlap(const Box& a, const Box& b) {
  if (a.Bounds.Right <= b.Bounds.Left || b.Bounds.Right <= a.Bounds.Left) return false;
  if (a.Bounds.Bottom <= b.Bounds.Top || b.Bounds.Bottom <= a.Bounds.Top) return false;
  return !Parts(a.Corners, b.Corners) && !Parts(b.Corners, a.Corners);
}

bool ChartTexts::Place(ChartText text) {
  if (text.Text.empty() || !(text.Width > 0)) return false;
  const Box box = BoxOf(text);
  // Written so that a place that is no number has no room either.
  const bool inside = box.Bounds.Left >= 0 && box.Bounds.Top >= 0 && box.Bounds.Right <= width_ &&
                      box.Bounds.Bottom <= height_;
  if (!inside) return false;
  if (std::any_of(boxes_.begin(), boxes_.end(), [&](const Box& other) { return Overlap(box, other); }))
    return false;
  placed_.push_back(std::move(text));
  boxes_.push_back(box);
  return true;
}

}  // namespace kev
