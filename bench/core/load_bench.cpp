// SPDX-License-Identifier: MIT
// Reading a template, beside looking at the same bytes once.
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

// Every line, item and value of the text, found and trimmed and not kept.
std::size_t ScanOnce(std::string_view rest) {
  std::size_t found = 0;
  while (!rest.empty()) {
    std::string_view line = Trim(TakeLine(rest));
    while (!line.empty()) {
      const std::size_t end = line.find_first_of("{;=,}");
      found += Trim(line.substr(0, end)).size();
      line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
  }
  return found;
}

void LoadFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const std::string bytes = SampleTemplate(rows);
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(ScanOnce(bytes));
  CountRows(state, rows);
  CountBytes(state, bytes);
}

BENCHMARK(Load)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
