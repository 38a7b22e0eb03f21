// SPDX-License-Identifier: MIT
// Looks of charts for tests, and what can be asked of the shapes that come out.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "chart/definition.h"
#include "chart/graph.h"

namespace kev::test {

inline ChartLook LookWith(std::initializer_list<std::pair<std::string_view, std::string>> values,
                          double width = 480, double height = 240) {
  ChartLook look{ChartDefinition().Values, width, height};
  for (const auto& [key, value] : values)
    look.Values[*ChartKeyIndex(CodePage::Default().Upper(key))] = value;
  return look;
}

template <typename Shape>
std::vector<Shape> Only(const ChartPicture& picture) {
  std::vector<Shape> some;
  for (const ChartShape& shape : picture.Shapes)
    if (const Shape* one = std::get_if<Shape>(&shape)) some.push_back(*one);
  return some;
}

inline std::vector<std::string> TextsOf(const ChartPicture& picture) {
  std::vector<std::string> texts;
  for (const ChartText& text : Only<ChartText>(picture))
    texts.push_back(text.Text);
  return texts;
}

inline std::vector<ChartPolygon> FilledWith(const ChartPicture& picture, Rgb colour) {
  std::vector<ChartPolygon> some = Only<ChartPolygon>(picture);
  std::erase_if(some, [&](const ChartPolygon& polygon) {
    return polygon.Fill.Colours.size() != 1 || polygon.Fill.Colours.front() != colour;
  });
  return some;
}

inline ChartRect BoundsOf(const std::vector<ChartPoint>& points) {
  ChartRect bounds{points.front().X, points.front().Y, points.front().X, points.front().Y};
  for (const ChartPoint& point : points) {
    bounds.Left = std::min(bounds.Left, point.X);
    bounds.Top = std::min(bounds.Top, point.Y);
    bounds.Right = std::max(bounds.Right, point.X);
    bounds.Bottom = std::max(bounds.Bottom, point.Y);
  }
  return bounds;
}

}  // namespace kev::test
