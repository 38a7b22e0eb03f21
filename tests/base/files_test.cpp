// SPDX-License-Identifier: MIT
#include "base/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "support/full_disk.h"
#include "support/run_tool.h"

namespace kev {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::TemporaryFolder;
using test::WriteBytes;
using testing::IsEmpty;

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(ReadWholeFile, GivesTheBytesAsTheyStand) {
  const TemporaryFolder folder;
  const std::string bytes("a\r\n\0\x1A\xFF", 6);
  WriteBytes(folder / "a", bytes);
  const auto read = ReadWholeFile(folder / "a");
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, bytes);
}

TEST(ReadWholeFile, TellsThePathAndTheReasonOfAFailure) {
  const TemporaryFolder folder;
  const auto missing = ReadWholeFile(folder / "no");
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.Error().path, folder / "no");
  EXPECT_EQ(missing.Error().reason, "No such file or directory");
  const auto directory = ReadWholeFile(folder / "");
  ASSERT_FALSE(directory);
  EXPECT_EQ(directory.Error().reason, "Is a directory");
}

TEST(ReadWholeFile, RefusesWhatIsNoRegularFileAtOnce) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_FALSE(ReadWholeFile(folder / "pipe"));
  EXPECT_FALSE(ReadWholeFile("/dev/zero"));
}

TEST(ReadWholeFile, RefusesAFileThatIsFarTooLarge) {
  const TemporaryFolder folder;
  WriteBytes(folder / "big", "x");
  fs::resize_file(folder / "big", kLargestFile + 1);
  const auto read = ReadWholeFile(folder / "big");
  ASSERT_FALSE(read);
  EXPECT_EQ(read.Error().reason, "File too large");
}

TEST(WriteWholeFile, LeavesNothingBesideItsTarget) {
  const TemporaryFolder folder;
  EXPECT_FALSE(WriteWholeFile(folder / "a.kev", "one"));
  EXPECT_FALSE(WriteWholeFile(folder / "a.kev", "two"));
  EXPECT_EQ(ReadBytes(folder / "a.kev"), "two");
  EXPECT_THAT(NamesIn(folder / ""), testing::ElementsAre("a.kev"));
}

TEST(WriteWholeFile, KeepsThePermissionsOfTheFileThatItReplaces) {
  const TemporaryFolder folder;
  WriteBytes(folder / "a", "x");
  fs::permissions(folder / "a", fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  ASSERT_FALSE(WriteWholeFile(folder / "a", "y"));
  EXPECT_EQ(fs::status(folder / "a").permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST(WriteWholeFile, WritesThroughALinkAndLeavesItALink) {
  const TemporaryFolder folder;
  WriteBytes(folder / "real", "x");
  fs::create_symlink("real", folder / "link");
  ASSERT_FALSE(WriteWholeFile(folder / "link", "y"));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(ReadBytes(folder / "real"), "y");
}

TEST(WriteWholeFile, MakesTheFileThatALinkLeadsTo) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "below");
  fs::create_symlink("below/second", folder / "first");
  fs::create_symlink("../real", folder / "below/second");
  ASSERT_FALSE(WriteWholeFile(folder / "first", "y"));
  EXPECT_TRUE(fs::is_symlink(folder / "first"));
  EXPECT_TRUE(fs::is_symlink(folder / "below/second"));
  EXPECT_EQ(ReadBytes(folder / "real"), "y");
}

TEST(WriteWholeFile, LeavesAPipeAndADeviceAlone) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(WriteWholeFile(folder / "pipe", "x")->reason, "not a regular file");
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
  fs::create_symlink("/dev/null", folder / "null");
  EXPECT_EQ(WriteWholeFile(folder / "null", "x")->reason, "not a regular file");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_THAT(NamesIn(folder / ""), testing::ElementsAre("null", "pipe"));
}

TEST(WriteWholeFile, WritesAFileOfTheLongestName) {
  const TemporaryFolder folder;
  for (const std::size_t length : {251U, 255U}) {
    const std::string name(length, 'n');
    EXPECT_FALSE(WriteWholeFile(folder / name, "bytes")) << length;
    EXPECT_EQ(ReadBytes(folder / name), "bytes");
  }
}

// What bears the name that it would take for the time of writing.
TEST(WriteWholeFile, LeavesAlonePlantedLinksAndFiles) {
  const TemporaryFolder folder;
  WriteBytes(folder / "victim", "whole");
  const std::string stem = ".kev" + std::to_string(::getpid()) + "-";
  fs::create_symlink("victim", folder / (stem + "0"));
  fs::create_symlink("none", folder / (stem + "1"));
  WriteBytes(folder / (stem + "2"), "kept");
  EXPECT_FALSE(WriteWholeFile(folder / "a", "new"));
  EXPECT_EQ(ReadBytes(folder / "a"), "new");
  EXPECT_EQ(ReadBytes(folder / "victim"), "whole");
  EXPECT_EQ(ReadBytes(folder / (stem + "2")), "kept");
  EXPECT_FALSE(fs::exists(folder / "none"));
  EXPECT_EQ(NamesIn(folder / "").size(), 5U);
}

TEST(WriteWholeFile, SaysWhyWhereItCannotWrite) {
  const TemporaryFolder folder;
  const auto noFolder = WriteWholeFile(folder / "no/a", "x");
  ASSERT_TRUE(noFolder);
  EXPECT_EQ(noFolder->path, folder / "no/a");
  EXPECT_EQ(noFolder->reason, "No such file or directory");
  const auto isFolder = WriteWholeFile(folder / "", "x");
  ASSERT_TRUE(isFolder);
  EXPECT_EQ(isFolder->reason, "Is a directory");
}

TEST(WriteWholeFile, LeavesNothingBehindUnderANameThatNoFileCanHave) {
  const TemporaryFolder folder;
  const auto failure = WriteWholeFile(folder / std::string(300, 'n'), "x");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->reason, "File name too long");
  EXPECT_THAT(NamesIn(folder / ""), IsEmpty());
}

TEST(WriteWholeFile, ReplacesALinkThatLeadsToItself) {
  const TemporaryFolder folder;
  fs::create_symlink("a", folder / "a");
  EXPECT_FALSE(WriteWholeFile(folder / "a", "x"));
  EXPECT_EQ(ReadBytes(folder / "a"), "x");
  EXPECT_FALSE(fs::is_symlink(folder / "a"));
}

TEST(WriteWholeFile, LeavesTheOldFileWhereTheNewOneDoesNotFit) {
  const TemporaryFolder folder;
  WriteBytes(folder / "a", "the old file");
  std::optional<FileFailure> failure;
  {
    const test::FullDisk full(4096);
    failure = WriteWholeFile(folder / "a", std::string(10000, 'x'));
  }
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->reason, "File too large");
  EXPECT_EQ(ReadBytes(folder / "a"), "the old file");
  EXPECT_THAT(NamesIn(folder / ""), testing::ElementsAre("a"));
}

TEST(RewriteLocked, TellsOfWhatCannotBeReadOrDoesNotFit) {
  const TemporaryFolder folder;
  const auto longer = [](std::string_view) { return std::string(10000, 'x'); };
  EXPECT_EQ(RewriteLocked(folder / "", longer)->reason, "Is a directory");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(RewriteLocked(folder / "pipe", longer)->reason, "not a regular file");
  const test::FullDisk full(4096);
  EXPECT_EQ(RewriteLocked(folder / "a", longer)->reason, "File too large");
}

TEST(WritePlainFile, TellsOfWhatDoesNotFitAndLeavesNoPartOfIt) {
  const TemporaryFolder folder;
  EXPECT_EQ(WritePlainFile(folder / "", "x")->reason, "Is a directory");
  const test::FullDisk full(4096);
  EXPECT_EQ(WritePlainFile(folder / "a", std::string(10000, 'x'))->reason, "File too large");
  EXPECT_THAT(NamesIn(folder / ""), IsEmpty());
}

// What somebody has put where the file will be.
TEST(WritePlainFile, WritesIntoNoLinkAndNoPipe) {
  const TemporaryFolder folder;
  WriteBytes(folder / "victim", "whole");
  fs::create_symlink("victim", folder / "link");
  fs::create_hard_link(folder / "victim", folder / "hard");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  for (const char* name : {"link", "hard", "pipe"}) {
    EXPECT_FALSE(WritePlainFile(folder / name, "new")) << name;
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / name))) << name;
    EXPECT_EQ(ReadBytes(folder / name), "new") << name;
  }
  EXPECT_EQ(ReadBytes(folder / "victim"), "whole");
}

// Some files of the system are shorter than it says.
TEST(ReadWholeFile, ReadsAsFarAsAFileGoes) {
  const std::string shorter = "/sys/kernel/uevent_seqnum";
  if (!FileExists(shorter)) GTEST_SKIP() << "no such file on this system";
  const auto read = ReadWholeFile(shorter);
  ASSERT_TRUE(read);
  EXPECT_LT(read->size(), fs::file_size(shorter));
  EXPECT_TRUE(read->ends_with('\n'));
}

TEST(JoinPath, PutsANameBelowAFolder) {
  EXPECT_EQ(JoinPath("/tmp/Kev", "\\KEV.INI"), "/tmp/Kev/KEV.INI");
  EXPECT_EQ(JoinPath("/tmp/Kev/", "/KEV.INI"), "/tmp/Kev/KEV.INI");
  EXPECT_EQ(JoinPath("/tmp", "\\Cache\\a.kev"), "/tmp/Cache/a.kev");
}

TEST(Paths, AreTakenApart) {
  EXPECT_EQ(FolderOf("/a/b/c.kev"), "/a/b");
  EXPECT_EQ(FileNameOf("/a/b/c.kev"), "c.kev");
  EXPECT_EQ(AbsolutePath("/a/./b/../c"), "/a/c");
}

// Goes into a folder, and back.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& folder) : before_(fs::current_path()) {
    fs::current_path(folder);
  }
  ~WorkingFolder() { fs::current_path(before_); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  fs::path before_;
};

TEST(Paths, StayAsTheyAreWhereTheWorkingFolderIsGone) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "gone");
  const WorkingFolder inside(folder / "gone");
  EXPECT_EQ(AbsolutePath("a/../b"), fs::current_path() / "b");
  fs::remove(folder / "gone");
  EXPECT_EQ(AbsolutePath("a/../b"), "a/../b");
}

TEST(FindFile, LooksInTheWorkingFolderWhereNoneIsNamed) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "Sub");
  WriteBytes(folder / "Sub/A.png", "x");
  const WorkingFolder inside(folder / "");
  const auto found = FindFile("sub\\a.PNG", {});
  ASSERT_TRUE(found);
  EXPECT_EQ(AbsolutePath(*found), fs::current_path() / "Sub/A.png");
}

TEST(FindFile, TakesBothSeparatorsAndEitherCase) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "Pictures/Big");
  WriteBytes(folder / "Pictures/Big/Logo.PNG", "x");
  const std::string found = folder / "Pictures/Big/Logo.PNG";
  for (const std::string_view path : {"Pictures/Big/Logo.PNG", "Pictures\\Big\\Logo.PNG",
                                      "PICTURES\\big/logo.png", ".\\pictures\\BIG\\logo.Png"}) {
    const auto file = FindFile(path, folder / "");
    ASSERT_TRUE(file) << path;
    EXPECT_TRUE(fs::equivalent(*file, found)) << path;
  }
  EXPECT_TRUE(FindFile(found, "/nowhere"));
}

TEST(FindFile, FindsNothingForFoldersMissingFilesAndBlankPaths) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "sub");
  for (const std::string& path : {std::string("sub"), std::string("none.png"), std::string(),
                                  std::string("  "), std::string("a\0b", 3)})
    EXPECT_FALSE(FindFile(path, folder / "")) << path;
}

TEST(FindFile, TellsLettersBeyondAsciiApart) {
  const TemporaryFolder folder;
  WriteBytes(folder / "M\u00DCLLER.png", "x");  // U with dots
  WriteBytes(folder / "\u041A.png", "x");       // Cyrillic ka
  EXPECT_EQ(FindFile("m\u00FCller.PNG", folder / ""), folder / "M\u00DCLLER.png");
  EXPECT_EQ(FindFile("\u043A.png", folder / ""), folder / "\u041A.png");
  EXPECT_FALSE(FindFile("M\u00CCLLER.png", folder / ""));
  EXPECT_FALSE(FindFile("\u040A.png", folder / ""));
}

TEST(FindFile, ComparesBytesThatAreNoUtf8AsTheyAre) {
  const TemporaryFolder folder;
  WriteBytes(folder / "caf\xE9.PNG", "x");
  EXPECT_TRUE(FindFile("CAF\xE9.png", folder / ""));
  EXPECT_FALSE(FindFile("caf\xC9.png", folder / ""));
  EXPECT_FALSE(FindFile("caf\u00E9.png", folder / ""));
}

TEST(FindFile, ChoosesTheFirstNameWhereOnlyTheCaseDiffers) {
  const TemporaryFolder folder;
  WriteBytes(folder / "b.png", "x");
  WriteBytes(folder / "B.png", "x");
  EXPECT_EQ(FileNameOf(*FindFile("B.PNG", folder / "")), "B.png");
  EXPECT_EQ(FileNameOf(*FindFile("b.png", folder / "")), "b.png");
}

TEST(FindFile, ChoosesTheFirstNameInWhateverOrderTheyWereMade) {
  for (const std::string order : {"AB Ab aB", "aB Ab AB", "Ab AB aB", "aB AB Ab"}) {
    const TemporaryFolder folder;
    for (const std::size_t at : {0U, 3U, 6U})
      WriteBytes(folder / order.substr(at, 2), "x");
    EXPECT_EQ(FileNameOf(*FindFile("ab", folder / "")), "AB") << order;
  }
}

}  // namespace
}  // namespace kev
