// SPDX-License-Identifier: MIT
#include "base/descriptor.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/full_disk.h"
#include "support/run_tool.h"

namespace kev {
namespace {

class DescriptorTest : public testing::Test {
 protected:
  DescriptorTest() { std::filesystem::create_directory(folder_); }

  test::TemporaryFolder root_;
  std::string folder_ = root_ / "folder";
  std::string path_ = folder_ + "/file";
};

TEST_F(DescriptorTest, AHeldFileIsNobodyElses) {
  test::WriteBytes(path_, "x");
  EXPECT_FALSE(IsHeld(path_));
  {
    const Descriptor hold = HoldFile(path_);
    ASSERT_TRUE(hold);
    EXPECT_TRUE(IsHeld(path_));
    EXPECT_FALSE(HoldFile(path_));
  }
  EXPECT_FALSE(IsHeld(path_));
  EXPECT_TRUE(HoldFile(path_));
}

TEST_F(DescriptorTest, AHoldMovesWithItsOwner) {
  test::WriteBytes(path_, "x");
  Descriptor first = HoldFile(path_);
  Descriptor second;
  second = std::move(first);
  EXPECT_TRUE(IsHeld(path_));
  EXPECT_EQ(second.Close(), 0);
  EXPECT_FALSE(IsHeld(path_));
  EXPECT_EQ(second.Close(), 0);
}

TEST_F(DescriptorTest, WhatCannotBeOpenedIsNotOurs) {
  EXPECT_FALSE(HoldFile(path_));
  EXPECT_TRUE(IsHeld(path_));
  test::WriteBytes(root_ / "target", "x");
  std::filesystem::create_symlink(root_ / "target", path_);
  EXPECT_FALSE(HoldFile(path_));
  EXPECT_TRUE(IsHeld(path_));
}

TEST_F(DescriptorTest, ANewFileIsWholeAndHeldWhenItGetsItsName) {
  auto file = NewHeldFile::Write(folder_, "bytes");
  ASSERT_TRUE(file);
  EXPECT_FALSE(std::filesystem::exists(path_));
  ASSERT_EQ(file->Name(path_), 0);
  EXPECT_EQ(test::ReadBytes(path_), "bytes");
  EXPECT_TRUE(IsHeld(path_));
  const Descriptor hold = file->Take();
  EXPECT_TRUE(IsHeld(path_));
}

TEST_F(DescriptorTest, ANameInUseIsNotTaken) {
  test::WriteBytes(path_, "old");
  auto file = NewHeldFile::Write(folder_, "bytes");
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Name(path_), EEXIST);
  EXPECT_EQ(test::ReadBytes(path_), "old");
  EXPECT_EQ(file->Name(path_ + "2"), 0);
  EXPECT_EQ(test::ReadBytes(path_ + "2"), "bytes");
}

TEST_F(DescriptorTest, WithoutANameItIsGone) {
  { EXPECT_TRUE(NewHeldFile::Write(folder_, "bytes")); }
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(DescriptorTest, AFolderThatIsNotThereIsTold) {
  const auto file = NewHeldFile::Write(root_ / "none", "bytes");
  ASSERT_FALSE(file);
  EXPECT_EQ(file.Error().reason, "No such file or directory");
}

TEST_F(DescriptorTest, WhatDoesNotFitIsToldAndLeavesNothing) {
  {
    const test::FullDisk full(4096);
    const auto file = NewHeldFile::Write(folder_, std::string(10000, 'x'));
    ASSERT_FALSE(file);
    EXPECT_EQ(file.Error().reason, "File too large");
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

// A folder of the system's own holds neither nameless files nor new ones.
TEST_F(DescriptorTest, AFolderThatTakesNoFilesIsTold) {
  const auto file = NewHeldFile::Write("/proc/self", "bytes");
  ASSERT_FALSE(file);
  EXPECT_EQ(file.Error().path, "/proc/self");
}

TEST_F(DescriptorTest, WhatIsNotOpenCannotBeLocked) {
  EXPECT_EQ(LockPatiently(Descriptor()), EBADF);
  EXPECT_FALSE(HoldFolder(root_ / "none"));
}

TEST_F(DescriptorTest, AHeldFolderIsNobodyElses) {
  {
    const Descriptor hold = HoldFolder(folder_);
    ASSERT_TRUE(hold);
    EXPECT_FALSE(HoldFolder(folder_));
  }
  EXPECT_TRUE(HoldFolder(folder_));
}

}  // namespace
}  // namespace kev
