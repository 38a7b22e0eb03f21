// SPDX-License-Identifier: MIT
// Reading a template, beside splitting the same bytes into lines and items.
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "document/text_measurer.h"
#include "support/sample_template.h"
#include "template/reader.h"

namespace kev::bench {
namespace {

void CountBytes(benchmark::State& state, const std::string& bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes.size()) * state.iterations());
}

void Load(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const std::string bytes = SampleTemplate(rows);
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  const ReadServices services{measurer, pictures};
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(ReadTemplateBytes(bytes, services));
  CountRows(state, rows);
  CountBytes(state, bytes);
}

struct Pieces {
  std::vector<std::string_view> lines;
  std::vector<std::string_view> items;
};

// Where the lines and the items of the text are, and nothing of what they mean.
Pieces PiecesOf(std::string_view rest) {
  Pieces pieces;
  while (!rest.empty()) {
    std::string_view line = pieces.lines.emplace_back(Trim(TakeLine(rest)));
    while (!line.empty()) {
      const std::size_t end = line.find_first_of("{;=,}");
      pieces.items.push_back(Trim(line.substr(0, end)));
      line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
  }
  return pieces;
}

void LoadFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const std::string bytes = SampleTemplate(rows);
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(PiecesOf(bytes));
  CountRows(state, rows);
  CountBytes(state, bytes);
}

BENCHMARK(Load)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
