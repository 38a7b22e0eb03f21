// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/templates.h"

namespace kev {
namespace {

using test::OnlyRow;
using test::ReadLayout;
using test::ReadText;
using test::RowsOfKind;

// The state that one block leaves behind.
AttributeState StateAfter(std::string_view block) {
  return ReadLayout({"{" + std::string(block) + "}"}).Attributes;
}

TEST(Directives, FindTheStateOfAFreshRead) {
  const AttributeState state = StateAfter("");
  EXPECT_EQ(state.AttrPrint, -1);
  EXPECT_EQ(state.AttrAtg, 1);
  EXPECT_EQ(state.AttrMBeu, 1);
  EXPECT_EQ(state.AttrTrim, -1);
  EXPECT_EQ(state.AttrAlign, "L");
  EXPECT_EQ(state.AttrBold, 0);
  EXPECT_EQ(state.AttrFormat, "");
  EXPECT_EQ(state.AttrFontName, "Arial");
  EXPECT_EQ(state.AttrSize, 10);
  EXPECT_EQ(state.AttrCharSet, "0");
  EXPECT_EQ(state.AttrColor, (Colour{0, 0, 0}));
  EXPECT_EQ(state.AttrCase, "N");
  EXPECT_EQ(state.AttrValueType, "General");
  EXPECT_FALSE(state.AttrStretch);
  EXPECT_EQ(state.AttrLineWidth, 0);
  EXPECT_EQ(state.AttrSymbology, 0);
  EXPECT_EQ(state.AttrBarHeight, 0);
  EXPECT_EQ(state.AttrBarWidth, 0);
  EXPECT_EQ(state.AttrRotation, 0);
  EXPECT_EQ(state.AttrX, "0");
  EXPECT_EQ(state.SpacingNow, 200);
  EXPECT_EQ(state.TextBoxProps, "");
}

TEST(Directives, StoreTextsAsTheyStand) {
  EXPECT_EQ(StateAfter("F= Courier New ").AttrFontName, " Courier New ");
  EXPECT_EQ(StateAfter("Link=a=b").AttrLink, "a=b");
  EXPECT_EQ(StateAfter(" link =a").AttrLink, "a");
  EXPECT_EQ(StateAfter("FORMAT=0.00").AttrFormat, "0.00");
  EXPECT_EQ(StateAfter("Format=a;Format=").AttrFormat, "");
  EXPECT_EQ(StateAfter("cs=161").AttrCharSet, "161");
  EXPECT_EQ(StateAfter("CharSet=2").AttrCharSet, "2");
  EXPECT_EQ(StateAfter("Stretch=500").AttrStretch, "500");
  EXPECT_EQ(StateAfter("TBProps=285,Arial").TextBoxProps, "285,Arial");
  EXPECT_EQ(StateAfter("tb=1,2").TextBoxProps, "1,2");
}

TEST(Directives, StoreNumbers) {
  EXPECT_EQ(StateAfter("W=2.5").AttrLineWidth, 2.5);
  EXPECT_EQ(StateAfter("W=x").AttrLineWidth, 0);
  EXPECT_EQ(StateAfter("s=12.5pt").AttrSize, 12.5);
  EXPECT_EQ(StateAfter("BarHeight=600").AttrBarHeight, 600);
  EXPECT_EQ(StateAfter("BARWIDTH=3").AttrBarWidth, 3);
  EXPECT_EQ(StateAfter("Spacing=12.5").SpacingNow, 12);
  EXPECT_EQ(StateAfter("Spacing=-40").SpacingNow, -40);
}

TEST(Directives, TakeYOrOneForTrueAndAllElseForFalse) {
  struct Row {
    std::string_view value;
    Flag flag;
  };
  for (const Row& row : {Row{"Y", -1}, Row{"y", -1}, Row{"1", -1}, Row{"n", 0}, Row{"yes", 0}, Row{"", 0},
                         Row{"0", 0}, Row{"2", 0}, Row{"-1", 0}}) {
    const std::string value(row.value);
    EXPECT_EQ(StateAfter("b=" + value).AttrBold, row.flag) << value;
    EXPECT_EQ(StateAfter("i=" + value).AttrItalic, row.flag) << value;
    EXPECT_EQ(StateAfter("u=" + value).AttrUnderline, row.flag) << value;
    EXPECT_EQ(StateAfter("Trim=" + value).AttrTrim, row.flag) << value;
  }
}

TEST(Directives, SwitchFlags) {
  EXPECT_EQ(StateAfter("NoPrint").AttrPrint, 0);
  EXPECT_EQ(StateAfter("NoPrint;Print").AttrPrint, -1);
  EXPECT_EQ(StateAfter("NAtg").AttrAtg, 0);
  EXPECT_EQ(StateAfter("NAtg;ATG").AttrAtg, 1);
  EXPECT_EQ(StateAfter("NMBeu").AttrMBeu, 0);
  EXPECT_EQ(StateAfter("NMBeu;MBeu").AttrMBeu, 1);
  EXPECT_EQ(StateAfter("Num").AttrValueType, "Number");
  EXPECT_EQ(StateAfter("Num;Text").AttrValueType, "Text");
  EXPECT_EQ(StateAfter("Vert").AttrRotation, 90);
  EXPECT_EQ(StateAfter("VertBar").AttrRotation, 90);
}

TEST(Directives, AlignLeftWhereTheLetterIsUnknown) {
  EXPECT_EQ(StateAfter("a=r").AttrAlign, "R");
  EXPECT_EQ(StateAfter("A=C").AttrAlign, "C");
  EXPECT_EQ(StateAfter("a=r;a=x").AttrAlign, "L");
  EXPECT_EQ(StateAfter("a=r;a=").AttrAlign, "L");
}

TEST(Directives, ChangeTheCase) {
  EXPECT_EQ(StateAfter("Upper=Y").AttrCase, "U");
  EXPECT_EQ(StateAfter("Lower=anything").AttrCase, "L");
  EXPECT_EQ(StateAfter("FirstUp=").AttrCase, "F");
  EXPECT_EQ(StateAfter("Upper=Y;Lower= N ").AttrCase, "N");
}

TEST(Directives, TakeAColourOrAnIndexIntoTheBasicColours) {
  EXPECT_EQ(StateAfter("C=255,128,0").AttrColor, (Colour{255, 128, 0}));
  EXPECT_EQ(StateAfter("C=4").AttrColor, (Colour{4, -1, -1}));
  EXPECT_EQ(StateAfter("c=").AttrColor, (Colour{0, -1, -1}));
  EXPECT_EQ(StateAfter("c=255,0").AttrColor, (Colour{255, 0, 0}));
  EXPECT_EQ(StateAfter("c=70000,1,2").AttrColor, (Colour{0, 1, 2}));
}

TEST(Directives, ChooseTheSymbology) {
  struct Row {
    std::string_view word;
    int symbology;
  };
  for (const Row& row : {Row{"Bar", 1}, Row{"B39", 1}, Row{"B32", 32}, Row{"B128B", 1282},
                         Row{"BEan128", 12821}, Row{"B128C", 1283}, Row{"Ean13", 13}, Row{"BEan13", 13},
                         Row{"Ean8", 8}, Row{"BEan8", 8}, Row{"B2Of5Bar", 250}, Row{"B2Of5Int", 251},
                         Row{"B2Of5Ind", 252}, Row{"QR=1,2,3", 9999}, Row{"QrCode=1,2,3", 9999}}) {
    EXPECT_EQ(StateAfter(row.word).AttrSymbology, row.symbology) << row.word;
  }
}

TEST(Directives, EndABarCodeWithNoBar) {
  const AttributeState state = StateAfter("Ean13;VertBar;BarWidth=4;BarHeight=9;NoBar");
  EXPECT_EQ(state.AttrSymbology, 0);
  EXPECT_EQ(state.AttrRotation, 0);
  EXPECT_EQ(state.AttrBarWidth, 1);
  EXPECT_EQ(state.AttrBarHeight, 9);
}

TEST(Directives, KeepThePartsOfAQr) {
  const AttributeState state = StateAfter("QrCode=$Col_01 + 5,second,900");
  EXPECT_EQ(state.AttrQrX, "$Col_01 + 5");
  EXPECT_EQ(state.AttrQrSecond, "second");
  EXPECT_EQ(state.AttrQrSize, "900");
}

TEST(Directives, ResetWithDefOnlyWhatDefResets) {
  const AttributeState state = StateAfter(
      "NoPrint;NAtg;MBeu;Trim=n;a=r;b=y;u=y;i=y;Format=0;f=Courier;s=12;cs=5;c=1,2,3;Upper=Y;W=3;B39;"
      "BarHeight=5;BarWidth=6;Vert;Link=x;700;Spacing=9;TB=1;Stretch=2;Num;DEF");
  EXPECT_EQ(state.AttrPrint, -1);
  EXPECT_EQ(state.AttrAtg, 1);
  EXPECT_EQ(state.AttrMBeu, 0);
  EXPECT_EQ(state.AttrTrim, -1);
  EXPECT_EQ(state.AttrAlign, "L");
  EXPECT_EQ(state.AttrBold, 0);
  EXPECT_EQ(state.AttrUnderline, 0);
  EXPECT_EQ(state.AttrItalic, 0);
  EXPECT_EQ(state.AttrFormat, "");
  EXPECT_EQ(state.AttrFontName, "Courier");
  EXPECT_EQ(state.AttrSize, 12);
  EXPECT_EQ(state.AttrCharSet, "5");
  EXPECT_EQ(state.AttrColor, (Colour{1, 2, 3}));
  EXPECT_EQ(state.AttrCase, "U");
  EXPECT_EQ(state.AttrLineWidth, 3);
  EXPECT_EQ(state.AttrSymbology, 1);
  EXPECT_EQ(state.AttrBarHeight, 5);
  EXPECT_EQ(state.AttrBarWidth, 6);
  EXPECT_EQ(state.AttrRotation, 90);
  EXPECT_EQ(state.AttrLink, "x");
  EXPECT_EQ(state.AttrX, "700");
  EXPECT_EQ(state.SpacingNow, 9);
  EXPECT_EQ(state.TextBoxProps, "1");
  EXPECT_EQ(state.AttrStretch, "2");
  EXPECT_EQ(state.AttrValueType, "Number");
}

TEST(Directives, TakeANumberOrAColumnForThePositionButNoZero) {
  struct Row {
    std::string_view block, position;
  };
  for (const Row& row :
       {Row{"500", "500"}, Row{" 500 ", "500"}, Row{"500;0", "500"}, Row{"500;00", "500"},
        Row{"0.001", "0.001"}, Row{"-20", "-20"}, Row{"500;$Gone", "$Gone"}, Row{"$a + 5", "$a + 5"},
        Row{"500;abc", "500"}, Row{"100abc", "100abc"}, Row{"100=x", "100"}, Row{"500;;", "500"}}) {
    EXPECT_EQ(StateAfter(row.block).AttrX, row.position) << row.block;
  }
}

TEST(Directives, PassOverWhatTheyDoNotKnowAndNoteIt) {
  const ReadOutcome outcome = ReadLayout({"{Nonsense=1;b=y;}", "{Rem=anything;0;}"});
  EXPECT_EQ(outcome.Attributes.AttrBold, -1);
  ASSERT_EQ(outcome.Findings.size(), 1U);
  EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::UnknownKey);
  EXPECT_EQ(outcome.Findings[0].Text, "Nonsense");
  EXPECT_EQ(outcome.Findings[0].Line, 2U);
  EXPECT_EQ(outcome.Findings[0].Column, 1U);
}

TEST(Directives, OfTheViewerAloneHaveNoEffectBeyondThePosition) {
  for (const std::string_view block : {"100;Execute=run,1,2", "100;PostShow=run", "100;Page=3", "100;st=y"}) {
    const ReadOutcome outcome = ReadLayout({"{" + std::string(block) + "}"});
    EXPECT_EQ(outcome.Attributes.AttrX, "100");
    EXPECT_TRUE(RowsOfKind(outcome.Read, ObjectKind::Command).empty()) << block;
    ASSERT_EQ(outcome.Findings.size(), 1U) << block;
    EXPECT_EQ(outcome.Findings[0].Kind, FindingKind::WillNotComeBack);
  }
}

TEST(Directives, MakeCodesOneAndTwoBracesInValues) {
  EXPECT_EQ(StateAfter("Format=a\1b\2").AttrFormat, "a{b}");
  const ReadOutcome outcome = ReadText("Open=<\r\nClose=>\r\n[HEADER]\r\n<Format=\1x\2;0>\r\n");
  EXPECT_EQ(outcome.Attributes.AttrFormat, "<x>");
}

TEST(Directives, MoveDownByTheSpacingInForceAndReturnToTheDocuments) {
  const ReadOutcome outcome = ReadText(
      "Spacing=100\r\n[HEADER]\r\n{\\n}\r\n{Box=1,,2,3}\r\n{Spacing=350;\\n;Box=1,,2,3}\r\n{\\n;Box=1,,2,3}"
      "\r\n");
  const auto boxes = RowsOfKind(outcome.Read, ObjectKind::Box);
  ASSERT_EQ(boxes.size(), 3U);
  EXPECT_EQ(boxes[0]->Y, 100);
  EXPECT_EQ(boxes[1]->Y, 450);
  EXPECT_EQ(boxes[2]->Y, 550);
  EXPECT_EQ(boxes[2]->AbsoluteY, 950);
  EXPECT_EQ(outcome.Attributes.SpacingNow, 100);
}

TEST(Directives, StepBackOnlyInTheSubsection) {
  const ReadOutcome outcome =
      ReadLayout({"{Spacing=900;\\n}", "{Spacing=300;\\P}", "{Box=1,,2,3}", "{\\n;Box=1,,2,3}"});
  const auto boxes = RowsOfKind(outcome.Read, ObjectKind::Box);
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0]->Y, 600);
  EXPECT_EQ(boxes[0]->AbsoluteY, 400 + 900) << "the surface stays";
  EXPECT_EQ(boxes[1]->Y, 800) << "the step is the document's again";
  const ObjectRecord& bar = OnlyRow(outcome.Read, ObjectKind::Subsection);
  EXPECT_EQ(bar.EndsAt, 900);
  EXPECT_EQ(bar.SectionCursorY, 800);
}

TEST(Directives, MoveToTheTopAndGiveAnUntouchedSubsectionItsStart) {
  struct Row {
    std::string_view block, start;
  };
  for (const Row& row : {Row{"xy=7,1500", "1500"}, Row{"XY=0,1.50", "1.5"}, Row{"xy=0", "0"}, Row{"Top", "0"},
                         Row{"TopOfPage", "0"}, Row{"xy=0,1500;xy=0,99", "1500"}}) {
    const ReadOutcome outcome = ReadLayout({"{" + std::string(row.block) + "}"});
    EXPECT_EQ(OnlyRow(outcome.Read, ObjectKind::Subsection).StartY, row.start) << row.block;
  }
}

TEST(Directives, NameTheStartInWhatABarSaysOfItself) {
  const ReadOutcome outcome =
      ReadLayout({"{xy=0,100}", "[ITEMS]", "{xy=0,1500}", "[MORE]", "{Top}", "[REST]"});
  EXPECT_EQ(test::BarNamed(outcome.Read, "HEADER]").Content, "Section: [HEADER]");
  EXPECT_EQ(test::BarNamed(outcome.Read, "ITEMS]").Content, "[HEADER] [ITEMS] [Starts in position: 1500]");
  EXPECT_EQ(test::BarNamed(outcome.Read, "MORE]").Content, "[HEADER] [MORE] [Starts in position: 0]");
  EXPECT_EQ(test::BarNamed(outcome.Read, "REST]").Content,
            "[HEADER] [REST] [Starts in position: Current Y Value]");
}

TEST(Directives, MoveToTheTopWithoutANewStartOnceATextStands) {
  const ReadOutcome outcome = ReadLayout({"{\\n}", "{100;}Text{}", "{xy=0,1500}", "{Box=1,,2,3}"});
  EXPECT_EQ(OnlyRow(outcome.Read, ObjectKind::Subsection).StartY, "Current Y Value");
  EXPECT_EQ(OnlyRow(outcome.Read, ObjectKind::Box).Y, 0);
  EXPECT_EQ(OnlyRow(outcome.Read, ObjectKind::Box).AbsoluteY, 400);
}

TEST(Directives, GiveEachSubsectionItsOwnStart) {
  const ReadOutcome outcome = ReadLayout({"{xy=0,100}", "[DATA]", "{xy=0,300}"});
  EXPECT_EQ(test::BarNamed(outcome.Read, "HEADER]").StartY, "100");
  EXPECT_EQ(test::BarNamed(outcome.Read, "DATA]").StartY, "300");
}

TEST(Directives, SubtractTheStartFromAGivenY) {
  const ReadOutcome outcome = ReadLayout({"{xy=0,1500}", "{Pic=a.png,100,1700,1,1}"});
  const ObjectRecord& picture = OnlyRow(outcome.Read, ObjectKind::Picture);
  EXPECT_EQ(picture.Y, 1700);
  EXPECT_EQ(picture.AbsoluteY, 400 + 1700 - 1500);
}

TEST(Directives, FlagAGivenHeightAndReadNoNumberOfIt) {
  const ReadOutcome outcome = ReadLayout({"{SubSectionHeight=999}"});
  const ObjectRecord& bar = OnlyRow(outcome.Read, ObjectKind::Subsection);
  EXPECT_EQ(bar.HeightGiven, -1);
  EXPECT_EQ(bar.EndsAt, 0);
}

}  // namespace
}  // namespace kev
