// SPDX-License-Identifier: MIT
// Documents in their packed form: chosen when they are saved, opened like any other.
#include "app/designer_fixture.h"
#include "base/files.h"
#include "base/reasons.h"
#include "surface/column_commands.h"
#include "template/packed.h"

namespace kev {
namespace {

using test::CountOf;
using test::TemplateWith;

std::string Packed(const std::string& plain) {
  return *PackedBytes(plain, "a.kev");
}

class PackedDocuments : public test::DesignerTest {
 protected:
  const std::string kTwoLabels = TemplateWith("{100;}A{\\n}\r\n{100;}B{\\n}\r\n");

  // Saves as, with a kind of file: 0 plain, 1 encoded, 2 any.
  bool SaveAs(Designer& designer, const std::string& path, int kind) {
    host_.FilesToSave = {path};
    host_.FiltersToTake = {kind};
    return designer.SaveAs();
  }
  static std::string Format(const Designer& designer) {
    return designer.OpenDocument().Settings[Setting::FILEFORMAT];
  }
  std::vector<std::string> NamesIn(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  // Nothing of a packed template lies about.
  void ExpectNoWorkFiles() const {
    EXPECT_EQ(NamesIn(Temp("Temp")), std::vector<std::string>());
    for (const std::string& name : NamesIn(Temp("")))
      EXPECT_EQ(name, "noname.kev");
  }
};

TEST_F(PackedDocuments, ChosenInTheDialogTheFormIsPackedAndNothingPlainStandsBesideIt) {
  const auto designer = Start({Made("a.kev", kTwoLabels)});
  ASSERT_TRUE(SaveAs(*designer, Work("packed.kev"), 1));
  EXPECT_TRUE(test::ReadBytes(Work("packed.kev")).starts_with("60"));
  EXPECT_EQ(NamesIn(Work("")), (std::vector<std::string>{"a.kev", "packed.kev"}));
  ExpectNoWorkFiles();
  EXPECT_EQ(Format(*designer), "2");
  EXPECT_EQ(designer->DocumentPath(), Work("packed.kev"));
  EXPECT_EQ(host_.Caption, "packed.kev");
  EXPECT_FALSE(designer->Modified());
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_TRUE(designer->Findings().empty());
  EXPECT_NE(UnpackedBytes(test::ReadBytes(Work("packed.kev")))->find("FILEFORMAT=2\r\n"), std::string::npos);
}

TEST_F(PackedDocuments, TheMemberIsThePlainTemplate) {
  const auto designer = Start({Made("a.kev", kTwoLabels)});
  ASSERT_TRUE(SaveAs(*designer, Work("packed.kev"), 1));
  const std::string packed = test::ReadBytes(Work("packed.kev"));
  ASSERT_FALSE(designer->WriteDocument(Work("plain.kev")).Failure);
  EXPECT_EQ(*UnpackedBytes(packed), test::ReadBytes(Work("plain.kev")));
  // And twice the same.
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(test::ReadBytes(Work("packed.kev")), packed);
}

TEST_F(PackedDocuments, TheDialogOffersTheFormThatTheDocumentHas) {
  const auto designer = Start({Made("a.kev", kTwoLabels)});
  ASSERT_TRUE(SaveAs(*designer, Work("b.kev"), 1));
  ASSERT_EQ(host_.Choices.back().Filters.size(), 3U);
  EXPECT_EQ(host_.Choices.back().Filters[0].first, designer->Text(kTextFilesPlain));
  EXPECT_EQ(host_.Choices.back().Filters[1].first, designer->Text(kTextFilesEncoded));
  ASSERT_TRUE(SaveAs(*designer, Work("c.kev"), 0));
  EXPECT_EQ(host_.FiltersOffered, (std::deque<int>{0, 1}));
}

TEST_F(PackedDocuments, ChosenPlainItIsPlainAgain) {
  const auto designer = Start({Made("a.kev", Packed("FILEFORMAT=7\r\n" + kTwoLabels))});
  ASSERT_EQ(Format(*designer), "7");
  ASSERT_TRUE(SaveAs(*designer, Work("plain.kev"), 0));
  EXPECT_EQ(Format(*designer), "1");
  EXPECT_EQ(IsPackedFile(Work("plain.kev")), 0);
  EXPECT_EQ(test::ReadBytes(Work("plain.kev")).find("FILEFORMAT"), std::string::npos);
}

TEST_F(PackedDocuments, AnyOtherFormatThanOneIsPackedAndKept) {
  const auto designer = Start({Made("a.kev", "FILEFORMAT=7\r\n" + kTwoLabels)});
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(IsPackedFile(Work("a.kev")), 1);
  ASSERT_TRUE(SaveAs(*designer, Work("b.kev"), 1));
  EXPECT_EQ(Format(*designer), "7");
  ASSERT_TRUE(SaveAs(*designer, Work("c.kev"), 2));
  EXPECT_EQ(Format(*designer), "7");
  EXPECT_EQ(IsPackedFile(Work("c.kev")), 1);
}

TEST_F(PackedDocuments, TheFormatIsComparedAsANumber) {
  const auto designer = Start({Made("a.kev", "FILEFORMAT=1.0\r\n" + kTwoLabels)});
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(IsPackedFile(Work("a.kev")), 0);
}

TEST_F(PackedDocuments, ASaveThatFailsLeavesFileAndFormat) {
  const std::string file = Made("a.kev", kTwoLabels);
  const auto designer = Start({file});
  designer->MarkModified();
  EXPECT_FALSE(SaveAs(*designer, Work("nowhere/b.kev"), 1));
  ExpectMessage(*designer, kTextWriteFailed);
  EXPECT_EQ(Format(*designer), "1");
  EXPECT_EQ(designer->DocumentPath(), file);
  EXPECT_TRUE(designer->Modified());
  ExpectNoWorkFiles();
  // Given up in the chooser, it is the same.
  host_.FilesToSave = {std::nullopt};
  host_.FiltersToTake = {1};
  EXPECT_FALSE(designer->SaveAs());
  EXPECT_EQ(Format(*designer), "1");
}

TEST_F(PackedDocuments, APackedTemplateKeepsItsOwnPath) {
  const std::string file = Made("my report.kev", Packed(kTwoLabels));
  const auto designer = Start({file});
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 2);
  EXPECT_EQ(designer->DocumentPath(), file);
  EXPECT_EQ(designer->DocumentTitle(), "my report.kev");
  EXPECT_EQ(designer->TemplateFolder(), std::filesystem::path(file).parent_path());
  EXPECT_EQ(designer->RecentShown(), std::vector<std::string>{file});
  EXPECT_TRUE(FileExists(*ThumbnailPath(designer->Folders(), file)));
  ExpectNoWorkFiles();
}

TEST_F(PackedDocuments, EveryRoadOpensIt) {
  const std::string file = Made("a.kev", Packed(kTwoLabels));
  const auto designer = Start();
  host_.FilesToOpen = {file};
  EXPECT_TRUE(designer->ChooseAndOpen());
  designer->NewTemplate();
  EXPECT_TRUE(designer->OpenRecent(0));
  designer->NewTemplate();
  EXPECT_TRUE(designer->AskAndOpen(file));
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 2);
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(PackedDocuments, WhatCannotBeUnpackedIsRefusedAsNoTemplate) {
  const std::string open = Made("open.kev", kTwoLabels);
  const auto designer = Start({open});
  const std::string packed = Packed(kTwoLabels);
  for (const std::string& bytes :
       {packed.substr(0, packed.size() / 2), std::string("PP4 1234567890"), std::string("TH4 1234567890"),
        packed.substr(0, 9), Packed("Hello"), Packed(packed)}) {
    const std::string file = Made("bad.kev", bytes);
    EXPECT_FALSE(designer->OpenTemplate(file));
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Detail, file);
    ExpectMessage(*designer, kTextNotATemplate);
    EXPECT_EQ(designer->DocumentPath(), open);
    EXPECT_EQ(test::ReadBytes(file), bytes);
    ExpectNoWorkFiles();
  }
}

TEST_F(PackedDocuments, AlsoWithoutChecksADamagedOneIsRefused) {
  const auto designer = Start({Made("bad.kev", "PP4 1234567890"), "/%%!/"});
  ExpectMessage(*designer, kTextNotATemplate);
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
}

TEST_F(PackedDocuments, OneThatIsTooLargeIsToldWithTheLimit) {
  const auto designer = Start();
  EXPECT_FALSE(designer->OpenTemplate(Made("bomb.kev", Packed(std::string(kLargestFile + 1, ' ')))));
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_TRUE(host_.Messages[0].Detail.ends_with(kReasonPackedTooLarge)) << host_.Messages[0].Detail;
  ExpectMessage(*designer, kTextReadFailed);
  ExpectNoWorkFiles();
}

TEST_F(PackedDocuments, WithoutTheFolderTheReasonIsTold) {
  const auto designer = Start();
  std::filesystem::remove(Temp("Temp"));
  EXPECT_FALSE(designer->OpenTemplate(Made("a.kev", Packed(kTwoLabels))));
  ExpectMessage(*designer, kTextReadFailed);
}

TEST_F(PackedDocuments, WhatWillNotComeBackIsFoundInAPackedFileToo) {
  const auto designer = Start({Made("a.kev", kTwoLabels)});
  ObjectTable& objects = designer->OpenDocument().Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (objects[row].Kind == ObjectKind::Label) objects[row].Strikethrough = kTrue;
  ASSERT_TRUE(SaveAs(*designer, Work("packed.kev"), 1));
  EXPECT_FALSE(designer->Findings().empty());
}

TEST_F(PackedDocuments, TheSavedTextOfAPackedFileIsThePlainOne) {
  EXPECT_EQ(SavedTemplateText(Made("a.kev", Packed(kTwoLabels))), kTwoLabels);
}

TEST_F(PackedDocuments, TheCopyOfTheSampleDataNamesThePackedFile) {
  Made("data.ked", "@A=1\r\n");
  const auto designer = Start({Made("a.kev", "Sample_Kex_file=data.ked\r\n" + kTwoLabels)});
  ASSERT_TRUE(SaveAs(*designer, Work("packed.kev"), 1));
  EXPECT_EQ(test::ReadBytes(designer->Samples().SampleCopyBase() + ".ked"),
            "TEMPLATE=" + Work("packed.kev") + "\r\n@A=1\r\n");
}

}  // namespace
}  // namespace kev
