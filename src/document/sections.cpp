// SPDX-License-Identifier: MIT
#include "document/sections.h"

#include <algorithm>
#include <set>

#include "base/numbers.h"
#include "document/kind_defaults.h"

namespace kev {
namespace {

struct Body {
  std::int64_t top;
  std::int64_t bottom;
  int row;
};

std::int64_t BodyTop(const ObjectRecord& bar) {
  return std::int64_t{bar.AbsoluteY} + kBarHeight;
}

bool BodyHolds(const ObjectRecord& bar, std::int32_t y) {
  return y >= BodyTop(bar) && y <= BodyTop(bar) + bar.EndsAt;
}

// Bodies and the places asked for are both walked from top to bottom, so that each body is opened and closed
// once.
class BodySweep {
 public:
  explicit BodySweep(std::vector<Body> bodies) : byTop_(std::move(bodies)), byBottom_(byTop_) {
    std::sort(byTop_.begin(), byTop_.end(), [](const Body& a, const Body& b) { return a.top < b.top; });
    std::sort(byBottom_.begin(), byBottom_.end(),
              [](const Body& a, const Body& b) { return a.bottom < b.bottom; });
  }

  // The last row whose body holds y, 0 if none does. Must be asked for ascending y.
  int LastHolding(std::int64_t y) {
    for (; opened_ < byTop_.size() && byTop_[opened_].top <= y; ++opened_)
      open_.insert(byTop_[opened_].row);
    for (; closed_ < byBottom_.size() && byBottom_[closed_].bottom < y; ++closed_)
      open_.erase(byBottom_[closed_].row);
    return open_.empty() ? 0 : *open_.rbegin();
  }

 private:
  std::vector<Body> byTop_;
  std::vector<Body> byBottom_;
  std::size_t opened_ = 0;
  std::size_t closed_ = 0;
  std::set<int> open_;
};

std::vector<Body> BodiesOf(const Document& document) {
  std::vector<Body> bodies;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document.Objects[row];
    // A body that ends above its top holds nothing.
    if (bar.Kind != ObjectKind::Subsection || bar.EndsAt < 0) continue;
    bodies.push_back({BodyTop(bar), BodyTop(bar) + bar.EndsAt, row});
  }
  return bodies;
}

std::vector<int> ObjectsByY(const Document& document) {
  std::vector<int> rows;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind != ObjectKind::None && !IsBand(record.Kind) && record.KeepOwner == 0) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end(),
            [&](int a, int b) { return document.Objects[a].AbsoluteY < document.Objects[b].AbsoluteY; });
  return rows;
}

void LayOutBars(ObjectTable& objects, const SortedRows& sorted) {
  std::int64_t running = 0;
  for (const int row : sorted.Rows) {
    ObjectRecord& bar = objects[row];
    if (bar.Kind != ObjectKind::Section && bar.Kind != ObjectKind::Subsection) continue;
    bar.AbsoluteY = Fit32(running);
    if (bar.EndRow != 0) objects[bar.EndRow].AbsoluteY = Fit32(running + kBarHeight + bar.EndsAt);
    running += std::int64_t{kBarHeight} + bar.EndsAt + kBandGap;
  }
}

}  // namespace

void AssignObjects(Document& document) {
  BodySweep sweep(BodiesOf(document));
  for (const int row : ObjectsByY(document)) {
    ObjectRecord& record = document.Objects[row];
    const int owner = sweep.LastHolding(record.AbsoluteY);
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
  const auto holding = std::find_if(bars->second.begin(), bars->second.end(), [&](int bar) {
    return BodyHolds(document_.Objects[bar], record.AbsoluteY);
  });
  return holding == bars->second.end() ? bars->second.front() : *holding;
}

void NormaliseSubsections(Document& document, const SortedRows& sorted) {
  ObjectTable& objects = document.Objects;
  // Owners are found before the bars move, while bodies and objects still lie where they were.
  const OwnerIndex index(document);
  std::vector<std::pair<int, int>> owned;
  for (const int row : sorted.Rows) {
    if (IsBand(objects[row].Kind)) continue;
    if (const int owner = index.OwnerOf(row)) owned.emplace_back(row, owner);
  }
  LayOutBars(objects, sorted);
  for (const auto& [row, owner] : owned) {
    ObjectRecord& bar = objects[owner];
    objects[row].AbsoluteY = Fit32(BodyTop(bar) + objects[row].Y);
    bar.SectionCursorY = std::min(bar.SectionCursorY, bar.EndsAt);
  }
}

SortedRows DeriveGeometry(Document& document) {
  AssignObjects(document);
  SortedRows sorted = SetSortKeys(document);
  NormaliseSubsections(document, sorted);
  return sorted;
}

}  // namespace kev
