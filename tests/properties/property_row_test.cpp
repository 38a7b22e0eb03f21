// SPDX-License-Identifier: MIT
#include "properties/property_row.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

using Items = std::vector<std::string>;

PropertyRow Row(EditorKind editor, std::string value, std::string tail) {
  return {.Caption = "c", .Editor = editor, .Value = std::move(value), .Tail = std::move(tail)};
}

TEST(PropertyRow, MarkerTextIsMarkerValueAndList) {
  EXPECT_EQ(MarkerText(Row(EditorKind::ClosedList, "Yes", "|Yes|No")), "#COMBO|Yes|Yes|No");
  EXPECT_EQ(MarkerText(Row(EditorKind::OpenList, "100", "|$Col_01|")), "#COMBOEDIT|100|$Col_01|");
  EXPECT_EQ(MarkerText(Row(EditorKind::Number, "600", "|1|5000|10|")), "#UPDOWN|600|1|5000|10|");
  EXPECT_EQ(MarkerText(Row(EditorKind::File, "a.kex", "|Data!*.kex|")), "#BROWSEFILE|a.kex|Data!*.kex|");
  EXPECT_EQ(MarkerText(Row(EditorKind::Colour, "1,2,3", "")), "#BROWSECOLOR|1,2,3");
  EXPECT_EQ(MarkerText(Row(EditorKind::Font, "Arial|10|1|0", "|")), "#BROWSEFONT|Arial|10|1|0|");
  EXPECT_EQ(MarkerText(Row(EditorKind::Button, "", "")), "#BROWSEBUTT|");
}

TEST(PropertyRow, PlainRowStaysPlainWhateverItsTextBeginsWith) {
  EXPECT_EQ(MarkerText(Row(EditorKind::Text, "#COMBO|a|b", "")), "#COMBO|a|b");
  EXPECT_EQ(Row(EditorKind::Text, "#COMBO|a|b", "").Value, "#COMBO|a|b");
}

TEST(PropertyRow, BarAtTheEndOfAListMakesNoItem) {
  EXPECT_EQ(ListItems("|Yes|No"), (Items{"Yes", "No"}));
  EXPECT_EQ(ListItems("|Yes|No|"), (Items{"Yes", "No"}));
  EXPECT_EQ(ListItems("|"), Items{});
  EXPECT_EQ(ListItems(""), Items{});
  EXPECT_EQ(ListItems("|.|,"), (Items{".", ","}));
}

TEST(PropertyRow, ArrowsGoByOneWhereNoStepIsGiven) {
  EXPECT_EQ(BoundsOf("|1|10|"), (ArrowBounds{1, 10, 1}));
  EXPECT_EQ(BoundsOf("|1|5000|10|"), (ArrowBounds{1, 5000, 10}));
}

TEST(PropertyRow, FilterIsTitleAndPatterns) {
  EXPECT_EQ(FilterOf("|Kev Data Files!*.kex;*.ked|"), (FileFilter{"Kev Data Files", "*.kex;*.ked"}));
}

TEST(PropertyRow, FontIsSplitFromTheRight) {
  EXPECT_EQ(ParseFontValue("Arial|10|1|0"), (FontValue{"Arial", 10, true, false}));
  EXPECT_EQ(ParseFontValue("Odd|Name|8|0|1|"), (FontValue{"Odd|Name", 8, false, true}));
  EXPECT_EQ(ParseFontValue("Arial|10|1"), std::nullopt);
  EXPECT_EQ(ParseFontValue(""), std::nullopt);
  const FontValue font{"Courier New", 72, false, true};
  EXPECT_EQ(ParseFontValue(FontValueText(font)), font);
}

}  // namespace
}  // namespace kev
