// SPDX-License-Identifier: MIT
#include "app/theme.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/run_tool.h"

namespace kev {
namespace {

std::optional<Rgb> ColourFor(const std::string& value) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "md1.trp", "TEMANAME=Plain\r\nTOOLBARCOLOR=" + value + "\r\n");
  return LoadTheme((folder / "md1.trp")).ToolbarColour();
}

TEST(Theme, TheLowByteOfTheColourIsRed) {
  EXPECT_EQ(ColourFor("255"), 0xFF0000U);
  EXPECT_EQ(ColourFor("65280"), 0x00FF00U);
  EXPECT_EQ(ColourFor("16711680"), 0x0000FFU);
  EXPECT_EQ(ColourFor("16777215"), 0xFFFFFFU);
  EXPECT_EQ(ColourFor("0"), 0U);
}

TEST(Theme, AnyOtherValueMeansTheDesktopsColour) {
  for (const char* value : {"", "-1", "16777216", "1e30", "blue"})
    EXPECT_EQ(ColourFor(value), std::nullopt) << value;
  EXPECT_EQ(LoadTheme("/nowhere/md1.trp").ToolbarColour(), std::nullopt);
}

TEST(Theme, AllKeysAreKept) {
  const test::TemporaryFolder folder;
  std::string bytes;
  for (const std::string_view key : kThemeKeys)
    bytes.append(key).append("= value of ").append(key).append("\r\n");
  test::WriteBytes(folder / "md1.trp", bytes);
  const Theme theme = LoadTheme((folder / "md1.trp"));
  EXPECT_EQ(kThemeKeys.size(), 18U);
  for (const std::string_view key : kThemeKeys)
    EXPECT_EQ(theme[key], "value of " + std::string(key));
  EXPECT_THROW(static_cast<void>(theme["NOKEY"]), std::out_of_range);
}

TEST(Theme, TheOneThatComesWithTheProgramHasEveryKeyAndTheDesktopsColour) {
  const std::string file = KEV_TEST_DATA_DIR "/../assets/md1.trp";
  const std::string bytes = test::ReadBytes(file);
  for (const std::string_view key : kThemeKeys)
    EXPECT_NE(bytes.find("\n" + std::string(key) + "="), std::string::npos) << key;
  EXPECT_EQ(LoadTheme(file)["TEMANAME"], "Plain");
  EXPECT_EQ(LoadTheme(file).ToolbarColour(), std::nullopt);
}

TEST(Theme, AKeyThatTheFileLacksIsEmpty) {
  EXPECT_EQ(LoadTheme("/nowhere/md1.trp")["TEMANAME"], "");
}

}  // namespace
}  // namespace kev
