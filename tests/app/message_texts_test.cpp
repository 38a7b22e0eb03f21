// SPDX-License-Identifier: MIT
#include "app/message_texts.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <set>

#include "base/text_numbers.h"
#include "base/files.h"
#include "base/reasons.h"
#include "base/text.h"
#include "document/columns.h"
#include "document/object_table.h"
#include "support/run_tool.h"

namespace kev {
namespace {

LanguageTexts TextsOf(char letter) {
  const Result<LanguageTexts> texts = LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", letter);
  EXPECT_TRUE(texts);
  return texts ? *texts : LanguageTexts();
}

template <typename Work>
std::string ReasonOf(Work work) {
  try {
    work();
  } catch (const std::exception& failure) {
    return failure.what();
  }
  return {};
}

TEST(MessageTexts, SayInEnglishWhatTheCommandLineSays) {
  const LanguageTexts english = TextsOf('E');
  std::set<int> numbers;
  for (std::size_t kind = 0; kind < kFindingKinds; ++kind) {
    const auto finding = static_cast<FindingKind>(kind);
    EXPECT_EQ(english.Text(FindingTextNumber(finding)), FindingText(finding));
    numbers.insert(FindingTextNumber(finding));
  }
  EXPECT_EQ(numbers.size(), kFindingKinds);
}

TEST(MessageTexts, TranslateTheReasonsThatTheProgramGives) {
  const test::TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  const std::string reasons[] = {ReasonOf([] { ObjectTable()[ObjectTable::kLastRow + 1].Y = 1; }),
                                 ReasonOf([] { ColumnTable()[ColumnTable::kLastSlot + 1].Position = 1; }),
                                 ReasonOf([] { SplitTokens(std::string(300, ','), ','); }),
                                 ReadWholeFile(folder / "pipe").Error().reason};
  const LanguageTexts english = TextsOf('E');
  const LanguageTexts italian = TextsOf('I');
  for (const std::string& reason : reasons) {
    EXPECT_EQ(ReasonInLanguage(english, reason), reason);
    EXPECT_NE(ReasonInLanguage(italian, reason), reason);
    EXPECT_NE(ReasonInLanguage(italian, reason), "");
  }
  EXPECT_EQ(ReasonInLanguage(italian, kReasonOutOfMemory), "memoria insufficiente");
}

TEST(MessageTexts, LeaveTheSystemsOwnReasons) {
  EXPECT_EQ(ReasonInLanguage(TextsOf('S'), "Permission denied"), "Permission denied");
}

TEST(MessageTexts, AreNativeBytesInMessages) {
  EXPECT_EQ(ReasonInLanguage(TextsOf('P'), kReasonOutOfMemory),
            "n\xC3\xA3o h\xC3\xA1 mem\xC3\xB3ria suficiente");
}

}  // namespace
}  // namespace kev
