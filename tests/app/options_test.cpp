// SPDX-License-Identifier: MIT
#include "app/options.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <set>
#include <thread>
#include <vector>

#include "base/files.h"
#include "support/run_tool.h"

namespace kev {
namespace {

class OptionsFile : public testing::Test {
 protected:
  std::string Path() const { return (folder_ / "LASTRV.DAT"); }
  std::string Bytes() const { return *ReadWholeFile(Path()); }

  test::TemporaryFolder folder_;
};

TEST_F(OptionsFile, AFirstRunWritesItWithoutAHeadingInItsFixedOrder) {
  EXPECT_EQ(LoadOptions(Path()), DesignerOptions());
  EXPECT_EQ(Bytes(),
            "SHOWWELCOME=1\r\nPROPFIX=1\r\nPROPLEFT=1000\r\nPROPTOP=1000\r\nPROPHEIGHT=3000\r\n"
            "PROPWIDTH=3000\r\nPROPFIXWIDTH=3500\r\nLAST_FONTNAME=Arial\r\nLAST_FONTSIZE=8\r\n"
            "LAST_FONTCOLOR=0,0,0\r\nLAST_FONTUNDERLINE=N\r\nLAST_FONTITALIC=N\r\n"
            "LAST_TEXTBOX_FONTNAME=Arial\r\nLAST_TEXTBOX_FONTSIZE=8\r\nLAST_TEXTBOX_FONTCOLOR=0,0,0\r\n"
            "LAST_TEXTBOX_BACKCOLOR=255,255,255\r\nLAST_TEXTBOX_FONTUNDERLINE=N\r\n"
            "LAST_TEXTBOX_FONTCHARSET=0\r\nLAST_TEXTBOX_FONTITALIC=N\r\nSHOWQUICKPROPS=1\r\n");
}

TEST_F(OptionsFile, TheEndOfARunWritesTheHeadingAndFifteenKeys) {
  DesignerOptions options;
  options.PropFix = kPanelClosed;
  options.LastFontItalic = true;
  options.QuickPropsX = -30;
  EXPECT_FALSE(SaveOptions(Path(), options));
  EXPECT_EQ(Bytes(),
            "# LAST RUN DESIGNER OPTIONS\r\nSHOWWELCOME=1\r\nPROPFIX=-1\r\nPROPLEFT=1000\r\nPROPTOP=1000\r\n"
            "PROPHEIGHT=3000\r\nPROPWIDTH=3000\r\nPROPFIXWIDTH=3500\r\nLAST_FONTNAME=Arial\r\n"
            "LAST_FONTSIZE=8\r\nLAST_FONTCOLOR=0,0,0\r\nLAST_FONTUNDERLINE=N\r\nLAST_FONTITALIC=Y\r\n"
            "SHOWQUICKPROPS=1\r\nQUICKPROPSX=-30\r\nQUICKPROPSY=\r\n");
  EXPECT_EQ(Bytes().find("LAST_TEXTBOX"), std::string::npos);
}

TEST_F(OptionsFile, WhatWasWrittenComesBack) {
  DesignerOptions options;
  options.ShowWelcome = 0;
  options.PropFix = kPanelClosed;
  options.PropLeft = -5;
  options.PropFixWidth = 4000;
  options.LastFontName = "Courier New";
  options.LastFontSize = 12;
  options.LastFontColor = "1,2,3";
  options.LastFontUnderline = true;
  options.QuickPropsX = 0;
  options.QuickPropsY = 77;
  EXPECT_FALSE(SaveOptions(Path(), options));
  EXPECT_EQ(LoadOptions(Path()), options);
}

TEST(Options, EmptyOrNoNumberGivesTheDefaultAndAWrittenZeroStands) {
  EXPECT_EQ(ReadOptions("PROPLEFT=\nPROPTOP=abc\nPROPWIDTH=-\n"), DesignerOptions());
  EXPECT_EQ(ReadOptions("PROPLEFT=--5\nPROPTOP=..5\nPROPWIDTH=+-5\nPROPHEIGHT=.-5\n"), DesignerOptions());
  EXPECT_EQ(ReadOptions("PROPLEFT= -5.4\nPROPTOP=+.6\n").PropLeft, -5);
  EXPECT_EQ(ReadOptions("PROPLEFT= -5.4\nPROPTOP=+.6\n").PropTop, 1);
  const DesignerOptions zeros = ReadOptions(
      "SHOWWELCOME=0\nPROPFIX=0\nPROPLEFT=0\nPROPTOP=0\nPROPHEIGHT=0\nPROPWIDTH=0\nPROPFIXWIDTH=0\n"
      "LAST_FONTSIZE=0\nSHOWQUICKPROPS=0\nQUICKPROPSX=0\n");
  EXPECT_EQ(zeros.ShowWelcome, 0);
  EXPECT_EQ(zeros.PropFix, 0);
  EXPECT_EQ(zeros.PropLeft, 0);
  EXPECT_EQ(zeros.PropTop, 0);
  EXPECT_EQ(zeros.PropHeight, 0);
  EXPECT_EQ(zeros.PropWidth, 0);
  EXPECT_EQ(zeros.PropFixWidth, 3500);
  EXPECT_EQ(zeros.LastFontSize, 8);
  EXPECT_EQ(zeros.ShowQuickProps, 0);
  EXPECT_EQ(zeros.QuickPropsX, 0);
  EXPECT_EQ(zeros.QuickPropsY, std::nullopt);
}

TEST(Options, ThePanelHasFourPlaces) {
  for (const int place : {-1, 0, 1, 3})
    EXPECT_EQ(ReadOptions("PROPFIX=" + std::to_string(place)).PropFix, place);
  for (const char* place : {"2", "4", "-2", "x"})
    EXPECT_EQ(ReadOptions(std::string("PROPFIX=") + place).PropFix, 1) << place;
}

TEST(Options, FontSizesOutside1To72AreTheDefault) {
  EXPECT_EQ(ReadOptions("LAST_FONTSIZE=72").LastFontSize, 72);
  EXPECT_EQ(ReadOptions("LAST_FONTSIZE=73").LastFontSize, 8);
  EXPECT_EQ(ReadOptions("LAST_FONTSIZE=-1").LastFontSize, 8);
  EXPECT_EQ(ReadOptions("LAST_TEXTBOX_FONTSIZE=73").LastTextBoxFontSize, 8);
  EXPECT_EQ(ReadOptions("LAST_TEXTBOX_FONTSIZE=9").LastTextBoxFontSize, 9);
}

TEST(Options, OnlyACapitalYIsTrue) {
  EXPECT_TRUE(ReadOptions("LAST_FONTITALIC=Y").LastFontItalic);
  for (const char* value : {"y", "Yes", "1", "-1", ""})
    EXPECT_FALSE(ReadOptions(std::string("LAST_FONTITALIC=") + value).LastFontItalic) << value;
}

TEST(Options, TheBackColourIsAskedForUnderAnotherNameThanTheOneWritten) {
  EXPECT_EQ(ReadOptions("LAST_TEXTBOX_BACKCOLOR=1,2,3").LastTextBoxBackColor, "255,255,255");
  EXPECT_EQ(ReadOptions("LAST_TEXTBOX_BACKFONTCOLOR=1,2,3").LastTextBoxBackColor, "1,2,3");
}

TEST(Options, CommentsAndBracketedLinesHoldNoKey) {
  EXPECT_EQ(ReadOptions("# PROPLEFT=5\n[PROPTOP=6\n[x]\n# x\npropwidth=7\n").PropWidth, 7);
  EXPECT_EQ(ReadOptions("# PROPLEFT=5\n[PROPTOP=6").PropLeft, 1000);
  EXPECT_EQ(ReadOptions("# PROPLEFT=5\n[PROPTOP=6").PropTop, 1000);
}

TEST_F(OptionsFile, WhereItCannotBeMadeTheDefaultsHold) {
  test::WriteBytes(folder_ / "file", "x");
  const std::string path = (folder_ / "file/LASTRV.DAT");
  EXPECT_EQ(LoadOptions(path), DesignerOptions());
  EXPECT_TRUE(SaveOptions(path, DesignerOptions()));
}

TEST_F(OptionsFile, AFailedWriteLeavesTheOldOne) {
  // A folder in its place can't be replaced by a file.
  std::filesystem::create_directory(Path());
  EXPECT_TRUE(SaveOptions(Path(), DesignerOptions()));
  EXPECT_TRUE(FolderExists(Path()));
}

TEST_F(OptionsFile, WhatCannotBeReadAtTheEndIsNotReplaced) {
  EXPECT_FALSE(SaveOptions(Path(), DesignerOptions()));
  std::filesystem::resize_file(Path(), kLargestFile + 1);
  DesignerOptions changed;
  changed.PropTop = 77;
  EXPECT_TRUE(SaveChangedOptions(Path(), changed, DesignerOptions()));
  EXPECT_EQ(std::filesystem::file_size(Path()), kLargestFile + 1);
}

TEST(Options, PanelsOffTheScreenAreMovedIn) {
  const PanelArea screen{0, 0, 20000, 15000};
  PanelArea right{30000, 16000, 3000, 2000};
  MovePanelIn(right, screen);
  EXPECT_EQ(right, (PanelArea{17000, 13000, 3000, 2000}));
  PanelArea left{-500, -1, 3000, 2000};
  MovePanelIn(left, screen);
  EXPECT_EQ(left, (PanelArea{0, 0, 3000, 2000}));
  PanelArea inside{100, 200, 3000, 2000};
  MovePanelIn(inside, screen);
  EXPECT_EQ(inside, (PanelArea{100, 200, 3000, 2000}));
  PanelArea huge{5, 5, 2000000000, 2000000000};
  MovePanelIn(huge, screen);
  EXPECT_EQ(huge.Left, 0);
  EXPECT_EQ(huge.Top, 0);
}

TEST_F(OptionsFile, TheUserSettingsHaveDefaults) {
  const std::string path = (folder_ / "KEV.INI");
  EXPECT_EQ(LoadUserSettings(path).DefaultEditor, "notepad");
  EXPECT_EQ(LoadUserSettings(path).DefaultPaperSize, "A4");
  test::WriteBytes(path, "default_editor = vi -R\r\nDEFAULT_PAPERSIZE=\r\nCODEPAGE=windows-1250\r\n");
  // The key is all that stands before the "=", its blank included.
  EXPECT_EQ(LoadUserSettings(path).DefaultEditor, "notepad");
  test::WriteBytes(path, "default_editor= vi -R\r\nDEFAULT_PAPERSIZE=\r\nCODEPAGE=windows-1250\r\n");
  EXPECT_EQ(LoadUserSettings(path).DefaultEditor, "vi -R");
  EXPECT_EQ(LoadUserSettings(path).DefaultPaperSize, "A4");
  EXPECT_EQ(LoadUserSettings(path).Page, CodePage::Find("windows-1250"));
  EXPECT_TRUE(LoadUserSettings(path).Unknown.empty());
  test::WriteBytes(path, "DEFAULT_PAPERSIZE=Letter");
  EXPECT_EQ(LoadUserSettings(path).DefaultPaperSize, "Letter");
}

TEST_F(OptionsFile, UnknownUserSettingsAreNamedAndTheDefaultsHold) {
  const std::string path = (folder_ / "KEV.INI");
  test::WriteBytes(path, "CODEPAGE=ebcdic\r\nDEFAULT_PAPERSIZE=Banner\r\n");
  const UserSettings settings = LoadUserSettings(path);
  EXPECT_EQ(settings.DefaultPaperSize, "A4");
  EXPECT_EQ(settings.Page, &CodePage::Default());
  ASSERT_EQ(settings.Unknown.size(), 2U);
  EXPECT_EQ(settings.Unknown[0].Key, "DEFAULT_PAPERSIZE");
  EXPECT_EQ(settings.Unknown[0].Value, "Banner");
  EXPECT_EQ(settings.Unknown[1].Key, "CODEPAGE");
  EXPECT_EQ(settings.Unknown[1].Value, "ebcdic");
}

TEST(Options, AColourThatIsNotThreeNumbersIsTheDefault) {
  EXPECT_EQ(ReadOptions("LAST_FONTCOLOR=1,2,3").LastFontColor, "1,2,3");
  EXPECT_EQ(ReadOptions("LAST_FONTCOLOR=255, 0 ,7").LastFontColor, "255, 0 ,7");
  for (const char* value :
       {"1,2", "1,2,3,4", "red", "1,,3", ",,", "1,x,3", "1,-2,3", "1,2,256", "1,2,3000000000"}) {
    EXPECT_EQ(ReadOptions(std::string("LAST_FONTCOLOR=") + value).LastFontColor, "0,0,0") << value;
    EXPECT_EQ(ReadOptions(std::string("LAST_TEXTBOX_FONTCOLOR=") + value).LastTextBoxFontColor, "0,0,0")
        << value;
    EXPECT_EQ(ReadOptions(std::string("LAST_TEXTBOX_BACKFONTCOLOR=") + value).LastTextBoxBackColor,
              "255,255,255")
        << value;
  }
}

TEST_F(OptionsFile, EachRunCountsOneMore) {
  const std::string path = (folder_ / "SN.DAT");
  EXPECT_EQ(NextSession(path), 1);
  EXPECT_EQ(*ReadWholeFile(path), "SESSID=1\r\n");
  EXPECT_EQ(NextSession(path), 2);
  EXPECT_EQ(NextSession(path), 3);
  EXPECT_EQ(*ReadWholeFile(path), "SESSID=3\r\n");
  test::WriteBytes(path, "nonsense");
  EXPECT_EQ(NextSession(path), 1);
  EXPECT_EQ(NextSession((folder_ / "missing/SN.DAT")), 1);
}

TEST_F(OptionsFile, BehindTheHighestNumberTheSessionsStartAgain) {
  const std::string path = (folder_ / "SN.DAT");
  test::WriteBytes(path, "SESSID=2147483646");
  EXPECT_EQ(NextSession(path), 2147483647);
  EXPECT_EQ(NextSession(path), 1);
  // Nothing of the longer number stays behind.
  EXPECT_EQ(*ReadWholeFile(path), "SESSID=1\r\n");
  for (const char* number : {"-5", "1e300", "99999999999"}) {
    test::WriteBytes(path, std::string("SESSID=") + number);
    EXPECT_EQ(NextSession(path), 1) << number;
  }
}

TEST_F(OptionsFile, SessionsThatStartTogetherGetNumbersOfTheirOwn) {
  const std::string path = (folder_ / "SN.DAT");
  constexpr int kRuns = 4, kEach = 25;
  std::array<std::vector<int>, kRuns> numbers;
  {
    std::vector<std::jthread> runs;
    for (std::vector<int>& own : numbers)
      runs.emplace_back([&path, &own] {
        for (int start = 0; start < kEach; ++start)
          own.push_back(NextSession(path));
      });
  }
  std::set<int> all;
  for (const std::vector<int>& own : numbers)
    all.insert(own.begin(), own.end());
  EXPECT_EQ(all.size(), std::size_t{kRuns * kEach});
  EXPECT_EQ(*all.rbegin(), kRuns * kEach);
}

TEST_F(OptionsFile, ACounterThatStaysLockedHoldsUpNoStart) {
  const std::string path = (folder_ / "SN.DAT");
  test::WriteBytes(path, "SESSID=6");
  const int locked = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(locked, LOCK_EX), 0);
  EXPECT_EQ(NextSession(path), 7);
  ::close(locked);
}

TEST(LastUsedOptions, GiveTheNextTextsTheirStyles) {
  DesignerOptions options;
  options.LastFontName = "Courier New";
  options.LastFontSize = 14;
  options.LastFontColor = "1,2,3";
  options.LastFontUnderline = true;
  options.LastTextBoxFontName = "Times New Roman";
  options.LastTextBoxFontSize = 9;
  options.LastTextBoxFontColor = "4,5,6";
  options.LastTextBoxFontItalic = true;
  options.LastTextBoxFontCharSet = "161";
  const LastUsed last = LastUsedIn(options);
  EXPECT_EQ(last.Label, (TextStyle{"Courier New", 14, false, false, true, "1,2,3", "0"}));
  EXPECT_EQ(last.TextBox, (TextStyle{"Times New Roman", 9, false, true, false, "4,5,6", "161"}));
}

TEST(LastUsedOptions, KeepTheStyleOfLabelsAlone) {
  LastUsed last;
  last.Label = {"Courier New", 14, true, true, true, "1,2,3", "0"};
  last.TextBox.FontName = "Times New Roman";
  DesignerOptions options;
  KeepLastUsed(last, options);
  DesignerOptions expected;
  expected.LastFontName = "Courier New";
  expected.LastFontSize = 14;
  expected.LastFontColor = "1,2,3";
  expected.LastFontItalic = expected.LastFontUnderline = true;
  EXPECT_EQ(options, expected);
}

}  // namespace
}  // namespace kev
