// SPDX-License-Identifier: MIT
// Programs that are measured as processes of their own: the start until the page of a template stands in the
// window, beside a program that shows an empty window of that size; the memory of the program at work; a folder
// of templates checked on the command line, beside reading their bytes.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "base/files.h"
#include "support/process.h"
#include "support/sample_template.h"

namespace kev::bench {
namespace {

// The folders of a user who has started the program before, and a template.
class Home {
 public:
  explicit Home(const std::string& bytes) {
    for (const char* name : {"/temp/Kev/Cache", "/temp/Kev/Temp", "/data/Kev/temp"})
      std::filesystem::create_directories(path_ + name);
    std::ofstream(path_ + "/data/Kev/LASTRV.DAT") << "SHOWWELCOME=0\r\nSHOWQUICKPROPS=0\r\n";
    std::ofstream(path_ + kTemplate, std::ios::binary) << bytes;
  }

  std::vector<std::string> Arguments() const { return {path_, path_ + kTemplate}; }

 private:
  static constexpr const char* kTemplate = "/sample.kev";

  QTemporaryDir folder_;
  std::string path_ = folder_.path().toStdString();
};

void Start(benchmark::State& state, const std::string& program, const std::vector<std::string>& arguments) {
  for ([[maybe_unused]] auto run : state)
    if (OutputOf(program, arguments).value_or("").empty())
      return state.SkipWithError("the program painted nothing");
}

void StartToPage(benchmark::State& state) {
  Start(state, "kevbench_start", Home(SampleTemplate(static_cast<int>(state.range(0)))).Arguments());
}

void StartToPageFloor(benchmark::State& state) {
  Start(state, "kevbench_empty", {});
}

// Beyond a bitmap of the whole canvas, or all of it where no program could hold one.
void MemoryAtWork(benchmark::State& state, const std::string& bytes, bool beyondBitmap) {
  const Home home(bytes);
  for ([[maybe_unused]] auto run : state) {
    std::istringstream told(OutputOf("kevbench_full", home.Arguments()).value_or(""));
    double process = 0, bitmap = 0;
    if (!(told >> process >> bitmap)) return state.SkipWithError("the program told nothing");
    state.counters["peak_kB"] = process - (beyondBitmap ? bitmap : 0);
  }
}

void MemoryOfProcess(benchmark::State& state) {
  MemoryAtWork(state, SampleTemplate(static_cast<int>(state.range(0))), true);
}

void MemoryOfTallPage(benchmark::State& state) {
  MemoryAtWork(state, TallTemplate(static_cast<int>(state.range(0))), false);
}

// --- A folder of templates --------------------------------------------------------------------------------

// Invoices of one page.
class TemplateFolder {
 public:
  explicit TemplateFolder(std::int64_t count) {
    constexpr int kRows = 60;
    const std::string bytes = SampleTemplate(kRows);
    for (std::int64_t n = 0; n < count; ++n) {
      files_.push_back(folder_.filePath(QString::number(n)).toStdString() + ".kev");
      std::ofstream(files_.back(), std::ios::binary) << bytes;
    }
  }

  const std::vector<std::string>& Files() const { return files_; }

 private:
  QTemporaryDir folder_;
  std::vector<std::string> files_;
};

void CheckFolder(benchmark::State& state) {
  const TemplateFolder folder(state.range(0));
  std::vector<std::string> arguments = folder.Files();
  arguments.insert(arguments.begin(), "check");
  for ([[maybe_unused]] auto run : state) {
    const std::string output = OutputOf("kevtool", arguments).value_or("");
    if (std::count(output.begin(), output.end(), '\n') < state.range(0))
      return state.SkipWithError("templates are missing");
  }
}

void CheckFolderFloor(benchmark::State& state) {
  const TemplateFolder folder(state.range(0));
  for ([[maybe_unused]] auto run : state)
    for (const std::string& file : folder.Files())
      benchmark::DoNotOptimize(ReadWholeFile(file));
}

BENCHMARK(StartToPage)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(StartToPageFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(MemoryOfProcess)->Arg(2001)->Unit(benchmark::kMicrosecond)->Iterations(1)->Repetitions(1);
BENCHMARK(MemoryOfTallPage)->Arg(2001)->Unit(benchmark::kMicrosecond)->Iterations(1)->Repetitions(1);
BENCHMARK(CheckFolder)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(CheckFolderFloor)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
