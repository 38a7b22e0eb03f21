// SPDX-License-Identifier: MIT
#include "surface/column_dialogs.h"

#include <gtest/gtest.h>

#include "document/position.h"
#include "support/column_page.h"

namespace kev {
namespace {

using test::AddLabel;

using Calls = std::vector<std::string>;

// --- inscol01
// -----------------------------------------------------------------------------------------------------

class ColumnsDialogTest : public test::ColumnPageTest {
 protected:
  void Open() { dialog_ = OpenedColumnsDialog(document_); }
  void Choose(int item) { ChooseColumn(dialog_, item); }
  void Accept(std::string position) {
    dialog_.colposition = std::move(position);
    PageWork work = Work();
    AddOrModifyColumn(work, dialog_);
  }
  void Remove() {
    PageWork work = Work();
    RemoveChosenColumn(work, dialog_);
  }
  // Empty but for the proposal, and adding.
  void ExpectEmptied(const std::string& proposal) const {
    EXPECT_EQ(dialog_.colname, proposal);
    EXPECT_EQ(dialog_.colposition, "");
    EXPECT_EQ(dialog_.Command1, kTextColumnAdd);
    EXPECT_FALSE(dialog_.Command3);
    EXPECT_EQ(dialog_.Chosen, -1);
  }

  ColumnsDialog dialog_;
};

TEST_F(ColumnsDialogTest, OpensWithTheColumnsAndAProposal) {
  SetColumns({{"$Col_01", 2400, ""}, {}, {"$x", 0.5, ""}});
  Open();
  EXPECT_EQ(dialog_.List1, (Calls{"$Col_01=2400", "$x=0.5"}));
  ExpectEmptied("$Col_03");
}

TEST_F(ColumnsDialogTest, TheProposalCountsAndMayBeTaken) {
  SetColumns({{}, {"$Col_02", 2, ""}, {"$Col_03", 3, ""}});
  Open();
  ExpectEmptied("$Col_03");
}

TEST_F(ColumnsDialogTest, ATakenProposalIsAddedASecondTime) {
  SetColumns({{}, {"$Col_02", 2, ""}, {"$Col_03", 3, ""}});
  Open();
  Accept("700");
  EXPECT_EQ(Columns(), "$Col_03=700 $Col_02=2 $Col_03=3");
  EXPECT_EQ(services_.Boxes, std::vector<int>());
}

TEST_F(ColumnsDialogTest, AClickedItemIsShownToBeModified) {
  SetColumns({{"$Col_01", 2400, ""}, {"$x", 12.5, ""}});
  Open();
  Choose(1);
  EXPECT_EQ(dialog_.colname, "$x");
  EXPECT_EQ(dialog_.colposition, "12.5");
  EXPECT_EQ(dialog_.Command1, kTextColumnModify);
  EXPECT_TRUE(dialog_.Command3);
}

TEST_F(ColumnsDialogTest, AddingTakesTheFirstFreeSlot) {
  SetColumns({{"$a", 1, ""}, {}, {"$c", 3, ""}});
  Open();
  Accept("1200");
  EXPECT_EQ(Columns(), "$a=1 $Col_03=1200 $c=3");
  EXPECT_EQ(dialog_.List1, (Calls{"$a=1", "$Col_03=1200", "$c=3"}));
  ExpectEmptied("$Col_04");
}

TEST_F(ColumnsDialogTest, ThePlaceIsRawUntilTheNextSync) {
  zoom_ = 2;
  Open();
  Accept("1200");
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 1200 0 15 9000"));
  EXPECT_TRUE(surface_.Has("show linecolumn(1)"));
  PageWork work = Work();
  SyncColumnLines(work);
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 2400 0 15 9000"));
}

TEST_F(ColumnsDialogTest, AddingPushesFirstAndPaintsPageAndRulersLast) {
  Open();
  services_.OnPush = [&] { EXPECT_EQ(Columns(), ""); };
  Accept("1200");
  EXPECT_EQ(services_.Calls, (Calls{"push", "repaint", "rulers"}));
}

TEST_F(ColumnsDialogTest, APositionOfZeroIsRefusedAndTheSnapshotStays) {
  Open();
  for (const char* refused : {"0", "", "abc", "$Col_01", "  "}) {
    services_.Calls.clear();
    Accept(refused);
    EXPECT_EQ(services_.Calls, (Calls{"push", "box 777"})) << refused;
    EXPECT_EQ(services_.LastIcon, BoxIcon::Critical);
    EXPECT_EQ(dialog_.colposition, refused);
    EXPECT_EQ(dialog_.colname, "$Col_01");
  }
  EXPECT_EQ(Columns(), "");
}

TEST_F(ColumnsDialogTest, ThePositionIsTheNumberAtTheStart) {
  Open();
  Accept(" 100abc");
  Accept("-20.5");
  EXPECT_EQ(Columns(), "$Col_01=100 $Col_02=-20.5");
}

TEST_F(ColumnsDialogTest, ANameWithoutDollarGetsOne) {
  Open();
  dialog_.colname = " name ";
  Accept("100");
  EXPECT_EQ(Columns(), "$name=100");
}

TEST_F(ColumnsDialogTest, WithAllSlotsUsedNothingIsStoredAndNothingSaid) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    document_.Columns[slot] = {GeneratedColumnName(slot), 10.0 * slot, ""};
  const ColumnTable before = document_.Columns;
  Open();
  EXPECT_EQ(dialog_.colname, "$Col_101");
  Accept("5");
  EXPECT_EQ(document_.Columns, before);
  EXPECT_TRUE(services_.Boxes.empty());
  ExpectEmptied("$Col_102");
}

TEST_F(ColumnsDialogTest, ModifyingMovesEverySlotOfThatName) {
  SetColumns({{"$a", 1, ""}, {"$b", 2, ""}, {"$A", 3, ""}});
  Open();
  Choose(0);
  Accept("77");
  EXPECT_EQ(Columns(), "$a=77 $b=2 $A=77");
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 77 "));
  EXPECT_FALSE(surface_.Has("place linecolumn(2)"));
  EXPECT_TRUE(surface_.Has("place linecolumn(3) 77 "));
  ExpectEmptied("$Col_04");
  EXPECT_EQ(services_.Calls, (Calls{"push", "repaint", "rulers"}));
}

TEST_F(ColumnsDialogTest, ARefusedModificationKeepsTheChoice) {
  SetColumns({{"$a", 1, ""}});
  Open();
  Choose(0);
  Accept("0");
  EXPECT_EQ(dialog_.Chosen, 0);
  EXPECT_EQ(dialog_.Command1, kTextColumnModify);
  EXPECT_EQ(Columns(), "$a=1");
}

TEST_F(ColumnsDialogTest, RemovingTakesNoSnapshotAndLetsObjectsFallToZero) {
  SetColumns({{"$a", 1000, ""}, {"$b", 2000, ""}});
  const int row = AddLabel(document_, "$a", 0, "x");
  pointer_.ColumnText = "$a = 1000";
  Open();
  Choose(0);
  Remove();
  EXPECT_EQ(Columns(), "$b=2000");
  EXPECT_EQ(Record(row).XValue, "$a");
  EXPECT_EQ(PositionOrZero(Record(row).XValue, document_.Columns), 0);
  EXPECT_EQ(services_.Count("push"), 0);
  EXPECT_EQ(services_.Count("changed"), 1);
  EXPECT_EQ(services_.List.Text, "");
  EXPECT_TRUE(surface_.Has("place linecolumn(1) -2000 "));
  EXPECT_TRUE(surface_.Has("hide linecolumn(1)"));
}

TEST_F(ColumnsDialogTest, RemovingTheFirstOfThreeProposesANameInUse) {
  SetColumns({{"$Col_01", 1, ""}, {"$Col_02", 2, ""}, {"$Col_03", 3, ""}});
  Open();
  Choose(0);
  Remove();
  ExpectEmptied("$Col_03");
  EXPECT_EQ(dialog_.List1, (Calls{"$Col_02=2", "$Col_03=3"}));
}

TEST_F(ColumnsDialogTest, OnlyTheFirstSlotOfANameIsRemoved) {
  SetColumns({{"$a", 1, ""}, {"$b", 2, ""}, {"$A", 3, ""}});
  Open();
  Choose(2);
  Remove();
  EXPECT_EQ(Columns(), "$b=2 $A=3");
}

TEST_F(ColumnsDialogTest, WithNothingChosenNothingIsRemoved) {
  SetColumns({{"$a", 1, ""}});
  Open();
  Remove();
  EXPECT_EQ(Columns(), "$a=1");
  EXPECT_TRUE(services_.Calls.empty());
}

TEST_F(ColumnsDialogTest, OrganisingShowsTheNewColumns) {
  SetColumns({{"$a", 3000, ""}, {"$b", 1000, ""}});
  Open();
  Choose(1);
  PageWork work = Work();
  OrganizeFromDialog(work, dialog_, [] { return std::string(); });
  EXPECT_EQ(dialog_.List1, (Calls{"$Col_01=1000", "$Col_02=3000"}));
  ExpectEmptied("$Col_03");
  EXPECT_EQ(services_.Boxes, std::vector<int>{771});
}

// --- SetThisColumn
// ------------------------------------------------------------------------------------------------

class SetColumnTest : public test::ColumnPageTest {
 protected:
  SetColumnTest() { SetColumns({{"$Col_01", 2400, ""}, {"$Col_02", 3000, ""}}); }

  bool Accept(const std::string& name, const std::string& position = "2400", const std::string& saved = {}) {
    dialog_ = OpenedSetColumnDialog(document_, 1);
    dialog_.Text2 = name;
    dialog_.Text1 = position;
    PageWork work = Work();
    return AcceptSetColumn(work, dialog_, [&] { return saved; });
  }
  void ExpectRefused(const std::string& name, int text) {
    services_.Calls.clear();
    const ColumnTable before = document_.Columns;
    EXPECT_FALSE(Accept(name, "7")) << name;
    EXPECT_EQ(services_.Calls, Calls{"box " + std::to_string(text)}) << name;
    EXPECT_EQ(services_.LastIcon, BoxIcon::Critical);
    EXPECT_EQ(document_.Columns, before);
  }

  SetColumnDialog dialog_;
};

TEST_F(SetColumnTest, OpensWithNameAndPosition) {
  const SetColumnDialog dialog = OpenedSetColumnDialog(document_, 2);
  EXPECT_EQ(dialog.Text2, "$Col_02");
  EXPECT_EQ(dialog.Text1, "3000");
}

TEST_F(SetColumnTest, TheSameNameInAnotherCaseRenamesNothing) {
  const int row = AddLabel(document_, "$Col_01", 0, "x");
  EXPECT_TRUE(Accept(" $COL_01 ", "500", "$Col_01=2400"));
  EXPECT_EQ(Columns(), "$COL_01=500 $Col_02=3000");
  EXPECT_EQ(Record(row).XValue, "$Col_01");
  EXPECT_TRUE(services_.Boxes.empty());
}

TEST_F(SetColumnTest, AcceptingTakesNoSnapshotAndPaintsPageAndRulers) {
  EXPECT_TRUE(Accept("$Col_01", "500"));
  EXPECT_EQ(services_.Calls, (Calls{"changed", "repaint", "rulers"}));
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 500 0 15 9000"));
}

TEST_F(SetColumnTest, ThePlaceIsRawUntilTheNextSync) {
  zoom_ = 2;
  EXPECT_TRUE(Accept("$Col_01", "500"));
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 500 "));
}

TEST_F(SetColumnTest, ThePositionIsTheNumberAtTheStartAndMayBeZero) {
  EXPECT_TRUE(Accept("$Col_01", "12 + 3"));
  EXPECT_EQ(Columns(), "$Col_01=12 $Col_02=3000");
  EXPECT_TRUE(Accept("$Col_01", "abc"));
  EXPECT_EQ(Columns(), "$Col_01=0 $Col_02=3000");
}

TEST_F(SetColumnTest, ANameWithoutDollarGetsOne) {
  EXPECT_TRUE(Accept(" Total "));
  EXPECT_EQ(Columns(), "$Total=2400 $Col_02=3000");
}

TEST_F(SetColumnTest, AnEmptyNameBecomesTheDollarAlone) {
  EXPECT_TRUE(Accept("  "));
  EXPECT_EQ(Columns(), "$=2400 $Col_02=3000");
  EXPECT_TRUE(services_.Boxes.empty());
}

TEST_F(SetColumnTest, NamesThatNoFileCouldHoldAreRefused) {
  for (const char* name : {"$a b", "a,b", "$a;", "$a=5", "$a{", "}", "$a\tb"})
    ExpectRefused(name, 946);
  document_.Settings[Setting::Open] = "<";
  document_.Settings[Setting::Close] = ">";
  ExpectRefused("$a<", 946);
  ExpectRefused("$a>", 946);
  EXPECT_TRUE(Accept("$a{"));
}

TEST_F(SetColumnTest, ANameInUseIsRefusedInAnyCase) {
  ExpectRefused("$COL_02", 945);
  ExpectRefused("col_02", 945);
}

TEST_F(SetColumnTest, ItsOwnNameWithoutDollarIsNotTaken) {
  EXPECT_TRUE(Accept("Col_01", "5"));
  EXPECT_EQ(Columns(), "$Col_01=5 $Col_02=3000");
}

TEST_F(SetColumnTest, EachLineOfTheFileThatNamesTheColumnIsAskedFor) {
  services_.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
  EXPECT_TRUE(Accept("$New", "5", "$Col_01=2400\r\n$Col_02=3000\r\n{$COL_01;}$Col_01 twice\r\n"));
  EXPECT_EQ(services_.Boxes, (std::vector<int>{944, 944}));
  EXPECT_EQ(services_.LastIcon, BoxIcon::Warning);
  EXPECT_EQ(services_.LastButtons, BoxButtons::YesNoYesToAll);
  EXPECT_EQ(Columns(), "$New=5 $Col_02=3000");
}

TEST_F(SetColumnTest, NoStopsWithNothingChanged) {
  const int row = AddLabel(document_, "$Col_01", 0, "x");
  services_.Answers = {BoxAnswer::Yes, BoxAnswer::No};
  EXPECT_FALSE(Accept("$New", "5", "$Col_01\n$Col_01\n$Col_01"));
  EXPECT_EQ(services_.Calls, (Calls{"box 944", "box 944"}));
  EXPECT_EQ(Columns(), "$Col_01=2400 $Col_02=3000");
  EXPECT_EQ(Record(row).XValue, "$Col_01");
}

TEST_F(SetColumnTest, YesToAllAnswersTheRest) {
  services_.Answers = {BoxAnswer::YesToAll};
  EXPECT_TRUE(Accept("$New", "5", "$Col_01\n$Col_01\n$Col_01"));
  EXPECT_EQ(services_.Boxes, std::vector<int>{944});
}

TEST_F(SetColumnTest, RefusedNamesAreToldBeforeTheFileIsRead) {
  dialog_ = OpenedSetColumnDialog(document_, 1);
  dialog_.Text2 = "$Col_02";
  bool read = false;
  PageWork work = Work();
  EXPECT_FALSE(AcceptSetColumn(work, dialog_, [&] {
    read = true;
    return std::string();
  }));
  EXPECT_FALSE(read);
}

TEST_F(SetColumnTest, ObjectsTakeTheNewName) {
  const int plain = AddLabel(document_, "$col_01", 0, "x");
  const int step = AddLabel(document_, "$COL_01 + 120", 0, "x");
  const int blank = AddLabel(document_, " $Col_01", 0, "x");
  const int other = AddLabel(document_, "$Col_010", 0, "x");
  const int second = AddLabel(document_, "5 $Col_01", 0, "x");
  EXPECT_TRUE(Accept("New"));
  EXPECT_EQ(Record(plain).XValue, "$New");
  EXPECT_EQ(Record(step).XValue, "$New + 120");
  EXPECT_EQ(Record(blank).XValue, "$New");
  EXPECT_EQ(Record(other).XValue, "$Col_010");
  EXPECT_EQ(Record(second).XValue, "5 $New");
}

TEST_F(SetColumnTest, ASecondEndKeepsTheOldName) {
  const int row = AddLine("$Col_01", "$Col_01 + 500", 500);
  EXPECT_TRUE(Accept("$New"));
  EXPECT_EQ(Record(row).XValue, "$New");
  EXPECT_EQ(Record(row).X2Value, "$Col_01 + 500");
}

}  // namespace
}  // namespace kev
