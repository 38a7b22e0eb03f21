// SPDX-License-Identifier: MIT
#include "document/settings.h"

#include <gtest/gtest.h>

#include <set>

namespace kev {
namespace {

using enum Setting;

DocumentSettings Read(std::string_view head, std::string_view defaultPaper = "A4") {
  return ReadSettings(KeyFile(head), defaultPaper);
}

// What the writer would print for a head; "-" for nothing.
std::string Printed(std::string_view head, Setting id) {
  const DocumentSettings settings = Read(head);
  return SettingIsPrinted(settings, id) ? PrintedValue(settings, id) : "-";
}

TEST(Settings, BothOrdersHoldEachSettingOnce) {
  std::set<Setting> read, written;
  for (const SettingRow& row : SettingRows()) {
    EXPECT_EQ(&RowOf(row.id), &row);
    read.insert(row.id);
  }
  for (const Setting id : SettingWriteOrder())
    written.insert(id);
  EXPECT_EQ(read.size(), kSettingCount);
  EXPECT_EQ(written.size(), kSettingCount);
}

TEST(Settings, OfAnEmptyHeadOnlyTitlePaperAndVersionArePrinted) {
  std::string printed;
  const DocumentSettings settings = Read("");
  for (const Setting id : SettingWriteOrder()) {
    if (SettingIsPrinted(settings, id))
      printed.append(RowOf(id).key).append("=") += PrintedValue(settings, id) + ";";
  }
  EXPECT_EQ(printed, "Report_Title=No title;PAPERSIZE=A4;KEXVER=;");
}

struct Case {
  const char* head;
  Setting id;
  const char* value;
  const char* printed;
};

TEST(Settings, ValuesAreBroughtIntoFormAndPrintedByTheirRules) {
  const Case cases[] = {
      {"Open=<", Open, "<", "<"},
      {"Open=<<", Open, "{", "-"},
      {"Close=", Close, "}", "-"},
      {"EBEU=yes", EBEU, "Y", "Y"},
      {"EBEU=1", EBEU, "Y", "Y"},
      {"EBEU=Yonder", EBEU, "Y", "Y"},
      {"EBEU=true", EBEU, "N", "-"},
      {"EBEUBY=Jo", EBEUBY, "Jo", "Jo"},
      {"FILEFORMAT=0", FILEFORMAT, "1", "-"},
      {"FILEFORMAT=abc", FILEFORMAT, "1", "-"},
      {"FILEFORMAT=2", FILEFORMAT, "2", "2"},
      {"Sample_Kex_file=/a b.kex", Sample_Kex_file, "/a b.kex", "/a b.kex"},
      {"Spacing=0", Spacing, "200", "-"},
      {"Spacing=0.4", Spacing, "200", "-"},
      {"Spacing=200.0", Spacing, "200.0", "-"},
      {"Spacing=250", Spacing, "250", "250"},
      {"PAGAUX=07.50x", PAGAUX, "7.5", "7.5"},
      {"Orientation=", Orientation, "1", "-"},
      {"Orientation=1x", Orientation, "1x", "-"},
      {"Orientation=3", Orientation, "3", "2"},
      {"Report_Title=", Report_Title, "No title", "No title"},
      {"REPORT_TITLE=a=b", Report_Title, "a=b", "a=b"},
      {"PDFFROMPS=y", PDFFROMPS, "Yes", "Y"},
      {"PDFFROMPS=yEs", PDFFROMPS, "Yes", "Y"},
      {"PDFFROMPS=no", PDFFROMPS, "no", "-"},
      {"PDFFROMPS=1\nPDFNAME=x", PDFNAME, "x", "x"},
      {"PDFNAME=x", PDFNAME, "x", "-"},
      {"MAXY=12 000 twips", MAXY, "12 000 twips", "12000"},
      {"MAXY=none", MAXY, "none", "-"},
      {"DecimalPoint=,", DecimalPoint, ",", ","},
      {"LM=.5", LM, "0.5", "0.5"},
      {"TM=-3", TM, "-3", "-3"},
      {"TM= 1 440 ", TM, "1440", "1440"},
      {"PLM=1e3", PLM, "1000", "1000"},
      {"PTM=abc", PTM, "0", "-"},
      {"ZoomToPrint=0%", ZoomToPrint, "100", "-"},
      {"ZoomToPrint=100%", ZoomToPrint, "100%", "-"},
      {"ZoomToPrint=90", ZoomToPrint, "90", "90"},
      {"ZoomToPrint=abc", ZoomToPrint, "abc", "-"},
      {"ZoomToOpen=100%", ZoomToOpen, "100%", "-"},
      {"ZoomToOpen=0", ZoomToOpen, "100", "-"},
      {"ZoomToOpen=0%", ZoomToOpen, "100", "-"},
      {"ZoomToOpen=75%", ZoomToOpen, "75%", "75%"},
      {"Copies=", Copies, "1", "-"},
      {"Copies=01", Copies, "01", "-"},
      {"Copies=3", Copies, "3", "3"},
      {"SENDPAPERTOPRINTER=None", SENDPAPERTOPRINTER, "None", "-"},
      {"SENDPAPERTOPRINTER=A4", SENDPAPERTOPRINTER, "A4", "A4"},
      {"ALWAYSFIT=never", ALWAYSFIT, "never", "-"},
      {"ALWAYSFIT=Yes", ALWAYSFIT, "Yes", "Yes"},
      {"KEXVER=", KEXVER, "", ""},
      {"Save_Allowed=maybe", Save_Allowed, "maybe", "-"},
      {"Save_Allowed=never", Save_Allowed, "No", "N"},
      {"Print_Allowed=1", Print_Allowed, "Yes", "-"},
      {"Export_Allowed=n", Export_Allowed, "No", "N"},
      {"OPEN_VIEW=1", OPEN_VIEW, "Yes", "Y"},
      {"OPEN_VIEW=", OPEN_VIEW, "No", "-"},
      {"Linktips=no", Linktips, "No", "N"},
      {"Linktips=1", Linktips, "1", "-"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(Read(each.head)[each.id], each.value) << each.head;
    EXPECT_EQ(Printed(each.head, each.id), each.printed) << each.head;
  }
}

TEST(Settings, AFileWithoutATitleIsPrintedWithOne) {
  EXPECT_EQ(Read("")[Report_Title], "No title");
  EXPECT_EQ(Printed("", Report_Title), "No title");
}

TEST(Settings, AKnownPaperGivesTheSize) {
  const DocumentSettings settings = Read("PAPERSIZE=letter\nPAGEWIDTH=5\nPAGELENGHT=6");
  EXPECT_EQ(settings[PAPERSIZE], "letter");
  EXPECT_EQ(settings[PAGEWIDTH], "12240");
  EXPECT_EQ(settings[PAGELENGHT], "15840");
  EXPECT_FALSE(SettingIsPrinted(settings, PAGEWIDTH));
}

TEST(Settings, ACustomPaperKeepsItsNumbers) {
  const DocumentSettings settings = Read("PAPERSIZE=(custom)\nPAGEWIDTH=5000\nPAGELENGHT=6000");
  EXPECT_EQ(settings[PAPERSIZE], "(custom)");
  EXPECT_FALSE(SettingIsPrinted(settings, PAPERSIZE));
  EXPECT_EQ(PrintedValue(settings, PAGEWIDTH), "5000");
  EXPECT_TRUE(SettingIsPrinted(settings, PAGEWIDTH));
  EXPECT_TRUE(SettingIsPrinted(settings, PAGELENGHT));
  const char* capitals = "PAPERSIZE=(CUSTOM)\nPAGEWIDTH=5000\nPAGELENGHT=6000";
  EXPECT_EQ(Read(capitals)[PAPERSIZE], "(CUSTOM)");
  EXPECT_EQ(Printed(capitals, PAPERSIZE), "-");
  EXPECT_EQ(Printed(capitals, PAGEWIDTH), "5000");
  EXPECT_EQ(Printed(capitals, PAGELENGHT), "6000");
}

TEST(Settings, NumbersWithoutANameAreCustom) {
  EXPECT_EQ(Read("PAGEWIDTH=5000")[PAPERSIZE], "(custom)");
  EXPECT_EQ(Printed("PAGEWIDTH=5000", PAGEWIDTH), "5000");
  EXPECT_EQ(Printed("PAGEWIDTH=5000", PAGELENGHT), "-");
}

TEST(Settings, AnUnknownNameIsPrintedTogetherWithItsNumbers) {
  const char* head = "PAPERSIZE=Banner\nPAGEWIDTH=5000\nPAGELENGHT=90000";
  EXPECT_EQ(Printed(head, PAPERSIZE), "Banner");
  EXPECT_EQ(Printed(head, PAGEWIDTH), "5000");
  EXPECT_EQ(Printed(head, PAGELENGHT), "90000");
}

TEST(Settings, WithNeitherNameNorNumbersTheDefaultPaperIsUsed) {
  EXPECT_EQ(Read("", "A5")[PAPERSIZE], "A5");
  EXPECT_EQ(Read("", "A5")[PAGEWIDTH], "8390");
  EXPECT_EQ(Read("PAPERSIZE=(custom)", "A3")[PAPERSIZE], "A3");
  EXPECT_EQ(Read("PAPERSIZE=Banner", "A3")[PAGELENGHT], "23820");
}

TEST(Settings, TheLineStepIsNeverZero) {
  DocumentSettings settings;
  settings[Spacing] = "0.2";
  EXPECT_EQ(settings.SpacingTwips(), 200);
  settings[Spacing] = "150.5";
  EXPECT_EQ(settings.SpacingTwips(), 150);
}

}  // namespace
}  // namespace kev
