// SPDX-License-Identifier: MIT
#include "testrun/address_handler.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "support/run_tool.h"

namespace kev {
namespace {

using Words = std::vector<std::string>;
constexpr std::string_view kAddress = R"(ViewKevReport:/tmp/a b\c$HOME.kex?/&&!H!~!)";

class AddressHandlers : public testing::Test {
 protected:
  AddressHandlers() {
    settings_ = {{folder_ / "config", folder_ / "xdg"}, {folder_ / "home", folder_ / "system"}, {"kde"}};
  }
  void Write(const std::string& name, const std::string& text) const {
    std::filesystem::create_directories(std::filesystem::path(folder_ / name).parent_path());
    test::WriteBytes(folder_ / name, text);
  }
  void Entry(const std::string& name, const std::string& exec, const std::string& more = {}) const {
    Write(name, "[Desktop Entry]\nType=Application\n" + more + "Exec=" + exec +
                    "\n[Desktop Action new]\nExec=other\n");
  }
  static std::string List(const std::string& group, const std::string& names) {
    return "[" + group + "]\nx-scheme-handler/viewkevreport=" + names + "\n";
  }
  std::string Program() const {
    const auto start = HandlerOf(kAddress, settings_);
    return start ? start->Program : "none";
  }

  test::TemporaryFolder folder_;
  DesktopSettings settings_;
};

TEST_F(AddressHandlers, GetTheAddressAsItStandsInOneArgument) {
  Write("config/mimeapps.list", List("Default Applications", "viewer.desktop"));
  Entry("home/applications/viewer.desktop", "viewer --open %u");
  const auto start = HandlerOf(kAddress, settings_);
  ASSERT_TRUE(start);
  EXPECT_EQ(start->Program, "viewer");
  EXPECT_EQ(start->Arguments, (Words{"--open", std::string(kAddress)}));
}

TEST_F(AddressHandlers, AreNoneWhereNothingIsRegistered) {
  EXPECT_EQ(Program(), "none");
  Write("config/mimeapps.list", List("Default Applications", "gone.desktop"));
  EXPECT_EQ(Program(), "none");
  EXPECT_FALSE(HandlerOf("no address", settings_));
  EXPECT_FALSE(HandlerOf(":x", settings_));
}

TEST_F(AddressHandlers, TheUsersChoiceGoesBeforeThatOfTheSystem) {
  for (const char* name : {"a", "b", "c", "d", "e"})
    Entry("system/applications/" + std::string(name) + ".desktop", name);
  Write("system/applications/mimeinfo.cache", List("MIME Cache", "e.desktop;"));
  EXPECT_EQ(Program(), "e");
  Write("system/applications/mimeapps.list", List("Added Associations", "d.desktop;"));
  EXPECT_EQ(Program(), "d");
  Write("xdg/mimeapps.list", List("Default Applications", "c.desktop;"));
  EXPECT_EQ(Program(), "c");
  Write("config/mimeapps.list", List("Default Applications", "gone.desktop; b.desktop;c.desktop"));
  EXPECT_EQ(Program(), "b");
  Write("config/kde-mimeapps.list", List("Default Applications", "a.desktop"));
  EXPECT_EQ(Program(), "a");
}

TEST_F(AddressHandlers, WhatTheUserTookAwayIsNotFound) {
  Entry("home/applications/a.desktop", "a");
  Write("home/applications/mimeinfo.cache", List("MIME Cache", "a.desktop;"));
  EXPECT_EQ(Program(), "a");
  Write("config/mimeapps.list", List("Removed Associations", "a.desktop;"));
  EXPECT_EQ(Program(), "none");
}

TEST_F(AddressHandlers, AHiddenEntryAndOneWithoutACommandArePassedOver) {
  Write("config/mimeapps.list", List("Default Applications", "a.desktop;b.desktop;c.desktop"));
  Entry("home/applications/a.desktop", "a", "Hidden=true\n");
  Write("home/applications/b.desktop", "[Desktop Entry]\nType=Application\n");
  Entry("home/applications/c.desktop", "c");
  EXPECT_EQ(Program(), "c");
}

TEST_F(AddressHandlers, AnEntryMayLieInAFolderThatItsNameTells) {
  Write("config/mimeapps.list", List("Default Applications", "kde-tools-a.desktop"));
  Entry("system/applications/kde/tools-a.desktop", "a");
  EXPECT_EQ(Program(), "a");
}

TEST_F(AddressHandlers, ATextIsOpenedByTheProgramForPlainText) {
  EXPECT_FALSE(TextHandlerOf("/tmp/a b.kev", settings_));
  Write("config/mimeapps.list", "[Default Applications]\ntext/plain=gone.desktop;typer.desktop\n");
  Entry("home/applications/typer.desktop", "typer %f");
  const auto start = TextHandlerOf("/tmp/a b.kev", settings_);
  ASSERT_TRUE(start);
  EXPECT_EQ(start->Program, "typer");
  EXPECT_EQ(start->Arguments, Words{"/tmp/a b.kev"});
}

TEST_F(AddressHandlers, AnEditorThatWantsATerminalIsPassedOver) {
  Write("config/mimeapps.list", "[Default Applications]\ntext/plain=bare.desktop\n");
  Entry("home/applications/bare.desktop", "bare %f", "Terminal=true\n");
  EXPECT_FALSE(TextHandlerOf("/tmp/a.kev", settings_));
  Entry("home/applications/typer.desktop", "typer %f", "Terminal=false\n");
  Write("home/applications/mimeinfo.cache", "[MIME Cache]\ntext/plain=typer.desktop;\n");
  const auto start = TextHandlerOf("/tmp/a.kev", settings_);
  ASSERT_TRUE(start);
  EXPECT_EQ(start->Program, "typer");
}

TEST(DesktopFolders, HaveTheirUsualPlaces) {
  std::map<std::string, std::string, std::less<>> variables = {{"HOME", "/home/u"}};
  const auto look = [&](std::string_view name) -> std::optional<std::string> {
    const auto found = variables.find(name);
    return found == variables.end() ? std::nullopt : std::optional(found->second);
  };
  DesktopSettings settings = DesktopSettingsOf(look);
  EXPECT_EQ(settings.ConfigFolders, (Words{"/home/u/.config", "/etc/xdg"}));
  EXPECT_EQ(settings.DataFolders, (Words{"/home/u/.local/share", "/usr/local/share", "/usr/share"}));
  EXPECT_EQ(settings.Desktops, Words{});
  variables = {{"HOME", "/home/u"},     {"XDG_CONFIG_HOME", "/c"}, {"XDG_CONFIG_DIRS", "/d:/e"},
               {"XDG_DATA_HOME", "/f"}, {"XDG_DATA_DIRS", "/g"},   {"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"}};
  settings = DesktopSettingsOf(look);
  EXPECT_EQ(settings.ConfigFolders, (Words{"/c", "/d", "/e"}));
  EXPECT_EQ(settings.DataFolders, (Words{"/f", "/g"}));
  EXPECT_EQ(settings.Desktops, (Words{"ubuntu", "gnome"}));
}

TEST(ExecLine, FillsItsCodes) {
  struct Case {
    std::string_view exec;
    std::string_view program;
    Words arguments;
  };
  const Case cases[] = {
      {"v", "v", {"A B"}},
      {"v %u", "v", {"A B"}},
      {"v %U -x", "v", {"A B", "-x"}},
      {"v %f", "v", {"A B"}},
      {"v --url=%u", "v", {"--url=A B"}},
      {"v %i %c %u", "v", {"A B"}},
      {"v 100%% %u", "v", {"100%", "A B"}},
      {"\"/opt/my viewer/v\" \"a \\\"b\\\" \\$c\" %u", "/opt/my viewer/v", {"a \"b\" $c", "A B"}},
      {"env P=\"/a b\" v '' 'x\\y' %u", "env", {"P=/a b", "v", "", "x\\y", "A B"}},
      {"v a\\ b  c %u", "v", {"a b", "c", "A B"}},
  };
  for (const Case& one : cases) {
    const auto start = StartOfExec(one.exec, "A B");
    ASSERT_TRUE(start) << one.exec;
    EXPECT_EQ(start->Program, one.program) << one.exec;
    EXPECT_EQ(start->Arguments, one.arguments) << one.exec;
  }
  EXPECT_FALSE(StartOfExec("", "A"));
  EXPECT_FALSE(StartOfExec("  ", "A"));
}

}  // namespace
}  // namespace kev
