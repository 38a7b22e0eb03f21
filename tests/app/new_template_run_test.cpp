// SPDX-License-Identifier: MIT
#include "app/new_template_run.h"

#include <gmock/gmock.h>

#include "app/designer_fixture.h"
#include "base/files.h"

namespace kev {
namespace {

using test::CountOf;
using test::ReadBytes;
using test::WriteBytes;
using testing::HasSubstr;

class NewTemplateRunTest : public test::DesignerTest {
 protected:
  NewTemplateRunTest() : designer(Start()) { host_.Messages.clear(); }

  // A data file, chosen as by the button and checked.
  void Open(const std::string& name, const std::string& bytes) {
    Made(name, bytes);
    run.emplace(*designer);
    run->ChooseStart(TemplateStart::Records);
    host_.FilesToOpen.push_back(Work(name));
    run->Browse();
  }
  std::string Noname() const { return ReadBytes(Temp("noname.kev")); }
  std::string Message() {
    if (host_.Messages.size() != 1) return std::to_string(host_.Messages.size()) + " messages";
    return host_.Messages.front().Text;
  }
  const std::string& Text(int number) { return designer->Text(number); }

  std::unique_ptr<Designer> designer;
  std::optional<NewTemplateRun> run;
};

TEST_F(NewTemplateRunTest, MakesATemplateOfRecordsAndOpensItAsNew) {
  Open("data.kex", "TEMPLATE=a\r\n|ORDERS|1|A|\r\n|ITEMS|x|\r\n>\r\n");
  EXPECT_EQ(run->StatusText(), Text(kTextAssistantGood) + "\n" + Text(kTextAssistantCounts) + " 2 - 1 - 4");
  ASSERT_TRUE(CanCreate(run->State()));
  EXPECT_TRUE(run->Create());
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(designer->DocumentPath(), "");
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_FALSE(designer->Modified());
  EXPECT_EQ(CountOf(*designer, ObjectKind::Subsection), 5);
  EXPECT_EQ(designer->SampleDataPath(), Work("data.kex"));
  EXPECT_EQ(Noname(),
            RecordsTemplateText({"200", Work("data.kex")}, {{"ORDERS", 1, 2}, {"ITEMS", 1, 1}}, "Field"));
}

TEST_F(NewTemplateRunTest, MakesATemplateOfVariables) {
  Open("data.ked", "TEMPLATE=a\r\n@number=1\r\n\r\n@total=2\r\n");
  EXPECT_EQ(run->State().Start, TemplateStart::Variables);
  EXPECT_EQ(run->StatusText(), Text(kTextAssistantGood) + "\n" + Text(kTextVariableCount) + " 2");
  EXPECT_TRUE(run->Create());
  EXPECT_EQ(CountOf(*designer, ObjectKind::Label), 2);
  EXPECT_EQ(Noname(), VariablesTemplateText({"200", Work("data.ked")}, {"@number", "@total"}));
}

TEST_F(NewTemplateRunTest, SpacingIsThatOfTheOpenDocument) {
  designer->OpenDocument().Settings[Setting::Spacing] = "350";
  Open("data.kex", "TEMPLATE=a\r\n|A|1|\r\n");
  EXPECT_TRUE(run->Create());
  EXPECT_THAT(Noname(), HasSubstr("\r\nSPACING=350\r\n"));
}

TEST_F(NewTemplateRunTest, WithoutADataFileTheTemplateIsEmpty) {
  run.emplace(*designer);
  ASSERT_TRUE(CanCreate(run->State()));
  const int replaced = view_.Replaced;
  EXPECT_TRUE(run->Create());
  EXPECT_EQ(view_.Replaced, replaced + 1);
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
}

TEST_F(NewTemplateRunTest, AsksForUnsavedChangesFirst) {
  Open("data.kex", "TEMPLATE=a\r\n|A|1|\r\n");
  designer->MarkModified();
  const std::string before = Noname();
  host_.Answers = {BoxAnswer::Cancel};
  const int replaced = view_.Replaced;
  EXPECT_FALSE(run->Create());
  EXPECT_EQ(view_.Replaced, replaced);
  EXPECT_EQ(Noname(), before);
  EXPECT_TRUE(designer->Modified());
  host_.Answers = {BoxAnswer::No};
  EXPECT_TRUE(run->Create());
  EXPECT_FALSE(designer->Modified());
}

TEST_F(NewTemplateRunTest, TellsThatTheTemplateCannotBeWrittenAndOpensItFromMemory) {
  Open("data.kex", "TEMPLATE=a\r\n|A|1|\r\n");
  std::filesystem::remove(Temp("noname.kev"));
  std::filesystem::create_directory(Temp("noname.kev"));
  const int replaced = view_.Replaced;
  EXPECT_TRUE(run->Create());
  EXPECT_THAT(Message(), HasSubstr(Text(kTextWriteFailed)));
  EXPECT_EQ(host_.Messages[0].Detail, Temp("noname.kev") + "\r\nIs a directory");
  EXPECT_EQ(view_.Replaced, replaced + 1);
  EXPECT_EQ(designer->DocumentTitle(), "Noname.kev");
  EXPECT_EQ(designer->DocumentPath(), "");
  EXPECT_EQ(designer->SampleDataPath(), Work("data.kex"));
  EXPECT_FALSE(designer->Modified());
}

TEST_F(NewTemplateRunTest, TellsWhatIsWrongWithALine) {
  Open("data.kex", "TEMPLATE=a\r\n|A|1|\r\nabc\r\n");
  EXPECT_EQ(Message(), Text(kTextKexLineBad) + " " + Text(kTextLineWord) + " 3");
  EXPECT_EQ(host_.Messages[0].Title, "Kev Visual Editor");
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(run->StatusText(), Text(kTextAssistantBad));
  EXPECT_FALSE(CanCreate(run->State()));
  host_.Messages.clear();
  Open("data.ked", "TEMPLATE=a\r\n@total\r\n");
  EXPECT_EQ(Message(), Text(kTextKedLineBad) + " " + Text(kTextLineWord) + " 2");
  host_.Messages.clear();
  Open("data.kex", "\r\nabc\r\n");
  EXPECT_EQ(Message(), Text(kTextSampleFileHead) + " " + Text(kTextLineWord) + " 2");
  host_.Messages.clear();
  Open("data.kex", "\xEF\xBB\xBFTEMPLATE=a\r\n");
  EXPECT_EQ(Message(),
            Text(kTextSampleFileHead) + " " + Text(kTextLineWord) + " 1\r\n" + Text(kTextUnicodeMark));
}

TEST_F(NewTemplateRunTest, MissingFileIsTold) {
  run.emplace(*designer, Work("none.kex"));
  EXPECT_EQ(run->State().Start, TemplateStart::Records);
  run->Check();
  EXPECT_EQ(Message(), Text(kTextSampleFileNotOpened) + "\r\n");
  EXPECT_EQ(host_.Messages[0].Detail, Work("none.kex") + "\r\nNo such file or directory");
  EXPECT_EQ(host_.Messages[0].Title, "Kev Visual Editor");
}

TEST_F(NewTemplateRunTest, FileIsCheckedAgainAfterItWasEdited) {
  Open("data.kex", "TEMPLATE=a\r\nabc\r\n");
  host_.Messages.clear();
  run->Edit();
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Program, "notepad");
  EXPECT_EQ(host_.Programs[0].Start.Arguments, std::vector<std::string>{Work("data.kex")});
  Made("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  run->Check();
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_TRUE(CanCreate(run->State()));
}

TEST_F(NewTemplateRunTest, FileIsEditedInTheEditorOfTheUser) {
  WriteBytes(Data("KEV.INI"), "DEFAULT_EDITOR=gedit --wait\r\n");
  designer = Start();
  host_.Messages.clear();
  Open("bad one.kex", "TEMPLATE=a\r\nabc\r\n");
  run->Edit();
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Program, "gedit");
  EXPECT_EQ(host_.Programs[0].Start.Arguments, (std::vector<std::string>{"--wait", Work("bad one.kex")}));
}

TEST_F(NewTemplateRunTest, FileIsNoLongerGoodWhenTheTemplateIsMade) {
  Open("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  Made("data.kex", "TEMPLATE=a\r\nabc\r\n");
  const int replaced = view_.Replaced;
  EXPECT_FALSE(run->Create());
  EXPECT_EQ(view_.Replaced, replaced);
  EXPECT_THAT(Message(), HasSubstr(Text(kTextKexLineBad)));
  EXPECT_FALSE(CanCreate(run->State()));
}

TEST_F(NewTemplateRunTest, ACheckCanBeStopped) {
  Open("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  std::vector<int> steps;
  run->OnProgress = [&] {
    EXPECT_TRUE(run->State().Checking);
    steps.push_back(run->State().Progress1);
    run->Stop();
  };
  run->Check();
  EXPECT_EQ(steps, std::vector<int>{1000});
  EXPECT_EQ(run->StatusText(), Text(kTextCheckStopped));
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_FALSE(CanCreate(run->State()));
  EXPECT_FALSE(run->State().Checking);
  EXPECT_FALSE(run->Create());
}

TEST_F(NewTemplateRunTest, PathThatTheTemplateCannotHoldIsTold) {
  Open("\xE6\x97\xA5.kex", "TEMPLATE=a\r\n|A|\r\n");
  EXPECT_TRUE(CanCreate(run->State()));
  EXPECT_FALSE(run->Create());
  EXPECT_THAT(Message(), HasSubstr(Text(kTextCharacterNotInPage)));
  EXPECT_EQ(host_.Messages[0].Detail, "\xE6\x97\xA5");
}

TEST_F(NewTemplateRunTest, PathIsWrittenInTheCodePageOfTheTemplate) {
  Open("\xC3\xA9t\xC3\xA9.kex", "TEMPLATE=a\r\n|A|\r\n");
  EXPECT_TRUE(run->Create());
  EXPECT_THAT(Noname(), HasSubstr("\xE9t\xE9.kex\r\n"));
  EXPECT_EQ(designer->SampleDataPath(), Work("\xC3\xA9t\xC3\xA9.kex"));
}

TEST_F(NewTemplateRunTest, RecordNameWithAColonIsAFinding) {
  Open("data.kex", "TEMPLATE=a\r\n|ORDERS|1|\r\n|TAX:EU|1|2|\r\n");
  EXPECT_TRUE(run->Create());
  EXPECT_THAT(Noname(), HasSubstr(" [TAX:EU:@Field01,@Field02]\r\n"));
  ASSERT_EQ(designer->Findings().size(), 1U);
  const Finding& finding = designer->Findings()[0];
  EXPECT_EQ(finding.Kind, FindingKind::NameWithColon);
  EXPECT_EQ(finding.Text, "TAX:EU");
  EXPECT_EQ(designer->OpenDocument().Objects[finding.Row].SectionTitle, "[DATA] [TAX:EU:@Field01,@Field02]");
}

TEST_F(NewTemplateRunTest, MoreVariablesThanATemplateHoldsAreTold) {
  std::string bytes = "TEMPLATE=a\n";
  for (int n = 0; n <= 2000; ++n)
    bytes += "@v" + std::to_string(n) + "=\n";
  Open("data.ked", bytes);
  const int replaced = view_.Replaced;
  EXPECT_FALSE(run->Create());
  EXPECT_EQ(view_.Replaced, replaced);
  EXPECT_THAT(Message(), HasSubstr(Text(kTextReadFailed)));
}

TEST_F(NewTemplateRunTest, AnotherKindOfFileIsForgottenWithItsOption) {
  Open("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  run->ChooseStart(TemplateStart::Nothing);
  EXPECT_TRUE(CanCreate(run->State()));
  EXPECT_EQ(run->StatusText(), "");
  run->ChooseStart(TemplateStart::Records);
  EXPECT_TRUE(CanCreate(run->State()));
  run->ChooseStart(TemplateStart::Variables);
  EXPECT_EQ(run->State().Text1, "");
  EXPECT_FALSE(CanCreate(run->State()));
}

TEST_F(NewTemplateRunTest, TypedPathIsCheckedAnew) {
  Open("data.kex", "TEMPLATE=a\r\n|A|\r\n");
  run->TypePath(Work("other.ked"));
  EXPECT_EQ(run->State().Start, TemplateStart::Variables);
  EXPECT_FALSE(CanCreate(run->State()));
  EXPECT_EQ(run->StatusText(), "");
}

TEST_F(NewTemplateRunTest, BlanksAroundATypedPathAreNoPartOfIt) {
  Made("data.ked", "TEMPLATE=a\r\n@number=1\r\n");
  run.emplace(*designer);
  run->ChooseStart(TemplateStart::Records);
  run->TypePath(" " + Work("data.ked") + "  ");
  EXPECT_EQ(run->State().Start, TemplateStart::Variables);
  run->Check();
  EXPECT_EQ(run->StatusText(), Text(kTextAssistantGood) + "\n" + Text(kTextVariableCount) + " 1");
  run->ChooseStart(TemplateStart::Nothing);
  run->ChooseStart(TemplateStart::Variables);
  EXPECT_TRUE(CanCreate(run->State()));
}

TEST_F(NewTemplateRunTest, ChooserShowsTheFilesOfTheOption) {
  run.emplace(*designer);
  run->Browse();
  EXPECT_TRUE(host_.Choices.empty());
  run->ChooseStart(TemplateStart::Variables);
  run->Browse();
  ASSERT_EQ(host_.Choices.size(), 1U);
  EXPECT_EQ(host_.Choices[0].Filters.front().second, "*.ked *.KED");
  EXPECT_EQ(run->State().Text1, "");
}

}  // namespace
}  // namespace kev
