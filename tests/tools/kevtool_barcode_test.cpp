// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/run_tool.h"

namespace kev::test {
namespace {

class KevtoolBarcode : public testing::Test {
 protected:
  ToolResult Run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "barcode");
    return RunTool("kevtool", arguments, folder_);
  }
  void Expect(const std::vector<std::string>& arguments, int exitCode, const std::string& output,
              const std::string& errors = "") {
    const ToolResult result = Run(arguments);
    EXPECT_EQ(result.ExitCode, exitCode);
    EXPECT_EQ(result.Output, output);
    EXPECT_EQ(result.Errors, errors);
  }
  // With these bytes as standard input.
  ToolResult RunOn(const std::string& input, const std::string& kind) {
    WriteBytes(folder_ / "input", input);
    const std::string command = ShellQuoted(std::string(KEV_PROGRAM_DIR) + "/kevtool") + " barcode " + kind +
                                " --lines <" + ShellQuoted(folder_ / "input") + " >" +
                                ShellQuoted(folder_ / "output") + " 2>" + ShellQuoted(folder_ / "errors");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadBytes(folder_ / "output"),
            ReadBytes(folder_ / "errors")};
  }

  TemporaryFolder folder_;
};

TEST_F(KevtoolBarcode, PrintsModulesOrElements) {
  Expect({"251", "12"}, 0, "1010111010001010111000111010\n");
  Expect({"1", "A"}, 0, "32314141314131323143231414131\n");
  Expect({"1282", "A"}, 0, "2112141113231311232331112\n");
  Expect({"12821", "A"}, 0, "2112141113231311232331112\n");
}

TEST_F(KevtoolBarcode, TakesKeywordsThatAreNoKinds) {
  Expect({"128B", "A"}, 0, "2A1B1D1A1C2C1C1A2C2C3A1A2\n");
  EXPECT_TRUE(Run({"UPC/A", "03600029145"}).Output.ends_with("/CD=2/\n"));
  EXPECT_EQ(Run({"upc/a", "03600029145"}).ExitCode, 0);
  EXPECT_EQ(Run({"39", "A"}).Output, Run({"39", "a"}).Output);
}

TEST_F(KevtoolBarcode, TextMayBeginWithADashOrBeEmpty) {
  EXPECT_EQ(Run({"39", "--", "-1"}).ExitCode, 0);
  EXPECT_EQ(Run({"39", "--", "--lines"}).ExitCode, 0);
  Expect({"1", ""}, 0, "\n");
}

TEST_F(KevtoolBarcode, WhatCannotBeEncodedIsRefused) {
  Expect({"8", "1234567"}, 1, "/ERRORE=L/\n");
  Expect({"39", "A,B"}, 1, "/ERRORE=P:044/\n");
  Expect({"13", "12345678901x"}, 1, "/ERRORE=N/\n");
  Expect({"251", "123"}, 1, "/ERRORE=D/\n");
}

TEST_F(KevtoolBarcode, EncodesEachLineOfItsInput) {
  ToolResult result = RunOn("A\n\nB\n", "1");
  EXPECT_EQ(result.ExitCode, 0);
  EXPECT_EQ(result.Output, Run({"1", "A"}).Output + "\n" + Run({"1", "B"}).Output);
  result = RunOn("12345670\n1234567\n96385074\n", "8");
  EXPECT_EQ(result.ExitCode, 1);
  EXPECT_EQ(result.Output, Run({"8", "12345670"}).Output + "/ERRORE=L/\n" + Run({"8", "96385074"}).Output);
}

TEST_F(KevtoolBarcode, WrongUsageIsTold) {
  Expect({"7", "1"}, 2, "", "kevtool: there is no bar code of the kind 7\n");
  Expect({"EAN", "1"}, 2, "", "kevtool: there is no bar code of the kind EAN\n");
  Expect({"8"}, 2, "", "kevtool: barcode takes either TEXT or --lines\n");
  Expect({"8", "1", "--lines"}, 2, "", "kevtool: barcode takes either TEXT or --lines\n");
  Expect({}, 2, "", "KIND is required\nRun with --help for more information.\n");
  Expect({"39", "\xCE\xA9"}, 2, "", "kevtool: a template cannot hold the character \xCE\xA9\n");
}

TEST_F(KevtoolBarcode, ExplainsItself) {
  Expect({"--help"}, 0,
         "Print the modules of a bar code, or its elements\n"
         "Usage: kevtool barcode [OPTIONS] KIND [TEXT]\n"
         "\n"
         "Positionals:\n"
         "  KIND TEXT REQUIRED          Number of the kind (13), or keyword of the encoder (EAN13)\n"
         "  TEXT TEXT                   What is encoded; behind -- where it begins with -\n"
         "\n"
         "Options:\n"
         "  -h,--help                   Print this help message and exit\n"
         "  --lines                     Encode each line of standard input instead of TEXT\n"
         "\n");
}

TEST_F(KevtoolBarcode, RewriteNamesWhatReachesTooFar) {
  WriteBytes(folder_ / "far.kev",
             "KEXVER=4\r\n[HEADER]\r\n{\\n}\r\n[DATA]\r\n{32000;B128B;BarHeight=400}@code{NoBar}\r\n"
             "{Spacing=400;\\n}\r\n[FOOTER]\r\n{\\n}\r\n");
  const ToolResult result = RunTool("kevtool", {"rewrite", "far.kev", "out.kev"}, folder_);
  EXPECT_EQ(result.ExitCode, 0);
  EXPECT_EQ(result.Errors, "far.kev: bar code reaches too far to be painted: @code\n");
}

}  // namespace
}  // namespace kev::test
