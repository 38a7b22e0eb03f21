// SPDX-License-Identifier: MIT
// The report menu with a whole designer behind it: what lies on the disk when the viewer is called.
#include <sys/stat.h>

#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using Texts = std::vector<std::string>;

class ReportMenu : public test::DesignerTest {
 protected:
  std::unique_ptr<Designer> Open(const std::string& sample, std::vector<std::string> more = {}) {
    const std::string head = sample.empty() ? "" : "Sample_Kex_file=" + sample + "\r\n";
    std::vector<std::string> arguments = {Made("a.kev", head + test::TemplateWith("{500;}Alpha{\\n}\r\n"))};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Start(arguments);
  }
  std::string Test() const { return Temp("testreport.kev"); }
  std::string Address(const std::string& file) const { return "ViewKevReport:" + file + "?/&&!H!~!"; }
};

TEST_F(ReportMenu, ATestRunWritesTheDocumentAsItStands) {
  const auto designer = Open("");
  designer->MarkModified();
  designer->RunTest();
  EXPECT_EQ(host_.Addresses, Texts{Address(Test())});
  EXPECT_NE(test::ReadBytes(Test()).find("Alpha"), std::string::npos);
  EXPECT_TRUE(designer->Modified());
  EXPECT_EQ(designer->DocumentPath(), Work("a.kev"));
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(ReportMenu, ATestRunMakesTheCopyOfTheData) {
  Made("data.KEX", "TEMPLATE=old.kev\r\n|ITEMS|1|\r\n");
  const auto designer = Open("data.KEX");
  designer->RunTest();
  EXPECT_EQ(host_.Addresses, Texts{Address(Temp("Sampledata9530.kex"))});
  EXPECT_EQ(test::ReadBytes(Temp("Sampledata9530.kex")), "TEMPLATE=" + Test() + "\r\n|ITEMS|1|\r\n");
  // Within the same second the name is the same.
  designer->RunTest();
  EXPECT_EQ(host_.Addresses[1], host_.Addresses[0]);
  EXPECT_TRUE(FileExists(Temp("Sampledata9530.kex")));
}

TEST_F(ReportMenu, ALaterRunDeletesTheCopyOfTheOneBefore) {
  ClockTime now{9, 5, 30};
  clock_ = [&now] { return now; };
  Made("data.ked", "@a=1\r\n");
  const auto designer = Open("data.ked");
  designer->RunTest();
  now = {23, 0, 1};
  designer->RunTest();
  EXPECT_EQ(host_.Addresses.back(), Address(Temp("Sampledata2301.ked")));
  EXPECT_FALSE(FileExists(Temp("Sampledata9530.ked")));
  EXPECT_TRUE(FileExists(Temp("Sampledata2301.ked")));
}

TEST_F(ReportMenu, AMissingDataFileIsToldOnce) {
  const auto designer = Open("gone.kex");
  designer->RunTest();
  ExpectMessage(*designer, kTextTestDataMissing, BoxIcon::Warning);
  EXPECT_EQ(host_.Addresses, Texts{Address(Test())});
}

TEST_F(ReportMenu, AnotherKindOfDataIsToldAndNothingIsCalled) {
  Made("data.csv", "1;2\r\n");
  const auto designer = Open("data.csv");
  designer->RunTest();
  ExpectMessage(*designer, kTextTestDataKindUnknown, BoxIcon::Warning);
  EXPECT_TRUE(host_.Addresses.empty());
  EXPECT_TRUE(FileExists(Test()));
}

TEST_F(ReportMenu, ATemplateThatCannotBeWrittenIsToldAndTheViewerCalled) {
  const auto designer = Open("");
  std::filesystem::create_directories(Test() + "/not empty");
  designer->RunTest();
  ExpectMessage(*designer, kTextWriteFailed);
  EXPECT_EQ(host_.Addresses, Texts{Address(Test())});
}

TEST_F(ReportMenu, ACopyThatCannotBeWrittenIsToldAndTheViewerCalled) {
  Made("data.kex", "TEMPLATE=a.kev\r\n");
  const auto designer = Open("data.kex");
  std::filesystem::create_directories(Temp("Sampledata9530.kex/not empty"));
  designer->RunTest();
  ExpectMessage(*designer, kTextWriteFailed);
  EXPECT_EQ(host_.Addresses, Texts{Address(Temp("Sampledata9530.kex"))});
}

TEST_F(ReportMenu, ADocumentOpenedWithoutChecksIsTold) {
  const auto designer = Open("", {"/%%!/"});
  designer->RunTest();
  ExpectMessage(*designer, kTextOpenedWithoutChecks, BoxIcon::Information);
  EXPECT_EQ(host_.Addresses.size(), 1U);
}

TEST_F(ReportMenu, AnOpenCellIsStoredFirstAndTheSheetShownAnew) {
  const auto designer = Open("");
  int alpha = 0;
  const ObjectTable& objects = designer->OpenDocument().Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (objects[row].Content == "Alpha") alpha = row;
  designer->Surface().GoToObject(alpha);
  view_.OnCommitCell = [&] { designer->Sheets().Edited(1, "Omega"); };
  view_.ShownTitle.clear();
  designer->RunTest();
  EXPECT_NE(test::ReadBytes(Test()).find("Omega"), std::string::npos);
  EXPECT_EQ(view_.ShownTitle, designer->Text(kTextSheetLabel));
}

TEST_F(ReportMenu, TheCodeOpensInTheUsersEditor) {
  test::WriteBytes(Data("KEV.INI"), "DEFAULT_EDITOR=gedit --wait\r\n");
  const auto designer = Open("");
  designer->ShowTemplateCode();
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Program, "gedit");
  EXPECT_EQ(host_.Programs[0].Start.Arguments, (Texts{"--wait", Test()}));
  EXPECT_TRUE(FileExists(Test()));
}

TEST_F(ReportMenu, TheDataFileOpensInTheUsersEditor) {
  const std::string data = Made("data.kex", "TEMPLATE=a.kev\r\n");
  auto designer = Open("data.kex");
  designer->ShowDataFile();
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Program, "notepad");
  EXPECT_EQ(host_.Programs[0].Start.Arguments, Texts{data});
  designer.reset();
  designer = Open("");
  designer->ShowDataFile();
  ExpectMessage(*designer, kTextNoSampleFile, BoxIcon::Warning);
}

}  // namespace
}  // namespace kev
