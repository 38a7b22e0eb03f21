// SPDX-License-Identifier: MIT
#include "template/sample_copy.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.h"
#include "base/line_reader.h"
#include "support/run_tool.h"

namespace kev {
namespace {

TEST(SampleCopy, NamesTheTemplateInItsFirstLineAndNowhereElse) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "data.kex", "a\r\n  template=old.kev\r\nb \n\nTEMPLATE=x");
  SampleCopy copy;
  ASSERT_FALSE(copy.Renew(folder / "", {1, 2, 3}, folder / "data.kex", "/tmp/t.kev"));
  EXPECT_EQ(test::ReadBytes(copy.SampleCopyBase() + ".kex"), "TEMPLATE=/tmp/t.kev\r\na\r\nb \r\n\r\n");
}

TEST(SampleCopy, HoldsALargeFileWhole) {
  const test::TemporaryFolder folder;
  std::string lines;
  for (int line = 0; line < 100000; ++line)
    lines += "|ITEMS|" + std::to_string(line) + "|\r\n";
  test::WriteBytes(folder / "data.kex", "TEMPLATE=old\r\n" + lines);
  SampleCopy copy;
  ASSERT_FALSE(copy.Renew(folder / "", {1, 2, 3}, folder / "data.kex", "/t.kev"));
  EXPECT_TRUE(test::ReadBytes(copy.SampleCopyBase() + ".kex") == "TEMPLATE=/t.kev\r\n" + lines);
}

TEST(SampleCopy, NoneIsMadeOfALineThatWouldBeCut) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "data.kex",
                   "TEMPLATE=a\n|A|" + std::string(LineReader::kLongestLine, 'x') + "|\n");
  SampleCopy copy;
  const auto failure = copy.Renew(folder / "", {1, 2, 3}, folder / "data.kex", "/t.kev");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->path, folder / "data.kex");
  EXPECT_FALSE(FileExists(copy.SampleCopyBase() + ".kex"));
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

TEST(SampleCopy, IsMadeAnewInTheSameSecond) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "data.ked", "@a=1\r\n");
  test::WriteBytes(folder / "data.kex", "|A|\r\n");
  SampleCopy copy;
  EXPECT_FALSE(copy.Renew(folder / "", {1, 2, 3}, folder / "data.ked", "/t.kev"));
  test::WriteBytes(folder / "data.ked", "@a=2\r\n");
  EXPECT_FALSE(copy.Renew(folder / "", {1, 2, 3}, folder / "data.ked", "/t.kev"));
  EXPECT_EQ(test::ReadBytes(copy.SampleCopyBase() + ".ked"), "TEMPLATE=/t.kev\r\n@a=2\r\n");
  // Data of the other kind replaces it as well.
  EXPECT_FALSE(copy.Renew(folder / "", {1, 2, 3}, folder / "data.kex", "/t.kev"));
  EXPECT_FALSE(FileExists(copy.SampleCopyBase() + ".ked"));
  EXPECT_TRUE(FileExists(copy.SampleCopyBase() + ".kex"));
}

TEST(SampleCopy, TellsWhyItCannotBeMade) {
  const test::TemporaryFolder folder;
  SampleCopy copy;
  const auto missing = copy.Renew(folder / "", {1, 2, 3}, folder / "none.ked", "/t.kev");
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->path, folder / "none.ked");
  EXPECT_EQ(missing->reason, "No such file or directory");
  test::WriteBytes(folder / "data.ked", "@a=1\r\n");
  const auto noFolder = copy.Renew(folder / "no", {1, 2, 3}, folder / "data.ked", "/t.kev");
  ASSERT_TRUE(noFolder);
  EXPECT_EQ(noFolder->path, folder / "no/Sampledata123.ked");
  EXPECT_FALSE(copy.Renew(folder / "", {1, 2, 3}, "", "/t.kev"));
}

TEST(SampleCopy, IsMadeOfDataFilesAlone) {
  const test::TemporaryFolder folder;
  const std::string temp = folder / "";
  const std::string sample = JoinPath(temp, "data.txt");
  ASSERT_FALSE(WritePlainFile(sample, "x"));
  SampleCopy copy;
  EXPECT_FALSE(copy.Renew(temp, {1, 2, 3}, sample, "/t.kev"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(temp), {}), 1);
}

}  // namespace
}  // namespace kev
