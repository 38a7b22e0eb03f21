// SPDX-License-Identifier: MIT
#include "data/next_variable.h"

#include <gtest/gtest.h>

#include "support/run_tool.h"
#include "support/sample_page.h"

namespace kev {
namespace {

using Names = std::vector<std::string>;

class NextVariables : public testing::Test {
 protected:
  NextVariables() {
    bar_ = test::AddSubsection(document_, "[DATA] [ITEMS:@code,@text, @sum]", 0, 2000);
    document_.Objects[bar_].SectionName = "ITEMS";
  }
  int Label(const std::string& text, const std::string& owner = "ITEMS") {
    const int row = test::AddLabel(document_, "0", 500, text);
    document_.Objects[row].OwnerName = owner;
    return row;
  }
  std::string Written(const std::string& name, const std::string& bytes) const {
    const std::string path = folder_ / name;
    test::WriteBytes(path, bytes);
    return path;
  }
  std::optional<std::string> Next(const std::string& path) const {
    return FindNextVariable(document_, bar_, path).Name;
  }

  test::TemporaryFolder folder_;
  Document document_;
  int bar_ = 0;
};

TEST(SampleForms, GoByTheEndingInAnyCase) {
  EXPECT_EQ(SampleFormOf("/a/data.kex"), SampleForm::Records);
  EXPECT_EQ(SampleFormOf("data.KeX"), SampleForm::Records);
  EXPECT_EQ(SampleFormOf("data.kx"), SampleForm::Records);
  EXPECT_EQ(SampleFormOf("data.ked"), SampleForm::Variables);
  EXPECT_EQ(SampleFormOf("DATA.KD"), SampleForm::Variables);
  EXPECT_EQ(SampleFormOf("data.csv"), SampleForm::None);
  EXPECT_EQ(SampleFormOf("kex"), SampleForm::None);
  EXPECT_EQ(SampleFormOf(""), SampleForm::None);
}

TEST_F(NextVariables, OfAFileAreTheTrimmedNamesBeforeTheSign) {
  const std::string path = Written(
      "a.ked", "TEMPLATE=a.kev\r\n@one=1\r\n  @two = 2=3\r\n\r\n>page\n@three\nfour=4\n@last=5");
  for (const char* name : {"@one", "@two", "@three", "@last"}) {
    EXPECT_EQ(Next(path), name);
    Label(name);
  }
  EXPECT_EQ(Next(path), std::nullopt);
  EXPECT_EQ(Next(Written("empty.ked", "")), std::nullopt);
}

TEST_F(NextVariables, AFileOfAnySizeIsReadAsFarAsItIsNeeded) {
  const std::string path = Written("large.ked", "@one=1\n@two=2\n" + std::string(65 << 20, '\n'));
  Label("@one");
  const NextVariable next = FindNextVariable(document_, bar_, path);
  EXPECT_EQ(next.Name, "@two");
  EXPECT_FALSE(next.FileMissing);
}

TEST_F(NextVariables, TheFirstOfTheFileComesFirst) {
  EXPECT_EQ(Next(Written("a.ked", "TEMPLATE=x\r\n@one=1\r\n@two=2\r\n")), "@one");
}

TEST_F(NextVariables, ANameThatALabelShowsIsPassedOver) {
  const std::string path = Written("a.ked", "@one=1\r\n@two=2\r\n");
  Label("@one");
  EXPECT_EQ(Next(path), "@two");
  Label("@two");
  EXPECT_EQ(Next(path), std::nullopt);
}

TEST_F(NextVariables, ANameInsideAnotherTextCountsAsUsedInAnyCase) {
  const std::string path = Written("a.ked", "@one=1\r\n@two=2\r\n");
  Label("Sum of @ONEs");
  EXPECT_EQ(Next(path), "@two");
}

TEST_F(NextVariables, OnlyLabelsOfTheSameSubsectionCount) {
  const std::string path = Written("a.ked", "@one=1\r\n@two=2\r\n");
  Label("@one", "OTHER");
  const int box = Label("@one");
  document_.Objects[box].Kind = ObjectKind::TextBox;
  EXPECT_EQ(Next(path), "@one");
}

TEST_F(NextVariables, ARecordFileGivesTheFieldsOfTheHeadLineEvenWhereItIsMissing) {
  const std::string missing = folder_ / "none.kex";
  EXPECT_EQ(Next(missing), "@code");
  Label("@code");
  Label("@text");
  EXPECT_EQ(Next(missing), "@sum");
  Label("@sum");
  EXPECT_EQ(Next(missing), std::nullopt);
  EXPECT_FALSE(FindNextVariable(document_, bar_, missing).FileMissing);
}

TEST_F(NextVariables, AMissingVariableFileIsTold) {
  const NextVariable next = FindNextVariable(document_, bar_, folder_ / "none.ked");
  EXPECT_TRUE(next.FileMissing);
  EXPECT_EQ(next.Name, std::nullopt);
}

TEST_F(NextVariables, WithoutSampleDataThereIsNone) {
  const NextVariable next = FindNextVariable(document_, bar_, "");
  EXPECT_FALSE(next.FileMissing);
  EXPECT_EQ(next.Name, std::nullopt);
}

}  // namespace
}  // namespace kev
