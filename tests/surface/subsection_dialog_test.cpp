// SPDX-License-Identifier: MIT
// What the dialog shows, what its controls do, and what it refuses.
#include "surface/subsection_dialog.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "base/text_numbers.h"
#include "surface/subsection_fixture.h"

namespace kev {
namespace {

using test::SubsectionDialogTest;
using testing::ElementsAre;
using testing::IsEmpty;

// --- What is shown
// ------------------------------------------------------------------------------------------

std::vector<std::string> Shown(const SubsectionDialog& dialog) {
  std::vector<std::string> texts;
  for (const SubsectionEntry& entry : ListedEntries(dialog))
    texts.push_back(entry.What == SubsectionEntry::Type::New ? "(new)" : entry.Text);
  return texts;
}

TEST_F(SubsectionDialogTest, ListsTheSectionsTheirSubsectionsAndTheNewOneWhereItWillStand) {
  ReadPage();
  SubsectionDialog dialog = New();
  EXPECT_THAT(Shown(dialog), ElementsAre("[Configuration]", "[Header]", "[Data]", "[ITEMS:@code,@text]",
                                         "[TOTAL]", "(new)", "[Footer]"));
  EXPECT_TRUE(ChooseSection(dialog, BaseSection::Header));
  EXPECT_THAT(Shown(dialog), ElementsAre("[Configuration]", "[Header]", "(new)", "[Data]",
                                         "[ITEMS:@code,@text]", "[TOTAL]", "[Footer]"));
}

TEST_F(SubsectionDialogTest, ListsNoNewOneWhileAnExistingOneIsOpen) {
  ReadPage();
  EXPECT_THAT(Shown(Open(RowNamed("ITEMS"))), ElementsAre("[Configuration]", "[Header]", "[Data]",
                                                          "[ITEMS:@code,@text]", "[TOTAL]", "[Footer]"));
}

TEST_F(SubsectionDialogTest, ListsEachRowOfTheDocument) {
  Read({"[CONFIGURATION]", "[EXTRA]", "[HEADER]", "[DATA]", "[DATA]"});
  std::vector<std::string> texts;
  std::vector<int> rows;
  for (const SubsectionEntry& entry : New().Existing) {
    texts.push_back(entry.Text);
    rows.push_back(entry.Row);
  }
  EXPECT_THAT(texts, ElementsAre("[Configuration]", "[EXTRA]", "[Header]", "[Data]", "[DATA]", "[Footer]"));
  EXPECT_EQ(std::count(rows.begin(), rows.end(), 0), 1) << "the footer has no bar";
}

TEST_F(SubsectionDialogTest, TheConfigurationIsListedAndNeverChosen) {
  ReadPage();
  SubsectionDialog dialog = New();
  EXPECT_FALSE(ChooseSection(dialog, BaseSection::Configuration));
  EXPECT_EQ(dialog.Section, BaseSection::Data);
  EXPECT_EQ(New(BaseSection::Configuration).Section, BaseSection::Data);
  int configuration = 0;
  for (const SubsectionEntry& entry : dialog.Existing) {
    if (entry.Text == "[Configuration]") configuration = entry.Row;
  }
  ASSERT_NE(configuration, 0);
  EXPECT_FALSE(CanOpenSubsection(document_, configuration));
}

TEST_F(SubsectionDialogTest, OpensForSubsectionsAlone) {
  ReadPage();
  const int bar = RowNamed("ITEMS");
  EXPECT_TRUE(CanOpenSubsection(document_, bar));
  EXPECT_TRUE(CanOpenSubsection(document_, RowNamed("HEADER]")));
  EXPECT_FALSE(CanOpenSubsection(document_, document_.Objects[bar].EndRow));
  EXPECT_FALSE(CanOpenSubsection(document_, 0));
}

TEST_F(SubsectionDialogTest, ANewOneBeginsEmptyAtTheCurrentPosition) {
  ReadPage();
  const SubsectionDialog dialog = New();
  EXPECT_EQ(dialog.Row, 0);
  EXPECT_FALSE(dialog.ShortForm);
  EXPECT_EQ(dialog.Name, "");
  EXPECT_TRUE(dialog.AtCurrentPosition);
  EXPECT_THAT(dialog.Fields, IsEmpty());
  ASSERT_EQ(dialog.RecordTypes.size(), 3U);
  EXPECT_EQ(dialog.RecordTypes[0].Name, "CUSTOMER");
  EXPECT_THAT(dialog.RecordTypes[0].Fields, ElementsAre("@Field01", "@Field02"));
  EXPECT_FALSE(dialog.RecordTypes[0].Ticked);
}

TEST_F(SubsectionDialogTest, AnExistingOneShowsWhatItsHeadLineSays) {
  ReadPage();
  const int bar = RowNamed("ITEMS");
  document_.Objects[bar].StartY = "1500";
  const SubsectionDialog dialog = Open(bar);
  EXPECT_EQ(dialog.Row, bar);
  EXPECT_FALSE(dialog.ShortForm);
  EXPECT_EQ(dialog.Section, BaseSection::Data);
  EXPECT_EQ(dialog.Name, "ITEMS");
  EXPECT_THAT(dialog.Fields, ElementsAre("@code", "@text"));
  EXPECT_FALSE(dialog.AtCurrentPosition);
  EXPECT_EQ(dialog.Start, "1500");
  EXPECT_FALSE(dialog.RecordTypes[0].Ticked);
  EXPECT_TRUE(dialog.RecordTypes[1].Ticked) << "the type of its name, in any case";
}

TEST_F(SubsectionDialogTest, AHeadLineWithoutAListHasANameAndNoFields) {
  ReadPage();
  const SubsectionDialog dialog = Open(RowNamed("TOTAL]"));
  EXPECT_EQ(dialog.Name, "TOTAL");
  EXPECT_THAT(dialog.Fields, IsEmpty());
}

TEST_F(SubsectionDialogTest, TheFieldsStandBehindTheLastColon) {
  Read({"[HEADER]", "[DATA]", "[A:B:@c]"});
  const SubsectionDialog dialog = Open(RowNamed("A"));
  EXPECT_EQ(dialog.Name, "A:B");
  EXPECT_THAT(dialog.Fields, ElementsAre("@c"));
}

TEST_F(SubsectionDialogTest, TheThreeSectionsHaveTheShortForm) {
  ReadPage();
  for (const std::string_view name : {"HEADER]", "DATA]", "FOOTER]"})
    EXPECT_TRUE(Open(RowNamed(name)).ShortForm) << name;
}

TEST_F(SubsectionDialogTest, BeginsInTheSectionOfTheCurrentObject) {
  ReadPage();
  const int footer = RowNamed("FOOTER]");
  EXPECT_EQ(SectionOfRow(document_, footer), BaseSection::Footer);
  EXPECT_EQ(SectionOfRow(document_, document_.Objects[footer].EndRow), BaseSection::Footer);
  int foot = 0;
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
    if (document_.Objects[row].Content == "Foot") foot = row;
  }
  EXPECT_EQ(SectionOfRow(document_, foot), BaseSection::Footer);
  EXPECT_EQ(SectionOfRow(document_, RowNamed("HEADER]")), BaseSection::Header);
  EXPECT_EQ(SectionOfRow(document_, 0), BaseSection::Data);
}

// --- What the controls do
// -----------------------------------------------------------------------------------

TEST_F(SubsectionDialogTest, ATickAddsTheFieldsOfTheTypeAndItsNameIfNoneIsTyped) {
  SubsectionDialog dialog = New();
  TickRecordType(dialog, 0, true);
  EXPECT_EQ(dialog.Name, "CUSTOMER");
  EXPECT_THAT(dialog.Fields, ElementsAre("@Field01", "@Field02"));
  TickRecordType(dialog, 1, true);
  EXPECT_EQ(dialog.Name, "CUSTOMER");
  EXPECT_THAT(dialog.Fields, ElementsAre("@Field01", "@Field02", "@Field03"));
}

TEST_F(SubsectionDialogTest, ATickKeepsATypedNameAndTypedFields) {
  SubsectionDialog dialog = New();
  dialog.Name = "MINE";
  TypeFields(dialog, "@own, @Field02");
  TickRecordType(dialog, 0, true);
  EXPECT_EQ(dialog.Name, "MINE");
  EXPECT_THAT(dialog.Fields, ElementsAre("@own", "@Field02", "@Field01"));
}

TEST_F(SubsectionDialogTest, BlanksAreNoTypedName) {
  SubsectionDialog dialog = New();
  dialog.Name = "  ";
  TickRecordType(dialog, 1, true);
  EXPECT_EQ(dialog.Name, "Items");
}

TEST_F(SubsectionDialogTest, TakingATickAwayLeavesWhatAnotherTickGives) {
  SubsectionDialog dialog = New();
  TypeFields(dialog, "@own");
  TickRecordType(dialog, 0, true);
  TickRecordType(dialog, 1, true);
  TickRecordType(dialog, 1, false);
  EXPECT_THAT(dialog.Fields, ElementsAre("@own", "@Field01", "@Field02"));
  TickRecordType(dialog, 0, false);
  EXPECT_THAT(dialog.Fields, ElementsAre("@own"));
}

TEST_F(SubsectionDialogTest, ATypeWithoutValuesGivesItsNameAlone) {
  SubsectionDialog dialog = New();
  TickRecordType(dialog, 2, true);
  EXPECT_EQ(HeadOf(dialog), "[END:]");
}

TEST_F(SubsectionDialogTest, TypedFieldsArePartedByCommasAndLineEnds) {
  SubsectionDialog dialog = New();
  TypeFields(dialog, " @a,@b \r\n\n@c d,,");
  EXPECT_THAT(dialog.Fields, ElementsAre("@a", "@b", "@c d"));
  TypeFields(dialog, "");
  EXPECT_THAT(dialog.Fields, IsEmpty());
}

TEST_F(SubsectionDialogTest, AStartIsWholeTwipsNeverZeroOrTheCurrentPosition) {
  SubsectionDialog dialog = New();
  dialog.Start = "1500";
  EXPECT_EQ(StartOf(dialog), kCurrentYValue);
  dialog.AtCurrentPosition = false;
  struct Row {
    const char* typed;
    std::string_view stored;
  };
  for (const Row& row :
       {Row{"1500", "1500"}, Row{" 1 500 ", "1500"}, Row{"0", "1"}, Row{"0.2", "1"}, Row{"12.6", "13"},
        Row{"-200", "-200"}, Row{"+7", "7"}, Row{".6", "1"}, Row{"1e3", "1000"}, Row{"", kCurrentYValue},
        Row{"   ", kCurrentYValue}, Row{"abc", kCurrentYValue}, Row{"100abc", kCurrentYValue},
        Row{"-", kCurrentYValue}, Row{"+-5", kCurrentYValue}, Row{"inf", kCurrentYValue},
        Row{"$Col_01", kCurrentYValue}}) {
    dialog.Start = row.typed;
    EXPECT_EQ(StartOf(dialog), row.stored) << row.typed;
  }
}

// --- What is refused
// ----------------------------------------------------------------------------------------

TEST_F(SubsectionDialogTest, RefusesReservedCharactersInANameAndChangesNothing) {
  ReadPage();
  for (const char* name : {"A:B", "[A", "A]", "A,B"}) {
    SubsectionDialog dialog = New();
    dialog.Name = name;
    ExpectRefused(dialog, kTextSubsectionNameRefused);
  }
}

TEST_F(SubsectionDialogTest, RefusesAUsedNameInAnyCase) {
  ReadPage();
  for (const char* name : {"ITEMS", " items ", "Total", "data", "HEADER"}) {
    SubsectionDialog dialog = New(BaseSection::Footer);
    dialog.Name = name;
    ExpectRefused(dialog, kTextSubsectionNameUsed);
  }
}

TEST_F(SubsectionDialogTest, RefusesToRenameToNothingOrToAUsedName) {
  ReadPage();
  SubsectionDialog dialog = Open(RowNamed("ITEMS"));
  dialog.Name = "  ";
  ExpectRefused(dialog, kTextSubsectionNameMissing);
  dialog.Name = "total";
  ExpectRefused(dialog, kTextSubsectionNameUsed);
}

TEST_F(SubsectionDialogTest, RefusesFieldsThatWouldNotComeBack) {
  ReadPage();
  for (const char* field : {"@a:b", "@[a", "@a]"}) {
    SubsectionDialog dialog = New();
    dialog.Name = "NEW";
    TypeFields(dialog, field);
    ExpectRefused(dialog, kTextSubsectionFieldRefused);
  }
  SubsectionDialog dialog = New();
  dialog.Name = "NEW";
  dialog.Fields = FieldNames(201, "Field");
  ExpectRefused(dialog, kTextSubsectionTooManyFields);
  dialog.Fields.pop_back();
  EXPECT_TRUE(Accept(dialog));
}

TEST_F(SubsectionDialogTest, DoesNotCheckWhatIsLeftAlone) {
  Read({"[HEADER]", "[DATA]", "[A:B:@c]", "[A:B:@d]"});
  const int first = RowNamed("A");
  SubsectionDialog dialog = Open(first);
  dialog.AtCurrentPosition = false;
  dialog.Start = "900";
  EXPECT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[first].SectionTitle, "[DATA] [A:B:@c]");
  EXPECT_EQ(document_.Objects[first].StartY, "900");
}

}  // namespace
}  // namespace kev
