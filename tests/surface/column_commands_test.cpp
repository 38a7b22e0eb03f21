// SPDX-License-Identifier: MIT
#include "surface/column_commands.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "base/text_numbers.h"
#include "support/column_page.h"
#include "support/run_tool.h"

namespace kev {
namespace {

using test::AddLabel;
using test::AddRow;
using test::AddSubsection;

using Calls = std::vector<std::string>;

class ColumnCommandsTest : public test::ColumnPageTest {
 protected:
  void InsertAt(double x) {
    pointer_.MenuAt.RulerX = x;
    PageWork work = Work();
    InsertColumnHere(work);
  }
  void Remove(int slot) {
    PageWork work = Work();
    RemoveColumn(work, slot);
  }
  void Organize(const std::string& saved = {}) {
    PageWork work = Work();
    OrganizeColumns(work, [&] { return saved; });
  }
  void Use(std::string_view item) {
    PageWork work = Work();
    UseColumn(work, item);
  }
  void Select(std::vector<int> rows) {
    for (const int row : rows)
      Record(row).Selected = kTrue;
    pointer_.MultiSelected = true;
  }
};

// --- insertcolumnhere
// -------------------------------------------------------------------------------------------

TEST_F(ColumnCommandsTest, AColumnIsMadeAtTheNearestHundred) {
  InsertAt(2449.9);
  EXPECT_EQ(Columns(), "$Col_01=2400");
  InsertAt(2450);
  EXPECT_EQ(Columns(), "$Col_01=2400 $Col_02=2500");
}

TEST_F(ColumnCommandsTest, ThePlaceOnTheRulerIsCutToAWholeNumber) {
  InsertAt(149.99);
  InsertAt(-50.9);
  EXPECT_EQ(Columns(), "$Col_01=100 $Col_02=0");
}

TEST_F(ColumnCommandsTest, InsertingCountsInZoomedHundreds) {
  zoom_ = 1.5;
  InsertAt(1000);
  // The steps are 150: 1050 / 1.5.
  EXPECT_EQ(Columns(), "$Col_01=700");
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 1050 0 15 9000"));
  EXPECT_TRUE(surface_.Has("say linecolumn(1) $Col_01"));
  EXPECT_TRUE(surface_.Has("show linecolumn(1)"));
  EXPECT_EQ(services_.List.Items, Calls{"$Col_01 = 700"});
}

TEST_F(ColumnCommandsTest, InsertingTakesNoSnapshot) {
  InsertAt(100);
  EXPECT_EQ(services_.Calls, (Calls{"changed", "repaint"}));
}

TEST_F(ColumnCommandsTest, TheFirstFreeSlotIsTakenWhoseNameIsFreeToo) {
  SetColumns({{"$a", 1, ""}, {}, {"$COL_02", 2, ""}});
  InsertAt(500);
  EXPECT_EQ(Columns(), "$a=1 $COL_02=2 $Col_04=500");
}

TEST_F(ColumnCommandsTest, WithoutAFreeSlotOnlyTheListIsRefreshed) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    document_.Columns[slot] = {GeneratedColumnName(slot), 10.0 * slot, ""};
  const ColumnTable before = document_.Columns;
  InsertAt(500);
  EXPECT_EQ(document_.Columns, before);
  EXPECT_TRUE(services_.Calls.empty());
  EXPECT_EQ(services_.ListTexts.size(), 1U);
  EXPECT_TRUE(surface_.Lines.empty());
}

TEST_F(ColumnCommandsTest, TheHundredthSlotIsUsedAndNamedWithThreeDigits) {
  for (int slot = 1; slot < ColumnTable::kLastSlot; ++slot)
    document_.Columns[slot] = {"$x" + std::to_string(slot), 10.0 * slot, ""};
  InsertAt(500);
  EXPECT_EQ(document_.Columns[100].Name, "$Col_100");
}

// --- removecolumn
// -----------------------------------------------------------------------------------------------

TEST_F(ColumnCommandsTest, ObjectsOfARemovedColumnStayWhereTheyAre) {
  SetColumns({{"$Col_01", 1000, ""}, {"$Col_02", 2000, ""}});
  const int plain = AddLabel(document_, "$Col_01", 0, "a");
  const int step = AddLabel(document_, "$Col_01 + 50", 0, "b");
  const int half = AddLabel(document_, "$Col_01 / 16", 0, "c");
  const int other = AddLabel(document_, "$Col_02", 0, "d");
  Remove(1);
  EXPECT_EQ(Record(plain).XValue, "1000");
  EXPECT_EQ(Record(step).XValue, "1050");
  EXPECT_EQ(Record(half).XValue, "62.5");
  EXPECT_EQ(Record(other).XValue, "$Col_02");
  EXPECT_EQ(Columns(), "$Col_02=2000");
}

TEST_F(ColumnCommandsTest, TheSnapshotIsTakenBeforeAColumnIsRemoved) {
  SetColumns({{"$Col_01", 1000, ""}});
  const int row = AddLabel(document_, "$Col_01", 0, "a");
  services_.OnPush = [&] {
    EXPECT_EQ(Columns(), "$Col_01=1000");
    EXPECT_EQ(Record(row).XValue, "$Col_01");
  };
  Remove(1);
  EXPECT_EQ(services_.Calls, (Calls{"push", "repaint"}));
}

TEST_F(ColumnCommandsTest, ASecondEndKeepsTheNameOfARemovedColumn) {
  SetColumns({{"$Col_01", 1000, ""}});
  const int row = AddLine("$Col_01", "$Col_01 + 500", 500);
  Remove(1);
  EXPECT_EQ(Record(row).XValue, "1000");
  EXPECT_EQ(Record(row).X2Value, "$Col_01 + 500");
}

TEST_F(ColumnCommandsTest, AnyTextThatHoldsTheNameIsFrozenWithItsCase) {
  SetColumns({{"$Col_1", 100, ""}, {"$Col_10", 1000, ""}});
  const int longer = AddLabel(document_, "$Col_10", 0, "a");
  const int otherCase = AddLabel(document_, "$COL_1", 0, "b");
  const int nonsense = AddLabel(document_, "5 $Col_1", 0, "c");
  Remove(1);
  EXPECT_EQ(Record(longer).XValue, "1000");
  EXPECT_EQ(Record(otherCase).XValue, "$COL_1");
  EXPECT_EQ(Record(nonsense).XValue, "");
}

TEST_F(ColumnCommandsTest, TheLineOfARemovedColumnIsParkedAndTheListEmptied) {
  SetColumns({{"$a", 100, ""}, {"$b", 200, ""}});
  pointer_.ColumnText = "$a = 100";
  Remove(1);
  EXPECT_TRUE(surface_.Has("place linecolumn(1) -2000 "));
  EXPECT_TRUE(surface_.Has("hide linecolumn(1)"));
  EXPECT_EQ(services_.List.Text, "");
  EXPECT_EQ(services_.List.Items, Calls{"$b = 200"});
}

TEST_F(ColumnCommandsTest, AFreeSlotIsNotRemoved) {
  AddLabel(document_, "720", 0, "a");
  for (const int slot : {0, 1, 101})
    Remove(slot);
  EXPECT_EQ(Record(1).XValue, "720");
  EXPECT_TRUE(services_.Calls.empty());
}

// --- organizecolumns
// --------------------------------------------------------------------------------------------

TEST_F(ColumnCommandsTest, OrganisingSortsRenumbersAndTakesObjectsAlong) {
  SetColumns({{"$Col_01", 3000, ""}, {"$Col_02", 1000, ""}, {"$Col_03", 2000, ""}});
  const int row = AddLabel(document_, "$Col_01 + 50", 0, "a");
  const int line = AddLine("$col_02", "$COL_03 - 10", 500);
  Organize();
  EXPECT_EQ(Columns(), "$Col_01=1000 $Col_02=2000 $Col_03=3000");
  EXPECT_EQ(Record(row).XValue, "$Col_03 + 50");
  EXPECT_EQ(Record(line).XValue, "$Col_01");
  EXPECT_EQ(Record(line).X2Value, "$Col_02 - 10");
  for (int slot = 1; slot <= 3; ++slot)
    EXPECT_EQ(document_.Columns[slot].PreviousName, "");
}

TEST_F(ColumnCommandsTest, OrganisingTakesNoSnapshotAndTellsWhatItDid) {
  SetColumns({{"$a", 3000, ""}});
  pointer_.ColumnText = "$a = 3000";
  Organize();
  EXPECT_EQ(services_.Calls, (Calls{"changed", "selection", "box 771"}));
  EXPECT_EQ(services_.LastIcon, BoxIcon::Information);
  EXPECT_EQ(services_.List.Text, "");
  EXPECT_EQ(services_.List.Items, Calls{"$Col_01 = 3000"});
}

TEST_F(ColumnCommandsTest, OrganisingLeavesTheLinesToTheNextSync) {
  SetColumns({{"$a", 3000, ""}, {"$b", 1000, ""}});
  AddLabel(document_, "$a", 0, "x");
  Organize();
  EXPECT_TRUE(surface_.Lines.empty());
  EXPECT_EQ(services_.Count("repaint"), 0);
  PageWork work = Work();
  HoverColumnLine(work, 1);
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 1000 "));
  EXPECT_TRUE(surface_.Has("place linecolumn(2) 3000 "));
}

TEST_F(ColumnCommandsTest, AGapLeavesARowBehindThatRepeatsAColumn) {
  SetColumns({{"$a", 3000, ""}, {}, {"$c", 1000, ""}});
  const int row = AddLabel(document_, "$c", 0, "x");
  Organize();
  EXPECT_EQ(Columns(), "$Col_01=1000 $Col_02=3000 $Col_03=1000");
  EXPECT_EQ(Record(row).XValue, "$Col_01");
}

TEST_F(ColumnCommandsTest, PositionsAreRoundedByTheMaskToEven) {
  SetColumns({{"$a", 1000.5, ""}, {"$b", 1001.5, ""}});
  Organize();
  EXPECT_EQ(Columns(), "$Col_01=1000 $Col_02=1002");
}

TEST_F(ColumnCommandsTest, NegativePositionsAreSortedAsText) {
  SetColumns({{"$a", 10, ""}, {"$b", -1000, ""}, {"$c", -50, ""}, {"$d", -0.2, ""}});
  Organize();
  EXPECT_EQ(Columns(), "$Col_01=-50 $Col_02=-1000 $Col_03=0 $Col_04=10");
}

TEST_F(ColumnCommandsTest, PositionsBeyondTheMaskAreSortedAsText) {
  SetColumns({{"$a", 9000000, ""}, {"$b", 10000000, ""}});
  Organize();
  EXPECT_EQ(Columns(), "$Col_01=10000000 $Col_02=9000000");
}

TEST_F(ColumnCommandsTest, AWordThatIsNoColumnIsDropped) {
  SetColumns({{"$a", 1000, ""}});
  const int step = AddLabel(document_, "$Gone + 120", 0, "x");
  const int bare = AddLabel(document_, "$Gone", 0, "x");
  const int number = AddLabel(document_, "120 + 30", 0, "x");
  Organize();
  EXPECT_EQ(Record(step).XValue, "+ 120");
  EXPECT_EQ(Record(bare).XValue, "");
  EXPECT_EQ(Record(number).XValue, "120 + 30");
}

TEST_F(ColumnCommandsTest, ThePageIsPaintedAnewWhereAnObjectMoves) {
  SetColumns({{"$a", 1000, ""}});
  AddLabel(document_, "$Gone + 120", 0, "x");
  Organize();
  EXPECT_EQ(services_.Calls, (Calls{"changed", "selection", "repaint", "box 771"}));
}

TEST_F(ColumnCommandsTest, WordsAreJoinedAsTheyStand) {
  SetColumns({{"$a", 1000, ""}, {"$b", 500, ""}});
  const int row = AddLabel(document_, "5 $a  $b", 0, "x");
  Organize();
  EXPECT_EQ(Record(row).XValue, "5$Col_02 $Col_01");
}

TEST_F(ColumnCommandsTest, FreeRowsKeepTheirTexts) {
  SetColumns({{"$a", 1000, ""}});
  Record(7).XValue = "$a";
  Organize();
  EXPECT_EQ(Record(7).XValue, "$a");
}

TEST_F(ColumnCommandsTest, OrganisingAsksForEachLineAndEachOfItsColumns) {
  SetColumns({{"$a", 1000, ""}, {"$b", 500, ""}});
  services_.Answers = {BoxAnswer::Yes, BoxAnswer::Yes, BoxAnswer::Yes};
  Organize("$A=1000\r\n$b=500\r\n720\r\n{$b;}x\r\n");
  EXPECT_EQ(services_.Boxes, (std::vector<int>{943, 943, 943, 771}));
  EXPECT_EQ(Columns(), "$Col_01=500 $Col_02=1000");
}

TEST_F(ColumnCommandsTest, TheQuestionOffersYesToAll) {
  SetColumns({{"$a", 1000, ""}});
  services_.Answers = {BoxAnswer::No};
  Organize("$a=1000");
  EXPECT_EQ(services_.LastIcon, BoxIcon::Warning);
  EXPECT_EQ(services_.LastButtons, BoxButtons::YesNoYesToAll);
}

TEST_F(ColumnCommandsTest, NoEndsOrganisingWithNothingChanged) {
  SetColumns({{"$a", 1000, ""}, {"$b", 500, ""}});
  const ColumnTable before = document_.Columns;
  services_.Answers = {BoxAnswer::Yes, BoxAnswer::No};
  Organize("$a=1000\r\n$b=500\r\n$b");
  EXPECT_EQ(services_.Calls, (Calls{"box 943", "box 943"}));
  EXPECT_EQ(document_.Columns, before);
}

TEST_F(ColumnCommandsTest, YesToAllAnswersTheRest) {
  SetColumns({{"$a", 1000, ""}, {"$b", 500, ""}});
  services_.Answers = {BoxAnswer::YesToAll};
  Organize("$a=1000\r\n$b=500\r\n{$b;}x\r\n");
  EXPECT_EQ(services_.Boxes, (std::vector<int>{943, 771}));
}

TEST_F(ColumnCommandsTest, ADocumentWithoutAFileAsksNothing) {
  SetColumns({{"$a", 1000, ""}});
  Organize(SavedTemplateText(""));
  EXPECT_EQ(services_.Boxes, std::vector<int>{771});
}

TEST(SavedTemplate, IsReadAsItStands) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(SavedTemplateText(folder / "none.kev"), "");
  test::WriteBytes(folder / "one.kev", "$a=1\r\n");
  EXPECT_EQ(SavedTemplateText(folder / "one.kev"), "$a=1\r\n");
}

// --- Combocol
// ---------------------------------------------------------------------------------------------------

TEST_F(ColumnCommandsTest, TheCurrentObjectIsTiedToTheChosenColumn) {
  SetColumns({{"$Col_01", 2400, ""}});
  const int row = AddLabel(document_, "100", 0, "x");
  document_.Objects.CurrentObject = row;
  services_.OnPush = [&] { EXPECT_EQ(Record(row).XValue, "100"); };
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(row).XValue, "$Col_01");
  EXPECT_EQ(services_.Calls, (Calls{"push", "repaint", "rulers"}));
}

TEST_F(ColumnCommandsTest, ALineKeepsItsWidth) {
  SetColumns({{"$Col_01", 2400, ""}});
  const int row = AddLine("100", "$Other + 7", 600);
  document_.Objects.CurrentObject = row;
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(row).XValue, "$Col_01");
  EXPECT_EQ(Record(row).X2Value, "3000");
}

TEST_F(ColumnCommandsTest, OnlyALineGetsASecondEnd) {
  SetColumns({{"$Col_01", 2400, ""}});
  const int row = AddRow(document_, ObjectKind::Box, "100", 0, 600, 600);
  document_.Objects.CurrentObject = row;
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(row).X2Value, "");
}

TEST_F(ColumnCommandsTest, AGroupIsTiedAfterOneSnapshot) {
  SetColumns({{"$Col_01", 2400, ""}});
  const int label = AddLabel(document_, "100", 0, "x");
  const int alone = AddLabel(document_, "200", 0, "y");
  const int line = AddLine("100", "400", 300);
  Select({label, line});
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(label).XValue, "$Col_01");
  EXPECT_EQ(Record(alone).XValue, "200");
  EXPECT_EQ(Record(line).X2Value, "2700");
  EXPECT_EQ(services_.Count("push"), 1);
}

TEST_F(ColumnCommandsTest, WithNothingSelectedNothingHappens) {
  SetColumns({{"$Col_01", 2400, ""}});
  AddLabel(document_, "100", 0, "x");
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(1).XValue, "100");
  EXPECT_TRUE(services_.Calls.empty());
  EXPECT_EQ(services_.List.Text, "$Col_01 = 2400");
}

TEST_F(ColumnCommandsTest, BandsTakeNoColumn) {
  SetColumns({{"$Col_01", 2400, ""}});
  const int bar = AddSubsection(document_, "[DATA]", 0, 500);
  document_.Objects.CurrentObject = bar;
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(bar).XValue, "0");
  const int label = AddLabel(document_, "100", 0, "x");
  Select({bar, Record(bar).EndRow, label});
  Use("$Col_01 = 2400");
  EXPECT_EQ(Record(bar).XValue, "0");
  EXPECT_EQ(Record(Record(bar).EndRow).XValue, "0");
  EXPECT_EQ(Record(label).XValue, "$Col_01");
}

}  // namespace
}  // namespace kev
