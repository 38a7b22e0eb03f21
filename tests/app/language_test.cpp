// SPDX-License-Identifier: MIT
#include "app/language.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <stdexcept>
#include <string>

#include "base/shift_text.h"
#include "support/run_tool.h"

namespace kev {
namespace {

std::string Encoded(std::initializer_list<std::string> lines, const std::string& lineEnd = "\r\n") {
  std::string file;
  for (const std::string& line : lines) {
    file += UnshiftText(line, kLanguageFileKey) + lineEnd;
  }
  return file;
}

LanguageTexts Loaded(std::string_view bytes, char letter) {
  const Result<LanguageTexts> texts = LoadLanguageBytes(bytes, letter);
  EXPECT_TRUE(texts) << letter;
  return texts ? *texts : LanguageTexts();
}

bool AllEmpty(const LanguageTexts& texts) {
  for (int number = 0; number <= kHighestTextNumber; ++number) {
    if (!texts.Text(number).empty()) {
      return false;
    }
  }
  return true;
}

TEST(LanguageTexts, AreEmptyAtFirstAndKnowTheirBounds) {
  LanguageTexts texts;
  EXPECT_TRUE(AllEmpty(texts));
  texts.SetText(1300, "last");
  EXPECT_EQ(texts.Text(1300), "last");
  EXPECT_THROW(texts.Text(-1), std::out_of_range);
  EXPECT_THROW(texts.Text(1301), std::out_of_range);
  EXPECT_THROW(texts.SetText(1301, ""), std::out_of_range);
}

TEST(LoadLanguage, TakesTheLinesOfTheActiveLanguage) {
  const std::string file =
      Encoded({"E0760 Title", "S0760 T\xEDtulo", "E0000 Zero", "S0000 Cero", "E1300 End", "S1300 Fin"});
  const LanguageTexts english = Loaded(file, 'E');
  const LanguageTexts spanish = Loaded(file, 'S');
  EXPECT_EQ(english.Text(760), "Title");
  EXPECT_EQ(english.Text(1300), "End");
  EXPECT_EQ(spanish.Text(760), "T\xEDtulo");
  EXPECT_EQ(spanish.Text(0), "Cero");
  EXPECT_EQ(spanish.Text(1), "");
}

TEST(LoadLanguage, ShowsEnglishForAnEmptyTranslation) {
  const LanguageTexts texts =
      Loaded(Encoded({"E0803 Undo", "S0803 ", "E0804 Redo", "S0804", "I0804 x"}), 'S');
  EXPECT_EQ(texts.Text(803), "Undo");
  EXPECT_EQ(texts.Text(804), "Redo");
}

TEST(LoadLanguage, FallsBackOnTheLastEnglishLineWhateverItsNumber) {
  const LanguageTexts texts = Loaded(Encoded({"E0001 One", "E9999 Beyond", "S0002 ", "E", "S0003 "}), 'S');
  EXPECT_EQ(texts.Text(2), "Beyond");
  EXPECT_EQ(texts.Text(3), "");
}

TEST(LoadLanguage, LeavesAllEmptyForALetterThatNoLineCarries) {
  EXPECT_TRUE(AllEmpty(Loaded(Encoded({"E0760 Title", "S0760 T"}), 'X')));
  EXPECT_TRUE(AllEmpty(Loaded(Encoded({"E0760 Title"}), 'e')));
}

TEST(LoadLanguage, PassesOverLinesWithoutAUsableNumber) {
  const LanguageTexts texts = Loaded(Encoded({"S0001 a", "S9999 b", "Eabcd c", "E-001 d", "E1e02 e",
                                              "E     f", "E1.50 g", "E", "E12", "E012"}),
                                     'E');
  EXPECT_TRUE(AllEmpty(texts));
}

TEST(LoadLanguage, FailsForAFileThatHoldsNoLineOfALanguageFile) {
  for (const std::string& bytes :
       {std::string(), std::string("\r\n\r\n"), std::string("<html>\n</html>\n"), std::string(300, '\0'),
        Encoded({"Eabcd c", "e0041 d", "10041 e", "E", "E12"})}) {
    const Result<LanguageTexts> texts = LoadLanguageBytes(bytes, 'E');
    ASSERT_FALSE(texts) << bytes;
    EXPECT_NE(texts.Error().reason, "");
  }
}

TEST(LoadLanguage, FailsForANumberBeyondTheLastInTheActiveLanguage) {
  const std::string file = Encoded({"E0041 a", "S0041 b", "S1301 c"});
  EXPECT_FALSE(LoadLanguageBytes(file, 'S'));
  EXPECT_EQ(Loaded(file, 'E').Text(41), "a");
  EXPECT_FALSE(LoadLanguageBytes(Encoded({"E0041 a", "E9999 b"}), 'E'));
}

TEST(LoadLanguage, TakesANumberWithBlanksAroundIt) {
  const LanguageTexts texts = Loaded(Encoded({"E 41  left", "E760  right"}), 'E');
  EXPECT_EQ(texts.Text(41), "left");
  EXPECT_EQ(texts.Text(760), "right");
}

TEST(LoadLanguage, SkipsTheSixthPlaceWhateverItHolds) {
  EXPECT_EQ(Loaded(Encoded({"E0041xText"}), 'E').Text(41), "Text");
}

TEST(LoadLanguage, LetsALaterLineWin) {
  EXPECT_EQ(Loaded(Encoded({"E0041 first", "E0041 second"}), 'E').Text(41), "second");
}

TEST(LoadLanguage, EndsLinesAtLineFeedsAndDropsOneReturn) {
  EXPECT_EQ(Loaded(Encoded({"E0041 a", "E0760 b"}, "\n"), 'E').Text(760), "b");
  const std::string unended = Encoded({"E0041 a"}) + UnshiftText("E0760 last", kLanguageFileKey);
  EXPECT_EQ(Loaded(unended, 'E').Text(760), "last");
  const std::string twoReturns = Encoded({"E0041 a"}, "\r\r\n");
  const char shifted = static_cast<char>('\r' + (kLanguageFileKey[7] - '0'));
  EXPECT_EQ(Loaded(twoReturns, 'E').Text(41), std::string("a") + shifted);
}

TEST(LoadLanguage, TreatsAnEndOfFileCharacterAsAnyOther) {
  const std::string file =
      Encoded({"E0041 a\x1A"
               "b",
               "E0760 c"});
  EXPECT_EQ(Loaded(file, 'E').Text(41),
            "a\x1A"
            "b");
  EXPECT_EQ(Loaded(file, 'E').Text(760), "c");
}

TEST(LoadLanguage, TrimsBlanksAndNothingElse) {
  const std::string line = UnshiftText("E0041 text", kLanguageFileKey);
  EXPECT_EQ(Loaded("  " + line + "   \r\n", 'E').Text(41), "text");
  EXPECT_EQ(Loaded("\t" + line + "\n" + UnshiftText("S0001 x", kLanguageFileKey), 'E').Text(41), "");
}

TEST(LoadLanguage, SurvivesAFileCutAtAnyByteAndFilledWithAnything) {
  std::string file = Encoded({"E0760 Title", "S0760 T\xEDtulo", "I0760 ", "P0760 \xFF"});
  for (std::size_t length = 0; length <= file.size(); ++length) {
    EXPECT_NO_THROW(LoadLanguageBytes(file.substr(0, length), 'S'));
    EXPECT_NO_THROW(LoadLanguageBytes(file.substr(length), 'P'));
  }
  std::string bytes;
  for (int i = 0; i < 65536; ++i) {
    bytes += static_cast<char>((i * 167 + i / 251) & 0xFF);
  }
  for (int letter = 0; letter < 256; ++letter) {
    EXPECT_NO_THROW(LoadLanguageBytes(bytes, static_cast<char>(letter)));
  }
}

TEST(LoadLanguage, ReadsAFile) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "Kev.lng", Encoded({"E0760 Title"}));
  const Result<LanguageTexts> result = LoadLanguage(folder / "Kev.lng", 'E');
  ASSERT_TRUE(result);
  EXPECT_EQ(result->Text(760), "Title");
}

TEST(LoadLanguage, NamesTheFileThatItCannotRead) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "empty", "");
  for (const std::string& path : {folder / "missing", folder / "", folder / "empty"}) {
    const Result<LanguageTexts> result = LoadLanguage(path, 'E');
    EXPECT_FALSE(result);
    EXPECT_EQ(result.Error().path, path);
    EXPECT_NE(result.Error().reason, "");
  }
}

TEST(LoadLanguage, HasTheWordsForItsOwnFailureInTheProgram) {
  EXPECT_EQ(kLanguageErrorTitle, "Error loading");
  EXPECT_EQ(kLanguageErrorText, "Kev.lng file doesn't exist or is corrupted. Program won't start.");
}

TEST(HelpLanguageWord, IsSpanishForSpanishAlone) {
  EXPECT_EQ(HelpLanguageWord('S'), "esp");
  for (const char letter : {'E', 'I', 'P', 'X', '\0'}) {
    EXPECT_EQ(HelpLanguageWord(letter), "eng");
  }
}

}  // namespace
}  // namespace kev
