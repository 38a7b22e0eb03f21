// SPDX-License-Identifier: MIT
#include "document/object_creation.h"
#include "support/gesture_fixture.h"
#include "surface/page_keys.h"

namespace kev::test {
namespace {

class TypeInPlaceAtZoom : public GestureAtZoom {
 public:
  double WidthOf(int row, const std::string& text) { return measurer.Measure(FontOf(At(row)), text).Width; }
  TextEdit edit;
};
INSTANTIATE_TEST_SUITE_P(Zoom, TypeInPlaceAtZoom, EachZoom(), PercentOf);

TEST_P(TypeInPlaceAtZoom, TheBoxLiesOverTheLabelWithRoomForOneLetterMore) {
  const int row = AddText("1000", 1500, "Total");
  Select(row);
  PageWork work = Work();
  BeginTextEdit(work, edit);
  ASSERT_EQ(services.Fields.size(), 1U);
  const FieldScreenLook& look = services.Fields[0];
  EXPECT_EQ(look.Text, "Total");
  EXPECT_EQ(look.Place.Left, pointer.Overlay[1].Left);
  EXPECT_EQ(look.Place.Top, pointer.Overlay[1].Top);
  EXPECT_EQ(look.Place.Height(), pointer.Overlay[1].Height());
  EXPECT_NEAR(look.Place.Width(), (WidthOf(row, "TotalW") + 100) * zoomFactor, 1e-6);
}

TEST_P(TypeInPlaceAtZoom, TheBoxLooksLikeTheLabel) {
  const int row = AddText("1000", 1500, "Total", "C");
  At(row).FontName = "Courier New";
  At(row).FontSize = 14;
  At(row).Bold = At(row).Italic = kTrue;
  At(row).CharSet = "238";
  At(row).ColorR = 255;
  At(row).ColorG = 128;
  Select(row);
  PageWork work = Work();
  BeginTextEdit(work, edit);
  const FieldScreenLook& look = services.Fields.at(0);
  FontSpec font = FontOf(At(row));
  font.Size = 14 * zoomFactor;
  EXPECT_EQ(look.Font, font);
  EXPECT_EQ(look.Colour, 0xFF8000U);
  EXPECT_EQ(look.Align, 'C');
}

TEST_P(TypeInPlaceAtZoom, EachChangeMakesTheBoxAsWideAsTheText) {
  struct Case {
    const char* Align;
    double Part;  // of the text, left of X
  };
  for (const Case& each : {Case{"L", 0}, {"C", 0.5}, {"R", 1}}) {
    const int row = AddText("5000", 1500, "Total", each.Align);
    Select(row);
    PageWork work = Work();
    edit = {};
    BeginTextEdit(work, edit);
    ChangeText(work, edit, "Grand total");
    const FieldScreenLook& look = services.Fields.back();
    const double width = WidthOf(row, "Grand total");
    EXPECT_EQ(look.Text, "Grand total");
    EXPECT_NEAR(look.Place.Width(), (width + 200) * zoomFactor, 1e-6) << each.Align;
    EXPECT_NEAR(look.Place.Left, (5000 - each.Part * width) * zoomFactor, 1e-6) << each.Align;
    EXPECT_EQ(look.Place.Top, pointer.Overlay[1].Top);
  }
}

class TypeInPlace : public GestureTest {
 public:
  TypeInPlace() {
    row = AddText("1000", 1500, "Total");
    MeasureText(At(row), measurer);
    Select(row);
  }
  void Type(const std::string& text) {
    PageWork work = Work();
    BeginTextEdit(work, edit);
    ChangeText(work, edit, text);
  }
  void Commit() {
    PageWork work = Work();
    CommitTextEdit(work, edit);
  }

  int row = 0;
  TextEdit edit;
};

TEST_F(TypeInPlace, TheTextIsStoredAndMeasured) {
  Type("Grand total");
  EXPECT_EQ(At(row).Content, "Total") << "not before it is accepted";
  Commit();
  EXPECT_EQ(At(row).Content, "Grand total");
  const TextExtent extent = measurer.Measure(FontOf(At(row)), "Grand total");
  EXPECT_NEAR(At(row).Width, extent.Width, 0.5);
  EXPECT_NEAR(At(row).Height, extent.Height, 0.5);
  EXPECT_EQ(services.Calls, (std::vector<std::string>{"field", "field", "hidefield", "push", "repaint"}));
  EXPECT_EQ(services.Levels[0].Objects[row].Content, "Total");
  EXPECT_FALSE(edit.Active());
}

TEST_F(TypeInPlace, BlanksAtTheEndsAreKept) {
  Type("  Total ");
  Commit();
  EXPECT_EQ(At(row).Content, "  Total ");
}

TEST_F(TypeInPlace, TheSameTextIsNoChange) {
  Type("Total");
  Commit();
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_EQ(services.Calls.back(), "hidefield");
  EXPECT_FALSE(edit.Active());
}

TEST_F(TypeInPlace, BlankTextBringsTheOldBack) {
  for (const char* blank : {"", "   "}) {
    Type(blank);
    Commit();
    EXPECT_EQ(At(row).Content, "Total");
    EXPECT_EQ(services.Pushes(), 0);
  }
}

TEST_F(TypeInPlace, GivenUpBringsTheOldBack) {
  Type("Grand total");
  PageWork work = Work();
  CancelTextEdit(work, edit);
  EXPECT_EQ(At(row).Content, "Total");
  EXPECT_EQ(services.Pushes(), 0);
  EXPECT_EQ(services.Calls.back(), "hidefield");
  EXPECT_FALSE(edit.Active());
}

TEST_F(TypeInPlace, CommandsAreToldWhenItBeginsAndWhenItEnds) {
  Type("Grand total");
  EXPECT_EQ(services.CommandChanges, 1);
  Commit();
  EXPECT_EQ(services.CommandChanges, 2);
}

TEST_F(TypeInPlace, WithoutAnEditNothingHappens) {
  PageWork work = Work();
  ChangeText(work, edit, "Grand total");
  CommitTextEdit(work, edit);
  CancelTextEdit(work, edit);
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(At(row).Content, "Total");
}

TEST_F(TypeInPlace, BeginsOnlyOnALabelWithoutAGroup) {
  PageWork work = Work();
  Select(Add(ObjectKind::Command, "1000", 1000, 500, 200));
  BeginTextEdit(work, edit);
  EXPECT_FALSE(edit.Active());
  Select(0);
  BeginTextEdit(work, edit);
  EXPECT_FALSE(edit.Active());
  Select(row);
  SelectGroup({row});
  BeginTextEdit(work, edit);
  EXPECT_FALSE(edit.Active());
  EXPECT_TRUE(services.Fields.empty());
}

TEST_F(TypeInPlace, BegunOnceMoreKeepsWhatWasTyped) {
  Type("Grand total");
  PageWork work = Work();
  BeginTextEdit(work, edit);
  EXPECT_EQ(edit.Text, "Grand total");
}

TEST_F(TypeInPlace, GoesToTheLabelItWasBegunOn) {
  const int other = AddText("1000", 2500, "Other");
  Type("Grand total");
  Select(other);
  Commit();
  EXPECT_EQ(At(row).Content, "Grand total");
  EXPECT_EQ(At(other).Content, "Other");
}

TEST_F(TypeInPlace, ALabelThatHasGoneTakesNoText) {
  Type("Grand total");
  document.Objects.ClearRow(row);
  Commit();
  EXPECT_EQ(At(row), ObjectRecord());
  EXPECT_EQ(services.Pushes(), 0);
}

TEST_F(TypeInPlace, XStaysWhereTheLabelIsAnchored) {
  At(row).Align = "R";
  At(row).XValue = "$Col_01";
  Type("Grand total");
  Commit();
  EXPECT_EQ(X(row), "$Col_01");
}

}  // namespace
}  // namespace kev::test
