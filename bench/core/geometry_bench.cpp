// SPDX-License-Identifier: MIT
// The geometry chain behind one move, beside one pass over the rows and a sort.
#include <algorithm>
#include <tuple>
#include <vector>

#include "document/sections.h"
#include "support/sample_template.h"

namespace kev::bench {
namespace {

void Geometry(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document document = OpenedSample(rows);
  const int moved = document.Objects.LastScanned() / 2;
  std::int32_t by = 1;
  for ([[maybe_unused]] auto run : state) {
    by = -by;
    document.Objects[moved].AbsoluteY += by;
    benchmark::DoNotOptimize(DeriveGeometry(document));
  }
  CountRows(state, rows);
}

using Key = std::tuple<std::int32_t, std::int32_t, int>;

// One pass over the rows, and a sort. The place that an expression gives is not worked out.
std::vector<Key> SortedKeys(const Document& document) {
  std::vector<Key> keys;
  keys.reserve(static_cast<std::size_t>(document.Objects.LastScanned()));
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind != ObjectKind::None) keys.emplace_back(record.AbsoluteY, record.Width, row);
  }
  std::sort(keys.begin(), keys.end());
  return keys;
}

void GeometryFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const Document document = OpenedSample(rows);
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(SortedKeys(document));
  CountRows(state, rows);
}

BENCHMARK(Geometry)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(GeometryFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
