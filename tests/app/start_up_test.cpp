// SPDX-License-Identifier: MIT
#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using test::CountOf;
using test::TemplateWith;

class StartUp : public test::DesignerTest {};

TEST_F(StartUp, AFirstRunShowsTheFreshDocument) {
  const auto designer = Start();
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_EQ(designer->DocumentPath(), "");
  EXPECT_FALSE(designer->Modified());
  EXPECT_EQ(CountOf(*designer, ObjectKind::Subsection), 3);
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::KEXVER], "4");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::PAPERSIZE], "A4");
  EXPECT_EQ(designer->ZoomFactor(), 1.0);
  EXPECT_EQ(host_.Caption, "Noname.kev");
  EXPECT_TRUE(FileExists(Temp("noname.kev")));
  EXPECT_EQ(view_.Replaced, 1);
  EXPECT_GE(view_.Redrawn, 1);
}

TEST_F(StartUp, OnlyTheFirstActivationCounts) {
  const auto designer = Make();
  ASSERT_TRUE(designer->Load());
  EXPECT_TRUE(designer->BeginActivation());
  EXPECT_FALSE(designer->BeginActivation());
}

TEST_F(StartUp, WithoutTheLanguageFileTheProgramEnds) {
  std::filesystem::remove(root_ / "program/Kev.lng");
  const auto designer = Make();
  EXPECT_FALSE(designer->Load());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Title, "Error loading");
  EXPECT_EQ(host_.Messages[0].Text, "Kev.lng file doesn't exist or is corrupted. Program won't start.");
}

TEST_F(StartUp, AnEmptyLanguageFileEndsTheProgramToo) {
  std::filesystem::remove(root_ / "program/Kev.lng");
  test::WriteBytes(root_ / "program/Kev.lng", "");
  const auto designer = Make();
  EXPECT_FALSE(designer->Load());
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Title, "Error loading");
}

TEST_F(StartUp, EachStartCountsOneMoreSession) {
  EXPECT_EQ(Start()->SessionNumber(), 1);
  EXPECT_EQ(Start()->SessionNumber(), 2);
  EXPECT_EQ(ReadKey(Data("SN.DAT"), "SESSID"), "2");
}

TEST_F(StartUp, TheTemplateOfTheCommandLineOpens) {
  const std::string file = Made("a.kev", TemplateWith("{100;}Hello{\\n}\r\n"));
  const auto designer = Start({file});
  EXPECT_EQ(designer->DocumentPath(), file);
  EXPECT_EQ(designer->DocumentTitle(), "a.kev");
  EXPECT_EQ(host_.Caption, "a.kev");
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 1);
  EXPECT_FALSE(FileExists(Temp("noname.kev")));
  EXPECT_EQ(designer->TemplateFolder(), std::filesystem::path(file).parent_path());
}

TEST_F(StartUp, ALinkOpensThePathWithBlanks) {
  const std::string file = Made("My Reports.kev", TemplateWith(""));
  const auto designer = Start({"editKevTemplate:" + Work("My%20Reports.kev")});
  EXPECT_EQ(designer->DocumentPath(), file);
}

TEST_F(StartUp, ThePathIsFoundWithBackslashesAndInAnyCase) {
  const std::string file = Made("Case.kev", TemplateWith(""));
  std::string written = Work("CASE.KEV");
  std::replace(written.begin() + 1, written.end(), '/', '\\');
  EXPECT_EQ(Start({written})->DocumentPath(), file);
}

TEST_F(StartUp, AMissingFileIsToldInTheStatusLine) {
  const auto designer = Start({Work("none.kev")});
  EXPECT_TRUE(host_.Messages.empty());
  ASSERT_EQ(designer->DocumentTitle(), "Noname.kev");
  // Still there when the fresh document stands.
  EXPECT_TRUE(host_.Status.starts_with(designer->Text(kTextFileMissing)));
  EXPECT_EQ(host_.StatusDetail, Work("none.kev"));
}

TEST_F(StartUp, FilesThatAreNoTemplatesAreRefusedWithOneMessage) {
  const auto plain = Start({Made("plain.kev", "Hello\r\n")});
  ExpectMessage(*plain, kTextNotATemplate, BoxIcon::Critical);
  EXPECT_EQ(plain->DocumentTitle(), "Noname.kev");
  const auto headless = Start({Made("headless.kev", "[DATA]\r\n[FOOTER]\r\n")});
  ExpectMessage(*headless, kTextNoHeader, BoxIcon::Critical);
  EXPECT_EQ(headless->DocumentTitle(), "Noname.kev");
}

TEST_F(StartUp, ATemplateWithManyFieldsOpens) {
  std::string data;
  for (int field = 1; field <= 4; ++field)
    data += "{100;} @Field" + std::to_string(field) + "{\\n}\r\n";
  const auto designer = Start({Made("fields.kev", TemplateWith(data))});
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 4);
}

TEST_F(StartUp, WithoutChecksThePathIsOpenedAsItStands) {
  const std::string file = Made("plain.kev", "Hello\r\n");
  const auto designer = Start({file, "/%%!/"});
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(designer->DocumentPath(), file);
  EXPECT_EQ(CountOf(*designer, ObjectKind::EndOfSubsection), 1);
  const auto missing = Start({Work("none.kev"), "/%%!/"});
  ExpectMessage(*missing, kTextReadFailed);
  EXPECT_EQ(missing->DocumentTitle(), "Noname.kev");
}

TEST_F(StartUp, OnlyTheTemplateOfTheCommandLineGoesWithoutChecks) {
  const std::string file = Made("plain.kev", "Hello\r\n");
  const auto designer = Start({file, "/%%!/"});
  ASSERT_TRUE(host_.Messages.empty());
  EXPECT_FALSE(designer->OpenTemplate(Made("other.kev", "Hello\r\n")));
  EXPECT_EQ(host_.Messages.at(0).Detail, Work("other.kev"));
  EXPECT_TRUE(host_.Messages.at(0).Text.ends_with(": "));
  ExpectMessage(*designer, kTextNotATemplate);
  EXPECT_EQ(designer->DocumentPath(), file);
}

TEST_F(StartUp, ALinkToAMissingFileIsToldInTheStatusLine) {
  const auto designer = Start({"EDITKEVTEMPLATE:file://localhost" + Work("no%20such%C3%A9.kev")});
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_TRUE(host_.Status.starts_with(designer->Text(kTextFileMissing)));
  EXPECT_EQ(host_.StatusDetail, Work("no such\xC3\xA9.kev"));
}

TEST_F(StartUp, ANameWithBlanksAtItsEndsOpens) {
  const std::string file = Made("a.kev ", TemplateWith(""));
  EXPECT_EQ(Start({file})->DocumentPath(), file);
}

TEST_F(StartUp, AFolderIsUnreadable) {
  const auto designer = Start({Work("")});
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_NE(host_.Messages[0].Text.find("\r\nFile: "), std::string::npos);
  EXPECT_TRUE(host_.Messages[0].Detail.starts_with(Work("")));
  ExpectMessage(*designer, kTextReadFailed, BoxIcon::Critical);
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
}

TEST_F(StartUp, MissingFoldersAreToldOnceAndTheProgramGoesOn) {
  std::filesystem::remove_all(root_ / "temp");
  std::filesystem::remove_all(root_ / "data");
  const auto designer = Start();
  ASSERT_EQ(host_.Messages.size(), 1U);
  for (const char* name : {"temp/Kev", "temp/Kev/Cache", "temp/Kev/Temp", "data/Kev", "data/Kev/temp"})
    EXPECT_NE(host_.Messages[0].Detail.find(root_ / name), std::string::npos) << name;
  EXPECT_NE(
      host_.Messages[0].Detail.find("/temp/Kev/Cache: " + designer->Text(kTextFolderRoleCache) + "\r\n"),
      std::string::npos);
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Warning);
  ExpectMessage(*designer, kTextFolderMissing);
  EXPECT_EQ(CountOf(*designer, ObjectKind::Subsection), 3);
  EXPECT_EQ(designer->SessionNumber(), 1);
  EXPECT_FALSE(std::filesystem::exists(root_ / "temp"));
  designer->ShutDown();
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(StartUp, TheUsersFileTellsCodePageAndPaper) {
  test::WriteBytes(Data("KEV.INI"), "CODEPAGE=windows-1250\r\nDEFAULT_PAPERSIZE=A5\r\n");
  const auto designer = Start();
  EXPECT_EQ(designer->OpenDocument().Page->Name(), "windows-1250");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::PAPERSIZE], "A5");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::PAGEWIDTH], "8390");
  EXPECT_EQ(designer->Settings().DefaultEditor, "notepad");
}

TEST_F(StartUp, UnknownSettingsOfTheUserGiveOneMessage) {
  test::WriteBytes(Data("KEV.INI"), "CODEPAGE=ebcdic\r\nDEFAULT_PAPERSIZE=Gro\xDF\r\n");
  const auto designer = Start();
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Detail, "\r\nDEFAULT_PAPERSIZE=Gro\xC3\x9F\r\nCODEPAGE=ebcdic");
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Warning);
  ExpectMessage(*designer, kTextUnknownSettings);
  EXPECT_EQ(designer->OpenDocument().Page->Name(), "windows-1252");
  EXPECT_EQ(designer->OpenDocument().Settings[Setting::PAPERSIZE], "A4");
}

TEST_F(StartUp, TheLanguageFileIsOfItsOwnPageWhateverTheTemplatesAre) {
  test::WriteBytes(Data("KEV.INI"), "CODEPAGE=windows-1251\r\n");
  test::WriteBytes(root_ / "program/activelang", "ACTIVELANG=P\r\n");
  std::filesystem::remove(root_ / "temp/Kev/Cache");
  const auto designer = Start();
  ASSERT_EQ(designer->OpenDocument().Page->Name(), "windows-1251");
  EXPECT_EQ(designer->Text(kTextMenuSubsection), "Subse\xE7\xE3o");
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_NE(host_.Messages[0].Detail.find("n\xC3\xA3o salvo"), std::string::npos) << host_.Messages[0].Detail;
}

TEST_F(StartUp, TheLanguageFollowsTheUsersChoice) {
  const auto english = Start();
  EXPECT_EQ(english->Language(), 'E');
  english->ChooseLanguage('S');
  ExpectMessage(*english, kTextLanguageAtNextStart);
  const auto spanish = Start();
  EXPECT_EQ(spanish->Language(), 'S');
  EXPECT_NE(spanish->Text(kTextModified), english->Text(kTextModified));
}

TEST_F(StartUp, ALanguageThatCannotBeStoredIsTold) {
  const auto designer = Start();
  std::filesystem::create_directory(Data("activelang"));
  EXPECT_FALSE(designer->ChooseLanguage('S'));
  ExpectMessage(*designer, kTextWriteFailed);
}

TEST_F(StartUp, ADocumentThatCannotBePaintedStandsAllTheSame) {
  const auto designer = Start();
  view_.OnRedraw = [] { throw std::bad_alloc(); };
  const std::string file = Made("a.kev", TemplateWith("{100;}Hello{\\n}\r\n"));
  EXPECT_TRUE(designer->OpenTemplate(file));
  ExpectMessage(*designer, kTextOperationFailed);
  EXPECT_EQ(designer->DocumentPath(), file);
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 1);
}

TEST_F(StartUp, ALanguageWithoutLinesHasEmptyCaptions) {
  test::WriteBytes(root_ / "program/activelang", "ACTIVELANG=X\r\n");
  const auto designer = Start();
  EXPECT_EQ(designer->Text(kTextProgramTitle), "");
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
}

TEST_F(StartUp, ProgressRunsToTheLastLineAndIsHidden) {
  Start({Made("a.kev", TemplateWith("{100;}A{\\n}\r\n"))});
  EXPECT_EQ(host_.ProgressBegun, 1);
  EXPECT_EQ(host_.ProgressEnded, 1);
  EXPECT_EQ(host_.ProgressMaximum, 8);
  EXPECT_EQ(host_.ProgressValue, 8);
  const auto& history = host_.StatusHistory;
  // In front of the kind stands its row: behind the two of the header and the bar of the data.
  const auto names = [](const std::string& text) { return text == "4 Reading object: label"; };
  EXPECT_TRUE(std::any_of(history.begin(), history.end(), names));
  EXPECT_TRUE(std::any_of(host_.ProgressTexts.begin(), host_.ProgressTexts.end(), names));
}

class ShutDown : public test::DesignerTest {};

TEST_F(ShutDown, WritesTheOptionsWithTheirHeading) {
  const auto designer = Start();
  EXPECT_FALSE(ReadWholeFile(Data("LASTRV.DAT"))->starts_with("#"));
  EXPECT_TRUE(designer->MayClose());
  EXPECT_TRUE(host_.Messages.empty());
  designer->Options().PropFix = kPanelClosed;
  designer->ShutDown();
  EXPECT_TRUE(ReadWholeFile(Data("LASTRV.DAT"))->starts_with("# LAST RUN DESIGNER OPTIONS\r\n"));
  EXPECT_EQ(ReadWholeFile(Data("LASTRV.DAT"))->find("LAST_TEXTBOX"), std::string::npos);
  EXPECT_EQ(Start()->Options().PropFix, kPanelClosed);
}

TEST_F(ShutDown, ARunThatEndsWhileItStartsKeepsTheOptions) {
  test::WriteBytes(Data("LASTRV.DAT"), "PROPLEFT=7\r\n");
  const auto designer = Make();
  ASSERT_TRUE(designer->Load());
  designer->ShutDown();
  EXPECT_EQ(test::ReadBytes(Data("LASTRV.DAT")), "PROPLEFT=7\r\n");
}

TEST_F(ShutDown, DeletesAllSampleCopiesInTheDataFolderAndNothingElse) {
  const auto designer = Start();
  for (const char* name : {"Sampledata101112.kex", "sampledata9.KED", "Sampledata of someone else.ked"})
    test::WriteBytes(Data(name), "x");
  for (const char* name : {"Sampledata.txt", "MySampledata1.kex", "notes.kex"})
    test::WriteBytes(Data(name), "x");
  test::WriteBytes(Temp("Sampledata101112.kex"), "x");
  std::filesystem::create_directory(Data("Sampledata.kex"));
  designer->ShutDown();
  EXPECT_FALSE(FileExists(Data("Sampledata101112.kex")));
  EXPECT_FALSE(FileExists(Data("sampledata9.KED")));
  EXPECT_FALSE(FileExists(Data("Sampledata of someone else.ked")));
  for (const char* name : {"Sampledata.txt", "MySampledata1.kex", "notes.kex"})
    EXPECT_TRUE(FileExists(Data(name))) << name;
  EXPECT_TRUE(FolderExists(Data("Sampledata.kex")));
  // A copy of another run that is still going on.
  EXPECT_TRUE(FileExists(Temp("Sampledata101112.kex")));
}

TEST_F(ShutDown, TheSkeletonAndTheTestTemplateStay) {
  const auto designer = Start();
  test::WriteBytes(Temp("testreport.kev"), "x");
  designer->ShutDown();
  EXPECT_TRUE(FileExists(Temp("noname.kev")));
  EXPECT_TRUE(FileExists(Temp("testreport.kev")));
}

TEST_F(ShutDown, OptionsThatCannotBeWrittenAreTold) {
  const auto designer = Start();
  std::filesystem::remove(Data("LASTRV.DAT"));
  std::filesystem::create_directory(Data("LASTRV.DAT"));
  designer->ShutDown();
  ExpectMessage(*designer, kTextWriteFailed);
}

TEST_F(ShutDown, WithoutAReaderWhatFailedIsReturnedAndTheRestIsDone) {
  const auto designer = Start();
  std::filesystem::remove(Data("LASTRV.DAT"));
  std::filesystem::create_directory(Data("LASTRV.DAT"));
  test::WriteBytes(Data("Sampledata101112.kex"), "x");
  const auto failure = designer->ShutDownSilently();
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->path, Data("LASTRV.DAT"));
  EXPECT_NE(failure->reason, "");
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_FALSE(FileExists(Data("Sampledata101112.kex")));
}

}  // namespace
}  // namespace kev
