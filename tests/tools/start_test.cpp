// SPDX-License-Identifier: MIT
// The script that starts the program with its folders.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "support/run_tool.h"

namespace kev::test {
namespace {

namespace fs = std::filesystem;

class StartScript : public testing::Test {
 protected:
  StartScript() {
    WriteBytes(folder_ / "program", "#!/bin/sh\nprintf '%s\\n' \"$TEMP\" \"$appdata\" \"$@\"\n");
    fs::permissions(folder_ / "program", fs::perms::owner_all);
    fs::create_directory(folder_ / "home");
  }

  // What the program finds in TEMP and appdata, and its arguments, each on a line.
  std::string Started(const std::string& variables, const std::string& arguments = "") {
    const std::string output = folder_ / "output";
    const std::string command =
        "env -i PATH=\"$PATH\" QT_QPA_PLATFORM=offscreen HOME=" + ShellQuoted(folder_ / "home") + " " +
        variables + " " + ShellQuoted(KEV_TEST_DATA_DIR "/../scripts/start") + " " +
        ShellQuoted(folder_ / "program") + " " + arguments + " >" + ShellQuoted(output);
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    return ReadBytes(output);
  }

  std::string Home(const std::string& name) const { return folder_ / ("home/" + name); }
  std::string Lines(const std::string& temp, const std::string& data) const {
    return temp + "\n" + data + "\n";
  }

  TemporaryFolder folder_;
};

TEST_F(StartScript, MakesTheFoldersBelowTheUsersOwn) {
  EXPECT_EQ(Started("", "'a b.kev' /x/"), Lines(Home(".cache"), Home(".local/share")) + "a b.kev\n/x/\n");
  for (const char* made : {".cache/Kev/Cache", ".cache/Kev/Temp", ".local/share/Kev/temp"})
    EXPECT_TRUE(fs::is_directory(Home(made))) << made;
}

TEST_F(StartScript, FollowsAbsoluteFoldersOfTheUserAndIgnoresRelativeOnes) {
  EXPECT_EQ(Started("XDG_CACHE_HOME=" + ShellQuoted(Home("c")) + " XDG_DATA_HOME=" + ShellQuoted(Home("d"))),
            Lines(Home("c"), Home("d")));
  EXPECT_EQ(Started("XDG_CACHE_HOME=cache XDG_DATA_HOME=./data"),
            Lines(Home(".cache"), Home(".local/share")));
  EXPECT_FALSE(fs::exists("cache"));
}

TEST_F(StartScript, TakesASetTempWhereTheUserOwnsItsFolder) {
  fs::create_directories(folder_ / "own/Kev");
  EXPECT_EQ(Started("TEMP=" + ShellQuoted(folder_ / "own") + " appdata=" + ShellQuoted(Home("data"))),
            Lines(folder_ / "own", Home("data")));
  EXPECT_TRUE(fs::is_directory(folder_ / "own/Kev/Cache"));
}

TEST_F(StartScript, LeavesASharedTempAlone) {
  fs::create_directories(folder_ / "shared");
  const std::string temp = "TEMP=" + ShellQuoted(folder_ / "shared");
  EXPECT_EQ(Started(temp), Lines(Home(".cache"), Home(".local/share")));
  EXPECT_FALSE(fs::exists(folder_ / "shared/Kev"));
  // The folder of another user: the system's own, or for the system's user one that was given away.
  if (::geteuid() == 0) {
    fs::create_directories(folder_ / "shared/Kev");
    ASSERT_EQ(::chown((folder_ / "shared/Kev").c_str(), 65534, 65534), 0);
  } else {
    fs::create_directory_symlink("/usr", folder_ / "shared/Kev");
  }
  EXPECT_EQ(Started(temp), Lines(Home(".cache"), Home(".local/share")));
  EXPECT_FALSE(fs::exists(folder_ / "shared/Kev/Cache"));
}

}  // namespace
}  // namespace kev::test
