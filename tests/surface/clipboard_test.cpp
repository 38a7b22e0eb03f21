// SPDX-License-Identifier: MIT
#include "surface/clipboard.h"

#include "base/text_numbers.h"
#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class ClipboardOnPage : public GestureTest {
 public:
  using Calls = std::vector<std::string>;
  static std::string Box(int number) { return "box " + std::to_string(number); }

  void Copy() {
    PageWork work = Work();
    CopyObjects(work, clipboard);
  }
  void Cut() {
    PageWork work = Work();
    CutObjects(work, clipboard);
  }
  std::optional<std::string> Paste() {
    PageWork work = Work();
    return PasteObjects(work, clipboard);
  }
  // Twips.
  std::optional<std::string> PasteAt(double x, double y) {
    pointer.KeepPosition({x * zoomFactor, y * zoomFactor});
    return Paste();
  }
  // The rows that hold objects, bands aside.
  std::vector<int> Rows() const {
    std::vector<int> rows;
    for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
      const ObjectKind kind = std::as_const(document).Objects[row].Kind;
      if (kind != ObjectKind::None && !IsBand(kind)) rows.push_back(row);
    }
    return rows;
  }
  int Newest() const { return Rows().back(); }

  ClipboardTable clipboard;
};

// --- Copying ---

TEST_F(ClipboardOnPage, ACopyStandsInTheRowOfItsSource) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  ASSERT_EQ(clipboard.Rows.size(), 1U);
  EXPECT_EQ(clipboard.Rows.at(row).Content, "A");
  EXPECT_EQ(clipboard.Page, document.Page);
}

TEST_F(ClipboardOnPage, ACopyLeavesNoSnapshotAndTheDocumentAsItIs) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  const ObjectRecord before = At(row);
  Copy();
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(At(row), before);
  EXPECT_EQ(services.CommandChanges, 1) << "paste can be used now";
}

TEST_F(ClipboardOnPage, ACopyReplacesTheWholeClipboard) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  SelectGroup({a, b});
  Copy();
  EXPECT_EQ(clipboard.Rows.size(), 2U);
  At(a).Selected = At(b).Selected = kFalse;
  pointer.MultiSelected = false;
  Select(b);
  Copy();
  EXPECT_EQ(clipboard.Rows.size(), 1U);
  EXPECT_TRUE(clipboard.Rows.contains(b));
}

TEST_F(ClipboardOnPage, WithNothingSelectedCopyAndCutDoNothing) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  Select(0);
  services.CommandChanges = 0;
  Copy();
  Cut();
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(services.CommandChanges, 0);
  EXPECT_TRUE(clipboard.Rows.contains(row)) << "the clipboard stays";
}

TEST_F(ClipboardOnPage, BarsAndEndBarsAreRefusedByName) {
  const int section = Add(ObjectKind::Section, "0", 9000, 1000, 400);
  for (const int row : {items.bar, items.end, section}) {
    Select(row);
    services.Calls.clear();
    Copy();
    Cut();
    EXPECT_EQ(services.Calls, (Calls{Box(kTextNotWithSection), Box(kTextNotWithSection)})) << row;
    EXPECT_EQ(services.Icons.back(), BoxIcon::Critical);
    EXPECT_TRUE(clipboard.Empty());
  }
}

TEST_F(ClipboardOnPage, AGroupWithASubsectionIsRefused) {
  const int row = AddText("1000", 1000, "A");
  SelectGroup({row, items.bar});
  Copy();
  Cut();
  EXPECT_EQ(services.Calls, (Calls{Box(kTextNotWithSection), Box(kTextNotWithSection)}));
  EXPECT_TRUE(clipboard.Empty());
}

TEST_F(ClipboardOnPage, AGroupCountsAndNotTheCurrentObject) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  Select(items.bar);
  SelectGroup({a});
  Copy();
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_TRUE(clipboard.Rows.contains(a));
  EXPECT_FALSE(clipboard.Rows.contains(b));
}

TEST_F(ClipboardOnPage, HiddenMembersAreNotTaken) {
  const int hidden = AddText("1000", 1000, "A");
  const int shown = AddText("1000", 2000, "B");
  At(hidden).PrintFlag = kFalse;
  filter = DisplayFilter::Print;
  SelectGroup({hidden, shown});
  Cut();
  EXPECT_EQ(clipboard.Rows.size(), 1U);
  EXPECT_EQ(At(hidden).Content, "A");
}

TEST_F(ClipboardOnPage, PositionsAreResolvedWhenTheyAreCopied) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  document.Columns[2] = {"$Col_02", 5000, ""};
  const int row = Add(ObjectKind::Line, "$Col_01 + 20", 1000, 1000, 15);
  At(row).X2Value = "$Col_02";
  Select(row);
  Copy();
  document.Columns.Clear();
  EXPECT_EQ(clipboard.Rows.at(row).XValue, "2420");
  EXPECT_EQ(clipboard.Rows.at(row).X2Value, "5000");
  EXPECT_EQ(X(row), "$Col_01 + 20");
}

// --- Cutting ---

TEST_F(ClipboardOnPage, ACutTakesOneSnapshotAndFreesTheRow) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Cut();
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_EQ(services.Levels[0].Objects[row].Content, "A");
  EXPECT_EQ(At(row), ObjectRecord());
  EXPECT_EQ(document.Objects.CurrentObject, 0);
  EXPECT_EQ(clipboard.Rows.at(row).Content, "A");
}

TEST_F(ClipboardOnPage, ACutGroupGoesWithOneSnapshotAndOneRepaint) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  const int c = AddText("1000", 3000, "C");
  SelectGroup({a, c});
  Cut();
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_EQ(Rows(), std::vector<int>{b});
  EXPECT_EQ(clipboard.Rows.size(), 2U);
  EXPECT_FALSE(pointer.MultiSelected);
}

TEST_F(ClipboardOnPage, WhatCannotBeCutStaysAndSoDoesTheClipboard) {
  const int kept = AddText("1000", 1000, "A");
  Select(kept);
  Copy();
  const int row = AddText("1000", 2000, "B");
  Select(row);
  class Failing final : public PageServices {
   public:
    void PushUndo() override { throw std::bad_alloc(); }
    void MarkChanged() override {}
    void FullRepaint() override {}
    void BandsChanged() override {}
    void BuildRulers() override {}
    void SelectionChanged() override {}
    void CommandsChanged() override {}
    const std::string& Text(int) const override { return text_; }
    BoxAnswer ShowBox(int, BoxIcon, BoxButtons) override { return BoxAnswer::Ok; }
    void OpenContextMenu(ContextMenu) override {}
    void OpenProperties(int) override {}
    void ShowFieldScreen(const FieldScreenLook&) override {}
    void HideFieldScreen() override {}
    void StartAllowTimer(int, std::function<void()>) override {}
    void RunPendingTool() override {}

   private:
    std::string text_;
  } failing;
  PageWork work{document, pointer, surface, failing, measurer, 1, filter, {}, 0, 0};
  EXPECT_THROW(CutObjects(work, clipboard), std::bad_alloc);
  EXPECT_EQ(At(row).Content, "B");
  EXPECT_TRUE(clipboard.Rows.contains(kept));
}

// --- Pasting ---

TEST_F(ClipboardOnPage, APastedObjectLiesWithItsCornerAtTheClickInTheSectionBelowIt) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  EXPECT_EQ(PasteAt(3000, 5500), std::nullopt);
  const int pasted = Newest();
  EXPECT_NE(pasted, row);
  EXPECT_EQ(X(pasted), "3000");
  EXPECT_EQ(Y(pasted), 5500);
  EXPECT_EQ(At(pasted).Y, 500);
  EXPECT_EQ(At(pasted).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(At(pasted).Content, "A");
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_EQ(document.Objects.CurrentObject, pasted);
  EXPECT_EQ(At(pasted).Selected, kFalse);
  EXPECT_FALSE(pointer.MultiSelected);
}

TEST_F(ClipboardOnPage, AGroupKeepsItsPlacesToEachOtherAndStaysSelected) {
  const int a = AddText("1000", 1500, "A");
  const int b = AddText("1700", 1000, "B");
  const int other = AddText("1700", 3000, "C");
  SelectGroup({a, b});
  Copy();
  At(a).Selected = At(b).Selected = kFalse;
  At(other).Selected = kTrue;
  PasteAt(4000, 2000);
  const std::vector<int> rows = Rows();
  ASSERT_EQ(rows.size(), 5U);
  EXPECT_EQ(X(rows[3]), "4000");
  EXPECT_EQ(Y(rows[3]), 2500);
  EXPECT_EQ(X(rows[4]), "4700");
  EXPECT_EQ(Y(rows[4]), 2000);
  EXPECT_EQ(At(other).Selected, kFalse);
  EXPECT_EQ(At(rows[3]).Selected, kTrue);
  EXPECT_EQ(At(rows[4]).Selected, kTrue);
  EXPECT_TRUE(pointer.MultiSelected);
  EXPECT_EQ(document.Objects.CurrentObject, 0);
  EXPECT_EQ(services.Pushes(), 1);
}

TEST_F(ClipboardOnPage, ColumnsAreLeftAndALineKeepsItsLength) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  document.Columns[2] = {"$Col_02", 5000, ""};
  const int row = Add(ObjectKind::Line, "$Col_01", 1000, 2600, 15);
  At(row).X2Value = "$Col_02";
  Select(row);
  Copy();
  document.Columns[1].Position = 1;
  PasteAt(100, 2000);
  EXPECT_EQ(X(Newest()), "100");
  EXPECT_EQ(At(Newest()).X2Value, "2700");
  EXPECT_EQ(At(Newest()).Width, 2600);
}

TEST_F(ClipboardOnPage, TwoPastesWithoutAClickPutTwoAtTheSameSpot) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  PasteAt(3000, 2000);
  Paste();
  const std::vector<int> rows = Rows();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(X(rows[1]), X(rows[2]));
  EXPECT_EQ(Y(rows[1]), Y(rows[2]));
}

TEST_F(ClipboardOnPage, RowsThatWereFreedAreUsedAgain) {
  const int row = AddText("1000", 1000, "A");
  AddText("1000", 2000, "B");
  Select(row);
  Cut();
  PasteAt(3000, 2000);
  EXPECT_EQ(document.Objects.CurrentObject, row);
  EXPECT_EQ(At(row).Content, "A");
}

TEST_F(ClipboardOnPage, WhatReachesOverTheEndOfASectionIsPastedThereAllTheSame) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 1150, "B");
  SelectGroup({a, b});
  Copy();
  PasteAt(3000, 6950);
  const std::vector<int> rows = Rows();
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(At(rows[3]).Y, 2100) << "below the end of the body";
  EXPECT_EQ(At(rows[3]).OwnerName, At(items.bar).SectionName);
  EXPECT_EQ(Y(rows[3]), 7100);
  EXPECT_EQ(At(items.bar).EndsAt, 2000);
}

TEST_F(ClipboardOnPage, OutsideAllSubsectionsNothingIsPastedAndNoLevelMade) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  EXPECT_EQ(PasteAt(3000, 4700), std::nullopt);
  pointer.ForgetPosition();
  EXPECT_EQ(Paste(), std::nullopt);
  EXPECT_EQ(services.Calls, (Calls{Box(kTextNoSubsectionHere), Box(kTextNoSubsectionHere)}));
  EXPECT_EQ(services.Icons.back(), BoxIcon::Critical);
  EXPECT_EQ(Rows().size(), 1U);
}

TEST_F(ClipboardOnPage, WithABarSelectedPasteIsRefusedWithAnEndBarItIsNot) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  Select(items.bar);
  PasteAt(3000, 2000);
  EXPECT_EQ(services.Calls, Calls{Box(kTextNotWithSection)});
  Select(items.end);
  PasteAt(3000, 2000);
  EXPECT_EQ(services.Pushes(), 1);
}

TEST_F(ClipboardOnPage, AnEmptyClipboardPastesNothing) {
  Select(items.bar);
  EXPECT_EQ(PasteAt(3000, 2000), std::nullopt);
  EXPECT_TRUE(services.Calls.empty());
}

TEST_F(ClipboardOnPage, AFullTableThrows) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  const auto fill = [&] {
    for (;;)
      document.Objects[document.Objects.TakeFreeRow()].Kind = ObjectKind::Circle;
  };
  EXPECT_THROW(fill(), std::out_of_range);
  EXPECT_THROW(PasteAt(3000, 2000), std::out_of_range);
}

TEST_F(ClipboardOnPage, WhatWasCutFromAFullTableFindsItsPlaceAgain) {
  const int row = AddText("1000", 1000, "A");
  const auto fill = [&] {
    for (;;)
      document.Objects[document.Objects.TakeFreeRow()].Kind = ObjectKind::Circle;
  };
  EXPECT_THROW(fill(), std::out_of_range);
  Select(row);
  Cut();
  PasteAt(3000, 2000);
  EXPECT_EQ(document.Objects.CurrentObject, row);
  EXPECT_EQ(X(row), "3000");
}

TEST_F(ClipboardOnPage, ManyPastesLeaveTheTableUsable) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  document.Objects.ObjectCount = ObjectTable::kLastRow - 10;
  for (int time = 0; time < 30; ++time) {
    PasteAt(3000, 2000);
    document.Objects.ClearRow(document.Objects.CurrentObject);
    document.Objects.CurrentObject = 0;
  }
  EXPECT_LE(document.Objects.ObjectCount, ObjectTable::kLastRow);
  PasteAt(3000, 2000);
  EXPECT_EQ(Rows().size(), 2U);
}

// --- Other pages of texts ---

TEST_F(ClipboardOnPage, TextsOfAnotherPageAreConverted) {
  const int row = AddText("1000", 1000, "\xE1 ok");  // á in both pages
  Select(row);
  Copy();
  clipboard.Page = CodePage::Find("windows-1250");
  clipboard.Rows.at(row).Content = "\xE9\x8A";  // é and S with caron, which windows-1252 has as well
  clipboard.Rows.at(row).Link = "\xE1";
  EXPECT_EQ(PasteAt(3000, 2000), std::nullopt);
  EXPECT_EQ(At(Newest()).Content, "\xE9\x8A");
  EXPECT_EQ(At(Newest()).Link, "\xE1");
}

TEST_F(ClipboardOnPage, ACharacterThatTheTemplateCannotHoldIsNamedAndNothingIsPasted) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  clipboard.Page = CodePage::Find("windows-1251");
  clipboard.Rows.at(row).Content = "ok \xE6";  // zhe
  EXPECT_EQ(PasteAt(3000, 2000), "\xD0\xB6");
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(Rows().size(), 1U);
}

TEST_F(ClipboardOnPage, ATextInACharacterSetOfItsOwnKeepsItsBytes) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  clipboard.Page = CodePage::Find("windows-1251");
  clipboard.Rows.at(row).CharSet = "204";
  clipboard.Rows.at(row).Content = "\xE6";
  EXPECT_EQ(PasteAt(3000, 2000), std::nullopt);
  EXPECT_EQ(At(Newest()).Content, "\xE6");
}

TEST_F(ClipboardOnPage, TextsOfAChartAreConvertedToo) {
  const int row = Add(ObjectKind::Chart, "1000", 1000, 1000, 1000);
  At(row).ChartValues = {"a", "b"};
  Select(row);
  Copy();
  clipboard.Page = CodePage::Find("windows-1251");
  clipboard.Rows.at(row).ChartValues[1] = "\xE6";
  EXPECT_EQ(PasteAt(3000, 2000), "\xD0\xB6");
}

// --- At each zoom ---

class ClipboardAtZoom : public ClipboardOnPage, public testing::WithParamInterface<double> {
 public:
  ClipboardAtZoom() { SetZoom(GetParam()); }
};

TEST_P(ClipboardAtZoom, PlacesAreTwips) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  Copy();
  PasteAt(3001, 5501);
  EXPECT_EQ(X(Newest()), "3001");
  EXPECT_EQ(Y(Newest()), 5501);
}

TEST_P(ClipboardAtZoom, APlaceBetweenTwipsIsRounded) {
  const int row = AddText("100.5", 1000, "A");
  Select(row);
  Copy();
  PasteAt(3000.4, 5500.4);
  EXPECT_EQ(X(Newest()), "3000");
  EXPECT_EQ(Y(Newest()), 5500);
}

INSTANTIATE_TEST_SUITE_P(Zooms, ClipboardAtZoom, EachZoom(), PercentOf);

}  // namespace
}  // namespace kev::test
