// SPDX-License-Identifier: MIT
#include "app/folders.h"

#include <gtest/gtest.h>

#include <map>

#include "base/files.h"
#include "base/text_numbers.h"
#include "support/run_tool.h"

namespace kev {
namespace {

Environment Of(std::map<std::string, std::string> variables) {
  return [variables](std::string_view name) -> std::optional<std::string> {
    const auto found = variables.find(std::string(name));
    if (found == variables.end()) return std::nullopt;
    return found->second;
  };
}

TEST(Folders, TempComesFromTempThenTmp) {
  EXPECT_EQ(FindFolders(Of({{"TEMP", "/t"}, {"TMP", "/u"}}), "/p").TempFolder, "/t/Kev");
  EXPECT_EQ(FindFolders(Of({{"TEMP", ""}, {"TMP", "/u"}}), "/p").TempFolder, "/u/Kev");
  EXPECT_EQ(FindFolders(Of({{"TMP", "/u/"}}), "/p").TempFolder, "/u/Kev");
}

TEST(Folders, WithNeitherTheFolderLiesAtTheRoot) {
  EXPECT_EQ(FindFolders(Of({}), "/p").TempFolder, "/Kev");
  EXPECT_EQ(FindFolders(Of({{"TEMP", ""}, {"TMP", ""}}), "/p").TempFolder, "/Kev");
}

TEST(Folders, DataComesFromAppdataInEitherCase) {
  EXPECT_EQ(FindFolders(Of({{"appdata", "/a"}, {"APPDATA", "/b"}}), "/p").DataFolder, "/a/Kev");
  EXPECT_EQ(FindFolders(Of({{"APPDATA", "/b"}}), "/p").DataFolder, "/b/Kev");
}

TEST(Folders, DataDirBesideTheExecutableComesFirst) {
  const test::TemporaryFolder program;
  test::WriteBytes(program / "activelang", "DATADIR=/data\r\nACTIVELANG=s\r\n");
  const DesignerFolders folders = FindFolders(Of({{"appdata", "/a"}}), (program / ""));
  EXPECT_EQ(folders.DataFolder, "/data/Kev");
  EXPECT_EQ(FindActiveLanguage(folders), 'S');
  test::WriteBytes(program / "activelang", "DATADIR=\r\n");
  EXPECT_EQ(FindFolders(Of({{"appdata", "/a"}}), (program / "")).DataFolder, "/a/Kev");
}

TEST(Folders, TheLanguageChosenByTheUserOverridesTheInstalledOne) {
  const test::TemporaryFolder program, data;
  std::filesystem::create_directory(data / "Kev");
  DesignerFolders folders;
  folders.ProgramFolder = (program / "");
  folders.DataFolder = (data / "Kev");
  EXPECT_EQ(FindActiveLanguage(folders), 'E');
  test::WriteBytes(program / "activelang", "ACTIVELANG=I");
  EXPECT_EQ(FindActiveLanguage(folders), 'I');
  EXPECT_FALSE(WriteActiveLanguage(folders, 'P'));
  EXPECT_EQ(FindActiveLanguage(folders), 'P');
}

TEST(Folders, WhatIsNoLetterIsNoLanguage) {
  const test::TemporaryFolder program, data;
  DesignerFolders folders;
  folders.ProgramFolder = (program / "");
  folders.DataFolder = (data / "");
  for (const std::string_view value :
       {std::string_view("\0S", 2), std::string_view("1"), std::string_view("[E"), std::string_view("@"),
        std::string_view("\xC9")}) {
    test::WriteBytes(program / "activelang", "ACTIVELANG=" + std::string(value) + "\r\n");
    EXPECT_EQ(FindActiveLanguage(folders), 'E') << value;
  }
  test::WriteBytes(data / "activelang", std::string("ACTIVELANG=\0P\r\n", 15));
  test::WriteBytes(program / "activelang", "ACTIVELANG=z\r\n");
  EXPECT_EQ(FindActiveLanguage(folders), 'Z');
}

class StoredLanguage : public testing::Test {
 protected:
  StoredLanguage() { folders_.DataFolder = (data_ / ""); }

  std::string After(const std::string& before) {
    test::WriteBytes(data_ / "activelang", before);
    EXPECT_FALSE(WriteActiveLanguage(folders_, 'P'));
    EXPECT_EQ(FindActiveLanguage(folders_), 'P') << before;
    return test::ReadBytes(data_ / "activelang");
  }

  test::TemporaryFolder data_;
  DesignerFolders folders_;
};

TEST_F(StoredLanguage, ReplacesItsLineAndKeepsTheOthers) {
  EXPECT_EQ(After("# mine\nDATADIR=/d\r\nactivelang= s\nOther=1"),
            "# mine\nDATADIR=/d\r\nACTIVELANG=P\r\nOther=1");
  EXPECT_EQ(After("ACTIVELANG=E"), "ACTIVELANG=P\r\n");
  EXPECT_EQ(After("ACTIVELANG=E\r\nACTIVELANG=I\r\n"), "ACTIVELANG=P\r\nACTIVELANG=I\r\n");
}

TEST_F(StoredLanguage, IsPutBeforeTheLinesOfAFileThatHasNone) {
  EXPECT_EQ(After(""), "ACTIVELANG=P\r\n");
  EXPECT_EQ(After("#ACTIVELANG=E\r\nDATADIR=/d"), "ACTIVELANG=P\r\n#ACTIVELANG=E\r\nDATADIR=/d");
}

TEST_F(StoredLanguage, LeavesAFileThatCannotBeReadAlone) {
  test::WriteBytes(data_ / "activelang", "DATADIR=/d\r\n");
  std::filesystem::resize_file(data_ / "activelang", kLargestFile + 1);
  EXPECT_TRUE(WriteActiveLanguage(folders_, 'P'));
  EXPECT_EQ(std::filesystem::file_size(data_ / "activelang"), kLargestFile + 1);
}

TEST(Folders, MissingOnesAreNamedAndNoneIsMade) {
  const test::TemporaryFolder root;
  std::filesystem::create_directories(root / "Kev/Cache");
  const DesignerFolders folders = FindFolders(Of({{"TEMP", (root / "")}, {"appdata", (root / "no")}}), "/p");
  const std::vector<MissingFolder> missing = MissingFolders(folders);
  ASSERT_EQ(missing.size(), 3U);
  EXPECT_EQ(missing[0].Path, root / "Kev/Temp");
  EXPECT_EQ(missing[0].RoleText, kTextFolderRoleUnpacking);
  EXPECT_EQ(missing[1].Path, root / "no/Kev");
  EXPECT_EQ(missing[1].RoleText, kTextFolderRoleData);
  EXPECT_EQ(missing[2].Path, root / "no/Kev/temp");
  EXPECT_EQ(missing[2].RoleText, kTextFolderRoleRecent);
  EXPECT_FALSE(std::filesystem::exists(root / "Kev/Temp"));
}

TEST(Folders, TheExecutableLiesInOne) {
  EXPECT_TRUE(std::filesystem::exists(ExecutableFolder()));
  EXPECT_EQ(ExecutableFolder(), std::filesystem::canonical(KEV_PROGRAM_DIR).string());
}

}  // namespace
}  // namespace kev
