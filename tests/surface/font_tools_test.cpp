// SPDX-License-Identifier: MIT
#include "surface/font_tools.h"

#include "document/object_creation.h"
#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class FontToolsOnPage : public GestureTest {
 public:
  using Calls = std::vector<std::string>;

  FontTools Shown() { return FontToolsOf(Work()); }
  void Name(const std::string& name) {
    PageWork work = Work();
    UseFontName(work, last, name);
  }
  void Size(const std::string& size) {
    PageWork work = Work();
    UseFontSize(work, last, size);
  }
  void Press(FontTool tool) {
    PageWork work = Work();
    UseFontTool(work, last, tool);
  }
  void Paint(const Colour& colour) {
    PageWork work = Work();
    UseTextColour(work, last, colour);
  }
  void UseAll() {
    Name("Courier New");
    Size("20");
    for (const FontTool tool : {FontTool::Bold, FontTool::Italic, FontTool::Underline, FontTool::AlignRight})
      Press(tool);
    Paint({1, 2, 3});
  }
  static bool IsEmpty(const FontTools& tools) {
    return !tools.Enabled && !tools.AlignEnabled && tools.ComboFont.empty() && tools.Combosize.empty();
  }

  LastUsed last;
};

TEST_F(FontToolsOnPage, ShowTheCurrentText) {
  const int row = AddText("1000", 1000, "A", "C");
  ObjectRecord& record = At(row);
  record.FontName = "Courier New";
  record.FontSize = 14;
  record.Italic = kTrue;
  record.ColorR = 10;
  record.ColorG = 20;
  record.ColorB = 30;
  Select(row);
  const FontTools tools = Shown();
  EXPECT_TRUE(tools.Enabled);
  EXPECT_EQ(tools.ComboFont, "Courier New");
  EXPECT_EQ(tools.Combosize, "14");
  EXPECT_FALSE(tools.Checked(FontTool::Bold));
  EXPECT_TRUE(tools.Checked(FontTool::Italic));
  EXPECT_FALSE(tools.Checked(FontTool::Underline));
  EXPECT_FALSE(tools.Checked(FontTool::AlignLeft));
  EXPECT_TRUE(tools.Checked(FontTool::AlignCentre));
  EXPECT_FALSE(tools.Checked(FontTool::AlignRight));
  EXPECT_EQ(tools.PColor, (Colour{10, 20, 30}));
}

TEST_F(FontToolsOnPage, ABasicColourIsShownByItsParts) {
  const int row = AddText("1000", 1000, "A");
  At(row).ColorR = 4;
  At(row).ColorG = At(row).ColorB = -1;
  Select(row);
  EXPECT_EQ(Shown().PColor, (Colour{128, 0, 0}));
}

TEST_F(FontToolsOnPage, AreOffAndEmptyForWhatHasNoText) {
  EXPECT_TRUE(IsEmpty(Shown())) << "nothing selected";
  for (const ObjectKind kind : {ObjectKind::Box, ObjectKind::Line, ObjectKind::Picture, ObjectKind::Command,
                                ObjectKind::Barcode, ObjectKind::Chart}) {
    const int row = Add(kind, "1000", 1000, 500, 500);
    Select(row);
    EXPECT_TRUE(IsEmpty(Shown())) << KindText(kind);
    const ObjectRecord before = At(row);
    UseAll();
    EXPECT_EQ(At(row), before) << KindText(kind);
  }
  Select(data.bar);
  EXPECT_TRUE(IsEmpty(Shown()));
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(last, LastUsed());
}

TEST_F(FontToolsOnPage, AreOffForAGroupOfNoLabels) {
  const int box = Add(ObjectKind::Box, "1000", 1000, 500, 500);
  const int text = Add(ObjectKind::TextBox, "2000", 1000, 500, 285);
  SelectGroup({box, text});
  EXPECT_TRUE(IsEmpty(Shown()));
  UseAll();
  EXPECT_TRUE(services.Calls.empty());
  At(AddText("1000", 3000, "A")).Selected = kTrue;
  EXPECT_TRUE(Shown().Enabled);
}

TEST_F(FontToolsOnPage, ATextBoxIsATextThatIsNotAligned) {
  const int row = Add(ObjectKind::TextBox, "1000", 1000, 500, 285);
  Select(row);
  EXPECT_TRUE(Shown().Enabled);
  EXPECT_FALSE(Shown().CanUse(FontTool::AlignRight));
  EXPECT_TRUE(Shown().CanUse(FontTool::Bold));
  UseAll();
  EXPECT_EQ(At(row).FontName, "Courier New");
  EXPECT_EQ(At(row).FontSize, 20);
  EXPECT_EQ(At(row).Bold, kTrue);
  EXPECT_EQ(At(row).Align, "L");
  EXPECT_EQ(At(row).ColorB, 3);
  EXPECT_EQ(At(row).Width, 500) << "a box is not as large as its text";
}

TEST_F(FontToolsOnPage, WhatTheTextsOfAGroupDoNotShareIsLeftEmpty) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  At(b).FontSize = 20;
  SelectGroup({a, b});
  EXPECT_EQ(Shown().ComboFont, "Arial");
  EXPECT_EQ(Shown().Combosize, "");
  EXPECT_TRUE(Shown().Enabled);
}

// --- Each tool ---

TEST_F(FontToolsOnPage, TheFontIsStoredMeasuredAndRemembered) {
  const int row = AddText("1000", 1000, "Some text");
  Select(row);
  Name("Courier New");
  EXPECT_EQ(At(row).FontName, "Courier New");
  EXPECT_EQ(last.Label.FontName, "Courier New");
  ObjectRecord measured = At(row);
  MeasureText(measured, measurer);
  EXPECT_EQ(At(row).Width, measured.Width);
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_EQ(services.Levels[0].Objects[row].FontName, "Arial");
}

TEST_F(FontToolsOnPage, AFontThatATemplateCannotHoldIsNotTaken) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  for (const char* name : {"", "  ", "a;b", "a{b", "a}"})
    Name(name);
  EXPECT_EQ(At(row).FontName, "Arial");
  EXPECT_EQ(last, LastUsed());
  EXPECT_TRUE(services.Calls.empty());
}

TEST_F(FontToolsOnPage, TheSizeIsTakenFromOneTo720) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  for (const char* size : {"0", "721", "-3", "abc", "", "99999999999"}) {
    Size(size);
    EXPECT_EQ(At(row).FontSize, 10) << size;
    EXPECT_EQ(last, LastUsed()) << size;
  }
  EXPECT_TRUE(services.Calls.empty());
  for (const int size : {1, 720}) {
    Size(std::to_string(size));
    EXPECT_EQ(At(row).FontSize, size);
    EXPECT_EQ(last.Label.FontSize, size);
  }
}

TEST_F(FontToolsOnPage, StylesAreToggledAndRemembered) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Press(FontTool::Bold);
  EXPECT_EQ(At(row).Bold, kTrue);
  EXPECT_TRUE(last.Label.Bold);
  Press(FontTool::Italic);
  Press(FontTool::Underline);
  EXPECT_EQ(At(row).Italic, kTrue);
  EXPECT_EQ(At(row).Underline, kTrue);
  Press(FontTool::Bold);
  EXPECT_EQ(At(row).Bold, kFalse);
  EXPECT_FALSE(last.Label.Bold);
  EXPECT_TRUE(last.Label.Italic);
  EXPECT_EQ(services.Pushes(), 4);
}

TEST_F(FontToolsOnPage, InAGroupTheFirstTextDecidesAndAllGetTheOpposite) {
  const int box = Add(ObjectKind::Box, "500", 500, 500, 500);
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  At(a).Bold = kTrue;
  SelectGroup({box, a, b});
  EXPECT_TRUE(Shown().Checked(FontTool::Bold));
  Press(FontTool::Bold);
  EXPECT_EQ(At(a).Bold, kFalse);
  EXPECT_EQ(At(b).Bold, kFalse);
  Press(FontTool::Bold);
  EXPECT_EQ(At(a).Bold, kTrue);
  EXPECT_EQ(At(b).Bold, kTrue);
  EXPECT_EQ(At(box).Bold, kFalse);
}

TEST_F(FontToolsOnPage, AGroupGetsTheFontWithOneLevelAndNewRulers) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  const int other = AddText("1000", 3000, "C");
  SelectGroup({a, b});
  Name("Courier New");
  Size("20");
  EXPECT_EQ(At(a).FontName, "Courier New");
  EXPECT_EQ(At(b).FontSize, 20);
  EXPECT_EQ(At(other).FontName, "Arial");
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint", "push", "repaint"}));
  EXPECT_TRUE(pointer.MultiSelected);
}

TEST_F(FontToolsOnPage, OnlyLabelsAreAlignedAndKeepTheirX) {
  const int a = AddText("1000", 1000, "A");
  const int box = Add(ObjectKind::TextBox, "2000", 1000, 500, 285);
  SelectGroup({a, box});
  Press(FontTool::AlignRight);
  EXPECT_EQ(At(a).Align, "R");
  EXPECT_EQ(X(a), "1000");
  EXPECT_EQ(At(box).Align, "L");
  EXPECT_TRUE(Shown().Checked(FontTool::AlignRight));
  Press(FontTool::AlignCentre);
  EXPECT_EQ(At(a).Align, "C");
  Press(FontTool::AlignLeft);
  EXPECT_EQ(At(a).Align, "L");
  EXPECT_EQ(services.Pushes(), 3);
  EXPECT_EQ(last, LastUsed()) << "the next text is aligned as ever";
}

TEST_F(FontToolsOnPage, TheColourIsStoredAndRememberedAsAText) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Paint({200, 0, 15});
  EXPECT_EQ(TextColourOf(At(row)), (Colour{200, 0, 15}));
  EXPECT_EQ(last.Label.Color, "200,0,15");
  EXPECT_EQ(last.TextBox, LastUsed().TextBox);
}

TEST_F(FontToolsOnPage, InAGroupWithALabelEverythingThatHasAColourGetsIt) {
  const int a = AddText("1000", 1000, "A");
  const int box = Add(ObjectKind::Box, "500", 500, 500, 500);
  const int qr = Add(ObjectKind::Qr, "500", 500, 500, 500);
  SelectGroup({a, box, qr});
  Paint({200, 0, 15});
  EXPECT_EQ(TextColourOf(At(a)), (Colour{200, 0, 15}));
  EXPECT_EQ(TextColourOf(At(box)), (Colour{200, 0, 15}));
  EXPECT_EQ(TextColourOf(At(qr)), (Colour{0, 0, 0}));
}

TEST_F(FontToolsOnPage, AToolThatFindsNothingToChangeLeavesALevelAllTheSame) {
  const int row = AddText("1000", 1000, "A");
  MeasureText(At(row), measurer);
  Select(row);
  Name("Arial");
  Size("10");
  Press(FontTool::AlignLeft);
  Paint({0, 0, 0});
  EXPECT_EQ(std::count(services.Calls.begin(), services.Calls.end(), "push"), 4);
  EXPECT_EQ(last.Label.FontSize, 10) << "the next text begins with it all the same";
}

}  // namespace
}  // namespace kev::test
