// SPDX-License-Identifier: MIT
#include "surface/column_lines.h"

#include "support/column_page.h"

namespace kev {
namespace {

class ColumnLinesTest : public test::ColumnPageTest {
 protected:
  void Sync() {
    PageWork work = Work();
    SyncColumnLines(work);
  }
};

TEST_F(ColumnLinesTest, EachColumnHasALineOverTheWholeCanvasThatCarriesItsName) {
  SetColumns({{"$Col_01", 2400, ""}, {}, {"$C", -30.4, ""}});
  Sync();
  EXPECT_EQ(surface_.Take(),
            "place linecolumn(1) 2400 0 15 9000\nsay linecolumn(1) $Col_01\nshow linecolumn(1)\n"
            "place linecolumn(3) -30 0 15 9000\nsay linecolumn(3) $C\nshow linecolumn(3)\n");
}

TEST_F(ColumnLinesTest, PlacesAreZoomedAndRoundedToEven) {
  SetColumns({{"$a", 1001, ""}, {"$b", 1003, ""}});
  zoom_ = 0.5;
  Sync();
  EXPECT_TRUE(surface_.Has("place linecolumn(1) 500 "));
  EXPECT_TRUE(surface_.Has("place linecolumn(2) 502 "));
}

TEST_F(ColumnLinesTest, TheLineOfAFreedSlotIsParkedAndHiddenOnce) {
  SetColumns({{"$a", 100, ""}, {"$b", 200, ""}});
  Sync();
  surface_.Take();
  document_.Columns[1] = {};
  Sync();
  EXPECT_TRUE(surface_.Has("place linecolumn(1) -2000 "));
  EXPECT_TRUE(surface_.Has("hide linecolumn(1)"));
  EXPECT_FALSE(surface_.Has("hide linecolumn(2)"));
  surface_.Take();
  Sync();
  EXPECT_FALSE(surface_.Has("place linecolumn(1)"));
}

TEST_F(ColumnLinesTest, AllHundredSlotsHaveTheirLine) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    document_.Columns[slot] = {GeneratedColumnName(slot), slot * 10.0, ""};
  Sync();
  EXPECT_TRUE(surface_.Has("place linecolumn(100) 1000 "));
  EXPECT_EQ(surface_.Only("show").size(), 100U);
}

TEST_F(ColumnLinesTest, AllLinesGoWithTheirDocument) {
  SetColumns({{"$a", 100, ""}, {}, {"$b", 200, ""}});
  Sync();
  surface_.Take();
  PageWork work = Work();
  ParkColumnLines(work);
  EXPECT_EQ(surface_.Only("hide"), (std::vector<std::string>{"hide linecolumn(1)", "hide linecolumn(3)"}));
  EXPECT_TRUE(pointer_.ColumnLines.none());
}

TEST_F(ColumnLinesTest, TheListNamesUsedSlotsInOrderAndKeepsItsText) {
  SetColumns({{"$Col_01", 2400, ""}, {}, {"$B", 0.5, ""}});
  pointer_.ColumnText = "kept";
  Sync();
  EXPECT_EQ(services_.List.Items, (std::vector<std::string>{"$Col_01 = 2400", "$B = 0.5"}));
  EXPECT_EQ(services_.List.Text, "kept");
  EXPECT_TRUE(services_.List.Enabled);
}

TEST_F(ColumnLinesTest, AnEmptyListIsDisabledAndKeepsItsText) {
  pointer_.ColumnText = "kept";
  Sync();
  EXPECT_TRUE(services_.List.Items.empty());
  EXPECT_FALSE(services_.List.Enabled);
  EXPECT_EQ(services_.List.Text, "kept");
}

TEST_F(ColumnLinesTest, HoveringShowsTheLinesPlaceAndBringsAllLinesInPlace) {
  SetColumns({{"$a", 1001, ""}, {"$b", 50, ""}});
  zoom_ = 0.5;
  PageWork work = Work();
  HoverColumnLine(work, 1);
  EXPECT_EQ(services_.List.Text, "$a = 1000");
  EXPECT_TRUE(surface_.Has("place linecolumn(2) 25 "));
}

TEST_F(ColumnLinesTest, HoveringShowsNoGuide) {
  SetColumns({{"$a", 1000, ""}});
  PageWork work = Work();
  HoverColumnLine(work, 1);
  EXPECT_FALSE(surface_.Has("show indicator"));
}

TEST_F(ColumnLinesTest, HoveringWhereNoColumnIsDoesNothing) {
  SetColumns({{"$a", 1000, ""}});
  PageWork work = Work();
  for (const int slot : {-1, 0, 2, 101})
    HoverColumnLine(work, slot);
  EXPECT_TRUE(services_.ListTexts.empty());
  EXPECT_TRUE(surface_.Lines.empty());
}

TEST_F(ColumnLinesTest, OnlyUsedSlotsAreColumns) {
  SetColumns({{"$a", 1000, ""}});
  EXPECT_TRUE(IsColumn(document_.Columns, 1));
  for (const int slot : {-1, 0, 2, 100, 101})
    EXPECT_FALSE(IsColumn(document_.Columns, slot)) << slot;
}

}  // namespace
}  // namespace kev
