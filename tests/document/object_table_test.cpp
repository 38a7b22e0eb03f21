// SPDX-License-Identifier: MIT
#include "document/object_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "document/object_fields.h"

namespace kev {
namespace {

void Occupy(ObjectTable& table, int count) {
  for (int n = 0; n < count; ++n)
    table[table.TakeFreeRow()].Kind = ObjectKind::Label;
}

TEST(ObjectTable, StartsWithFiftyScannedRowsThatAreAllFree) {
  const ObjectTable table;
  EXPECT_EQ(table.ObjectCount, 50);
  for (int row = 0; row <= ObjectTable::kLastRow; ++row)
    EXPECT_EQ(table[row], ObjectRecord{}) << row;
}

TEST(ObjectTable, GrowsByTenOnceItsLastScannedRowIsOccupied) {
  ObjectTable table;
  Occupy(table, 49);
  EXPECT_EQ(table.TakeFreeRow(), 50);
  EXPECT_EQ(table.ObjectCount, 50);
  table[50].Kind = ObjectKind::Box;
  EXPECT_EQ(table.TakeFreeRow(), 51);
  EXPECT_EQ(table.ObjectCount, 60);
}

TEST(ObjectTable, GrowsWhenOnlyTheLastScannedRowIsOccupiedAndStillFillsTheFirstFreeOne) {
  ObjectTable table;
  table[50].Kind = ObjectKind::Label;
  EXPECT_EQ(table.TakeFreeRow(), 1);
  EXPECT_EQ(table.ObjectCount, 60);
}

TEST(ObjectTable, UsesTheFirstFreedRowAgain) {
  ObjectTable table;
  Occupy(table, 10);
  table.ClearRow(7);
  table.ClearRow(3);
  EXPECT_EQ(table.TakeFreeRow(), 3);
  table[3].Kind = ObjectKind::Circle;
  EXPECT_EQ(table.TakeFreeRow(), 7);
  table[7].Kind = ObjectKind::Circle;
  EXPECT_EQ(table.TakeFreeRow(), 11);
}

TEST(ObjectTable, FindsARowThatWasFreedByAnAssignment) {
  ObjectTable table;
  Occupy(table, 10);
  table[4] = ObjectRecord{};
  table.RowChanged(4);
  EXPECT_EQ(table.TakeFreeRow(), 4);
}

TEST(ObjectTable, HoldsTwoThousandAndOneObjectsAndThenFailsWithoutHarm) {
  ObjectTable table;
  Occupy(table, ObjectTable::kLastRow);
  EXPECT_EQ(table[2001].Kind, ObjectKind::Label);
  EXPECT_THROW(table.TakeFreeRow(), std::out_of_range);
  EXPECT_THROW(table.TakeFreeRow(), std::out_of_range);
  EXPECT_EQ(table.ObjectCount, 2010);
  EXPECT_EQ(table.LastScanned(), 2001);
  EXPECT_EQ(table[0], ObjectRecord{});
  table.ClearRow(1000);
  EXPECT_THROW(table.TakeFreeRow(), std::out_of_range) << "the bound lies behind the table for good";
}

TEST(ObjectTable, RefusesRowsOutsideItsBounds) {
  ObjectTable table;
  EXPECT_THROW(table[2002], std::out_of_range);
  EXPECT_THROW(table[-1], std::out_of_range);
}

TEST(ObjectTable, IsAsNewAfterARestart) {
  ObjectTable table;
  Occupy(table, 60);
  table.CurrentObject = 5;
  table.Restart();
  EXPECT_EQ(table.ObjectCount, 50);
  EXPECT_EQ(table.CurrentObject, 0);
  EXPECT_EQ(table[55], ObjectRecord{});
  EXPECT_EQ(table.TakeFreeRow(), 1) << "from the first row on";
}

struct KindRow {
  ObjectKind kind;
  std::string_view text;
};
constexpr KindRow kKinds[] = {{ObjectKind::Label, "LABEL"},
                              {ObjectKind::TextBox, "TEXTBOX"},
                              {ObjectKind::Picture, "PICTURE"},
                              {ObjectKind::Box, "BOX"},
                              {ObjectKind::Line, "LINE"},
                              {ObjectKind::AnyLine, "ANYLINE"},
                              {ObjectKind::Circle, "CIRCLE"},
                              {ObjectKind::Barcode, "BARCODE"},
                              {ObjectKind::Qr, "QR"},
                              {ObjectKind::Chart, "CHART"},
                              {ObjectKind::Command, "COMMAND"},
                              {ObjectKind::Section, "SECTION"},
                              {ObjectKind::Subsection, "SUBSECTION"},
                              {ObjectKind::EndOfSubsection, "ENDOFSUBSECTION"}};

TEST(ObjectKinds, HaveTheirLiterals) {
  for (const KindRow& row : kKinds) {
    EXPECT_EQ(KindText(row.kind), row.text);
    EXPECT_EQ(KindFromText(row.text), row.kind);
  }
  EXPECT_EQ(KindText(ObjectKind::None), "");
}

TEST(ObjectKinds, KnowNoOtherText) {
  for (const std::string_view text : {"BOXF", "label", "", "LABEL "})
    EXPECT_EQ(KindFromText(text), ObjectKind::None) << text;
}

TEST(ObjectKinds, AreBandsOrObjects) {
  EXPECT_TRUE(IsBand(ObjectKind::Section));
  EXPECT_TRUE(IsBand(ObjectKind::Subsection));
  EXPECT_TRUE(IsBand(ObjectKind::EndOfSubsection));
  EXPECT_FALSE(IsBand(ObjectKind::Command));
  EXPECT_FALSE(IsBand(ObjectKind::None));
}

TEST(ObjectFields, AreNamedOnceEach) {
  std::vector<std::string_view> names;
  for (const FieldRow& row : kObjectFields)
    names.push_back(row.name);
  EXPECT_EQ(names.size(), 65U);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

}  // namespace
}  // namespace kev
