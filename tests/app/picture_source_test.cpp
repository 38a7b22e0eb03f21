// SPDX-License-Identifier: MIT
#include "app/picture_source.h"

#include <gtest/gtest.h>

#include "app/image_size.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

using std::string_literals::operator""s;

std::string Png(const std::string& size) {
  return "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s + size + "\x08\x02\0\0\0"s;
}

TEST(ImageSize, EachFormatTellsItsPixels) {
  const std::string files[] = {
      Png("\0\0\0\x14\0\0\0\x0A"s),
      "GIF87a\x14\0\x0A\0"s,
      "BM\0\0\0\0\0\0\0\0\0\0\0\0\x28\0\0\0\x14\0\0\0\x0A\0\0\0"s,
      "BM\0\0\0\0\0\0\0\0\0\0\0\0\x28\0\0\0\x14\0\0\0\xF6\xFF\xFF\xFF"s,
      "BM\0\0\0\0\0\0\0\0\0\0\0\0\x0C\0\0\0\x14\0\x0A\0"s,
      "\xFF\xD8\xFF\xE0\0\x04JF\xFF\xC0\0\x0B\x08\0\x0A\0\x14\x01\x01\x11\0"s,
      "<?xml version='1.0'?><svg xmlns='x' width=\"20\" height='10px'/>",
      "<svg\n stroke-width='3' width = '15pt' height=\"7.5pt\">",
  };
  for (const std::string& file : files) {
    const auto size = ImageSize(file);
    ASSERT_TRUE(size) << file;
    EXPECT_DOUBLE_EQ(size->Width, 300) << file;
    EXPECT_DOUBLE_EQ(size->Height, 150) << file;
  }
}

TEST(ImageSize, SvgUnitsAreLengthsOnPaper) {
  EXPECT_DOUBLE_EQ(ImageSize("<svg width='1in' height='2.54cm'>")->Width, 1440);
  EXPECT_DOUBLE_EQ(ImageSize("<svg width='1in' height='2.54cm'>")->Height, 1440);
  EXPECT_FALSE(ImageSize("<svg width='100%' height='100%'>"));
  EXPECT_FALSE(ImageSize("<svg viewBox='0 0 10 10'>"));
}

TEST(ImageSize, AHeadThatEndsInsideItsSizeHasNone) {
  for (const std::string& file : {Png("\0\0\0\x14\0\0\0\x0A"s).substr(0, 23), "GIF87a\x14\0\x0A"s,
                                  "BM\0\0\0\0\0\0\0\0\0\0\0\0\x28\0\0\0\x14\0\0\0\x0A\0\0"s,
                                  "BM\0\0\0\0\0\0\0\0\0\0\0\0\x0C\0\0\0\x14\0\x0A"s})
    EXPECT_FALSE(ImageSize(file)) << file.size();
}

TEST(ImageSize, DamagedFilesHaveNone) {
  for (const std::string& file :
       {""s, "x"s, "BM"s, "GIF89a"s, "\xFF\xD8\xFF"s, "\x89PNG\r\n\x1A\n"s,
        Png("\xFF\xFF\xFF\xFF\0\0\0\x01"s), Png("\0\0\0\0\0\0\0\x01"s),
        "\xFF\xD8\xFF\xE0\0\0\0\0\0\0\0\0\0\0\0\0"s, "\xFF\xD8\xFF\xE0\0\x02 not a marker at all"s,
        "BM\0\0\0\0\0\0\0\0\0\0\0\0\x28\0\0\0\xFF\xFF\xFF\xFF\0\0\0\x80"s, "<svg width='20' height="s,
        "<svg width='-20' height='10'>"s, "<svg"s, std::string(2000000, '\xFF')})
    EXPECT_FALSE(ImageSize(file)) << file.substr(0, 40);
}

TEST(ImageSize, AnyCutOfAGoodFileIsSafe) {
  for (const std::string& file :
       {Png("\0\0\0\x14\0\0\0\x0A"s), "\xFF\xD8\xFF\xE0\0\x04JF\xFF\xC0\0\x0B\x08\0\x0A\0\x14\x01\x01\x11\0"s,
        "<svg width='20' height='10'>"s}) {
    for (std::size_t length = 0; length < file.size(); ++length)
      static_cast<void>(ImageSize(file.substr(0, length)));
  }
}

class Pictures : public testing::Test {
 protected:
  Pictures() {
    for (const char* name : {"temp/Cache", "program", "work/sub"})
      std::filesystem::create_directories(root_ / name);
    folders_.TempFolder = root_ / "temp";
    folders_.ProgramFolder = root_ / "program";
    source_.SetTemplateFolder(root_ / "work");
  }

  test::TemporaryFolder root_;
  test::ScriptedHost host_;
  DesignerFolders folders_;
  FolderPictures source_{host_, folders_};
};

TEST_F(Pictures, ALocalFileKeepsItsPathAsWritten) {
  test::WriteBytes(root_ / "work/sub/Logo.gif", "GIF89a\x14\0\x0A\0"s);
  for (const char* path : {"sub/Logo.gif", "sub\\Logo.gif", "SUB\\LOGO.GIF"}) {
    const PictureAnswer answer = source_.Look(path);
    EXPECT_EQ(answer.File, path);
    ASSERT_TRUE(answer.Size) << path;
    EXPECT_EQ(answer.Size->Width, 300);
  }
  EXPECT_EQ(source_.Look(root_ / "work/sub/Logo.gif").File, root_ / "work/sub/Logo.gif");
  EXPECT_TRUE(host_.Fetches.empty());
}

TEST_F(Pictures, NamesArePutIntoTheSystemsCharacters) {
  test::WriteBytes(root_ / "work/caf\xC3\xA9.gif", "GIF89a\x14\0\x0A\0"s);
  EXPECT_EQ(source_.Look("caf\xE9.gif").File, "caf\xE9.gif");
  EXPECT_EQ(ResolvePictureFile("caf\xE9.gif", folders_, root_ / "work", CodePage::Default()),
            root_ / "work/caf\xC3\xA9.gif");
}

TEST_F(Pictures, BytesOfTheSystemGoBeforeThoseOfTheCodePage) {
  test::WriteBytes(root_ / "work/caf\xC3\xA9.gif", "GIF89a\x14\0\x0A\0"s);
  test::WriteBytes(root_ / "work/na\xEFve.gif", "GIF89a\x14\0\x0A\0"s);
  for (const char* name : {"caf\xC3\xA9.gif", "na\xEFve.gif"}) {
    EXPECT_EQ(source_.Look(name).File, name);
    EXPECT_EQ(ResolvePictureFile(name, folders_, root_ / "work", CodePage::Default()),
              root_ / (std::string("work/") + name));
  }
}

TEST_F(Pictures, NothingRelativeIsFoundWithoutAFolder) {
  const std::string before = std::filesystem::current_path();
  test::WriteBytes(root_ / "work/a.png", "x");
  std::filesystem::current_path(root_ / "work");
  EXPECT_EQ(ResolvePictureFile("a.png", {}, {}, CodePage::Default()), std::nullopt);
  EXPECT_EQ(ResolvePictureFile("\\a.png", {}, {}, CodePage::Default()), std::nullopt);
  std::filesystem::current_path(before);
}

TEST_F(Pictures, WhatIsNowhereIsMissing) {
  for (const char* path :
       {"logo.png", "", "www.example.org", "c:\\pictures\\logo.png", "@logo", "$logo", "@folder/logo.png",
        "file:///etc/passwd", "gopher://example.org/a.png", "/home/nobody/logo.png", "http://example.org/",
        "http://example.org/..", "http://example.org/Recovered_101112_a.kev"}) {
    const PictureAnswer answer = source_.Look(path);
    EXPECT_EQ(answer.File, "\\dashes.bmp") << path;
    EXPECT_FALSE(answer.Size);
  }
  EXPECT_TRUE(host_.Fetches.empty());
}

TEST_F(Pictures, ARemotePictureIsFetchedOnceIntoTheCache) {
  EXPECT_EQ(source_.Look("www.example.org/my logo.png?x=1").File, "\\Cache\\my_logo.png_x_1");
  ASSERT_EQ(host_.Fetches.size(), 1U);
  EXPECT_EQ(host_.Fetches[0].Address, "http://www.example.org/my logo.png?x=1");
  EXPECT_EQ(host_.Fetches[0].File, root_ / "temp/Cache/my_logo.png_x_1");
  EXPECT_EQ(source_.Look("www.example.org/my logo.png?x=1").File, "\\Cache\\my_logo.png_x_1");
  EXPECT_EQ(host_.Fetches.size(), 1U);
  host_.Fetches[0].Done(false);
  source_.Look("www.example.org/my logo.png?x=1");
  EXPECT_EQ(host_.Fetches.size(), 2U);
}

TEST_F(Pictures, ACachedPictureIsUsed) {
  test::WriteBytes(root_ / "temp/Cache/logo.gif", "GIF89a\x14\0\x0A\0"s);
  const PictureAnswer answer = source_.Look("https://example.org/x/logo.gif");
  EXPECT_EQ(answer.File, "\\Cache\\logo.gif");
  EXPECT_EQ(answer.Size.value_or(TextExtent{}).Height, 150);
  EXPECT_TRUE(host_.Fetches.empty());
}

// The viewer may fetch what is not fetched here: such an address can still be chosen.
TEST_F(Pictures, AnAddressIsRemoteThoughItIsNotFetched) {
  for (const char* path : {"https://example.org/x/logo.gif", "http://example.org/", "http://example.org/shop/"})
    EXPECT_TRUE(source_.Look(path).Remote) << path;
  source_.AllowRemote(false);
  const PictureAnswer answer = source_.Look("https://example.org/x/other.gif");
  EXPECT_TRUE(answer.Remote);
  EXPECT_EQ(answer.File, kMissingPicture);
  for (const char* path : {"logo.png", "", "@logo", "file:///etc/passwd", "gopher://example.org/a.png"})
    EXPECT_FALSE(source_.Look(path).Remote) << path;
}

TEST_F(Pictures, TheCacheNameHoldsPlainCharactersOnly) {
  EXPECT_EQ(CacheNameOf("http://h/a b\\c\xE9;.png"), "\\Cache\\a_b_c__.png");
  EXPECT_EQ(CacheNameOf("name-1_2.png"), "\\Cache\\name-1_2.png");
}

TEST_F(Pictures, ARecordsFileIsFoundInItsFolder) {
  test::WriteBytes(root_ / "program/dashes.bmp", "x");
  test::WriteBytes(root_ / "temp/Cache/a.png", "x");
  test::WriteBytes(root_ / "work/a.png", "x");
  const auto resolve = [&](const std::string& file) {
    return ResolvePictureFile(file, folders_, root_ / "work", CodePage::Default());
  };
  EXPECT_EQ(resolve("\\dashes.bmp"), root_ / "program/dashes.bmp");
  EXPECT_EQ(resolve("\\Cache\\a.png"), root_ / "temp/Cache/a.png");
  EXPECT_EQ(resolve("a.png"), root_ / "work/a.png");
  EXPECT_EQ(resolve(root_ / "work/a.png"), root_ / "work/a.png");
  EXPECT_EQ(resolve("\\CACHE\\A.png"), root_ / "temp/Cache/a.png");
  EXPECT_EQ(resolve("\\Dashes.BMP"), root_ / "program/dashes.bmp");
  EXPECT_EQ(resolve("b.png"), std::nullopt);
  EXPECT_EQ(resolve(""), std::nullopt);
}

}  // namespace
}  // namespace kev
