// SPDX-License-Identifier: MIT
// Checking a large file of sample data, beside reading its lines and doing nothing with them. An object is a
// thousand lines.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "data/sample_survey.h"
#include "support/memory.h"

namespace kev::bench {
namespace {

constexpr int kLinesOfAnObject = 1000;

class SampleFile {
 public:
  explicit SampleFile(std::int64_t objects)
      : path_(std::filesystem::temp_directory_path() / ("kevbench" + std::to_string(objects) + ".kex")) {
    std::ofstream file(path_, std::ios::binary);
    file << "TEMPLATE=bench.kev\r\n";
    for (std::int64_t line = 1; line < objects * kLinesOfAnObject; ++line) {
      if (line % 20 == 1) {
        file << "|ORDERS|" << line << "|A customer of ours|12 Some Street|Some Town|2024-02-29|\r\n";
      } else {
        file << "|ITEMS|" << line << "|hexagon bolt M8 x 40|25|0.42|10.50|\r\n";
      }
    }
  }
  ~SampleFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  SampleFile(const SampleFile&) = delete;
  SampleFile& operator=(const SampleFile&) = delete;

  std::string Path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

template <typename Work>
void RunOn(benchmark::State& state, const Work& work) {
  const SampleFile file(state.range(0));
  state.counters["peak_kB"] = PeakOf([&] { work(file.Path()); });
  for ([[maybe_unused]] auto run : state)
    work(file.Path());
  state.SetBytesProcessed(static_cast<std::int64_t>(std::filesystem::file_size(file.Path())) *
                          state.iterations());
}

void CheckSample(benchmark::State& state) {
  RunOn(state, [](const std::string& path) { benchmark::DoNotOptimize(CheckSampleFile(path)); });
}

void SurveySample(benchmark::State& state) {
  RunOn(state, [](const std::string& path) {
    benchmark::DoNotOptimize(SurveySampleFile(path, CodePage::Default()));
  });
}

// As anybody would read the lines of a file.
void SampleFloor(benchmark::State& state) {
  RunOn(state, [](const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::size_t bytes = 0;
    for (std::string line; std::getline(file, line);)
      bytes += line.size();
    benchmark::DoNotOptimize(bytes);
  });
}

// With the reader that the check itself uses.
void SampleReaderFloor(benchmark::State& state) {
  RunOn(state, [](const std::string& path) {
    Result<LineReader> lines = LineReader::Open(path);
    std::size_t bytes = 0;
    while (lines && lines->Next())
      bytes += lines->Line().size();
    benchmark::DoNotOptimize(bytes);
  });
}

BENCHMARK(CheckSample)->Arg(250)->Arg(2001)->Unit(benchmark::kMicrosecond);
BENCHMARK(SurveySample)->Arg(250)->Arg(2001)->Unit(benchmark::kMicrosecond);
BENCHMARK(SampleFloor)->Arg(250)->Arg(2001)->Unit(benchmark::kMicrosecond);
BENCHMARK(SampleReaderFloor)->Arg(250)->Arg(2001)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
