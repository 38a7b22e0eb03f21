// SPDX-License-Identifier: MIT
#include "app/commands.h"

#include <gtest/gtest.h>

#include <set>

namespace kev {
namespace {

TEST(Commands, EachHasATextAndAName) {
  for (const CommandRow& row : CommandRows()) {
    EXPECT_GT(row.text, 0) << row.name;
    EXPECT_FALSE(row.name.empty()) << row.text;
  }
  for (const MenuRow& row : MenuRows())
    EXPECT_GT(row.text, 0) << row.name;
}

TEST(Commands, NoNameNumberOrShortcutStandsTwice) {
  std::set<std::string_view> names;
  std::set<std::string_view> shortcuts;
  std::set<Command> ids;
  for (const CommandRow& row : CommandRows()) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_TRUE(ids.insert(row.id).second) << row.name;
    if (!row.shortcut.empty()) {
      EXPECT_TRUE(shortcuts.insert(row.shortcut).second) << row.shortcut;
    }
  }
  for (const MenuRow& row : MenuRows())
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
}

TEST(Commands, EachStandsInAMenuOfTheBar) {
  std::set<MenuId> menus;
  for (const MenuRow& row : MenuRows())
    menus.insert(row.id);
  for (const CommandRow& row : CommandRows())
    EXPECT_TRUE(row.menu == MenuId::None || menus.contains(row.menu)) << row.name;
}

TEST(Commands, ARowIsFoundByItsCommand) {
  EXPECT_EQ(RowOf(Command::SaveAs).name, "saveas");
  EXPECT_EQ(RowOf(Command::DrawGrid).name, "viewdrawgrid");
}

TEST(Commands, OnlyACaptionThatOpensADialogEndsWithDots) {
  EXPECT_EQ(CommandCaption(RowOf(Command::Open), "Open"), "Open ...");
  EXPECT_EQ(CommandCaption(RowOf(Command::Save), "Save"), "Save");
}

TEST(Mnemonics, TheFirstFreeLetterIsMarked) {
  EXPECT_EQ(WithMnemonics({"New", "Open", "Save", "Save as"}),
            (std::vector<std::string>{"&New", "&Open", "&Save", "S&ave as"}));
}

TEST(Mnemonics, AMarkOfTheTextStandsAndIsNotGivenAway) {
  EXPECT_EQ(WithMnemonics({"Quit", "Show &Quickprops"}),
            (std::vector<std::string>{"Q&uit", "Show &Quickprops"}));
}

TEST(Mnemonics, ADoubledAmpersandIsNoMark) {
  EXPECT_EQ(WithMnemonics({"&&x"}), (std::vector<std::string>{"&&&x"}));
}

TEST(Mnemonics, ACaptionWithoutAFreeLetterStays) {
  EXPECT_EQ(WithMnemonics({"a", "A", "12"}), (std::vector<std::string>{"&a", "A", "12"}));
}

}  // namespace
}  // namespace kev
