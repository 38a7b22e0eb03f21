// SPDX-License-Identifier: MIT
#include "template/writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "document/sections.h"
#include "support/run_tool.h"
#include "support/templates.h"

namespace kev {
namespace {

using test::BodyAfter;
using test::BodyOf;
using test::FilledLines;
using test::FirstOf;
using test::HeaderBody;
using test::LayoutLines;
using test::Lines;
using test::OnlyRow;
using test::ReadLayout;
using test::ReadText;
using test::Rewrite;
using test::RowsOfKind;
using test::WriteText;
using testing::Contains;
using testing::ElementsAre;

// ---- the whole

TEST(Writer, GivesADocumentOfEmptySectionsTheHeadAndTheThreeSections) {
  EXPECT_EQ(Rewrite("[HEADER]\r\n[DATA]\r\n[FOOTER]\r\n"),
            Lines({"Report_Title=No title", "PAPERSIZE=A4", "KEXVER=", "[HEADER]", " ", "", "  {DEF}", "",
                   "[FOOTER]", " ", "", "  {DEF}", "", "[DATA]", " ", "", "  {DEF}"}))
      << "the empty line ahead of a marker ends the block before it";
}

TEST(Writer, OfAnEmptyTableStillPrintsTheThreeSections) {
  Document document;
  EXPECT_EQ(WriteText(document),
            Lines({"Report_Title=No title", "PAPERSIZE=A4", "KEXVER=", "[HEADER]", "[FOOTER]", "[DATA]"}));
}

TEST(Writer, SavesTwiceTheSame) {
  ReadOutcome outcome = ReadLayout({"{\\n}", "{500;}A{}", "{Box=1,,2,3}", "[ITEMS]", "{5;\\np}"});
  DeriveGeometry(outcome.Read);
  const std::string first = WriteText(outcome.Read);
  EXPECT_EQ(WriteText(outcome.Read), first);
}

TEST(Writer, LeavesSortKeysBehind) {
  ReadOutcome outcome = ReadLayout({"{Box=1,,2,3}"});
  WriteText(outcome.Read);
  EXPECT_EQ(OnlyRow(outcome.Read, ObjectKind::Box).SortKey.Text(), "200400200001200002");
}

// ---- subsections

TEST(Writer, PrintsFourLinesAheadOfASubsectionOfWhichTheMarkerGoes) {
  EXPECT_THAT(LayoutLines(Rewrite("[HEADER]\r\n[FOOTER]\r\n[My Items : a,b]\r\n[DATA]\r\n")),
              ElementsAre("[HEADER]", " ", "", "  {DEF}", "", "[FOOTER]", " ", "", "  {DEF}", "",
                          " [My Items : a,b]", "", "  {DEF}", "", "[DATA]", " ", "", "  {DEF}"));
}

TEST(Writer, OrdersSubsectionsByPlaceInsideTheirSection) {
  ReadOutcome outcome =
      ReadLayout({"[DATA]", "[A]", "{Spacing=300;\\n}", "[B]", "{Spacing=300;\\n}", "[FOOTER]", "[C]"});
  DeriveGeometry(outcome.Read);
  for (int row = 1; row <= 50; ++row) {
    ObjectRecord& bar = outcome.Read.Objects[row];
    if (bar.SectionName == "A]") bar.AbsoluteY += 5000;
    if (bar.SectionName == "C]") bar.AbsoluteY = -500;
  }
  std::vector<std::string> heads;
  for (const std::string& line : FilledLines(WriteText(outcome.Read))) {
    if (line.starts_with('[')) heads.push_back(line);
  }
  EXPECT_THAT(heads, ElementsAre("[HEADER]", "[FOOTER]", "[C]", "[DATA]", "[B]", "[A]"));
}

TEST(Writer, KeepsASecondBaseSubsectionApart) {
  const Document read =
      ReadText(Rewrite("[HEADER]\r\n{\\n}\r\n[HEADER]\r\n{Spacing=500;\\n}\r\n[DATA]\r\n")).Read;
  std::vector<std::int32_t> heights;
  for (const ObjectRecord* bar : RowsOfKind(read, ObjectKind::Subsection)) {
    if (bar->SectionTitle == "[HEADER]") heights.push_back(bar->EndsAt);
  }
  EXPECT_THAT(heights, ElementsAre(200, 500));
}

TEST(Writer, KeepsASectionThatStandsTwiceApart) {
  ReadOutcome outcome = ReadLayout({"[DATA]", "{Spacing=300;\\n}", "{200;}B{}", "[X]", "{\\n}", "[DATA]",
                                    "{Spacing=400;\\n}", "{400;}D{}"});
  DeriveGeometry(outcome.Read);
  std::vector<std::string> heads;
  for (const std::string& line : FilledLines(WriteText(outcome.Read))) {
    if (line.starts_with('[')) heads.push_back(line);
  }
  EXPECT_THAT(heads, ElementsAre("[HEADER]", "[FOOTER]", "[DATA]", "[X]", "[DATA]"));
}

TEST(Writer, PrintsHeightAndStartOfASubsection) {
  EXPECT_THAT(BodyOf({"{SubSectionHeight=9}", "{xy=0,1500}", "{Spacing=700;\\n}"}),
              ElementsAre("{SubSectionHeight=700}", "{xy=0,1500}", "{DEF}", "{Spacing=700;\\n}"));
  EXPECT_THAT(BodyOf({"{Top}"}), ElementsAre("{xy=0,1}", "{DEF}"));
}

TEST(Writer, StartsASubsectionAtOneWhereItsStartIsNoNumber) {
  ReadOutcome outcome = ReadLayout({"{\\n}"});
  FirstOf(outcome.Read, ObjectKind::Subsection).StartY = "abc";
  EXPECT_THAT(BodyAfter(std::move(outcome)), ElementsAre("{xy=0,1}", "{DEF}", "{\\n}"));
}

TEST(Writer, StepsToTheEndOfASubsectionAndBack) {
  EXPECT_THAT(BodyOf({"{\\n}"}), ElementsAre("{DEF}", "{\\n}"));
  EXPECT_THAT(BodyOf({"{Spacing=900;\\n}"}), ElementsAre("{DEF}", "{Spacing=900;\\n}"));
  EXPECT_THAT(BodyOf({"{Spacing=900;\\n}", "{Spacing=600;\\P}", "{Box=1,,2,3}"}),
              ElementsAre("{DEF}", "{Spacing=900;\\n}", "{MBeu;W=0;Box=1,,2,3}", "{Spacing=600;\\P}"))
      << "stepping back leaves the surface, and the box lies where the surface is";
}

TEST(Writer, PutsAnObjectOnTheLastTwipIntoTheBodyThatItEnds) {
  EXPECT_THAT(BodyOf({"{Spacing=900;\\n}", "{W=2}", "{Box=1,,2,3}"}),
              ElementsAre("{DEF}", "{Spacing=900;\\n}", "{MBeu;W=2;Box=1,,2,3}"));
}

TEST(Writer, WritesNoStepBehindAPageBreakAtTheEnd) {
  EXPECT_THAT(BodyOf({"{Spacing=500;\\n}", "{100;\\np}"}),
              ElementsAre("{DEF}", "{Spacing=500;\\n}", "{100;\\np}"));
}

TEST(Writer, WritesNoStepOfAnotherHeightBehindAPageBreakAtTheEndEither) {
  EXPECT_THAT(BodyOf({"{Spacing=500;\\n}", "{300;\\np}", "{W=2}", "{Box=1,,2,3}", "{Spacing=900;\\n}"}),
              ElementsAre("{DEF}", "{Spacing=500;\\n}", "{MBeu;W=2;Box=1,,2,3}", "{300;\\np}"));
}

TEST(Writer, RemembersAPageBreakOnlyUntilSomethingElseIsPrinted) {
  EXPECT_THAT(BodyOf({"{Spacing=500;\\n}", "{100;\\np}", "{W=2;Box=1,,2,3}", "{\\n}"}),
              ElementsAre("{DEF}", "{Spacing=500;\\n}", "{MBeu;W=2;Box=1,,2,3}", "{100;\\np}"));
  EXPECT_THAT(BodyOf({"{Spacing=500;\\n}", "{100;\\np}", "{W=2;Box=200,,2,3}", "{\\n}"}),
              ElementsAre("{DEF}", "{Spacing=500;\\n}", "{100;\\np}", "{MBeu;W=2;Box=200,,2,3}", "{\\n}"));
}

TEST(Writer, GoesByPlaceAndNotByRow) {
  EXPECT_THAT(BodyOf({"{W=2;NMBeu}", "{Spacing=900;\\n;Box=1,,2,3}", "{xy=0,5;\\n;Box=9,,2,3;Box=5,,2,3}"}),
              ElementsAre("{xy=0,5}", "{DEF}", "{\\n}", "{W=2;Box=5,,2,3}", "{W=2;Box=9,,2,3}",
                          "{Spacing=700;\\n}", "{W=2;Box=1,,2,3}", "{Spacing=700;\\P}"));
}

TEST(Writer, GivesARowWithoutAnOwnerToTheSubsectionAboveIt) {
  ReadOutcome outcome = ReadLayout({"{\\n}", "[DATA]", "{\\n}", "{W=2;Box=1,,2,3}"});
  FirstOf(outcome.Read, ObjectKind::Box).OwnerName = "GONE]";
  const std::string text = WriteText(outcome.Read);
  EXPECT_GT(text.find("Box="), text.find("[DATA]"));
}

// No attribute is taken for known that the reader meets later: the footer comes before the data in the file.
TEST(Writer, AssumesNothingThatTheReaderMeetsLater) {
  const std::string text = Rewrite(
      "[HEADER]\r\n[DATA]\r\n{f=Courier;s=12;c=1,2,3;5}A{}\r\n{f=Arial;s=9}{5}B{}\r\n[FOOTER]\r\n{f=Times;s="
      "7;5}C{}\r\n");
  Document read = ReadText(text).Read;
  for (const ObjectRecord* label : RowsOfKind(read, ObjectKind::Label)) {
    if (label->Content == "A") {
      EXPECT_EQ(label->FontName, "Courier");
      EXPECT_EQ(label->FontSize, 12);
    }
    if (label->Content == "C") {
      EXPECT_EQ(label->FontName, "Times");
      EXPECT_EQ(label->FontSize, 7);
    }
  }
}

// ---- the first label

TEST(Writer, SaysTheFontOfTheFirstLabelByRowAheadOfTheFirstObject) {
  const auto body = BodyOf({"{f=Courier;s=12;c=4;NMBeu;W=2}", "{\\n}", "{5}low{}", "{xy=0,1}", "{f=Arial}",
                            "{Box=1,,2,3}", "{6}top{}"});
  EXPECT_THAT(body, ElementsAre("{DEF}", "{F=Courier;S=12;C=4}", "{W=2;Box=1,,2,3}", "{f=Arial}", "{6} top{}",
                                "{\\n}", "{f=Courier}", "{5} low{}", "{Spacing=200;\\P}"))
      << "the size and the colour follow the first line";
}

TEST(Writer, PrintsThatLineBeforeTheFirstObjectOfTheFileAndOnce) {
  const std::string text = Rewrite("[HEADER]\r\n[DATA]\r\n{5}A{}\r\n[FOOTER]\r\n{Box=1,,2,3}\r\n{5}B{}\r\n");
  const std::size_t at = text.find("{F=Arial;S=10;C=0,0,0}");
  EXPECT_NE(at, std::string::npos);
  EXPECT_EQ(text.find("{F=", at + 1), std::string::npos);
  EXPECT_GT(at, text.find("[FOOTER]"));
  EXPECT_LT(at, text.find("[DATA]"));
}

// ---- objects

TEST(Writer, PrintsEachKindInItsForm) {
  struct Row {
    std::string_view read;
    std::vector<std::string> written;
  };
  const Row kRows[] = {
      {"{W=2;Box=$A + 5,,200,300}", {"{W=2;Box=$A + 5,,200,300}"}},
      {"{W=1;Boxf=10,,20,30}", {"{;W=1;Boxf=10,,20,30}"}},
      {"{W=2;Line=10,$B,1}", {"{W=2;Line=10,$B,1}"}},
      {"{W=2;Line=10,20}", {"{W=2;Line=10,20}"}},
      {"{W=2;AnyLine=10,,-20,30,1}", {"{W=2;AnyLine=10,,-20,30,1}"}},
      {"{W=2;AnyLine=10,,20,30}", {"{W=2;AnyLine=10,,20,30,0}"}},
      {"{W=2;Circ=10,,600}", {"{W=2;Circ=10,,600}"}},
      {"{W=2;c=1,2,3;Circ=10,,600}", {"{c=1,2,3}", "{W=2;Circ=10,,600}"}},
      {"{W=2;c=4;Line=10,20}", {"{c=4}", "{W=2;Line=10,20}"}},
      {"{Pic=a\\b.png,10,,,,}", {"{Pic=a\\b.png,10,,,,}"}},
      {"{Pic=a.png,10,,300,,http://x}", {"{Pic=a.png,10,,300,,http://x}"}},
      {"{Pic=a.png,10,,,400}", {"{Pic=a.png,10,,,400,}"}},
      {"{QrCode=10,second,900}text{nobar}", {"{QrCode=10,,900}text{nobar}"}},
      {"{10;BarHeight=500;Ean13}123{NoBar}", {"{10;BarHeight=500;Ean13}123{NoBar}"}},
      {"{10;BarHeight=500;BarWidth=10;VertBar;B39}X Y{NoBar}",
       {"{10;BarHeight=500;BarWidth=10;VertBar;Bar}X Y{NoBar}"}},
      {"{10;BarHeight=500;BarWidth=11;Ean8}1{NoBar}", {"{10;BarHeight=500;Ean8}1{NoBar}"}},
      {"{10;BarHeight=500;BarWidth=1;B2Of5Bar}1{NoBar}", {"{10;BarHeight=500;B2Of5Bar}1{NoBar}"}},
      {"{10;BarHeight=500;B2Of5Int}1{NoBar}", {"{10;BarHeight=500;B2Of5Int}1{NoBar}"}},
      {"{10;BarHeight=500;B2Of5Ind}1{NoBar}", {"{10;BarHeight=500;B2Of5Ind}1{NoBar}"}},
      {"{10;BarHeight=500;B128B}1{NoBar}", {"{10;BarHeight=500;B128B}1{NoBar}"}},
      {"{10;BarHeight=500;B128C}1{NoBar}", {"{10;BarHeight=500;B128C}1{NoBar}"}},
      {"{10;\\np}", {"{10;\\np}"}},
      {"{TBProps=285,Courier,9,Y,x,1,1,2,3,4,-1,-1,2.5;TextBox=10,,2000,@V,text}",
       {"{TBProps=285,Courier,9,,,1,1,2,3,4,-1,-1,2.5;TextBox=10,,2000,@V,text}"}},
      {"{cs=0161;TextBox=10,,2000,,}", {"{CS=161;TBProps=285,Arial,0,,,,0,0,0,0,0,0,;TextBox=10,,2000,,}"}},
      {"{5;NoPrint;NAtg;MBeu;W=2;Box=1,,2,3}", {"{NoPrint;NAtg;MBeu;W=2;Box=1,,2,3}"}},
  };
  for (const Row& row : kRows) {
    std::vector<std::string> body = BodyOf({"{DEF}", row.read});
    ASSERT_FALSE(body.empty());
    EXPECT_EQ(body.front(), "{DEF}");
    body.erase(body.begin());
    EXPECT_EQ(body, row.written) << row.read;
  }
}

TEST(Writer, PrintsChartsAsTheirKeysAndNothingBehindTheComma) {
  const auto body =
      BodyOf({"{DEF}", "{\\n}", "{Graph_Type=PIE;Graph_Width=4000;Graph_Height=3000}", "{Buildgraph=$A,}"});
  ASSERT_GT(body.size(), 4U);
  EXPECT_EQ(body[1], "{\\n}");
  EXPECT_EQ(body[2], "{Graph_Height=3000;Graph_Width=4000}");
  EXPECT_EQ(body[3], "{Graph_Type=PIE}");
  EXPECT_EQ(body.back(), "{Buildgraph=$A,}");
}

TEST(Writer, PrintsCommandsOfTheViewer) {
  struct Row {
    std::string_view content, command, payload, line;
  };
  for (const Row& row :
       {Row{"@@execute", "run", "", "{10;Execute=run,two,three}"},
        Row{"@@postshow", "show", "", "{10;PostShow=show}"}, Row{"@@page", "", "7", "{10;Page=7}"}}) {
    ReadOutcome outcome = ReadLayout({"{10;\\np}"});
    ObjectRecord& command = FirstOf(outcome.Read, ObjectKind::Command);
    command.Content = row.content;
    command.ExecuteCommand = row.command;
    command.ExecuteArg2 = "two";
    command.ExecuteArg3 = "three";
    if (!row.payload.empty()) command.CommandPayload = row.payload;
    EXPECT_THAT(BodyAfter(std::move(outcome)), Contains(std::string(row.line)));
  }
}

TEST(Writer, SpeaksOfOneStepForObjectsAtOneY) {
  EXPECT_THAT(BodyOf({"{DEF;W=2}", "{\\n}", "{Box=1,,2,3}", "{Box=5,,2,3}"}),
              ElementsAre("{DEF}", "{\\n}", "{W=2;Box=1,,2,3}", "{W=2;Box=5,,2,3}"));
}

TEST(Writer, StepsUpwardsWithANegativeNumberAndNotForAYBelowOne) {
  ReadOutcome outcome = ReadLayout({"{DEF;W=2}", "{Spacing=900;\\n}", "{Box=1,,2,3}"});
  FirstOf(outcome.Read, ObjectKind::Box).Y = -50;
  FirstOf(outcome.Read, ObjectKind::Box).AbsoluteY = 350;
  EXPECT_THAT(BodyAfter(std::move(outcome)), ElementsAre("{DEF}", "{W=2;Box=1,,2,3}", "{Spacing=900;\\n}"));
}

TEST(Writer, PrintsColourAheadOfTheStepExceptForABox) {
  EXPECT_THAT(BodyOf({"{DEF;W=2;c=9,9,9}", "{\\n}", "{Line=1,2}"}),
              ElementsAre("{DEF}", "{c=9,9,9}", "{\\n}", "{W=2;Line=1,2}"));
  EXPECT_THAT(BodyOf({"{DEF;W=2;c=9,9,9}", "{\\n}", "{Box=1,,2,3}"}),
              ElementsAre("{DEF}", "{\\n}", "{c=9,9,9}", "{W=2;Box=1,,2,3}"));
}

TEST(Writer, CarriesFlagsFromObjectToObject) {
  EXPECT_THAT(BodyOf({"{W=2;NoPrint;NMBeu}", "{Box=1,,2,3}", "{Box=2,,2,3}", "{Print}{Box=3,,2,3}"}),
              ElementsAre("{DEF}", "{NoPrint;W=2;Box=1,,2,3}", "{W=2;Box=2,,2,3}", "{Print;W=2;Box=3,,2,3}"));
}

TEST(Writer, PrintsTheCharsetForTheStrikethroughOfATextBox) {
  ReadOutcome outcome = ReadLayout({"{DEF;cs=2;TextBox=1,,2,,t}"});
  FirstOf(outcome.Read, ObjectKind::TextBox).Strikethrough = kTrue;
  EXPECT_THAT(BodyAfter(std::move(outcome)),
              ElementsAre("{DEF}", "{CS=2;ST=2;TBProps=285,Arial,0,,,,0,0,0,0,0,0,;TextBox=1,,2,,t}"));
}

TEST(Writer, TellsOnceOfEachSymbologyWithoutAWord) {
  ReadOutcome outcome =
      ReadLayout({"{DEF}", "{10;BarHeight=5;B32}a{NoBar}", "{10;BEan128}b{NoBar}", "{10;B32}c{NoBar}"});
  WriteReport report;
  const std::string text = TemplateText(outcome.Read, {}, report);
  EXPECT_THAT(report.UnnamedSymbologies, ElementsAre("32", "12821"));
  EXPECT_THAT(FilledLines(text), Contains("{10;BarHeight=5}a{NoBar}"));
}

// ---- own delimiters

TEST(Writer, KeepsItsBlocksCommandsBesideOwnDelimiters) {
  const std::string text = Rewrite(
      "Open=<\r\nClose=>\r\n[HEADER]\r\n<DEF;b=y;0>\r\n<\\n;0>\r\n<10;>a "
      "{b}<0>\r\n<10;BarHeight=5;Bar>1<NoBar;0>\r\n");
  EXPECT_THAT(HeaderBody(text), ElementsAre("<DEF;0>", "<F=Arial;S=10;C=0,0,0;0>", "<\\n;0>", "<b=y;0>",
                                            "<10> a {b}<0>", "<10;BarHeight=5;Bar>1<NoBar;0>"));
  EXPECT_EQ(HeaderBody(Rewrite(text)), HeaderBody(text));
}

// ---- files

TEST(WriteTemplate, LeavesTheTextAloneAndNothingBeside) {
  const test::TemporaryFolder folder;
  Document document = ReadLayout({"{\\n}", "{5;}A{}"}).Read;
  const WriteReport report = WriteTemplate(folder / "a.kev", document, {});
  EXPECT_FALSE(report.Failure);
  EXPECT_EQ(test::ReadBytes(folder / "a.kev"), WriteText(document));
  EXPECT_FALSE(std::filesystem::exists(folder / "a.kev.tmp"));
}

TEST(WriteTemplate, SaysWhyItCannotAndLeavesTheOldFile) {
  const test::TemporaryFolder folder;
  Document document;
  const WriteReport noFolder = WriteTemplate(folder / "no/a.kev", document, {});
  ASSERT_TRUE(noFolder.Failure);
  EXPECT_EQ(noFolder.Failure->reason, "No such file or directory");
  std::filesystem::create_directory(folder / "b.kev");
  const WriteReport isFolder = WriteTemplate(folder / "b.kev", document, {});
  ASSERT_TRUE(isFolder.Failure);
  EXPECT_EQ(isFolder.Failure->reason, "Is a directory");
  EXPECT_TRUE(std::filesystem::exists(folder / "b.kev.tmp")) << "the first stage stays behind";
}

}  // namespace
}  // namespace kev
