// SPDX-License-Identifier: MIT
// A folder of templates checked as `kevtool check` does it, beside reading their bytes. An object is a
// template.
#include <filesystem>
#include <string>
#include <vector>

#include "base/files.h"
#include "document/text_measurer.h"
#include "support/sample_template.h"
#include "template/packed.h"
#include "template/reader.h"
#include "template/template_check.h"

namespace kev::bench {
namespace {

// An invoice of one page.
constexpr int kRowsOfATemplate = 60;

class TemplateFolder {
 public:
  explicit TemplateFolder(int count)
      : path_(std::filesystem::temp_directory_path() / ("kevbench_check" + std::to_string(count))) {
    std::filesystem::create_directories(path_);
    const std::string bytes = SampleTemplate(kRowsOfATemplate);
    for (int n = 0; n < count; ++n) {
      files_.push_back((path_ / (std::to_string(n) + ".kev")).string());
      if (WritePlainFile(files_.back(), bytes)) std::abort();
    }
  }
  ~TemplateFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemplateFolder(const TemplateFolder&) = delete;
  TemplateFolder& operator=(const TemplateFolder&) = delete;

  const std::vector<std::string>& Files() const { return files_; }

 private:
  std::filesystem::path path_;
  std::vector<std::string> files_;
};

void CheckTemplates(benchmark::State& state) {
  const TemplateFolder folder(static_cast<int>(state.range(0)));
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  for ([[maybe_unused]] auto run : state) {
    for (const std::string& file : folder.Files()) {
      const Result<std::string> bytes = ReadPlainTemplate(file);
      if (!bytes) return state.SkipWithError("cannot read");
      benchmark::DoNotOptimize(CheckTemplateBytes(*bytes));
      benchmark::DoNotOptimize(ReadTemplateBytes(*bytes, {measurer, pictures}));
    }
  }
  CountRows(state, static_cast<int>(state.range(0)));
}

void CheckTemplatesFloor(benchmark::State& state) {
  const TemplateFolder folder(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] auto run : state) {
    for (const std::string& file : folder.Files())
      benchmark::DoNotOptimize(ReadWholeFile(file));
  }
  CountRows(state, static_cast<int>(state.range(0)));
}

BENCHMARK(CheckTemplates)->Arg(250)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(CheckTemplatesFloor)->Arg(250)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
