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
using test::Lines;
using test::OnlyRow;
using test::ReadLayout;
using test::ReadText;
using test::RowsOfKind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> LabelsOf(std::initializer_list<std::string_view> lines) {
  return ContentsOf(ReadLayout(lines).Read, ObjectKind::Label);
}

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

// ---- text and blocks

TEST(Reader, MakesALabelOfTextThatABlockFollows) {
  EXPECT_THAT(LabelsOf({"{100;}Hello{\\n}"}), ElementsAre("Hello"));
  EXPECT_THAT(LabelsOf({"   {100;} Hello  {}"}), ElementsAre("Hello"));
  EXPECT_THAT(LabelsOf({"\t\t{100;}Hello{}"}), ElementsAre("Hello"));
}

TEST(Reader, LosesTextThatNoBlockFollowsAndNotesIt) {
  const ReadOutcome outcome = ReadLayout({"{100;}Hello"});
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Label), IsEmpty());
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::LostText);
  EXPECT_EQ(outcome.Findings[0].Text, "Hello");
}

TEST(Reader, TellsWhereTheLostTextBegan) {
  const ReadOutcome outcome = ReadLayout({"{100;}  Hello", "", "more"});
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Line, 2U);
  EXPECT_EQ(outcome.Findings[0].Column, 9U);
}

TEST(Reader, LooksAtABufferOfBlanksOnce) {
  const std::string line = "}" + std::string(1000000, ' ') + std::string(1000000, '{');
  EXPECT_THAT(LabelsOf({line}), IsEmpty());
}

TEST(Reader, NotesNumbersThatDoNotFitTheirField) {
  const ReadOutcome outcome = ReadLayout({"{Spacing=99999999999;\\n}{W=99999}{c=70000,1,2}{BarHeight=1}"});
  std::vector<std::string> found;
  for (const Finding& finding : outcome.Findings) {
    EXPECT_EQ(finding.Kind, FindingKind::ValueOutOfRange);
    found.push_back(finding.Text);
  }
  EXPECT_THAT(found, ElementsAre("99999999999", "99999", "70000"));
}

TEST(Reader, NotesDelimitersThatNoSavedFileCanHave) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  const auto outcome = ReadTemplateBytes("Open=[\r\nClose=]\r\n[HEADER]\r\n", {measurer, pictures});
  ASSERT_TRUE(outcome);
  ASSERT_EQ(outcome->Findings.size(), 2U);
  EXPECT_EQ(outcome->Findings[0].Text, "Open=[");
  EXPECT_EQ(outcome->Findings[0].Line, 1U);
}

TEST(Reader, TakesALabelsPositionAsTheNumberAtItsStart) {
  const ReadOutcome outcome = ReadLayout({"{100 + 50;}A{}", "{1 440;}B{}"});
  const auto labels = RowsOfKind(outcome.Read, ObjectKind::Label);
  EXPECT_EQ(labels[0]->XValue, "100");
  EXPECT_EQ(labels[1]->XValue, "1440");
}

TEST(Reader, TakesTextOnToTheNextLine) {
  EXPECT_THAT(LabelsOf({"{100;}Hello", "{\\n}"}), ElementsAre("Hello"));
  EXPECT_THAT(LabelsOf({"{100;} one ", " two ", "{\\n}"}), ElementsAre("onetwo"));
}

TEST(Reader, LosesTextBetweenABlockAndACloseCharacter) {
  const ReadOutcome outcome = ReadLayout({"{100;}lost}kept{}"});
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Label), ElementsAre("kept"));
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Text, "lost");
}

TEST(Reader, MakesNoLabelOfBlanks) {
  EXPECT_THAT(LabelsOf({"{100;}   {\\n}", "{100;}{}"}), IsEmpty());
  for (const ObjectRecord* label : RowsOfKind(ReadLayout({"{100;Trim=n} {\\n}"}).Read, ObjectKind::Label))
    EXPECT_FALSE(label->Content.empty());
}

TEST(Reader, LeavesBracesWithoutAPositionInTheText) {
  EXPECT_THAT(LabelsOf({"{100;}Total {in EUR} 5{\\n}"}), ElementsAre("Total {in EUR} 5"));
  EXPECT_THAT(LabelsOf({"{100;}{a} {b} c{}"}), ElementsAre("{b} c"));
}

TEST(Reader, TakesAttributesBeforeABlockForABlock) {
  const Document document = ReadLayout({"{b=y}{100;}Text{\\n}"}).Read;
  EXPECT_EQ(OnlyRow(document, ObjectKind::Label).Content, "Text");
  EXPECT_EQ(OnlyRow(document, ObjectKind::Label).Bold, -1);
}

TEST(Reader, TakesAttributesDirectlyBeforeTextForText) {
  EXPECT_THAT(LabelsOf({"{b=y}Text{}"}), ElementsAre("{b=y}Text"));
}

TEST(Reader, KeepsAPositionWhereTheNextIsZero) {
  const Document document = ReadLayout({"{500;}A{\\n}{0;}B{\\n}"}).Read;
  const auto labels = RowsOfKind(document, ObjectKind::Label);
  ASSERT_EQ(labels.size(), 2U);
  EXPECT_EQ(labels[0]->Content, "A");
  EXPECT_EQ(labels[0]->XValue, "500");
  EXPECT_EQ(labels[1]->Content, "B");
  EXPECT_EQ(labels[1]->XValue, "500");
  EXPECT_EQ(labels[1]->Y, 200);
}

TEST(Reader, LeavesABlockAtTheEndOfItsLine) {
  // The block is not closed: its text stays in the command buffer, and the close character of the next line
  // applies it and drops what stands before itself.
  const ReadOutcome outcome = ReadLayout({"{100;i=y", "b=y}"});
  EXPECT_EQ(outcome.Attributes.AttrX, "100");
  EXPECT_EQ(outcome.Attributes.AttrItalic, -1);
  EXPECT_EQ(outcome.Attributes.AttrBold, 0);
}

TEST(Reader, BeginsABlockAnewAtAnOpenCharacterInsideIt) {
  const ReadOutcome outcome = ReadLayout({"{b=y;{i=y}"});
  EXPECT_EQ(outcome.Attributes.AttrBold, 0);
  EXPECT_EQ(outcome.Attributes.AttrItalic, -1);
}

TEST(Reader, AppliesABlockAgainAtASecondCloseCharacter) {
  EXPECT_EQ(RowsOfKind(ReadLayout({"{Box=1,,2,3}}}"}).Read, ObjectKind::Box).size(), 3U);
}

TEST(Reader, FlushesTheSameTextAtEachOpenCharacter) {
  EXPECT_THAT(LabelsOf({"{100;}A{{{}"}), ElementsAre("A", "A", "A"));
}

TEST(Reader, ReadsALineOfANumberSignInTheLayoutAsText) {
  EXPECT_THAT(LabelsOf({"# a remark", "{}"}), ElementsAre("# a remark"));
}

TEST(Reader, TakesOtherDelimitersAndLeavesBracesToTheText) {
  const Document document =
      ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n<b=y;0>\r\n<100;>a {b} c<0>\r\n<200;>x <y> z<0>\r\n").Read;
  EXPECT_THAT(ContentsOf(document, ObjectKind::Label), ElementsAre("a {b} c", "x <y> z"));
  EXPECT_EQ(RowsOfKind(document, ObjectKind::Label)[0]->Bold, -1);
}

TEST(Reader, TakesNoDelimiterOfMoreThanOneCharacter) {
  const Document document = ReadText("Open=<<\r\nClose=>>\r\n[HEADER]\r\n{100;}A{}\r\n").Read;
  EXPECT_EQ(document.Settings[Setting::Open], "{");
  EXPECT_EQ(document.Settings[Setting::Close], "}");
  EXPECT_THAT(ContentsOf(document, ObjectKind::Label), ElementsAre("A"));
}

// Its delimiters come back as braces, which are no delimiters here.
TEST(Reader, NotesABlockThatItsOwnDelimitersTurnIntoText) {
  const ReadOutcome outcome = ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n  <b=y>\r\n<100;>A<0>\r\n");
  EXPECT_EQ(outcome.Attributes.AttrBold, 0);
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Label), ElementsAre("{b=y}", "A"));
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::DisarmedBlock);
  EXPECT_EQ(outcome.Findings[0].Line, 4U);
  EXPECT_EQ(outcome.Findings[0].Column, 3U);
  EXPECT_EQ(outcome.Findings[0].Text, "b=y");
}

TEST(Reader, NotesNoBlockThatStaysACommandBesideOtherDelimiters) {
  EXPECT_TRUE(ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n<b=y;0>\r\n<100;>a <b> c<0>\r\n").Findings.empty());
}

TEST(Reader, TellsThatABandStandsAtTheBeginningOfItsLine) {
  const ReadOutcome outcome = ReadText("[HEADER]\r\n{100;}A{} {200;}B{}\r\n[DATA]\r\n");
  std::vector<std::uint32_t> lines;
  for (int row = 1; row <= outcome.Read.Objects.LastScanned(); ++row) {
    if (outcome.Read.Objects[row].Kind != ObjectKind::Subsection) continue;
    const SourcePlace& place = outcome.Places.at(static_cast<std::size_t>(row));
    lines.push_back(place.Line);
    EXPECT_EQ(place.Column, 1U) << place.Line;
  }
  EXPECT_THAT(lines, ElementsAre(1U, 3U));
}

TEST(Reader, NotesAPositionOnAColumnThatIsNotThere) {
  const ReadOutcome outcome =
      ReadText("$A=100\r\n[HEADER]\r\n{Box=$A,,2,3}\r\n{Line=$a + 5,$Gone + 5}\r\n{$B}A{}\r\n");
  ASSERT_EQ(outcome.Findings.size(), 2U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::DanglingColumn);
  EXPECT_EQ(outcome.Findings[0].Text, "$Gone");
  EXPECT_EQ(outcome.Findings[0].Line, 4U);
  EXPECT_EQ(outcome.Read.Objects[outcome.Findings[0].Row].X2Value, "$Gone + 5");
  EXPECT_EQ(outcome.Findings[1].Text, "$B");
  EXPECT_EQ(outcome.Read.Objects[outcome.Findings[1].Row].XValue, "$B");
}

TEST(Reader, MakesBarCodesAndQrCodesOfTextByTheSymbology) {
  const Document document = ReadLayout({"{100;BarHeight=500;BarWidth=2;Ean13}123{NoBar}",
                                        "{QrCode=300,,900}text{nobar}", "{5;}plain{}"})
                                .Read;
  const ObjectRecord& code = OnlyRow(document, ObjectKind::Barcode);
  EXPECT_EQ(code.Content, "123");
  EXPECT_EQ(code.XValue, "100");
  EXPECT_EQ(code.Height, 500);
  EXPECT_EQ(code.BarWidth, 2);
  EXPECT_EQ(code.BarcodeKind, "13");
  EXPECT_EQ(code.BarcodeSample, "1234567890123");
  const ObjectRecord& qr = OnlyRow(document, ObjectKind::Qr);
  EXPECT_EQ(qr.Content, "text");
  EXPECT_EQ(qr.XValue, "300");
  EXPECT_EQ(qr.BarWidth, 1) << "ending the bar code restored it";
  EXPECT_EQ(OnlyRow(document, ObjectKind::Label).Content, "plain");
}

TEST(Reader, MakesABarCodeOfASymbologyThatHasNoWordToWrite) {
  const Document document = ReadLayout({"{B32}{100;}Text{NoBar}"}).Read;
  EXPECT_EQ(OnlyRow(document, ObjectKind::Barcode).BarcodeKind, "32");
}

TEST(Reader, GivesALinkToOneTextOnly) {
  const auto document = ReadLayout({"{100;Link=a=b;Format=0}A{}", "{100;}B{}"}).Read;
  const auto labels = RowsOfKind(document, ObjectKind::Label);
  EXPECT_EQ(labels[0]->Link, "a=b");
  EXPECT_EQ(labels[1]->Link, "");
  EXPECT_EQ(labels[1]->Format, "0");
}

TEST(Reader, KeepsFontAndSizeBehindDefAndDropsBold) {
  const Document document = ReadLayout({"{f=Courier;s=12;b=y}", "{DEF}", "{100;}A{}"}).Read;
  const ObjectRecord& label = OnlyRow(document, ObjectKind::Label);
  EXPECT_EQ(label.FontName, "Courier");
  EXPECT_EQ(label.FontSize, 12);
  EXPECT_EQ(label.Bold, 0);
  EXPECT_EQ(label.ModifiableByEndUser, 0);
}

TEST(Reader, BeginsEachReadWithAFreshState) {
  ReadLayout({"{b=y;c=1,2,3;500;Graph_Type=PIE;Ean13;f=Courier}", "{Spacing=900}"});
  const Document document = ReadLayout({"{\\n}", "{0;}A{}", "{Buildgraph=1,}"}).Read;
  const ObjectRecord& label = OnlyRow(document, ObjectKind::Label);
  EXPECT_EQ(label.XValue, "0");
  EXPECT_EQ(label.Y, 200);
  EXPECT_EQ(label.FontName, "Arial");
  EXPECT_EQ(label.FontSize, 10);
  EXPECT_EQ(label.ColorR, 0);
  EXPECT_EQ(OnlyRow(document, ObjectKind::Chart).ChartValues.at(0), "2D");
}

TEST(Reader, EndsALineAtLineFeedAndNeedsNoEndOfTheLast) {
  EXPECT_THAT(ContentsOf(ReadText("[HEADER]\n{100;}A{}\n{100;}B{}").Read, ObjectKind::Label),
              ElementsAre("A", "B"));
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
