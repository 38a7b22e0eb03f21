// SPDX-License-Identifier: MIT
// The geometry chain that runs behind every change, beside sorting the same positions.
#include <algorithm>
#include <tuple>
#include <vector>

#include "base/numbers.h"
#include "document/position.h"
#include "document/sections.h"
#include "support/sample_template.h"

namespace kev::bench {
namespace {

void Geometry(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(DeriveGeometry(document));
  CountRows(state, rows);
}

using Key = std::tuple<std::int32_t, std::int32_t, int>;

std::vector<Key> KeysOf(const Document& document) {
  std::vector<Key> keys;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    keys.emplace_back(record.AbsoluteY, ToInt32(PositionOrZero(record.XValue, document.Columns)), row);
  }
  return keys;
}

void GeometryFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const std::vector<Key> keys = KeysOf(OpenedSample(rows));
  for ([[maybe_unused]] auto run : state) {
    std::vector<Key> sorted = keys;
    std::sort(sorted.begin(), sorted.end());
    benchmark::DoNotOptimize(sorted);
  }
  CountRows(state, rows);
}

BENCHMARK(Geometry)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(GeometryFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
