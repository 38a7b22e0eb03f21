// SPDX-License-Identifier: MIT
#include "document/sections.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>

#include "base/numbers.h"
#include "base/reasons.h"
#include "document/band_layout.h"
#include "document/kind_defaults.h"

namespace kev {
namespace {

std::int64_t BodyTop(const ObjectRecord& bar) {
  return std::int64_t{bar.AbsoluteY} + kBarHeight;
}

// Which body holds a place, for every place at once: stretches from top to bottom in which the answer is the
// same.
class BodyIndex {
 public:
  explicit BodyIndex(const Document& document) {
    const std::vector<Edge> edges = EdgesOf(document);
    std::set<int> open;
    for (std::size_t at = 0; at < edges.size();) {
      const std::int64_t y = edges[at].y;
      for (; at < edges.size() && edges[at].y == y; ++at) {
        if (edges[at].opens)
          open.insert(edges[at].row);
        else
          open.erase(edges[at].row);
      }
      stretches_.push_back({y, open.empty() ? 0 : *open.rbegin()});
    }
  }

  // The last row whose body holds y, 0 if none does.
  int LastHolding(std::int64_t y) const {
    const auto below =
        std::upper_bound(stretches_.begin(), stretches_.end(), y,
                         [](std::int64_t place, const Stretch& other) { return place < other.from; });
    return below == stretches_.begin() ? 0 : std::prev(below)->row;
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
  };

  static std::vector<Edge> EdgesOf(const Document& document) {
    std::vector<Edge> edges;
    for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
      const ObjectRecord& bar = document.Objects[row];
      // A body that ends above its top holds nothing.
      if (bar.Kind != ObjectKind::Subsection || bar.EndsAt < 0) continue;
      edges.push_back({BodyTop(bar), row, true});
      edges.push_back({BodyTop(bar) + bar.EndsAt + 1, row, false});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.y < b.y; });
    return edges;
  }

  std::vector<Stretch> stretches_;
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

BandLayout PresentLayout(const Document& document) {
  BandLayout layout;
  // A bar may name an end row that nobody has used yet.
  layout.AbsoluteY.resize(ObjectTable::kLastRow + 1);
  layout.SectionCursorY.resize(ObjectTable::kLastRow + 1);
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    layout.AbsoluteY[At(row)] = record.AbsoluteY;
    layout.SectionCursorY[At(row)] = record.SectionCursorY;
  }
  return layout;
}

// A bar whose end lies outside the table fails like anything else that reaches there.
std::int32_t& PlaceOfEnd(BandLayout& layout, int row) {
  if (row < 0 || row > ObjectTable::kLastRow) throw std::out_of_range(kReasonTooManyObjects);
  return layout.AbsoluteY[At(row)];
}

void LayOutBars(BandLayout& layout, const Document& document, const SortedRows& sorted) {
  std::int64_t running = 0;
  for (const int row : sorted.Rows) {
    const ObjectRecord& bar = document.Objects[row];
    if (bar.Kind != ObjectKind::Section && bar.Kind != ObjectKind::Subsection) continue;
    layout.AbsoluteY[At(row)] = Fit32(running);
    if (bar.EndRow != 0) PlaceOfEnd(layout, bar.EndRow) = Fit32(running + kBarHeight + bar.EndsAt);
    running += std::int64_t{kBarHeight} + bar.EndsAt + kBandGap;
  }
}

}  // namespace

void AssignObjects(Document& document) {
  const BodyIndex bodies(document);
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None || IsBand(record.Kind) || record.KeepOwner != 0) continue;
    const int owner = bodies.LastHolding(record.AbsoluteY);
    if (owner == 0) continue;
    const ObjectRecord& bar = document.Objects[owner];
    record.OwnerName = bar.SectionName;
    record.Y = Fit32(record.AbsoluteY - BodyTop(bar));
  }
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document.Objects[row];
    if (bar.Kind != ObjectKind::Subsection || bar.EndRow == 0) continue;
    ObjectRecord& end = document.Objects[bar.EndRow];
    end.OwnerName = bar.SectionName;
    end.Y = bar.EndsAt;
  }
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
  std::unordered_map<std::string_view, std::vector<int>> byName;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document.Objects[row];
    if (bar.Kind == ObjectKind::Subsection) byName[bar.SectionName].push_back(row);
  }
  std::vector<int> owners(ObjectTable::kLastRow + 1);
  // Most rows follow one of the same owner.
  auto bars = byName.end();
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None || IsBand(record.Kind)) continue;
    if (bars == byName.end() || bars->first != record.OwnerName) bars = byName.find(record.OwnerName);
    if (bars == byName.end()) continue;
    owners[At(row)] = BarHolding(bars->second, layout.AbsoluteY[At(row)], document,
                                 [&](int bar) { return layout.AbsoluteY[At(bar)]; });
  }
  return owners;
}

BandLayout LayOutBands(const Document& document, const SortedRows& sorted) {
  BandLayout layout = PresentLayout(document);
  // Owners are found before the bars move, while bodies and objects still lie where they were.
  const std::vector<int> owners = OwnersIn(document, layout);
  LayOutBars(layout, document, sorted);
  for (const int row : sorted.Rows) {
    const int owner = owners[At(row)];
    if (owner == 0) continue;
    const std::int64_t top = std::int64_t{layout.AbsoluteY[At(owner)]} + kBarHeight;
    layout.AbsoluteY[At(row)] = Fit32(top + document.Objects[row].Y);
    layout.SectionCursorY[At(owner)] =
        std::min(layout.SectionCursorY[At(owner)], document.Objects[owner].EndsAt);
  }
  return layout;
}

void StoreLayout(Document& document, const SortedRows& sorted, const BandLayout& layout) {
  for (const int row : sorted.Rows) {
    ObjectRecord& record = document.Objects[row];
    record.AbsoluteY = layout.AbsoluteY[At(row)];
    record.SectionCursorY = layout.SectionCursorY[At(row)];
  }
}

void NormaliseSubsections(Document& document, const SortedRows& sorted) {
  StoreLayout(document, sorted, LayOutBands(document, sorted));
}

SortedRows DeriveGeometry(Document& document) {
  AssignObjects(document);
  SortedRows sorted = SetSortKeys(document);
  NormaliseSubsections(document, sorted);
  return sorted;
}

}  // namespace kev
