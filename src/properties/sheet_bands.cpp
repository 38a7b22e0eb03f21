// SPDX-License-Identifier: MIT
// The three main sections, other subsections, and CHART: what a dialog changes has a button alone.
#include <algorithm>
#include <array>

#include "document/sections.h"
#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

// What the last object of a body needs of its height.
std::int32_t LowestContent(const Document& document, int bar) {
  const OwnerIndex owners(document);
  std::int32_t lowest = 0;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None || IsBand(record.Kind) || owners.OwnerOf(row) != bar) continue;
    lowest = std::max(lowest, record.Y);
  }
  return lowest;
}

Verdict CheckContentHeight(const RowTarget& target, std::string_view text) {
  if (Verdict refused = CheckNotNegative(target, text)) return refused;
  const bool tooHigh = Int32Of(text) > target.Record().EndsAt;
  return tooHigh ? RefusedWith(kTextSectionHeightRefused) : Verdict();
}

Verdict CheckEnd(const RowTarget& target, std::string_view text) {
  if (Verdict refused = CheckNotNegative(target, text)) return refused;
  const bool tooShort = Int32Of(text) < LowestContent(target.TheDocument(), target.object);
  return tooShort ? RefusedWith(kTextSectionTooShort) : Verdict();
}

// A content that reached the old end reaches the new one.
void StoreEnd(const RowTarget& target, std::string_view text) {
  ObjectRecord& bar = target.Record();
  const bool follows = bar.SectionCursorY == bar.EndsAt;
  bar.EndsAt = Int32Of(text);
  bar.SectionCursorY = follows ? bar.EndsAt : std::min(bar.SectionCursorY, bar.EndsAt);
}

constexpr auto kSectionRows = std::to_array<ObjectRow>({
    NumberRow<&R::SectionCursorY>("Height", 0, CheckContentHeight),
    {"Section ends at", kPlainText, ReadNumber<&R::EndsAt>, StoreEnd, CheckEnd},
});

std::string NoValue(const RowSource&) {
  return {};
}

constexpr ObjectRow CustomRow(SheetAction action) {
  ObjectRow row = {"Custom", kButton, NoValue};
  row.action = action;
  return row;
}

constexpr std::array kSubsectionRows = {CustomRow(SheetAction::SubsectionDialog)};
constexpr std::array kChartRows = {CustomRow(SheetAction::ChartWizard)};

}  // namespace

constexpr ObjectSheet kSectionSheet = {kTextSheetSection, kSectionRows, nullptr, Reach::Bands};
constexpr ObjectSheet kSubsectionSheet = {kTextSheetSubsection, kSubsectionRows};
constexpr ObjectSheet kChartSheet = {kTextSheetChart, kChartRows};

}  // namespace kev
