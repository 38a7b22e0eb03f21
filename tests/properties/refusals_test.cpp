// SPDX-License-Identifier: MIT
// What may not be stored, with the box that says so.
#include "properties/sheet_fixture.h"

namespace kev {
namespace {

using test::SheetTest;

struct Refused {
  ObjectKind kind;
  std::string_view caption;
  std::string typed;
  int box;
};

class RefusalTest : public SheetTest {
 protected:
  void ExpectRefused(const Refused& refused) {
    const std::string what =
        std::string(KindText(refused.kind)) + " " + std::string(refused.caption) + " <" + refused.typed + ">";
    for (const SheetPlace place : {SheetPlace::Docked, SheetPlace::Floating}) {
      place_ = place;
      const ObjectRecord before = Make(refused.kind);
      const std::string old = ValueOf(refused.caption);
      EXPECT_EQ(Type(refused.caption, refused.typed),
                "push, box " + std::to_string(refused.box) + ", repaint")
          << what;
      EXPECT_EQ(ValueOf(refused.caption), old) << what;
      EXPECT_EQ(outcome_.Shown, Shown()) << what;
      EXPECT_EQ(outcome_.SelectRow, 0) << what;
      ObjectRecord after = Record();
      after.SortKey = before.SortKey;                                                   // the repaint sorts
      if (refused.kind == ObjectKind::Picture) after.PictureFile = before.PictureFile;  // looked up anew
      if (refused.kind == ObjectKind::Line) after.Width = before.Width;                 // measured anew
      EXPECT_EQ(after, before) << what;
    }
  }
};

constexpr auto kKindsWithX = std::to_array<ObjectKind>(
    {ObjectKind::Label, ObjectKind::TextBox, ObjectKind::Picture, ObjectKind::Box, ObjectKind::Line,
     ObjectKind::AnyLine, ObjectKind::Circle, ObjectKind::Barcode, ObjectKind::Qr, ObjectKind::Command});
constexpr auto kKindsWithTypedTextX =
    std::to_array<ObjectKind>({ObjectKind::Label, ObjectKind::TextBox, ObjectKind::Command});

TEST_F(RefusalTest, PositionsThatAreNone) {
  for (const ObjectKind kind : kKindsWithX) {
    for (const std::string text : {"$Col_99", "left", "0.0", "00", "-0", "$Col_01 +  5", "$Col_01 % 5", "5;",
                                   "1,5", "100=x", "{100", "100}", ".abc"})
      ExpectRefused({kind, "X/Column", text, 932});
  }
}

TEST_F(RefusalTest, SecondPositionsOfALine) {
  for (const std::string text : {"$Col_99", "", "  ", "1,5", "-0", "a"})
    ExpectRefused({ObjectKind::Line, "X2 /Column", text, 932});
  Make(ObjectKind::Line);
  EXPECT_EQ(Type("X2 /Column", "-800"), "push, repaint");
}

TEST_F(RefusalTest, PositionsHoldNoBlockCharacterOfTheDocument) {
  Settings()[Setting::Open] = "<";
  Settings()[Setting::Close] = ">";
  ExpectRefused({ObjectKind::Box, "X/Column", "100<", 932});
  ExpectRefused({ObjectKind::Box, "X/Column", "100>", 932});
  Make(ObjectKind::Box);
  EXPECT_EQ(Type("X/Column", "100{"), "push, repaint");
}

TEST_F(RefusalTest, NegativePositionsOfTextsAndCommandsOnly) {
  for (const ObjectKind kind : kKindsWithTypedTextX) {
    ExpectRefused({kind, "X/Column", "-1", 794});
    ExpectRefused({kind, "X/Column", "$Col_01 - 99999", 794});
  }
  for (const ObjectKind kind : {ObjectKind::Box, ObjectKind::Line, ObjectKind::AnyLine, ObjectKind::Circle,
                                ObjectKind::Picture, ObjectKind::Barcode, ObjectKind::Qr}) {
    Make(kind);
    EXPECT_EQ(Type("X/Column", "$Col_01 - 99999"), "push, repaint") << KindText(kind);
    EXPECT_EQ(Record().XValue, "$Col_01 - 99999");
  }
}

TEST_F(RefusalTest, VerticalPositionsOutsideTheBody) {
  for (const ObjectKind kind : kKindsWithX) {
    if (kind == ObjectKind::AnyLine || kind == ObjectKind::Picture) continue;
    ExpectRefused({kind, "Y position", "-1", 927});
    ExpectRefused({kind, "Y position", "1001", 927});
    Make(kind);
    EXPECT_EQ(Type("Y position", "1000"), "push, repaint");
  }
  for (const ObjectKind kind : {ObjectKind::AnyLine, ObjectKind::Picture}) {
    Make(kind);
    EXPECT_EQ(Type("Y position", "-300"), "push, repaint");
    EXPECT_EQ(Record().Y, -300);
  }
}

TEST_F(RefusalTest, TextsThatAreBlank) {
  for (const std::string text : {"", "   "}) {
    ExpectRefused({ObjectKind::Label, "Expression", text, 928});
    ExpectRefused({ObjectKind::Barcode, "Expression", text, 928});
    ExpectRefused({ObjectKind::Qr, "Text", text, 928});
  }
}

TEST_F(RefusalTest, LinesOfBoxAndLineAreAtMostTenWide) {
  ExpectRefused({ObjectKind::Box, "Line width", "11", 929});
  ExpectRefused({ObjectKind::Line, "Line width", "70000", 929});
  for (const ObjectKind kind : {ObjectKind::Circle, ObjectKind::AnyLine}) {
    Make(kind);
    EXPECT_EQ(Type("Line width", "11"), "push, repaint");
    EXPECT_EQ(Record().LineWidth, 11);
  }
}

TEST_F(RefusalTest, PicturesThatCannotBeRead) {
  pictures_.Pictures = {{"a,b.png", {100, 100}}, {"a;b.png", {100, 100}}, {"a{b.png", {100, 100}}};
  for (const std::string path :
       {"gone.png", "notes.txt", "a,b.png", "a;b.png", "a{b.png", "@a,b", "https://shop.example/}"})
    ExpectRefused({ObjectKind::Picture, "File", path, 775});
}

TEST_F(RefusalTest, PictureSizesBelowZero) {
  ExpectRefused({ObjectKind::Picture, "Width", "-1", 794});
  ExpectRefused({ObjectKind::Picture, "Height", "-1", 794});
}

TEST_F(RefusalTest, SectionHeights) {
  Make(ObjectKind::Box).Y = 900;
  Record().AbsoluteY = 1300;
  document_.Objects.CurrentObject = bar_;
  const std::vector<std::pair<test::SheetTest::Typed, std::string>> cases = {
      {{{"Height", "-1"}}, "push, box 794, bands"},
      {{{"Height", "1001"}}, "push, box 885, bands"},
      {{{"Section ends at", "-1"}}, "push, box 794, bands"},
      {{{"Section ends at", "899"}}, "push, box 766, bands"},
      {{{"Height", "1001"}, {"Section ends at", "1"}}, "push, box 885, box 766, bands"}};
  for (const auto& [typed, calls] : cases) {
    EXPECT_EQ(Type(typed), calls);
    EXPECT_EQ(Bar().EndsAt, 1000);
    EXPECT_EQ(Bar().SectionCursorY, 700);
  }
  EXPECT_EQ(Type("Section ends at", "900"), "push, bands");
  EXPECT_EQ(Bar().EndsAt, 900);
}

TEST_F(RefusalTest, TwoWrongRowsGiveTwoBoxesInTheOrderOfTheRows) {
  Make(ObjectKind::Label);
  EXPECT_EQ(Type({{"Y position", "-1"}, {"Expression", ""}, {"X/Column", "$Col_99"}}),
            "push, box 928, box 932, box 927, repaint");
  EXPECT_EQ(Record().Content, "Total of @Items");
}

TEST_F(RefusalTest, TheWalkGoesOnBehindARefusal) {
  Make(ObjectKind::Label);
  EXPECT_EQ(Type({{"Expression", ""}, {"X/Column", "77"}, {"Format", "0.0"}}), "push, box 928, repaint");
  EXPECT_EQ(Record().XValue, "77");
  EXPECT_EQ(Record().Format, "0.0");
}

TEST_F(RefusalTest, EmptyPositionStoresZero) {
  for (const ObjectKind kind : kKindsWithX) {
    Make(kind);
    EXPECT_EQ(Type({{"X/Column", "  "}, {"Y position", " "}}), "push, repaint");
    EXPECT_EQ(Record().XValue, "0");
    EXPECT_EQ(Record().Y, 0);
  }
}

}  // namespace
}  // namespace kev
