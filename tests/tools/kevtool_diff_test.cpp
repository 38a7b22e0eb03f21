// SPDX-License-Identifier: MIT
// Two templates beside each other on the command line.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

#include "support/run_tool.h"

namespace kev::test {
namespace {

constexpr const char* kFirst =
    "Report_Title=Caf\xE9\r\nCopies=2\r\n$Col_01=2400\r\n$Col_02=5000\r\nKEXVER=4\r\n[HEADER]\r\n{\\n}\r\n"
    "{$Col_01 + 10;}Total{}\r\n{Box=5,0,300,200}\r\n{100}Caf\xE9{}\r\n"
    "{Graph_Type=PIE}\r\n{Buildgraph=1,900}\r\n[DATA]\r\n [ITEMS:@Name]\r\n{100}@Name{}\r\n{\\n}\r\n";
constexpr const char* kSecond =
    "Report_Title=Bar\r\nPrint_Allowed=N\r\n$Col_01=2500\r\n$Col_03=7000\r\nKEXVER=4\r\n[HEADER]\r\n{\\n}\r\n"
    "{b=y}\r\n{$Col_01 + 10;}Total{}\r\n{b=n}\r\n{Circ=7000,,300}\r\n{100}Caf\xE9{}\r\n"
    "{Graph_Type=3D}\r\n{Buildgraph=1,900}\r\n[DATA]\r\n [ITEMS:@Name,@Price]\r\n{100}@Name{}\r\n{\\n}\r\n";

class KevtoolDiff : public testing::Test {
 protected:
  KevtoolDiff() {
    WriteBytes(folder / "a.kev", kFirst);
    WriteBytes(folder / "b.kev", kSecond);
  }
  ToolResult Run(const std::vector<std::string>& arguments) { return RunTool("kevtool", arguments, folder); }
  void ExpectGolden(const std::vector<std::string>& arguments, const std::string& name) {
    const std::string golden = std::string(KEV_TEST_DATA_DIR) + "/tools/golden/" + name;
    const ToolResult result = Run(arguments);
    EXPECT_EQ(result.ExitCode, 1);
    EXPECT_EQ(result.Errors, "");
    EXPECT_EQ(result.Output, ReadBytes(golden)) << golden;
  }

  TemporaryFolder folder;
};

TEST_F(KevtoolDiff, NothingIsSaidOfTemplatesThatAreTheSame) {
  const ToolResult result = Run({"diff", "a.kev", "a.kev"});
  EXPECT_EQ(result.ExitCode, 0);
  EXPECT_EQ(result.Output + result.Errors, "");
}

TEST_F(KevtoolDiff, TheJsonOfTemplatesThatAreTheSameSaysSo) {
  const ToolResult result = Run({"diff", "a.kev", "a.kev", "--json"});
  EXPECT_EQ(result.ExitCode, 0);
  EXPECT_EQ(result.Output,
            "{\n  \"same\": true,\n  \"settings\": [],\n  \"columns\": [],\n  \"objects\": []\n}\n");
}

TEST_F(KevtoolDiff, TheSpellingOfAFileDoesNotCount) {
  EXPECT_EQ(Run({"rewrite", "a.kev", "saved.kev"}).ExitCode, 0);
  EXPECT_EQ(Run({"rewrite", "--comments", "saved.kev", "again.kev"}).ExitCode, 0);
  EXPECT_NE(ReadBytes(folder / "again.kev"), ReadBytes(folder / "saved.kev"));
  const ToolResult result = Run({"diff", "saved.kev", "again.kev"});
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.ExitCode, 0);
}

TEST_F(KevtoolDiff, APackedTemplateIsTheSameAsThePlainOne) {
  EXPECT_EQ(Run({"pack", "a.kev", "packed.kev"}).ExitCode, 0);
  EXPECT_EQ(Run({"diff", "a.kev", "packed.kev"}).ExitCode, 0);
}

TEST_F(KevtoolDiff, NamesSettingsColumnsAndObjectsFieldByField) {
  ExpectGolden({"diff", "a.kev", "b.kev"}, "diff.txt");
}

TEST_F(KevtoolDiff, PrintsTheSameAsJson) {
  ExpectGolden({"diff", "--json", "a.kev", "b.kev"}, "diff.json");
}

#ifdef KEV_WITH_QT
// Big-endian, as PNG keeps them.
std::uint32_t NumberAt(const std::string& bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t n = 0; n < 4; ++n)
    number = number << 8 | static_cast<unsigned char>(bytes.at(at + n));
  return number;
}

TEST_F(KevtoolDiff, ThePictureHoldsBothPagesBesideEachOther) {
  EXPECT_EQ(Run({"render", "a.kev", "page.png"}).ExitCode, 0);
  const ToolResult result = Run({"diff", "a.kev", "b.kev", "--image", "diff.png"});
  EXPECT_EQ(result.ExitCode, 1);
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(result.Output, Run({"diff", "a.kev", "b.kev"}).Output);
  const std::string page = ReadBytes(folder / "page.png");
  const std::string both = ReadBytes(folder / "diff.png");
  ASSERT_TRUE(both.starts_with("\x89PNG"));
  EXPECT_EQ(NumberAt(both, 16), 2 * NumberAt(page, 16) + 72);  // two pages and three gaps of 24 pixels
  EXPECT_GT(NumberAt(both, 20), NumberAt(page, 20));
}

struct Colour {
  unsigned char blue, green, red;
};
constexpr Colour kRemoved = {40, 30, 200}, kAdded = {60, 130, 20}, kChanged = {210, 90, 30};
constexpr std::size_t kHead = 44;  // pixels above the pages: the names of the files and the legend

// A bitmap of 24 bits a pixel, its rows from the bottom.
class Bitmap {
 public:
  explicit Bitmap(std::string bytes) : bytes_(std::move(bytes)) {}

  bool LeftHas(Colour colour) const { return Has(colour, 0, Width() / 2); }
  bool RightHas(Colour colour) const { return Has(colour, Width() / 2, Width()); }

 private:
  std::size_t Number(std::size_t at) const {
    std::size_t number = 0;
    for (std::size_t n = 4; n > 0; --n)
      number = number << 8 | static_cast<unsigned char>(bytes_.at(at + n - 1));
    return number;
  }
  std::size_t Width() const { return Number(18); }
  std::size_t Height() const { return Number(22); }
  bool Has(Colour colour, std::size_t left, std::size_t right) const {
    const std::size_t rowLength = (Width() * 3 + 3) / 4 * 4;
    for (std::size_t row = 0; row + kHead < Height(); ++row)
      for (std::size_t x = left; x < right; ++x)
        if (IsAt(Number(10) + row * rowLength + x * 3, colour)) return true;
    return false;
  }
  bool IsAt(std::size_t at, Colour colour) const {
    const auto byte = [&](std::size_t n) { return static_cast<unsigned char>(bytes_.at(at + n)); };
    return byte(0) == colour.blue && byte(1) == colour.green && byte(2) == colour.red;
  }

  std::string bytes_;
};

TEST_F(KevtoolDiff, ThePictureFramesWhatChangedOnTheSideWhereItIs) {
  const auto picture = [&](const std::string& first, const std::string& second) {
    Run({"diff", first, second, "--image", "diff.png"});
    EXPECT_EQ(RunTool("png2bmp", {"diff.png", "diff.bmp"}, folder).ExitCode, 0);
    return Bitmap(ReadBytes(folder / "diff.bmp"));
  };
  const Bitmap different = picture("a.kev", "b.kev");
  EXPECT_TRUE(different.LeftHas(kRemoved));
  EXPECT_FALSE(different.RightHas(kRemoved));
  EXPECT_FALSE(different.LeftHas(kAdded));
  EXPECT_TRUE(different.RightHas(kAdded));
  EXPECT_TRUE(different.LeftHas(kChanged));
  EXPECT_TRUE(different.RightHas(kChanged));
  const Bitmap same = picture("a.kev", "a.kev");
  for (const Colour colour : {kRemoved, kAdded, kChanged}) {
    EXPECT_FALSE(same.LeftHas(colour));
    EXPECT_FALSE(same.RightHas(colour));
  }
}

TEST_F(KevtoolDiff, ThePictureIsMadeOfTemplatesThatAreTheSameToo) {
  EXPECT_EQ(Run({"diff", "a.kev", "a.kev", "--image", "same.png"}).ExitCode, 0);
  EXPECT_TRUE(std::filesystem::exists(folder / "same.png"));
  EXPECT_EQ(Run({"diff", "a.kev", "b.kev", "--image", "other.png"}).ExitCode, 1);
  EXPECT_NE(ReadBytes(folder / "same.png"), ReadBytes(folder / "other.png"));
}
#endif

}  // namespace
}  // namespace kev::test
