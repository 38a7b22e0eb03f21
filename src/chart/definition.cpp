// SPDX-License-Identifier: MIT
#include "chart/definition.h"

#include <initializer_list>
#include <unordered_map>
#include <utility>

#include "base/code_page.h"

namespace kev {
namespace {

constexpr std::size_t kPieStart = 11;     // index of Graph_Pie_Color_1
constexpr std::size_t kSeriesStart = 31;  // index of Graph_serie_1_color

struct PlainKey {
  std::string_view key;
  std::string_view defaultValue;
};

constexpr auto kKeysBeforePie = std::to_array<PlainKey>({
    {"Graph_Type", "2D"},
    {"Graph_BackGround", "255,255,255,255,255,255"},
    {"Graph_BackGround_picture", ""},
    {"Graph_AxisColor_1", ""},
    {"Graph_AxisColor_2", ""},
    {"Graph_AxisStyle", "1"},
    {"Graph_Title", ""},
    {"Graph_Layout_Font", ""},
    {"Graph_Layout_FontColor", ""},
    {"Graph_Layout_FontSize", ""},
    {"Graph_Layout_Values", ""},
});

constexpr auto kKeysBehindSeries = std::to_array<PlainKey>({
    {"Graph_series", "1"},
    {"Graph_ShowAxis", "Y"},
    {"Graph_ShowAxisBackGround", "Y"},
    {"Graph_ShowSeriesTitles", ""},
    {"Graph_ShowValuesFont", "Arial"},
    {"Graph_ShowValuesFontColor", "0,0,0"},
    {"Graph_ShowValuesFontSize", "8"},
    {"Graph_Title_FontColor", "0,0,0"},
    {"Graph_Title_Font", "Arial"},
    {"Graph_Title_FontSize", "8"},
    {"Graph_Title_FontBold", "N"},
    {"Graph_Title_FontUnderline", "N"},
    {"Graph_Title_FontItalic", "N"},
});

constexpr std::array<std::string_view, kChartPieColourCount> kPieColours = {
    "255,128,128", "0,102,204",   "204,204,255", "0,0,128",     "255,0,255",   "255,255,0",   "0,255,255",
    "128,0,128",   "128,0,0",     "0,128,128",   "0,0,255",     "0,204,255",   "153,153,255", "153,51,102",
    "255,255,204", "204,255,255", "120,204,0",   "204,128,128", "255,128,200", "100,255,100"};

constexpr std::array<std::string_view, kChartSeriesCount> kSeriesColours = {
    "200,56,17", "108,220,130", "0,150,200", "150,0,140",
    "255,128,0", "255,128,192", "0,128,64",  "128,128,0"};

struct SeriesKey {
  std::string_view suffix;
  std::string_view defaultValue;
};

// In the order of the slots of one series; the colour's default differs from series to series.
constexpr auto kSeriesKeys = std::to_array<SeriesKey>(
    {{"color", ""}, {"format", ""}, {"name", ""}, {"ShowValues", "Y"}, {"type", "Bar"}, {"values", ""}});

std::array<ChartKeyRow, kChartKeyCount> MakeKeys() {
  std::array<ChartKeyRow, kChartKeyCount> keys;
  std::size_t at = 0;
  for (const PlainKey& row : kKeysBeforePie)
    keys[at++] = {std::string(row.key), std::string(row.defaultValue)};
  for (std::size_t n = 0; n < kPieColours.size(); ++n) {
    keys[at++] = {"Graph_Pie_Color_" + std::to_string(n + 1), std::string(kPieColours[n])};
  }
  for (std::size_t n = 0; n < kSeriesColours.size(); ++n) {
    const std::string stem = "Graph_serie_" + std::to_string(n + 1) + "_";
    for (const SeriesKey& row : kSeriesKeys) {
      const std::string_view value = row.suffix == "color" ? kSeriesColours[n] : row.defaultValue;
      keys[at++] = {stem + std::string(row.suffix), std::string(value)};
    }
  }
  for (const PlainKey& row : kKeysBehindSeries)
    keys[at++] = {std::string(row.key), std::string(row.defaultValue)};
  return keys;
}

std::unordered_map<std::string, std::size_t> MakeIndex() {
  std::unordered_map<std::string, std::size_t> index;
  const auto keys = ChartKeys();
  for (std::size_t at = 0; at < keys.size(); ++at)
    index.emplace(CodePage::Default().Upper(keys[at].key), at);
  index.emplace("GRAPH_TITLE_FONTNAME", index.at("GRAPH_TITLE_FONT"));
  return index;
}

// The places of the keys that share a line of a template.
using Line = std::vector<std::size_t>;

std::size_t PlaceOf(std::string_view key) {
  return *ChartKeyIndex(CodePage::Default().Upper(key));
}

Line LineOf(std::initializer_list<std::string_view> keys) {
  Line line;
  for (const std::string_view key : keys)
    line.push_back(PlaceOf(key));
  return line;
}

void AddSeries(std::vector<Line>& lines, int n) {
  const std::string stem = "Graph_serie_" + std::to_string(n) + "_";
  lines.push_back(LineOf({stem + "type", stem + "color"}));
  for (const char* suffix : {"name", "values", "ShowValues"})
    lines.push_back(LineOf({stem + suffix}));
}

void AddPieColours(std::vector<Line>& lines, int first) {
  Line line;
  for (int n = first; n < first + 5; ++n)
    line.push_back(PlaceOf("Graph_Pie_Color_" + std::to_string(n)));
  lines.push_back(std::move(line));
}

// All but the size and the titles of the series.
std::vector<Line> MakeLines() {
  std::vector<Line> lines = {
      LineOf({"Graph_Type"}),
      LineOf({"Graph_Title"}),
      LineOf({"Graph_Title_Font"}),
      LineOf({"Graph_Title_FontSize"}),
      LineOf({"Graph_Title_FontColor"}),
      LineOf({"Graph_Title_FontBold", "Graph_Title_FontUnderline", "Graph_Title_FontItalic"}),
      LineOf({"Graph_AxisStyle", "Graph_AxisColor_1", "Graph_AxisColor_2"}),
      LineOf({"Graph_ShowValuesFont"}),
      LineOf({"Graph_ShowValuesFontSize"}),
      LineOf({"Graph_ShowValuesFontColor"}),
      LineOf({"Graph_series"}),
      LineOf({"Graph_Layout_Font", "Graph_Layout_FontSize", "Graph_Layout_FontColor"}),
      LineOf({"Graph_Layout_Values"}),
      LineOf({"Graph_ShowAxis"}),
      LineOf({"Graph_ShowAxisBackGround"}),
      LineOf({"Graph_BackGround"}),
  };
  for (int n = 1; n <= kChartSeriesCount; ++n)
    AddSeries(lines, n);
  for (int first = 1; first <= kChartPieColourCount; first += 5)
    AddPieColours(lines, first);
  return lines;
}

std::string_view ValueAt(const ObjectRecord& record, std::size_t place) {
  return place < record.ChartValues.size() ? std::string_view(record.ChartValues[place]) : std::string_view{};
}

std::string BlockOf(const ObjectRecord& record, const Line& line) {
  std::size_t size = 0;
  for (const std::size_t place : line)
    size += ChartKeys()[place].key.size() + ValueAt(record, place).size() + 2;
  std::string block;
  block.reserve(size);
  for (const std::size_t place : line) {
    if (!block.empty()) block += ';';
    block.append(ChartKeys()[place].key).append("=").append(ValueAt(record, place));
  }
  return block;
}

static_assert(kKeysBeforePie.size() == kPieStart);
static_assert(kPieStart + kPieColours.size() == kSeriesStart);
static_assert(kSeriesStart + kSeriesColours.size() * kSeriesKeys.size() + kKeysBehindSeries.size() ==
              kChartKeyCount);

}  // namespace

std::span<const ChartKeyRow, kChartKeyCount> ChartKeys() {
  static const std::array<ChartKeyRow, kChartKeyCount> keys = MakeKeys();
  return keys;
}

std::optional<std::size_t> ChartKeyIndex(std::string_view capitals) {
  static const std::unordered_map<std::string, std::size_t> index = MakeIndex();
  const auto found = index.find(std::string(capitals));
  return found == index.end() ? std::nullopt : std::optional(found->second);
}

void ChartDefinition::ResetChartDefaults() {
  Values.resize(kChartSlotCount);
  for (std::size_t at = 0; at < kChartKeyCount; ++at)
    Values[at] = ChartKeys()[at].defaultValue;
  Values.back().clear();
  Width.clear();
  Height.clear();
  Gradient.fill(255);
}

bool ChartDefinition::ReadChartKey(std::string_view capitals, std::string_view value) {
  if (!capitals.starts_with("GRAPH_")) return false;
  if (capitals == "GRAPH_WIDTH") {
    Width = value;
    return true;
  }
  if (capitals == "GRAPH_HEIGHT") {
    Height = value;
    return true;
  }
  const std::optional<std::size_t> at = ChartKeyIndex(capitals);
  if (at) Values[*at] = value;
  return at.has_value();
}

std::vector<std::string> ChartBlocks(const ObjectRecord& record) {
  static const std::vector<Line> lines = MakeLines();
  static const Line gradient = LineOf({"Graph_BackGround"});
  static const Line picture = LineOf({"Graph_BackGround_picture"});
  static const std::size_t titles = PlaceOf("Graph_ShowSeriesTitles");
  std::vector<std::string> blocks = {"Graph_Height=" + std::to_string(record.Height) +
                                     ";Graph_Width=" + std::to_string(record.Width)};
  blocks.reserve(lines.size() + 2);
  const bool hasPicture = !ValueAt(record, picture.front()).empty();
  for (const Line& line : lines)
    blocks.push_back(BlockOf(record, hasPicture && line == gradient ? picture : line));
  blocks.emplace_back(ValueAt(record, titles) == "Y" ? "Graph_ShowSeriesTitles=Y"
                                                     : "Graph_ShowSeriesTitles=N");
  return blocks;
}

}  // namespace kev
