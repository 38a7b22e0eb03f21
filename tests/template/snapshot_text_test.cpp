// SPDX-License-Identifier: MIT
#include "template/snapshot_text.h"

#include <gtest/gtest.h>

#include "support/template_generator.h"
#include "support/templates.h"

namespace kev {
namespace {

using test::FirstDifference;
using test::TemplateGenerator;
using test::WriteText;

constexpr std::uint32_t kRuns = 200;

std::string Snapshot(const Document& document) {
  WriteReport report;
  return SnapshotText(document, {}, report);
}

void ExpectSameAsASave(const Document& document) {
  const Document before = document;
  const std::string text = Snapshot(document);
  for (int row = 1; row <= before.Objects.LastScanned(); ++row)
    ASSERT_EQ(document.Objects[row], before.Objects[row]) << row;
  Document saved = document;
  ASSERT_EQ(FirstDifference(text, WriteText(saved)), "");
}

TEST(SnapshotText, IsTheTextOfASaveAndLeavesTheDocumentAlone) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    ASSERT_NO_FATAL_FAILURE(ExpectSameAsASave(TemplateGenerator(seed).SaneDocument()));
    ASSERT_NO_FATAL_FAILURE(ExpectSameAsASave(test::ReadText(TemplateGenerator(seed).Quirky()).Read));
  }
}

TEST(SnapshotText, TellsOfSymbologiesWithoutAWord) {
  const Document document = test::ReadLayout({"{850;B32}123456789{NoBar}"}).Read;
  WriteReport report;
  const std::string text = SnapshotText(document, {}, report);
  EXPECT_NE(text.find("123456789"), std::string::npos);
  EXPECT_EQ(report.UnnamedSymbologies, std::vector<std::string>{"32"});
}

}  // namespace
}  // namespace kev
