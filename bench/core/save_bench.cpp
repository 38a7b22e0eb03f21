// SPDX-License-Identifier: MIT
// Saving a document, to memory and to the disk, beside writing the same bytes.
#include <filesystem>

#include "base/files.h"
#include "support/sample_template.h"
#include "template/writer.h"

namespace kev::bench {
namespace {

// A file that is there for one benchmark.
class ScratchFile {
 public:
  ScratchFile() : path_((std::filesystem::temp_directory_path() / "kev_save_bench.kev").string()) {}
  ~ScratchFile() { DeleteFileIfThere(path_); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

std::string TextOf(Document& document) {
  WriteReport report;
  return TemplateText(document, {}, report);
}

void SaveToMemory(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(TextOf(document));
  CountRows(state, rows);
}

// Line by line into a text that grows, as the writer makes it.
void SaveToMemoryFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  const std::string text = TextOf(document);
  for ([[maybe_unused]] auto run : state) {
    std::string copy;
    for (std::string_view rest = text; !rest.empty();) {
      const std::size_t end = rest.find('\n') + 1;
      copy.append(rest.substr(0, end));
      rest.remove_prefix(end);
    }
    benchmark::DoNotOptimize(copy);
  }
  CountRows(state, rows);
}

void SaveToDisk(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  const ScratchFile file;
  for ([[maybe_unused]] auto run : state) {
    if (WriteTemplate(file.Path(), document, {}).Failure) return state.SkipWithError("cannot write");
  }
  CountRows(state, rows);
}

void SaveToDiskFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  const std::string text = TextOf(document);
  const ScratchFile file;
  for ([[maybe_unused]] auto run : state) {
    if (WriteWholeFile(file.Path(), text)) return state.SkipWithError("cannot write");
  }
  CountRows(state, rows);
}

BENCHMARK(SaveToMemory)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveToMemoryFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
// The wait for the disk is what the user waits for: wall time.
BENCHMARK(SaveToDisk)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(SaveToDiskFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
