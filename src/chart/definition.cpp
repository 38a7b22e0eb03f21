// SPDX-License-Identifier: MIT
#include "chart/definition.h"

#include <algorithm>
#include <unordered_map>

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

// The keys that share a line of a template, by their places among the slots.
class BlockBuilder {
 public:
  explicit BlockBuilder(const ObjectRecord& record) : record_(record) {}

  void Line(std::initializer_list<std::string_view> keys) {
    std::string block;
    for (const std::string_view key : keys)
      Add(block, std::string(key));
    blocks_.push_back(std::move(block));
  }
  void Series(int n) {
    const std::string stem = "Graph_serie_" + std::to_string(n) + "_";
    Line({stem + "type", stem + "color"});
    Line({stem + "name"});
    Line({stem + "values"});
    Line({stem + "ShowValues"});
  }
  void PieColours(int first) {
    std::string block;
    for (int n = first; n < first + 5; ++n)
      Add(block, "Graph_Pie_Color_" + std::to_string(n));
    blocks_.push_back(std::move(block));
  }
  void Text(std::string block) { blocks_.push_back(std::move(block)); }

  std::string Value(std::string_view key) const {
    const std::size_t at = *ChartKeyIndex(CodePage::Default().Upper(key));
    return at < record_.ChartValues.size() ? record_.ChartValues[at] : std::string();
  }
  std::vector<std::string> Take() { return std::move(blocks_); }

 private:
  void Add(std::string& block, const std::string& key) const {
    if (!block.empty()) block += ';';
    block += key + "=" + Value(key);
  }

  const ObjectRecord& record_;
  std::vector<std::string> blocks_;
};

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
  Values.clear();
  for (const ChartKeyRow& row : ChartKeys())
    Values.push_back(row.defaultValue);
  Values.resize(kChartSlotCount);
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
  BlockBuilder builder(record);
  builder.Text("Graph_Height=" + std::to_string(record.Height) +
               ";Graph_Width=" + std::to_string(record.Width));
  builder.Line({"Graph_Type"});
  builder.Line({"Graph_Title"});
  builder.Line({"Graph_Title_Font"});
  builder.Line({"Graph_Title_FontSize"});
  builder.Line({"Graph_Title_FontColor"});
  builder.Line({"Graph_Title_FontBold", "Graph_Title_FontUnderline", "Graph_Title_FontItalic"});
  builder.Line({"Graph_AxisStyle", "Graph_AxisColor_1", "Graph_AxisColor_2"});
  builder.Line({"Graph_ShowValuesFont"});
  builder.Line({"Graph_ShowValuesFontSize"});
  builder.Line({"Graph_ShowValuesFontColor"});
  builder.Line({"Graph_series"});
  builder.Line({"Graph_Layout_Font", "Graph_Layout_FontSize", "Graph_Layout_FontColor"});
  builder.Line({"Graph_Layout_Values"});
  builder.Line({"Graph_ShowAxis"});
  builder.Line({"Graph_ShowAxisBackGround"});
  builder.Line(
      {builder.Value("Graph_BackGround_picture").empty() ? "Graph_BackGround" : "Graph_BackGround_picture"});
  for (int n = 1; n <= kChartSeriesCount; ++n)
    builder.Series(n);
  for (int first = 1; first <= kChartPieColourCount; first += 5)
    builder.PieColours(first);
  const bool titles = builder.Value("Graph_ShowSeriesTitles") == "Y";
  builder.Text(titles ? "Graph_ShowSeriesTitles=Y" : "Graph_ShowSeriesTitles=N");
  return builder.Take();
}

}  // namespace kev
