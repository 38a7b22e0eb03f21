// SPDX-License-Identifier: MIT
#include "template/sample_copy.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.h"
#include "support/run_tool.h"

namespace kev {
namespace {

TEST(SampleCopy, NamesTheTemplateInItsFirstLineAndNowhereElse) {
  EXPECT_EQ(SampleCopyText("a\r\n  template=old.kev\r\nb\nTEMPLATE=x", "/tmp/t.kev"),
            "TEMPLATE=/tmp/t.kev\r\na\r\nb\r\n");
}

TEST(SampleCopy, IsNamedAfterTheTimeWithoutPadding) {
  const test::TemporaryFolder folder;
  const std::string temp = folder / "";
  const std::string sample = JoinPath(temp, "data.KEX");
  ASSERT_FALSE(WritePlainFile(sample, "|A|\r\n"));
  SampleCopy copy;
  copy.Renew(temp, {9, 5, 7}, sample, "/t.kev");
  EXPECT_EQ(copy.SampleCopyBase(), JoinPath(temp, "\\Sampledata957"));
  EXPECT_TRUE(FileExists(copy.SampleCopyBase() + ".kex"));
}

TEST(SampleCopy, ReplacesTheOneMadeBefore) {
  const test::TemporaryFolder folder;
  const std::string temp = folder / "";
  const std::string sample = JoinPath(temp, "data.ked");
  ASSERT_FALSE(WritePlainFile(sample, "@a=1\r\n"));
  SampleCopy copy;
  copy.Renew(temp, {1, 2, 3}, sample, "/t.kev");
  const std::string first = copy.SampleCopyBase() + ".ked";
  copy.Renew(temp, {1, 2, 4}, sample, "/t.kev");
  EXPECT_FALSE(FileExists(first));
  EXPECT_TRUE(FileExists(copy.SampleCopyBase() + ".ked"));
}

TEST(SampleCopy, IsMadeOfDataFilesAlone) {
  const test::TemporaryFolder folder;
  const std::string temp = folder / "";
  const std::string sample = JoinPath(temp, "data.txt");
  ASSERT_FALSE(WritePlainFile(sample, "x"));
  SampleCopy copy;
  copy.Renew(temp, {1, 2, 3}, sample, "/t.kev");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(temp), {}), 1);
}

}  // namespace
}  // namespace kev
