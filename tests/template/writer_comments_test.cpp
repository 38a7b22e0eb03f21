// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "support/templates.h"

namespace kev {
namespace {

using test::BodyOf;
using test::HeaderBody;
using test::Rewrite;
using testing::ElementsAre;

// One object of each kind, and the comments behind the step to it: of one step, and of any other.
struct StepRow {
  std::string_view object, oneStep, otherStep, written;
};
constexpr auto kSteps = std::to_array<StepRow>({
    {"Box=1,,2,3}", "011", "012", "{W=2;Box=1,,2,3}"},
    {"Line=1,2}", "007", "008", "{W=2;Line=1,2}"},
    {"5}A{}", "015", "016", "{5} A{}"},
    {"Pic=a,1}", "001", "002B", "{Pic=a,1,,,,}"},
    {"TextBox=1}", "001", "002X", "{TBProps=285,Arial,0,,,,0,0,0,0,0,0,;TextBox=1,,0,,}"},
    {"QrCode=1,,9}q{nobar}", "101", "102B", "{QrCode=1,,9}q{nobar}"},
    {"Circ=1,,2}", "003", "004", "{W=2;Circ=1,,2}"},
    {"AnyLine=1}", "009", "010", "{W=2;AnyLine=1,,0,0,0}"},
    {"Buildgraph=1}", "025", "026", "{Buildgraph=1,}"},
    {"5;BarHeight=9;Bar}b{nobar}", "005", "006", "{5;BarHeight=9;Bar}b{NoBar}"},
    {"5;\\np}", "013", "014", "{5;\\np}"},
});

// What is written of them behind a first label, without the keys of the chart.
std::vector<std::string> WrittenSteps(std::string_view step) {
  std::string layout = "[HEADER]\r\n{W=2}\r\n{5;}first{}\r\n";
  for (const StepRow& row : kSteps)
    layout.append("{").append(step).append(";").append(row.object) += "\r\n";
  std::vector<std::string> lines;
  for (const std::string& line : HeaderBody(Rewrite(layout, {true}))) {
    if (line == "{5} first{}") {
      lines.clear();
    } else if (!line.starts_with("{Graph_")) {
      lines.push_back(line);
    }
  }
  return lines;
}

TEST(WriterComments, TellBehindEachStepWhichKindItLeadsTo) {
  std::vector<std::string> oneStep, otherStep;
  for (const StepRow& row : kSteps) {
    oneStep.push_back("{\\n} {rem=modulo" + std::string(row.oneStep) + "}");
    oneStep.emplace_back(row.written);
    otherStep.push_back("{Spacing=50;\\n} {rem=modulo" + std::string(row.otherStep) + "}");
    otherStep.emplace_back(row.written);
  }
  EXPECT_EQ(WrittenSteps("\\n"), oneStep);
  EXPECT_EQ(WrittenSteps("Spacing=50;\\n"), otherStep);
}

TEST(WriterComments, TellTheDefaultsAndTheStepToTheEnd) {
  EXPECT_THAT(BodyOf({"{W=2}", "{Box=1,,2,3}", "{Spacing=70;\\n}"}, {true}),
              ElementsAre("{DEF}", "{Rem=All Default Values 18}", "{MBeu;W=2;Box=1,,2,3}",
                          "{Spacing=70;\\n} {Rem=EndOfSubsection 19}"));
}

TEST(WriterComments, TellTheEndsOfSubsectionsAndTheCleanStart) {
  EXPECT_THAT(
      BodyOf({"{5;}a {b} c{}", "{\\n}", "{Spacing=100;\\P}"}, {true}),
      ElementsAre("{DEF}", "{Rem=All Default Values 18}", "{F=Arial;S=10;C=0,0,0}", "{MBeu}", "{5} a {b} c{}",
                  "{DEF} {Rem=All default values 17}", "{\\n} {Rem=EndOfSubsection 20}",
                  "{Spacing=100;\\P} {Rem=\\P to reach SUBSECTIONENDSAT}"));
}

TEST(WriterComments, AreReadBackAsNothing) {
  const std::string plain = Rewrite("[HEADER]\r\n{\\n}\r\n{5;}a {b} c{}\r\n{Box=1,,2,3}\r\n{\\n}\r\n");
  EXPECT_EQ(HeaderBody(Rewrite(Rewrite(plain, {true}))), HeaderBody(plain));
}

}  // namespace
}  // namespace kev
