// SPDX-License-Identifier: MIT
// The directives that make objects.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/templates.h"

namespace kev {
namespace {

using test::ContentsOf;
using test::OnlyRow;
using test::ReadLayout;
using test::RowsOfKind;
using testing::ElementsAre;

TEST(DirectivesForObjects, CreateBoxes) {
  const ReadOutcome outcome = ReadLayout({"{c=1,2,3;W=4}", "{Box= 100 ,,300,400}", "{bOXf=$a,,5,6}"});
  const auto boxes = RowsOfKind(outcome.Read, ObjectKind::Box);
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0]->XValue, "100");
  EXPECT_EQ(boxes[0]->Width, 300);
  EXPECT_EQ(boxes[0]->Height, 400);
  EXPECT_EQ(boxes[0]->Filled, 0);
  EXPECT_EQ(boxes[0]->LineWidth, 4);
  EXPECT_EQ(boxes[0]->ColorB, 3);
  EXPECT_EQ(boxes[1]->XValue, "$a");
  EXPECT_EQ(boxes[1]->Filled, -1);
}

TEST(DirectivesForObjects, OfTextBoxesCirclesSlantedLinesAndQrCodesStandAtTheCursor) {
  const ReadOutcome outcome =
      ReadLayout({"{Spacing=400;\\n}", "{Circ=5,99,300}", "{AnyLine=5,99,300,20}", "{TextBox=5,99,300,,x}",
                  "{QrCode=5,99,300}q{nobar}", "{Box=5,99,1,1}"});
  for (const ObjectKind kind :
       {ObjectKind::Circle, ObjectKind::AnyLine, ObjectKind::TextBox, ObjectKind::Qr}) {
    const auto rows = RowsOfKind(outcome.Read, kind);
    ASSERT_EQ(rows.size(), 1U) << static_cast<int>(kind);
    EXPECT_EQ(rows[0]->Y, 400) << static_cast<int>(kind);
  }
  EXPECT_EQ(RowsOfKind(outcome.Read, ObjectKind::Box).at(0)->Y, 99);
}

TEST(DirectivesForObjects, CreateLinesCirclesAndCharts) {
  const ReadOutcome outcome =
      ReadLayout({"{Line=100,500,1}", "{AnyLine=5,,-70,80,1}", "{Circ=9,,600}",
                  "{Graph_Type=PIE;Graph_Width=70;Graph_Height=60;Buildgraph=33,44}"});
  const ObjectRecord& line = OnlyRow(outcome.Read, ObjectKind::Line);
  EXPECT_EQ(line.XValue, "100");
  EXPECT_EQ(line.X2Value, "500");
  EXPECT_EQ(line.Width, 400);
  EXPECT_EQ(line.LineFlag, -1);
  const ObjectRecord& anyLine = OnlyRow(outcome.Read, ObjectKind::AnyLine);
  EXPECT_EQ(anyLine.Width, -70);
  EXPECT_EQ(anyLine.Height, 80);
  EXPECT_EQ(anyLine.LineFlag, -1);
  EXPECT_EQ(OnlyRow(outcome.Read, ObjectKind::Circle).Width, 600);
  const ObjectRecord& chart = OnlyRow(outcome.Read, ObjectKind::Chart);
  EXPECT_EQ(chart.XValue, "33");
  EXPECT_EQ(chart.Y, 44);
  EXPECT_EQ(chart.Width, 70);
  EXPECT_EQ(chart.Height, 60);
  EXPECT_EQ(chart.ChartValues.at(0), "PIE");
}

TEST(DirectivesForObjects, GiveEachChartTheDefaultsAnewAndCarryABlockWithoutAChart) {
  const ReadOutcome outcome =
      ReadLayout({"{Graph_Type=PIE}", "{Graph_Title=a}", "{Buildgraph=1,}", "{Buildgraph=2,}"});
  const auto charts = RowsOfKind(outcome.Read, ObjectKind::Chart);
  ASSERT_EQ(charts.size(), 2U);
  EXPECT_EQ(charts[0]->ChartValues.at(0), "PIE");
  EXPECT_EQ(charts[0]->ChartValues.at(6), "a");
  EXPECT_EQ(charts[1]->ChartValues.at(0), "2D");
  EXPECT_EQ(charts[1]->ChartValues.at(6), "");
  EXPECT_EQ(charts[1]->Width, 0) << "no size keys, no size";
}

TEST(DirectivesForObjects, CreatePictures) {
  const ReadOutcome outcome = ReadLayout({"{Pic=a\\b.png,100,,300,,http://x}"});
  const ObjectRecord& picture = OnlyRow(outcome.Read, ObjectKind::Picture);
  EXPECT_EQ(picture.PicturePath, "a\\b.png");
  EXPECT_EQ(picture.Content, "a\\b.png");
  EXPECT_EQ(picture.XValue, "100");
  EXPECT_EQ(picture.Width, 300);
  EXPECT_EQ(picture.PictureFixedWidth, -1);
  EXPECT_EQ(picture.PictureFixedHeight, 0);
  EXPECT_EQ(picture.Link, "http://x");
}

TEST(DirectivesForObjects, CreateTextBoxesThatInheritAnEarlierList) {
  const ReadOutcome outcome = ReadLayout(
      {"{TBProps=285,Courier,9,,,,1,2,3,4,5,6,7;TextBox=100,,2000,@V,text,ignored}", "{TextBox=5,,6,,b}"});
  const auto boxes = RowsOfKind(outcome.Read, ObjectKind::TextBox);
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0]->Content, "text");
  EXPECT_EQ(boxes[0]->CommandPayload, "@V");
  EXPECT_EQ(boxes[0]->Width, 2000);
  EXPECT_EQ(boxes[0]->TextBoxExtraValue, 7);
  EXPECT_EQ(boxes[1]->FontName, "Courier");
  EXPECT_EQ(boxes[1]->BackColorB, 6);
  EXPECT_FALSE(boxes[1]->CommandPayload);
}

TEST(DirectivesForObjects, CreatePageBreaksInTwoSpellings) {
  const ReadOutcome outcome = ReadLayout({"{100;\\np}", "{@@PageBreak}"});
  EXPECT_THAT(ContentsOf(outcome.Read, ObjectKind::Command), ElementsAre("@@pagebreak", "@@pagebreak"));
  EXPECT_EQ(RowsOfKind(outcome.Read, ObjectKind::Command)[1]->XValue, "100");
}

TEST(DirectivesForObjects, LeaveAStretchToTheNextLabel) {
  const ReadOutcome outcome =
      ReadLayout({"{Stretch=5;Box=1,,2,3}", "{Pic=a,1}", "{5;Bar}code{nobar}", "{5;}a{}", "{5;}b{}"});
  const auto labels = RowsOfKind(outcome.Read, ObjectKind::Label);
  ASSERT_EQ(labels.size(), 2U);
  EXPECT_EQ(labels[0]->Stretch, "5");
  EXPECT_FALSE(labels[1]->Stretch);
  for (const ObjectKind kind : {ObjectKind::Box, ObjectKind::Picture, ObjectKind::Barcode})
    EXPECT_FALSE(OnlyRow(outcome.Read, kind).Stretch) << KindText(kind);
}

TEST(DirectivesForObjects, ReturnTheValueTypeToGeneralBehindEachObject) {
  const ReadOutcome outcome = ReadLayout({"{Num;Box=1,,2,3}", "{5;Text}a{}", "{5}b{}"});
  const auto labels = RowsOfKind(outcome.Read, ObjectKind::Label);
  ASSERT_EQ(labels.size(), 2U);
  EXPECT_EQ(labels[0]->ValueType, "Text");
  EXPECT_EQ(labels[1]->ValueType, "General");
  EXPECT_EQ(outcome.Attributes.AttrValueType, "General");
}

TEST(DirectivesForObjects, KeepAnObjectOfNoWidth) {
  const ReadOutcome outcome =
      ReadLayout({"{Box=}", "{Circ=}", "{Line=}", "{AnyLine=}", "{TextBox=}", "{Pic=}"});
  for (const ObjectKind kind : {ObjectKind::Box, ObjectKind::Circle, ObjectKind::Line, ObjectKind::AnyLine,
                                ObjectKind::TextBox, ObjectKind::Picture})
    EXPECT_EQ(OnlyRow(outcome.Read, kind).Width, 0);
}

TEST(DirectivesForObjects, TakeTheStateAlsoForKindsThatNeverShowIt) {
  const ReadOutcome outcome = ReadLayout({"{NMBeu;NoPrint;NAtg}", "{5;B39}x{NoBar}"});
  const ObjectRecord& code = OnlyRow(outcome.Read, ObjectKind::Barcode);
  EXPECT_EQ(code.ModifiableByEndUser, 0);
  EXPECT_EQ(code.PrintFlag, 0);
  EXPECT_EQ(code.AlignToGrid, 0);
}

}  // namespace
}  // namespace kev
