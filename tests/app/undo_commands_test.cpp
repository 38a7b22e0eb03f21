// SPDX-License-Identifier: MIT
// Undo, redo and the recovery file as the designer's commands make them.
#include <gmock/gmock.h>

#include <random>
#include <stdexcept>

#include "app/designer_fixture.h"
#include "base/files.h"
#include "template/writer.h"

namespace kev {
namespace {

using test::TemplateWith;
using testing::ElementsAre;
using testing::IsEmpty;

class UndoCommands : public test::DesignerTest {
 protected:
  UndoCommands() { designer_ = Start({Made("a.kev", TemplateWith("{100;}A0{\\n}\r\n"))}); }

  DesignSurface& Surface() { return designer_->Surface(); }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  ObjectRecord& Label() {
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == ObjectKind::Label) return Objects()[row];
    throw std::runtime_error("no label");
  }
  void Edit(const std::string& text) {
    EXPECT_TRUE(designer_->Guarded([&] {
      Surface().PushUndo();
      Label().Content = text;
      Surface().FullRepaint();
    }));
  }
  void PressUndo() { EXPECT_TRUE(designer_->Run(Command::Undo)); }
  void PressRedo() { EXPECT_TRUE(designer_->Run(Command::Redo)); }
  int LabelRow() {
    int row = 1;
    while (&Objects()[row] != &Label())
      ++row;
    return row;
  }
  std::string InCache() const { return *ReadWholeFile(Temp("Cache/Recovered_090530_a.kev")); }
  bool CanUndo() const { return designer_->Enabled(Command::Undo); }
  bool CanRedo() const { return designer_->Enabled(Command::Redo); }
  void BreakCache() { std::filesystem::rename(Temp("Cache"), Temp("Gone")); }
  void MendCache() { std::filesystem::rename(Temp("Gone"), Temp("Cache")); }

  std::unique_ptr<Designer> designer_;
};

TEST_F(UndoCommands, APushMarksTheDocumentAndWritesTheTableAsItStood) {
  EXPECT_FALSE(CanUndo());
  EXPECT_FALSE(CanRedo());
  EXPECT_THAT(CacheNames(), IsEmpty());
  Edit("A1");
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(host_.CaptionModified);
  EXPECT_EQ(host_.Caption, "a.kev");
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_NE(InCache().find("A0"), std::string::npos);
  EXPECT_EQ(InCache().find("A1"), std::string::npos);
  EXPECT_TRUE(CanUndo());
  EXPECT_FALSE(CanRedo());
}

TEST_F(UndoCommands, TheRecoveryFileCarriesTheCommentsThatTheOptionsAskFor) {
  Edit("A1");
  EXPECT_EQ(InCache().find("{Rem=All Default"), std::string::npos);
  designer_ = Start({Work("a.kev"), "/!!#/"});
  Edit("A1");
  // The first file is still held while the second designer starts.
  const std::string file = *ReadWholeFile(Temp("Cache/Recovered_090531_a.kev"));
  EXPECT_NE(file.find("{Rem=All Default"), std::string::npos) << file;
}

TEST_F(UndoCommands, AFreshDocumentIsProtectedUnderItsName) {
  designer_->NewTemplate();
  Surface().PushUndo();
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_Noname.kev"));
}

TEST_F(UndoCommands, UndoAndRedoStepThroughTheEdits) {
  Edit("A1");
  Edit("A2");
  PressUndo();
  EXPECT_EQ(Label().Content, "A1");
  EXPECT_TRUE(CanRedo());
  PressUndo();
  EXPECT_EQ(Label().Content, "A0");
  EXPECT_FALSE(CanUndo());
  PressUndo();
  EXPECT_EQ(Label().Content, "A0");
  PressRedo();
  EXPECT_EQ(Label().Content, "A0");
  EXPECT_TRUE(CanUndo());
  PressRedo();
  PressRedo();
  EXPECT_EQ(Label().Content, "A2");
  EXPECT_FALSE(CanRedo());
  PressRedo();
  EXPECT_EQ(Label().Content, "A2");
}

TEST_F(UndoCommands, UndoWritesWhatItKeepsAndRedoWhatItBroughtBack) {
  Edit("A1");
  designer_->Save();
  ASSERT_FALSE(designer_->Modified());
  ASSERT_THAT(CacheNames(), IsEmpty());
  PressUndo();
  EXPECT_TRUE(designer_->Modified());
  EXPECT_NE(InCache().find("A1"), std::string::npos);
  designer_->Save();
  PressRedo();
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(host_.CaptionModified);
  EXPECT_NE(InCache().find("A0"), std::string::npos);
  PressRedo();
  EXPECT_NE(InCache().find("A1"), std::string::npos);
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
}

TEST_F(UndoCommands, BehindALevelNothingIsSelected) {
  Label().Selected = kTrue;
  Edit("A1");
  for (const auto press : {Command::Undo, Command::Redo, Command::Redo}) {
    Objects().CurrentObject = 3;
    Label().Selected = kTrue;
    designer_->Run(press);
    EXPECT_EQ(Objects().CurrentObject, 0);
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      EXPECT_EQ(Objects()[row].Selected, kFalse) << row;
    EXPECT_EQ(Objects().SelectionCount, 0);
    EXPECT_FALSE(Surface().Pointer().MultiSelected);
  }
}

TEST_F(UndoCommands, TheSameTableIsPaintedAsBefore) {
  view_.Page.Lines.clear();
  Surface().FullRepaint();
  const auto before = view_.Page.Lines;
  ASSERT_FALSE(before.empty());
  Edit("quite another text");
  view_.Page.Lines.clear();
  PressUndo();
  for (const std::string& line : before)
    EXPECT_THAT(view_.Page.Lines, testing::Contains(line));
}

TEST_F(UndoCommands, AnObjectThatWasMadeGoesAndComesBackWithItsOwner) {
  Edit("A1");
  ASSERT_TRUE(designer_->Guarded([&] {
    Surface().PushUndo();
    ObjectRecord made = Label();
    made.Content = "made";
    made.AbsoluteY += 10;
    Objects()[Objects().TakeFreeRow()] = made;
    Surface().FullRepaint();
  }));
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 2);
  PressUndo();
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 1);
  PressRedo();
  PressRedo();
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 2);
}

TEST_F(UndoCommands, SettingsAreNotUndone) {
  ASSERT_TRUE(designer_->Guarded([&] {
    Surface().PushUndo();
    designer_->OpenDocument().Settings[Setting::Report_Title] = "new";
  }));
  EXPECT_TRUE(CanUndo());
  PressUndo();
  EXPECT_EQ(designer_->OpenDocument().Settings[Setting::Report_Title], "new");
}

TEST_F(UndoCommands, AChangeWithoutASnapshotMarksAndForgetsRedo) {
  Edit("A1");
  PressUndo();
  designer_->Save();
  ASSERT_TRUE(CanRedo());
  Surface().MarkChanged();
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(host_.CaptionModified);
  EXPECT_FALSE(CanRedo());
  EXPECT_THAT(CacheNames(), IsEmpty());
}

TEST_F(UndoCommands, AWorkThatFailedLeavesNoLevel) {
  Edit("A1");
  PressUndo();
  EXPECT_FALSE(designer_->Guarded([&] {
    Surface().PushUndo();
    Label().Content = "half done";
    throw std::out_of_range("too far");
  }));
  ExpectMessage(*designer_, kTextOperationFailed);
  EXPECT_EQ(Label().Content, "A0");
  EXPECT_FALSE(CanUndo());
  ASSERT_TRUE(CanRedo());
  PressRedo();
  PressRedo();
  EXPECT_EQ(Label().Content, "A1");
}

TEST_F(UndoCommands, AnotherDocumentBeginsWithoutLevels) {
  for (const bool fresh : {true, false}) {
    Edit("A1");
    PressUndo();
    PressRedo();
    if (fresh) {
      designer_->NewTemplate();
    } else {
      ASSERT_TRUE(designer_->OpenTemplate(Work("a.kev")));
    }
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(CanRedo());
    EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
    EXPECT_THAT(CacheNames(), IsEmpty());
    EXPECT_FALSE(designer_->Modified());
    ASSERT_TRUE(designer_->OpenTemplate(Work("a.kev")));
  }
}

TEST_F(UndoCommands, ARefusedFileLeavesLevelsAndRecovery) {
  Edit("A1");
  EXPECT_FALSE(designer_->OpenTemplate(Made("no.kev", "nothing")));
  host_.Messages.clear();
  EXPECT_TRUE(CanUndo());
  EXPECT_TRUE(designer_->Modified());
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
}

TEST_F(UndoCommands, ASaveDeletesTheRecoveryFileAndAFailedOneDoesNot) {
  Edit("A1");
  host_.FilesToSave.push_back(Work("none/b.kev"));
  EXPECT_FALSE(designer_->SaveAs());
  ExpectMessage(*designer_, kTextWriteFailed);
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_TRUE(designer_->Modified());
  host_.FilesToSave.push_back(Work("b.kev"));
  EXPECT_TRUE(designer_->SaveAs());
  EXPECT_THAT(CacheNames(), IsEmpty());
  Edit("A2");
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_b.kev"));
  EXPECT_TRUE(designer_->Save());
  EXPECT_THAT(CacheNames(), IsEmpty());
  EXPECT_TRUE(CanUndo());
}

TEST_F(UndoCommands, TheEndDeletesTheRecoveryFile) {
  Edit("A1");
  host_.Answers.push_back(BoxAnswer::No);
  ASSERT_TRUE(designer_->MayClose());
  designer_->ShutDown();
  EXPECT_THAT(CacheNames(), IsEmpty());
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(UndoCommands, AnEndThatAsksNobodyKeepsUnsavedWork) {
  Edit("A1");
  EXPECT_FALSE(designer_->ShutDownSilently());
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_THAT(RecoveryFilesIn(Temp("Cache")), ElementsAre("Recovered_090530_a.kev"));
}

TEST_F(UndoCommands, AnEndThatAsksNobodyKeepsTheLastChange) {
  Edit("A1");
  EXPECT_FALSE(designer_->KeepUnsaved());
  EXPECT_FALSE(designer_->ShutDownSilently());
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_NE(InCache().find("A1"), std::string::npos);
}

TEST_F(UndoCommands, AnEndThatAsksNobodyKeepsWhatIsBeingTyped) {
  Surface().PickObject(LabelRow());
  ASSERT_TRUE(Surface().KeyDown('Y', 0, "Y"));
  EXPECT_FALSE(designer_->Modified());
  EXPECT_FALSE(designer_->KeepUnsaved());
  EXPECT_FALSE(designer_->ShutDownSilently());
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
  EXPECT_NE(InCache().find("A0Y"), std::string::npos);
}

TEST_F(UndoCommands, AnEndThatAsksNobodyWritesNoDocumentThatIsHalfChanged) {
  Edit("A1");
  EXPECT_TRUE(designer_->Guarded([&] {
    Surface().PushUndo();
    Label().Content = "half";
    EXPECT_FALSE(designer_->KeepUnsaved());
  }));
  EXPECT_NE(InCache().find("A1"), std::string::npos);
  EXPECT_EQ(InCache().find("half"), std::string::npos);
}

TEST_F(UndoCommands, AnEndThatAsksNobodyWritesNothingOfWhatIsSaved) {
  EXPECT_FALSE(designer_->KeepUnsaved());
  EXPECT_THAT(CacheNames(), IsEmpty());
}

TEST_F(UndoCommands, AnEndThatAsksNobodyGivesBackWhyTheLastChangeIsLost) {
  Edit("A1");
  BreakCache();
  const std::optional<FileFailure> failure = designer_->KeepUnsaved();
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->path, Temp("Cache/Recovered_090530_a.kev"));
  EXPECT_EQ(failure->reason, "No such file or directory");
  EXPECT_THAT(host_.Messages, IsEmpty());
}

TEST_F(UndoCommands, AnEndThatAsksNobodyDeletesWhatIsSaved) {
  Edit("A1");
  designer_->Save();
  EXPECT_FALSE(designer_->ShutDownSilently());
  EXPECT_THAT(CacheNames(), IsEmpty());
}

TEST_F(UndoCommands, AFailureIsToldOncePerSeriesAndTheEditGoesOn) {
  BreakCache();
  Edit("A1");
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Detail, Temp("Cache/Recovered_090530_a.kev") + "\r\nNo such file or directory");
  ExpectMessage(*designer_, kTextWriteFailed);
  EXPECT_EQ(Label().Content, "A1");
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(host_.CaptionModified);
  Edit("A2");
  PressUndo();
  PressRedo();
  EXPECT_THAT(host_.Messages, IsEmpty());
  MendCache();
  Edit("A3");
  EXPECT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
  std::filesystem::remove(Temp("Cache/Recovered_090530_a.kev"));
  BreakCache();
  Edit("A4");
  ExpectMessage(*designer_, kTextWriteFailed);
}

TEST_F(UndoCommands, RecoveryLeavesSampleCopiesAndShowsNoSymbology) {
  test::WriteBytes(Work("data.kex"), "KEXVER=4\r\n");
  designer_->OpenDocument().Settings[Setting::Sample_Kex_file] = Work("data.kex");
  const int row = Objects().TakeFreeRow();
  Objects()[row] = Label();
  Objects()[row].Kind = ObjectKind::Barcode;
  Objects()[row].BarcodeKind = "none of these";
  test::WriteBytes(Temp("Sampledata_kept.kex"), "x");
  Edit("A1");
  PressUndo();
  EXPECT_THAT(host_.Messages, IsEmpty());
  int copies = 0;
  for (const auto& entry : std::filesystem::directory_iterator(Temp("")))
    copies += entry.path().extension() == ".kex" ? 1 : 0;
  EXPECT_EQ(copies, 1);
}

TEST_F(UndoCommands, TwoHundredRandomCommandsKeepOneWholeRecoveryFile) {
  std::mt19937 random(5);
  int edits = 0;
  for (int command = 0; command < 200; ++command) {
    switch (random() % 4) {
      case 0:
        PressUndo();
        break;
      case 1:
        PressRedo();
        break;
      default:
        Edit("A" + std::to_string(++edits));
    }
    ASSERT_LE(CacheNames().size(), 1U);
    if (!designer_->Modified()) continue;
    ASSERT_THAT(CacheNames(), ElementsAre("Recovered_090530_a.kev"));
    ASSERT_NE(InCache().find("[FOOTER]"), std::string::npos);
  }
  EXPECT_THAT(host_.Messages, IsEmpty());
  EXPECT_TRUE(designer_->Save());
  EXPECT_THAT(CacheNames(), IsEmpty());
}

}  // namespace
}  // namespace kev
