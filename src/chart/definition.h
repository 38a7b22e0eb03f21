// SPDX-License-Identifier: MIT
// The whole appearance of a chart: one text for each Graph_ key. The keys stand in template files, in the
// slots of a CHART record and in the working block that the reader fills and the wizard edits, with one
// meaning in all three.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document/object_record.h"

namespace kev {

// Slots 1 to 92 hold keys, slot 93 is carried with a record and holds nothing. Slot n is the
// value at index n - 1.
inline constexpr std::size_t kChartKeyCount = 92;
inline constexpr std::size_t kChartSlotCount = 93;
inline constexpr int kChartSeriesCount = 8;
inline constexpr int kChartPieColourCount = 20;

struct ChartKeyRow {
  std::string key;  // as it is written
  std::string defaultValue;
};

// In the order of the slots.
std::span<const ChartKeyRow, kChartKeyCount> ChartKeys();

// The index of a key's value, in capitals; also understands the forms that are read and never written.
std::optional<std::size_t> ChartKeyIndex(std::string_view capitals);

struct ChartDefinition {
  std::vector<std::string> Values;  // kChartSlotCount texts
  // Not slots: the record's Width and Height, in twips, as text.
  std::string Width;
  std::string Height;
  // The two ends of the background's gradient while it is composed.
  std::array<int, 6> Gradient;

  ChartDefinition() { ResetChartDefaults(); }
  void ResetChartDefaults();
  // False for a key that is none of a chart's.
  bool ReadChartKey(std::string_view capitals, std::string_view value);
};

// The blocks of a chart as a template holds them, each the text between the delimiters of one line. The line
// that builds the chart from them is not among them.
std::vector<std::string> ChartBlocks(const ObjectRecord& record);

}  // namespace kev
