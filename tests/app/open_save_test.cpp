// SPDX-License-Identifier: MIT
#include <sys/resource.h>

#include <csignal>

#include "app/designer_fixture.h"
#include "base/files.h"
#include "chart/definition.h"

namespace kev {
namespace {

using test::CountOf;
using test::TemplateWith;

std::string Labels(int count) {
  std::string lines;
  for (int label = 1; label <= count; ++label)
    lines += "{100;}Label " + std::to_string(label) + "{\\n}\r\n";
  return lines;
}

int FirstOf(const Designer& designer, ObjectKind kind) {
  const ObjectTable& objects = designer.OpenDocument().Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    if (objects[row].Kind == kind) return row;
  }
  return 0;
}

class Opening : public test::DesignerTest {};

TEST_F(Opening, NothingOfALargerDocumentStaysBehind) {
  const auto designer = Start({Made("large.kev", TemplateWith(Labels(60)))});
  ASSERT_EQ(CountOf(*designer, ObjectKind::Label), 60);
  ASSERT_TRUE(designer->OpenTemplate(Made("small.kev", TemplateWith(Labels(55)))));
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 55);
  const ObjectTable& objects = designer->OpenDocument().Objects;
  int occupied = 0;
  for (int row = 0; row <= ObjectTable::kLastRow; ++row)
    occupied += objects[row].Kind != ObjectKind::None ? 1 : 0;
  EXPECT_EQ(occupied, 55 + 6);
}

TEST_F(Opening, AfterARefusalTheOpenDocumentStays) {
  const std::string file = Made("a.kev", TemplateWith(Labels(2)));
  const auto designer = Start({file});
  struct Case {
    std::string path;
    int text;
  };
  const Case cases[] = {{Work("none.kev"), kTextFileMissing},
                        {Work(""), kTextReadFailed},
                        {Made("plain.kev", "Hello"), kTextNotATemplate},
                        {Made("headless.kev", "[DATA]"), kTextNoHeader}};
  for (const Case& each : cases) {
    EXPECT_FALSE(designer->OpenTemplate(each.path)) << each.path;
    ExpectMessage(*designer, each.text, BoxIcon::Critical);
    EXPECT_EQ(designer->DocumentPath(), file);
    EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 2);
    EXPECT_EQ(host_.Caption, "a.kev");
  }
}

TEST_F(Opening, AFileBeyondTheLimitsGivesTheFreshDocument) {
  const auto designer = Start({Made("a.kev", TemplateWith(Labels(2)))});
  EXPECT_FALSE(designer->OpenTemplate(Made("huge.kev", TemplateWith(Labels(2100)))));
  ExpectMessage(*designer, kTextReadFailed);
  EXPECT_EQ(designer->DocumentPath(), "");
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 0);
  EXPECT_EQ(host_.ProgressBegun, host_.ProgressEnded);
}

TEST_F(Opening, ALimitIsToldInTheLanguageOfTheUser) {
  test::WriteBytes(root_ / "program/activelang", "ACTIVELANG=S\r\n");
  const auto designer = Start();
  EXPECT_FALSE(designer->OpenTemplate(Made("huge.kev", TemplateWith(Labels(2100)))));
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_TRUE(host_.Messages[0].Detail.ends_with("\r\nuna plantilla admite como m\xC3\xA1ximo 2001 objetos"))
      << host_.Messages[0].Detail;
}

TEST_F(Opening, TheUsersZoomOutlivesADocument) {
  const auto designer = Start();
  ASSERT_TRUE(designer->SetZoom("150%"));
  ASSERT_TRUE(designer->OpenTemplate(Made("a.kev", TemplateWith(Labels(1)))));
  EXPECT_EQ(designer->ZoomFactor(), 1.5);
  EXPECT_EQ(designer->OpenDocument().Objects[FirstOf(*designer, ObjectKind::Label)].FontSize, 10);
}

TEST_F(Opening, UnsavedChangesAreAskedForFirst) {
  const std::string other = Made("b.kev", TemplateWith(Labels(1)));
  const auto designer = Start();
  designer->MarkModified();
  host_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(designer->AskAndOpen(other));
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_TRUE(designer->Modified());
  host_.Answers = {BoxAnswer::No};
  EXPECT_TRUE(designer->AskAndOpen(other));
  EXPECT_EQ(designer->DocumentTitle(), "b.kev");
  EXPECT_FALSE(designer->Modified());
  // Without changes nothing is asked.
  host_.Messages.clear();
  EXPECT_TRUE(designer->AskAndOpen(other));
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Opening, ChoosingOpensWhatWasChosen) {
  const auto designer = Start();
  host_.FilesToOpen = {std::nullopt, Made("b.kev", TemplateWith(Labels(1)))};
  EXPECT_FALSE(designer->ChooseAndOpen());
  EXPECT_TRUE(designer->ChooseAndOpen());
  EXPECT_EQ(designer->DocumentTitle(), "b.kev");
}

TEST_F(Opening, NewTakesOverTheLineStep) {
  const auto designer = Start({Made("a.kev", "SPACING=300\r\n" + TemplateWith(Labels(2)))});
  EXPECT_TRUE(designer->AskAndNew());
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::Spacing], "300");
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 0);
  EXPECT_NE(ReadWholeFile(Temp("noname.kev"))->find("Spacing=600"), std::string::npos);
}

TEST_F(Opening, TheSkeletonIsReadFromMemoryWhereItCannotBeWritten) {
  std::filesystem::create_directory(Temp("noname.kev"));
  const auto designer = Start();
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(CountOf(*designer, ObjectKind::Subsection), 3);
}

TEST_F(Opening, TheGeometryIsDerivedAgainBehindThePainting) {
  const auto designer = Make();
  ASSERT_TRUE(designer->Load());
  designer->SplashLoad();
  bool grown = false;
  view_.OnRedraw = [&] {
    // Painting may change what the layout follows.
    if (!grown) designer->OpenDocument().Objects[1].EndsAt += 500;
    grown = true;
  };
  designer->AfterSplash();
  EXPECT_EQ(view_.Redrawn, 2);
  const ObjectTable& objects = designer->OpenDocument().Objects;
  EXPECT_EQ(objects[3].AbsoluteY, objects[1].AbsoluteY + 400 + objects[1].EndsAt + 200);
}

class Saving : public test::DesignerTest {};

TEST_F(Saving, WritesToThePathAndClearsTheMark) {
  const std::string file = Made("a.kev", TemplateWith(Labels(2)));
  const auto designer = Start({file});
  designer->OpenDocument().Objects[FirstOf(*designer, ObjectKind::Label)].Content = "Changed";
  designer->MarkModified();
  EXPECT_TRUE(host_.CaptionModified);
  EXPECT_TRUE(designer->Save());
  EXPECT_FALSE(designer->Modified());
  EXPECT_FALSE(host_.CaptionModified);
  EXPECT_NE(ReadWholeFile(file)->find("Changed"), std::string::npos);
  EXPECT_TRUE(designer->Findings().empty());
  EXPECT_EQ(host_.Status, "");
  EXPECT_FALSE(FileExists(file + ".tmp"));
}

TEST_F(Saving, AFreshDocumentAsksForAPlace) {
  const auto designer = Start();
  host_.FilesToSave = {std::nullopt, Work("new")};
  EXPECT_FALSE(designer->Save());
  EXPECT_TRUE(designer->Save());
  EXPECT_EQ(designer->DocumentPath(), Work("new.kev"));
  EXPECT_EQ(designer->DocumentTitle(), "new.kev");
  EXPECT_TRUE(FileExists(Work("new.kev")));
  EXPECT_EQ(host_.Choices.front().SuggestedName, "Noname.kev");
  // From now on it has one.
  EXPECT_TRUE(designer->Save());
  EXPECT_EQ(host_.Choices.size(), 2U);
}

TEST_F(Saving, ANameThatBecomesAnExistingOneIsChosenAgain) {
  const auto designer = Start();
  const std::string other = Made("other.kev", "precious");
  host_.FilesToSave = {Work("other"), std::nullopt};
  EXPECT_FALSE(designer->SaveAs());
  EXPECT_EQ(*ReadWholeFile(other), "precious");
  EXPECT_EQ(host_.Choices.back().SuggestedName, "other.kev");
}

TEST_F(Saving, AFailureIsToldAndLeavesFileAndMark) {
  const std::string file = Made("a.kev", TemplateWith(Labels(2)));
  const auto designer = Start({file});
  designer->MarkModified();
  const std::string blocked = Made("blocked", "a file, not a folder") + "/x.kev";
  host_.FilesToSave = {blocked};
  EXPECT_FALSE(designer->SaveAs());
  ExpectMessage(*designer, kTextWriteFailed);
  EXPECT_TRUE(designer->Modified());
  EXPECT_EQ(designer->DocumentPath(), file);
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 2);
  EXPECT_EQ(host_.Status, "");
}

TEST_F(Saving, WhatIsBeingTypedCountsWhereTheDocumentIsGivenUp) {
  const auto designer = Start({Made("a.kev", TemplateWith(Labels(1)))});
  const int row = FirstOf(*designer, ObjectKind::Label);
  const auto type = [&](const std::string& text) {
    designer->Surface().GoToObject(row);
    ASSERT_TRUE(designer->Surface().KeyDown('N', 0, "n"));
    designer->Surface().FieldTextChanged(text);
  };
  type("new");
  ASSERT_FALSE(designer->Modified());
  host_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(designer->MayClose());
  EXPECT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(designer->OpenDocument().Objects[row].Content, "new");
  type("newer");
  host_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(designer->AskAndNew());
  EXPECT_NE(ReadWholeFile(Work("a.kev"))->find("newer"), std::string::npos);
}

TEST_F(Saving, ACellThatIsOpenIsStoredBeforeTheQuestion) {
  const auto designer = Start();
  view_.OnCommitCell = [&] { designer->MarkModified(); };
  host_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(designer->MayClose());
}

TEST_F(Saving, AnotherZoomOrFilterStoresWhatIsBeingTyped) {
  const auto designer = Start({Made("a.kev", TemplateWith(Labels(1)))});
  const int row = FirstOf(*designer, ObjectKind::Label);
  for (const bool zoom : {true, false}) {
    designer->Surface().GoToObject(row);
    ASSERT_TRUE(designer->Surface().KeyDown('N', 0, "n"));
    designer->Surface().FieldTextChanged(zoom ? "zoomed" : "filtered");
    if (zoom)
      EXPECT_TRUE(designer->SetZoom("50"));
    else
      EXPECT_TRUE(designer->SetFilter(DisplayFilter::Print));
    EXPECT_FALSE(designer->Surface().Edit().Active());
    EXPECT_EQ(designer->OpenDocument().Objects[row].Content, zoom ? "zoomed" : "filtered");
  }
}

TEST_F(Saving, AFailedOrCancelledSaveStopsTheClose) {
  const auto designer = Start();
  designer->MarkModified();
  host_.Answers = {BoxAnswer::Yes};
  host_.FilesToSave = {std::nullopt};
  EXPECT_FALSE(designer->MayClose());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Title, "Kev Visual Editor");
  EXPECT_EQ(host_.Messages[0].Text, designer->Text(kTextSaveChanges) + " ");
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Question);
  EXPECT_EQ(host_.Messages[0].Detail, "Noname.kev");
  EXPECT_EQ(host_.Messages[0].Buttons, BoxButtons::YesNoCancel);
  host_.Answers = {BoxAnswer::Yes, BoxAnswer::Ok};
  host_.FilesToSave = {Made("blocked", "a file, not a folder") + "/x.kev"};
  EXPECT_FALSE(designer->MayClose());
  host_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(designer->MayClose());
  host_.Answers = {BoxAnswer::Yes};
  host_.FilesToSave = {Work("b.kev")};
  EXPECT_TRUE(designer->MayClose());
  EXPECT_TRUE(FileExists(Work("b.kev")));
}

TEST_F(Saving, CommentsFollowTheOptionsOfTheCommandLine) {
  const std::string file = Made("a.kev", TemplateWith(Labels(1)));
  Start({file})->Save();
  EXPECT_EQ(ReadWholeFile(file)->find("Rem="), std::string::npos);
  Start({file, "/x!!#/"})->Save();
  EXPECT_NE(ReadWholeFile(file)->find("Rem="), std::string::npos);
}

TEST_F(Saving, TheSampleDataIsCopiedForTheViewerAndGoneAfterTheRun) {
  Made("a.ked", "TEMPLATE=other.kev\r\n@Name=Jo\r\n");
  const std::string file = Made("a.kev", "Sample_Kex_file=A.KED\r\n" + TemplateWith(Labels(1)));
  const auto designer = Start({file});
  EXPECT_TRUE(designer->Save());
  EXPECT_EQ(designer->Samples().SampleCopyBase(), Temp("Sampledata9530"));
  EXPECT_EQ(test::ReadBytes(Temp("Sampledata9530.ked")), "TEMPLATE=" + file + "\r\n@Name=Jo\r\n");
  designer->ShutDown();
  EXPECT_FALSE(FileExists(Temp("Sampledata9530.ked")));
}

TEST_F(Saving, WritingElsewhereLeavesPathAndMark) {
  const std::string file = Made("a.kev", TemplateWith(Labels(1)));
  const auto designer = Start({file});
  designer->MarkModified();
  EXPECT_FALSE(designer->WriteDocument(Temp("testreport.kev")).Failure);
  EXPECT_TRUE(FileExists(Temp("testreport.kev")));
  EXPECT_TRUE(designer->Modified());
  EXPECT_EQ(designer->DocumentPath(), file);
}

TEST_F(Saving, WhatWillNotComeBackIsListedWithItsObject) {
  const std::string file = Made("a.kev", TemplateWith("{Box=100,,500,300}\r\n" + Labels(1)));
  const auto designer = Start({file});
  const int row = FirstOf(*designer, ObjectKind::Box);
  designer->OpenDocument().Objects[row].LineFlag = kTrue;  // a dashed box
  EXPECT_TRUE(designer->Save());
  ASSERT_EQ(designer->Findings().size(), 1U);
  EXPECT_EQ(designer->Findings()[0].Kind, FindingKind::ValueChanges);
  EXPECT_EQ(designer->Findings()[0].Text, "BOX LineFlag: -1 -> 0");
  EXPECT_EQ(designer->Findings()[0].Row, row);
  EXPECT_EQ(host_.Status, designer->Text(kTextSavedWithFindings));
}

TEST_F(Saving, AnObjectThatBecomesAnotherIsADifference) {
  const std::string file = Made("a.kev", TemplateWith("{100;Bar}Code{NoBar}\r\n"));
  const auto designer = Start({file});
  const int row = FirstOf(*designer, ObjectKind::Barcode);
  ASSERT_NE(row, 0);
  designer->OpenDocument().Objects[row].BarcodeKind = "32";  // has no word in a template
  EXPECT_TRUE(designer->Save());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Text, "32");
  EXPECT_EQ(host_.Status, designer->Text(kTextReadBackDiffers));
  ASSERT_FALSE(designer->Findings().empty());
  EXPECT_EQ(designer->Findings()[0].Row, row);
}

TEST_F(Saving, PicturesLeftBehindAreToldAfterAMove) {
  Made("logo.png", "picture");
  Made("other.png", "picture");
  std::filesystem::create_directory(Work("sub"));
  test::WriteBytes(Work("sub/other.png"), "picture");
  const auto designer =
      Start({Made("a.kev", TemplateWith("{Pic=logo.png,100,,300,300}\r\n{Pic=other.png,100,,300,300}\r\n"))});
  host_.FilesToSave = {Work("sub/a.kev")};
  EXPECT_TRUE(designer->SaveAs());
  ASSERT_EQ(designer->Findings().size(), 1U);
  EXPECT_EQ(designer->Findings()[0].Kind, FindingKind::MissingFile);
  EXPECT_EQ(designer->Findings()[0].Text, "logo.png");
  EXPECT_EQ(host_.Status, designer->Text(kTextRelativeFilesMissing));
}

TEST_F(Saving, DataAndChartBackgroundsLeftBehindAreToldAfterAMove) {
  Made("data.ked", "@a=1\r\n");
  Made("back.png", "picture");
  std::filesystem::create_directory(Work("sub"));
  const auto designer = Start({Made("a.kev", "Sample_Kex_file=data.ked\r\n" + TemplateWith(Labels(1)))});
  Document& document = designer->OpenDocument();
  const int row = FirstOf(*designer, ObjectKind::Label);
  document.Objects[row].Kind = ObjectKind::Chart;
  document.Objects[row].ChartValues = ChartDefinition().Values;
  document.Objects[row].ChartValues[*ChartKeyIndex("GRAPH_BACKGROUND_PICTURE")] = "back.png";
  host_.FilesToSave = {Work("sub/a.kev")};
  EXPECT_TRUE(designer->SaveAs());
  std::vector<Finding> missing = designer->Findings();
  std::erase_if(missing, [](const Finding& finding) { return finding.Kind != FindingKind::MissingFile; });
  ASSERT_EQ(missing.size(), 2U);
  EXPECT_EQ(missing[0].Text, "data.ked");
  EXPECT_EQ(missing[0].Row, 0);
  EXPECT_EQ(missing[1].Text, "back.png");
  EXPECT_EQ(missing[1].Row, row);
}

TEST_F(Saving, TheReportTellsWhyThereIsNoCopyOfTheData) {
  const std::string file = Made("a.kev", "Sample_Kex_file=gone.ked\r\n" + TemplateWith(Labels(1)));
  const auto designer = Start({file});
  const WriteReport report = designer->WriteDocument(Temp("testreport.kev"));
  EXPECT_FALSE(report.Failure);
  ASSERT_TRUE(report.SampleFailure);
  EXPECT_EQ(report.SampleFailure->path, Work("gone.ked"));
  // A save does without it.
  EXPECT_TRUE(designer->Save());
  EXPECT_TRUE(host_.Messages.empty());
  Made("gone.ked", "@a=1\r\n");
  EXPECT_FALSE(designer->WriteDocument(Temp("testreport.kev")).SampleFailure);
}

TEST_F(Saving, DataThatCantBeCopiedIsTold) {
  const std::string file = Made("a.kev", "Sample_Kex_file=data.ked\r\n" + TemplateWith(Labels(1)));
  Made("data.ked", "@a=1\r\n");
  const auto designer = Start({file});
  // Where the copy should lie stands a folder.
  std::filesystem::create_directories(Temp("Sampledata9530.ked/full"));
  EXPECT_TRUE(designer->Save());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Warning);
  EXPECT_TRUE(host_.Messages[0].Detail.starts_with(Temp("Sampledata9530.ked"))) << host_.Messages[0].Detail;
  ExpectMessage(*designer, kTextSampleNotCopied);
  EXPECT_FALSE(designer->Modified());
  std::filesystem::remove_all(Temp("Sampledata9530.ked"));
  EXPECT_TRUE(designer->Save());
  EXPECT_TRUE(host_.Messages.empty());
}

// The size limit of the process stands for a disk that is full.
TEST_F(Saving, AFullDiskLeavesTheOldFile) {
  const std::string old = TemplateWith(Labels(2));
  const std::string file = Made("a.kev", old);
  const auto designer = Start({file});
  designer->OpenDocument().Objects[FirstOf(*designer, ObjectKind::Label)].Content = std::string(20000, 'x');
  designer->MarkModified();
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit tight = before;
  tight.rlim_cur = 4096;
  ::setrlimit(RLIMIT_FSIZE, &tight);
  const bool saved = designer->Save();
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_FALSE(saved);
  ExpectMessage(*designer, kTextWriteFailed);
  EXPECT_TRUE(designer->Modified());
  EXPECT_EQ(test::ReadBytes(file), old);
  EXPECT_TRUE(designer->Save());
  EXPECT_NE(test::ReadBytes(file), old);
}

// Forms that the examples hold and that a template can't keep.
bool IsKnownLoss(const std::string& finding) {
  return finding == "BARCODE -> LABEL" ||                       // a symbology without a word
         finding.find("_format: ") != std::string::npos ||      // of a series
         finding.starts_with("LABEL Content:    \x97  @@Pag");  // blanks kept by Trim=n
}

TEST_F(Saving, EveryExampleComesBackAsThePageShowsIt) {
  for (const auto& entry : std::filesystem::directory_iterator(KEV_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".kev") continue;
    const std::string file = Made(entry.path().filename().string(), test::ReadBytes(entry.path()));
    const auto designer = Start({file});
    ASSERT_EQ(designer->DocumentPath(), file);
    EXPECT_TRUE(designer->Save());
    for (const Finding& finding : designer->Findings())
      EXPECT_TRUE(IsKnownLoss(finding.Text))
          << entry.path().filename() << ": row " << finding.Row << " " << finding.Text;
  }
}

}  // namespace
}  // namespace kev
