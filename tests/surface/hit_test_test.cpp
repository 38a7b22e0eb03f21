// SPDX-License-Identifier: MIT
#include "support/page_fixture.h"

namespace kev {
namespace {

class HitTestTest : public test::PageFixture {
 protected:
  int At(double x, double y) { return HitTest(page_.Work(), {x, y}); }
};

TEST_F(HitTestTest, LabelInsideAFilledBoxWins) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 3000, 2000);
  Record(box).Filled = kTrue;
  const int label = AddText("1500", 1500, 900, "Total");
  EXPECT_EQ(At(1600, 1600), label);
  EXPECT_EQ(At(1200, 1200), box);
}

TEST_F(HitTestTest, LowerRowWinsOnEqualAreas) {
  const int first = Add(ObjectKind::Picture, "1000", 1000, 800, 200);
  const int second = Add(ObjectKind::Picture, "1000", 1000, 400, 400);
  ASSERT_LT(first, second);
  EXPECT_EQ(At(1100, 1100), first);
}

TEST_F(HitTestTest, EdgesBelongToTheObject) {
  const int row = Add(ObjectKind::Box, "1000", 2000, 500, 600);
  for (const CanvasPoint corner :
       {CanvasPoint{1000, 2000}, CanvasPoint{1500, 2000}, CanvasPoint{1000, 2600}, CanvasPoint{1500, 2600}})
    EXPECT_EQ(At(corner.X, corner.Y), row);
  for (const CanvasPoint beside :
       {CanvasPoint{999, 2000}, CanvasPoint{1501, 2000}, CanvasPoint{1000, 1999}, CanvasPoint{1500, 2601}})
    EXPECT_EQ(At(beside.X, beside.Y), 0);
}

TEST_F(HitTestTest, PlacesFollowTheZoom) {
  const int row = Add(ObjectKind::Box, "1000", 2000, 500, 600);
  page_.zoom = 2;
  EXPECT_EQ(At(2500, 4500), row);
  EXPECT_EQ(At(1200, 2200), 0);
}

TEST_F(HitTestTest, LabelsAndCommandsAreAnchoredAndOthersNot) {
  const int label = AddText("5000", 1000, 1000, "Sum");
  Record(label).Align = "R";
  EXPECT_EQ(At(4500, 1100), label);
  EXPECT_EQ(At(5500, 1100), 0);
  Record(label).Align = "C";
  EXPECT_EQ(At(4600, 1100), label);
  EXPECT_EQ(At(4400, 1100), 0);
  Record(label).Align = "";
  EXPECT_EQ(At(5900, 1100), label);
  const int picture = Add(ObjectKind::Picture, "5000", 3000, 1000, 1000);
  Record(picture).Align = "R";
  EXPECT_EQ(At(5500, 3500), picture);
  EXPECT_EQ(At(4500, 3500), 0);
}

TEST_F(HitTestTest, ObjectOnAColumnLiesWhereTheColumnDoes) {
  page_.document.Columns[1] = {"$Col_01", 3000, ""};
  const int row = AddText("$Col_01 + 200", 1000, 1000, "Sum");
  EXPECT_EQ(At(3300, 1100), row);
}

TEST_F(HitTestTest, NegativeSizesAreMirrored) {
  const int line = Add(ObjectKind::AnyLine, "3000", 3000, -1000, -800);
  EXPECT_EQ(At(2500, 2500), line);
  EXPECT_EQ(At(3500, 3500), 0);
  const int level = Add(ObjectKind::Line, "3000", 6000, -1000, 50);
  Record(level).X2Value = "2000";
  EXPECT_EQ(At(2100, 6025), level);
}

TEST_F(HitTestTest, HiddenRowsArePassedOver) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 3000, 2000);
  const int label = AddText("1500", 1500, 900, "Total");
  Record(label).PrintFlag = kFalse;
  page_.filter = DisplayFilter::Print;
  EXPECT_EQ(At(1600, 1600), box);
  Record(box).PrintFlag = kFalse;
  EXPECT_EQ(At(1600, 1600), 0);
  page_.filter = DisplayFilter::All;
  EXPECT_EQ(At(1600, 1600), label);
}

TEST_F(HitTestTest, HiddenThinAndFlatRowsArePassedOverToo) {
  const int line = Add(ObjectKind::AnyLine, "1000", 2000, 500, 0);
  Record(line).PrintFlag = kFalse;
  EXPECT_EQ(At(1200, 2030), line);
  page_.filter = DisplayFilter::Print;
  EXPECT_EQ(At(1200, 2030), 0);
}

TEST_F(HitTestTest, FirstHitCountsHoweverLargeItIs) {
  const int row = Add(ObjectKind::Box, "0", 1000, 2000000000, 2000000000);
  EXPECT_EQ(At(5000, 5000), row);
}

TEST_F(HitTestTest, BandsCanBePicked) {
  EXPECT_EQ(At(500, 200), bar_);
  EXPECT_EQ(At(500, 9440), end_);
  EXPECT_EQ(At(500, 5000), 0);
}

TEST_F(HitTestTest, VerticalBarcodeIsAsWideAsItsHeight) {
  const int row = Add(ObjectKind::Barcode, "1000", 1000, 3000, 500);
  Record(row).VerticalBar = kTrue;
  EXPECT_EQ(At(1400, 3900), row);
  EXPECT_EQ(At(2000, 1200), 0);
}

TEST_F(HitTestTest, LevelAndUprightLinesAreHitWithinFiftyTwips) {
  const int level = Add(ObjectKind::AnyLine, "3000", 2000, -1000, 0);
  EXPECT_EQ(At(2500, 2050), level);
  EXPECT_EQ(At(2500, 1950), level);
  EXPECT_EQ(At(2500, 2051), 0);
  EXPECT_EQ(At(3001, 2050), 0);
  const int upright = Add(ObjectKind::Box, "6000", 3000, 0, 1000);
  EXPECT_EQ(At(6050, 3500), upright);
  EXPECT_EQ(At(5950, 3500), upright);
  EXPECT_EQ(At(6051, 3500), 0);
  EXPECT_EQ(At(6050, 4001), 0);
}

TEST_F(HitTestTest, ThinLinesAreLookedForAtTheirPlaceWithoutTheZoom) {
  const int line = Add(ObjectKind::AnyLine, "1000", 2000, 500, 0);
  page_.zoom = 2;
  EXPECT_EQ(At(1200, 2050), line);
  EXPECT_EQ(At(1600, 2050), 0);
}

TEST_F(HitTestTest, FirstThinLineWins) {
  const int first = Add(ObjectKind::AnyLine, "1000", 2000, 500, 0);
  const int second = Add(ObjectKind::AnyLine, "1000", 2040, 500, 0);
  EXPECT_EQ(At(1200, 2045), first);
  EXPECT_EQ(At(1200, 2040), second) << "on the line itself it is hit like any object";
}

TEST_F(HitTestTest, ThinLinesAreLookedForOnlyWhereNothingElseIsHit) {
  Add(ObjectKind::AnyLine, "1000", 2000, 500, 0);
  const int picture = Add(ObjectKind::Picture, "1000", 2010, 500, 500);
  EXPECT_EQ(At(1200, 2020), picture);
}

TEST_F(HitTestTest, FlatAndEmptyRowsAreFoundFromNearby) {
  const int label = AddText("1000", 2000, 0, "");
  EXPECT_EQ(At(1045, 2100), label);
  EXPECT_EQ(At(955, 2100), label);
  EXPECT_EQ(At(1046, 2100), 0);
  const int chart = Add(ObjectKind::Chart, "5000", 5000, 0, 0);
  EXPECT_EQ(At(5030, 5030), chart);
  EXPECT_EQ(At(5040, 5040), 0) << "the corner is farther than 45 units";
}

TEST_F(HitTestTest, LineAtASmallZoomIsFoundFromNearby) {
  const int line = Add(ObjectKind::Line, "1000", 2000, 4000, 50);
  page_.zoom = 0.5;
  EXPECT_EQ(At(1000, 1069), line);
  EXPECT_EQ(At(1000, 1071), 0);
}

TEST_F(HitTestTest, NearestFlatRowWins) {
  Add(ObjectKind::Chart, "5000", 5000, 0, 0);
  const int nearer = Add(ObjectKind::Chart, "5050", 5000, 0, 0);
  EXPECT_EQ(At(5030, 5000), nearer);
}

TEST_F(HitTestTest, ThickRowsAreNotFoundFromNearby) {
  Add(ObjectKind::Box, "1000", 2000, 500, 600);
  EXPECT_EQ(At(1520, 2100), 0);
}

TEST_F(HitTestTest, FullTableIsLookedThroughToItsLastRow) {
  while (page_.document.Objects.LastScanned() < ObjectTable::kLastRow)
    Add(ObjectKind::Picture, "9000", 9000, 100, 100);
  ObjectRecord& last = Record(ObjectTable::kLastRow);
  last.Kind = ObjectKind::Picture;
  last.XValue = "1000";
  last.AbsoluteY = 1000;
  last.Width = last.Height = 100;
  EXPECT_EQ(At(1050, 1050), ObjectTable::kLastRow);
}

}  // namespace
}  // namespace kev
