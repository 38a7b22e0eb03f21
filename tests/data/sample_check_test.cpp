// SPDX-License-Identifier: MIT
#include "data/sample_check.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

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

TEST(SampleCheck, CodesAreThoseOfTheFaults) {
  EXPECT_EQ(SampleCode({SampleFault::None}), "");
  EXPECT_EQ(SampleCode({SampleFault::WrongName}), "1");
  EXPECT_EQ(SampleCode({SampleFault::NoHead, 1}), "2");
  EXPECT_EQ(SampleCode({SampleFault::BadLine, 3}), "3:3");
  EXPECT_EQ(SampleCode({SampleFault::TooLong, 12}), "3:12");
  EXPECT_EQ(SampleCode({SampleFault::BadVariable, 2}), "4");
  EXPECT_EQ(SampleCode({SampleFault::NotReadable}), "");
}

TEST(SampleCheck, EachLineMayEndInItsOwnWay) {
  ExpectKex("TEMPLATE=a\n|A|1|\r\n#B#2#", SampleFault::None, 0);
  // A CR in front of no LF is a character like any other.
  ExpectKex("TEMPLATE=a\n|A|\r|1|\n", SampleFault::None, 0);
  ExpectKex("TEMPLATE=a\n|A|1|\r", SampleFault::BadLine, 2);
  ExpectKex("TEMPLATE=a\r|A|\r|B|\r", SampleFault::None, 0);
}

TEST(SampleCheck, BytesOfEverySortAreCharacters) {
  ExpectKex(
      "TEMPLATE=\xE9\n\xA7"
      "CAF\xC9\xA7\xFF\xA7\n",
      SampleFault::None, 0);
  ExpectKex(std::string_view("TEMPLATE=a\n|A|\0|\n\0B\0\n", 21), SampleFault::None, 0);
  ExpectKex(std::string_view("TEMPLATE=a\n|A|\0\n", 16), SampleFault::BadLine, 2);
  ExpectKed(std::string_view("TEMPLATE=a\n\0@a=1\n", 17), SampleFault::BadVariable, 2);
}

TEST(SampleCheck, OnlyBlanksAreTrimmed) {
  ExpectKex("  TEMPLATE=a  \n  |A|  \n", SampleFault::None, 0);
  ExpectKex("TEMPLATE=a\n|A|\t\n", SampleFault::BadLine, 2);
}

TEST(SampleCheck, UnicodeMarkInFrontOfTheHeadIsTold) {
  for (const std::string_view mark : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
    const SampleCheck check = CheckSampleText(std::string(mark) + "TEMPLATE=a\n", SampleKind::Kex);
    EXPECT_EQ(check.Fault, SampleFault::NoHead);
    EXPECT_TRUE(check.UnicodeMark);
  }
  EXPECT_FALSE(CheckSampleText("x\n", SampleKind::Kex).UnicodeMark);
}

// The text and the file give the same.
void ExpectBoth(const std::string& bytes, SampleFault fault, std::size_t line) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "data.kex", bytes);
  for (const SampleCheck& check :
       {CheckSampleFile(folder / "data.kex"), CheckSampleText(bytes, SampleKind::Kex)}) {
    EXPECT_EQ(check.Fault, fault);
    EXPECT_EQ(check.Line, line);
  }
}

TEST(SampleCheck, LinesOfAMegabyteAreRead) {
  ExpectBoth("TEMPLATE=a\n|A|" + std::string(1 << 20, 'x') + "|\nabc\n", SampleFault::BadLine, 3);
}

TEST(SampleCheck, LineThatNothingCouldHoldIsWrong) {
  const std::string huge(LineReader::kLongestLine, 'x');
  ExpectBoth("TEMPLATE=a\n|A|" + huge + "|\n|B|\n", SampleFault::BadLine, 2);
  ExpectBoth("TEMPLATE=" + huge + "\n|B|\n", SampleFault::BadLine, 1);
  ExpectBoth("TEMPLATE=a\n>" + huge + "\n|B|\n", SampleFault::BadLine, 2);
  ExpectBoth("TEMPLATE=a\n" + std::string(huge.size() + 1, ' ') + "\n|B|\n", SampleFault::BadLine, 2);
  ExpectBoth(huge + huge, SampleFault::NoHead, 1);
  ExpectKed("TEMPLATE=a\n@a=" + huge, SampleFault::BadVariable, 2);
}

TEST(SampleCheck, FileThatCannotBeReadSaysWhy) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder / "folder.kex");
  const SampleCheck check = CheckSampleFile(folder / "folder.kex");
  EXPECT_EQ(check.Fault, SampleFault::NotReadable);
  EXPECT_EQ(check.Reason, "Is a directory");
}

TEST(SampleCheck, LockedFileSaysWhy) {
  if (::geteuid() == 0) GTEST_SKIP() << "everything is readable for root";
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "locked.kex", "TEMPLATE=a\n");
  std::filesystem::permissions(folder / "locked.kex", std::filesystem::perms::none);
  const SampleCheck check = CheckSampleFile(folder / "locked.kex");
  EXPECT_EQ(check.Fault, SampleFault::NotReadable);
  EXPECT_EQ(check.Reason, "Permission denied");
}

TEST(SampleCheck, LargeFileIsReadToItsEndInPieces) {
  const test::TemporaryFolder folder;
  std::string bytes = "TEMPLATE=a\r\n";
  for (int line = 0; line < 500000; ++line)
    bytes += "|ITEMS|12|bolt|\r\n";
  test::WriteBytes(folder / "large.kex", bytes + "abc");
  int pieces = 0;
  const SampleCheck check = CheckSampleFile(folder / "large.kex", [&](std::uint64_t, std::uint64_t size) {
    EXPECT_EQ(size, bytes.size() + 3);
    return ++pieces > 0;
  });
  EXPECT_EQ(check.Fault, SampleFault::BadLine);
  EXPECT_EQ(check.Line, 500002U);
  EXPECT_GT(pieces, 10);
}

TEST(SampleCheck, IsStoppedByItsWatch) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "data.kex", "TEMPLATE=a\r\n|A|\r\n");
  const SampleCheck check = CheckSampleFile(folder / "data.kex", [](auto, auto) { return false; });
  EXPECT_EQ(check.Fault, SampleFault::Stopped);
  EXPECT_EQ(SampleCode(check), "");
}

TEST(SampleCheck, LeavesNoFileOpen) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "good.kex", "TEMPLATE=a\n|A|\n");
  test::WriteBytes(folder / "head.kex", "a\n|A|\n");
  test::WriteBytes(folder / "line.kex", "TEMPLATE=a\nabc\n|A|\n");
  const auto open = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}); };
  const auto before = open();
  for (const char* name : {"good.kex", "head.kex", "line.kex", "gone.kex", ""})
    CheckSampleFile(folder / name);
  CheckSampleFile(folder / "good.kex", [](auto, auto) { return false; });
  EXPECT_EQ(open(), before);
}

}  // namespace
}  // namespace kev
