// SPDX-License-Identifier: MIT
// Two designers at once: on one template, and with the same folders.
#include <gmock/gmock.h>

#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using test::TemplateWith;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TwoPrograms : public test::DesignerTest {
 protected:
  TwoPrograms() : file_(Made("a.kev", TemplateWith("{100;}A{\\n}\r\n"))) {}

  static void Edit(Designer& designer, const std::string& text) {
    EXPECT_TRUE(designer.Guarded([&] {
      designer.Surface().PushUndo();
      ObjectTable& objects = designer.OpenDocument().Objects;
      for (int row = 1; row <= objects.LastScanned(); ++row)
        if (objects[row].Kind == ObjectKind::Label) objects[row].Content = text;
      designer.Surface().FullRepaint();
    }));
  }
  std::string OnDisk() const { return test::ReadBytes(file_); }

  std::string file_;
};

TEST_F(TwoPrograms, TheSecondIsToldThatTheTemplateIsOpen) {
  const auto first = Start({file_});
  EXPECT_THAT(host_.Messages, IsEmpty());
  const auto second = Start({file_});
  EXPECT_EQ(second->DocumentPath(), file_);
  ExpectMessage(*second, kTextOpenElsewhere);
}

TEST_F(TwoPrograms, NobodyIsToldOfAProgramThatHasGoneOrOpenedAnotherFile) {
  auto first = Start({file_});
  EXPECT_TRUE(first->OpenTemplate(Made("b.kev", TemplateWith(""))));
  const auto second = Start({file_});
  EXPECT_THAT(host_.Messages, IsEmpty());
  first.reset();
  EXPECT_TRUE(second->OpenTemplate(Work("b.kev")));
  EXPECT_TRUE(second->OpenTemplate(Work("b.kev")));
  EXPECT_THAT(host_.Messages, IsEmpty());
}

TEST_F(TwoPrograms, ASaveAsksBeforeItOverwritesWhatTheOtherHasSaved) {
  const auto first = Start({file_});
  const auto second = Start({file_});
  Edit(*first, "of the first");
  Edit(*second, "of the second");
  EXPECT_TRUE(second->Save());
  host_.Messages.clear();
  host_.Answers = {BoxAnswer::No};
  EXPECT_FALSE(first->Save());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_TRUE(host_.Messages[0].Text.starts_with(first->Text(kTextChangedElsewhere)));
  EXPECT_EQ(host_.Messages[0].Detail, file_);
  EXPECT_TRUE(host_.Messages[0].NoIsDefault);
  EXPECT_THAT(OnDisk(), HasSubstr("of the second"));
  EXPECT_TRUE(first->Modified());
  host_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(first->Save());
  EXPECT_THAT(OnDisk(), HasSubstr("of the first"));
  // What was overwritten with a yes is known from now on.
  host_.Messages.clear();
  EXPECT_TRUE(first->Save());
  EXPECT_THAT(host_.Messages, IsEmpty());
}

TEST_F(TwoPrograms, ALinkToTheOwnFileAsksAsTheFileDoes) {
  const auto first = Start({file_});
  const auto second = Start({file_});
  Edit(*second, "of the second");
  EXPECT_TRUE(second->Save());
  host_.Messages.clear();
  std::filesystem::create_symlink(file_, Work("link.kev"));
  host_.FilesToSave = {Work("link.kev"), Work("link.kev")};
  host_.Answers = {BoxAnswer::No};
  EXPECT_FALSE(first->SaveAs());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_TRUE(host_.Messages[0].Text.starts_with(first->Text(kTextChangedElsewhere)));
  EXPECT_THAT(OnDisk(), HasSubstr("of the second"));
  host_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(first->SaveAs());
  EXPECT_TRUE(std::filesystem::is_symlink(Work("link.kev")));
}

TEST_F(TwoPrograms, AFileThatHasGoneIsWrittenWithoutAQuestion) {
  const auto designer = Start({file_});
  std::filesystem::remove(file_);
  EXPECT_TRUE(designer->Save());
  EXPECT_THAT(host_.Messages, IsEmpty());
  EXPECT_TRUE(FileExists(file_));
}

TEST_F(TwoPrograms, ANewNameAsksWhereAnotherProgramHasThatTemplateOpen) {
  const auto first = Start({file_});
  const auto second = Start();
  host_.FilesToSave = {file_, file_};
  host_.Answers = {BoxAnswer::No};
  const std::string before = OnDisk();
  EXPECT_FALSE(second->SaveAs());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_TRUE(host_.Messages[0].Text.starts_with(second->Text(kTextReplaceOpenElsewhere)));
  EXPECT_EQ(OnDisk(), before);
  host_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(second->SaveAs());
  EXPECT_NE(OnDisk(), before);
}

TEST_F(TwoPrograms, BothKeepTheirRecoveryFilesAndTheirCopiesOfTheData) {
  test::WriteBytes(Work("d.ked"), "@Name=Jo\r\n");
  const std::string one = Made("1.kev", "Sample_Kex_file=d.ked\r\n" + TemplateWith("{100;}A{\\n}\r\n"));
  const std::string two = Made("2.kev", "Sample_Kex_file=d.ked\r\n" + TemplateWith("{100;}A{\\n}\r\n"));
  const auto first = Start({one});
  const auto second = Start({two});
  EXPECT_NE(first->SessionNumber(), second->SessionNumber());
  Edit(*first, "B");
  Edit(*second, "C");
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_1.kev", "Recovered_090530_2.kev"));
  EXPECT_TRUE(first->Save());
  EXPECT_TRUE(second->Save());
  EXPECT_EQ(first->Samples().SampleCopyBase(), Temp("Sampledata9530"));
  EXPECT_EQ(second->Samples().SampleCopyBase(), Temp("Sampledata9531"));
  EXPECT_THAT(test::ReadBytes(Temp("Sampledata9530.ked")), HasSubstr("1.kev"));
  EXPECT_THAT(test::ReadBytes(Temp("Sampledata9531.ked")), HasSubstr("2.kev"));
  second->ShutDown();
  EXPECT_TRUE(FileExists(Temp("Sampledata9530.ked")));
  EXPECT_FALSE(FileExists(Temp("Sampledata9531.ked")));
}

TEST_F(TwoPrograms, EachWritesOnlyTheOptionsThatItHasChanged) {
  const auto first = Start();
  const auto second = Start();
  first->Options().PropTop = 4321;
  first->Options().LastFontSize = 20;
  first->Last().Label.FontSize = 20;
  second->Options().PropLeft = 1234;
  first->ShutDown();
  second->ShutDown();
  const DesignerOptions now = LoadOptions(Data("LASTRV.DAT"));
  EXPECT_EQ(now.PropTop, 4321);
  EXPECT_EQ(now.PropLeft, 1234);
  EXPECT_EQ(now.LastFontSize, 20);
}

TEST_F(TwoPrograms, WithoutRemotePicturesNothingIsFetched) {
  const std::string remote = Made("r.kev", TemplateWith("{100;pic=http://host/p.png}{\\n}\r\n"));
  const auto with = Start({remote});
  const std::size_t fetched = host_.Fetches.size();
  EXPECT_EQ(fetched, 1U);
  test::WriteBytes(Data("KEV.INI"), "REMOTEPICTURES=N\r\n");
  const auto without = Start({remote});
  EXPECT_FALSE(without->Settings().RemotePictures);
  EXPECT_EQ(host_.Fetches.size(), fetched);
}

TEST_F(TwoPrograms, AnUnknownWordForRemotePicturesIsToldAndTheyStayAllowed) {
  test::WriteBytes(Data("KEV.INI"), "REMOTEPICTURES=perhaps\r\n");
  const UserSettings settings = LoadUserSettings(Data("KEV.INI"));
  EXPECT_TRUE(settings.RemotePictures);
  ASSERT_EQ(settings.Unknown.size(), 1U);
  EXPECT_EQ(settings.Unknown[0].Key, "REMOTEPICTURES");
}

}  // namespace
}  // namespace kev
