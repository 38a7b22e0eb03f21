// SPDX-License-Identifier: MIT
#include "base/known_folders.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.h"
#include "base/find_file.h"
#include "support/run_tool.h"

namespace kev {
namespace {

TEST(KnownFolders, FindNamesWithoutRegardToCase) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "Gr\u00DC\u00DFe.PNG", "x");
  KnownFolders known;
  EXPECT_EQ(known.NameIn(folder / "", "gr\u00FC\u00DFE.png"), "Gr\u00DC\u00DFe.PNG");
  EXPECT_EQ(known.NameIn(folder / "", "gruesse.png"), std::nullopt);
  EXPECT_EQ(known.NameIn(folder / "missing", "a"), std::nullopt);
}

TEST(KnownFolders, OfSeveralNamesTheFirstIsMeant) {
  const test::TemporaryFolder folder;
  for (const char* name : {"logo.PNG", "LOGO.png", "Logo.png"})
    test::WriteBytes(folder / name, "x");
  KnownFolders known;
  EXPECT_EQ(known.NameIn(folder / "", "logo.png"), "LOGO.png");
}

TEST(KnownFolders, AreReadOnce) {
  const test::TemporaryFolder folder;
  KnownFolders known;
  EXPECT_EQ(known.NameIn(folder / "", "late.png"), std::nullopt);
  test::WriteBytes(folder / "Late.png", "x");
  EXPECT_EQ(known.NameIn(folder / "", "late.png"), std::nullopt);
  EXPECT_EQ(KnownFolders().NameIn(folder / "", "late.png"), "Late.png");
}

TEST(KnownFolders, LeadToTheFilesThatAreFoundWithoutThem) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder / "Pictures");
  test::WriteBytes(folder / "Pictures/Logo.PNG", "x");
  test::WriteBytes(folder / "here.png", "x");
  KnownFolders known;
  const auto lookUp = [&known](const std::string& in, const std::string& name) {
    return known.NameIn(in, name);
  };
  for (const char* path : {"pictures\\logo.png", "Pictures/Logo.PNG", "here.png", "HERE.PNG", "./Pictures",
                           "none.png", "pictures/none.png", ""})
    EXPECT_EQ(FindFile(path, folder / "", lookUp), FindFile(path, folder / "")) << path;
  EXPECT_EQ(FindFile("pictures\\logo.png", folder / "", lookUp), folder / "Pictures/Logo.PNG");
}

}  // namespace
}  // namespace kev
