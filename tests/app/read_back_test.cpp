// SPDX-License-Identifier: MIT
#include "app/read_back.h"

#include <gtest/gtest.h>

#include "chart/definition.h"

namespace kev {
namespace {

int Add(Document& document, ObjectKind kind, const std::string& content, std::int32_t y) {
  const int row = document.Objects.TakeFreeRow();
  ObjectRecord& record = document.Objects[row];
  record.Kind = kind;
  record.Content = content;
  record.XValue = "100";
  record.Y = y;
  record.OwnerName = "[DATA]";
  return row;
}

class ReadingBack : public testing::Test {
 protected:
  ReadingBack() {
    for (Document* document : {&page_, &file_}) {
      Add(*document, ObjectKind::Label, "A", 0);
      Add(*document, ObjectKind::Box, "", 200);
    }
  }

  Document page_, file_;
};

TEST_F(ReadingBack, EqualDocumentsHaveNoFindings) {
  EXPECT_TRUE(CompareReadBack(page_, file_).Same());
}

TEST_F(ReadingBack, TheOrderOfRowsDoesNotMatter) {
  std::swap(file_.Objects[1], file_.Objects[2]);
  EXPECT_TRUE(CompareReadBack(page_, file_).Same());
}

TEST_F(ReadingBack, FormsThatMeanTheSameAreNoDifference) {
  page_.Objects[1].XValue = "0";
  file_.Objects[1].XValue = "0.001";
  page_.Objects[1].Align = "";
  file_.Objects[1].Align = "L";
  page_.Objects[1].CaseMode = "";
  file_.Objects[1].CaseMode = "N";
  page_.Objects[2].LineWidth = 0;
  file_.Objects[2].LineWidth = 1;
  EXPECT_TRUE(CompareReadBack(page_, file_).Same());
}

TEST_F(ReadingBack, APositionThatLosesItsStepIsFound) {
  page_.Objects[1].XValue = "100 + 50";
  ASSERT_EQ(CompareReadBack(page_, file_).Findings.size(), 1U);
  EXPECT_EQ(CompareReadBack(page_, file_).Findings[0].Text, "LABEL XValue: 150 -> 100");
}

TEST_F(ReadingBack, TheBarAboveTheHeaderIsNotComparedWithItsBody) {
  const int row = Add(page_, ObjectKind::Subsection, "", 0);
  page_.Objects[row].SectionOwner = "[CONFIGURATION]";
  page_.Objects[row].SectionName = "CONFIGURATION]";
  EXPECT_TRUE(CompareReadBack(page_, file_).Same());
}

TEST_F(ReadingBack, AChangedValueNamesItsFieldAndItsRow) {
  page_.Objects[1].Strikethrough = kTrue;
  const ReadBack back = CompareReadBack(page_, file_);
  ASSERT_EQ(back.Findings.size(), 1U);
  EXPECT_EQ(back.Findings[0].Row, 1);
  EXPECT_EQ(back.Findings[0].Text, "LABEL Strikethrough: -1 -> 0");
  EXPECT_EQ(back.Findings[0].Kind, FindingKind::ValueChanges);
  EXPECT_FALSE(back.Structure);
}

TEST_F(ReadingBack, WhatAKindNeverShowsIsNotCompared) {
  page_.Objects[2].FontName = "Courier New";
  page_.Objects[1].LineWidth = 4;
  page_.Objects[1].Selected = kTrue;
  page_.Objects[1].SortKey = {7, 7, 7};
  EXPECT_TRUE(CompareReadBack(page_, file_).Same());
}

TEST_F(ReadingBack, LostAndNewObjectsAreStructure) {
  const int lost = Add(page_, ObjectKind::Circle, "", 900);
  const ReadBack back = CompareReadBack(page_, file_);
  ASSERT_EQ(back.Findings.size(), 1U);
  EXPECT_EQ(back.Findings[0].Row, lost);
  EXPECT_TRUE(back.Structure);
  Add(file_, ObjectKind::Label, "new", 500);
  const ReadBack both = CompareReadBack(page_, file_);
  ASSERT_EQ(both.Findings.size(), 2U);
  EXPECT_EQ(both.Findings[0].Kind, FindingKind::ObjectLost);
  EXPECT_EQ(both.Findings[0].Text, "CIRCLE");
  EXPECT_EQ(both.Findings[1].Kind, FindingKind::ObjectAppears);
  EXPECT_EQ(both.Findings[1].Text, "LABEL: new");
}

TEST_F(ReadingBack, ColumnsAreNamedWithTheirPlaces) {
  page_.Columns[1] = {"$Left", 500, ""};
  file_.Columns[1] = {"$Right", 900, ""};
  const ReadBack back = CompareReadBack(page_, file_);
  ASSERT_EQ(back.Findings.size(), 2U);
  EXPECT_EQ(back.Findings[0].Kind, FindingKind::ColumnLost);
  EXPECT_EQ(back.Findings[0].Text, "$Left=500");
  EXPECT_EQ(back.Findings[1].Kind, FindingKind::ColumnAppears);
  EXPECT_EQ(back.Findings[1].Text, "$Right=900");
}

TEST_F(ReadingBack, AnObjectThatComesBackAsAnotherKindIsStructure) {
  file_.Objects[1].Kind = ObjectKind::Barcode;
  const ReadBack back = CompareReadBack(page_, file_);
  ASSERT_EQ(back.Findings.size(), 1U);
  EXPECT_EQ(back.Findings[0].Text, "LABEL -> BARCODE");
  EXPECT_EQ(back.Findings[0].Kind, FindingKind::KindChanges);
  EXPECT_TRUE(back.Structure);
}

TEST_F(ReadingBack, SettingsAndColumnsAreCompared) {
  page_.Settings[Setting::MAILTO] = "a@b";
  page_.Columns[3] = {"$Col_03", 500, ""};
  page_.Settings[Setting::Orientation] = "3";  // any other than 1 is written and read as 2
  file_.Settings[Setting::Orientation] = "2";
  const ReadBack back = CompareReadBack(page_, file_);
  ASSERT_EQ(back.Findings.size(), 2U);
  EXPECT_TRUE(back.Structure);
  file_.Columns[1] = {"$Col_03", 500, ""};
  EXPECT_EQ(CompareReadBack(page_, file_).Findings.size(), 1U);
}

TEST_F(ReadingBack, ChartValuesAreCompared) {
  const int chart = Add(page_, ObjectKind::Chart, "", 700);
  Add(file_, ObjectKind::Chart, "", 700);
  page_.Objects[chart].ChartValues = {"a", "b"};
  file_.Objects[3].ChartValues = {"a", "c"};
  EXPECT_EQ(CompareReadBack(page_, file_).Findings.at(0).Text,
            "CHART " + std::string(ChartKeys()[1].key) + ": b -> c");
}

TEST_F(ReadingBack, SeriesTitlesThatAreShownAndWrittenAsNoAreFound) {
  const std::size_t titles = *ChartKeyIndex("GRAPH_SHOWSERIESTITLES");
  const int shown = Add(page_, ObjectKind::Chart, "", 700);
  const int written = Add(file_, ObjectKind::Chart, "", 700);
  page_.Objects[shown].ChartValues = file_.Objects[written].ChartValues = ChartDefinition().Values;
  file_.Objects[written].ChartValues[titles] = "N";
  for (const char* no : {"", "N", "n", "0"}) {
    page_.Objects[shown].ChartValues[titles] = no;
    EXPECT_TRUE(CompareReadBack(page_, file_).Findings.empty()) << no;
  }
  for (const char* yes : {"Y", "y", "1"}) {
    page_.Objects[shown].ChartValues[titles] = yes;
    const ReadBack result = CompareReadBack(page_, file_);
    ASSERT_EQ(result.Findings.size(), 1U) << yes;
    EXPECT_EQ(result.Findings[0].Text, "CHART Graph_ShowSeriesTitles: " + std::string(yes) + " -> N");
  }
}

TEST_F(ReadingBack, TheListOfFindingsHasAnEnd) {
  for (int row = 0; row < 1500; ++row)
    Add(page_, ObjectKind::Label, std::to_string(row), row);
  EXPECT_EQ(CompareReadBack(page_, file_).Findings.size(), 1000U);
}

}  // namespace
}  // namespace kev
