// SPDX-License-Identifier: MIT
// A subsection changes places with the one above or below it.
#include <cstdint>
#include <vector>

#include "base/numbers.h"
#include "document/kind_defaults.h"
#include "document/sections.h"
#include "surface/page_keys.h"

namespace kev {
namespace {

enum class Side : std::uint8_t { Above, Below };

// The subsection that bears the name of its section and opens it.
bool OpensSection(const ObjectRecord& bar) {
  return bar.SectionOwner == "[" + bar.SectionName.Text();
}

// The next subsection on that side of the page; 0 at its end.
int NextBar(const ObjectTable& objects, int bar, Side side) {
  const std::int32_t y = objects[bar].AbsoluteY;
  int next = 0;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& other = objects[row];
    if (other.Kind != ObjectKind::Subsection || row == bar) continue;
    const bool onSide = side == Side::Below ? other.AbsoluteY > y : other.AbsoluteY < y;
    if (!onSide) continue;
    const bool nearer = next == 0 || (side == Side::Below ? other.AbsoluteY < objects[next].AbsoluteY
                                                          : other.AbsoluteY > objects[next].AbsoluteY);
    if (nearer) next = row;
  }
  return next;
}

// A section's opening subsection stays on top of it, and no subsection leaves its section.
bool MayChangePlaces(const ObjectRecord& bar, const ObjectRecord& other) {
  return bar.SectionOwner == other.SectionOwner && !OpensSection(bar) && !OpensSection(other);
}

// The bar with all that stands in its body, and its end.
std::vector<int> RowsOf(const Document& document, int bar) {
  const OwnerIndex owners(document);
  std::vector<int> rows{bar};
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectKind kind = document.Objects[row].Kind;
    const bool owned = kind != ObjectKind::None && kind != ObjectKind::Section &&
                       kind != ObjectKind::Subsection && owners.OwnerOf(row) == bar;
    if (owned) rows.push_back(row);
  }
  return rows;
}

void Shift(ObjectTable& objects, const std::vector<int>& rows, std::int64_t delta) {
  for (const int row : rows)
    objects[row].AbsoluteY = Fit32(objects[row].AbsoluteY + delta);
}

void ChangePlaces(Document& document, int upper, int lower) {
  ObjectTable& objects = document.Objects;
  const std::vector<int> upperRows = RowsOf(document, upper);
  const std::vector<int> lowerRows = RowsOf(document, lower);
  const std::int64_t up = std::int64_t{objects[lower].AbsoluteY} - objects[upper].AbsoluteY;
  const std::int64_t down = std::int64_t{kBarHeight} + objects[lower].EndsAt + kBandGap;
  Shift(objects, lowerRows, -up);
  Shift(objects, upperRows, down);
}

void MoveCurrent(PageWork& work, Side side) {
  ObjectTable& objects = work.document.Objects;
  const int bar = objects.CurrentObject;
  if (work.pointer.MultiSelected || objects[bar].Kind != ObjectKind::Subsection) return;
  const int other = NextBar(objects, bar, side);
  if (other == 0 || !MayChangePlaces(objects[bar], objects[other])) return;
  work.services.PushUndo();
  if (side == Side::Below)
    ChangePlaces(work.document, bar, other);
  else
    ChangePlaces(work.document, other, bar);
  work.services.BandsChanged();
}

}  // namespace

void MoveSubsectionUp(PageWork& work) {
  MoveCurrent(work, Side::Above);
}

void MoveSubsectionDown(PageWork& work) {
  MoveCurrent(work, Side::Below);
}

}  // namespace kev
