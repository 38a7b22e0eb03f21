// SPDX-License-Identifier: MIT
// What a saved template says ahead of [HEADER].
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/templates.h"

namespace kev {
namespace {

using test::FilledLines;
using test::Lines;
using test::ReadText;
using test::Rewrite;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

TEST(WriterHead, PrintsTheFirstPreambleBlockAheadOfTheKeys) {
  const auto lines =
      FilledLines(Rewrite("Report_Title=a\r\n[Configuration]\r\n[Other]\r\nKEXVER=4\r\n[HEADER]\r\n"));
  EXPECT_THAT(lines, ElementsAre("[Configuration]", "Report_Title=a", "PAPERSIZE=A4", "KEXVER=4", "[HEADER]",
                                 "{DEF}", "[FOOTER]", "[DATA]"));
}

TEST(WriterHead, PrintsColumnsBehindTheSpacing) {
  const auto lines =
      FilledLines(Rewrite("$B=0.5\r\n$A=100000\r\nDecimalPoint=,\r\nSpacing=100\r\n[HEADER]\r\n"));
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 6),
            (std::vector<std::string>{"Report_Title=No title", "Spacing=100", "$B=0.5", "$A=100000",
                                      "DecimalPoint=,", "PAPERSIZE=A4"}));
}

TEST(WriterHead, PutsTheColumnsBehindTheKeysWhereTheyWouldPushOneOutOfSight) {
  std::string head = "Report_Title=a\r\nDecimalPoint=,\r\nKEXVER=4\r\n";
  for (int n = 1; n <= 96; ++n)
    head += "$C" + std::to_string(n) + "=1\r\n";
  const std::string fits = Rewrite(head + "[HEADER]\r\n");
  EXPECT_LT(fits.find("$C1="), fits.find("DecimalPoint")) << "a hundred lines with the paper";
  const std::string tooMany = Rewrite(head + "$C97=1\r\n[HEADER]\r\n");
  EXPECT_GT(tooMany.find("$C1="), tooMany.find("KEXVER"));
  const Document read = ReadText(tooMany).Read;
  EXPECT_EQ(read.Settings[Setting::KEXVER], "4");
  EXPECT_EQ(read.Columns[97].Name, "$C97");
}

TEST(WriterHead, PrintsAnUnknownPaperWithItsNumbers) {
  EXPECT_THAT(FilledLines(Rewrite("PAPERSIZE=Mine\r\nPAGEWIDTH=1000\r\nPAGELENGHT=0.5\r\n[HEADER]\r\n")),
              IsSupersetOf({"PAPERSIZE=Mine", "PAGEWIDTH=1000", "PAGELENGHT=0.5"}));
  const auto custom = FilledLines(Rewrite("PAGEWIDTH=1000\r\nPAGELENGHT=2000\r\n[HEADER]\r\n"));
  EXPECT_THAT(custom, IsSupersetOf({"PAGEWIDTH=1000", "PAGELENGHT=2000"}));
  EXPECT_THAT(custom, Not(Contains(HasSubstr("PAPERSIZE"))));
}

TEST(WriterHead, PrintsNumbersInFull) {
  EXPECT_THAT(FilledLines(Rewrite("LM=.5\r\nTM=1e5\r\nMAXY=.25\r\n$A=1e6\r\n[HEADER]\r\n")),
              IsSupersetOf({"LM=0.5", "TM=100000", "MAXY=0.25", "$A=1000000"}));
}

// A template in which no setting has the value that goes without saying. `paper` is the lines of the paper.
std::string FullHead(std::string_view paper) {
  return Lines({"Report_Title=T",
                "Sample_Kex_file=/d.kex",
                "Orientation=2",
                "Copies=3",
                "Spacing=100",
                "$A=500",
                "$B=900",
                "DecimalPoint=,",
                "Conversion=c",
                "DataConversion=d",
                "ViewerOptions=v",
                "ZoomToPrint=90",
                "ZoomToOpen=80",
                "Open=<",
                "Close=>",
                "Print_Allowed=N",
                "Export_Allowed=N",
                "Save_Allowed=N",
                "Linktips=N",
                "MAILTO=m",
                "SENDPAPERTOPRINTER=Yes",
                "ALWAYSFIT=Yes",
                "MAXY=900",
                "LM=1",
                "TM=2",
                "PLM=3",
                "PTM=4",
                "PRINTER=p"}) +
         std::string(paper) +
         Lines({"PAGAUX=5", "KEXVER=4", "OPEN_VIEW=Y", "PDFFROMPS=Y", "PDFNAME=n", "EBEU=Y", "EBEUBY=b",
                "FILEFORMAT=2"});
}

// The lines of the head in the opposite order, so that none stands where it does by how it was read.
std::string Backwards(std::string_view head) {
  std::string backwards;
  for (const std::string& line : FilledLines(head))
    backwards.insert(0, line + "\r\n");
  return backwards;
}

std::string HeadOf(std::string_view text) {
  return std::string(text.substr(0, text.find("[HEADER]")));
}

TEST(WriterHead, HoldsEverySettingInItsOwnOrder) {
  const std::string named = FullHead("PAPERSIZE=Letter\r\n");
  EXPECT_EQ(FilledLines(named).size(), kSettingCount)
      << "two columns more, and the two numbers of a paper without a name less";
  // The columns keep the order of their slots.
  const std::string columns = "$A=500\r\n$B=900\r\n";
  const auto written = [&](const std::string& head) {
    std::string read = Backwards(head);
    read.replace(read.find("$B"), columns.size(), columns);
    return HeadOf(Rewrite(read + "[HEADER]\r\n"));
  };
  EXPECT_EQ(written(named), named);
  const std::string custom = FullHead("PAGELENGHT=6000\r\nPAGEWIDTH=5000\r\n");
  EXPECT_EQ(written(custom), custom);
}

}  // namespace
}  // namespace kev
