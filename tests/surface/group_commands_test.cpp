// SPDX-License-Identifier: MIT
#include "surface/group_commands.h"

#include "base/text_numbers.h"
#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class GroupCommands : public GestureTest {
 public:
  using Calls = std::vector<std::string>;
  static std::string Box(int number) { return "box " + std::to_string(number); }

  void Align() {
    PageWork work = Work();
    AlignHorizontally(work);
  }
  PlaceSelection Opened() { return OpenedPlaceSelection(Work()); }
  bool Place(const std::string& x, const std::string& y) {
    PlaceSelection dialog = Opened();
    dialog.Combocol = x;
    dialog.YPosition = y;
    PageWork work = Work();
    return AcceptPlaceSelection(work, dialog);
  }
  void ToGrid(bool snap, bool set, bool yes = true) {
    PageWork work = Work();
    AcceptAlignToGrid(work, {snap, set, yes});
  }
  void Modifiable(bool on) {
    PageWork work = Work();
    SetGroupModifiable(work, on);
  }
  void Printed(bool on) {
    PageWork work = Work();
    SetGroupPrinted(work, on);
  }
  // Everything that can be asked of a group.
  void RunAll() {
    Align();
    Place("100", "100");
    ToGrid(true, true);
    Modifiable(true);
    Printed(false);
  }
};

TEST_F(GroupCommands, WithoutAGroupNothingHappens) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  At(row).Selected = kTrue;
  const ObjectRecord before = At(row);
  RunAll();
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(At(row), before);
}

// --- alignhor ---

TEST_F(GroupCommands, AligningPutsAllAtTheSmallestYAndEndsTheGroup) {
  const int a = AddText("1000", 1900, "A");
  const int b = AddText("2000", 1000, "B");
  const int c = Add(ObjectKind::Box, "3000", 2000, 500, 500);
  const int other = AddText("4000", 1500, "D");
  SelectGroup({a, b, c});
  Align();
  for (const int row : {a, b, c}) {
    EXPECT_EQ(Y(row), 1000) << row;
    EXPECT_EQ(At(row).Y, 600) << row;
    EXPECT_EQ(At(row).Selected, kFalse) << row;
  }
  EXPECT_EQ(X(a), "1000");
  EXPECT_EQ(Y(other), 1500);
  EXPECT_FALSE(pointer.MultiSelected);
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
}

TEST_F(GroupCommands, AMemberMoreThanAThousandBelowIsRefusedWithoutALevel) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("2000", 2200, "B");
  SelectGroup({a, b});
  Align();
  EXPECT_EQ(services.Calls, Calls{Box(kTextObjectsTooFarApart)});
  EXPECT_EQ(services.Icons.front(), BoxIcon::Critical);
  EXPECT_EQ(Y(b), 2200);
  EXPECT_EQ(At(a).Selected, kTrue);
  EXPECT_TRUE(pointer.MultiSelected);
}

TEST_F(GroupCommands, AThousandIsJustNear) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("2000", 2000, "B");
  const int c = AddText("3000", 2001, "C");
  SelectGroup({a, b});
  Align();
  EXPECT_EQ(Y(b), 1000);
  At(b).AbsoluteY = 2000;
  SelectGroup({a, b, c});
  services.Calls.clear();
  Align();
  EXPECT_EQ(services.Calls, Calls{Box(kTextObjectsTooFarApart)});
}

TEST_F(GroupCommands, ABarAmongTheMembersIsRefused) {
  const int a = AddText("1000", 1000, "A");
  SelectGroup({a, data.bar});
  Align();
  EXPECT_EQ(services.Calls, Calls{Box(kTextNotWithSection)});
}

TEST_F(GroupCommands, AMemberIsAlignedIntoAnotherSection) {
  const int a = AddText("1000", 4300, "A");
  const int b = AddText("2000", 5100, "B");
  SelectGroup({a, b});
  Align();
  EXPECT_EQ(Y(b), 4300);
  EXPECT_EQ(At(b).OwnerName, At(data.bar).SectionName);
}

// --- placeselection ---

TEST_F(GroupCommands, ThePlaceIsThatOfTheTopmostMemberAndTheLeftEdge) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  const int a = AddText("1000", 1900, "A");
  const int b = AddText("$Col_01 + 100", 1000, "B");
  const int c = Add(ObjectKind::Label, "1500", 1500, 800, 230);
  At(c).Align = "R";
  SelectGroup({a, b, c});
  const PlaceSelection dialog = Opened();
  EXPECT_EQ(dialog.YPosition, "600");
  EXPECT_EQ(dialog.Combocol, "700") << "the left edge of the right aligned text";
  EXPECT_EQ(dialog.Items, std::vector<std::string>{"$Col_01 = 2400"});
}

TEST_F(GroupCommands, ThePlaceIsInTwipsAtEachZoom) {
  const int a = AddText("1001", 1003, "A");
  for (const double zoom : {0.5, 1.0, 1.33, 2.0}) {
    SetZoom(zoom);
    SelectGroup({a});
    EXPECT_EQ(Opened().Combocol, "1001") << zoom;
    EXPECT_EQ(Opened().YPosition, "603") << zoom;
  }
}

TEST_F(GroupCommands, PlacingMovesTheWholeGroup) {
  const int a = AddText("1000", 1900, "A");
  const int b = AddText("1700", 1000, "B");
  const int line = Add(ObjectKind::Line, "1200", 1200, 900, 15);
  SelectGroup({a, b, line});
  EXPECT_TRUE(Place("300", "100"));
  EXPECT_EQ(X(a), "300");
  EXPECT_EQ(X(b), "1000");
  EXPECT_EQ(X(line), "500");
  EXPECT_EQ(At(line).X2Value, "1400");
  EXPECT_EQ(Y(a), 1400);
  EXPECT_EQ(Y(b), 500);
  EXPECT_EQ(At(b).Y, 100);
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  EXPECT_TRUE(pointer.MultiSelected);
}

TEST_F(GroupCommands, PlacingTakesObjectsOffTheirColumns) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  const int a = AddText("$Col_01", 1000, "A");
  SelectGroup({a});
  const PlaceSelection dialog = Opened();
  EXPECT_TRUE(Place(dialog.Combocol, dialog.YPosition));
  EXPECT_EQ(X(a), "2400");
}

TEST_F(GroupCommands, AColumnIsAPlaceByItsItemAndByItsName) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  const int a = AddText("1000", 1000, "A");
  SelectGroup({a});
  EXPECT_TRUE(Place("$Col_01 = 2400", "0"));
  EXPECT_EQ(X(a), "2400") << "a number, not the column";
  EXPECT_TRUE(Place("$Col_01 + 100", "0"));
  EXPECT_EQ(X(a), "2500");
}

TEST_F(GroupCommands, ANegativeYDoesNothingAndTheDialogStays) {
  const int a = AddText("1000", 1000, "A");
  SelectGroup({a});
  EXPECT_FALSE(Place("500", "-1"));
  EXPECT_FALSE(Place("500", "-0.4"));
  EXPECT_TRUE(services.Calls.empty());
  EXPECT_EQ(X(a), "1000");
}

TEST_F(GroupCommands, AYThatIsNoNumberIsZero) {
  const int a = AddText("1000", 1000, "A");
  SelectGroup({a});
  EXPECT_TRUE(Place("1000", "abc"));
  EXPECT_EQ(Y(a), 400);
  EXPECT_TRUE(Place("1000", ""));
  EXPECT_EQ(Y(a), 400);
}

TEST_F(GroupCommands, AnXThatIsNoPositionIsRefusedAndTheDialogStays) {
  document.Columns[1] = {"$Col_01", 2400, ""};
  const int a = AddText("1000", 1000, "A");
  SelectGroup({a});
  for (const char* x : {"abc", "", "$none", "1;2", "1,5", "{1}", "$Col_01 = 2401"}) {
    services.Calls.clear();
    EXPECT_FALSE(Place(x, "0")) << x;
    EXPECT_EQ(services.Calls, Calls{Box(kTextPositionRefused)}) << x;
    EXPECT_EQ(services.Icons.back(), BoxIcon::Critical);
  }
  EXPECT_EQ(X(a), "1000");
}

// --- AlignToGridFrm ---

TEST_F(GroupCommands, SnappingPutsXAndYOnTheGridOfTheBody) {
  const int a = AddText("1090", 400 + 310, "A");
  const int line = Add(ObjectKind::Line, "1110", 5000 + 90, 900, 15);
  SelectGroup({a, line});
  ToGrid(true, false);
  EXPECT_EQ(X(a), "1000");
  EXPECT_EQ(At(a).Y, 400);
  EXPECT_EQ(Y(a), 800);
  EXPECT_EQ(X(line), "1200");
  EXPECT_EQ(At(line).X2Value, "2100");
  EXPECT_EQ(Y(line), 5000) << "counted from its own body";
  EXPECT_EQ(At(a).AlignToGrid, 0) << "the property stays";
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint", Box(kTextGridDone)}));
  EXPECT_EQ(services.Icons.front(), BoxIcon::Information);
}

TEST_F(GroupCommands, SnappingNeverLeavesTheBody) {
  At(items.bar).EndsAt = 1950;
  const int a = AddText("1000", 5000 + 1940, "A");
  SelectGroup({a});
  ToGrid(true, false);
  EXPECT_EQ(At(a).Y, 1800);
}

TEST_F(GroupCommands, SnappingUsesTheStepOfTheDocument) {
  document.Settings[Setting::Spacing] = "350";
  const int a = AddText("1000", 1000, "A");
  SelectGroup({a});
  ToGrid(true, false);
  EXPECT_EQ(X(a), "1050");
  EXPECT_EQ(At(a).Y, 700);
}

TEST_F(GroupCommands, SnappingTakesObjectsOffTheirColumns) {
  document.Columns[1] = {"$Col_01", 2450, ""};
  const int a = AddText("$Col_01", 1000, "A");
  SelectGroup({a});
  ToGrid(true, false);
  EXPECT_EQ(X(a), "2400");
}

TEST_F(GroupCommands, TheGridPropertyIsSetAloneOrBeside) {
  const int a = AddText("1090", 1000, "A");
  const int other = AddText("1090", 1000, "B");
  SelectGroup({a});
  ToGrid(false, true, true);
  EXPECT_EQ(At(a).AlignToGrid, 1);
  EXPECT_EQ(X(a), "1090");
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint", Box(kTextGridPropertySet)}));
  ToGrid(true, true, false);
  EXPECT_EQ(At(a).AlignToGrid, 0);
  EXPECT_EQ(X(a), "1000");
  EXPECT_EQ(services.Pushes(), 2);
  EXPECT_EQ(At(other).AlignToGrid, 0);
}

TEST_F(GroupCommands, WithNeitherBoxTickedNothingHappens) {
  const int a = AddText("1090", 1000, "A");
  SelectGroup({a});
  ToGrid(false, false);
  EXPECT_TRUE(services.Calls.empty());
}

// --- Modifyenduser, PrintNoPrintFrm ---

TEST_F(GroupCommands, ModifiableIsOneOrZero) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  const int other = AddText("1000", 3000, "C");
  SelectGroup({a, b});
  EXPECT_FALSE(GroupIsModifiable(Work()));
  Modifiable(true);
  EXPECT_EQ(At(a).ModifiableByEndUser, 1);
  EXPECT_EQ(At(b).ModifiableByEndUser, 1);
  EXPECT_EQ(At(other).ModifiableByEndUser, 0);
  EXPECT_TRUE(GroupIsModifiable(Work()));
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint"}));
  Modifiable(false);
  EXPECT_EQ(At(a).ModifiableByEndUser, 0);
}

TEST_F(GroupCommands, PrintedIsAFlag) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  SelectGroup({a, b});
  EXPECT_TRUE(GroupIsPrinted(Work()));
  Printed(false);
  EXPECT_EQ(At(a).PrintFlag, 0);
  EXPECT_EQ(At(b).PrintFlag, 0);
  EXPECT_FALSE(GroupIsPrinted(Work()));
  Printed(true);
  EXPECT_EQ(At(a).PrintFlag, -1);
  EXPECT_EQ(services.Calls, (Calls{"push", "repaint", "push", "repaint"}));
}

TEST_F(GroupCommands, TheFilterThenShowsTheGroupOnly) {
  const int a = AddText("1000", 1000, "A");
  const int b = AddText("1000", 2000, "B");
  SelectGroup({a});
  Modifiable(true);
  EXPECT_TRUE(PassesFilter(At(a), DisplayFilter::Ebeu));
  EXPECT_FALSE(PassesFilter(At(b), DisplayFilter::Ebeu));
}

TEST_F(GroupCommands, MembersThatTheFilterHidesAreLeftAlone) {
  const int hidden = AddText("1000", 1000, "A");
  const int shown = AddText("1000", 1500, "B");
  At(hidden).PrintFlag = kFalse;
  filter = DisplayFilter::Print;
  SelectGroup({hidden, shown});
  Modifiable(true);
  ToGrid(false, true);
  EXPECT_EQ(At(hidden).ModifiableByEndUser, 0);
  EXPECT_EQ(At(hidden).AlignToGrid, 0);
  EXPECT_EQ(At(shown).ModifiableByEndUser, 1);
}

}  // namespace
}  // namespace kev::test
