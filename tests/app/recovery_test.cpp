// SPDX-License-Identifier: MIT
#include "app/recovery.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <random>

#include "base/files.h"
#include "base/reasons.h"
#include "support/run_tool.h"
#include "support/template_generator.h"
#include "support/templates.h"
#include "template/writer.h"

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ClockTime kMorning{9, 5, 30};

class RecoveryTest : public testing::Test {
 protected:
  RecoveryTest() {
    std::filesystem::create_directory(folder_);
    Show("first");
  }

  void Show(const std::string& text) {
    document_ =
        test::ReadText("KEXVER=4\r\n[HEADER]\r\n[DATA]\r\n{100;}" + text + "{\\n}\r\n[FOOTER]\r\n").Read;
    DeriveGeometryOf(document_);
  }
  static void DeriveGeometryOf(Document& document) {
    WriteReport report;
    static_cast<void>(TemplateText(document, {}, report));
  }
  std::string TextNow() const {
    Document copy = document_;
    WriteReport report;
    return TemplateText(copy, {}, report);
  }
  bool Write(Recovery& recovery, const ClockTime& time = kMorning, const std::string& title = "a.kev") {
    return !recovery.Write(folder_, time, title, document_);
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string Path(const std::string& name) const { return folder_ + "/" + name; }

  test::TemporaryFolder root_;
  std::string folder_ = root_ / "Cache";
  Document document_;
};

TEST(RecoveryName, HoldsTheTimeAndTheNameOfTheDocument) {
  EXPECT_EQ(RecoveryName(kMorning, "invoice.kev"), "Recovered_090530_invoice.kev");
  EXPECT_EQ(RecoveryName({23, 59, 59}, "A.KEV"), "Recovered_235959_A.KEV");
  EXPECT_EQ(RecoveryName({0, 0, 0}, "/home/u/x.kev"), "Recovered_000000_x.kev");
}

TEST(RecoveryName, AddsTheEndingWhereThereIsNone) {
  EXPECT_EQ(RecoveryName(kMorning, "letter.txt"), "Recovered_090530_letter.txt.kev");
  EXPECT_EQ(RecoveryName(kMorning, ""), "Recovered_090530_.kev");
}

TEST(RecoveryName, ANameTooLongForAFileKeepsItsEnding) {
  std::string title;
  while (title.size() < 240)
    title += "\xC3\xA9";
  const std::string name = RecoveryName(kMorning, title + "a.kev");
  EXPECT_LE(name.size(), 255U);
  EXPECT_GE(name.size(), 253U);
  EXPECT_TRUE(name.ends_with("\xC3\xA9.kev"));
}

TEST(RecoveryName, GivesTheTitleBackBehindItsPrefixOnly) {
  for (const std::string title : {"invoice.kev", "my_own_report.kev", "_.kev", "Recovered_090530_a.kev"}) {
    const std::string name = RecoveryName(kMorning, title);
    EXPECT_EQ(name.size(), kRecoveryPrefix + title.size());
    EXPECT_EQ(RecoveredTitle(name), title);
  }
  EXPECT_EQ(RecoveredTitle("Recovered_x.kev"), "");
}

TEST_F(RecoveryTest, TheFileHoldsWhatTheWriterGives) {
  Recovery recovery;
  EXPECT_EQ(recovery.RecoveryFile(), "");
  ASSERT_TRUE(Write(recovery));
  EXPECT_EQ(recovery.RecoveryFile(), Path("Recovered_090530_a.kev"));
  EXPECT_EQ(*ReadWholeFile(recovery.RecoveryFile()), TextNow());
  EXPECT_THAT(Names(), ElementsAre("Recovered_090530_a.kev"));
}

TEST_F(RecoveryTest, OnlyTheUserMayReadIt) {
  Recovery recovery;
  ASSERT_TRUE(Write(recovery));
  struct stat status {};
  ASSERT_EQ(stat(recovery.RecoveryFile().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(RecoveryTest, WritingLeavesTheRowsAsTheyStand) {
  test::TemplateGenerator random(3);
  document_ = random.SaneDocument();
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
    if (document_.Objects[row].Kind == ObjectKind::Subsection) document_.Objects[row].AbsoluteY += 77;
    document_.Objects[row].SortKey = {7, 7, row};
  }
  std::vector<ObjectRecord> before;
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
    before.push_back(document_.Objects[row]);
  Recovery recovery;
  ASSERT_TRUE(Write(recovery));
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
    ASSERT_EQ(document_.Objects[row], before[static_cast<std::size_t>(row - 1)]) << row;
}

TEST_F(RecoveryTest, TheNewFileTakesTheOldOnesPlace) {
  Recovery recovery;
  Write(recovery);
  Show("second");
  ASSERT_TRUE(Write(recovery, {9, 6, 0}));
  EXPECT_THAT(Names(), ElementsAre("Recovered_090600_a.kev"));
  EXPECT_EQ(*ReadWholeFile(Path("Recovered_090600_a.kev")), TextNow());
}

TEST_F(RecoveryTest, TwoChangesInOneSecondKeepTheName) {
  Recovery recovery;
  Write(recovery);
  Show("second");
  ASSERT_TRUE(Write(recovery));
  EXPECT_THAT(Names(), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_EQ(*ReadWholeFile(recovery.RecoveryFile()), TextNow());
  EXPECT_THAT(RecoveryFilesIn(folder_), IsEmpty()) << "the new file is not held";
}

TEST_F(RecoveryTest, AFileThatHasGoneIsNoMatter) {
  Recovery recovery;
  Write(recovery);
  std::filesystem::remove(recovery.RecoveryFile());
  ASSERT_TRUE(Write(recovery));
  EXPECT_THAT(Names(), ElementsAre("Recovered_090530_a.kev"));
  std::filesystem::remove(recovery.RecoveryFile());
  ASSERT_TRUE(Write(recovery, {10, 0, 0}));
  EXPECT_THAT(Names(), ElementsAre("Recovered_100000_a.kev"));
}

TEST_F(RecoveryTest, ANameInUseGivesTheNextFreeSecond) {
  Recovery other;
  Write(other, {23, 59, 58});
  test::WriteBytes(Path("Recovered_235959_a.kev"), "left");
  Recovery recovery;
  Show("second");
  ASSERT_TRUE(Write(recovery, {23, 59, 58}));
  EXPECT_EQ(recovery.RecoveryFile(), Path("Recovered_000000_a.kev"));
  // The same second once more: the name that is ours stays.
  ASSERT_TRUE(Write(recovery, {23, 59, 58}));
  EXPECT_THAT(Names(),
              ElementsAre("Recovered_000000_a.kev", "Recovered_235958_a.kev", "Recovered_235959_a.kev"));
  EXPECT_EQ(*ReadWholeFile(Path("Recovered_235959_a.kev")), "left");
  EXPECT_NE(*ReadWholeFile(Path("Recovered_235958_a.kev")), TextNow());
}

TEST_F(RecoveryTest, AFailureSaysWhyAndKeepsTheOldFile) {
  Recovery recovery;
  Write(recovery);
  const auto failure = recovery.Write(root_ / "none", kMorning, "a.kev", document_);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->path, root_ / "none/Recovered_090530_a.kev");
  EXPECT_EQ(failure->reason, "No such file or directory");
  EXPECT_EQ(recovery.RecoveryFile(), Path("Recovered_090530_a.kev"));
  EXPECT_TRUE(FileExists(recovery.RecoveryFile()));
  EXPECT_THAT(RecoveryFilesIn(folder_), IsEmpty());
}

TEST_F(RecoveryTest, ADocumentThatCannotBeWrittenIsAFailureToo) {
  Recovery recovery;
  Write(recovery);
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
    if (document_.Objects[row].Kind == ObjectKind::Subsection) document_.Objects[row].EndRow = 3000;
  const auto failure = recovery.Write(folder_, {10, 0, 0}, "a.kev", document_);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->reason, kReasonTooManyObjects);
  EXPECT_THAT(Names(), ElementsAre("Recovered_090530_a.kev"));
}

TEST_F(RecoveryTest, WhatARunHoldsNobodyElseSeesOrTakes) {
  Recovery recovery;
  Write(recovery);
  const std::string file = recovery.RecoveryFile();
  EXPECT_THAT(RecoveryFilesIn(folder_), IsEmpty());
  Recovery other;
  EXPECT_FALSE(other.TakeOver(file));
  recovery.LeaveBehind();
  EXPECT_EQ(recovery.RecoveryFile(), "");
  EXPECT_THAT(RecoveryFilesIn(folder_), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_TRUE(other.TakeOver(file));
  EXPECT_THAT(RecoveryFilesIn(folder_), IsEmpty());
  other.Delete();
  EXPECT_THAT(Names(), IsEmpty());
  EXPECT_FALSE(other.TakeOver(file));
}

TEST_F(RecoveryTest, TheEndOfTheObjectLeavesTheFile) {
  {
    Recovery recovery;
    Write(recovery);
  }
  EXPECT_THAT(RecoveryFilesIn(folder_), ElementsAre("Recovered_090530_a.kev"));
}

TEST_F(RecoveryTest, ASaveToTheVeryFileDeletesNothing) {
  Recovery recovery;
  Write(recovery);
  const std::string file = recovery.RecoveryFile();
  recovery.DeleteUnlessSavedTo(root_ / "Cache/../Cache/Recovered_090530_a.kev");
  EXPECT_TRUE(FileExists(file));
  ASSERT_TRUE(recovery.TakeOver(file));
  recovery.DeleteUnlessSavedTo(root_ / "elsewhere.kev");
  EXPECT_FALSE(FileExists(file));
}

TEST_F(RecoveryTest, TheListIgnoresCaseAndTakesNothingElse) {
  for (const char* name : {"RECOVERED_1.KEV", "recovered_090530_b.kev", "Recovered_a.kev.bak",
                           "Recovered.kev", "picture.png", ".kev12-held"})
    test::WriteBytes(Path(name), "x");
  std::filesystem::create_directory(Path("Recovered_090530_folder.kev"));
  EXPECT_THAT(RecoveryFilesIn(folder_), ElementsAre("RECOVERED_1.KEV", "recovered_090530_b.kev"));
  EXPECT_THAT(RecoveryFilesIn(root_ / "none"), IsEmpty());
}

// Writes changes without end; only a signal stops it.
[[noreturn]] void WriteForever(const std::string& folder, const Document& document, int ready) {
  Recovery recovery;
  for (int second = 0;; ++second) {
    // Now and then two changes in one second.
    const int time = second - second / 7;
    static_cast<void>(
        recovery.Write(folder, {time / 3600 % 24, time / 60 % 60, time % 60}, "a.kev", document));
    if (second == 0) static_cast<void>(::write(ready, "x", 1));
  }
}

// Whenever a run is killed, whole files are there and nothing else: one, or two between the new one and the
// end of the old one.
TEST_F(RecoveryTest, AKilledRunLeavesWholeFilesOnly) {
  std::mt19937 random(11);
  const std::string expected = TextNow();
  int two = 0;
  for (int kill = 0; kill < 60; ++kill) {
    std::array<int, 2> ready{};
    ASSERT_EQ(pipe(ready.data()), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) WriteForever(folder_, document_, ready[1]);
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    usleep(static_cast<useconds_t>(random() % 9000));
    EXPECT_THAT(RecoveryFilesIn(folder_), IsEmpty());
    ::kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ready[0]);
    close(ready[1]);
    const std::vector<std::string> names = Names();
    ASSERT_GE(names.size(), 1U);
    ASSERT_LE(names.size(), 2U);
    two += names.size() == 2 ? 1 : 0;
    EXPECT_EQ(RecoveryFilesIn(folder_), names);
    for (const std::string& name : names) {
      ASSERT_EQ(*ReadWholeFile(Path(name)), expected) << name;
      std::filesystem::remove(Path(name));
    }
  }
  EXPECT_LT(two, 60);
}

}  // namespace
}  // namespace kev
