// SPDX-License-Identifier: MIT
// Which images of QR codes this run has made, and how the tools are driven for the others.
#include "app/qr_images.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/documents.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QrImagesTest : public testing::Test {
 protected:
  QrImagesTest() {
    folders_ = {root_ / "temp", root_ / "data", "/program"};
    std::filesystem::create_directory(root_ / "temp");
    images_ = std::make_unique<QrImages>(host_, folders_, document_);
    images_->OnMade([this] {
      ++made_;
      if (onMade_) onMade_();
    });
    host_.OnProgram = [this](const ProgramStart& start) { Act(start); };
  }

  // What the tools do.
  void Act(const ProgramStart& start) const {
    if (start.Program == "/program/qrcode") {
      if (writesPng_) test::WriteBytes(start.Arguments.at(0).substr(2), "png of " + start.Arguments.at(1));
    } else if (writesBitmap_ && std::filesystem::exists(start.Arguments.at(0))) {
      test::WriteBytes(start.Arguments.at(1), "bitmap");
    }
  }
  std::string Name(int row, int y = 100) const {
    return folders_.TempFolder + '\\' + std::to_string(row) + '_' + std::to_string(y) + ".bmp";
  }
  std::string File(const std::string& name) const { return root_ / ("temp/" + name); }
  bool There(const std::string& name) const { return std::filesystem::exists(File(name)); }
  static ObjectRecord Record(std::string content) {
    ObjectRecord record;
    record.Kind = ObjectKind::Qr;
    record.Content = std::move(content);
    return record;
  }
  bool IsReady(int row, const std::string& content = "text", int y = 100) {
    return images_->IsReady(row, Record(content), Name(row, y));
  }
  void Make(int row, const std::string& content = "text", int y = 100) {
    images_->Make(row, Record(content), Name(row, y));
  }
  // Programs that run end, and those that they are followed by, in their order.
  void EndAll() {
    for (std::size_t i = 0; i < host_.Programs.size(); ++i)
      if (host_.Programs[i].Ended) host_.EndProgram(host_.Programs[i].Id);
  }
  int Running() const {
    int running = 0;
    for (const auto& program : host_.Programs)
      running += program.Ended ? 1 : 0;
    return running;
  }
  std::vector<std::string> Started() const {
    std::vector<std::string> names;
    for (const auto& program : host_.Programs)
      names.push_back(program.Start.Program);
    return names;
  }

  test::TemporaryFolder root_;
  test::ScriptedHost host_;
  DesignerFolders folders_;
  Document document_;
  std::unique_ptr<QrImages> images_;
  std::function<void()> onMade_;
  int made_ = 0;
  bool writesPng_ = true, writesBitmap_ = true;
};

// --- On insertion and on an edit

TEST_F(QrImagesTest, AreMadeByBothToolsOneBehindTheOther) {
  Make(3);
  EXPECT_THAT(Started(), ElementsAre("/program/qrcode", "/program/png2bmp"));
  EXPECT_THAT(host_.Waits, ElementsAre(1, 2));
  EXPECT_THAT(host_.Programs[0].Start.Arguments, ElementsAre("-o" + File("3_100.png"), "text"));
  EXPECT_THAT(host_.Programs[1].Start.Arguments, ElementsAre(File("3_100.png"), File("3_100.bmp")));
  EXPECT_TRUE(IsReady(3));
  EXPECT_EQ(made_, 0) << "who waits paints";
}

TEST_F(QrImagesTest, GetTheTextInUtf8) {
  Make(3, "\xE9 \x80 -\"$(x)\"");
  EXPECT_EQ(host_.Programs[0].Start.Arguments.back(), "é € -\"$(x)\"");
}

TEST_F(QrImagesTest, RunNothingWhereAFileOfTheBaseNameCanBeOpened) {
  test::WriteBytes(File("3_100"), "");
  test::WriteBytes(File("3_100.png"), "another's");
  Make(3);
  EXPECT_FALSE(IsReady(3));
  EXPECT_THAT(Started(), IsEmpty());
  Make(3, "text", 200);
  EXPECT_TRUE(There("3_100.png"));
  EXPECT_TRUE(IsReady(3, "text", 200));
}

TEST_F(QrImagesTest, AreMadeOnceForTheSameTextAndPlace) {
  Make(3);
  Make(3);
  EXPECT_EQ(host_.Programs.size(), 2U);
  Make(3, "other");
  EXPECT_EQ(host_.Programs.size(), 4U);
}

TEST_F(QrImagesTest, WaitForTheSecondToolWhereTheFirstCantBeStarted) {
  host_.MissingPrograms = {"/program/qrcode"};
  Make(3);
  EXPECT_THAT(Started(), ElementsAre("/program/png2bmp"));
  EXPECT_THAT(host_.Waits, ElementsAre(1));
  EXPECT_FALSE(IsReady(3));
  host_.MissingPrograms = {"/program/qrcode", "/program/png2bmp"};
  Make(4);
  EXPECT_FALSE(IsReady(4));
  EXPECT_EQ(host_.Programs.size(), 1U);
}

TEST_F(QrImagesTest, ShowNothingOldWhereAToolFails) {
  Make(3);
  writesPng_ = false;
  Make(3, "other");
  EXPECT_FALSE(IsReady(3, "other"));
  EXPECT_FALSE(There("3_100.bmp")) << "it would show the text of before";
}

TEST_F(QrImagesTest, WaitWhereTheSameObjectsToolsRunAlready) {
  EXPECT_FALSE(IsReady(3));
  Make(3);
  EXPECT_EQ(host_.Programs.size(), 2U);
  EXPECT_TRUE(IsReady(3));
}

TEST_F(QrImagesTest, HoldAnotherTextBackUntilTheToolsHaveEnded) {
  EXPECT_FALSE(IsReady(3, "old"));
  Make(3, "new");
  ASSERT_EQ(host_.Programs.size(), 4U);
  EXPECT_EQ(host_.Programs[0].Start.Arguments.back(), "old");
  EXPECT_EQ(host_.Programs[2].Start.Arguments.back(), "new");
  EXPECT_TRUE(IsReady(3, "new"));
}

TEST_F(QrImagesTest, MayBeAskedForAgainWhileTheyAreWaitedFor) {
  bool nested = false;
  host_.OnWait = [&](ProcessId process) {
    if (process == 1 && !std::exchange(nested, true)) Make(3, "new");
  };
  Make(3, "old");
  EXPECT_EQ(host_.Programs.size(), 4U);
  EXPECT_TRUE(IsReady(3, "new"));
}

TEST_F(QrImagesTest, AreGivenUpWhereTheProgramEndsDuringTheWait) {
  host_.Hangs = true;
  Make(3);
  EXPECT_THAT(host_.Waits, ElementsAre(1));
  EXPECT_FALSE(IsReady(3));
  Make(3);
  EXPECT_EQ(host_.Programs.size(), 1U) << "the tool still runs";
}

TEST_F(QrImagesTest, EndWithTheRunDuringTheWait) {
  host_.OnWait = [this](ProcessId) { images_->End(); };
  host_.Hangs = true;
  Make(3);
  EXPECT_THAT(host_.Waits, ElementsAre(1));
  EXPECT_THAT(host_.StoppedPrograms, ElementsAre(1));
}

// --- Beside the painting

TEST_F(QrImagesTest, AreBegunByPaintingAndToldOnceWhenAllAreThere) {
  EXPECT_FALSE(IsReady(3));
  EXPECT_FALSE(IsReady(4));
  EXPECT_FALSE(IsReady(3)) << "its tool runs";
  EXPECT_EQ(host_.Programs.size(), 2U);
  EXPECT_THAT(host_.Waits, IsEmpty());
  EndAll();
  EXPECT_EQ(made_, 1);
  EXPECT_TRUE(IsReady(3));
  EXPECT_TRUE(IsReady(4));
  EXPECT_EQ(host_.Programs.size(), 4U);
}

TEST_F(QrImagesTest, OfAFullPageAreMadeAFewAtATime) {
  for (int row = 1; row <= 100; ++row)
    EXPECT_FALSE(IsReady(row));
  EXPECT_EQ(Running(), 4);
  int most = 0;
  for (std::size_t i = 0; i < host_.Programs.size(); ++i) {
    most = std::max(most, Running());
    host_.EndProgram(host_.Programs[i].Id);
  }
  EXPECT_EQ(most, 4);
  EXPECT_EQ(host_.Programs.size(), 200U);
  EXPECT_EQ(made_, 1);
  for (int row = 1; row <= 100; ++row)
    EXPECT_TRUE(IsReady(row));
}

TEST_F(QrImagesTest, MadeByAnEditDoNotWaitForThePage) {
  for (int row = 1; row <= 10; ++row)
    IsReady(row);
  Make(50);
  EXPECT_TRUE(IsReady(50));
  EXPECT_EQ(Running(), 4);
}

TEST_F(QrImagesTest, OfAnotherTextFollowTheRepaint) {
  onMade_ = [this] { IsReady(3, "new"); };
  IsReady(3, "old");
  IsReady(3, "new");
  EXPECT_EQ(host_.Programs.size(), 1U) << "held back while the tool runs";
  EndAll();
  EXPECT_EQ(made_, 2);
  EXPECT_EQ(host_.Programs.size(), 4U);
  EXPECT_TRUE(IsReady(3, "new"));
}

TEST_F(QrImagesTest, AreNotTriedAgainByPaintingWhereTheyFailed) {
  writesBitmap_ = false;
  for (const int row : {3, 4}) {
    writesPng_ = row == 4;
    onMade_ = [this, row] { EXPECT_FALSE(IsReady(row)); };
    made_ = 0;
    EXPECT_FALSE(IsReady(row));
    EndAll();
    EXPECT_EQ(made_, 1);
    EXPECT_EQ(Running(), 0);
    EXPECT_FALSE(IsReady(row));
  }
  EXPECT_EQ(host_.Programs.size(), 4U);
}

TEST_F(QrImagesTest, ThatFailedAreTriedAgainForAnotherTextOrPlaceOrByAnEdit) {
  writesPng_ = false;
  IsReady(3);
  EndAll();
  EXPECT_FALSE(IsReady(3));
  const std::size_t before = host_.Programs.size();
  Make(3);
  EXPECT_EQ(host_.Programs.size(), before + 2);
  EXPECT_FALSE(IsReady(3, "other"));
  EXPECT_EQ(host_.Programs.size(), before + 3);
  EndAll();
  EXPECT_FALSE(IsReady(3, "other", 200));
  EXPECT_EQ(host_.Programs.size(), before + 5);
}

TEST_F(QrImagesTest, WithMissingToolsAskForNoRepaint) {
  host_.MissingPrograms = {"/program/qrcode", "/program/png2bmp"};
  EXPECT_FALSE(IsReady(3));
  EXPECT_FALSE(IsReady(3));
  EXPECT_EQ(made_, 0);
  EXPECT_THAT(Started(), IsEmpty());
}

// --- Only those of this run

TEST_F(QrImagesTest, OfAnotherRunAreNotUsed) {
  test::WriteBytes(File("3_100.bmp"), "another's");
  EXPECT_FALSE(IsReady(3));
  EXPECT_EQ(host_.Programs.size(), 1U);
  EXPECT_FALSE(There("3_100.bmp"));
}

TEST_F(QrImagesTest, ThatWereTouchedSinceAreMadeAgain) {
  Make(3);
  std::filesystem::last_write_time(File("3_100.bmp"),
                                   std::filesystem::file_time_type::clock::now() + std::chrono::seconds(10));
  EXPECT_FALSE(IsReady(3));
  EndAll();
  EXPECT_TRUE(IsReady(3));
  std::filesystem::remove(File("3_100.bmp"));
  EXPECT_FALSE(IsReady(3));
  EXPECT_EQ(host_.Programs.size(), 5U);
}

TEST_F(QrImagesTest, OfAPlaceThatTheObjectHasLeftAreDeleted) {
  Make(3);
  Make(3, "text", 200);
  EXPECT_FALSE(There("3_100.png"));
  EXPECT_FALSE(There("3_100.bmp"));
  EXPECT_TRUE(There("3_200.png"));
  EXPECT_TRUE(There("3_200.bmp"));
}

// --- The end of the run

TEST_F(QrImagesTest, AreDeletedAtTheEnd) {
  Make(3);
  Make(4);
  test::WriteBytes(File("5_100.bmp"), "another's");
  images_->End();
  for (const char* name : {"3_100.png", "3_100.bmp", "4_100.png", "4_100.bmp"})
    EXPECT_FALSE(There(name)) << name;
  EXPECT_TRUE(There("5_100.bmp"));
}

TEST_F(QrImagesTest, ReplacedByAnotherRunStayAtTheEnd) {
  Make(3);
  test::WriteBytes(File("3_100.bmp"), "longer than that of this run");
  images_->End();
  EXPECT_TRUE(There("3_100.bmp"));
}

TEST_F(QrImagesTest, UnderWayAreStoppedAtTheEndAndNoOthersBegun) {
  for (int row = 1; row <= 6; ++row)
    IsReady(row);
  host_.EndProgram(1);
  images_->End();
  EXPECT_THAT(host_.StoppedPrograms, testing::UnorderedElementsAre(2, 3, 4, 5));
  EXPECT_FALSE(There("1_100.png"));
  const std::size_t before = host_.Programs.size();
  EXPECT_FALSE(IsReady(7));
  Make(8);
  EXPECT_EQ(host_.Programs.size(), before);
  EXPECT_EQ(made_, 0);
}

TEST_F(QrImagesTest, MayBeGoneWhenAToolEnds) {
  IsReady(3);
  images_.reset();
  host_.EndProgram(1);
  EXPECT_EQ(host_.Programs.size(), 1U);
}

}  // namespace
}  // namespace kev
