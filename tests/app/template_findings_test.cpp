// SPDX-License-Identifier: MIT
// Whatever of a template is lost or misread is told with its place, by the check of a file and in the
// designer.
#include "app/template_findings.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "app/designer_fixture.h"
#include "chart/definition.h"
#include "support/templates.h"

namespace kev {
namespace {

struct InFile {
  const char* name;
  std::string text;
  FindingKind kind;
  std::size_t line, column;
  std::string about;
  ObjectKind object;
};

std::string Late() {
  std::string text;
  for (int n = 0; n < 100; ++n)
    text += "\r\n";
  return text + "Copies=3\r\n[HEADER]\r\n";
}

std::string Layout(const std::string& lines) {
  return "KEXVER=4\r\n[HEADER]\r\n" + lines;
}

// Line 3 is the first one behind the head.
const std::vector<InFile>& Table() {
  using enum FindingKind;
  using Object = ObjectKind;
  static const std::vector<InFile> rows = {
      {"KeyOfTheHead", " Nonsense=1\r\n[HEADER]\r\n", UnknownKey, 1, 2, "Nonsense", Object::None},
      {"LineOfTheHead", "KEXVER=4\r\nfree text\r\n[HEADER]\r\n", LostText, 2, 1, "free text", Object::None},
      {"RemarkOfTheHead", "# mine\r\n[HEADER]\r\n", LostText, 1, 1, "# mine", Object::None},
      {"RepeatedKey", "KEXVER=4\r\n  kexver=3\r\n[HEADER]\r\n", RepeatedKey, 2, 3, "KEXVER", Object::None},
      {"LateKey", Late(), LateKey, 101, 1, "Copies=3", Object::None},
      {"Delimiters", "Open=[\r\n[HEADER]\r\n", WillNotComeBack, 1, 1, "Open=[", Object::None},
      {"KeyOfABlock", Layout("  {5;Nonsense=1}Total{\\n}\r\n"), UnknownKey, 3, 3, "Nonsense", Object::Label},
      {"LostText", Layout("{5;}Total{\\n}\r\n more"), LostText, 4, 2, "more", Object::Subsection},
      {"DisarmedCommand", Layout("{b=y}Total{\\n}\r\n"), DisarmedBlock, 3, 1, "b=y", Object::Label},
      {"OwnDelimiters", "Open=<\r\nClose=>\r\n[HEADER]\r\n <b=y>\r\n<100;>a<0>\r\n", DisarmedBlock, 4, 2,
       "b=y", Object::Label},
      {"UnknownColumn", Layout("{\\n}\r\n{$Gone;}Total{\\n}\r\n"), DanglingColumn, 4, 9, "$Gone",
       Object::Label},
      {"EndInUnknownColumn", Layout("{\\n}{Line=5,$Gone}\r\n"), DanglingColumn, 3, 5, "$Gone", Object::Line},
      {"Width", Layout("{Box=1,,3000000000,3}\r\n"), ValueOutOfRange, 3, 1, "3000000000", Object::Box},
      {"LineWidth", Layout("{W=40000;Line=5,9}\r\n"), ValueOutOfRange, 3, 1, "40000", Object::Line},
      {"Colour", Layout("{C=70000;5;}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "70000", Object::Label},
      {"Command", Layout("{Execute=a,b,c}\r\n{5;}Total{\\n}\r\n"), WillNotComeBack, 3, 1, "Execute",
       Object::Label},
      {"Strikethrough", Layout("{5;st=y}Total{\\n}\r\n"), WillNotComeBack, 3, 1, "st", Object::Label},
      {"KeptBlanks", Layout("{5;Trim=n}Total{\\n}\r\n"), WillNotComeBack, 3, 1, "Trim", Object::Label},
      {"Symbology", Layout("{5;B32}123456789{NoBar}\r\n"), WillNotComeBack, 3, 1, "B32", Object::Barcode},
      {"SymbologyIsLost", Layout("{5;B32}123456789{NoBar}\r\n"), KindChanges, 3, 8, "BARCODE -> LABEL",
       Object::Barcode},
      {"SeriesFormat", Layout("{Graph_serie_1_format=0.0}\r\n{Graph_W=9;Graph_H=9;Buildgraph=1,}\r\n"),
       WillNotComeBack, 3, 1, "Graph_serie_1_format", Object::Chart},
      {"BarWidth", Layout("{5;Bar;BarWidth=12}1{NoBar}\r\n"), ValueChanges, 3, 20,
       "BARCODE BarWidth: 12 -> 1", Object::Barcode},
      {"PastTheRightEdge", Layout("{\\n}\r\n{20000;}Total{\\n}\r\n"), PastPage, 4, 9, "LABEL XValue: 20000",
       Object::Label},
      {"PastTheLeftEdge", Layout("{Box=-900,,20,20}\r\n"), PastPage, 3, 1, "BOX XValue: -900", Object::Box},
      {"EndPastTheEdge", Layout("{\\n}{Line=5,20000}\r\n"), PastPage, 3, 5, "LINE X2Value: 20000",
       Object::Line},
      {"BelowThePage", Layout("{Spacing=30000;\\n}\r\n{Box=1,20000,20,20}\r\n"), PastPage, 4, 1,
       "BOX Y: 20000", Object::Box},
      {"OutsideAllBodies", Layout("{\\n}\r\n{Box=1,9000,20,20}\r\n"), OutsideBodies, 4, 1, "BOX Y: 9000",
       Object::Box},
      {"InAnotherBody", Layout("{\\n}\r\n{Box=1,900,20,20}\r\n[DATA]\r\n{Spacing=2000;\\n}\r\n"),
       MovesSubsection, 4, 1, "BOX: [DATA]", Object::Box},
      {"NoNumberOfCopies", " Copies=two\r\n[HEADER]\r\n", ValueOutOfRange, 1, 2, "Copies=two", Object::None},
      {"NoNumberOfTwips", "LM=left\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1, "LM=left", Object::None},
      {"NeitherYesNorNo", "EBEU=maybe\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1, "EBEU=maybe", Object::None},
      {"LinktipsOfOne", "Linktips=1\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1, "Linktips=1", Object::None},
      {"WordOfOrientation", "Orientation=Portrait\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1,
       "Orientation=Portrait", Object::None},
      {"DelimiterOfTwo", "Open=<<\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1, "Open=<<", Object::None},
      {"PaperOfNobody", "papersize=Foolscap\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1, "PAPERSIZE=Foolscap",
       Object::None},
      {"ColumnWithoutNumber", "$A=wide\r\n[HEADER]\r\n", ValueOutOfRange, 1, 1, "$A=wide", Object::None},
      {"ColumnTwice", "$A=1\r\n $a=2\r\n[HEADER]\r\n", RepeatedKey, 2, 2, "$a", Object::None},
      {"SizeOfNoNumber", Layout("{5;S=big}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "S=big", Object::Label},
      {"HeightOfNoNumber", Layout("{Box=1,,9,high}\r\n"), ValueOutOfRange, 3, 1, "Box=1,,9,high",
       Object::Box},
      {"BoldOrNot", Layout("{5;b=on}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "b=on", Object::Label},
      {"AlignedToNothing", Layout("{5;a=middle}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "a=middle",
       Object::Label},
      {"ColourTooBright", Layout("{C=300,0,0;5;}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "300",
       Object::Label},
      {"ColourBeyondTheBasic", Layout("{C=16;5;}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "16", Object::Label},
      {"NameOfAColour", Layout("{C=red;5;}Total{\\n}\r\n"), ValueOutOfRange, 3, 1, "C=red", Object::Label},
      {"PositionWithoutNumber", Layout("{Box=left,,9,9}\r\n"), ValueOutOfRange, 3, 1, "left", Object::Box},
      {"StepFromAColumn", "$A=1\r\n[HEADER]\r\n{$A +}Total{\\n}\r\n", ValueOutOfRange, 3, 7, "$A +",
       Object::Label},
  };
  return rows;
}

class FindingInFile : public testing::TestWithParam<InFile> {};

std::string NameOf(const testing::TestParamInfo<InFile>& row) {
  return row.param.name;
}

void ExpectAmong(const std::vector<Finding>& findings, const InFile& row, const Document& document) {
  const auto found = std::find_if(findings.begin(), findings.end(), [&](const Finding& finding) {
    return finding.Kind == row.kind && finding.Text == row.about;
  });
  std::string all;
  for (const Finding& finding : findings)
    all += std::to_string(finding.Line) + ":" + std::to_string(finding.Column) + ": " +
           std::string(FindingName(finding.Kind)) + ": " + finding.Text + "\n";
  ASSERT_NE(found, findings.end()) << all;
  EXPECT_EQ(found->Line, row.line) << all;
  EXPECT_EQ(found->Column, row.column) << all;
  EXPECT_EQ(KindText(document.Objects[found->Row].Kind), KindText(row.object)) << all;
}

TEST_P(FindingInFile, IsToldByTheCheck) {
  ReadOutcome outcome = test::ReadText(GetParam().text);
  const std::vector<Finding> findings = CheckRead(outcome, GetParam().text, BuiltInMeasurer()).Findings;
  ExpectAmong(findings, GetParam(), outcome.Read);
  EXPECT_TRUE(std::is_sorted(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    return std::pair(a.Line - 1, a.Column) < std::pair(b.Line - 1, b.Column);
  }));
}

INSTANTIATE_TEST_SUITE_P(All, FindingInFile, testing::ValuesIn(Table()), NameOf);

class FindingInDesigner : public test::DesignerTest, public testing::WithParamInterface<InFile> {};

TEST_P(FindingInDesigner, IsListedBehindTheOpening) {
  const auto designer = Start({Made("a.kev", GetParam().text)});
  ASSERT_EQ(designer->DocumentTitle(), "a.kev");
  ExpectAmong(designer->Findings(), GetParam(), designer->OpenDocument());
}

INSTANTIATE_TEST_SUITE_P(All, FindingInDesigner, testing::ValuesIn(Table()), NameOf);

// ---- What is made on the page and will not come back

class FindingBehindASave : public test::DesignerTest {
 protected:
  // The finding behind a save of the page with one change of its object.
  template <typename Change>
  void Expect(const std::string& lines, ObjectKind kind, const Change& change, const std::string& text) {
    SCOPED_TRACE(text);
    host_.Messages.clear();
    const auto designer = Start({Made("a.kev", Layout("{\\n}\r\n" + lines))});
    ObjectTable& objects = designer->OpenDocument().Objects;
    int row = 1;
    while (row < ObjectTable::kLastRow && objects[row].Kind != kind)
      ++row;
    ASSERT_EQ(objects[row].Kind, kind);
    change(objects[row]);
    EXPECT_TRUE(designer->Save());
    const std::vector<Finding>& findings = designer->Findings();
    const auto found = std::find_if(findings.begin(), findings.end(),
                                    [&](const Finding& finding) { return finding.Text == text; });
    std::string all;
    for (const Finding& finding : findings)
      all += finding.Text + "\n";
    ASSERT_NE(found, findings.end()) << all << test::ReadBytes(Work("a.kev"));
    EXPECT_EQ(found->Row, row);
    EXPECT_GT(found->Line, 2U) << test::ReadBytes(Work("a.kev"));
    EXPECT_GT(found->Column, 0U);
  }
};

TEST_F(FindingBehindASave, NamesTheObjectAndItsPlaceInTheSavedFile) {
  const std::string label = "{100;}Total{\\n}\r\n";
  const std::string textBox = "{TBProps=285,Arial,8,,,1,0,0,0,255,255,255,;TextBox=100,,900,@a,Name}\r\n";
  Expect(
      label, ObjectKind::Label, [](ObjectRecord& r) { r.Strikethrough = kTrue; },
      "LABEL Strikethrough: -1 -> 0");
  Expect(
      "{Box=100,,500,300}\r\n", ObjectKind::Box, [](ObjectRecord& r) { r.LineFlag = kTrue; },
      "BOX LineFlag: -1 -> 0");
  Expect(
      "{100;Bar}1{NoBar}\r\n", ObjectKind::Barcode, [](ObjectRecord& r) { r.BarWidth = 12; },
      "BARCODE BarWidth: 12 -> 1");
  Expect(
      "{100;Bar}1{NoBar}\r\n", ObjectKind::Barcode, [](ObjectRecord& r) { r.BarcodeKind = "32"; },
      "BARCODE -> LABEL");
  Expect(
      textBox, ObjectKind::TextBox, [](ObjectRecord& r) { r.Align = "R"; }, "TEXTBOX Align: R -> L");
  Expect(
      textBox, ObjectKind::TextBox, [](ObjectRecord& r) { r.Height = 600; }, "TEXTBOX Height: 600 -> 285");
  Expect(
      "{QR=100,,900}code{NoBar}\r\n", ObjectKind::Qr, [](ObjectRecord& r) { r.ColorR = 200; },
      "QR ColorR: 200 -> 0");
  Expect(
      "{Graph_W=900;Graph_H=900;Buildgraph=1,}\r\n", ObjectKind::Chart,
      [](ObjectRecord& r) { r.ChartValues[*ChartKeyIndex("GRAPH_TITLE")] = "a;b"; },
      "CHART Graph_Title: a;b -> a");
}

TEST_F(FindingBehindASave, TellsWhatTheFileItselfHoldsToo) {
  const auto designer = Start(
      {Made("a.kev", Layout("{\\n}\r\n{20000;}Total{\\n}\r\n{$Gone;}B{\\n}\r\n[FOOTER]\r\n[DATA]\r\n"))});
  EXPECT_TRUE(designer->Save());
  std::set<std::string> texts;
  for (const Finding& finding : designer->Findings()) {
    texts.insert(finding.Text);
    EXPECT_EQ(designer->OpenDocument().Objects[finding.Row].Kind, ObjectKind::Label) << finding.Text;
    EXPECT_GT(finding.Line, 2U) << finding.Text;
  }
  EXPECT_EQ(texts, (std::set<std::string>{"$Gone", "LABEL XValue: 20000"}));
  EXPECT_NE(host_.Status, designer->Text(kTextSavedWithFindings)) << "all of it comes back";
}

TEST_F(FindingBehindASave, GoesWithTheDocument) {
  const auto designer = Start({Made("a.kev", Layout("{20000;}Total{\\n}\r\n"))});
  EXPECT_FALSE(designer->Findings().empty());
  designer->NewTemplate();
  EXPECT_TRUE(designer->Findings().empty());
  ASSERT_TRUE(designer->OpenTemplate(Work("a.kev")));
  EXPECT_FALSE(designer->Findings().empty());
  ASSERT_TRUE(designer->OpenTemplate(Made("b.kev", Layout("{200;}Total{\\n}\r\n"))));
  EXPECT_TRUE(designer->Findings().empty());
}

// ---- What a rewrite changes

TEST(FirstDifferenceTest, NamesTheLineAndBothForms) {
  EXPECT_TRUE(FirstDifference("a\r\nb\r\n", "a\r\nb\r\n").empty());
  const auto at = [](std::string_view bytes, std::string_view written) {
    const std::vector<Finding> found = FirstDifference(bytes, written);
    return found.size() != 1
               ? std::string("none")
               : std::to_string(found[0].Line) + ":" + std::to_string(found[0].Column) + ": " + found[0].Text;
  };
  EXPECT_EQ(at("a\r\nbcd\r\n", "a\r\nbxd\r\n"), "2:2: \"bcd\" -> \"bxd\"");
  EXPECT_EQ(at("x", "y"), "1:1: \"x\" -> \"y\"");
  EXPECT_EQ(at("a\r\n", "a\r\nb\r\n"), "2:1: (end) -> \"b\"");
  EXPECT_EQ(at("a\r\nb", "a\r\n"), "2:1: \"b\" -> (end)");
  EXPECT_EQ(at("a\nb\n", "a\r\nb\r\n"), "1:2: \"a\", its end");
  EXPECT_EQ(at("", "a"), "1:1: (end) -> \"a\"");
}

TEST(Findings, AreNoneOfValuesThatMeanSomething) {
  const std::string text =
      "Copies=2\r\nLM=1 440\r\nEBEU=yes\r\nOrientation=2\r\nZoomToOpen=50%\r\nPAPERSIZE=a4, 210 x 297 mm\r\n"
      "ALWAYSFIT=No\r\nPDFFROMPS=1\r\nKEXVER=4\r\n$A=-20.5\r\n$B=9\r\n[HEADER]\r\n"
      "  {DEF}\r\n  {b=Yes;u=1;i=n;a=c;S=12;C=15}\r\n  {$A + 30} Total{}\r\n  {C=255,0,-1}\r\n  "
      "{Box=9,,90,90}\r\n";
  ReadOutcome outcome = test::ReadText(text);
  EXPECT_THAT(outcome.Findings, testing::IsEmpty());
}

TEST(Findings, AreNoneOfAnUnknownPaperBesideItsSize) {
  ReadOutcome outcome = test::ReadText("PAPERSIZE=Card\r\nPAGEWIDTH=2000\r\nPAGELENGHT=3000\r\n[HEADER]\r\n");
  EXPECT_THAT(outcome.Findings, testing::IsEmpty());
}

TEST(Findings, AreNoneOfTheExamples) {
  for (const auto& entry : std::filesystem::directory_iterator(KEV_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".kev") continue;
    const std::string text = test::ReadBytes(entry.path().string());
    ReadOutcome outcome = test::ReadText(text);
    const CheckedTemplate checked = CheckRead(outcome, text, BuiltInMeasurer());
    for (const Finding& finding : checked.Findings)
      ADD_FAILURE() << entry.path().filename() << ':' << finding.Line << ": " << FindingText(finding.Kind)
                    << ": " << finding.Text;
  }
}

TEST(Findings, HaveEachANameOfTheirOwn) {
  std::set<std::string_view> names;
  for (std::size_t kind = 0; kind < kFindingKinds; ++kind) {
    const std::string_view name = FindingName(static_cast<FindingKind>(kind));
    EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string_view::npos) << name;
    names.insert(name);
  }
  EXPECT_EQ(names.size(), kFindingKinds);
}

}  // namespace
}  // namespace kev
