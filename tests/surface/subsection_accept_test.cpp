// SPDX-License-Identifier: MIT
// What OK makes of the rows, and that it comes back from a saved file.
#include "surface/subsection_dialog.h"

#include <gmock/gmock.h>

#include "base/text_numbers.h"
#include "surface/subsection_fixture.h"

namespace kev {
namespace {

using SubsectionAcceptTest = test::SubsectionDialogTest;
using testing::ElementsAre;
using testing::IsEmpty;

// --- OK on a new one
// ----------------------------------------------------------------------------------------

TEST_F(SubsectionAcceptTest, MakesABarWithItsEndRow) {
  ReadPage();
  SubsectionDialog dialog = New();
  dialog.Name = "Extra lines";
  TickRecordType(dialog, 0, true);
  ASSERT_TRUE(Accept(dialog));
  const ObjectRecord& bar = document_.Objects[dialog.NewRow];
  EXPECT_EQ(bar.Kind, ObjectKind::Subsection);
  EXPECT_EQ(bar.SectionTitle, "[DATA] [Extra lines:@Field01,@Field02]");
  EXPECT_EQ(bar.SectionOwner, "[DATA]");
  EXPECT_EQ(bar.SectionName, "EXTRA LINES");
  EXPECT_EQ(bar.Content, "[DATA] [Extra lines:@Field01,@Field02] [Starts in position: Current Y Value]");
  EXPECT_EQ(bar.StartY, kCurrentYValue);
  EXPECT_EQ(bar.EndsAt, 200);
  EXPECT_EQ(bar.Height, 400);
  EXPECT_EQ(bar.Width, 100000);
  EXPECT_EQ(bar.ColorR, 200);
  EXPECT_EQ(bar.ColorG, 200);
  EXPECT_EQ(bar.ColorB, 200);
  EXPECT_EQ(bar.Handles, "00000000");
  const ObjectRecord& end = document_.Objects[bar.EndRow];
  EXPECT_EQ(end.Kind, ObjectKind::EndOfSubsection);
  EXPECT_EQ(end.OwnerName, "EXTRA LINES");
  EXPECT_EQ(end.Height, 80);
  EXPECT_EQ(end.Width, 100000);
  EXPECT_EQ(end.Y, 200);
  EXPECT_EQ(end.AbsoluteY, bar.AbsoluteY + 400 + 200);
}

TEST_F(SubsectionAcceptTest, PutsItBehindTheLastOfItsSectionAndMakesRoom) {
  ReadPage();
  const std::int32_t footer = document_.Objects[RowNamed("FOOTER]")].AbsoluteY;
  const std::int32_t foot = Label("Foot").AbsoluteY;
  SubsectionDialog dialog = New();
  dialog.Name = "LAST";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[dialog.NewRow].AbsoluteY, footer);
  EXPECT_EQ(document_.Objects[RowNamed("FOOTER]")].AbsoluteY, footer + 800);
  EXPECT_EQ(Label("Foot").AbsoluteY, foot + 800);
  EXPECT_EQ(Label("Foot").OwnerName, "FOOTER]");
  SubsectionDialog second = New(BaseSection::Header);
  second.Name = "TOP";
  ASSERT_TRUE(Accept(second));
  EXPECT_THAT(Titles(),
              ElementsAre("[CONFIGURATION] [CONFIGURATION]", "[HEADER]", "[HEADER] [TOP:]", "[DATA]",
                          "[DATA] [ITEMS:@code,@text]", "[DATA] [TOTAL]", "[DATA] [LAST:]", "[FOOTER]"));
}

TEST_F(SubsectionAcceptTest, PutsItAtTheBottomWhereTheSectionHasNoBar) {
  Read({"[HEADER]", "{Spacing=400;\\n}", "[DATA]", "{Spacing=300;\\n}"});
  SubsectionDialog dialog = New(BaseSection::Footer);
  dialog.Name = "PAGE";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_THAT(Titles(), ElementsAre("[HEADER]", "[DATA]", "[FOOTER] [PAGE:]"));
}

TEST_F(SubsectionAcceptTest, MakesTheFirstBarOfAnEmptyTable) {
  SubsectionDialog dialog = New();
  dialog.Name = "ONLY";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[dialog.NewRow].AbsoluteY, 0);
  EXPECT_EQ(document_.Objects[1].SectionName, "ONLY");
  EXPECT_EQ(document_.Objects[1].EndRow, 2);
}

TEST_F(SubsectionAcceptTest, TakesFreeRowsAndTheSnapshotBeforeThem) {
  ReadPage();
  const int freed = RowNamed("TOTAL]") - 1;
  ASSERT_EQ(document_.Objects[freed].Kind, ObjectKind::EndOfSubsection);
  document_.Objects.ClearRow(freed);
  const ObjectTable before = document_.Objects;
  SubsectionDialog dialog = New();
  dialog.Name = "NEW";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(dialog.NewRow, freed);
  ASSERT_EQ(services_.Levels.size(), 1U);
  EXPECT_EQ(services_.BandChanges, 1);
  for (int row = 1; row <= before.LastScanned(); ++row)
    ASSERT_EQ(services_.Levels[0][row], before[row]) << row;
}

TEST_F(SubsectionAcceptTest, GivesANameWhereNoneIsTyped) {
  ReadPage();
  struct Row {
    BaseSection section;
    std::string_view title;
  };
  for (const Row& row : {Row{BaseSection::Header, "[HEADER] [DPHEADERSECTION:]"},
                         Row{BaseSection::Data, "[DATA] [DPDATASECTION:]"},
                         Row{BaseSection::Footer, "[FOOTER] [DPFOOTERSECTION:]"}}) {
    SubsectionDialog dialog = New(row.section);
    ASSERT_TRUE(Accept(dialog));
    EXPECT_EQ(document_.Objects[dialog.NewRow].SectionTitle, row.title);
  }
  services_.Levels.clear();
  services_.BandChanges = 0;
  SubsectionDialog again = New();
  ExpectRefused(again, kTextSubsectionNameUsed);
}

TEST_F(SubsectionAcceptTest, StoresTheStart) {
  ReadPage();
  SubsectionDialog dialog = New();
  dialog.Name = "FIXED";
  dialog.AtCurrentPosition = false;
  dialog.Start = "0";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[dialog.NewRow].StartY, "1");
  EXPECT_EQ(document_.Objects[dialog.NewRow].Content, "[DATA] [FIXED:] [Starts in position: 1]");
}

TEST_F(SubsectionAcceptTest, AFullTableThrows) {
  // One row is left: enough for the bar, not for its end.
  for (int row = 1; row < ObjectTable::kLastRow; ++row)
    document_.Objects[document_.Objects.TakeFreeRow()].Kind = ObjectKind::Box;
  SubsectionDialog dialog = New();
  dialog.Name = "NEW";
  EXPECT_THROW(Accept(dialog), std::out_of_range);
  EXPECT_EQ(dialog.NewRow, 0);
}

// --- OK on an existing one
// ----------------------------------------------------------------------------------

TEST_F(SubsectionAcceptTest, RenamingCarriesTheOwnedRows) {
  ReadPage();
  const int bar = RowNamed("ITEMS");
  SubsectionDialog dialog = Open(bar);
  dialog.Name = "Lines";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[bar].SectionTitle, "[DATA] [Lines:@code,@text]");
  EXPECT_EQ(document_.Objects[bar].SectionName, "LINES");
  EXPECT_EQ(document_.Objects[bar].Content,
            "[DATA] [Lines:@code,@text] [Starts in position: Current Y Value]");
  EXPECT_EQ(Label("First").OwnerName, "LINES");
  EXPECT_EQ(document_.Objects[document_.Objects[bar].EndRow].OwnerName, "LINES");
  EXPECT_EQ(Label("Sum").OwnerName, "TOTAL]");
  EXPECT_EQ(services_.Levels.size(), 1U);
  EXPECT_EQ(services_.Levels[0][bar].SectionName, "ITEMS");
  EXPECT_EQ(dialog.NewRow, 0);
}

TEST_F(SubsectionAcceptTest, RenamingOneOfTwoNamesakesLeavesTheRowsOfTheOther) {
  Read({"[HEADER]", "[DATA]", "[ITEMS]", "{100;}First{}", "{Spacing=500;\\n}", "[ITEMS]", "{100;}Second{}",
        "{Spacing=500;\\n}"});
  int second = 0;
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
    if (document_.Objects[row].SectionName == "ITEMS]") second = row;
  }
  SubsectionDialog dialog = Open(second);
  dialog.Name = "OTHER";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(Label("First").OwnerName, "ITEMS]");
  EXPECT_EQ(Label("Second").OwnerName, "OTHER");
}

TEST_F(SubsectionAcceptTest, ARowOutsideItsBodyIsCarriedToo) {
  ReadPage();
  const int bar = RowNamed("ITEMS");
  const int stray = document_.Objects.TakeFreeRow();
  document_.Objects[stray].Kind = ObjectKind::Box;
  document_.Objects[stray].OwnerName = "ITEMS";
  document_.Objects[stray].Y = 90000;
  document_.Objects[stray].AbsoluteY = 99000;
  SubsectionDialog dialog = Open(bar);
  dialog.Name = "LINES";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[stray].OwnerName, "LINES");
}

TEST_F(SubsectionAcceptTest, ChangedFieldsChangeTheHeadLine) {
  ReadPage();
  const int bar = RowNamed("TOTAL]");
  SubsectionDialog dialog = Open(bar);
  TypeFields(dialog, "@net");
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[bar].SectionTitle, "[DATA] [TOTAL:@net]");
  EXPECT_EQ(document_.Objects[bar].SectionName, "TOTAL");
  EXPECT_EQ(Label("Sum").OwnerName, "TOTAL");
}

TEST_F(SubsectionAcceptTest, AChangedStartLeavesTheHeadLine) {
  ReadPage();
  const int bar = RowNamed("TOTAL]");
  SubsectionDialog dialog = Open(bar);
  dialog.AtCurrentPosition = false;
  dialog.Start = "2000";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[bar].SectionTitle, "[DATA] [TOTAL]");
  EXPECT_EQ(document_.Objects[bar].SectionName, "TOTAL]");
  EXPECT_EQ(document_.Objects[bar].StartY, "2000");
  EXPECT_EQ(document_.Objects[bar].Content, "[DATA] [TOTAL] [Starts in position: 2000]");
}

TEST_F(SubsectionAcceptTest, TheShortFormStoresTheStartAlone) {
  ReadPage();
  const int bar = RowNamed("DATA]");
  SubsectionDialog dialog = Open(bar);
  dialog.Name = "IGNORED";
  dialog.AtCurrentPosition = false;
  dialog.Start = "700";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[bar].SectionTitle, "[DATA]");
  EXPECT_EQ(document_.Objects[bar].Content, "Section: [DATA]");
  EXPECT_EQ(document_.Objects[bar].StartY, "700");
}

TEST_F(SubsectionAcceptTest, NothingChangedLeavesNoLevel) {
  ReadPage();
  const int bar = RowNamed("ITEMS");
  document_.Objects[bar].StartY = "0012";
  const ObjectTable before = document_.Objects;
  SubsectionDialog dialog = Open(bar);
  EXPECT_TRUE(Accept(dialog));
  EXPECT_THAT(services_.Levels, IsEmpty());
  EXPECT_EQ(document_.Objects[bar], before[bar]);
}

// --- Save and read back
// -------------------------------------------------------------------------------------

TEST_F(SubsectionAcceptTest, ANewSubsectionComesBackFromTheFile) {
  for (const char* start : {"", "0", "2500", "-200"}) {
    ReadPage();
    for (const BaseSection section : {BaseSection::Header, BaseSection::Data, BaseSection::Footer}) {
      SubsectionDialog dialog = New(section);
      dialog.Name = "My " + std::string(RowOf(section).emptyName);
      TickRecordType(dialog, 1, true);
      dialog.AtCurrentPosition = *start == '\0';
      dialog.Start = start;
      ASSERT_TRUE(Accept(dialog));
      const ObjectRecord bar = document_.Objects[dialog.NewRow];
      const std::string saved = test::WriteText(document_);
      Document back = test::ReadText(saved).Read;
      DeriveGeometry(back);
      const ObjectRecord& read = test::BarNamed(back, bar.SectionName);
      EXPECT_EQ(read.SectionTitle, bar.SectionTitle);
      EXPECT_EQ(read.SectionOwner, bar.SectionOwner);
      EXPECT_EQ(read.StartY, bar.StartY);
      EXPECT_EQ(read.EndsAt, 200) << saved;
      EXPECT_EQ(read.SectionCursorY, bar.SectionCursorY);
      EXPECT_EQ(test::WriteText(back), saved);
    }
  }
}

TEST_F(SubsectionAcceptTest, ARenamedSubsectionComesBackWithItsObjects) {
  ReadPage();
  SubsectionDialog dialog = Open(RowNamed("ITEMS"));
  dialog.Name = "Caf\xE9 lines";
  ASSERT_TRUE(Accept(dialog));
  Document back = test::ReadText(test::WriteText(document_)).Read;
  DeriveGeometry(back);
  EXPECT_EQ(test::BarNamed(back, "CAF\xC9 LINES").SectionTitle, "[DATA] [Caf\xE9 lines:@code,@text]");
  int found = 0;
  for (const ObjectRecord* label : test::RowsOfKind(back, ObjectKind::Label)) {
    if (label->Content != "First") continue;
    EXPECT_EQ(label->OwnerName, "CAF\xC9 LINES");
    ++found;
  }
  EXPECT_EQ(found, 1);
}

}  // namespace
}  // namespace kev
