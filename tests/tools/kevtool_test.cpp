// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "support/run_tool.h"

namespace kev::test {
namespace {

constexpr const char* kSmall =
    "Report_Title=Caf\xE9\r\n$Col_01=2400\r\nKEXVER=4\r\n[HEADER]\r\n{\\n}\r\n{$Col_01 + 10;}Total{}\r\n";

class Kevtool : public testing::Test {
 protected:
  Kevtool() {
    WriteBytes(folder / "small.kev", kSmall);
    WriteBytes(folder / "no.kev", "x\r\n");
    WriteBytes(folder / "data.kev", "[DATA]\r\n");
  }
  ToolResult Run(const std::vector<std::string>& arguments) { return RunTool("kevtool", arguments, folder); }
  void Expect(const std::vector<std::string>& arguments, int exitCode, const std::string& output,
              const std::string& errors) {
    const ToolResult result = Run(arguments);
    std::string command = "kevtool";
    for (const std::string& argument : arguments)
      command += " " + argument;
    EXPECT_EQ(result.ExitCode, exitCode) << command;
    EXPECT_EQ(result.Output, output) << command;
    EXPECT_EQ(result.Errors, errors) << command;
  }

  TemporaryFolder folder;
};

// ---- usage

TEST_F(Kevtool, NeedsACommand) {
  constexpr const char* kReason = "A subcommand is required\nRun with --help for more information.\n";
  Expect({}, 2, "", kReason);
  Expect({"nothing"}, 2, "", kReason);
}

TEST_F(Kevtool, NeedsTheArgumentsOfACommand) {
  const std::string behind = " is required\nRun with --help for more information.\n";
  Expect({"check"}, 2, "", "FILE" + behind);
  Expect({"dump"}, 2, "", "FILE" + behind);
  Expect({"rewrite", "small.kev"}, 2, "", "OUT" + behind);
  Expect({"eval", "small.kev"}, 2, "", "EXPRESSION" + behind);
  EXPECT_EQ(Run({"dump", "small.kev", "small.kev"}).ExitCode, 2);
  EXPECT_EQ(Run({"check", "--nothing", "small.kev"}).ExitCode, 2);
}

TEST_F(Kevtool, TellsItsVersion) {
  Expect({"--version"}, 0, "kevtool 0.1.0\n", "");
}

TEST_F(Kevtool, ListsItsCommands) {
  const ToolResult help = Run({"--help"});
  EXPECT_EQ(help.ExitCode, 0);
  EXPECT_EQ(help.Errors, "");
  EXPECT_TRUE(
      help.Output.starts_with("Kev templates on the command line\n"
                              "Usage: kevtool [OPTIONS] SUBCOMMAND\n"
                              "\n"
                              "Options:\n"
                              "  -h,--help                   Print this help message and exit\n"
                              "  --version                   Display program version information and exit\n"
                              "\n"
                              "Subcommands:\n"))
      << help.Output;
  for (const char* line :
       {"  check                       Check templates: structure, and what a save would lose\n",
        "  dump                        Print a template as JSON\n",
        "  rewrite                     Read a template as on opening and write it as on saving\n",
        "  eval                        Print the value of a position in twips; nothing where it has "
        "none\n",
        "  sample                      Check a file of sample data and print what it holds\n",
        "  new                         Make a first template of a file of sample data\n"}) {
    EXPECT_NE(help.Output.find(line), std::string::npos) << line;
  }
}

TEST_F(Kevtool, ExplainsEachCommand) {
  const std::string help = "\nOptions:\n  -h,--help                   Print this help message and exit\n";
  Expect({"check", "--help"}, 0,
         "Check templates: structure, and what a save would lose\n"
         "Usage: kevtool check [OPTIONS] FILE...\n"
         "\n"
         "Positionals:\n"
         "  FILE TEXT ... REQUIRED      Templates\n" +
             help +
             "  --json                      A JSON object on a line of its own for each template\n"
             "  --strict                    Fail too where a rewrite would change a byte\n"
             "\n",
         "");
  Expect({"dump", "--help"}, 0,
         "Print a template as JSON\n"
         "Usage: kevtool dump [OPTIONS] FILE\n"
         "\n"
         "Positionals:\n"
         "  FILE TEXT REQUIRED          Template\n" +
             help +
             "  --geometry                  After the geometry was derived, not after the read alone\n"
             "\n",
         "");
  Expect({"rewrite", "--help"}, 0,
         "Read a template as on opening and write it as on saving\n"
         "Usage: kevtool rewrite [OPTIONS] IN OUT\n"
         "\n"
         "Positionals:\n"
         "  IN TEXT REQUIRED            Template to read\n"
         "  OUT TEXT REQUIRED           Template to write\n" +
             help +
             "  --comments                  Write the comment behind each vertical step\n"
             "\n",
         "");
  Expect({"eval", "--help"}, 0,
         "Print the value of a position in twips; nothing where it has none\n"
         "Usage: kevtool eval [OPTIONS] FILE EXPRESSION\n"
         "\n"
         "Positionals:\n"
         "  FILE TEXT REQUIRED          Template whose columns count\n"
         "  EXPRESSION TEXT REQUIRED    A number, a column, or a column and a step\n" +
             help + "\n",
         "");
}

// ---- check

TEST_F(Kevtool, ChecksAGoodTemplate) {
  Expect({"check", "small.kev"}, 0, "small.kev: 10013\n", "");
}

TEST_F(Kevtool, NamesWhatIsWrongWithLineAndColumn) {
  WriteBytes(folder / "bad.kev",
             "KEXVER=4\r\nkexver=3\r\n[HEADER]\r\n  {DEF} {Nonsense=1;5}A\xE9{}\r\n{$Gone}B{}\r\n{5}lost");
  Expect({"check", "bad.kev"}, 1,
         "bad.kev: 10013\n"
         "bad.kev:2:1: key is repeated: KEXVER\n"
         "bad.kev:4:9: unknown key: Nonsense\n"
         "bad.kev:5:8: unknown column: $Gone\n"
         "bad.kev:6:4: text is lost: lost\n",
         "");
}

TEST_F(Kevtool, ChecksEveryFileAlsoBehindARefusedOne) {
  Expect({"check", "no.kev", "data.kev", "none.kev", "small.kev"}, 1,
         "no.kev: 00003\ndata.kev: 01013\nsmall.kev: 10013\n",
         "no.kev: no template: it has no [HEADER], [DATA] or [FOOTER] line\n"
         "data.kev: no template: it has no [HEADER] line\n"
         "none.kev: No such file or directory\n");
}

TEST_F(Kevtool, RefusesATemplateThatBreaksALimit) {
  WriteBytes(folder / "wide.kev", "[HEADER]\r\n{" + std::string(200, ';') + "}\r\n");
  Expect({"check", "wide.kev"}, 1, "wide.kev: 10013\n", "wide.kev: a text has more than 200 parts\n");
}

// ---- dump

TEST_F(Kevtool, DumpsATemplateAsJson) {
  const std::string golden = std::string(KEV_TEST_DATA_DIR) + "/tools/golden/small.json";
  const ToolResult result = Run({"dump", "small.kev"});
  EXPECT_EQ(result.ExitCode, 0);
  EXPECT_EQ(result.Errors, "");
  if (result.Output != ReadBytes(golden)) {
    WriteBytes(golden + ".out", result.Output);
    FAIL() << "compare " << golden << " with " << golden << ".out";
  }
}

TEST_F(Kevtool, DumpsTheGeometryWhereItIsAsked) {
  WriteBytes(folder / "two.kev", "[HEADER]\r\n{\\n}\r\n[DATA]\r\n{Box=1,,2,3}\r\n");
  const auto countOf = [](const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
      ++count;
    return count;
  };
  // The second bar stands 80 twips behind the first end bar after the read, and 200 once it is laid out.
  const std::string read = Run({"dump", "two.kev"}).Output;
  EXPECT_EQ(countOf(read, "\"AbsoluteY\": 680,"), 1U);
  const std::string laidOut = Run({"dump", "--geometry", "two.kev"}).Output;
  EXPECT_EQ(countOf(laidOut, "\"AbsoluteY\": 680,"), 0U);
  EXPECT_EQ(countOf(laidOut, "\"AbsoluteY\": 800,"), 1U);
}

TEST_F(Kevtool, DumpsTheKeysOfAChartOnly) {
  WriteBytes(folder / "chart.kev", "[HEADER]\r\n{Graph_Type=PIE}\r\n{Buildgraph=1,}\r\n");
  const std::string output = Run({"dump", "chart.kev"}).Output;
  EXPECT_NE(output.find("\"Chart\": {\n        \"Graph_Type\": \"PIE\",\n"), std::string::npos);
  EXPECT_EQ(Run({"dump", "small.kev"}).Output.find("\"Chart\""), std::string::npos);
}

TEST_F(Kevtool, DumpsNothingOfARefusedTemplate) {
  Expect({"dump", "no.kev"}, 1, "", "no.kev: no template: it has no [HEADER], [DATA] or [FOOTER] line\n");
  Expect({"dump", "none.kev"}, 1, "", "none.kev: No such file or directory\n");
}

// ---- rewrite

TEST_F(Kevtool, RewritesATemplateAsASaveDoes) {
  Expect({"rewrite", "small.kev", "out.kev"}, 0, "", "");
  EXPECT_EQ(
      ReadBytes(folder / "out.kev"),
      "Report_Title=Caf\xE9\r\n$Col_01=2400\r\nPAPERSIZE=A4\r\nKEXVER=4\r\n[HEADER]\r\n \r\n\r\n  {DEF}\r\n"
      "  {F=Arial;S=10;C=0,0,0}\r\n  {\\n}\r\n  {MBeu}\r\n  {$Col_01 + 10} "
      "Total{}\r\n[FOOTER]\r\n[DATA]\r\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "out.kev.tmp"));
}

TEST_F(Kevtool, WritesCommentsWhereItIsAsked) {
  Expect({"rewrite", "--comments", "small.kev", "out.kev"}, 0, "", "");
  const std::string text = ReadBytes(folder / "out.kev");
  EXPECT_NE(text.find("  {DEF}\r\n {Rem=All Default Values 18}\r\n"), std::string::npos);
  EXPECT_NE(text.find("  {\\n} {rem=modulo015}\r\n"), std::string::npos);
}

TEST_F(Kevtool, RewritesAFileOntoItself) {
  Expect({"rewrite", "small.kev", "small.kev"}, 0, "", "");
  const std::string once = ReadBytes(folder / "small.kev");
  Run({"rewrite", "small.kev", "small.kev"});
  const std::string twice = ReadBytes(folder / "small.kev");
  Run({"rewrite", "small.kev", "small.kev"});
  EXPECT_NE(once, kSmall);
  EXPECT_EQ(ReadBytes(folder / "small.kev"), twice);
}

TEST_F(Kevtool, SaysWhyItCannotRewrite) {
  Expect({"rewrite", "no.kev", "out.kev"}, 1, "",
         "no.kev: no template: it has no [HEADER], [DATA] or [FOOTER] line\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "out.kev"));
  Expect({"rewrite", "small.kev", "no/out.kev"}, 1, "", "no/out.kev.tmp: No such file or directory\n");
}

TEST_F(Kevtool, TellsOfASymbologyThatHasNoWord) {
  WriteBytes(folder / "code.kev", "[HEADER]\r\n{5;B32}1{NoBar}\r\n");
  Expect({"rewrite", "code.kev", "out.kev"}, 0, "",
         "out.kev: bar code kind 32 has no word in a template and will not come back\n");
}

// ---- eval

TEST_F(Kevtool, EvaluatesAPosition) {
  struct Row {
    std::string expression, value;
  };
  for (const Row& row :
       {Row{"5", "5"}, Row{"-120", "-120"}, Row{"$col_01", "2400"}, Row{"$Col_01 / 7", "342.85714285714283"},
        Row{"$Gone + 7", "7"}, Row{"$Gone", ""}, Row{"$Col_01 / 0", ""}, Row{"5 $Col_01", ""}}) {
    Expect({"eval", "small.kev", row.expression}, 0, row.value + "\n", "");
  }
}

TEST_F(Kevtool, EvaluatesNothingInARefusedTemplate) {
  Expect({"eval", "no.kev", "5"}, 1, "",
         "no.kev: no template: it has no [HEADER], [DATA] or [FOOTER] line\n");
}

// ---- pack, unpack

constexpr const char* kEncoded =
    "FILEFORMAT=2\r\nKEXVER=4\r\n[HEADER]\r\n{100;}A{\\n}\r\n[DATA]\r\n[FOOTER]\r\n";

class PackedByKevtool : public Kevtool {
 protected:
  PackedByKevtool() {
    WriteBytes(folder / "plain.kev", kEncoded);
    EXPECT_EQ(Run({"pack", "plain.kev", "packed.kev"}).ExitCode, 0);
  }
};

TEST_F(PackedByKevtool, PackingAndUnpackingGivesTheSameFile) {
  EXPECT_TRUE(ReadBytes(folder / "packed.kev").starts_with(std::string("60\x03\x04")));
  Expect({"unpack", "packed.kev", "back.kev"}, 0, "", "");
  EXPECT_EQ(ReadBytes(folder / "back.kev"), kEncoded);
}

TEST_F(PackedByKevtool, PackedTemplatesAreReadLikePlainOnes) {
  EXPECT_EQ(Run({"dump", "packed.kev"}).Output, Run({"dump", "plain.kev"}).Output);
  EXPECT_EQ(Run({"check", "packed.kev"}).Output, "packed.kev: 11113\n");
  Expect({"eval", "packed.kev", "7"}, 0, "7\n", "");
}

TEST_F(PackedByKevtool, RewritingSavesInTheFormThatTheTemplateAsksFor) {
  for (const char* from : {"packed.kev", "plain.kev"}) {
    Expect({"rewrite", from, "out.kev"}, 0, "", "");
    EXPECT_TRUE(ReadBytes(folder / "out.kev").starts_with("60")) << from;
  }
  Expect({"rewrite", "small.kev", "out.kev"}, 0, "", "");
  EXPECT_FALSE(ReadBytes(folder / "out.kev").starts_with("60"));
  Expect({"rewrite", "packed.kev", "no/out.kev"}, 1, "", "no/out.kev: No such file or directory\n");
}

TEST_F(PackedByKevtool, TheReasonIsTold) {
  Expect({"pack", "gone.kev", "out.kev"}, 1, "", "gone.kev: No such file or directory\n");
  Expect({"pack", "packed.kev", "out.kev"}, 1, "", "packed.kev: is packed already\n");
  Expect({"pack", "plain.kev", "no/out.kev"}, 1, "", "no/out.kev: No such file or directory\n");
  Expect({"unpack", "plain.kev", "out.kev"}, 1, "", "plain.kev: is no packed template\n");
  Expect({"unpack", "gone.kev", "out.kev"}, 1, "", "gone.kev: No such file or directory\n");
  WriteBytes(folder / "damaged.kev", ReadBytes(folder / "packed.kev").substr(0, 50));
  Expect({"unpack", "damaged.kev", "out.kev"}, 1, "", "damaged.kev: the encoded template is damaged\n");
  Expect({"check", "damaged.kev"}, 1, "", "damaged.kev: the encoded template is damaged\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "out.kev"));
}

}  // namespace
}  // namespace kev::test
