// SPDX-License-Identifier: MIT
// The tables of the documents against the tables of the code: a key that one of them lacks, or tells another
// default of, is found here.
#include <gtest/gtest.h>

#include <algorithm>

#include "app/options.h"
#include "app/theme.h"
#include "base/text.h"
#include "chart/definition.h"
#include "document/papers.h"
#include "document/settings.h"
#include "document/symbologies.h"
#include "support/run_tool.h"
#include "template/directive_table.h"

namespace kev::test {
namespace {

std::string TextOf(const std::string& name) {
  return ReadBytes(std::string(KEV_TEST_DATA_DIR) + "/../docs/" + name);
}

// The lines from the heading on, to the next one of any level.
std::string ChapterOf(const std::string& document, const std::string& heading) {
  const std::size_t start = document.find("\n" + heading + "\n");
  if (start == std::string::npos) return {};
  const std::size_t body = start + heading.size() + 1;
  return document.substr(body, document.find("\n#", body) - body + 1);
}

using Row = std::vector<std::string>;

// The cells of a chapter's table, without its two lines of heading.
std::vector<Row> TableOf(const std::string& chapter) {
  std::vector<Row> rows;
  std::string_view rest = chapter;
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    if (!line.starts_with("| ")) continue;
    Row row;
    for (std::size_t cell = 2; cell <= 20; ++cell) {
      const std::string_view text = NthToken(line, cell, '|');
      if (text.empty()) break;
      row.emplace_back(Trim(text));
    }
    rows.push_back(std::move(row));
  }
  rows.erase(rows.begin(), rows.begin() + std::min<std::ptrdiff_t>(2, std::ssize(rows)));
  return rows;
}

std::string Code(std::string_view text) {
  return "`" + std::string(text) + "`";
}
std::string CodeOrEmpty(std::string_view text) {
  return text.empty() ? "(empty)" : Code(text);
}

std::vector<Row> TemplateTable(const std::string& heading) {
  return TableOf(ChapterOf(TextOf("template_format.md"), heading));
}

TEST(Documents, EveryKeyOfTheHeadStandsInItsTableWithItsDefault) {
  const std::vector<Row> table = TemplateTable("## Keys of the head");
  ASSERT_EQ(table.size(), kSettingCount);
  for (std::size_t at = 0; at < kSettingCount; ++at) {
    EXPECT_EQ(table[at].at(0), Code(SettingRows()[at].key));
    EXPECT_EQ(table[at].at(1), CodeOrEmpty(SettingRows()[at].defaultValue));
    EXPECT_EQ(table[at].size(), 5U) << table[at].at(0);
  }
}

TEST(Documents, EveryItemOfABlockStandsInItsTable) {
  std::vector<Row> table = TemplateTable("## Items");
  const std::vector<Row> codes = TemplateTable("## Items of bar codes");
  std::size_t plain = 0, symbols = 0;
  for (const DirectiveRow& row : kDirectives) {
    if (row.action == Action::Symbology) {
      ASSERT_LT(symbols, codes.size());
      EXPECT_EQ(codes[symbols].at(0), Code(row.key));
      EXPECT_EQ(codes[symbols].at(1), std::to_string(row.number));
      ++symbols;
    } else {
      ASSERT_LT(plain, table.size());
      EXPECT_EQ(table[plain].at(0), Code(row.key));
      ++plain;
    }
  }
  EXPECT_EQ(plain, table.size());
  EXPECT_EQ(symbols, codes.size());
}

TEST(Documents, EveryKindOfBarCodeStandsInItsTableWithItsWord) {
  const std::vector<Row> table = TemplateTable("## Kinds of bar codes");
  ASSERT_EQ(table.size(), kSymbologies.size());
  for (std::size_t at = 0; at < table.size(); ++at) {
    const Symbology& row = kSymbologies[at];
    EXPECT_EQ(table[at].at(0), std::to_string(row.kind));
    EXPECT_EQ(table[at].at(1), row.name.empty() ? "(none)" : row.name);
    EXPECT_EQ(table[at].at(2), row.word.empty() ? "(none)" : Code(row.word.substr(1)));
    EXPECT_EQ(table[at].at(3), row.specimen.empty() ? "its own" : Code(row.specimen));
  }
}

TEST(Documents, EveryKeyOfAChartStandsInItsTableWithItsDefault) {
  const std::vector<Row> table = TemplateTable("## Keys of charts");
  ASSERT_EQ(table.size(), kChartKeyCount);
  for (std::size_t at = 0; at < table.size(); ++at) {
    EXPECT_EQ(table[at].at(0), Code(ChartKeys()[at].key));
    EXPECT_EQ(table[at].at(1), CodeOrEmpty(ChartKeys()[at].defaultValue));
  }
}

TEST(Documents, EveryPaperStandsInItsTableWithItsSize) {
  const std::vector<Row> table = TemplateTable("## Papers");
  std::int16_t number = 0;
  for (const Row& row : table) {
    ++number;
    const auto paper = LookupPaper(std::to_string(number));
    ASSERT_TRUE(paper) << number;
    EXPECT_EQ(row.at(0), std::to_string(number));
    EXPECT_EQ(row.at(2), std::to_string(paper->Width));
    EXPECT_EQ(row.at(3), std::to_string(paper->Length));
    for (std::size_t name = 1; !NthToken(row.at(1), name, ',').empty(); ++name) {
      std::string code(Trim(NthToken(row.at(1), name, ',')));
      std::erase(code, '`');
      const auto named = LookupPaper(code);
      ASSERT_TRUE(named) << code;
      EXPECT_EQ(named->Code, number) << code;
    }
  }
  EXPECT_FALSE(LookupPaper(std::to_string(number + 1)));
}

// "KEY=value" of each line of the text.
std::vector<Row> KeysOf(const std::string& text) {
  std::vector<Row> keys;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos)
      keys.push_back({std::string(line.substr(0, equals)), std::string(line.substr(equals + 1))});
  }
  return keys;
}

TEST(Documents, EveryOptionOfTheDesignerStandsInItsTableWithItsDefault) {
  const std::vector<Row> table = TableOf(ChapterOf(TextOf("files.md"), "## LASTRV.DAT"));
  std::vector<Row> keys = KeysOf(FirstOptionsText());
  for (const Row& row : KeysOf(OptionsText(DesignerOptions{}))) {
    const bool known =
        std::any_of(keys.begin(), keys.end(), [&](const Row& key) { return key[0] == row[0]; });
    if (!known) keys.push_back(row);
  }
  ASSERT_EQ(table.size(), keys.size());
  for (std::size_t at = 0; at < keys.size(); ++at) {
    EXPECT_EQ(table[at].at(0), Code(keys[at][0]));
    EXPECT_EQ(table[at].at(1), CodeOrEmpty(keys[at][1]));
  }
}

TEST(Documents, EveryKeyOfTheThemeStandsInItsTable) {
  const std::vector<Row> table = TableOf(ChapterOf(TextOf("files.md"), "## md1.trp"));
  ASSERT_EQ(table.size(), kThemeKeys.size());
  for (std::size_t at = 0; at < table.size(); ++at)
    EXPECT_EQ(table[at].at(0), Code(kThemeKeys[at]));
}

TEST(Documents, TheDefaultsOfTheUserSettingsAreThoseOfTheCode) {
  const std::vector<Row> table = TableOf(ChapterOf(TextOf("files.md"), "## KEV.INI"));
  const UserSettings settings;
  const std::vector<Row> expected = {{"`DEFAULT_EDITOR`", Code(settings.DefaultEditor)},
                                     {"`DEFAULT_PAPERSIZE`", Code(settings.DefaultPaperSize)},
                                     {"`CODEPAGE`", Code(settings.Page->Name())},
                                     {"`REMOTEPICTURES`", Code(settings.RemotePictures ? "Y" : "N")}};
  ASSERT_EQ(table.size(), expected.size());
  for (std::size_t at = 0; at < table.size(); ++at) {
    EXPECT_EQ(table[at].at(0), expected[at][0]);
    EXPECT_EQ(table[at].at(1), expected[at][1]);
  }
}

}  // namespace
}  // namespace kev::test
