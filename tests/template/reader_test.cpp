// SPDX-License-Identifier: MIT
#include "template/reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/sections.h"
#include "support/run_tool.h"
#include "support/templates.h"

namespace kev {
namespace {

using test::BarNamed;
using test::ContentsOf;
using test::OnlyRow;
using test::ReadLayout;
using test::ReadText;
using test::RowsOfKind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> TitlesOf(const Document& document) {
  std::vector<std::string> titles;
  for (const ObjectRecord* bar : RowsOfKind(document, ObjectKind::Subsection))
    titles.push_back(bar->SectionTitle);
  return titles;
}

std::string RefusalOfText(std::string_view text) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  const Result<ReadOutcome> outcome = ReadTemplateBytes(text, {measurer, pictures});
  return outcome ? "" : outcome.Error().reason;
}

// ---- the shape of a file

TEST(Reader, GivesAnEmptyFileOneEndRow) {
  const Document document = ReadText("").Read;
  EXPECT_TRUE(TitlesOf(document).empty());
  EXPECT_EQ(OnlyRow(document, ObjectKind::EndOfSubsection).OwnerName, "");
}

TEST(Reader, ReadsNoLayoutWithoutAHeaderLine) {
  const Document document = ReadText("[DATA]\r\n{100;}A{}\r\n").Read;
  EXPECT_THAT(TitlesOf(document), ElementsAre("[CONFIGURATION] [DATA]"));
  EXPECT_THAT(ContentsOf(document, ObjectKind::Label), IsEmpty());
}

TEST(Reader, MakesAPairOfRowsOfEachBracketedLineOfThePreamble) {
  const Document document = ReadText("[CONFIGURATION]\r\nKEXVER=4\r\n\t [other]\r\n[HEADER]\r\n").Read;
  EXPECT_THAT(TitlesOf(document),
              ElementsAre("[CONFIGURATION] [CONFIGURATION]", "[CONFIGURATION] [other]", "[HEADER]"));
  EXPECT_EQ(RowsOfKind(document, ObjectKind::EndOfSubsection).size(), 3U);
  EXPECT_EQ(document.Settings[Setting::KEXVER], "4");
}

TEST(Reader, EndsThePreambleAtHeaderInAnyCaseBetweenBlanks) {
  for (const std::string_view line : {"[HEADER]", "[header]", "  [Header]  ", "\t[HEADER]"}) {
    EXPECT_THAT(TitlesOf(ReadText(std::string(line) + "\r\n").Read), ElementsAre("[HEADER]")) << line;
  }
}

TEST(Reader, TakesTheSectionsInAnyOrderAndCase) {
  const Document document = ReadLayout({"[data]", "[A]", " [Footer] ", "[B]", "[DATA]", "[C]"}).Read;
  EXPECT_THAT(TitlesOf(document), ElementsAre("[HEADER]", "[DATA]", "[DATA] [A]", "[FOOTER]", "[FOOTER] [B]",
                                              "[DATA]", "[DATA] [C]"));
}

TEST(Reader, ClosesTheOpenSubsectionAtAHeadLineAndKeepsTheSection) {
  const Document document = ReadLayout({"[DATA]", "{\\n}", "[ITEMS]", "{100;}A{}"}).Read;
  EXPECT_EQ(BarNamed(document, "DATA]").EndsAt, 200);
  EXPECT_EQ(BarNamed(document, "ITEMS]").SectionOwner, "[DATA]");
  EXPECT_EQ(OnlyRow(document, ObjectKind::Label).OwnerName, "ITEMS]");
}

TEST(Reader, TakesAnyOtherLineThatBeginsWithABracketForAHeadLine) {
  const Document document = ReadLayout({"  [Total {x} of", "[HEADER]"}).Read;
  EXPECT_THAT(TitlesOf(document), ElementsAre("[HEADER]", "[HEADER] [Total {x} of", "[HEADER]"));
}

TEST(Reader, TakesATabBeforeABracketForABlankButNotBehindOne) {
  const Document document = ReadLayout({"\t[A]", " \t[B]{}"}).Read;
  EXPECT_THAT(TitlesOf(document), ElementsAre("[HEADER]", "[HEADER] [A]"));
  EXPECT_THAT(ContentsOf(document, ObjectKind::Label), ElementsAre("\t[B]"));
}

TEST(Reader, LaysTheBandsOutWithEightyTwipsBehindEachEndBar) {
  const Document document = ReadLayout({"{Spacing=500;\\n}", "[DATA]"}).Read;
  EXPECT_EQ(BarNamed(document, "HEADER]").AbsoluteY, 0);
  const auto ends = RowsOfKind(document, ObjectKind::EndOfSubsection);
  EXPECT_EQ(ends[0]->Y, 500);
  EXPECT_EQ(ends[0]->AbsoluteY, 900);
  EXPECT_EQ(BarNamed(document, "DATA]").AbsoluteY, 980);
}

TEST(Reader, AddsOneSpacingWhereASubsectionEndsInAPageBreak) {
  const Document document =
      ReadText("Spacing=150\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n{100;\\np}\r\n{DEF}\r\n").Read;
  EXPECT_EQ(BarNamed(document, "HEADER]").EndsAt, 550);
  EXPECT_EQ(BarNamed(document, "HEADER]").SectionCursorY, 550);
}

TEST(Reader, ForgetsAPageBreakOnceSomethingStandsBehindIt) {
  for (const std::string_view line : {"{100;}A{}", "{Box=1,,2,3}", "{\\n}{Spacing=200;\\P}", "{xy=0,1}"}) {
    const Document document = ReadLayout({"{Spacing=400;\\n}", "{100;\\np}", line}).Read;
    EXPECT_EQ(BarNamed(document, "HEADER]").SectionCursorY, line == "{xy=0,1}" ? 0 : 400) << line;
  }
}

// ---- head keys and columns

TEST(Reader, CountsTheFirstOfARepeatedKeyAndNotesTheOther) {
  const ReadOutcome outcome = ReadText("Spacing=100\r\nspacing=300\r\n[HEADER]\r\n");
  EXPECT_EQ(outcome.Read.Settings[Setting::Spacing], "100");
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::RepeatedKey);
  EXPECT_EQ(outcome.Findings[0].Line, 2U);
}

TEST(Reader, IgnoresAKeyBehindTheHundredthLineAndNotesIt) {
  std::string text;
  for (int n = 0; n < 119; ++n)
    text += " \r\n";
  const ReadOutcome outcome = ReadText(text + "Spacing=300\r\n[HEADER]\r\n");
  EXPECT_EQ(outcome.Read.Settings[Setting::Spacing], "200");
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::LateKey);
  EXPECT_EQ(outcome.Findings[0].Line, 120U);
}

TEST(Reader, FindsAKeyBelowTheHeaderLine) {
  EXPECT_EQ(ReadText("[HEADER]\r\nSpacing=300\r\n").Read.Settings[Setting::Spacing], "300");
}

TEST(Reader, FillsTheColumnsInTheOrderOfTheFile) {
  const Document document =
      ReadText("$B=2400\r\n  $A = 1 000 twips\r\n\t$C\r\n$D=1=2\r\n[HEADER]\r\n$E=5\r\n").Read;
  struct Row {
    std::string_view name;
    double position;
  };
  int slot = 1;
  for (const Row& row : {Row{"$B", 2400}, Row{"$A", 1000}, Row{"$C", 0}, Row{"$D", 1}, Row{"", 0}}) {
    EXPECT_EQ(document.Columns[slot].Name, row.name);
    EXPECT_EQ(document.Columns[slot].Position, row.position) << row.name;
    ++slot;
  }
}

TEST(Reader, FailsAsAWholeAtItsLimits) {
  std::string columns;
  for (int n = 1; n <= 100; ++n)
    columns += "$C" + std::to_string(n) + "=5\r\n";
  EXPECT_EQ(RefusalOfText(columns + "[HEADER]\r\n"), "");
  EXPECT_NE(RefusalOfText(columns + "$One=5\r\n[HEADER]\r\n"), "");

  EXPECT_EQ(RefusalOfText("[HEADER]\r\n{" + std::string(199, ';') + "}\r\n"), "");
  EXPECT_THAT(RefusalOfText("[HEADER]\r\n{" + std::string(200, ';') + "}\r\n"), HasSubstr("200"));
  EXPECT_NE(RefusalOfText("[HEADER]\r\n{Box=" + std::string(200, ',') + "}\r\n"), "");

  std::string boxes = "[HEADER]\r\n";
  for (int n = 0; n < 1999; ++n)
    boxes += "{Box=1,,2,3}\r\n";
  EXPECT_EQ(RefusalOfText(boxes), "") << "with the bar and its end 2001 rows";
  EXPECT_THAT(RefusalOfText(boxes + "{Box=1,,2,3}\r\n"), HasSubstr("2001"));
}

// Flushed text stays in the buffer and a block is applied again and again: small files, endless work.
TEST(Reader, RefusesFilesThatAskForEndlessWorkOrMemory) {
  EXPECT_NE(RefusalOfText("[HEADER]\r\n{0" + std::string(20000, 'x') + std::string(20000, '}') + "\r\n"), "");
  std::string deep = "[HEADER]\r\n" + std::string(1000000, 'a');
  for (int n = 0; n < 1900; ++n)
    deep += "{5;";
  EXPECT_NE(RefusalOfText(deep + "}\r\n"), "");
}

// ---- several subsections of one name

TEST(Reader, LeavesObjectsInTheirOwnOfTwoSubsectionsOfOneName) {
  Document document = ReadLayout({"[DATA]", "[ITEMS]", "{Spacing=500;\\n}", "{1;}A{}", "[ITEMS]",
                                  "{Spacing=300;\\n}", "{2;}B{}"})
                          .Read;
  DeriveGeometry(document);
  const auto labels = RowsOfKind(document, ObjectKind::Label);
  EXPECT_EQ(labels[0]->Y, 500);
  EXPECT_EQ(labels[1]->Y, 300);
  EXPECT_GT(labels[1]->AbsoluteY, labels[0]->AbsoluteY);
}

// ---- files

TEST(Reader, ReadsAFileAndTellsWhyItCannot) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "a.kev", "[HEADER]\r\n{100;}A{}\r\n");
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  const auto read = ReadTemplate(folder / "a.kev", {measurer, pictures});
  ASSERT_TRUE(read);
  EXPECT_THAT(ContentsOf(read->Read, ObjectKind::Label), ElementsAre("A"));
  const auto missing = ReadTemplate(folder / "b.kev", {measurer, pictures});
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.Error().path, folder / "b.kev");
  test::WriteBytes(folder / "c.kev", "[HEADER]\r\n{" + std::string(200, ';') + "}\r\n");
  const auto limit = ReadTemplate(folder / "c.kev", {measurer, pictures});
  ASSERT_FALSE(limit);
  EXPECT_EQ(limit.Error().path, folder / "c.kev");
}

class RecordedProgress final : public ReadProgress {
 public:
  void Begin(int lines) override { calls.push_back("begin " + std::to_string(lines)); }
  void Line(int number) override { calls.push_back("line " + std::to_string(number)); }
  void Object(int row, ObjectKind kind) override {
    calls.push_back("row " + std::to_string(row) + ' ' + std::string(KindText(kind)));
  }
  void End() override { calls.push_back("end"); }
  std::vector<std::string> calls;
};

TEST(Reader, TellsHowFarItHasCome) {
  RecordedProgress progress;
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  ReadServices services{measurer, pictures};
  services.Progress = &progress;
  ASSERT_TRUE(ReadTemplateBytes("KEXVER=4\r\n[HEADER]\r\n{5;}A{}\r\n", services));
  EXPECT_THAT(progress.calls, ElementsAre("begin 3", "line 1", "line 2", "row 1 SUBSECTION", "line 3",
                                          "row 2 LABEL", "row 3 ENDOFSUBSECTION", "end"));
}

TEST(Reader, EndsItsProgressAlsoWhereItFails) {
  RecordedProgress progress;
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  ReadServices services{measurer, pictures};
  services.Progress = &progress;
  ASSERT_FALSE(ReadTemplateBytes("[HEADER]\r\n{" + std::string(200, ';') + "}", services));
  EXPECT_EQ(progress.calls.back(), "end");
}

TEST(Reader, UsesTheCodePageOfTheFiles) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  ReadServices services{measurer, pictures};
  services.Page = CodePage::Find("windows-1251");
  const auto outcome = ReadTemplateBytes("[HEADER]\r\n[\xE0]\r\n", services);
  ASSERT_TRUE(outcome);
  EXPECT_EQ(RowsOfKind(outcome->Read, ObjectKind::Subsection)[1]->SectionName, "\xC0]");
}

}  // namespace
}  // namespace kev
