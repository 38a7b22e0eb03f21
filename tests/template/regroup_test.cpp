// SPDX-License-Identifier: MIT
#include "template/regroup.h"

#include <gtest/gtest.h>

#include "support/templates.h"

namespace kev {
namespace {

using test::Lines;

std::string Regroup(std::initializer_list<std::string_view> lines) {
  return RegroupBySection(Lines(lines), CodePage::Default());
}

TEST(Regroup, PutsFooterBeforeDataAndKeepsTheOrderInsideASection) {
  EXPECT_EQ(Regroup({"KEXVER=4", "[HEADER]", "<[DATA]", " [A]", "a", "<[FOOTER]", "f", "<[HEADER]", "h",
                     "<[DATA]", " [B]", "b", "<[HEADER]", "h2"}),
            Lines({"KEXVER=4", "[HEADER]", "h", "h2", "[FOOTER]", "f", "[DATA]", " [A]", "a", " [B]", "b"}));
}

TEST(Regroup, PrintsTheThreeSectionLinesOfAnEmptyLayout) {
  EXPECT_EQ(Regroup({"KEXVER=4", "[HEADER]"}), Lines({"KEXVER=4", "[HEADER]", "[FOOTER]", "[DATA]"}));
}

TEST(Regroup, CopiesTheHeadUpToTheFirstHeaderLineInAnyCase) {
  EXPECT_EQ(Regroup({"Report_Title=a", "  [header] ", "dropped", "<[DATA]", "d"}),
            Lines({"Report_Title=a", "  [header] ", "[FOOTER]", "[DATA]", "d"}));
}

TEST(Regroup, TakesOnlyWholeLinesForMarkers) {
  EXPECT_EQ(Regroup({"[HEADER]", "<[DATA]", "<[DATA] x", " <[FOOTER]", "<[data]"}),
            Lines({"[HEADER]", "[FOOTER]", "[DATA]", "<[DATA] x", " <[FOOTER]", "<[data]"}));
}

TEST(Regroup, GivesEachLineTheSameEnd) {
  EXPECT_EQ(RegroupBySection("[HEADER]\r\n<[DATA]\na\nb\r\n\nc\r\r\nd\r", CodePage::Default()),
            "[HEADER]\r\n[FOOTER]\r\n[DATA]\r\na\r\nb\r\n\r\nc\r\r\nd\r\r\n");
}

TEST(Regroup, KeepsEmptyLines) {
  EXPECT_EQ(Regroup({"[HEADER]", "<[DATA]", "", "d", ""}),
            Lines({"[HEADER]", "[FOOTER]", "[DATA]", "", "d", ""}));
}

}  // namespace
}  // namespace kev
