// SPDX-License-Identifier: MIT
#include "document/sections.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <set>
#include <stdexcept>
#include <utility>

#include "base/numbers.h"
#include "base/reasons.h"
#include "document/band_layout.h"
#include "document/kind_defaults.h"
#include "document/row_view.h"

namespace kev {
namespace {

std::size_t At(int row) {
  return static_cast<std::size_t>(row);
}

std::int64_t BodyTop(const ObjectRecord& bar) {
  return std::int64_t{bar.AbsoluteY} + kBarHeight;
}

// Both ends of a body belong to it.
bool HoldsPlace(std::int64_t top, std::int32_t endsAt, std::int64_t y) {
  return y >= top && y <= top + endsAt;
}

// The bars of all subsections.
class Bars {
 public:
  explicit Bars(RowView rows) {
    for (std::size_t row = 1; row < rows.size(); ++row) {
      if (rows[row]->Kind != ObjectKind::Subsection) continue;
      rows_.push_back(static_cast<int>(row));
      byName_[rows[row]->SectionName].push_back(static_cast<int>(row));
    }
  }

  const std::vector<int>& Rows() const { return rows_; }
  // Nothing where no bar has the name.
  const std::vector<int>* Named(std::string_view name) const {
    const auto bars = byName_.find(name);
    return bars == byName_.end() ? nullptr : &bars->second;
  }
  bool NamesAreUnique() const { return byName_.size() == rows_.size(); }

 private:
  std::vector<int> rows_;
  std::unordered_map<std::string_view, std::vector<int>> byName_;
};

// Which body holds a place, for every place at once: stretches from top to bottom in which the answer is the
// same.
class BodyIndex {
 public:
  BodyIndex(RowView rows, const Bars& bars) {
    const std::vector<Edge> edges = EdgesOf(rows, bars);
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

  static std::vector<Edge> EdgesOf(RowView rows, const Bars& bars) {
    std::vector<Edge> edges;
    for (const int row : bars.Rows()) {
      const ObjectRecord& bar = *rows[At(row)];
      // A body that ends above its top holds nothing.
      if (bar.EndsAt < 0) continue;
      edges.push_back({BodyTop(bar), row, true});
      edges.push_back({BodyTop(bar) + bar.EndsAt + 1, row, false});
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
    return HoldsPlace(std::int64_t{placeOf(bar)} + kBarHeight, document.Objects[bar].EndsAt, y);
  });
  return holding == bars.end() ? bars.front() : *holding;
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

using Rows = std::span<ObjectRecord* const>;

// Where rows come to stand: in a layout of their own, or in the rows themselves.
struct InLayout {
  BandLayout& layout;

  std::int32_t& Place(int row) { return layout.AbsoluteY[At(row)]; }
  std::int32_t& Fill(int row) { return layout.SectionCursorY[At(row)]; }
};

struct InRows {
  Rows rows;
  std::int32_t nowhere = 0;  // for the end of a bar that nobody has used yet

  std::int32_t& Place(int row) {
    const bool isUsed = At(row) < rows.size() && rows[At(row)]->Kind != ObjectKind::None;
    return isUsed ? rows[At(row)]->AbsoluteY : nowhere;
  }
  std::int32_t& Fill(int row) { return rows[At(row)]->SectionCursorY; }
};

template <typename Places>
void LayOutBars(Places& places, RowView rows, const SortedRows& sorted) {
  std::int64_t running = 0;
  for (const int row : sorted.Rows) {
    const ObjectRecord& bar = *rows[At(row)];
    if (bar.Kind != ObjectKind::Section && bar.Kind != ObjectKind::Subsection) continue;
    places.Place(row) = Fit32(running);
    // A bar whose end lies outside the table fails like anything else that reaches there.
    if (bar.EndRow < 0 || bar.EndRow > ObjectTable::kLastRow) throw std::out_of_range(kReasonTooManyObjects);
    if (bar.EndRow != 0) places.Place(bar.EndRow) = Fit32(running + kBarHeight + bar.EndsAt);
    running += std::int64_t{kBarHeight} + bar.EndsAt + kBandGap;
  }
}

// The owners are those of before the bars move, while bodies and objects still lie where they were.
template <typename Places>
void LayOutRows(Places& places, RowView rows, const SortedRows& sorted, const std::vector<int>& owners) {
  LayOutBars(places, rows, sorted);
  for (const int row : sorted.Rows) {
    const int owner = owners[At(row)];
    if (owner == 0) continue;
    const std::int64_t top = std::int64_t{places.Place(owner)} + kBarHeight;
    places.Place(row) = Fit32(top + rows[At(row)]->Y);
    places.Fill(owner) = std::min(places.Fill(owner), rows[At(owner)]->EndsAt);
  }
}

// Gives the bar of each row that was given to one, 0 for the others.
std::vector<int> Assign(Document& document, Rows rows, const Bars& bars) {
  std::vector<int> assigned(ObjectTable::kLastRow + 1);
  BodyIndex bodies(rows, bars);
  for (std::size_t row = 1; row < rows.size(); ++row) {
    ObjectRecord& record = *rows[row];
    if (record.Kind == ObjectKind::None || IsBand(record.Kind) || record.KeepOwner != 0) continue;
    const int owner = bodies.LastHolding(record.AbsoluteY);
    if (owner == 0) continue;
    const ObjectRecord& bar = *rows[At(owner)];
    if (record.OwnerName != bar.SectionName) record.OwnerName = bar.SectionName;
    record.Y = Fit32(record.AbsoluteY - BodyTop(bar));
    assigned[row] = owner;
  }
  for (const int row : bars.Rows()) {
    const ObjectRecord& bar = *rows[At(row)];
    if (bar.EndRow == 0) continue;
    ObjectRecord& end = document.Objects[bar.EndRow];
    end.OwnerName = bar.SectionName;
    end.Y = bar.EndsAt;
    assigned[At(bar.EndRow)] = 0;
  }
  return assigned;
}

// The bar of each row by its name; `owners` holds those that are known already.
template <typename PlaceOf>
std::vector<int> OwnersOf(const Document& document, RowView rows, const Bars& bars, const PlaceOf& placeOf,
                          std::vector<int> owners = std::vector<int>(ObjectTable::kLastRow + 1)) {
  // Most rows follow one of the same owner.
  std::string_view name;
  const std::vector<int>* named = bars.Named(name);
  for (std::size_t row = 1; row < rows.size(); ++row) {
    const ObjectRecord& record = *rows[row];
    if (owners[row] != 0 || record.Kind == ObjectKind::None || IsBand(record.Kind)) continue;
    if (record.OwnerName != name) named = bars.Named(name = record.OwnerName);
    if (named == nullptr) continue;
    owners[row] = BarHolding(*named, placeOf(static_cast<int>(row)), document, placeOf);
  }
  return owners;
}

BandLayout LayOut(const Document& document, RowView rows, const SortedRows& sorted) {
  BandLayout layout = PresentLayout(rows);
  const std::vector<int> owners =
      OwnersOf(document, rows, Bars(rows), [&](int row) { return layout.AbsoluteY[At(row)]; });
  InLayout places{layout};
  LayOutRows(places, rows, sorted, owners);
  return layout;
}

}  // namespace

void AssignObjects(Document& document) {
  const auto rows = RowsOf(document.Objects);
  Assign(document, rows, Bars(rows));
}

int OwnerOf(const Document& document, int row) {
  const ObjectRecord& record = document.Objects[row];
  const bool isEnd = record.Kind == ObjectKind::EndOfSubsection;
  int first = 0;
  for (int other = 1; other <= document.Objects.LastScanned(); ++other) {
    const ObjectRecord& bar = document.Objects[other];
    if (bar.Kind != ObjectKind::Subsection) continue;
    if (isEnd && bar.EndRow == row) return other;
    if (isEnd || bar.SectionName != record.OwnerName) continue;
    if (HoldsPlace(BodyTop(bar), bar.EndsAt, record.AbsoluteY)) return other;
    if (first == 0) first = other;
  }
  return first;
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
  const auto rows = RowsOf(document.Objects);
  return OwnersOf(document, rows, Bars(rows), [&](int row) { return layout.AbsoluteY[At(row)]; });
}

BandLayout LayOutBands(const Document& document, const SortedRows& sorted) {
  return LayOut(document, RowsOf(document.Objects), sorted);
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
  const auto rows = RowsOf(document.Objects);
  const Bars bars(rows);
  std::vector<int> assigned = Assign(document, rows, bars);
  // A name that is shared may mean another bar than the one below the row.
  if (!bars.NamesAreUnique()) assigned.assign(assigned.size(), 0);
  SortedRows sorted = SetSortKeys(document, rows);
  const std::vector<int> owners = OwnersOf(
      document, rows, bars, [&](int row) { return rows[At(row)]->AbsoluteY; }, std::move(assigned));
  InRows places{rows};
  LayOutRows(places, rows, sorted, owners);
  return sorted;
}

}  // namespace kev
