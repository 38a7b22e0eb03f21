// SPDX-License-Identifier: MIT
#include "document/band_layout.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "document/sections.h"
#include "support/documents.h"
#include "support/template_generator.h"

namespace kev {
namespace {

using test::PutBox;
using test::PutSubsection;
using test::TemplateGenerator;

constexpr std::uint32_t kRuns = 200;

TEST(BandLayout, IsWhereNormalisingPutsTheRows) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Document document = TemplateGenerator(seed).SaneDocument();
    const SortedRows sorted = SortRows(document);
    const BandLayout layout = LayOutBands(document, sorted);
    ASSERT_EQ(SetSortKeys(document).Rows, sorted.Rows);
    NormaliseSubsections(document, sorted);
    for (const int row : sorted.Rows) {
      const auto at = static_cast<std::size_t>(row);
      ASSERT_EQ(layout.AbsoluteY[at], document.Objects[row].AbsoluteY) << row;
      ASSERT_EQ(layout.SectionCursorY[at], document.Objects[row].SectionCursorY) << row;
    }
  }
}

TEST(BandLayout, KnowsTheOwnersAsTheyStandInIt) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Document document = TemplateGenerator(seed).SaneDocument();
    const SortedRows sorted = SortRows(document);
    const BandLayout layout = LayOutBands(document, sorted);
    const std::vector<int> owners = OwnersIn(document, layout);
    StoreLayout(document, sorted, layout);
    const OwnerIndex index(document);
    for (const int row : sorted.Rows) {
      ASSERT_EQ(OwnerOf(document, row), index.OwnerOf(row)) << row;
      if (IsBand(document.Objects[row].Kind)) continue;
      ASSERT_EQ(owners[static_cast<std::size_t>(row)], index.OwnerOf(row)) << row;
    }
  }
}

void ShareNames(Document& document) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::Subsection)
      record.SectionName = "SHARED";
    else if (record.Kind != ObjectKind::None)
      record.OwnerName = "SHARED";
  }
}

// The chain takes short cuts from one step to the next.
TEST(BandLayout, OfTheGeometryChainIsThatOfItsStepsOneByOne) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Document whole = TemplateGenerator(seed).SaneDocument();
    for (int row = 1; row <= whole.Objects.LastScanned(); row += 3)
      if (whole.Objects[row].Kind != ObjectKind::None) whole.Objects[row].AbsoluteY += 700;
    if (seed % 2 == 0) ShareNames(whole);
    Document steps = whole;
    const SortedRows sorted = DeriveGeometry(whole);
    AssignObjects(steps);
    const SortedRows expected = SetSortKeys(steps);
    NormaliseSubsections(steps, expected);
    ASSERT_EQ(sorted.Rows, expected.Rows);
    for (int row = 1; row <= steps.Objects.LastScanned(); ++row)
      ASSERT_EQ(whole.Objects[row], steps.Objects[row]) << row;
  }
}

TEST(BandLayout, GivesARowOfASharedNameToTheBodyThatHoldsIt) {
  Document document;
  const auto first = PutSubsection(document, "[A]", 0, 600);
  const auto second = PutSubsection(document, "[A]", 2000, 600);
  const int low = PutBox(document, 2500);
  const int stray = PutBox(document, 9000);
  document.Objects[low].OwnerName = document.Objects[stray].OwnerName = "A]";
  BandLayout layout;
  layout.AbsoluteY.resize(ObjectTable::kLastRow + 1);
  layout.SectionCursorY.resize(ObjectTable::kLastRow + 1);
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    layout.AbsoluteY[static_cast<std::size_t>(row)] = document.Objects[row].AbsoluteY;
  const std::vector<int> owners = OwnersIn(document, layout);
  EXPECT_EQ(owners[static_cast<std::size_t>(low)], second.bar);
  EXPECT_EQ(owners[static_cast<std::size_t>(stray)], first.bar);
}

TEST(BandLayout, RefusesABarWhoseEndLiesOutsideTheTable) {
  for (const std::int16_t end : {std::int16_t{2002}, std::int16_t{-1}}) {
    Document document;
    const auto bar = PutSubsection(document, "[A]", 0, 600);
    document.Objects[bar.bar].EndRow = end;
    EXPECT_THROW(LayOutBands(document, SortRows(document)), std::out_of_range) << end;
  }
}

}  // namespace
}  // namespace kev
