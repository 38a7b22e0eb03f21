// SPDX-License-Identifier: MIT
#include <algorithm>

#include "properties/sheet_fixture.h"

namespace kev {
namespace {

using test::SheetTest;
using enum Setting;

class ApplyDocumentEdit : public SheetTest {
 protected:
  std::string Stored(Setting id) { return Settings()[id]; }
  // Types a sample file that must be refused.
  void ExpectSampleRefused(const std::string& file, int box, const std::string& behind = {}) {
    host_.Messages.clear();
    const std::string calls = Type("Sample Kex/Ked file", file);
    if (behind.empty()) {
      EXPECT_EQ(calls, "push, box " + std::to_string(box)) << file;
    } else {
      ASSERT_EQ(host_.Messages.size(), 1U) << file;
      EXPECT_EQ(host_.Messages[0].Text, services_.Text(box) + behind);
      EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Critical);
    }
    EXPECT_EQ(Stored(Sample_Kex_file), "/old.kex");
    EXPECT_EQ(ValueOf("Sample Kex/Ked file"), "/old.kex");
  }
};

TEST_F(ApplyDocumentEdit, UnchangedTextIsNoEdit) {
  EXPECT_EQ(Type({{"Papersize", "A4"}, {"Copies", "1"}}), "");
}

TEST_F(ApplyDocumentEdit, PaperGivesThePageItsSize) {
  EXPECT_EQ(Type("Papersize", " A3, 297 x 420 mm"), "push, repaint, rulers");
  EXPECT_EQ(Stored(PAPERSIZE), "A3, 297 x 420 mm");
  EXPECT_EQ(Stored(PAGEWIDTH), "16840");
  EXPECT_EQ(Stored(PAGELENGHT), "23820");
}

TEST_F(ApplyDocumentEdit, PaperWithoutANameIsCustomAndKeepsTheNumbers) {
  Settings()[PAGEWIDTH] = "5000";
  Type("Papersize", "");
  EXPECT_EQ(Stored(PAPERSIZE), "(custom)");
  EXPECT_EQ(Stored(PAGEWIDTH), "5000");
  Type("Papersize", "Poster");
  EXPECT_EQ(Stored(PAPERSIZE), "Poster");
  EXPECT_EQ(Stored(PAGEWIDTH), "5000");
}

TEST_F(ApplyDocumentEdit, AcceptedPageSizeMakesThePaperCustom) {
  for (const std::string caption : {"PageLenght", "PageWidth"}) {
    Settings()[PAPERSIZE] = "A4";
    EXPECT_EQ(Type(caption, "5000"), "push, repaint, rulers");
    EXPECT_EQ(Stored(PAPERSIZE), "(custom)");
    EXPECT_EQ(ValueOf(caption), "5000");
    EXPECT_EQ(outcome_.SelectRow, 0);
  }
}

TEST_F(ApplyDocumentEdit, RefusedPageSizeSelectsItsRowWithoutABox) {
  Settings()[PAGELENGHT] = "16840";
  Settings()[PAGEWIDTH] = "11900";
  for (const std::string text : {"99", "50001", "", "-100", "wide"}) {
    EXPECT_EQ(Type("PageLenght", text), "push, repaint, rulers");
    EXPECT_EQ(outcome_.SelectRow, 22);
    EXPECT_EQ(Type("PageWidth", text), "push, repaint, rulers");
    EXPECT_EQ(outcome_.SelectRow, 23);
    EXPECT_EQ(Stored(PAGELENGHT), "16840");
    EXPECT_EQ(Stored(PAGEWIDTH), "11900");
    EXPECT_EQ(Stored(PAPERSIZE), "A4");
  }
  for (const std::string text : {"100", "50000"}) {
    Type("PageWidth", text);
    EXPECT_EQ(Stored(PAGEWIDTH), text);
  }
}

TEST_F(ApplyDocumentEdit, RowsBehindThePaperAreNotTouchedByIt) {
  Settings()[PAGEWIDTH] = "11900";
  Settings()[PAGELENGHT] = "16840";
  Type("Papersize", "Letter, 8 1/2 x 11 in.");
  EXPECT_EQ(Stored(PAPERSIZE), "Letter, 8 1/2 x 11 in.");
  EXPECT_EQ(ValueOf("PageLenght"), "15840");
  EXPECT_EQ(ValueOf("PageWidth"), "12240");
}

TEST_F(ApplyDocumentEdit, OrientationIsItsFirstCharacter) {
  Type("Orientation", "2 - Landscape");
  EXPECT_EQ(Stored(Orientation), "2");
  Type("Orientation", "1 - Portrait");
  EXPECT_EQ(Stored(Orientation), "1");
  EXPECT_EQ(Type("Orientation", "sideways"), "push, repaint, rulers");
  EXPECT_EQ(Stored(Orientation), "1");
}

TEST_F(ApplyDocumentEdit, EmptyRowsComeBackWithTheirDefault) {
  const std::vector<std::pair<std::string_view, std::string>> defaults = {{"Report_title", "No title"},
                                                                          {"Send Paper to Printer", "none"},
                                                                          {"Always fit to paper", "No"},
                                                                          {"Top margin", "0"},
                                                                          {"Maxy", "0"},
                                                                          {"Save allowed", "Yes"},
                                                                          {"Link tips", "Yes"},
                                                                          {"Copies", "1"},
                                                                          {"Spacing", "200"},
                                                                          {"ZoomToPrint", "100"},
                                                                          {"Preview on print server", "No"},
                                                                          {"Preview at", "100%"},
                                                                          {"PDF from Print Server", "No"},
                                                                          {"PagAux", "0"}};
  for (const auto& [caption, value] : defaults) {
    Type(caption, "x");
    Type(caption, "");
    EXPECT_EQ(ValueOf(caption), value) << caption;
  }
}

TEST_F(ApplyDocumentEdit, TypedWordsAreNormalisedAsWhenRead) {
  Type({{"Save allowed", "no"},
        {"Print allowed", "Nothing"},
        {"Link tips", "y"},
        {"PDF from Print Server", "1"}});
  EXPECT_EQ(Stored(Save_Allowed), "No");
  EXPECT_EQ(Stored(Print_Allowed), "No");
  EXPECT_EQ(Stored(Linktips), "Yes");
  EXPECT_EQ(Stored(PDFFROMPS), "Yes");
  Type("ZoomToPrint", "0%");
  EXPECT_EQ(Stored(ZoomToPrint), "100");
}

TEST_F(ApplyDocumentEdit, SpacingThatIsNotAboveZeroIs200) {
  Settings()[Spacing] = "240";
  for (const std::string text : {"0", "-50", "0.4", "none"}) {
    Settings()[Spacing] = "240";
    Type("Spacing", text);
    EXPECT_EQ(Stored(Spacing), "200") << text;
  }
}

TEST_F(ApplyDocumentEdit, CopiesBelowOneAreOne) {
  for (const auto& [typed, stored] : std::vector<std::pair<std::string, std::string>>{
           {"0", "1"}, {"7 copies", "7"}, {"-3", "1"}, {"12", "12"}, {"many", "1"}}) {
    Type("Copies", typed);
    EXPECT_EQ(Stored(Copies), stored);
  }
}

TEST_F(ApplyDocumentEdit, BlockCharactersHaveNoOtherMeaning) {
  for (const std::string caption : {"Open", "Close"}) {
    const std::string old = ValueOf(caption);
    for (const std::string text : {"",  "  ", "<<", "a", "Z", "7",  "[", "]",    ";",  ",",
                                   "=", "$",  "@",  "+", "-", "\\", "#", "\xE9", "\t", "\x01"}) {
      EXPECT_EQ(Type(caption, text), "push, box 786 other icon") << caption << " " << text;
      EXPECT_EQ(ValueOf(caption), old);
    }
    for (const std::string text : {"~", "|", "%", "\xAB"}) {
      EXPECT_EQ(Type(caption, text), "push") << caption << " " << text;
      EXPECT_EQ(ValueOf(caption), text);
    }
    Type(caption, old);
  }
}

TEST_F(ApplyDocumentEdit, EqualBlockCharactersGiveTheBraces) {
  EXPECT_EQ(Type({{"Open", "<"}, {"Close", "<"}}), "push, box 787");
  EXPECT_EQ(Stored(Open), "{");
  EXPECT_EQ(Stored(Close), "}");
  Type({{"Open", "<"}, {"Close", ">"}});
  EXPECT_EQ(Type("Open", ">"), "push, box 787");
  EXPECT_EQ(Stored(Open), "{");
  EXPECT_EQ(Stored(Close), "}");
}

TEST_F(ApplyDocumentEdit, EqualBlockCharactersAreNotHeldAgainstOtherRows) {
  Settings()[Open] = Settings()[Close] = "~";
  EXPECT_EQ(Type("MailTo", "x"), "push");
  EXPECT_EQ(Stored(Open), "~");
}

TEST_F(ApplyDocumentEdit, SampleFileMustExistAndBeGood) {
  Settings()[Sample_Kex_file] = "/old.kex";
  test::WriteBytes(folder_ / "a.txt", "TEMPLATE=x\n");
  test::WriteBytes(folder_ / "head.kex", "|A|\n");
  test::WriteBytes(folder_ / "line.KEX", "TEMPLATE=x\n|A|\nabc\n");
  test::WriteBytes(folder_ / "variable.ked", "TEMPLATE=x\n@total\n");
  std::string record = "|A|";
  for (int i = 0; i < 198; ++i)
    record += "v|";
  test::WriteBytes(folder_ / "long.kex", "TEMPLATE=x\n" + record + "\n");
  ExpectSampleRefused(folder_ / "gone.kex", 41);
  ExpectSampleRefused(folder_ / "gone.txt", 41);
  ExpectSampleRefused(folder_ / "a.txt", 995);
  ExpectSampleRefused(folder_ / "head.kex", 996);
  ExpectSampleRefused(folder_ / "line.KEX", 997, "\nLine: 3");
  ExpectSampleRefused(folder_ / "variable.ked", 998);
  ExpectSampleRefused(folder_ / "long.kex", 1230, " 2");
}

TEST_F(ApplyDocumentEdit, SampleFileWithAUnicodeMarkIsTold) {
  Settings()[Sample_Kex_file] = "/old.kex";
  test::WriteBytes(folder_ / "mark.kex", "\xEF\xBB\xBFTEMPLATE=x\n");
  ExpectSampleRefused(folder_ / "mark.kex", 996, "\n" + services_.Text(kTextUnicodeMark));
}

TEST_F(ApplyDocumentEdit, LargeSampleFileShowsHowFarItIsAndCanBeStopped) {
  Settings()[Sample_Kex_file] = "/old.kex";
  std::string bytes = "TEMPLATE=x\n";
  while (bytes.size() < 2000000)
    bytes += "|ITEMS|12|bolt|\n";
  test::WriteBytes(folder_ / "large.kex", bytes);
  host_.Stopped = true;
  EXPECT_EQ(Type("Sample Kex/Ked file", folder_ / "large.kex"), "push");
  EXPECT_EQ(Stored(Sample_Kex_file), "/old.kex");
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(host_.ProgressEnded, 1);
  host_.Stopped = false;
  std::vector<int> steps;
  host_.OnStep = [&] { steps.push_back(host_.ProgressValue); };
  EXPECT_EQ(Type("Sample Kex/Ked file", folder_ / "large.kex"), "push");
  EXPECT_EQ(Stored(Sample_Kex_file), folder_ / "large.kex");
  EXPECT_GT(steps.size(), 3U);
  EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
  EXPECT_LE(steps.back(), host_.ProgressMaximum);
  EXPECT_EQ(host_.ProgressBegun, 2);
  EXPECT_EQ(host_.ProgressEnded, 2);
}

TEST_F(ApplyDocumentEdit, SampleFileMayBeNamedFromTheFolderOfTheTemplate) {
  std::filesystem::create_directory(folder_ / "data");
  test::WriteBytes(folder_ / "data/Stock.KED", "TEMPLATE=x\n@a=1\n");
  EXPECT_EQ(Type("Sample Kex/Ked file", " data\\stock.ked "), "push");
  EXPECT_EQ(Stored(Sample_Kex_file), "data\\stock.ked");
  EXPECT_EQ(Type("Sample Kex/Ked file", ""), "push");
  EXPECT_EQ(Stored(Sample_Kex_file), "");
}

TEST_F(ApplyDocumentEdit, SampleFileMayHaveANameOutsideAscii) {
  test::WriteBytes(folder_ / "\xC3\xA9t\xC3\xA9.kex", "TEMPLATE=x\n|A|\n");
  EXPECT_EQ(Type("Sample Kex/Ked file", "\xE9t\xE9.kex"), "push");
  EXPECT_EQ(Stored(Sample_Kex_file), "\xE9t\xE9.kex");
}

TEST_F(ApplyDocumentEdit, SampleFileThatWasThereBeforeIsNotLookedAt) {
  Settings()[Sample_Kex_file] = "/gone.kex";
  EXPECT_EQ(Type("MailTo", "x"), "push");
  EXPECT_EQ(Stored(Sample_Kex_file), "/gone.kex");
}

TEST_F(ApplyDocumentEdit, TwoWrongRowsGiveTwoBoxesInTheOrderOfTheRows) {
  EXPECT_EQ(Type({{"Open", "ab"}, {"Sample Kex/Ked file", "/gone.kex"}, {"Copies", "4"}}),
            "push, box 41, box 786 other icon");
  EXPECT_EQ(Stored(Copies), "4");
}

TEST_F(ApplyDocumentEdit, WholeSheetIsShownAnew) {
  Type({{"PageWidth", "5000"}, {"Save allowed", "n"}});
  EXPECT_EQ(outcome_.Shown, Shown());
}

}  // namespace
}  // namespace kev
