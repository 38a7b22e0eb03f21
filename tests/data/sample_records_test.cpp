// SPDX-License-Identifier: MIT
#include "data/sample_records.h"

#include <gmock/gmock.h>

#include "support/run_tool.h"

namespace kev {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<RecordType> TypesOf(std::string_view bytes) {
  return RecordTypesOf(bytes, CodePage::Default());
}

std::vector<std::string> NamesOf(std::string_view bytes) {
  std::vector<std::string> names;
  for (const RecordType& type : TypesOf(bytes))
    names.push_back(type.Name);
  return names;
}

std::string RecordOf(std::string_view name, int values) {
  std::string line = "|" + std::string(name) + "|";
  for (int n = 0; n < values; ++n)
    line += "v|";
  return line + "\r\n";
}

TEST(SampleRecords, HaveANameAndValuesBetweenTheDelimiters) {
  SampleRecordReader reader("TEMPLATE=a.kev\r\n|ORDERS|12|A||\r\n");
  const auto record = reader.Next();
  ASSERT_TRUE(record);
  EXPECT_EQ(record->Name, "ORDERS");
  EXPECT_THAT(record->Values, ElementsAre("12", "A", ""));
  EXPECT_EQ(record->Line, 2U);
  EXPECT_FALSE(reader.Next());
}

TEST(SampleRecords, ChooseADelimiterInEachLine) {
  EXPECT_THAT(TypesOf("TEMPLATE=a\n|ORDERS|12|A|\n#ORDERS#13#B#\n~OTHER~x|y~\n"),
              ElementsAre(RecordType{"ORDERS", 2, 2}, RecordType{"OTHER", 1, 1}));
}

TEST(SampleRecords, PassOverEmptyLinesAndCountThem) {
  SampleRecordReader reader("\r\n   \r\nTEMPLATE=a\r\n\r\n|A|\r\n  \r\n|B|");
  EXPECT_EQ(reader.Next().value().Line, 5U);
  EXPECT_EQ(reader.Next().value().Line, 7U);
  EXPECT_FALSE(reader.Next());
}

TEST(SampleRecords, PassOverPageMarksAndLinesThatAreNone) {
  EXPECT_THAT(NamesOf("TEMPLATE=a\n> page 1\n>PAGE>\nabc\n|A|1|\n|B|1\nTEMPLATE=|T\n"), ElementsAre("A"));
}

TEST(SampleRecords, AreReadWithoutTheBlanksAroundTheLine) {
  EXPECT_THAT(TypesOf("TEMPLATE=a\n   |A|1|2|  \n"), ElementsAre(RecordType{"A", 1, 2}));
}

TEST(SampleRecords, OfOneCharacterHaveNoNameAndNoType) {
  SampleRecordReader reader("TEMPLATE=a\nx\n||\n");
  for (int n = 0; n < 2; ++n) {
    const auto record = reader.Next();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->Name, "");
    EXPECT_THAT(record->Values, IsEmpty());
  }
  EXPECT_THAT(TypesOf("TEMPLATE=a\nx\n||\n"), IsEmpty());
}

TEST(SampleRecords, AreNoneWhereTheFirstLineNamesNoTemplate) {
  EXPECT_THAT(NamesOf("|A|1|\nTEMPLATE=a\n|B|1|\n"), IsEmpty());
  EXPECT_THAT(NamesOf(""), IsEmpty());
  EXPECT_THAT(NamesOf("  template=a\n|A|1|\n"), ElementsAre("A"));
}

TEST(SampleRecords, AreOfOneTypeInAnyCaseAndWithBlanksAroundTheName) {
  EXPECT_THAT(TypesOf("TEMPLATE=a\n|Line\xE9|1|\n| LINE\xC9 |1|2|\n"),
              ElementsAre(RecordType{"Line\xE9", 2, 1}));
}

TEST(SampleRecords, HoldUpTo197Values) {
  EXPECT_THAT(TypesOf("TEMPLATE=a\n" + RecordOf("FULL", 197) + RecordOf("OVER", 198)),
              ElementsAre(RecordType{"FULL", 1, 197}));
}

TEST(SampleRecords, HaveUpTo150Types) {
  std::string bytes = "TEMPLATE=a\n";
  for (int n = 1; n <= 151; ++n)
    bytes += RecordOf("T" + std::to_string(n), 1);
  const std::vector<RecordType> types = TypesOf(bytes + RecordOf("T150", 1));
  ASSERT_EQ(types.size(), 150U);
  EXPECT_EQ(types.back(), (RecordType{"T150", 2, 1}));
}

TEST(SampleRecords, AreReadFromARecordFileAlone) {
  const test::TemporaryFolder folder;
  const std::string bytes = "TEMPLATE=a\n|A|1|\n";
  test::WriteBytes(folder / "data.KeX", bytes);
  test::WriteBytes(folder / "data.ked", bytes);
  EXPECT_EQ(ReadRecordTypes(folder / "data.KeX", CodePage::Default()).size(), 1U);
  EXPECT_THAT(ReadRecordTypes(folder / "data.ked", CodePage::Default()), IsEmpty());
  EXPECT_THAT(ReadRecordTypes(folder / "missing.kex", CodePage::Default()), IsEmpty());
  EXPECT_THAT(ReadRecordTypes("", CodePage::Default()), IsEmpty());
  EXPECT_THAT(ReadRecordTypes("kex", CodePage::Default()), IsEmpty());
}

TEST(FieldNames, AreTheWordAndANumberOfAtLeastTwoDigits) {
  EXPECT_THAT(FieldNames(2, "Field"), ElementsAre("@Field01", "@Field02"));
  EXPECT_EQ(FieldNames(197, "Campo").back(), "@Campo197");
  EXPECT_THAT(FieldNames(0, "Field"), IsEmpty());
}

TEST(FieldsOfHead, StandBehindTheLastColon) {
  EXPECT_THAT(FieldsOfHead("[ITEMS:@code, @text ,@price]"), ElementsAre("@code", "@text", "@price"));
  EXPECT_THAT(FieldsOfHead("[DATA] [ITEMS:@code,@text]"), ElementsAre("@code", "@text"));
  EXPECT_THAT(FieldsOfHead("[A:B:@c]"), ElementsAre("@c"));
  EXPECT_THAT(FieldsOfHead("[ITEMS:a,,b,]"), ElementsAre("a", "b"));
  EXPECT_THAT(FieldsOfHead("[OPEN:@c"), ElementsAre("@c"));
  EXPECT_THAT(FieldsOfHead("[END:]"), IsEmpty());
  EXPECT_THAT(FieldsOfHead("[ITEMS]"), IsEmpty());
}

}  // namespace
}  // namespace kev
