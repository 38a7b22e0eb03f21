// SPDX-License-Identifier: MIT
// What opening, saving, the file menu, the welcome screen and the facts about the document do.
#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using test::TemplateWith;
using Paths = std::vector<std::string>;

class Recent : public test::DesignerTest {
 protected:
  std::string Template(const std::string& name) { return Made(name, TemplateWith("{100;}A{\\n}\r\n")); }
  std::string Listed() const { return test::ReadBytes(Data("temp/lastfiles")); }
  std::string Thumbnail(const Designer& designer, const std::string& path) const {
    return *ThumbnailPath(designer.Folders(), path);
  }
};

// --- The list
// -----------------------------------------------------------------------------------------------

TEST_F(Recent, EachOpenAndSavePutsThePathAtTheTop) {
  const std::string first = Template("a.kev"), second = Template("b.kev"), third = Work("c.kev");
  const auto designer = Start({first});
  EXPECT_EQ(Listed(), first + "\r\n");
  ASSERT_TRUE(designer->OpenTemplate(second));
  EXPECT_EQ(Listed(), second + "\r\n" + first + "\r\n");
  host_.FilesToSave = {third};
  ASSERT_TRUE(designer->SaveAs());
  EXPECT_EQ(designer->RecentShown(), (Paths{third, second, first}));
  EXPECT_EQ(view_.RecentCaptions, (Paths{"1 " + third, "2 " + second, "3 " + first}));
  ASSERT_TRUE(designer->OpenTemplate(first));
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(designer->RecentShown(), (Paths{first, third, second}));
}

TEST_F(Recent, ADocumentWithoutAFileIsNeverListed) {
  const auto designer = Start();
  designer->NewTemplate();
  ASSERT_TRUE(designer->OpenFresh(TemplateWith("")));
  designer->WriteDocument(Work("handed over.kev"));
  EXPECT_FALSE(FileExists(Data("temp/lastfiles")));
  EXPECT_TRUE(designer->RecentShown().empty());
  EXPECT_TRUE(view_.Thumbnails.empty());
}

TEST_F(Recent, WhatIsOpenedFromTheCacheIsNotListedBeforeItIsSaved) {
  test::WriteBytes(Temp("Cache/Recovered_090530_lost.kev"), TemplateWith(""));
  view_.OnRecover = [](RecoverDialog& dialog) {
    SelectRecovered(dialog, 0);
    Recover(dialog);
  };
  const auto designer = Start();
  ASSERT_EQ(designer->DocumentTitle(), "lost.kev");
  EXPECT_FALSE(FileExists(Data("temp/lastfiles")));
  EXPECT_EQ(view_.Welcomes, 0);
  host_.FilesToSave = {Work("lost.kev")};
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(Listed(), Work("lost.kev") + "\r\n");
}

TEST_F(Recent, ARefusedFileIsNotListed) {
  const auto designer = Start();
  EXPECT_FALSE(designer->OpenTemplate(Made("plain.kev", "Hello")));
  EXPECT_FALSE(designer->OpenTemplate(Work("none.kev")));
  EXPECT_FALSE(FileExists(Data("temp/lastfiles")));
}

TEST_F(Recent, TheStartShowsTheMenuOfEarlierRuns) {
  const std::string file = Template("a & b.kev");
  test::WriteBytes(Data("temp/lastfiles"), "/gone.kev\r\n" + file + "\r\n");
  const auto designer = Start();
  EXPECT_EQ(view_.RecentCaptions, Paths{"1 " + Work("a && b.kev")});
}

TEST_F(Recent, AListThatCannotBeStoredIsToldAndTheDocumentIsOpenAllTheSame) {
  std::filesystem::create_directory(Data("temp/lastfiles"));
  const auto designer = Start({Template("a.kev")});
  EXPECT_EQ(designer->DocumentTitle(), "a.kev");
  EXPECT_TRUE(host_.Status.starts_with(designer->Text(kTextRecentNotStored)));
  EXPECT_EQ(host_.StatusDetail, Data("temp/lastfiles") + ": Is a directory");
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Recent, AMissingFolderWasToldAtTheStart) {
  std::filesystem::remove(Data("temp"));
  const auto designer = Start({Template("a.kev")});
  ExpectMessage(*designer, kTextFolderMissing);
  EXPECT_EQ(designer->DocumentTitle(), "a.kev");
  EXPECT_FALSE(host_.Status.starts_with(designer->Text(kTextRecentNotStored)));
}

// --- Thumbnails
// ---------------------------------------------------------------------------------------------

TEST_F(Recent, EachOpenAndSaveTakesAPicture) {
  const std::string file = Template("a b.kev");
  const auto designer = Start({file});
  EXPECT_EQ(test::ReadBytes(Thumbnail(*designer, file)), "a bitmap");
  EXPECT_TRUE(Thumbnail(*designer, file).ends_with("_work_a_b.kev.bmp"));
  view_.Bitmap = "another";
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(test::ReadBytes(Thumbnail(*designer, file)), "another");
  ASSERT_EQ(view_.Thumbnails.size(), 2U);
  EXPECT_EQ(view_.Thumbnails[0], ThumbnailLookOf(designer->OpenDocument().Settings));
}

TEST_F(Recent, TheLookOfAThumbnailDoesNotFollowTheZoom) {
  const std::string file = Template("a.kev");
  const auto designer = Start({file});
  designer->SetZoom("200");
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(view_.Thumbnails[0], view_.Thumbnails[1]);
}

TEST_F(Recent, WhereNoPictureCanBeHadNoneIsStored) {
  view_.Bitmap.clear();
  const std::string file = Template("a.kev");
  const auto designer = Start({file});
  EXPECT_FALSE(FileExists(Thumbnail(*designer, file)));
  EXPECT_EQ(designer->RecentShown(), Paths{file});
}

// --- The menu
// -----------------------------------------------------------------------------------------------

TEST_F(Recent, AnEntryOpensItsFileBehindTheQuestion) {
  const std::string first = Template("a.kev"), second = Template("b.kev");
  const auto designer = Start({first});
  ASSERT_TRUE(designer->OpenTemplate(second));
  designer->MarkModified();
  host_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(designer->OpenRecent(1));
  EXPECT_EQ(designer->DocumentPath(), second);
  host_.Answers = {BoxAnswer::No};
  EXPECT_TRUE(designer->OpenRecent(1));
  EXPECT_EQ(designer->DocumentPath(), first);
  EXPECT_EQ(designer->RecentShown(), (Paths{first, second}));
  EXPECT_FALSE(designer->OpenRecent(2));
}

TEST_F(Recent, AFileThatHasGoneIsToldAndLeavesTheMenu) {
  const std::string first = Template("a.kev"), second = Template("b.kev");
  const auto designer = Start({first});
  ASSERT_TRUE(designer->OpenTemplate(second));
  std::filesystem::remove(first);
  EXPECT_FALSE(designer->OpenRecent(1));
  ExpectMessage(*designer, kTextFileMissing, BoxIcon::Critical);
  EXPECT_EQ(designer->DocumentPath(), second);
  EXPECT_EQ(view_.RecentCaptions, Paths{"1 " + second});
}

TEST_F(Recent, SixtyObjectsLeaveNothingBehindAFileOfFiftyFive) {
  const auto labels = [](int count) {
    std::string lines;
    for (int label = 0; label < count; ++label)
      lines += "{100;}L{\\n}\r\n";
    return TemplateWith(lines);
  };
  const std::string small = Made("small.kev", labels(55));
  const auto designer = Start({small});
  ASSERT_TRUE(designer->OpenTemplate(Made("large.kev", labels(60))));
  ASSERT_EQ(test::CountOf(*designer, ObjectKind::Label), 60);
  ASSERT_TRUE(designer->OpenRecent(1));
  EXPECT_EQ(test::CountOf(*designer, ObjectKind::Label), 55);
}

// --- The welcome screen
// -------------------------------------------------------------------------------------

class Welcome : public Recent {
 protected:
  void Earlier(const Paths& files) {
    std::string lines;
    for (const std::string& file : files)
      lines += file + "\r\n";
    test::WriteBytes(Data("temp/lastfiles"), lines);
  }
};

TEST_F(Welcome, IsShownOverAFreshDocumentWhereTheOptionSaysSo) {
  EXPECT_EQ(Start()->DocumentTitle(), "Noname.kev");
  EXPECT_EQ(view_.Welcomes, 1);
  Start({Template("a.kev")});
  EXPECT_EQ(view_.Welcomes, 1);
  test::WriteBytes(Data("LASTRV.DAT"), "SHOWWELCOME=0\r\n");
  Start();
  EXPECT_EQ(view_.Welcomes, 1);
}

TEST_F(Welcome, IsShownBehindARefusalToo) {
  Start({Work("none.kev")});
  EXPECT_EQ(view_.Welcomes, 1);
}

TEST_F(Welcome, OffersTheFilesThatAreThere) {
  Paths files;
  for (int number = 1; number <= 10; ++number)
    files.push_back(Template(std::to_string(number) + ".kev"));
  files[1] = Work("gone.kev");
  std::filesystem::remove(Work("2.kev"));
  Earlier(files);
  view_.OnWelcome = [&](WelcomeRun& run) {
    EXPECT_EQ(run.Files().size(), 8U);
    EXPECT_EQ(run.Files()[0], files[0]);
    EXPECT_EQ(run.Files()[1], files[2]);
  };
  Start();
  EXPECT_EQ(view_.Welcomes, 1);
}

TEST_F(Welcome, OpensTheChosenFileOnceItHasClosed) {
  Earlier({Template("a.kev"), Template("b.kev")});
  Designer* made = nullptr;
  view_.OnWelcome = [&](WelcomeRun& run) {
    EXPECT_FALSE(run.Open());
    run.Choose(7);
    EXPECT_EQ(run.Chosen(), -1);
    EXPECT_FALSE(run.CanOpen());
    run.Choose(1);
    EXPECT_TRUE(run.Open());
    EXPECT_EQ(made->DocumentTitle(), "Noname.kev");
  };
  const auto designer = Make();
  made = designer.get();
  ASSERT_TRUE(designer->Load());
  designer->SplashLoad();
  designer->AfterSplash();
  EXPECT_EQ(designer->DocumentPath(), Work("b.kev"));
}

TEST_F(Welcome, ItsFixedEntriesRunTheAssistantAndOpen) {
  view_.OnWelcome = [](WelcomeRun& run) { EXPECT_TRUE(run.OpenOther()); };
  host_.FilesToOpen = {Template("a.kev")};
  EXPECT_EQ(Start()->DocumentTitle(), "a.kev");
  view_.OnWelcome = [](WelcomeRun& run) { EXPECT_TRUE(run.New()); };
  EXPECT_EQ(Start()->DocumentTitle(), "Noname.kev");
  EXPECT_EQ(view_.Assistants, 1);
}

TEST_F(Welcome, ClosedItChangesNothing) {
  Earlier({Template("a.kev")});
  view_.OnWelcome = [](WelcomeRun& run) { run.Choose(0); };
  EXPECT_EQ(Start()->DocumentTitle(), "Noname.kev");
}

TEST_F(Welcome, TheTickStoresZero) {
  view_.OnWelcome = [](WelcomeRun& run) {
    EXPECT_FALSE(run.NotAgain());
    run.SetNotAgain(true);
    EXPECT_TRUE(run.NotAgain());
  };
  Start()->ShutDown();
  EXPECT_EQ(ReadKey(Data("LASTRV.DAT"), "SHOWWELCOME"), "0");
  Start();
  EXPECT_EQ(view_.Welcomes, 1);
  const auto designer = Start();
  view_.OnWelcome = [](WelcomeRun& run) { run.SetNotAgain(false); };
  designer->ShowWelcome();
  designer->ShutDown();
  EXPECT_EQ(ReadKey(Data("LASTRV.DAT"), "SHOWWELCOME"), "1");
}

TEST_F(Welcome, ShowsThePictureOfTheChosenFileWithTheViewer) {
  const std::string file = Template("a.kev");
  Earlier({file, Template("b.kev")});
  const std::string picture = Data("temp/") + [&] {
    std::string name = file + ".bmp";
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
  }();
  test::WriteBytes(picture, "picture");
  view_.OnWelcome = [&](WelcomeRun& run) {
    EXPECT_EQ(run.Thumbnail(0), picture);
    EXPECT_EQ(run.Thumbnail(1), "");
    EXPECT_EQ(run.Thumbnail(-1), "");
    run.Choose(1);
    EXPECT_FALSE(run.CanPreview());
    run.Preview();
    EXPECT_TRUE(host_.Programs.empty());
    run.Choose(0);
    EXPECT_TRUE(run.CanPreview());
    run.Preview();
    ASSERT_EQ(host_.Programs.size(), 1U);
    EXPECT_EQ(host_.Programs[0].Start.Program, root_ / "program/viewpics");
    EXPECT_EQ(host_.Programs[0].Start.Arguments, Paths{picture});
    host_.MissingPrograms = {root_ / "program/viewpics"};
    run.Preview();
  };
  const auto designer = Start();
  ASSERT_EQ(view_.Welcomes, 1);
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Detail, root_ / "program/viewpics");
  ExpectMessage(*designer, kTextProgramNotStarted);
}

// --- Facts about the document
// -------------------------------------------------------------------------------

class DocumentFactsTest : public Recent {
 protected:
  const std::string kFile = Made("a.kev",
                                 "EBEU=Y\r\nEBEUBY=Miller\r\nReport_Title=Invoice\r\nKEXVER=4\r\n[ABOVE]\r\n"
                                 "[HEADER]\r\n{100;}A{\\n}\r\n[ITEMS]\r\n{100;}B{\\n}\r\n"
                                 "[DATA]\r\n{100;}C{\\n}\r\n[FOOTER]\r\n");
  void Ask(Designer& designer, std::function<void(DocumentPropertiesRun&)> user) {
    view_.OnDocumentProperties = std::move(user);
    designer.ShowDocumentProperties();
  }
};

TEST_F(DocumentFactsTest, TellWhatTheDocumentIs) {
  const auto designer = Start({kFile});
  int asked = 0;
  Ask(*designer, [&](DocumentPropertiesRun& run) {
    ++asked;
    EXPECT_EQ(run.Facts().ReportTitle, "Invoice");
    EXPECT_EQ(run.Facts().File, kFile);
    EXPECT_EQ(run.Facts().FileFormat, "1");
    EXPECT_EQ(run.FormatText(), kTextFilesPlain);
    EXPECT_EQ(run.Facts().Editable, "Y");
    EXPECT_EQ(run.Facts().EditableBy, "Miller");
    EXPECT_EQ(run.Facts().Objects, test::CountOf(*designer, ObjectKind::Label));
    EXPECT_GE(run.Facts().Objects, 3);
  });
  EXPECT_EQ(asked, 1);
}

TEST_F(DocumentFactsTest, CountObjectsWithoutBandsAndSubsectionsWithTheConfiguration) {
  Document document;
  int row = 0;
  const auto add = [&](ObjectKind kind, const char* title) {
    document.Objects[++row].Kind = kind;
    document.Objects[row].SectionTitle = title;
  };
  for (const char* title : {"[HEADER]", "[DATA]", "[data]", "[FOOTER]"})
    add(ObjectKind::Subsection, title);
  EXPECT_EQ(FactsOf(document).Subsections, 0);
  add(ObjectKind::Subsection, "[CONFIGURATION]");
  add(ObjectKind::Subsection, "[DATA] [ITEMS]");
  add(ObjectKind::EndOfSubsection, "");
  add(ObjectKind::Section, "[DATA]");
  EXPECT_EQ(FactsOf(document).Objects, 0);
  add(ObjectKind::Label, "");
  add(ObjectKind::Command, "");
  EXPECT_EQ(FactsOf(document).Subsections, 2);
  EXPECT_EQ(FactsOf(document).Objects, 2);
}

TEST_F(DocumentFactsTest, AFreshDocumentHasItsNameForAFile) {
  const auto designer = Start();
  Ask(*designer, [](DocumentPropertiesRun& run) { EXPECT_EQ(run.Facts().File, "Noname.kev"); });
}

TEST_F(DocumentFactsTest, AcceptedTheTwoFieldsAreStoredBehindASnapshot) {
  const auto designer = Start({kFile});
  const int levels = designer->Surface().Undo().UndoIndex();
  Ask(*designer, [](DocumentPropertiesRun& run) { EXPECT_TRUE(run.Accept("N", " Smith ")); });
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::EBEU], "N");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::EBEUBY], "Smith");
  EXPECT_TRUE(designer->Modified());
  EXPECT_TRUE(host_.CaptionModified);
  EXPECT_EQ(designer->Surface().Undo().UndoIndex(), levels + 1);
  EXPECT_EQ(CacheNames().size(), 1U);
  // A level is used, and undoing it leaves the settings.
  designer->Run(Command::Undo);
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::EBEU], "N");
}

TEST_F(DocumentFactsTest, FieldsThatAreAsTheyWereChangeNothing) {
  const auto designer = Start({kFile});
  Ask(*designer, [](DocumentPropertiesRun& run) { EXPECT_TRUE(run.Accept("y", "Miller")); });
  EXPECT_FALSE(designer->Modified());
  Ask(*designer, [](DocumentPropertiesRun&) {});
  EXPECT_FALSE(designer->Modified());
}

TEST_F(DocumentFactsTest, OnlyYesIsYes) {
  const auto designer = Start({kFile});
  Ask(*designer, [](DocumentPropertiesRun& run) { EXPECT_TRUE(run.Accept("maybe", "")); });
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::EBEU], "N");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::EBEUBY], "");
}

TEST_F(DocumentFactsTest, ACharacterOutsideThePageIsRefused) {
  const auto designer = Start({kFile});
  Ask(*designer, [](DocumentPropertiesRun& run) { run.RefuseCharacter("\xE2\x98\x83"); });
  EXPECT_EQ(host_.Messages.at(0).Detail, "\xE2\x98\x83");
  ExpectMessage(*designer, kTextCharacterNotInPage);
}

}  // namespace
}  // namespace kev
