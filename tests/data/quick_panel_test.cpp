// SPDX-License-Identifier: MIT
#include "data/quick_panel.h"

#include <gtest/gtest.h>

#include "base/text_numbers.h"
#include "support/sample_page.h"

namespace kev {
namespace {

using Texts = std::vector<std::string>;

class QuickPanels : public testing::Test {
 protected:
  QuickPanels() { bar_ = Bar("[DATA] [ITEMS:@code, @text ,@sum]", "ITEMS", 0); }
  int Bar(const std::string& title, const std::string& name, int y) {
    const int bar = test::AddSubsection(document_, title, y, 2000);
    document_.Objects[bar].SectionName = name;
    return bar;
  }
  int Select(ObjectKind kind, const std::string& owner = "ITEMS") {
    const int row = test::AddRow(document_, kind, "0", 500, 100, 100);
    document_.Objects[row].OwnerName = owner;
    return document_.Objects.CurrentObject = row;
  }
  QuickPanel Panel(const Texts* variables = nullptr) const {
    return QuickPanelFor(document_, false, variables);
  }
  static Texts Names(const std::vector<QuickField>& fields) {
    Texts names;
    for (const QuickField& field : fields)
      names.push_back(field.Name);
    return names;
  }

  Document document_;
  int bar_ = 0;
};

TEST_F(QuickPanels, NothingSelectedShowsNothing) {
  EXPECT_EQ(Panel().Page, QuickPage::Hidden);
}

TEST_F(QuickPanels, ALabelHasTheFieldsOfItsSubsection) {
  const int row = Select(ObjectKind::Label);
  document_.Objects[row].Content = "Sum: @sum";
  document_.Objects[row].CharSet = "204";
  document_.Objects[row].AlignToGrid = 1;
  const QuickPanel panel = Panel();
  EXPECT_EQ(panel.Page, QuickPage::Label);
  EXPECT_EQ(panel.Object, row);
  EXPECT_EQ(panel.TitleText, kTextQuickLabel);
  EXPECT_EQ(panel.Content, "Sum: @sum");
  EXPECT_EQ(panel.CharSet, "204");
  EXPECT_EQ(panel.RecordName, "ITEMS");
  EXPECT_TRUE(panel.AlignToGrid);
  EXPECT_EQ(Names(panel.Fields), (Texts{"@code", "@text", "@sum"}));
}

TEST_F(QuickPanels, ALabelInAMainSectionHasNoFields) {
  for (const char* name : {"DATA]", "HEADER]", "FOOTER]", "Data]"}) {
    Bar("[DATA:@a]", name, 5000);
    Select(ObjectKind::Label, name);
    EXPECT_EQ(Panel().Page, QuickPage::Label) << name;
    EXPECT_TRUE(Panel().Fields.empty()) << name;
  }
}

TEST_F(QuickPanels, ALabelWithoutASubsectionHasNoFields) {
  Select(ObjectKind::Label, "GONE");
  EXPECT_EQ(Panel().Page, QuickPage::Label);
  EXPECT_TRUE(Panel().Fields.empty());
}

TEST_F(QuickPanels, FieldsStandBehindTheLastColonAndKeepTheirPlaces) {
  ObjectRecord& bar = document_.Objects[bar_];
  bar.SectionTitle = "[DATA] [ITEMS:3:@a,, @c,]";
  const auto fields = FieldsOfBar(bar, CodePage::Default());
  EXPECT_EQ(fields, (std::vector<QuickField>{{"@a", 0}, {"@c", 2}}));
  bar.SectionTitle = "[DATA] [ITEMS]";
  EXPECT_TRUE(FieldsOfBar(bar, CodePage::Default()).empty());
  bar.SectionTitle = "[DATA] [ITEMS:]";
  EXPECT_TRUE(FieldsOfBar(bar, CodePage::Default()).empty());
}

TEST_F(QuickPanels, ALongListOfFieldsStopsNothing) {
  std::string title = "[DATA] [ITEMS:@a";
  for (int n = 0; n < 300; ++n)
    title += ",@a";
  document_.Objects[bar_].SectionTitle = title + "]";
  Select(ObjectKind::Label);
  EXPECT_EQ(Panel().Fields.size(), 301U);
}

TEST_F(QuickPanels, TheBracketOfAHeadWithoutFieldsIsNoPartOfTheRecordsName) {
  Bar("[DATA] [TAX]", "TAX]", 5000);
  Select(ObjectKind::Label, "TAX]");
  EXPECT_EQ(Panel().RecordName, "TAX");
}

TEST_F(QuickPanels, ABracketThatBelongsToTheRecordsNameIsKept) {
  Bar("[DATA] [[TAX]:@a]", "[TAX]", 5000);
  Select(ObjectKind::Label, "[TAX]");
  EXPECT_EQ(Panel().RecordName, "[TAX]");
}

TEST_F(QuickPanels, VariablesHoldInEverySubsection) {
  Bar("[DATA]", "DATA]", 5000);
  Select(ObjectKind::Label, "DATA]");
  const Texts variables = {"@Name", "@Sum"};
  EXPECT_EQ(Names(Panel(&variables).Fields), variables);
  EXPECT_TRUE(Panel(&variables).VariableFile);
  Select(ObjectKind::Label);
  EXPECT_EQ(Names(Panel(&variables).Fields), variables);
}

TEST_F(QuickPanels, WhatHasNoTextHasAPageOfItsOwn) {
  struct Case {
    ObjectKind kind;
    int title;
  };
  for (const Case one :
       {Case{ObjectKind::Box, kTextSheetBoxOrQr}, Case{ObjectKind::Line, kTextSheetLine},
        Case{ObjectKind::AnyLine, kTextSheetAnyLine}, Case{ObjectKind::Chart, kTextSheetChart},
        Case{ObjectKind::Picture, kTextSheetPicture}}) {
    const int row = Select(one.kind);
    document_.Objects[row].AlignToGrid = 1;
    EXPECT_EQ(Panel().Page, QuickPage::Shape) << one.title;
    EXPECT_EQ(Panel().TitleText, one.title);
    EXPECT_EQ(Panel().Object, row);
    EXPECT_TRUE(Panel().AlignToGrid);
    EXPECT_TRUE(Panel().Fields.empty());
  }
}

TEST_F(QuickPanels, OtherKindsShowNothing) {
  for (const ObjectKind kind :
       {ObjectKind::Section, ObjectKind::Subsection, ObjectKind::EndOfSubsection, ObjectKind::Command,
        ObjectKind::Circle, ObjectKind::Barcode, ObjectKind::Qr, ObjectKind::TextBox}) {
    Select(kind);
    EXPECT_EQ(Panel(), QuickPanel()) << KindText(kind);
  }
}

TEST_F(QuickPanels, AGroupShowsItsCountAlone) {
  Select(ObjectKind::Label);
  document_.Objects.SelectionCount = 7;
  const QuickPanel panel = QuickPanelFor(document_, true, nullptr);
  EXPECT_EQ(panel.Page, QuickPage::Group);
  EXPECT_EQ(panel.TitleText, kTextMultiSelected);
  EXPECT_EQ(panel.Count, 7);
  EXPECT_EQ(panel.Object, 0);
  EXPECT_TRUE(panel.Fields.empty());
}

TEST(QuickAdding, PutsABlankBeforeAChoice) {
  EXPECT_EQ(AddedToLabel("@sum"), " @sum");
  EXPECT_EQ(AddedToLabel(""), "");
}

TEST(QuickAdding, OffersTheFunctionsInTheirOrder) {
  EXPECT_EQ(Texts(kQuickFunctions.begin(), kQuickFunctions.end()),
            (Texts{"@@Pag", "@@OfPag", "@@Page", "@@Date", "@@Time", "@@Year", "@@Month", "@@Day", "@@Hour",
                   "@@Minute", "@@Second"}));
}

}  // namespace
}  // namespace kev
