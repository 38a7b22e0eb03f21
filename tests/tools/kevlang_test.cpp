// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/shift_text.h"
#include "support/run_tool.h"

namespace kev {
namespace {

using test::ReadBytes;
using test::ToolResult;
using test::WriteBytes;

class Kevlang : public ::testing::Test {
 protected:
  ToolResult Run(const std::vector<std::string>& arguments) {
    return test::RunTool("kevlang", arguments, Folder);
  }

  ToolResult Compile(const std::string& source) {
    WriteBytes(Folder / "texts.lang", source);
    return Run({"texts.lang", "Kev.lng"});
  }

  void ExpectRefused(const std::string& source, const std::string& messages) {
    const ToolResult result = Compile(source);
    EXPECT_EQ(result.ExitCode, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors, messages);
    EXPECT_FALSE(std::filesystem::exists(Folder / "Kev.lng"));
  }

  std::string CompiledFile() { return ReadBytes(Folder / "Kev.lng"); }

  test::TemporaryFolder Folder;
};

std::string EntryWithEnglish(const std::string& english) {
  return "[41]\nE " + english + "\nS es\nI it\nP pt\n";
}

std::string Lines(const std::vector<std::string>& lines, std::string_view key = kLanguageFileKey) {
  std::string file;
  for (const std::string& line : lines) {
    file += UnshiftText(line, key) + "\r\n";
  }
  return file;
}

TEST_F(Kevlang, WritesTheEnglishLineFirstWhateverTheOrderOfTheSource) {
  const ToolResult result =
      Compile("# head\n\n[760]\nP pt\nI it\nS es\nE en\n\n# next\n[41]\nE a b\nS c\nI d\nP e");
  EXPECT_EQ(result.ExitCode, 0);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(CompiledFile(), Lines({"E0760 en", "S0760 es", "I0760 it", "P0760 pt", "E0041 a b", "S0041 c",
                                   "I0041 d", "P0041 e"}));
  EXPECT_FALSE(std::filesystem::exists(Folder / "Kev.lng.tmp"));
}

TEST_F(Kevlang, ScramblesTheLines) {
  Compile(EntryWithEnglish("Undo"));
  EXPECT_EQ(CompiledFile().find("Undo"), std::string::npos);
  EXPECT_TRUE(CompiledFile().starts_with("D-/3."));
}

TEST_F(Kevlang, WritesWindows1252) {
  const ToolResult result =
      Compile("[0]\nE \u20AC\u201C\u00FF\u0178\nS \u00BFa\u00F1o?\nI \u00EC\nP \u00E7\u00E3\n");
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(CompiledFile(), Lines({"E0000 \x80\x93\xFF\x9F",
                                   "S0000 \xBF"
                                   "a\xF1o?",
                                   "I0000 \xEC", "P0000 \xE7\xE3"}));
}

TEST_F(Kevlang, TakesSourcesWithReturnsAndAByteOrderMark) {
  EXPECT_EQ(Compile("\xEF\xBB\xBF[41]\r\nE en\r\nS es\r\nI it\r\nP pt\r\n").ExitCode, 0);
  EXPECT_EQ(CompiledFile(), Lines({"E0041 en", "S0041 es", "I0041 it", "P0041 pt"}));
}

TEST_F(Kevlang, TakesTheHighestNumberAndTheLongestText) {
  const std::string longest = "\u00E1" + std::string(199, 'x');
  EXPECT_EQ(Compile("[1300]\nE " + longest + "\nS es\nI it\nP pt\n").Errors, "");
}

TEST_F(Kevlang, ReplacesTheOldFileOnlyByAGoodOne) {
  ASSERT_EQ(Compile(EntryWithEnglish("good")).ExitCode, 0);
  const std::string before = CompiledFile();
  EXPECT_EQ(Compile(EntryWithEnglish("bad!")).ExitCode, 1);
  EXPECT_EQ(CompiledFile(), before);
}

TEST_F(Kevlang, RefusesNumbersAboveTheHighest) {
  ExpectRefused("[1301]\nE en\nS es\nI it\nP pt\n", "texts.lang:1: the number 1301 is above 1300\n");
}

TEST_F(Kevlang, RefusesEntriesWithoutANumber) {
  for (const std::string head : {"[]", "[x]", "[-1]", "[41", "[41] ", "[4 1]", "[99999999999]"}) {
    ExpectRefused(head + "\nE en\nS es\nI it\nP pt\n",
                  "texts.lang:1: an entry begins with a number between [ and ]\n");
  }
}

TEST_F(Kevlang, RefusesANumberGivenTwice) {
  ExpectRefused(EntryWithEnglish("en") + EntryWithEnglish("en"),
                "texts.lang:6: the number 41 is given twice\n");
}

TEST_F(Kevlang, RefusesMissingTranslations) {
  ExpectRefused("[41]\nE en\nI it\n[42]\nS es\nI it\nP pt\n",
                "texts.lang:1: the Spanish text is missing\n"
                "texts.lang:1: the Portuguese text is missing\n"
                "texts.lang:4: the English text is missing\n");
  ExpectRefused("[41]\nE\nS \nI it\nP pt\n",
                "texts.lang:2: the text is empty\n"
                "texts.lang:3: the text is empty\n");
}

TEST_F(Kevlang, RefusesATranslationGivenTwice) {
  ExpectRefused("[41]\nE en\nS es\nS es\nI it\nP pt\n", "texts.lang:4: the Spanish text is given twice\n");
}

TEST_F(Kevlang, RefusesBlanksAtTheEnds) {
  const std::string message = "texts.lang:2: the text has a blank at its beginning or end\n";
  ExpectRefused(EntryWithEnglish(" en"), message);
  ExpectRefused(EntryWithEnglish("en "), message);
  ExpectRefused(EntryWithEnglish(" "), message);
}

TEST_F(Kevlang, RefusesCharactersOutsideThePage) {
  ExpectRefused(EntryWithEnglish("\u0142"), "texts.lang:2: the character U+0142 is not in Windows-1252\n");
  ExpectRefused(EntryWithEnglish("a\u0081"), "texts.lang:2: the character U+0081 is not in Windows-1252\n");
  ExpectRefused(EntryWithEnglish("\U0001F600"),
                "texts.lang:2: the character U+1F600 is not in Windows-1252\n");
}

TEST_F(Kevlang, RefusesWhatIsNoUtf8) {
  for (const std::string bytes :
       {"\xE9", "\xC3", "\xC0\xA0", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE0\x80\x80", "\x80"}) {
    ExpectRefused(EntryWithEnglish(bytes), "texts.lang:2: the text is not UTF-8\n");
  }
}

TEST_F(Kevlang, RefusesTextsOfMoreThanTwoHundredCharacters) {
  ExpectRefused(EntryWithEnglish(std::string(201, 'x')),
                "texts.lang:2: the text has 201 characters; 200 are allowed\n");
}

TEST_F(Kevlang, RefusesTheCharactersThatTheKeyLoses) {
  const std::string message = "texts.lang:2: the text holds ! or #, which the file cannot keep\n";
  const std::string position =
      "texts.lang:2: the line does not decode back to itself: "
      "the key loses one of its characters\n";
  // Behind "E0041 " stands the key's seventh digit, a 1, then an eighth, a 3.
  ExpectRefused(EntryWithEnglish("!"), message + position);
  ExpectRefused(EntryWithEnglish("a!"), message);
  ExpectRefused(EntryWithEnglish("a#"), message + position);
  ExpectRefused(EntryWithEnglish("#"), message);
}

TEST_F(Kevlang, RefusesControlCharacters) {
  ExpectRefused(EntryWithEnglish("a\tb"), "texts.lang:2: the text holds a control character\n");
  ExpectRefused(EntryWithEnglish("a\rb"), "texts.lang:2: the text holds a control character\n");
}

TEST_F(Kevlang, RefusesALineThatAnotherKeyWouldLose) {
  WriteBytes(Folder / "texts.lang", EntryWithEnglish("say \"yes\""));
  EXPECT_EQ(Run({"--key", "13", "texts.lang", "Kev.lng"}).ExitCode, 0);
  EXPECT_EQ(CompiledFile(), Lines({"E0041 say \"yes\"", "S0041 es", "I0041 it", "P0041 pt"}, "13"));
  const ToolResult result = Run({"--key", "2", "texts.lang", "other.lng"});
  EXPECT_EQ(result.ExitCode, 1);
  EXPECT_EQ(result.Errors,
            "texts.lang:2: the line does not decode back to itself: the key loses one of its characters\n");
  EXPECT_FALSE(std::filesystem::exists(Folder / "other.lng"));
}

TEST_F(Kevlang, RefusesLinesThatAreNothing) {
  const std::string message =
      "a line is a comment, an entry, or one of the letters E, S, I, P with a blank and a text\n";
  ExpectRefused(EntryWithEnglish("en") + "X other\n", "texts.lang:6: " + message);
  ExpectRefused(EntryWithEnglish("en") + "English\n", "texts.lang:6: " + message);
  ExpectRefused(EntryWithEnglish("en") + " \n", "texts.lang:6: " + message);
  ExpectRefused("E en\n" + EntryWithEnglish("en"), "texts.lang:1: a text stands before the first entry\n");
}

TEST_F(Kevlang, RefusesASourceWithoutEntries) {
  ExpectRefused("# nothing\n", "texts.lang:1: there is no entry\n");
}

TEST_F(Kevlang, ReportsAllFaultsInTheOrderOfTheirLines) {
  ExpectRefused("[41]\nE en!\nS es \nI it\n[42]\nE en\nS es\nI it\nP \u0142\n",
                "texts.lang:1: the Portuguese text is missing\n"
                "texts.lang:2: the text holds ! or #, which the file cannot keep\n"
                "texts.lang:3: the text has a blank at its beginning or end\n"
                "texts.lang:9: the character U+0142 is not in Windows-1252\n");
}

TEST_F(Kevlang, FailsWhereAFileCannotBeReadOrWritten) {
  ToolResult result = Run({"missing.lang", "Kev.lng"});
  EXPECT_EQ(result.ExitCode, 1);
  EXPECT_EQ(result.Errors, "kevlang: missing.lang: No such file or directory\n");
  EXPECT_EQ(Run({".", "Kev.lng"}).Errors, "kevlang: .: Is a directory\n");
  WriteBytes(Folder / "texts.lang", EntryWithEnglish("en"));
  result = Run({"texts.lang", "no/such/folder/Kev.lng"});
  EXPECT_EQ(result.ExitCode, 1);
  EXPECT_EQ(result.Errors, "kevlang: no/such/folder/Kev.lng: No such file or directory\n");
}

TEST_F(Kevlang, ShowsItsUsage) {
  const std::string usage =
      "Usage: kevlang [--key DIGITS] SOURCE OUTPUT\n"
      "Compiles the language source SOURCE to the language file OUTPUT.\n"
      "\n"
      "  --key DIGITS  scramble with these 1 to 20 digits; the program reads only files of its own key,\n"
      "                so this serves to try the texts with another key before the program gets it\n"
      "  --help        show this text\n"
      "\n"
      "Exit status: 0 the file is written, 1 the source is refused or a file fails, 2 wrong usage.\n";
  const ToolResult help = Run({"--help"});
  EXPECT_EQ(help.ExitCode, 0);
  EXPECT_EQ(help.Output, usage);
  EXPECT_EQ(help.Errors, "");
  const std::vector<std::vector<std::string>> wrongUsages = {{},
                                                             {"a"},
                                                             {"a", "b", "c"},
                                                             {"--key"},
                                                             {"--key", "13"},
                                                             {"--key", "", "a", "b"},
                                                             {"--key", "1x", "a", "b"},
                                                             {"--key", "111111111111111111111", "a", "b"},
                                                             {"--unknown", "b"},
                                                             {"a", "-b"}};
  for (const std::vector<std::string>& words : wrongUsages) {
    const ToolResult result = Run(words);
    EXPECT_EQ(result.ExitCode, 2);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors, usage);
  }
}

}  // namespace
}  // namespace kev
