// SPDX-License-Identifier: MIT
#include "surface/object_description.h"

#include <set>

#include "support/page_fixture.h"

namespace kev {
namespace {

class ObjectDescriptionTest : public test::PageFixture {
 protected:
  ObjectDescription Of(int row) { return DescribeObject(page_.Work(), row); }
  std::vector<int> Order() { return ObjectsInReadingOrder(page_.Work()); }
  int Next(int step) { return NeighbourInReadingOrder(page_.Work(), step); }
};

TEST_F(ObjectDescriptionTest, EachKindHasItsOwnWord) {
  std::set<int> words;
  for (const KindDefaults& defaults : kKindDefaults)
    words.insert(Of(Add(defaults.kind, "1000", 1000, 500, 500)).KindText);
  EXPECT_EQ(words.size(), kKindDefaults.size());
  EXPECT_EQ(words.count(0), 0U);
  EXPECT_EQ(Of(0).KindText, 0);
}

TEST_F(ObjectDescriptionTest, ContentTellsAnObjectFromOthersOfItsKind) {
  const int label = AddText("1000", 1000, 500, "Total");
  const int picture = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
  Record(picture).PictureFile = "pictures\\sub/logo.png";
  const int code = Add(ObjectKind::Barcode, "1000", 1000, 500, 500);
  Record(code).BarcodeKind = "13";
  Record(code).Content = "@article";
  const int chart = Add(ObjectKind::Chart, "1000", 1000, 500, 500);
  const int box = Add(ObjectKind::Box, "1000", 1000, 500, 500);
  Record(box).Content = "of no meaning";
  EXPECT_EQ(Of(label).Content, "Total");
  EXPECT_EQ(Of(picture).Content, "logo.png");
  EXPECT_EQ(Of(code).Content, "EAN-13 @article");
  EXPECT_EQ(Of(chart).Content, "");
  Record(chart).ChartValues.assign(93, "");
  Record(chart).ChartValues[6] = "Sales";
  EXPECT_EQ(Of(chart).Content, "Sales");
  EXPECT_EQ(Of(box).Content, "");
  EXPECT_EQ(Of(bar_).Content, "[DATA]");
}

TEST_F(ObjectDescriptionTest, AreaIsThatOfThePageAndBandsEndWithIt) {
  const int label = AddText("1000", 1000, 500, "A");
  Open(2);
  EXPECT_EQ(Of(label).Area, (CanvasArea{2000, 2000, 3000, 2460}));
  EXPECT_EQ(Of(bar_).Area.Right, page_.canvasWidth);
}

TEST_F(ObjectDescriptionTest, TheCurrentObjectOrTheGroupIsSelected) {
  const int first = AddText("1000", 1000, 500, "A");
  const int second = AddText("3000", 1000, 500, "B");
  Open();
  EXPECT_FALSE(Of(first).Selected);
  Select(first);
  EXPECT_TRUE(Of(first).Selected);
  EXPECT_FALSE(Of(second).Selected);
  page_.document.Objects.CurrentObject = 0;
  Record(second).Selected = kTrue;
  page_.FullRepaint();
  EXPECT_FALSE(Of(first).Selected);
  EXPECT_TRUE(Of(second).Selected);
}

TEST_F(ObjectDescriptionTest, ReadingGoesDownAndThenToTheRight) {
  const int below = AddText("1000", 2000, 500, "C");
  const int right = AddText("3000", 1000, 500, "B");
  const int left = AddText("1000", 1000, 500, "A");
  const int atEnd = AddText("1000", Record(end_).AbsoluteY, 500, "D");
  EXPECT_EQ(Order(), (std::vector<int>{bar_, left, right, below, atEnd, end_}));
}

TEST_F(ObjectDescriptionTest, WhatTheFilterHidesIsNotRead) {
  const int shown = AddText("1000", 1000, 500, "A");
  const int hidden = AddText("1000", 2000, 500, "B");
  Record(hidden).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  EXPECT_EQ(Order(), (std::vector<int>{bar_, shown, end_}));
}

TEST_F(ObjectDescriptionTest, NeighboursLeaveEndBarsOutAndStopAtBothEnds) {
  const int label = AddText("1000", 1000, 500, "A");
  EXPECT_EQ(Next(1), bar_);
  EXPECT_EQ(Next(-1), label);
  Select(bar_);
  EXPECT_EQ(Next(1), label);
  EXPECT_EQ(Next(-1), 0);
  Select(label);
  EXPECT_EQ(Next(1), 0);
  EXPECT_EQ(Next(-1), bar_);
  Select(end_);
  EXPECT_EQ(Next(-1), label);
  EXPECT_EQ(Next(1), 0);
}

TEST_F(ObjectDescriptionTest, APageWithoutObjectsHasNoNeighbours) {
  page_.document.Objects.Restart();
  EXPECT_EQ(Next(1), 0);
  EXPECT_EQ(Next(-1), 0);
}

TEST_F(ObjectDescriptionTest, PointOfASubsectionLiesInItsBodyHoweverLowThatIs) {
  const int label = AddText("1000", 1000, 500, "A");
  Open(2);
  EXPECT_EQ(PointOnObject(page_.Work(), label), (CanvasPoint{2500, 2230}));
  EXPECT_EQ(PointOnObject(page_.Work(), bar_), (CanvasPoint{120, 920}));
  Record(bar_).EndsAt = 20;
  EXPECT_EQ(PointOnObject(page_.Work(), bar_), (CanvasPoint{120, 820}));
}

}  // namespace
}  // namespace kev
