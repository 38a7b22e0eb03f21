// SPDX-License-Identifier: MIT
// The language file of the build against the names of its numbers.
#include "base/text_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "app/language.h"
#include "support/run_tool.h"

namespace kev {
namespace {

constexpr std::string_view kLetters = "ESIP";

LanguageTexts TextsOf(char letter) {
  const Result<LanguageTexts> texts = LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", letter);
  EXPECT_TRUE(texts) << texts.Error().reason;
  return texts ? *texts : LanguageTexts();
}

// Every constant of the header, so that none can be forgotten in a list.
std::map<std::string, int> NamedNumbers() {
  std::istringstream header(test::ReadBytes(KEV_TEST_DATA_DIR "/../src/base/text_numbers.h"));
  const std::string start = "inline constexpr int ";
  std::map<std::string, int> numbers;
  for (std::string line; std::getline(header, line);) {
    if (line.starts_with(start)) {
      const std::size_t sign = line.find(" = ");
      numbers[line.substr(start.size(), sign - start.size())] = std::stoi(line.substr(sign + 3));
    }
  }
  return numbers;
}

std::vector<std::string> QuotedParts(const std::string& text) {
  std::vector<std::string> parts;
  for (std::size_t open = text.find('"'); open != std::string::npos;) {
    const std::size_t close = text.find('"', open + 1);
    if (close == std::string::npos) {
      parts.push_back("unclosed");
      break;
    }
    parts.push_back(text.substr(open + 1, close - open - 1));
    open = text.find('"', close + 1);
  }
  std::sort(parts.begin(), parts.end());
  return parts;
}

TEST(TextNumbers, HaveEachANumberOfItsOwn) {
  const std::map<std::string, int> names = NamedNumbers();
  std::set<int> numbers;
  for (const auto& [name, number] : names) {
    EXPECT_TRUE(numbers.insert(number).second) << name;
  }
  EXPECT_GT(names.size(), 300U);
  EXPECT_EQ(names.at("kTextProgramTitle"), kTextProgramTitle);
}

TEST(TextNumbers, HaveATextInEveryLanguage) {
  for (const char letter : kLetters) {
    const LanguageTexts texts = TextsOf(letter);
    for (const auto& [name, number] : NamedNumbers()) {
      EXPECT_NE(texts.Text(number), "") << letter << ' ' << name;
    }
  }
}

TEST(TextNumbers, NameEveryTextOfTheFile) {
  std::set<int> named;
  for (const auto& [name, number] : NamedNumbers()) {
    named.insert(number);
  }
  const LanguageTexts texts = TextsOf('E');
  for (int number = 0; number <= kHighestTextNumber; ++number) {
    EXPECT_EQ(texts.Text(number).empty(), !named.contains(number)) << number;
  }
}

TEST(TextNumbers, QuoteTheSameEnglishCaptionsInEveryLanguage) {
  const LanguageTexts english = TextsOf('E');
  for (const char letter : kLetters) {
    const LanguageTexts texts = TextsOf(letter);
    for (int number = 0; number <= kHighestTextNumber; ++number) {
      EXPECT_EQ(QuotedParts(texts.Text(number)), QuotedParts(english.Text(number))) << letter << number;
    }
  }
}

TEST(TextNumbers, MarkTheLetterOfAMenuEntryInAllLanguagesOrInNone) {
  const LanguageTexts english = TextsOf('E');
  for (const char letter : kLetters) {
    const LanguageTexts texts = TextsOf(letter);
    for (int number = 0; number <= kHighestTextNumber; ++number) {
      const std::string& text = texts.Text(number);
      const std::string& original = english.Text(number);
      EXPECT_EQ(std::count(text.begin(), text.end(), '&'), std::count(original.begin(), original.end(), '&'))
          << letter << number;
    }
  }
}

// "The count follows" and the like: a colon at the end is part of how the program goes on.
TEST(TextNumbers, EndInAColonInAllLanguagesOrInNone) {
  const LanguageTexts english = TextsOf('E');
  for (const char letter : kLetters) {
    const LanguageTexts texts = TextsOf(letter);
    for (int number = 0; number <= kHighestTextNumber; ++number) {
      EXPECT_EQ(texts.Text(number).ends_with(':'), english.Text(number).ends_with(':')) << letter << number;
    }
  }
}

TEST(TextNumbers, GiveAFieldWordThatCanBePartOfAVariableName) {
  for (const char letter : kLetters) {
    const std::string word = TextsOf(letter).Text(kTextFieldWord);
    EXPECT_FALSE(word.empty());
    EXPECT_TRUE(std::all_of(word.begin(), word.end(), [](unsigned char c) {
      return c < 128 && std::isalpha(c) != 0;
    })) << word;
  }
}

TEST(TextNumbers, AreTranslatedWhereTheyAreSentences) {
  const LanguageTexts english = TextsOf('E');
  for (const char letter : std::string_view("SIP")) {
    const LanguageTexts texts = TextsOf(letter);
    for (int number = 0; number <= kHighestTextNumber; ++number) {
      if (english.Text(number).size() > 25) {
        EXPECT_NE(texts.Text(number), english.Text(number)) << letter << number;
      }
    }
  }
}

// Names of things, which the documents and the English captions around them use as well.
TEST(TextNumbers, KeepAFewWordsInEveryLanguage) {
  const LanguageTexts english = TextsOf('E');
  for (const char letter : kLetters) {
    for (const int number : {kTextProgramTitle, kTextMultiSelected, kTextSubsectionInsert})
      EXPECT_EQ(TextsOf(letter).Text(number), english.Text(number)) << letter << number;
  }
  EXPECT_EQ(english.Text(kTextMultiSelected), "Multiselected:");
  EXPECT_EQ(english.Text(kTextSubsectionInsert), "Insert section");
}

TEST(TextNumbers, SayWhatWasAgreedAtAFewPlaces) {
  EXPECT_EQ(TextsOf('E').Text(kTextProgramTitle), "Kev Visual Editor");
  EXPECT_EQ(TextsOf('E').Text(kTextMenuQuickPanel), "Show &Quickprops");
  EXPECT_EQ(TextsOf('S').Text(kTextSaveChanges),
            "Hay cambios sin guardar. \xBF"
            "Desea guardarlos ahora? Plantilla:");
  EXPECT_EQ(TextsOf('I').Text(kTextYesToAll), "S\xEC a tutto");
  EXPECT_EQ(TextsOf('P').Text(kTextMenuSubsection), "Subse\xE7\xE3o");
}

}  // namespace
}  // namespace kev
