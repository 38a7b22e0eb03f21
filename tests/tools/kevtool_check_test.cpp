// SPDX-License-Identifier: MIT
// `kevtool check` as a process: what it prints, to where, and how it ends.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/run_tool.h"

namespace kev::test {
namespace {

constexpr const char* kClean = "KEXVER=4\r\n[HEADER]\r\n{\\n}\r\n{100;}Total{}\r\n[DATA]\r\n[FOOTER]\r\n";
constexpr const char* kBad =
    "KEXVER=4\r\nkexver=3\r\n[HEADER]\r\n  {DEF} {Nonsense=1;5}A\xE9{}\r\n{$Gone}B{}\r\n{5}lo\xE9t";

class KevtoolCheck : public testing::Test {
 protected:
  void Make(const std::string& name, const std::string& bytes) { WriteBytes(folder / name, bytes); }
  ToolResult Run(const std::vector<std::string>& arguments) { return RunTool("kevtool", arguments, folder); }
  void Expect(const std::vector<std::string>& arguments, int exitCode, const std::string& output,
              const std::string& errors = "") {
    const ToolResult result = Run(arguments);
    EXPECT_EQ(result.ExitCode, exitCode);
    EXPECT_EQ(result.Output, output);
    EXPECT_EQ(result.Errors, errors);
  }
  // A template as a save leaves it.
  void MakeSaved(const std::string& name, const std::string& bytes = kClean) {
    Make("first.kev", bytes);
    ASSERT_EQ(Run({"rewrite", "first.kev", name}).ExitCode, 0);
    ASSERT_EQ(Run({"rewrite", name, name}).ExitCode, 0);
  }

  TemporaryFolder folder;
};

TEST_F(KevtoolCheck, PrintsFindingsAsCompilersDo) {
  Make("bad.kev", kBad);
  Expect({"check", "bad.kev"}, 1,
         "bad.kev: 10013\n"
         "bad.kev:2:1: key is repeated: KEXVER\n"
         "bad.kev:4:9: unknown key: Nonsense\n"
         "bad.kev:5:8: unknown column: $Gone\n"
         "bad.kev:6:4: text is lost: lo\xC3\xA9t\n");
}

// Several are under work at a time.
TEST_F(KevtoolCheck, TellsManyFilesInTheirOrder) {
  std::vector<std::string> arguments = {"check"};
  std::string output;
  std::string errors;
  for (int n = 0; n < 100; ++n) {
    const std::string name = std::to_string(n) + (n % 7 == 3 ? "no.kev" : "good.kev");
    Make(name, n % 7 == 3 ? "x" : kClean);
    arguments.push_back(name);
    output += name + (n % 7 == 3 ? ": 00003\n" : ": 11113\n");
    if (n % 7 == 3) errors += name + ": no template: it has no [HEADER], [DATA] or [FOOTER] line\n";
  }
  Expect(arguments, 1, output, errors);
}

TEST_F(KevtoolCheck, PrintsAJsonObjectOnALineForEachFile) {
  Make("bad.kev", kBad);
  Make("good.kev", kClean);
  Make("no.kev", "x");
  Expect(
      {"check", "--json", "bad.kev", "no.kev", "none.kev", "good.kev"}, 1,
      R"({"file":"bad.kev","check":"10013","refused":null,"findings":[)"
      R"({"line":2,"column":1,"kind":"repeated-key","text":"KEXVER","object":null},)"
      R"({"line":4,"column":9,"kind":"unknown-key","text":"Nonsense","object":{"row":2,"kind":"LABEL"}},)"
      R"({"line":5,"column":8,"kind":"unknown-column","text":"$Gone","object":{"row":3,"kind":"LABEL"}},)"
      "{\"line\":6,\"column\":4,\"kind\":\"text-lost\",\"text\":\"lo\xC3\xA9t\","
      R"("object":{"row":1,"kind":"SUBSECTION"}}]})"
      "\n"
      R"({"file":"no.kev","check":"00003","refused":"no template: it has no [HEADER], [DATA] or [FOOTER] line","findings":[]})"
      "\n"
      R"({"file":"none.kev","check":"","refused":"No such file or directory","findings":[]})"
      "\n"
      R"({"file":"good.kev","check":"11113","refused":null,"findings":[]})"
      "\n",
      "no.kev: no template: it has no [HEADER], [DATA] or [FOOTER] line\n"
      "none.kev: No such file or directory\n");
}

TEST_F(KevtoolCheck, ANameThatIsNoUtf8IsStillOneLineOfJson) {
  Make("caf\xE9.kev", kClean);
  Expect({"check", "--json", "caf\xE9.kev"}, 0,
         "{\"file\":\"caf\xEF\xBF\xBD.kev\",\"check\":\"11113\",\"refused\":null,\"findings\":[]}\n");
}

TEST_F(KevtoolCheck, StrictIsGoodWhereARewriteChangesNothing) {
  MakeSaved("saved.kev");
  Expect({"check", "--strict", "saved.kev"}, 0, "saved.kev: 11113\n");
  Expect({"check", "--strict", "--json", "saved.kev"}, 0,
         "{\"file\":\"saved.kev\",\"check\":\"11113\",\"refused\":null,\"findings\":[]}\n");
}

TEST_F(KevtoolCheck, StrictNamesTheFirstLineThatDiffers) {
  MakeSaved("saved.kev");
  std::string bytes = ReadBytes(folder / "saved.kev");
  const std::size_t at = bytes.find("Total");
  bytes.insert(at, " ");
  Make("changed.kev", bytes);
  Expect({"check", "changed.kev"}, 0, "changed.kev: 11113\n");
  const ToolResult strict = Run({"check", "--strict", "changed.kev"});
  EXPECT_EQ(strict.ExitCode, 1);
  EXPECT_EQ(strict.Errors, "");
  const auto line = 1 + std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at), '\n');
  EXPECT_TRUE(strict.Output.starts_with("changed.kev: 11113\nchanged.kev:" + std::to_string(line) + ":"))
      << strict.Output;
  EXPECT_NE(strict.Output.find(": line changes on saving: "), std::string::npos) << strict.Output;
  EXPECT_EQ(std::count(strict.Output.begin(), strict.Output.end(), '\n'), 2);
}

TEST_F(KevtoolCheck, StrictAgreesWithRewriteOnEveryExample) {
  std::filesystem::create_directory(folder / "again");
  for (const auto& entry : std::filesystem::directory_iterator(KEV_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".kev") continue;
    const std::string name = entry.path().filename().string();
    for (const std::string& file : {entry.path().string(), folder / ("once_" + name)}) {
      ASSERT_EQ(Run({"rewrite", file, "once_" + name}).ExitCode, 0);
      // Under its own name, which an encoded template holds.
      const std::string again = "again/" + std::filesystem::path(file).filename().string();
      ASSERT_EQ(Run({"rewrite", file, again}).ExitCode, 0);
      const bool same = ReadBytes(file) == ReadBytes(folder / again);
      const bool told =
          Run({"check", "--strict", file}).Output.find("line changes on saving") != std::string::npos;
      EXPECT_EQ(told, !same) << file;
    }
  }
}

TEST_F(KevtoolCheck, StrictKnowsTheFormOnTheDisk) {
  MakeSaved("plain.kev", std::string("FILEFORMAT=2\r\n") + kClean);
  Expect({"check", "--strict", "plain.kev"}, 0, "plain.kev: 11113\n");
  ASSERT_EQ(Run({"unpack", "plain.kev", "unpacked.kev"}).ExitCode, 0);
  Expect({"check", "--strict", "unpacked.kev"}, 1,
         "unpacked.kev: 11113\nunpacked.kev: line changes on saving: plain -> encoded\n");
  Expect({"check", "unpacked.kev"}, 0, "unpacked.kev: 11113\n");
}

TEST_F(KevtoolCheck, RefusesWhatItDoesNotKnow) {
  const ToolResult result = Run({"check", "--nothing", "a.kev"});
  EXPECT_EQ(result.ExitCode, 2);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Errors,
            "The following argument was not expected: --nothing\nRun with --help for more information.\n");
}

TEST_F(KevtoolCheck, LeavesTheFilesAlone) {
  Make("bad.kev", kBad);
  const auto before = std::filesystem::last_write_time(folder / "bad.kev");
  Run({"check", "--strict", "bad.kev"});
  EXPECT_EQ(ReadBytes(folder / "bad.kev"), kBad);
  EXPECT_EQ(std::filesystem::last_write_time(folder / "bad.kev"), before);
}

}  // namespace
}  // namespace kev::test
