// SPDX-License-Identifier: MIT
#include "app/recover.h"

#include <gmock/gmock.h>

#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using test::CountOf;
using test::TemplateWith;
using testing::ElementsAre;
using testing::IsEmpty;

const char kFirst[] = "Recovered_090530_my_own_report.kev";
const char kSecond[] = "Recovered_101500_b.kev";

class RecoverTest : public test::DesignerTest {
 protected:
  RecoverTest() {
    Left(kFirst, "{100;}Recovered{\\n}\r\n");
    Left(kSecond, "{100;}One{\\n}\r\n{100;}Two{\\n}\r\n");
  }

  void Left(const std::string& name, const std::string& data) const {
    test::WriteBytes(Cache(name), TemplateWith(data));
  }
  std::string Cache(const std::string& name) const { return Temp("Cache/" + name); }
  RecoverDialog Listed() const { return ListRecovered(Temp("Cache")); }
  // The user recovers the file of this place in the list, and gives it this place (or none).
  std::unique_ptr<Designer> StartRecovering(int index, std::optional<std::string> place,
                                            std::vector<std::string> arguments = {}) {
    view_.OnRecover = [index](RecoverDialog& dialog) {
      SelectRecovered(dialog, index);
      EXPECT_TRUE(Recover(dialog));
    };
    host_.FilesToSave = {std::move(place)};
    return Start(std::move(arguments));
  }
};

// --- The form's own work
// ------------------------------------------------------------------------------------

TEST_F(RecoverTest, TwoCrashedRunsAreListedBoth) {
  const RecoverDialog dialog = Listed();
  EXPECT_THAT(dialog.Files, ElementsAre(kFirst, kSecond));
  EXPECT_FALSE(dialog.ActionsShown());
  EXPECT_FALSE(dialog.Recovering);
}

TEST_F(RecoverTest, ASelectionShowsTheActions) {
  RecoverDialog dialog = Listed();
  SelectRecovered(dialog, 1);
  EXPECT_TRUE(dialog.ActionsShown());
  for (const int nothing : {-1, 2}) {
    SelectRecovered(dialog, nothing);
    EXPECT_FALSE(dialog.ActionsShown());
  }
}

TEST_F(RecoverTest, RecoverChoosesAndCutsTheNameAtSeventeenCharacters) {
  RecoverDialog dialog = Listed();
  EXPECT_FALSE(Recover(dialog));
  SelectRecovered(dialog, 0);
  ASSERT_TRUE(Recover(dialog));
  EXPECT_TRUE(dialog.Recovering);
  EXPECT_EQ(dialog.RecoveredTarget, Cache(kFirst));
  EXPECT_EQ(dialog.DocumentTitle, "my_own_report.kev");
  EXPECT_THAT(Listed().Files, ElementsAre(kSecond)) << "the chosen file is not held";
}

TEST_F(RecoverTest, WhatAnotherRunTookIsOnlyNoLongerListed) {
  RecoverDialog dialog = Listed();
  SelectRecovered(dialog, 0);
  Recovery other;
  ASSERT_TRUE(other.TakeOver(Cache(kFirst)));
  EXPECT_FALSE(Recover(dialog));
  EXPECT_FALSE(dialog.Recovering);
  EXPECT_FALSE(dialog.ActionsShown());
  EXPECT_THAT(dialog.Files, ElementsAre(kSecond));
  EXPECT_TRUE(FileExists(Cache(kFirst)));
}

TEST_F(RecoverTest, DeleteAsksNothingAndHidesTheActions) {
  RecoverDialog dialog = Listed();
  DeleteRecovered(dialog);
  EXPECT_THAT(CacheNames(), ElementsAre(kFirst, kSecond));
  SelectRecovered(dialog, 0);
  DeleteRecovered(dialog);
  EXPECT_THAT(host_.Messages, IsEmpty());
  EXPECT_FALSE(dialog.ActionsShown());
  EXPECT_THAT(dialog.Files, ElementsAre(kSecond));
  EXPECT_THAT(CacheNames(), ElementsAre(kSecond));
}

TEST_F(RecoverTest, DeleteAllAsksAndPassesOverWhatIsHeld) {
  const auto designer = Make();
  ASSERT_TRUE(designer->Load());
  RecoverDialog dialog = Listed();
  SelectRecovered(dialog, 0);
  host_.Answers = {BoxAnswer::No, BoxAnswer::Yes};
  DeleteAllRecovered(dialog, host_, designer->Texts());
  EXPECT_THAT(CacheNames(), ElementsAre(kFirst, kSecond));
  EXPECT_TRUE(dialog.ActionsShown());
  EXPECT_EQ(host_.Messages[0].Buttons, BoxButtons::YesNo);
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Question);
  ExpectMessage(*designer, kTextDeleteAllRecovered);
  Recovery other;
  ASSERT_TRUE(other.TakeOver(Cache(kSecond)));
  test::WriteBytes(Cache("picture.png"), "x");
  DeleteAllRecovered(dialog, host_, designer->Texts());
  EXPECT_THAT(CacheNames(), ElementsAre(kSecond, "picture.png"));
  EXPECT_THAT(dialog.Files, IsEmpty());
  EXPECT_FALSE(dialog.ActionsShown());
}

// --- The start
// ----------------------------------------------------------------------------------------------

TEST_F(RecoverTest, WithoutFilesNothingIsAsked) {
  std::filesystem::remove(Cache(kFirst));
  std::filesystem::remove(Cache(kSecond));
  Start();
  EXPECT_EQ(view_.RecoverDialogs, 0);
}

TEST_F(RecoverTest, FilesOfARunningProgramAreNotOffered) {
  std::filesystem::remove(Cache(kSecond));
  Recovery running;
  ASSERT_TRUE(running.TakeOver(Cache(kFirst)));
  Start();
  EXPECT_EQ(view_.RecoverDialogs, 0);
}

TEST_F(RecoverTest, WhoGoesOnWithoutGetsTheTemplateOfTheCommandLine) {
  const auto designer = Start({Made("a.kev", TemplateWith(""))});
  EXPECT_EQ(view_.RecoverDialogs, 1);
  EXPECT_EQ(designer->DocumentTitle(), "a.kev");
  EXPECT_THAT(host_.Choices, IsEmpty());
  EXPECT_THAT(CacheNames(), ElementsAre(kFirst, kSecond));
}

TEST_F(RecoverTest, ARecoveredFileMovesToItsPlaceAndWinsOverTheCommandLine) {
  const auto designer = StartRecovering(0, Work("saved.kev"), {Made("a.kev", TemplateWith(""))});
  ASSERT_EQ(host_.Choices.size(), 1U);
  EXPECT_EQ(host_.Choices[0].SuggestedName, "my_own_report.kev");
  EXPECT_EQ(host_.Choices[0].Title, designer->Text(kTextRecoverSaveAs));
  EXPECT_EQ(host_.Choices[0].Filters.at(0).second, "*.kev *.KEV");
  EXPECT_EQ(designer->DocumentPath(), Work("saved.kev"));
  EXPECT_EQ(designer->DocumentTitle(), "saved.kev");
  EXPECT_EQ(host_.Caption, "saved.kev");
  EXPECT_FALSE(designer->Modified());
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 1);
  EXPECT_EQ(*ReadWholeFile(Work("saved.kev")), TemplateWith("{100;}Recovered{\\n}\r\n"));
  EXPECT_THAT(CacheNames(), ElementsAre(kSecond)) << "one file is recovered in a start";
  EXPECT_EQ(view_.RecoverDialogs, 1);
}

TEST_F(RecoverTest, TheChosenNameGetsTheEnding) {
  const auto designer = StartRecovering(0, Work("saved"));
  EXPECT_EQ(designer->DocumentPath(), Work("saved.kev"));
}

TEST_F(RecoverTest, WithoutAPlaceTheFileOpensFromTheCache) {
  for (const auto& answer :
       {std::optional<std::string>(), std::optional(Work("*.kev")), std::optional(Cache(kFirst))}) {
    const auto designer = StartRecovering(0, answer, {Made("a.kev", TemplateWith(""))});
    EXPECT_EQ(designer->DocumentPath(), "");
    EXPECT_EQ(designer->DocumentTitle(), "my_own_report.kev");
    EXPECT_TRUE(designer->Modified());
    EXPECT_EQ(host_.Caption, "my_own_report.kev");
    EXPECT_TRUE(host_.CaptionModified);
    EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 1);
    EXPECT_THAT(CacheNames(), ElementsAre(kFirst, kSecond));
    EXPECT_THAT(Listed().Files, ElementsAre(kSecond)) << "what is open is not held";
  }
}

TEST_F(RecoverTest, TheReadFromTheCacheShowsHowFarItHasCome) {
  const auto designer = StartRecovering(1, std::nullopt);
  EXPECT_EQ(host_.ProgressBegun, 1);
  EXPECT_EQ(host_.ProgressEnded, 1);
  EXPECT_TRUE(host_.ProgressTexts.contains(designer->Text(kTextStatusReading)));
  EXPECT_TRUE(host_.ProgressTexts.contains("4 " + designer->Text(kTextStatusReadingObject) + ": label"));
}

TEST_F(RecoverTest, APlaceThatCannotBeWrittenIsToldAndTheFileOpensFromTheCache) {
  const auto designer = StartRecovering(0, Work("none/saved.kev"));
  ExpectMessage(*designer, kTextWriteFailed);
  EXPECT_EQ(designer->DocumentPath(), "");
  EXPECT_TRUE(designer->Modified());
  EXPECT_TRUE(FileExists(Cache(kFirst)));
}

TEST_F(RecoverTest, TheFileInTheCacheStaysUntilItIsSaved) {
  const auto designer = StartRecovering(0, std::nullopt);
  designer->Surface().PushUndo();
  EXPECT_THAT(CacheNames(), ElementsAre(kFirst, "Recovered_090531_my_own_report.kev", kSecond));
  host_.FilesToSave = {std::nullopt, Work("none/x.kev"), Work("x.kev")};
  EXPECT_FALSE(designer->Save());
  EXPECT_FALSE(designer->Save());
  host_.Messages.clear();
  EXPECT_TRUE(FileExists(Cache(kFirst)));
  EXPECT_TRUE(designer->Save());
  EXPECT_EQ(designer->DocumentPath(), Work("x.kev"));
  EXPECT_THAT(CacheNames(), ElementsAre(kSecond));
}

TEST_F(RecoverTest, ASaveOverTheFileInTheCacheKeepsIt) {
  const auto designer = StartRecovering(0, std::nullopt);
  host_.FilesToSave = {Cache(kFirst)};
  EXPECT_TRUE(designer->Save());
  EXPECT_THAT(CacheNames(), ElementsAre(kFirst, kSecond));
}

TEST_F(RecoverTest, TheEndAndAnotherDocumentLeaveTheFileInTheCache) {
  auto designer = StartRecovering(0, std::nullopt);
  designer->NewTemplate();
  EXPECT_THAT(Listed().Files, ElementsAre(kFirst, kSecond));
  designer = StartRecovering(0, std::nullopt);
  designer->Surface().PushUndo();
  designer->ShutDown();
  EXPECT_THAT(Listed().Files, ElementsAre(kFirst, kSecond));
}

TEST_F(RecoverTest, AnEndThatAsksNobodyMakesNoSecondFileOfWhatLiesInTheCache) {
  const auto designer = StartRecovering(0, std::nullopt);
  EXPECT_FALSE(designer->KeepUnsaved());
  EXPECT_FALSE(designer->ShutDownSilently());
  EXPECT_THAT(Listed().Files, ElementsAre(kFirst, kSecond));
}

TEST_F(RecoverTest, AnEndThatAsksNobodyKeepsWhatWasChangedInAFileOfTheCache) {
  const auto designer = StartRecovering(0, std::nullopt);
  EXPECT_TRUE(designer->Guarded([&] {
    designer->Surface().PushUndo();
    ObjectTable& objects = designer->OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == ObjectKind::Label) objects[row].Content = "Later";
  }));
  EXPECT_FALSE(designer->KeepUnsaved());
  EXPECT_FALSE(designer->ShutDownSilently());
  EXPECT_EQ(Listed().Files.size(), 3U);
  EXPECT_EQ(test::ReadBytes(Cache(kFirst)).find("Later"), std::string::npos);
  const std::string later = test::ReadBytes(Cache("Recovered_090531_my_own_report.kev"));
  EXPECT_NE(later.find("Later"), std::string::npos);
}

TEST_F(RecoverTest, AFileThatIsNoTemplateIsToldAndTheStartGoesOn) {
  test::WriteBytes(Cache(kFirst), "rubbish");
  for (const auto& answer : {std::optional<std::string>(), std::optional(Work("saved.kev"))}) {
    const auto designer = StartRecovering(0, answer, {Made("a.kev", TemplateWith(""))});
    ExpectMessage(*designer, kTextNotATemplate);
    EXPECT_EQ(designer->DocumentTitle(), "a.kev");
    EXPECT_THAT(CacheNames(), ElementsAre(kFirst, kSecond));
  }
}

TEST_F(RecoverTest, AFileWithoutANameIsTheFreshOnes) {
  Left("Recovered_1.kev", "");
  const auto designer = StartRecovering(1, std::nullopt);
  EXPECT_EQ(designer->DocumentTitle(), kFreshTitle);
}

TEST_F(RecoverTest, ACrashedRunIsOfferedWithTheTimeOfItsLastChange) {
  std::filesystem::remove(Cache(kFirst));
  std::filesystem::remove(Cache(kSecond));
  auto designer = Start({Made("a.kev", TemplateWith("{100;}Text{\\n}\r\n"))});
  designer->Surface().PushUndo();
  designer->Surface().PushUndo();
  designer.reset();
  std::vector<std::string> offered;
  view_.OnRecover = [&](RecoverDialog& dialog) { offered = dialog.Files; };
  Start();
  EXPECT_THAT(offered, ElementsAre("Recovered_090530_a.kev"));
}

}  // namespace
}  // namespace kev
