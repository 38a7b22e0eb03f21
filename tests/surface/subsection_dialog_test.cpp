// SPDX-License-Identifier: MIT
#include "surface/subsection_dialog.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "base/text_numbers.h"
#include "document/sections.h"
#include "support/documents.h"
#include "support/recording_surface.h"
#include "support/templates.h"

namespace kev {
namespace {

using test::Lines;
using testing::ElementsAre;
using testing::IsEmpty;

// Keeps the document as it stood at each push, and lays the page out as the designer does.
class Services final : public PageServices {
 public:
  explicit Services(Document& document) : document_(document) {}
  std::vector<ObjectTable> Levels;
  std::vector<int> Boxes;
  int BandChanges = 0;

  void PushUndo() override { Levels.push_back(document_.Objects); }
  void MarkChanged() override {}
  void FullRepaint() override { DeriveGeometry(document_); }
  void BandsChanged() override {
    ++BandChanges;
    NormaliseSubsections(document_, SetSortKeys(document_));
    FullRepaint();
  }
  void BuildRulers() override {}
  void SelectionChanged() override {}
  void CommandsChanged() override {}
  const std::string& Text(int) const override { return text_; }
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons) override {
    EXPECT_EQ(icon, BoxIcon::Critical);
    Boxes.push_back(textNumber);
    return BoxAnswer::Ok;
  }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 private:
  Document& document_;
  std::string text_;
};

const std::vector<RecordType> kTypes = {{"CUSTOMER", 1, 2}, {"Items", 4, 3}, {"END", 1, 0}};

class SubsectionDialogTest : public testing::Test {
 protected:
  void Read(std::initializer_list<std::string_view> lines) {
    document_ = test::ReadText(Lines(lines)).Read;
    DeriveGeometry(document_);
  }
  // Header, data with two subsections, footer, each with something in it.
  void ReadPage() {
    Read({"[CONFIGURATION]", "KEXVER=4", "[HEADER]", "{Spacing=400;\\n}", "[DATA]", "{Spacing=300;\\n}",
          "[ITEMS:@code,@text]", "{100;}First{}", "{Spacing=500;\\n}", "[TOTAL]", "{200;}Sum{}",
          "{Spacing=600;\\n}", "[FOOTER]", "{100;}Foot{}", "{Spacing=400;\\n}"});
  }
  SubsectionDialog New(BaseSection section = BaseSection::Data) {
    return OpenNewSubsection(document_, kTypes, "Field", section);
  }
  SubsectionDialog Open(int row) { return OpenSubsection(document_, row, kTypes, "Field"); }
  bool Accept(SubsectionDialog& dialog) {
    PageWork work{document_, pointer_, surface_, services_, measurer_, 1, DisplayFilter::All, {}, 0, 0};
    return AcceptSubsection(work, dialog);
  }
  int RowNamed(std::string_view name) const {
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
      const ObjectRecord& record = document_.Objects[row];
      if (record.Kind == ObjectKind::Subsection && record.SectionName == name) return row;
    }
    ADD_FAILURE() << "no subsection " << name;
    return 0;
  }
  const ObjectRecord& Label(std::string_view text) const {
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
      if (document_.Objects[row].Kind == ObjectKind::Label && document_.Objects[row].Content == text)
        return document_.Objects[row];
    }
    ADD_FAILURE() << "no label " << text;
    return document_.Objects[0];
  }
  // The titles of the bars from top to bottom.
  std::vector<std::string> Titles() const {
    std::map<std::int32_t, std::string> byPlace;
    for (const ObjectRecord* bar : test::RowsOfKind(document_, ObjectKind::Subsection))
      byPlace[bar->AbsoluteY] = bar->SectionTitle;
    std::vector<std::string> titles;
    for (const auto& [place, title] : byPlace)
      titles.push_back(title);
    return titles;
  }
  void ExpectRefused(SubsectionDialog& dialog, int textNumber) {
    const ObjectTable before = document_.Objects;
    services_.Boxes.clear();
    EXPECT_FALSE(Accept(dialog));
    EXPECT_THAT(services_.Boxes, ElementsAre(textNumber));
    EXPECT_THAT(services_.Levels, IsEmpty());
    EXPECT_EQ(services_.BandChanges, 0);
    for (int row = 1; row <= before.LastScanned(); ++row)
      ASSERT_EQ(document_.Objects[row], before[row]) << row;
  }

  Document document_;
  PointerState pointer_;
  test::RecordingSurface surface_;
  BuiltInMeasurer measurer_;
  Services services_{document_};
};

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

// --- OK on a new one
// ----------------------------------------------------------------------------------------

TEST_F(SubsectionDialogTest, MakesABarWithItsEndRow) {
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

TEST_F(SubsectionDialogTest, PutsItBehindTheLastOfItsSectionAndMakesRoom) {
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

TEST_F(SubsectionDialogTest, PutsItAtTheBottomWhereTheSectionHasNoBar) {
  Read({"[HEADER]", "{Spacing=400;\\n}", "[DATA]", "{Spacing=300;\\n}"});
  SubsectionDialog dialog = New(BaseSection::Footer);
  dialog.Name = "PAGE";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_THAT(Titles(), ElementsAre("[HEADER]", "[DATA]", "[FOOTER] [PAGE:]"));
}

TEST_F(SubsectionDialogTest, MakesTheFirstBarOfAnEmptyTable) {
  SubsectionDialog dialog = New();
  dialog.Name = "ONLY";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[dialog.NewRow].AbsoluteY, 0);
  EXPECT_EQ(document_.Objects[1].SectionName, "ONLY");
  EXPECT_EQ(document_.Objects[1].EndRow, 2);
}

TEST_F(SubsectionDialogTest, TakesFreeRowsAndTheSnapshotBeforeThem) {
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

TEST_F(SubsectionDialogTest, GivesANameWhereNoneIsTyped) {
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

TEST_F(SubsectionDialogTest, StoresTheStart) {
  ReadPage();
  SubsectionDialog dialog = New();
  dialog.Name = "FIXED";
  dialog.AtCurrentPosition = false;
  dialog.Start = "0";
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[dialog.NewRow].StartY, "1");
  EXPECT_EQ(document_.Objects[dialog.NewRow].Content, "[DATA] [FIXED:] [Starts in position: 1]");
}

TEST_F(SubsectionDialogTest, AFullTableThrows) {
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

TEST_F(SubsectionDialogTest, RenamingCarriesTheOwnedRows) {
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

TEST_F(SubsectionDialogTest, RenamingOneOfTwoNamesakesLeavesTheRowsOfTheOther) {
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

TEST_F(SubsectionDialogTest, ARowOutsideItsBodyIsCarriedToo) {
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

TEST_F(SubsectionDialogTest, ChangedFieldsChangeTheHeadLine) {
  ReadPage();
  const int bar = RowNamed("TOTAL]");
  SubsectionDialog dialog = Open(bar);
  TypeFields(dialog, "@net");
  ASSERT_TRUE(Accept(dialog));
  EXPECT_EQ(document_.Objects[bar].SectionTitle, "[DATA] [TOTAL:@net]");
  EXPECT_EQ(document_.Objects[bar].SectionName, "TOTAL");
  EXPECT_EQ(Label("Sum").OwnerName, "TOTAL");
}

TEST_F(SubsectionDialogTest, AChangedStartLeavesTheHeadLine) {
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

TEST_F(SubsectionDialogTest, TheShortFormStoresTheStartAlone) {
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

TEST_F(SubsectionDialogTest, NothingChangedLeavesNoLevel) {
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

TEST_F(SubsectionDialogTest, ANewSubsectionComesBackFromTheFile) {
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

TEST_F(SubsectionDialogTest, ARenamedSubsectionComesBackWithItsObjects) {
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
