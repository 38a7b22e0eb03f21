// SPDX-License-Identifier: MIT
#include "app/compare_documents.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

int Add(Document& document, ObjectKind kind, const std::string& content, std::int32_t y,
        const std::string& owner = "ITEMS") {
  const int row = document.Objects.TakeFreeRow();
  ObjectRecord& record = document.Objects[row];
  record.Kind = kind;
  record.Content = content;
  record.XValue = "100";
  record.Y = y;
  record.OwnerName = owner;
  return row;
}

int AddSubsection(Document& document, const std::string& name, const std::string& title) {
  const int row = document.Objects.TakeFreeRow();
  ObjectRecord& record = document.Objects[row];
  record.Kind = ObjectKind::Subsection;
  record.SectionTitle = title;
  record.SectionName = name;
  record.SectionOwner = "[DATA]";
  return row;
}

class ComparingDocuments : public testing::Test {
 protected:
  DocumentChanges Compare() const { return CompareDocuments(first_, second_, Strangers::Leave); }

  Document first_, second_;
};

TEST_F(ComparingDocuments, EqualDocumentsHaveNoChanges) {
  for (Document* document : {&first_, &second_})
    Add(*document, ObjectKind::Label, "A", 0);
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparingDocuments, AnObjectThatMovedIsTheSameObject) {
  Add(first_, ObjectKind::Box, "", 0);
  Add(second_, ObjectKind::Box, "", 300);
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Objects.size(), 1U);
  ASSERT_EQ(changes.Objects[0].Fields.size(), 1U);
  EXPECT_EQ(changes.Objects[0].Fields[0].Field, "Y");
  EXPECT_EQ(changes.Objects[0].Fields[0].Before, "0");
  EXPECT_EQ(changes.Objects[0].Fields[0].After, "300");
}

TEST_F(ComparingDocuments, RowsThatAllMovedKeepTheirOwnWords) {
  for (const char* words : {"A", "B", "C"}) {
    const std::int32_t y = (words[0] - 'A') * 200;
    Add(first_, ObjectKind::Label, words, y);
    Add(second_, ObjectKind::Label, words, y + 200);
  }
  Add(second_, ObjectKind::Label, "new", 0);
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Objects.size(), 4U);
  for (std::size_t at = 0; at < 3; ++at)
    EXPECT_EQ(changes.Objects[at].Fields.at(0).Field, "Y");
  EXPECT_EQ(changes.Objects[3].Before, 0);
}

TEST_F(ComparingDocuments, NewWordsAtTheSamePlaceAreAChange) {
  Add(first_, ObjectKind::Label, "A", 0);
  Add(second_, ObjectKind::Label, "B", 0);
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Objects.size(), 1U);
  EXPECT_EQ(changes.Objects[0].Fields.at(0).Field, "Content");
}

TEST_F(ComparingDocuments, StrangersArePairedOnlyWhereThatIsAskedFor) {
  const int lost = Add(first_, ObjectKind::Label, "A", 0);
  const int made = Add(second_, ObjectKind::Label, "B", 900);
  const DocumentChanges left = Compare();
  ASSERT_EQ(left.Objects.size(), 2U);
  EXPECT_EQ(left.Objects[0].Before, lost);
  EXPECT_EQ(left.Objects[0].After, 0);
  EXPECT_EQ(left.Objects[1].Before, 0);
  EXPECT_EQ(left.Objects[1].After, made);
  const DocumentChanges paired = CompareDocuments(first_, second_, Strangers::Pair);
  ASSERT_EQ(paired.Objects.size(), 1U);
  EXPECT_EQ(paired.Objects[0].Fields.size(), 2U);
}

TEST_F(ComparingDocuments, AnotherKindAtTheSamePlaceNamesTheKindsAlone) {
  Add(first_, ObjectKind::Label, "A", 0);
  Add(second_, ObjectKind::Barcode, "A", 0);
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Objects.size(), 1U);
  ASSERT_EQ(changes.Objects[0].Fields.size(), 1U);
  EXPECT_EQ(changes.Objects[0].Fields[0].Field, "Kind");
  EXPECT_EQ(changes.Objects[0].Fields[0].After, "BARCODE");
}

TEST_F(ComparingDocuments, ASubsectionThatIsRenamedKeepsItsObjects) {
  AddSubsection(first_, "ITEMS", "[DATA] [ITEMS:]");
  AddSubsection(second_, "LINES", "[DATA] [LINES:]");
  Add(first_, ObjectKind::Label, "A", 0, "ITEMS");
  Add(second_, ObjectKind::Label, "A", 0, "LINES");
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Objects.size(), 1U);
  EXPECT_EQ(changes.Objects[0].Fields.at(0).Field, "SectionTitle");
}

TEST_F(ComparingDocuments, ASubsectionOfManyThatIsGoneIsNotTakenForANewOne) {
  for (const char* name : {"A", "B"})
    AddSubsection(first_, name, name);
  for (const char* name : {"C", "D"})
    AddSubsection(second_, name, name);
  EXPECT_EQ(Compare().Objects.size(), 4U);
}

TEST_F(ComparingDocuments, EachRowOfTheSecondDocumentKnowsItsPartner) {
  const int moved = Add(first_, ObjectKind::Label, "A", 0);
  const int made = Add(second_, ObjectKind::Label, "B", 0);
  const int there = Add(second_, ObjectKind::Label, "A", 300);
  const std::vector<int> partners = Compare().Partners;
  EXPECT_EQ(partners.at(static_cast<std::size_t>(there)), moved);
  EXPECT_EQ(partners.at(static_cast<std::size_t>(made)), 0);
}

TEST_F(ComparingDocuments, SettingsAndColumnsNameBothValues) {
  second_.Settings[Setting::Copies] = "3";
  first_.Columns[1] = {"$A", 100, ""};
  second_.Columns[4] = {"$A", 150, ""};
  second_.Columns[5] = {"$B", 7, ""};
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Settings.size(), 1U);
  EXPECT_EQ(changes.Settings[0].Id, Setting::Copies);
  EXPECT_EQ(changes.Settings[0].After, "3");
  ASSERT_EQ(changes.Columns.size(), 2U);
  EXPECT_EQ(changes.Columns[0].Before, 100);
  EXPECT_EQ(changes.Columns[0].After, 150);
  EXPECT_FALSE(changes.Columns[1].Before);
}

TEST_F(ComparingDocuments, AColumnThatStandsTwiceIsComparedWithEither) {
  for (Document* document : {&first_, &second_}) {
    document->Columns[1] = {"$A", 100, ""};
    document->Columns[2] = {"$A", 200, ""};
  }
  EXPECT_TRUE(Compare().None());
  second_.Columns[3] = {"$A", 300, ""};
  const DocumentChanges changes = Compare();
  ASSERT_EQ(changes.Columns.size(), 1U);
  EXPECT_FALSE(changes.Columns[0].Before);
  EXPECT_EQ(changes.Columns[0].After, 300);
}

}  // namespace
}  // namespace kev
