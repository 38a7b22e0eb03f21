// SPDX-License-Identifier: MIT
#include "data/sample_survey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/run_tool.h"

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SampleSurveyTest : public testing::Test {
 protected:
  SampleSurvey Of(const std::string& bytes, const std::string& name = "data.kex") {
    test::WriteBytes(folder_ / name, bytes);
    return SurveySampleFile(folder_ / name, CodePage::Default());
  }

  test::TemporaryFolder folder_;
};

TEST_F(SampleSurveyTest, CountsRecordsByTheirNames) {
  const SampleSurvey survey =
      Of("TEMPLATE=a\r\n|ORDERS|12|A|\r\n#Items#1#\r\n>page\r\n| orders |13|\r\n\r\n;ITEMS;2;3;4;\r\n");
  EXPECT_EQ(survey.Check.Fault, SampleFault::None);
  EXPECT_THAT(survey.Types, ElementsAre(RecordType{"ORDERS", 2, 2}, RecordType{"Items", 2, 1}));
  EXPECT_EQ(survey.Records, 4U);
  EXPECT_EQ(survey.Pages, 1U);
  EXPECT_EQ(survey.Lines, 7U);
}

TEST_F(SampleSurveyTest, RecordsWithoutANameAreOfNoType) {
  const SampleSurvey survey = Of("TEMPLATE=a\nx\n||\n|  |1|\n|END|\n");
  EXPECT_THAT(survey.Types, ElementsAre(RecordType{"END", 1, 0}));
  EXPECT_EQ(survey.Records, 4U);
}

TEST_F(SampleSurveyTest, TypeBehindThe150thIsDropped) {
  std::string bytes = "TEMPLATE=a\n";
  for (int round = 0; round < 2; ++round)
    for (int type = 1; type <= 151; ++type)
      bytes += "|R" + std::to_string(type) + "|v|\n";
  const SampleSurvey survey = Of(bytes);
  ASSERT_EQ(survey.Types.size(), 150U);
  EXPECT_EQ(survey.Types.back(), (RecordType{"R150", 2, 1}));
  EXPECT_EQ(survey.Records, 302U);
}

TEST_F(SampleSurveyTest, NamesThatLookAlikeAreKeptApart) {
  // All of one length, with the same first and last character.
  std::string bytes = "TEMPLATE=a\n";
  for (int round = 0; round < 3; ++round)
    for (const char middle : {'B', 'C', 'd', 'D'})
      bytes += std::string("|A") + middle + "A|\n";
  const SampleSurvey survey = Of(bytes);
  EXPECT_THAT(survey.Types,
              ElementsAre(RecordType{"ABA", 3, 0}, RecordType{"ACA", 3, 0}, RecordType{"AdA", 6, 0}));
}

TEST_F(SampleSurveyTest, ABadLineEndsIt) {
  const SampleSurvey survey = Of("TEMPLATE=a\n|A|\nabc\n|B|\n");
  EXPECT_EQ(SampleCode(survey.Check), "3:3");
  EXPECT_THAT(survey.Types, ElementsAre(RecordType{"A", 1, 0}));
  EXPECT_EQ(survey.Lines, 3U);
}

TEST_F(SampleSurveyTest, CountsVariables) {
  const SampleSurvey survey = Of("\nTEMPLATE=a\n@a=1\n\n@b=\n@a=2\n", "data.KED");
  EXPECT_EQ(survey.Check.Fault, SampleFault::None);
  EXPECT_EQ(survey.Variables, 3U);
  EXPECT_THAT(survey.Types, IsEmpty());
  EXPECT_EQ(SampleCode(Of("TEMPLATE=a\n@total\n", "data.ked").Check), "4");
}

TEST_F(SampleSurveyTest, FileMustBeThereAndReadable) {
  const SampleSurvey missing = SurveySampleFile(folder_ / "none.kex", CodePage::Default());
  EXPECT_EQ(missing.Check.Fault, SampleFault::NotReadable);
  EXPECT_EQ(missing.Check.Reason, "No such file or directory");
  std::filesystem::create_directory(folder_ / "folder.kex");
  EXPECT_EQ(SurveySampleFile(folder_ / "folder.kex", CodePage::Default()).Check.Reason, "Is a directory");
  EXPECT_EQ(SampleCode(Of("TEMPLATE=a\n", "data.txt").Check), "1");
  EXPECT_EQ(SampleCode(Of("").Check), "2");
}

TEST_F(SampleSurveyTest, IsStoppedByItsWatch) {
  test::WriteBytes(folder_ / "data.kex", "TEMPLATE=a\n|A|\n");
  const SampleSurvey survey =
      SurveySampleFile(folder_ / "data.kex", CodePage::Default(), [](auto, auto) { return false; });
  EXPECT_EQ(survey.Check.Fault, SampleFault::Stopped);
}

TEST_F(SampleSurveyTest, ReadsTheVariablesInTheirOrder) {
  test::WriteBytes(folder_ / "data.ked", "TEMPLATE=a\r\n\r\n  @b = 1\r\n@a=x=y\r\n@b=2\r\n");
  const SampleVariables all = ReadSampleVariables(folder_ / "data.ked", 3);
  EXPECT_THAT(all.Names, ElementsAre("@b", "@a", "@b"));
  EXPECT_FALSE(all.TooMany);
  EXPECT_TRUE(ReadSampleVariables(folder_ / "data.ked", 2).TooMany);
  EXPECT_TRUE(ReadSampleVariables(folder_ / "none.ked", 2).Failure);
}

}  // namespace
}  // namespace kev
