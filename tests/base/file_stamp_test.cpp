// SPDX-License-Identifier: MIT
#include "base/file_stamp.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.h"
#include "support/run_tool.h"

namespace kev {
namespace {

TEST(FileStamp, StaysAsLongAsTheFileIsLeftAlone) {
  const test::TemporaryFolder folder;
  const std::string path = folder / "a";
  test::WriteBytes(path, "one");
  const auto stamp = StampOf(path);
  ASSERT_TRUE(stamp);
  EXPECT_EQ(stamp->Size, 3);
  EXPECT_EQ(StampOf(path), stamp);
}

TEST(FileStamp, IsAnotherOneBehindAReplacementOfTheSameSizeAndTime) {
  const test::TemporaryFolder folder;
  const std::string path = folder / "a";
  test::WriteBytes(path, "one");
  const auto stamp = StampOf(path);
  const auto time = std::filesystem::last_write_time(path);
  ASSERT_FALSE(WriteWholeFile(path, "two"));
  std::filesystem::last_write_time(path, time);
  EXPECT_NE(StampOf(path), stamp);
}

TEST(FileStamp, IsAnotherOneForAnotherSizeOrTime) {
  const test::TemporaryFolder folder;
  const std::string path = folder / "a";
  test::WriteBytes(path, "one");
  const auto stamp = StampOf(path);
  std::filesystem::last_write_time(path,
                                   std::filesystem::last_write_time(path) + std::chrono::nanoseconds(1));
  const auto later = StampOf(path);
  EXPECT_NE(later, stamp);
  test::WriteBytes(path, "four");
  EXPECT_NE(StampOf(path), later);
}

TEST(FileStamp, OfWhatIsNoFileIsNone) {
  const test::TemporaryFolder folder;
  EXPECT_FALSE(StampOf(folder / "missing"));
  EXPECT_FALSE(StampOf(folder / ""));
}

}  // namespace
}  // namespace kev
