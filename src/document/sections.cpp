// SPDX-License-Identifier: MIT
#include "document/sections.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <set>
#include <stdexcept>

#include "base/numbers.h"
#include "base/reasons.h"
#include "document/band_layout.h"
#include "document/kind_defaults.h"
#include "document/row_view.h"

namespace kev {
namespace {

std::int64_t BodyTop(const ObjectRecord& bar) {
  return std::int64_t{bar.AbsoluteY} + kBarHeight;
}

// Which body holds a place, for every place at once: stretches from top to bottom in which the answer is the
// same.
class BodyIndex {
 public:
  explicit BodyIndex(RowView rows) {
    const std::vector<Edge> edges = EdgesOf(rows);
    std::set<int> open;
    for (std::size_t at = 0; at < edges.size();) {
      const std::int64_t y = edges[at].y;
      for (; at < edges.size() && edges[at].y == y; ++at) {
        if (edges[at].opens)
          open.insert(edges[at].row);
        else
          open.erase(edges[at].row);
      }
      stretches_.back().end = y;
      stretches_.push_back({y, open.empty() ? 0 : *open.rbegin()});
    }
  }

  // The last row whose body holds y, 0 if none does. Most rows lie where the row before them lies.
  int LastHolding(std::int64_t y) {
    if (y < last_.from || y >= last_.end) last_ = StretchAt(y);
    return last_.row;
  }

 private:
  struct Edge {
    std::int64_t y;
    int row;
    bool opens;
  };
  struct Stretch {
    std::int64_t from;
    int row;
    std::int64_t end = std::numeric_limits<std::int64_t>::max();
  };

  static std::vector<Edge> EdgesOf(RowView rows) {
    std::vector<Edge> edges;
    for (std::size_t row = 1; row < rows.size(); ++row) {
      const ObjectRecord& bar = *rows[row];
      // A body that ends above its top holds nothing.
      if (bar.Kind != ObjectKind::Subsection || bar.EndsAt < 0) continue;
      edges.push_back({BodyTop(bar), static_cast<int>(row), true});
      edges.push_back({BodyTop(bar) + bar.EndsAt + 1, static_cast<int>(row), false});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.y < b.y; });
    return edges;
  }

  Stretch StretchAt(std::int64_t y) const {
    const auto below =
        std::upper_bound(stretches_.begin(), stretches_.end(), y,
                         [](std::int64_t place, const Stretch& other) { return place < other.from; });
    return *std::prev(below);
  }

  // Everything above the first body is a stretch as well.
  std::vector<Stretch> stretches_{{std::numeric_limits<std::int64_t>::min(), 0}};
  Stretch last_{0, 0, 0};
};

// Of bars that share a name the one whose body holds y, else the first.
template <typename Places>
int BarHolding(const std::vector<int>& bars, std::int64_t y, const Document& document,
               const Places& placeOf) {
  if (bars.size() == 1) return bars.front();
  const auto holding = std::find_if(bars.begin(), bars.end(), [&](int bar) {
    const std::int64_t top = std::int64_t{placeOf(bar)} + kBarHeight;
    return y >= top && y <= top + document.Objects[bar].EndsAt;
  });
  return holding == bars.end() ? bars.front() : *holding;
}

std::size_t At(int row) {
  return static_cast<std::size_t>(row);
}

BandLayout PresentLayout(RowView rows) {
  BandLayout layout;
  // A bar may name an end row that nobody has used yet.
  layout.AbsoluteY.resize(ObjectTable::kLastRow + 1);
  layout.SectionCursorY.resize(ObjectTable::kLastRow + 1);
  for (std::size_t row = 1; row < rows.size(); ++row) {
    layout.AbsoluteY[row] = rows[row]->AbsoluteY;
    layout.SectionCursorY[row] = rows[row]->SectionCursorY;
  }
  return layout;
}

// A bar whose end lies outside the table fails like anything else that reaches there.
std::int32_t& PlaceOfEnd(BandLayout& layout, int row) {
  if (row < 0 || row > ObjectTable::kLastRow) throw std::out_of_range(kReasonTooManyObjects);
  return layout.AbsoluteY[At(row)];
}

void LayOutBars(BandLayout& layout, RowView rows, const SortedRows& sorted) {
  std::int64_t running = 0;
  for (const int row : sorted.Rows) {
    const ObjectRecord& bar = *rows[At(row)];
    if (bar.Kind != ObjectKind::Section && bar.Kind != ObjectKind::Subsection) continue;
    layout.AbsoluteY[At(row)] = Fit32(running);
    if (bar.EndRow != 0) PlaceOfEnd(layout, bar.EndRow) = Fit32(running + kBarHeight + bar.EndsAt);
    running += std::int64_t{kBarHeight} + bar.EndsAt + kBandGap;
  }
}

using Rows = std::span<ObjectRecord* const>;

void Assign(Document& document, Rows rows) {
  BodyIndex bodies(rows);
  for (ObjectRecord* const each : rows.subspan(1)) {
    ObjectRecord& record = *each;
    if (record.Kind == ObjectKind::None || IsBand(record.Kind) || record.KeepOwner != 0) continue;
    const int owner = bodies.LastHolding(record.AbsoluteY);
    if (owner == 0) continue;
    const ObjectRecord& bar = *rows[At(owner)];
    if (record.OwnerName != bar.SectionName) record.OwnerName = bar.SectionName;
    record.Y = Fit32(record.AbsoluteY - BodyTop(bar));
  }
  for (const ObjectRecord* const bar : rows.subspan(1)) {
    if (bar->Kind != ObjectKind::Subsection || bar->EndRow == 0) continue;
    ObjectRecord& end = document.Objects[bar->EndRow];
    end.OwnerName = bar->SectionName;
    end.Y = bar->EndsAt;
  }
}

std::vector<int> OwnersOf(const Document& document, RowView rows, const BandLayout& layout) {
  std::unordered_map<std::string_view, std::vector<int>> byName;
  for (std::size_t row = 1; row < rows.size(); ++row) {
    if (rows[row]->Kind == ObjectKind::Subsection)
      byName[rows[row]->SectionName].push_back(static_cast<int>(row));
  }
  std::vector<int> owners(ObjectTable::kLastRow + 1);
  // Most rows follow one of the same owner.
  auto bars = byName.end();
  for (std::size_t row = 1; row < rows.size(); ++row) {
    const ObjectRecord& record = *rows[row];
    if (record.Kind == ObjectKind::None || IsBand(record.Kind)) continue;
    if (bars == byName.end() || bars->first != record.OwnerName) bars = byName.find(record.OwnerName);
    if (bars == byName.end()) continue;
    owners[row] = BarHolding(bars->second, layout.AbsoluteY[row], document,
                             [&](int bar) { return layout.AbsoluteY[At(bar)]; });
  }
  return owners;
}

BandLayout LayOut(const Document& document, RowView rows, const SortedRows& sorted) {
  BandLayout layout = PresentLayout(rows);
  // Owners are found before the bars move, while bodies and objects still lie where they were.
  const std::vector<int> owners = OwnersOf(document, rows, layout);
  LayOutBars(layout, rows, sorted);
  for (const int row : sorted.Rows) {
    const int owner = owners[At(row)];
    if (owner == 0) continue;
    const std::int64_t top = std::int64_t{layout.AbsoluteY[At(owner)]} + kBarHeight;
    layout.AbsoluteY[At(row)] = Fit32(top + rows[At(row)]->Y);
    layout.SectionCursorY[At(owner)] = std::min(layout.SectionCursorY[At(owner)], rows[At(owner)]->EndsAt);
  }
  return layout;
}

void Store(Rows rows, const SortedRows& sorted, const BandLayout& layout) {
  for (const int row : sorted.Rows) {
    rows[At(row)]->AbsoluteY = layout.AbsoluteY[At(row)];
    rows[At(row)]->SectionCursorY = layout.SectionCursorY[At(row)];
  }
}

}  // namespace

void AssignObjects(Document& document) {
  Assign(document, RowsOf(document.Objects));
}

OwnerIndex::OwnerIndex(const Document& document) : document_(document) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document.Objects[row];
    if (bar.Kind != ObjectKind::Subsection) continue;
    byName_[bar.SectionName].push_back(row);
    barOfEnd_.emplace(bar.EndRow, row);
  }
}

int OwnerIndex::OwnerOf(int row) const {
  const ObjectRecord& record = document_.Objects[row];
  if (record.Kind == ObjectKind::EndOfSubsection) {
    const auto bar = barOfEnd_.find(row);
    return bar == barOfEnd_.end() ? 0 : bar->second;
  }
  const auto bars = byName_.find(record.OwnerName);
  if (bars == byName_.end()) return 0;
  return BarHolding(bars->second, record.AbsoluteY, document_,
                    [this](int bar) { return document_.Objects[bar].AbsoluteY; });
}

std::vector<int> OwnersIn(const Document& document, const BandLayout& layout) {
  return OwnersOf(document, RowsOf(document.Objects), layout);
}

BandLayout LayOutBands(const Document& document, const SortedRows& sorted) {
  return LayOut(document, RowsOf(document.Objects), sorted);
}

void StoreLayout(Document& document, const SortedRows& sorted, const BandLayout& layout) {
  Store(RowsOf(document.Objects), sorted, layout);
}

void NormaliseSubsections(Document& document, const SortedRows& sorted) {
  StoreLayout(document, sorted, LayOutBands(document, sorted));
}

SortedRows DeriveGeometry(Document& document) {
  const auto rows = RowsOf(document.Objects);
  Assign(document, rows);
  SortedRows sorted = SetSortKeys(document, rows);
  Store(rows, sorted, LayOut(document, rows, sorted));
  return sorted;
}

}  // namespace kev
