// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/templates.h"

namespace kev {
namespace {

using test::BodyAfter;
using test::BodyOf;
using test::FirstOf;
using test::ReadLayout;
using test::Rewrite;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(WriterLabels, PrintsOnlyTheAttributesOfALabelThatDiffer) {
  EXPECT_THAT(BodyOf({"{DEF}", "{10;}A{}", "{10;}B{}", "{b=y;u=y;i=y;a=r;cs=2;s=9}", "{10;}C{}",
                      "{b=n;u=n;i=n;a=l;NoPrint}", "{10;}D{}"}),
              ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{10} A{}", "{10} B{}",
                          "{cs=2;s=9;b=y;u=y;i=y;a=R}", "{10} C{}", "{b=n;u=n;i=n;NoPrint;a=L}", "{10} D{}"));
}

TEST(WriterLabels, PrintsTheCaseOfALabel) {
  EXPECT_THAT(BodyOf({"{DEF;Upper=Y}", "{1}A{}", "{Lower=Y}", "{1}B{}", "{FirstUp=Y}", "{1}C{}",
                      "{FirstUp=N}", "{1}D{}"}),
              ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{Upper=Y}", "{1} A{}", "{Lower=Y}", "{1} B{}",
                          "{FirstUp=Y}", "{1} C{}", "{Upper=N;Lower=N;FirstUp=N}", "{1} D{}"));
}

TEST(WriterLabels, PrintsWhatBelongsToThePositionOfALabel) {
  EXPECT_THAT(
      BodyOf({"{DEF}", "{10;Link=a=b;Num;Format=0.00;Stretch= 500 }A{}", "{10;Text}B{}", "{20;Format=}C{}"}),
      ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{10;Link=a=b;Num;Format=0.00;Stretch=500} A{}",
                  "{10;Text} B{}", "{20;Format=} C{}"));
}

TEST(WriterLabels, PrintsStrikethroughOfALabelThoughTheReaderPassesOverIt) {
  ReadOutcome outcome = ReadLayout({"{DEF}", "{10;}A{}"});
  FirstOf(outcome.Read, ObjectKind::Label).Strikethrough = kTrue;
  EXPECT_THAT(BodyAfter(std::move(outcome)),
              ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{st=y}", "{10} A{}"));
}

TEST(WriterLabels, MakesACleanStartBehindALabelWithAnOpenCharacter) {
  EXPECT_THAT(BodyOf({"{DEF;b=y}", "{10;}a {b} c{}", "{10;}D{}"}),
              ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{b=y}", "{10} a {b} c{}", "{DEF}", "{b=y}",
                          "{10} D{}"));
  const std::string text = Rewrite("[HEADER]\r\n{10;}a {b} c{}\r\n");
  EXPECT_THAT(text, HasSubstr("  {10} a {b} c{}\r\n  {DEF}\r\n[FOOTER]"));
}

// ---- zero

// The reader takes no zero behind another position.
TEST(WriterLabels, PrintsAZeroThatTheReaderTakes) {
  EXPECT_THAT(
      BodyOf({"{DEF}", "{0;}A{}", "{10;}B{}", "{0.001;}C{}", "{10;}D{}"}),
      ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{0} A{}", "{0.001} C{}", "{10} B{}", "{10} D{}"));
  ReadOutcome outcome =
      ReadLayout({"{DEF}", "{10;}A{}", "{\\n}", "{20;BarHeight=5;Bar}B{NoBar}", "{\\n}", "{30;\\np}"});
  for (const ObjectKind kind : {ObjectKind::Label, ObjectKind::Barcode, ObjectKind::Command})
    FirstOf(outcome.Read, kind).XValue = "0";
  EXPECT_THAT(BodyAfter(std::move(outcome)),
              ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{0} A{}", "{\\n}",
                          "{0;BarHeight=5;Bar}B{NoBar}", "{\\n}", "{0;\\np}"))
      << "as long as the reader stands at 0, a 0 keeps it there";
}

TEST(WriterLabels, PrintsAlmostZeroWhereTheReaderWouldKeepAnotherPosition) {
  ReadOutcome outcome = ReadLayout({"{DEF}", "{10;}A{}", "{\\n}", "{20;}B{}", "{\\n}",
                                    "{20;BarHeight=5;Bar}C{NoBar}", "{\\n}", "{30;\\np}"});
  int labels = 0;
  for (int row = 1; row <= 50; ++row) {
    ObjectRecord& record = outcome.Read.Objects[row];
    if (record.Kind == ObjectKind::Label && ++labels == 2) record.XValue = "0";
    if (record.Kind == ObjectKind::Barcode || record.Kind == ObjectKind::Command) record.XValue = "0.0";
  }
  EXPECT_THAT(BodyAfter(std::move(outcome)),
              ElementsAre("{DEF}", "{F=Arial;S=10;C=0,0,0}", "{10} A{}", "{\\n}", "{0.001} B{}", "{\\n}",
                          "{0.001;BarHeight=5;Bar}C{NoBar}", "{\\n}", "{0.001;\\np}"));
}

}  // namespace
}  // namespace kev
