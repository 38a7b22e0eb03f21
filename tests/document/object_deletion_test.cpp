// SPDX-License-Identifier: MIT
#include "document/object_deletion.h"

#include <gtest/gtest.h>

#include "document/sections.h"
#include "template/reader.h"

namespace kev {
namespace {

Document Read(std::string_view layout) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  auto outcome = ReadTemplateBytes("[HEADER]\r\n" + std::string(layout), {measurer, pictures});
  EXPECT_TRUE(outcome);
  return std::move(outcome->Read);
}

int RowWith(const Document& document, std::string_view content) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Content == content || record.SectionTitle == content) return row;
  }
  return 0;
}

int Occupied(const Document& document) {
  int count = 0;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    count += document.Objects[row].Kind == ObjectKind::None ? 0 : 1;
  return count;
}

TEST(DeleteObject, OfAnObjectFreesItsRowAlone) {
  Document document = Read("{1;}A{}\r\n{2;}B{}\r\n[DATA]\r\n");
  const int row = RowWith(document, "A");
  DeleteObject(document, row);
  EXPECT_EQ(document.Objects[row].Kind, ObjectKind::None);
  EXPECT_NE(RowWith(document, "B"), 0);
  EXPECT_EQ(document.Objects.TakeFreeRow(), row) << "freed rows are used again";
}

TEST(DeleteObject, OfASubsectionTakesItsBodyAndItsEndAndMovesTheRestUp) {
  Document document = Read("{1;}A{}\r\n[DATA]\r\n[X]\r\n{Spacing=900;\\n}{1;}B{}\r\n[Y]\r\n{1;}C{}\r\n");
  DeriveGeometry(document);
  const std::int32_t before = document.Objects[RowWith(document, "[DATA] [Y]")].AbsoluteY;
  const int count = Occupied(document);
  DeleteObject(document, RowWith(document, "[DATA] [X]"));
  EXPECT_EQ(Occupied(document), count - 3);
  EXPECT_EQ(RowWith(document, "B"), 0);
  EXPECT_NE(RowWith(document, "C"), 0);
  EXPECT_EQ(document.Objects[RowWith(document, "[DATA] [Y]")].AbsoluteY, before - 400 - 900 - 200);
}

TEST(DeleteObject, OfOneOfTwoNamesakesLeavesTheOtherWhole) {
  Document document =
      Read("[DATA]\r\n[X]\r\n{Spacing=300;\\n}{1;}A{}\r\n[X]\r\n{Spacing=300;\\n}{1;}B{}\r\n");
  DeriveGeometry(document);
  DeleteObject(document, RowWith(document, "[DATA] [X]"));
  EXPECT_EQ(RowWith(document, "A"), 0);
  ASSERT_NE(RowWith(document, "B"), 0);
  const int bar = RowWith(document, "[DATA] [X]");
  ASSERT_NE(bar, 0);
  EXPECT_EQ(document.Objects[document.Objects[bar].EndRow].Kind, ObjectKind::EndOfSubsection);
}

TEST(DeleteObject, OfAFreeRowChangesNothing) {
  Document document = Read("{1;}A{}\r\n");
  const int count = Occupied(document);
  DeleteObject(document, 40);
  EXPECT_EQ(Occupied(document), count);
}

}  // namespace
}  // namespace kev
