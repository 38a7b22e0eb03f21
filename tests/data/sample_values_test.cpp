// SPDX-License-Identifier: MIT
#include "data/sample_values.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>

#include "support/run_tool.h"

namespace kev {
namespace {

using Texts = std::vector<std::string>;

class SampleValueLists : public testing::Test {
 protected:
  std::string Written(const std::string& bytes) const {
    test::WriteBytes(folder_ / "data", bytes);
    return folder_ / "data";
  }
  static SampleValues Values(const std::string& path, std::size_t field, std::string_view name = "ITEMS") {
    return FieldValues(path, name, field, CodePage::Default());
  }
  static std::string Records(std::size_t count) {
    std::string text = "TEMPLATE=a.kev\r\n";
    for (std::size_t n = 1; n <= count; ++n)
      text += "|ITEMS|" + std::to_string(n) + "|\r\n";
    return text;
  }

  test::TemporaryFolder folder_;
};

TEST_F(SampleValueLists, HoldTheFieldOfEachRecordOfTheName) {
  const std::string path = Written(
      "TEMPLATE=a.kev\r\n|ITEMS|12|bolt|\r\n;Other;1;2;\r\n;items;13;nut|x;\r\n\r\n   \r\n>ITEMS>9>9>\r\n"
      "| Items | 14 |screw|");
  EXPECT_EQ(Values(path, 0).Items, (Texts{"12", "13", " 14 "}));
  EXPECT_EQ(Values(path, 1).Items, (Texts{"bolt", "nut|x", "screw"}));
  EXPECT_EQ(Values(path, 1, "oTHER").Items, Texts{"2"});
  EXPECT_EQ(Values(path, 1).Records, 3U);
  EXPECT_FALSE(Values(path, 1).FileMissing);
}

TEST_F(SampleValueLists, AFieldThatALineDoesNotHaveIsEmpty) {
  EXPECT_EQ(Values(Written("|ITEMS|12|bolt|\n|ITEMS|13|\n|ITEMS|"), 1).Items, (Texts{"bolt", "", ""}));
}

TEST_F(SampleValueLists, LinesThatNameATemplateArePassedOverWhereverTheyStand) {
  EXPECT_EQ(Values(Written("template=|ITEMS|1|\n|ITEMS|2|\nTemplates|ITEMS|\n"), 0).Items, Texts{"2"});
  // Its first character is the delimiter, so the name would be its second part.
  EXPECT_TRUE(Values(Written("TEMPLATE|TITEMST\n"), 0).Items.empty());
}

TEST_F(SampleValueLists, ALineOfTooManyPartsIsNoRecord) {
  std::string many = "|ITEMS|";
  for (int n = 1; n <= 197; ++n)
    many += "v|";
  EXPECT_EQ(Values(Written(many + "\n"), 196).Items, Texts{"v"});
  EXPECT_TRUE(Values(Written(many + "v|\n"), 0).Items.empty());
}

TEST_F(SampleValueLists, NinetyNineStandAlone) {
  const SampleValues values = Values(Written(Records(99)), 0);
  EXPECT_EQ(values.Records, 99U);
  EXPECT_EQ(values.Items.size(), 99U);
  EXPECT_EQ(values.Items.back(), "99");
}

TEST_F(SampleValueLists, AFullListEndsWithDotsAlsoWhereThereIsNoMore) {
  for (const std::size_t count : {100U, 101U, 5000U}) {
    const SampleValues values = Values(Written(Records(count)), 0);
    EXPECT_EQ(values.Records, 100U) << count;
    ASSERT_EQ(values.Items.size(), 101U) << count;
    EXPECT_EQ(values.Items[99], "100") << count;
    EXPECT_EQ(values.Items[100], "...") << count;
  }
}

TEST_F(SampleValueLists, AMissingFileIsSaid) {
  EXPECT_TRUE(Values(folder_ / "gone", 0).FileMissing);
  EXPECT_TRUE(Values("", 0).FileMissing);
  EXPECT_TRUE(Values(folder_ / "", 0).FileMissing);
  EXPECT_EQ(Values(folder_ / "gone", 0).Records, 0U);
  EXPECT_TRUE(VariableValues(folder_ / "gone", "@a").FileMissing);
  EXPECT_TRUE(VariableNames(folder_ / "gone").empty());
}

TEST_F(SampleValueLists, NothingBehindTheHundredthRecordIsRead) {
  const std::string path = Written(Records(101));
  int lines = 0;
  EXPECT_TRUE(ForEachSampleLine(path, [&](std::string_view) { return ++lines < 50; }));
  EXPECT_EQ(lines, 50);
}

// The bytes that this process has read so far; nothing where the system does not tell.
std::optional<std::uint64_t> BytesRead() {
  std::ifstream counts("/proc/self/io");
  std::string name;
  std::uint64_t bytes = 0;
  if (!(counts >> name >> bytes) || name != "rchar:") return std::nullopt;
  return bytes;
}

TEST_F(SampleValueLists, AFullListLeavesTheRestOfALargeFileAlone) {
  constexpr std::uint64_t kLarge = 1ULL << 30, kFewPieces = 4ULL << 20;
  const std::string path = Written(Records(101));
  std::filesystem::resize_file(path, kLarge);
  const std::optional<std::uint64_t> before = BytesRead();
  if (!before) GTEST_SKIP() << "the system does not count what is read";
  EXPECT_EQ(Values(path, 0).Items.size(), 101U);
  EXPECT_EQ(Values(path, 0).Records, 100U);
  EXPECT_LT(*BytesRead() - *before, kFewPieces);
}

TEST_F(SampleValueLists, LinesAreWholeWhereverAPieceOfTheFileEnds) {
  std::string text;
  for (int n = 0; n < 20000; ++n)
    text += "|OTHER|" + std::string(static_cast<std::size_t>(n % 61), 'x') + "|\r\n";
  text += "|ITEMS|" + std::string(600000, 'y') + "|\r\n" + "|ITEMS|z|";
  const SampleValues values = Values(Written(text), 0);
  ASSERT_EQ(values.Items.size(), 2U);
  EXPECT_EQ(values.Items[0], std::string(600000, 'y'));
  EXPECT_EQ(values.Items[1], "z");
  int others = 0;
  ForEachSampleLine(folder_ / "data", [&](std::string_view line) {
    others += line.starts_with("|OTHER|") && line.ends_with('|') ? 1 : 0;
    return true;
  });
  EXPECT_EQ(others, 20000);
}

TEST_F(SampleValueLists, ALineWithoutAnEndInSightIsLeftOut) {
  const std::string path = Written("|ITEMS|1|\n|ITEMS|" + std::string(3000000, 'y') + "|\n|ITEMS|2|\n");
  EXPECT_EQ(Values(path, 0).Items, (Texts{"1", "2"}));
}

TEST_F(SampleValueLists, VariablesHaveTheValuesBehindTheirSign) {
  const std::string path =
      Written("TEMPLATE=a.kev\r\n@Name=Jo = 1\r\n\r\nx=2\r\n @Sum = 5 \r\n@Name=Al\r\n@Bare\r\n");
  EXPECT_EQ(VariableNames(path), (Texts{"@Name", "@Sum", "@Bare"}));
  EXPECT_EQ(VariableValues(path, "@Name").Items, (Texts{"Jo = 1", "Al"}));
  EXPECT_EQ(VariableValues(path, "@Sum").Items, Texts{"5"});
  EXPECT_EQ(VariableValues(path, "@Bare").Items, Texts{""});
  EXPECT_TRUE(VariableValues(path, "@Gone").Items.empty());
}

}  // namespace
}  // namespace kev
