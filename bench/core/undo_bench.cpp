// SPDX-License-Identifier: MIT
// What protects each change: the level of the undo store, and the recovery file with it, beside copying the
// rows and writing the bytes.
#include <filesystem>

#include "app/recovery.h"
#include "base/files.h"
#include "support/sample_template.h"
#include "surface/undo.h"
#include "template/writer.h"

namespace kev::bench {
namespace {

constexpr int kUndoSizes[] = {250, 500, 2001};

void AtUndoSizes(benchmark::internal::Benchmark* benchmark) {
  for (const int rows : kUndoSizes)
    benchmark->Arg(rows);
}

class ScratchFolder {
 public:
  ScratchFolder() : path_((std::filesystem::temp_directory_path() / "kev_undo_bench").string()) {
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

// What an edit changes: one row here and there.
void EditRow(Document& document, int edit) {
  ObjectRecord& record = document.Objects[1 + edit * 37 % document.Objects.LastScanned()];
  record.Width = 1000 + edit % 500;
}

std::vector<ObjectRecord> CopyOfRows(const Document& document) {
  std::vector<ObjectRecord> rows;
  rows.reserve(static_cast<std::size_t>(document.Objects.LastScanned()));
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    rows.push_back(document.Objects[row]);
  return rows;
}

void PushUndo(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  UndoStore store;
  int edit = 0;
  for ([[maybe_unused]] auto run : state) {
    store.Push(document);
    EditRow(document, ++edit);
  }
  CountRows(state, rows);
}

void PushUndoFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  int edit = 0;
  for ([[maybe_unused]] auto run : state) {
    benchmark::DoNotOptimize(CopyOfRows(document));
    EditRow(document, ++edit);
  }
  CountRows(state, rows);
}

void UndoAndRedo(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  UndoStore store;
  for (int edit = 1; edit <= 10; ++edit) {
    store.Push(document);
    EditRow(document, edit);
  }
  for ([[maybe_unused]] auto run : state) {
    store.Undo(document);
    store.Redo(document);
  }
  CountRows(state, rows);
}

void PushUndoWithRecovery(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  const ScratchFolder folder;
  UndoStore store;
  Recovery recovery;
  int edit = 0;
  for ([[maybe_unused]] auto run : state) {
    const ClockTime time{edit / 3600 % 24, edit / 60 % 60, edit % 60};
    if (recovery.Write(folder.Path(), time, "bench.kev", document))
      return state.SkipWithError("cannot write");
    store.Push(document);
    EditRow(document, ++edit);
  }
  recovery.Delete();
  CountRows(state, rows);
}

void PushUndoWithRecoveryFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  WriteReport report;
  const std::string text = TemplateText(document, {}, report);
  const ScratchFolder folder;
  int edit = 0;
  for ([[maybe_unused]] auto run : state) {
    benchmark::DoNotOptimize(CopyOfRows(document));
    if (WriteWholeFile(folder.Path() + "/floor.kev", text)) return state.SkipWithError("cannot write");
    EditRow(document, ++edit);
  }
  CountRows(state, rows);
}

BENCHMARK(PushUndo)->Apply(AtUndoSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(PushUndoFloor)->Apply(AtUndoSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(UndoAndRedo)->Apply(AtUndoSizes)->Unit(benchmark::kMicrosecond);
// The wait for the disk is what the user waits for: wall time.
BENCHMARK(PushUndoWithRecovery)->Apply(AtUndoSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(PushUndoWithRecoveryFloor)->Apply(AtUndoSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
