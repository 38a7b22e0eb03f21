// SPDX-License-Identifier: MIT
#include "chart/legend.h"

#include <algorithm>
#include <utility>

#include "chart/shades.h"

namespace kev {
namespace {

constexpr double kSwatchGap = 6;
constexpr double kEntryGap = 18;
constexpr double kRowPitch = 1.35;  // heights of a text
constexpr double kMostShare = 0.3;  // of the height, below; of the width, beside
constexpr double kMostBesideShare = 0.42;
constexpr double kPlotGap = 10;

struct Sizes {
  double text, swatch, row;

  explicit Sizes(const ChartWork& work)
      : text(work.Texts.HeightOf(work.Data.LabelStyle)), swatch(text * 0.66), row(text * kRowPitch) {}
  double Before() const { return swatch + kSwatchGap; }
};

struct Item {
  const LegendEntry* entry;
  std::string name;
  double width;  // with its swatch
};

std::vector<Item> ItemsOf(const ChartWork& work, const std::vector<LegendEntry>& entries, double room) {
  const Sizes sizes(work);
  std::vector<Item> items;
  for (const LegendEntry& entry : entries) {
    std::string name = work.Texts.Elided(work.Data.LabelStyle, entry.Name, room - sizes.Before());
    if (name.empty()) continue;
    const double width = sizes.Before() + work.Texts.WidthOf(work.Data.LabelStyle, name);
    items.push_back({&entry, std::move(name), width});
  }
  return items;
}

void DrawEntry(const ChartWork& work, const Item& item, double left, double top) {
  const Sizes sizes(work);
  ChartText text = work.Texts.Make(work.Data.LabelStyle, item.name);
  text.At = {left + sizes.Before(), top + (sizes.row - sizes.text) / 2};
  if (!work.Texts.Place(std::move(text))) return;
  const double middle = top + sizes.row / 2;
  const ChartRect swatch{left, middle - sizes.swatch / 2, left + sizes.swatch, middle + sizes.swatch / 2};
  if (!item.entry->IsLine) return work.Shapes.push_back(Rectangle(swatch, Plain(item.entry->Colour)));
  work.Shapes.push_back(Segment({swatch.Left, middle}, {swatch.Right, middle}, item.entry->Colour, 2.25));
  ChartPolygon dot = Ellipse(swatch.Centre(), sizes.swatch * 0.28, sizes.swatch * 0.28, Plain(kChartWhite));
  dot.EdgeColour = item.entry->Colour;
  dot.EdgeWidth = 1.6;
  work.Shapes.push_back(std::move(dot));
}

struct Row {
  std::vector<Item> items;
  double width = 0;
};

std::vector<Row> RowsOf(std::vector<Item> items, double room) {
  std::vector<Row> rows;
  for (Item& item : items) {
    const bool fits = !rows.empty() && rows.back().width + kEntryGap + item.width <= room;
    if (!fits) rows.emplace_back();
    Row& row = rows.back();
    row.width += item.width + (row.items.empty() ? 0 : kEntryGap);
    row.items.push_back(std::move(item));
  }
  return rows;
}

}  // namespace

ChartRect DrawLegendBelow(const ChartWork& work, const std::vector<LegendEntry>& entries, ChartRect room) {
  const Sizes sizes(work);
  std::vector<Row> rows = RowsOf(ItemsOf(work, entries, room.Width()), room.Width());
  const auto most = static_cast<std::size_t>(std::max(0.0, room.Height() * kMostShare / sizes.row));
  rows.resize(std::min(rows.size(), most));
  if (rows.empty()) return room;
  double top = room.Bottom - sizes.row * static_cast<double>(rows.size());
  const ChartRect left{room.Left, room.Top, room.Right, top - kPlotGap * 0.6};
  for (const Row& row : rows) {
    double x = room.Left + (room.Width() - row.width) / 2;
    for (const Item& item : row.items) {
      DrawEntry(work, item, x, top);
      x += item.width + kEntryGap;
    }
    top += sizes.row;
  }
  return left;
}

ChartRect DrawLegendBeside(const ChartWork& work, const std::vector<LegendEntry>& entries, ChartRect room) {
  const Sizes sizes(work);
  std::vector<Item> items = ItemsOf(work, entries, room.Width() * kMostBesideShare);
  const auto most = static_cast<std::size_t>(std::max(0.0, room.Height() / sizes.row));
  items.resize(std::min(items.size(), most));
  if (items.empty()) return room;
  double widest = 0;
  for (const Item& item : items)
    widest = std::max(widest, item.width);
  double top = room.Top + (room.Height() - sizes.row * static_cast<double>(items.size())) / 2;
  for (const Item& item : items) {
    DrawEntry(work, item, room.Right - widest, top);
    top += sizes.row;
  }
  return {room.Left, room.Top, room.Right - widest - kPlotGap * 1.6, room.Bottom};
}

}  // namespace kev
