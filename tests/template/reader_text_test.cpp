// SPDX-License-Identifier: MIT
// Text and blocks: what becomes of the lines below the head.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/templates.h"

namespace kev {
namespace {

using test::ContentsOf;
using test::OnlyRow;
using test::ReadLayout;
using test::ReadText;
using test::RowsOfKind;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LabelsOf(std::initializer_list<std::string_view> lines) {
  return ContentsOf(ReadLayout(lines).Read, ObjectKind::Label);
}

TEST(ReaderText, MakesALabelOfTextThatABlockFollows) {
  EXPECT_THAT(LabelsOf({"{100;}Hello{\\n}"}), ElementsAre("Hello"));
  EXPECT_THAT(LabelsOf({"   {100;} Hello  {}"}), ElementsAre("Hello"));
  EXPECT_THAT(LabelsOf({"\t\t{100;}Hello{}"}), ElementsAre("Hello"));
}

TEST(ReaderText, LosesTextThatNoBlockFollowsAndNotesIt) {
  const ReadOutcome outcome = ReadLayout({"{100;}Hello"});
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Label), IsEmpty());
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::LostText);
  EXPECT_EQ(outcome.Findings[0].Text, "Hello");
}

TEST(ReaderText, TellsWhereTheLostTextBegan) {
  const ReadOutcome outcome = ReadLayout({"{100;}  Hello", "", "more"});
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Line, 2U);
  EXPECT_EQ(outcome.Findings[0].Column, 9U);
}

TEST(ReaderText, LooksAtABufferOfBlanksOnce) {
  const std::string line = "}" + std::string(1000000, ' ') + std::string(1000000, '{');
  EXPECT_THAT(LabelsOf({line}), IsEmpty());
}

TEST(ReaderText, NotesNumbersThatDoNotFitTheirField) {
  const ReadOutcome outcome = ReadLayout({"{Spacing=99999999999;\\n}{W=99999}{c=70000,1,2}{BarHeight=1}"});
  std::vector<std::string> found;
  for (const Finding& finding : outcome.Findings) {
    EXPECT_EQ(finding.Kind, FindingKind::ValueOutOfRange);
    found.push_back(finding.Text);
  }
  EXPECT_THAT(found, ElementsAre("99999999999", "99999", "70000"));
}

TEST(ReaderText, NotesDelimitersThatNoSavedFileCanHave) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  const auto outcome = ReadTemplateBytes("Open=[\r\nClose=]\r\n[HEADER]\r\n", {measurer, pictures});
  ASSERT_TRUE(outcome);
  ASSERT_EQ(outcome->Findings.size(), 2U);
  EXPECT_EQ(outcome->Findings[0].Text, "Open=[");
  EXPECT_EQ(outcome->Findings[0].Line, 1U);
}

TEST(ReaderText, TakesALabelsPositionAsTheNumberAtItsStart) {
  const ReadOutcome outcome = ReadLayout({"{100 + 50;}A{}", "{1 440;}B{}"});
  const auto labels = RowsOfKind(outcome.Read, ObjectKind::Label);
  EXPECT_EQ(labels[0]->XValue, "100");
  EXPECT_EQ(labels[1]->XValue, "1440");
}

TEST(ReaderText, TakesTextOnToTheNextLine) {
  EXPECT_THAT(LabelsOf({"{100;}Hello", "{\\n}"}), ElementsAre("Hello"));
  EXPECT_THAT(LabelsOf({"{100;} one ", " two ", "{\\n}"}), ElementsAre("onetwo"));
}

TEST(ReaderText, LosesTextBetweenABlockAndACloseCharacter) {
  const ReadOutcome outcome = ReadLayout({"{100;}lost}kept{}"});
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Label), ElementsAre("kept"));
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Text, "lost");
}

TEST(ReaderText, MakesNoLabelOfBlanks) {
  EXPECT_THAT(LabelsOf({"{100;}   {\\n}", "{100;}{}"}), IsEmpty());
  for (const ObjectRecord* label : RowsOfKind(ReadLayout({"{100;Trim=n} {\\n}"}).Read, ObjectKind::Label))
    EXPECT_FALSE(label->Content.empty());
}

TEST(ReaderText, LeavesBracesWithoutAPositionInTheText) {
  EXPECT_THAT(LabelsOf({"{100;}Total {in EUR} 5{\\n}"}), ElementsAre("Total {in EUR} 5"));
  EXPECT_THAT(LabelsOf({"{100;}{a} {b} c{}"}), ElementsAre("{b} c"));
}

TEST(ReaderText, TakesAttributesBeforeABlockForABlock) {
  const Document document = ReadLayout({"{b=y}{100;}Text{\\n}"}).Read;
  EXPECT_EQ(OnlyRow(document, ObjectKind::Label).Content, "Text");
  EXPECT_EQ(OnlyRow(document, ObjectKind::Label).Bold, -1);
}

TEST(ReaderText, TakesAttributesDirectlyBeforeTextForText) {
  EXPECT_THAT(LabelsOf({"{b=y}Text{}"}), ElementsAre("{b=y}Text"));
}

TEST(ReaderText, KeepsAPositionWhereTheNextIsZero) {
  const Document document = ReadLayout({"{500;}A{\\n}{0;}B{\\n}"}).Read;
  const auto labels = RowsOfKind(document, ObjectKind::Label);
  ASSERT_EQ(labels.size(), 2U);
  EXPECT_EQ(labels[0]->Content, "A");
  EXPECT_EQ(labels[0]->XValue, "500");
  EXPECT_EQ(labels[1]->Content, "B");
  EXPECT_EQ(labels[1]->XValue, "500");
  EXPECT_EQ(labels[1]->Y, 200);
}

TEST(ReaderText, LeavesABlockAtTheEndOfItsLine) {
  // The block is not closed: its text stays in the command buffer, and the close character of the next line
  // applies it and drops what stands before itself.
  const ReadOutcome outcome = ReadLayout({"{100;i=y", "b=y}"});
  EXPECT_EQ(outcome.Attributes.AttrX, "100");
  EXPECT_EQ(outcome.Attributes.AttrItalic, -1);
  EXPECT_EQ(outcome.Attributes.AttrBold, 0);
}

TEST(ReaderText, BeginsABlockAnewAtAnOpenCharacterInsideIt) {
  const ReadOutcome outcome = ReadLayout({"{b=y;{i=y}"});
  EXPECT_EQ(outcome.Attributes.AttrBold, 0);
  EXPECT_EQ(outcome.Attributes.AttrItalic, -1);
}

TEST(ReaderText, AppliesABlockAgainAtASecondCloseCharacter) {
  EXPECT_EQ(RowsOfKind(ReadLayout({"{Box=1,,2,3}}}"}).Read, ObjectKind::Box).size(), 3U);
}

TEST(ReaderText, FlushesTheSameTextAtEachOpenCharacter) {
  EXPECT_THAT(LabelsOf({"{100;}A{{{}"}), ElementsAre("A", "A", "A"));
}

TEST(ReaderText, ReadsALineOfANumberSignInTheLayoutAsText) {
  EXPECT_THAT(LabelsOf({"# a remark", "{}"}), ElementsAre("# a remark"));
}

TEST(ReaderText, TakesOtherDelimitersAndLeavesBracesToTheText) {
  const Document document =
      ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n<b=y;0>\r\n<100;>a {b} c<0>\r\n<200;>x <y> z<0>\r\n").Read;
  EXPECT_THAT(ContentsOf(document, ObjectKind::Label), ElementsAre("a {b} c", "x <y> z"));
  EXPECT_EQ(RowsOfKind(document, ObjectKind::Label)[0]->Bold, -1);
}

TEST(ReaderText, TakesNoDelimiterOfMoreThanOneCharacter) {
  const Document document = ReadText("Open=<<\r\nClose=>>\r\n[HEADER]\r\n{100;}A{}\r\n").Read;
  EXPECT_EQ(document.Settings[Setting::Open], "{");
  EXPECT_EQ(document.Settings[Setting::Close], "}");
  EXPECT_THAT(ContentsOf(document, ObjectKind::Label), ElementsAre("A"));
}

// Its delimiters come back as braces, which are no delimiters here.
TEST(ReaderText, NotesABlockThatItsOwnDelimitersTurnIntoText) {
  const ReadOutcome outcome = ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n  <b=y>\r\n<100;>A<0>\r\n");
  EXPECT_EQ(outcome.Attributes.AttrBold, 0);
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Label), ElementsAre("{b=y}", "A"));
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::DisarmedBlock);
  EXPECT_EQ(outcome.Findings[0].Line, 4U);
  EXPECT_EQ(outcome.Findings[0].Column, 3U);
  EXPECT_EQ(outcome.Findings[0].Text, "b=y");
}

TEST(ReaderText, NotesNoBlockThatStaysACommandBesideOtherDelimiters) {
  EXPECT_TRUE(ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n<b=y;0>\r\n<100;>a <b> c<0>\r\n").Findings.empty());
}

TEST(ReaderText, TellsThatABandStandsAtTheBeginningOfItsLine) {
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

TEST(ReaderText, NotesAPositionOnAColumnThatIsNotThere) {
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

TEST(ReaderText, MakesBarCodesAndQrCodesOfTextByTheSymbology) {
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

TEST(ReaderText, MakesABarCodeOfASymbologyThatHasNoWordToWrite) {
  const Document document = ReadLayout({"{B32}{100;}Text{NoBar}"}).Read;
  EXPECT_EQ(OnlyRow(document, ObjectKind::Barcode).BarcodeKind, "32");
}

TEST(ReaderText, GivesALinkToOneTextOnly) {
  const auto document = ReadLayout({"{100;Link=a=b;Format=0}A{}", "{100;}B{}"}).Read;
  const auto labels = RowsOfKind(document, ObjectKind::Label);
  EXPECT_EQ(labels[0]->Link, "a=b");
  EXPECT_EQ(labels[1]->Link, "");
  EXPECT_EQ(labels[1]->Format, "0");
}

TEST(ReaderText, KeepsFontAndSizeBehindDefAndDropsBold) {
  const Document document = ReadLayout({"{f=Courier;s=12;b=y}", "{DEF}", "{100;}A{}"}).Read;
  const ObjectRecord& label = OnlyRow(document, ObjectKind::Label);
  EXPECT_EQ(label.FontName, "Courier");
  EXPECT_EQ(label.FontSize, 12);
  EXPECT_EQ(label.Bold, 0);
  EXPECT_EQ(label.ModifiableByEndUser, 0);
}

TEST(ReaderText, BeginsEachReadWithAFreshState) {
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

TEST(ReaderText, EndsALineAtLineFeedAndNeedsNoEndOfTheLast) {
  EXPECT_THAT(ContentsOf(ReadText("[HEADER]\n{100;}A{}\n{100;}B{}").Read, ObjectKind::Label),
              ElementsAre("A", "B"));
}

}  // namespace
}  // namespace kev
