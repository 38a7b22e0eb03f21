// SPDX-License-Identifier: MIT
#include "app/recent_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <thread>

#include "base/files.h"
#include "base/text.h"
#include "support/run_tool.h"

namespace kev {
namespace {

using Paths = std::vector<std::string>;

class RecentFiles : public testing::Test {
 protected:
  RecentFiles() {
    std::filesystem::create_directories(home_ / "data/Kev/temp");
    folders_.DataFolder = home_ / "data/Kev";
  }
  void Add(const std::string& path) { EXPECT_EQ(AddToRecentFiles(folders_, path), std::nullopt) << path; }
  Paths Listed() const { return ReadRecentFiles(folders_); }
  std::string Bytes() const { return test::ReadBytes(home_ / "data/Kev/temp/lastfiles"); }
  void Write(const std::string& bytes) const { test::WriteBytes(home_ / "data/Kev/temp/lastfiles", bytes); }
  std::string Made(const std::string& name) const {
    test::WriteBytes(home_ / name, "");
    return home_ / name;
  }

  test::TemporaryFolder home_;
  DesignerFolders folders_;
};

TEST_F(RecentFiles, TheNewestStandsFirst) {
  EXPECT_EQ(Listed(), Paths());
  Add("/a.kev");
  Add("/b.kev");
  EXPECT_EQ(Listed(), (Paths{"/b.kev", "/a.kev"}));
  EXPECT_EQ(Bytes(), "/b.kev\r\n/a.kev\r\n");
}

TEST_F(RecentFiles, APathOpenedTwiceStandsOnceAtTheTop) {
  for (const char* path : {"/a.kev", "/b.kev", "/c.kev", "/a.kev"})
    Add(path);
  EXPECT_EQ(Listed(), (Paths{"/a.kev", "/c.kev", "/b.kev"}));
}

TEST_F(RecentFiles, TheEleventhFallsOut) {
  for (int number = 1; number <= 11; ++number)
    Add("/" + std::to_string(number) + ".kev");
  EXPECT_EQ(Listed().size(), 10U);
  EXPECT_EQ(Listed().front(), "/11.kev");
  EXPECT_EQ(Listed().back(), "/2.kev");
  EXPECT_EQ(CountLines(Bytes()), 10U);
}

TEST_F(RecentFiles, OnlyTenLinesOfAFileCountAndEmptyOnesAreDropped) {
  std::string bytes = "/0.kev\n\n/0.kev\r\n";
  for (int number = 1; number <= 12; ++number)
    bytes += "/" + std::to_string(number) + ".kev\n";
  Write(bytes);
  Add("/new.kev");
  EXPECT_EQ(Listed().front(), "/new.kev");
  EXPECT_EQ(Listed().back(), "/7.kev");
}

TEST_F(RecentFiles, PathsAreComparedAsAbsoluteOnesByteByByte) {
  Write("/a/../b.kev\n/B.kev\n");
  Add("/x/../b.kev");
  EXPECT_EQ(Listed(), (Paths{"/b.kev", "/B.kev"}));
  Add("relative.kev");
  EXPECT_EQ(Listed().front(), std::filesystem::current_path() / "relative.kev");
}

TEST_F(RecentFiles, BlanksAndAnyBytesOfANameAreKept) {
  const std::string odd = "/ my \xE9\xC3\xA9 & report .kev ";
  Add(odd);
  EXPECT_EQ(Listed(), Paths{odd});
}

TEST_F(RecentFiles, APathThatNoLineCanHoldIsNotListed) {
  Add("/a.kev");
  Add("/two\nlines.kev");
  Add("/end.kev\r");
  EXPECT_EQ(Listed(), Paths{"/a.kev"});
}

TEST_F(RecentFiles, WithoutTheFolderTheReasonIsTold) {
  std::filesystem::remove(home_ / "data/Kev/temp");
  const auto failure = AddToRecentFiles(folders_, "/a.kev");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->reason, "No such file or directory");
}

TEST_F(RecentFiles, TheListIsReplacedAsAWhole) {
  Add("/a.kev");
  // Whoever reads the old file meanwhile still has all of it.
  std::filesystem::create_hard_link(home_ / "data/Kev/temp/lastfiles", home_ / "old");
  Add("/b.kev");
  EXPECT_EQ(test::ReadBytes(home_ / "old"), "/a.kev\r\n");
}

TEST_F(RecentFiles, AListThatCannotBeReadNowIsNotReplaced) {
  Add("/a.kev");
  const std::string list = home_ / "data/Kev/temp/lastfiles";
  std::filesystem::resize_file(list, kLargestFile + 1);
  const std::optional<FileFailure> failure = AddToRecentFiles(folders_, "/b.kev");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->path, list);
  EXPECT_EQ(std::filesystem::file_size(list), kLargestFile + 1);
  std::filesystem::resize_file(list, std::string("/a.kev\r\n").size());
  EXPECT_EQ(Listed(), Paths({"/a.kev"}));
}

TEST_F(RecentFiles, SeveralRunsAtOnceLoseNothing) {
  std::vector<std::thread> runs;
  for (int run = 0; run < 5; ++run)
    runs.emplace_back([this, run] {
      for (int file = 0; file < 2; ++file)
        Add("/" + std::to_string(run) + "_" + std::to_string(file) + ".kev");
    });
  for (std::thread& run : runs)
    run.join();
  Paths listed = Listed();
  std::sort(listed.begin(), listed.end());
  EXPECT_EQ(listed.size(), 10U);
  EXPECT_EQ(std::unique(listed.begin(), listed.end()), listed.end());
}

TEST_F(RecentFiles, TheMenuHasTheFirstEightThatAreThere) {
  Paths made;
  for (int number = 1; number <= 10; ++number)
    made.push_back(Made(std::to_string(number) + ".kev"));
  for (auto path = made.rbegin(); path != made.rend(); ++path)
    Add(*path);
  EXPECT_EQ(RecentFilesThere(folders_), Paths(made.begin(), made.begin() + 8));
  std::filesystem::remove(made[1]);
  EXPECT_EQ(RecentFilesThere(folders_).size(), 8U);
  EXPECT_EQ(RecentFilesThere(folders_)[1], made[2]);
  EXPECT_EQ(RecentFilesThere(folders_)[7], made[8]);
}

TEST(RecentCaptions, HaveANumberABlankAndThePath) {
  EXPECT_EQ(RecentCaption(1, "/home/u/a.kev"), "1 /home/u/a.kev");
  EXPECT_EQ(RecentCaption(8, "/Bits & Pieces/&.kev"), "8 /Bits && Pieces/&&.kev");
}

TEST_F(RecentFiles, AThumbnailIsNamedAfterTheWholePath) {
  const std::string folder = home_ / "data/Kev/temp/";
  EXPECT_EQ(ThumbnailPath(folders_, "/home/u/a b.kev"), folder + "_home_u_a_b.kev.bmp");
  EXPECT_EQ(ThumbnailPath(folders_, "C:\\My Reports\\a.kev"), folder + "C__My_Reports_a.kev.bmp");
  EXPECT_EQ(ThumbnailPath(folders_, "/" + std::string(250, 'a')),
            folder + "_" + std::string(250, 'a') + ".bmp");
  EXPECT_EQ(ThumbnailPath(folders_, "/" + std::string(251, 'a')), std::nullopt);
}

TEST(Thumbnails, ShowTheTopOfThePageInThePapersProportion) {
  DocumentSettings settings;
  const ThumbnailLook upright = ThumbnailLookOf(settings);
  EXPECT_NEAR(upright.Height / upright.Width, 1.414, 0.01);
  EXPECT_EQ(upright.PixelHeight, 360);
  EXPECT_NEAR(upright.PixelWidth, 254, 1);
  settings[Setting::Orientation] = "2";
  const ThumbnailLook flat = ThumbnailLookOf(settings);
  EXPECT_NEAR(flat.Height / flat.Width, 0.707, 0.01);
  EXPECT_EQ(flat.PixelWidth, 360);
  settings[Setting::LM] = "500";
  EXPECT_EQ(ThumbnailLookOf(settings).Width, flat.Width + 500);
}

TEST(Thumbnails, APaperWithoutASizeIsAUsualOneAndAStripIsNoLine) {
  DocumentSettings settings;
  settings[Setting::PAPERSIZE] = kCustomPaper;
  EXPECT_NEAR(ThumbnailLookOf(settings).Height / ThumbnailLookOf(settings).Width, 1.414, 0.01);
  settings[Setting::PAGEWIDTH] = "100";
  settings[Setting::PAGELENGHT] = "800000";
  EXPECT_EQ(ThumbnailLookOf(settings).PixelWidth, 90);
  EXPECT_EQ(ThumbnailLookOf(settings).PixelHeight, 360);
}

}  // namespace
}  // namespace kev
