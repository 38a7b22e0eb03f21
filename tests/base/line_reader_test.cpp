// SPDX-License-Identifier: MIT
#include "base/line_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <random>

#include "base/text.h"
#include "support/run_tool.h"

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LineReaderTest : public testing::Test {
 protected:
  std::vector<std::string> LinesOf(const std::string& bytes) {
    test::WriteBytes(path_, bytes);
    Result<LineReader> reader = LineReader::Open(path_);
    EXPECT_TRUE(reader);
    std::vector<std::string> lines;
    while (reader->Next()) {
      lines.emplace_back(reader->Line());
      EXPECT_EQ(reader->Number(), lines.size());
      EXPECT_FALSE(reader->Cut());
    }
    EXPECT_FALSE(reader->Stopped());
    EXPECT_FALSE(reader->Failure());
    EXPECT_FALSE(reader->Next());
    return lines;
  }

  test::TemporaryFolder folder_;
  std::string path_ = folder_ / "data";
};

TEST_F(LineReaderTest, EndsALineAtLfAndDropsOneCr) {
  EXPECT_THAT(LinesOf("a\nb\r\nc\r\r\n\r\n\nd"), ElementsAre("a", "b", "c\r", "", "", "d"));
}

TEST_F(LineReaderTest, ALastLineNeedsNoEnd) {
  EXPECT_THAT(LinesOf("a\n"), ElementsAre("a"));
  EXPECT_THAT(LinesOf("a\r"), ElementsAre("a\r"));
  EXPECT_THAT(LinesOf("a\rb"), ElementsAre("a\rb"));
  EXPECT_THAT(LinesOf(""), IsEmpty());
  EXPECT_THAT(LinesOf("\n"), ElementsAre(""));
}

TEST_F(LineReaderTest, KeepsEveryByte) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    if (byte != '\n') all += static_cast<char>(byte);
  EXPECT_THAT(LinesOf(all + "\n" + all), ElementsAre(all, all));
}

TEST_F(LineReaderTest, GivesTheLinesThatTheWholeTextHas) {
  std::mt19937 random(7);
  std::string text;
  for (int line = 0; line < 3000; ++line)
    text +=
        std::string(random() % 1000, static_cast<char>('a' + line % 26)) + (line % 3 == 0 ? "\r\n" : "\n");
  // Lines that span several pieces of the file, and end just where a piece does.
  for (const std::size_t length : {1048576UL, 262143UL, 262144UL, 262145UL, 3000000UL})
    text += std::string(length, 'x') + "\n";
  const std::vector<std::string_view> expected = SplitLines(text);
  EXPECT_EQ(LinesOf(text), std::vector<std::string>(expected.begin(), expected.end()));
}

TEST_F(LineReaderTest, OfALineThatIsTooLongOnlyTheBeginningIsKept) {
  const std::string longest(LineReader::kLongestLine, 'x');
  test::WriteBytes(path_, "first\n" + longest + "\ny" + longest + "\nlast\nz" + longest + longest);
  Result<LineReader> reader = LineReader::Open(path_);
  ASSERT_TRUE(reader);
  std::vector<std::pair<std::size_t, bool>> found;
  std::string beginnings;
  while (reader->Next()) {
    found.emplace_back(reader->Line().size(), reader->Cut());
    beginnings += reader->Line().front();
  }
  const std::size_t kept = LineReader::kKeptOfCutLine;
  EXPECT_THAT(found, ElementsAre(std::pair(5UL, false), std::pair(longest.size(), false),
                                 std::pair(kept, true), std::pair(4UL, false), std::pair(kept, true)));
  EXPECT_EQ(beginnings, "fxylz");
  EXPECT_EQ(reader->Number(), 5U);
}

TEST_F(LineReaderTest, TellsHowFarItIsAndStopsWhenAsked) {
  test::WriteBytes(path_, std::string(1000000, '\n'));
  std::vector<std::uint64_t> steps;
  const auto watch = [&](std::uint64_t done, std::uint64_t size) {
    EXPECT_EQ(size, 1000000U);
    steps.push_back(done);
    return steps.size() < 3;
  };
  Result<LineReader> reader = LineReader::Open(path_, watch);
  std::size_t lines = 0;
  while (reader->Next())
    ++lines;
  EXPECT_TRUE(reader->Stopped());
  EXPECT_FALSE(reader->Failure());
  EXPECT_EQ(steps.size(), 3U);
  EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
  EXPECT_LT(lines, 1000000U);
  EXPECT_FALSE(reader->Next());
  EXPECT_EQ(steps.size(), 3U);
}

TEST_F(LineReaderTest, OpensRegularFilesAlone) {
  EXPECT_EQ(LineReader::Open(folder_ / "none").Error().reason, "No such file or directory");
  EXPECT_EQ(LineReader::Open(folder_ / "").Error().reason, "Is a directory");
  const std::string pipe = folder_ / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(LineReader::Open(pipe).Error().reason, "not a regular file");
}

// The beginning of a process's memory is a file that opens and can't be read.
TEST_F(LineReaderTest, EndsWhereReadingFailsAndTellsWhy) {
  Result<LineReader> reader = LineReader::Open("/proc/self/mem");
  ASSERT_TRUE(reader);
  EXPECT_FALSE(reader->Next());
  ASSERT_TRUE(reader->Failure());
  EXPECT_EQ(reader->Failure()->reason, "Input/output error");
  EXPECT_FALSE(reader->Next());
  EXPECT_EQ(reader->Number(), 0U);
}

TEST_F(LineReaderTest, LeavesNoFileOpen) {
  test::WriteBytes(path_, "a\nb\n");
  const auto open = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}); };
  const auto before = open();
  {
    Result<LineReader> reader = LineReader::Open(path_);
    EXPECT_TRUE(reader->Next());
    EXPECT_EQ(open(), before + 1);
  }
  EXPECT_EQ(open(), before);
}

}  // namespace
}  // namespace kev
