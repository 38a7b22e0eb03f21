// SPDX-License-Identifier: MIT
// The memory of an open document, and of one whose undo store is full.
#include <optional>

#include "support/memory.h"
#include "support/sample_template.h"
#include "surface/undo.h"

namespace kev::bench {
namespace {

void OpenDocument(benchmark::State& state) {
  for ([[maybe_unused]] auto run : state) {
    std::optional<Document> document;
    state.counters["peak_kB"] = PeakOf([&] { document = OpenedSample(static_cast<int>(state.range(0))); });
  }
}

// Each level holds one change somewhere else.
void FullUndoStore(benchmark::State& state) {
  for ([[maybe_unused]] auto run : state) {
    Document document = OpenedSample(static_cast<int>(state.range(0)));
    UndoStore store;
    state.counters["peak_kB"] = PeakOf([&] {
      for (int edit = 0; edit <= 2 * UndoStore::kLastLevel; ++edit) {
        store.Push(document);
        document.Objects[1 + edit * 97 % document.Objects.LastScanned()].Width += 1;
      }
    });
  }
}

// Each level holds a change of every row, so that none can be shared.
void UndoStoreOfGroups(benchmark::State& state) {
  for ([[maybe_unused]] auto run : state) {
    Document document = OpenedSample(static_cast<int>(state.range(0)));
    UndoStore store;
    state.counters["peak_kB"] = PeakOf([&] {
      for (int edit = 0; edit <= UndoStore::kLastLevel; ++edit) {
        store.Push(document);
        for (int row = 1; row <= document.Objects.LastScanned(); ++row)
          document.Objects[row].Width += 1;
      }
    });
  }
}

BENCHMARK(OpenDocument)->Arg(2001)->Unit(benchmark::kMicrosecond)->Iterations(1);
BENCHMARK(FullUndoStore)->Arg(2001)->Unit(benchmark::kMicrosecond)->Iterations(1);
BENCHMARK(UndoStoreOfGroups)->Arg(2001)->Unit(benchmark::kMicrosecond)->Iterations(1);

}  // namespace
}  // namespace kev::bench
