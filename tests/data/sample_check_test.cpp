// SPDX-License-Identifier: MIT
#include "data/sample_check.h"

#include <gtest/gtest.h>

#include "base/files.h"
#include "support/run_tool.h"

namespace kev {
namespace {

void ExpectKex(std::string_view lines, SampleFault fault, std::size_t line) {
  const SampleCheck check = CheckSampleText(lines, SampleKind::Kex);
  EXPECT_EQ(check.Fault, fault) << lines;
  EXPECT_EQ(check.Line, line) << lines;
}
void ExpectKed(std::string_view lines, SampleFault fault, std::size_t line) {
  const SampleCheck check = CheckSampleText(lines, SampleKind::Ked);
  EXPECT_EQ(check.Fault, fault) << lines;
  EXPECT_EQ(check.Line, line) << lines;
}

TEST(SampleCheck, KindIsToldByTheEndingInAnyCase) {
  EXPECT_EQ(SampleKindOf("data.KeX"), SampleKind::Kex);
  EXPECT_EQ(SampleKindOf("data.ked"), SampleKind::Ked);
  EXPECT_EQ(SampleKindOf("data.kx"), SampleKind::Other);
  EXPECT_EQ(SampleKindOf(""), SampleKind::Other);
}

TEST(SampleCheck, EachRecordHasItsOwnDelimiter) {
  ExpectKex("TEMPLATE=a.kev\r\n|ORDERS|12|A|\r\n#ORDERS#13#B#\r\n>page\r\n", SampleFault::None, 0);
}

TEST(SampleCheck, LineOfOneCharacterIsARecord) {
  ExpectKex("TEMPLATE=a\nx\n", SampleFault::None, 0);
}

TEST(SampleCheck, RecordMustEndAsItBegins) {
  ExpectKex("TEMPLATE=a\n|A|\nabc\n", SampleFault::BadLine, 3);
}

TEST(SampleCheck, BlankLinesArePassedOverAndCounted) {
  ExpectKex("\n  \ntemplate=a\n\nabc\n", SampleFault::BadLine, 5);
  ExpectKed("\nTEMPLATE=a\n\n@a=1\n\n@b\n", SampleFault::BadVariable, 6);
}

TEST(SampleCheck, SecondTemplateLineIsWrongInBothKinds) {
  ExpectKex("TEMPLATE=a\nTEMPLATE=T\n", SampleFault::BadLine, 2);
  ExpectKed("TEMPLATE=a\nTEMPLATE=T\n", SampleFault::BadVariable, 2);
}

TEST(SampleCheck, FirstLineMustNameTheTemplate) {
  ExpectKex("|A|\nTEMPLATE=a\n", SampleFault::NoHead, 1);
  ExpectKed("", SampleFault::NoHead, 0);
}

TEST(SampleCheck, VariableNeedsItsSignAndAnEqualsSign) {
  ExpectKed("TEMPLATE=a\n@total=1\n  @b = 2 \n", SampleFault::None, 0);
  ExpectKed("TEMPLATE=a\n@total\n", SampleFault::BadVariable, 2);
  ExpectKed("TEMPLATE=a\ntotal=1\n", SampleFault::BadVariable, 2);
}

TEST(SampleCheck, RecordHoldsAtMost197Values) {
  std::string record = "|A|";
  for (std::size_t i = 0; i < kMostSampleValues; ++i)
    record += "v|";
  ExpectKex("TEMPLATE=a\n" + record + "\n", SampleFault::None, 0);
  ExpectKex("TEMPLATE=a\n" + record + "v|\n", SampleFault::TooLong, 2);
}

TEST(SampleCheck, FileIsReadByItsName) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "good.KEX", "TEMPLATE=a\r\n|A|1|\r\n");
  test::WriteBytes(folder / "bad.ked", "nothing\r\n");
  test::WriteBytes(folder / "text.txt", "TEMPLATE=a\r\n");
  EXPECT_EQ(CheckSampleFile(folder / "good.KEX").Fault, SampleFault::None);
  EXPECT_EQ(CheckSampleFile(folder / "bad.ked").Fault, SampleFault::NoHead);
  EXPECT_EQ(CheckSampleFile(folder / "text.txt").Fault, SampleFault::WrongName);
  EXPECT_EQ(CheckSampleFile(folder / "gone.kex").Fault, SampleFault::None);
}

TEST(SampleCheck, FileThatCannotBeReadSaysWhy) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "huge.kex", "TEMPLATE=a\n");
  std::filesystem::resize_file(folder / "huge.kex", kLargestFile + 1);
  const SampleCheck check = CheckSampleFile(folder / "huge.kex");
  EXPECT_EQ(check.Fault, SampleFault::NotReadable);
  EXPECT_FALSE(check.Reason.empty());
}

}  // namespace
}  // namespace kev
