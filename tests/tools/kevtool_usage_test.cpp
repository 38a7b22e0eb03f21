// SPDX-License-Identifier: MIT
// What kevtool says of itself and of a wrong call, command by command.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>

#include "support/run_tool.h"

namespace kev::test {
namespace {

using Arguments = std::vector<std::string>;

constexpr const char* kTemplate = "KEXVER=4\r\n[HEADER]\r\n{5}A{}\r\n";

struct UsageCase {
  Arguments arguments;
  std::string errors;
};

class KevtoolUsage : public testing::Test {
 protected:
  KevtoolUsage() {
    WriteBytes(folder / "good.kev", kTemplate);
    WriteBytes(folder / "good.kex", "TEMPLATE=a\r\n|A|1|\r\n");
    WriteBytes(folder / "good.ked", "TEMPLATE=a\r\n@a=1\r\n");
    for (const char* name : {"folder", "folder.kex", "folder.ked", "folder.png"})
      std::filesystem::create_directory(folder / name);
    EXPECT_EQ(RunTool("kevtool", {"pack", "good.kev", "packed.kev"}, folder).ExitCode, 0);
  }

  void Expect(int exitCode, const std::vector<UsageCase>& cases, const std::string& behind = {}) {
    for (const UsageCase& row : cases) {
      std::string command = "kevtool";
      for (const std::string& argument : row.arguments)
        command += " " + argument;
      const ToolResult result = RunTool("kevtool", row.arguments, folder);
      EXPECT_EQ(result.ExitCode, exitCode) << command;
      EXPECT_EQ(result.Output, "") << command;
      EXPECT_EQ(result.Errors, row.errors + behind + "\n") << command;
    }
  }
  void ExpectWrong(const std::vector<UsageCase>& cases) {
    Expect(2, cases, "\nRun with --help for more information.");
  }
  void ExpectRefused(const std::vector<UsageCase>& cases) { Expect(1, cases); }

  TemporaryFolder folder;
};

std::vector<std::string> Commands() {
  return {"check", "dump",
#ifdef KEV_WITH_QT
          // The help of diff has its picture too.
          "diff", "render",
#endif
          "rewrite", "eval", "pack", "unpack", "sample", "new", "barcode"};
}

TEST_F(KevtoolUsage, EveryHelpIsTheOneThatIsKept) {
  const std::string golden = std::string(KEV_TEST_DATA_DIR) + "/tools/golden/help/";
  std::vector<Arguments> calls;
#ifdef KEV_WITH_QT
  calls.push_back({"--help"});
#endif
  for (const std::string& command : Commands())
    calls.push_back({command, "--help"});
  for (const Arguments& call : calls) {
    const std::string file = golden + (call.size() == 1 ? "kevtool" : call.front()) + ".txt";
    const ToolResult result = RunTool("kevtool", call, folder);
    EXPECT_EQ(result.ExitCode, 0) << file;
    EXPECT_EQ(result.Errors, "") << file;
    EXPECT_EQ(result.Output, ReadBytes(file)) << file;
  }
}

TEST_F(KevtoolUsage, EveryCommandOfTheListHasItsHelpKept) {
  const std::string list = ReadBytes(std::string(KEV_TEST_DATA_DIR) + "/tools/golden/help/kevtool.txt");
  std::size_t kept = 0;
  for (const auto& file :
       std::filesystem::directory_iterator(std::string(KEV_TEST_DATA_DIR) + "/tools/golden/help")) {
    const std::string name = file.path().stem();
    if (name == "kevtool") continue;
    ++kept;
    EXPECT_NE(list.find("\n  " + name + " "), std::string::npos) << name;
  }
  std::size_t listed = 0;
  for (std::size_t at = list.find("Subcommands:\n") + 13; at < list.size() && list[at] == ' ';
       at = list.find('\n', at) + 1)
    ++listed;
  EXPECT_EQ(listed, kept);
}

TEST_F(KevtoolUsage, AMissingArgumentIsNamed) {
  ExpectWrong({{{"check"}, "FILE is required"},
               {{"dump"}, "FILE is required"},
               {{"rewrite"}, "IN is required"},
               {{"rewrite", "good.kev"}, "OUT is required"},
               {{"eval"}, "FILE is required"},
               {{"eval", "good.kev"}, "EXPRESSION is required"},
               {{"pack"}, "IN is required"},
               {{"pack", "good.kev"}, "OUT is required"},
               {{"unpack"}, "IN is required"},
               {{"unpack", "packed.kev"}, "OUT is required"},
               {{"sample"}, "FILE is required"},
               {{"new", "--kex", "good.kex"}, "OUT is required"},
               {{"barcode"}, "KIND is required"},
               {{"diff"}, "FIRST is required"},
               {{"diff", "good.kev"}, "SECOND is required"}});
  Expect(2, {{{"barcode", "13"}, "kevtool: barcode takes either TEXT or --lines"}});
}

TEST_F(KevtoolUsage, AnOptionThatIsNoneIsNamed) {
  for (const Arguments& call : std::vector<Arguments>{{"check", "good.kev"},
                                                      {"dump", "good.kev"},
                                                      {"rewrite", "good.kev", "out.kev"},
                                                      {"eval", "good.kev", "5"},
                                                      {"pack", "good.kev", "out.kev"},
                                                      {"unpack", "packed.kev", "out.kev"},
                                                      {"sample", "good.kex"},
                                                      {"new", "--kex", "good.kex", "out.kev"},
                                                      {"barcode", "13", "123456789012"},
                                                      {"diff", "good.kev", "good.kev"}}) {
    Arguments arguments = call;
    arguments.push_back("--nothing");
    ExpectWrong({{arguments, "The following argument was not expected: --nothing"}});
  }
  EXPECT_FALSE(std::filesystem::exists(folder / "out.kev"));
}

TEST_F(KevtoolUsage, AnArgumentTooManyIsNamed) {
  for (const Arguments& call : std::vector<Arguments>{{"dump", "good.kev"},
                                                      {"rewrite", "good.kev", "out.kev"},
                                                      {"eval", "good.kev", "5"},
                                                      {"pack", "good.kev", "out.kev"},
                                                      {"unpack", "packed.kev", "out.kev"},
                                                      {"sample", "good.kex"},
                                                      {"new", "--kex", "good.kex", "out.kev"},
                                                      {"barcode", "13", "123456789012"},
                                                      {"diff", "good.kev", "good.kev"}}) {
    Arguments arguments = call;
    arguments.push_back("more");
    ExpectWrong({{arguments, "The following argument was not expected: more"}});
  }
}

TEST_F(KevtoolUsage, AFileThatIsNotThereIsNamed) {
  const std::string reason = ": No such file or directory";
  ExpectRefused({{{"check", "none.kev"}, "none.kev" + reason},
                 {{"dump", "none.kev"}, "none.kev" + reason},
                 {{"rewrite", "none.kev", "out.kev"}, "none.kev" + reason},
                 {{"eval", "none.kev", "5"}, "none.kev" + reason},
                 {{"pack", "none.kev", "out.kev"}, "none.kev" + reason},
                 {{"unpack", "none.kev", "out.kev"}, "none.kev" + reason},
                 {{"sample", "none.kex"}, "none.kex" + reason},
                 {{"new", "--kex", "none.kex", "out.kev"}, "none.kex" + reason},
                 {{"diff", "none.kev", "good.kev"}, "none.kev" + reason},
                 {{"diff", "none.kev", "gone.kev"}, "none.kev" + reason + "\ngone.kev" + reason}});
}

TEST_F(KevtoolUsage, AFolderInPlaceOfAFileIsNamed) {
  const std::string reason = ": Is a directory";
  ExpectRefused({{{"check", "folder"}, "folder" + reason},
                 {{"dump", "folder"}, "folder" + reason},
                 {{"rewrite", "folder", "out.kev"}, "folder" + reason},
                 {{"eval", "folder", "5"}, "folder" + reason},
                 {{"pack", "folder", "out.kev"}, "folder" + reason},
                 {{"unpack", "folder", "out.kev"}, "folder" + reason},
                 {{"sample", "folder.kex"}, "folder.kex" + reason},
                 {{"new", "--kex", "folder.kex", "out.kev"}, "folder.kex" + reason},
                 {{"new", "--ked", "folder.ked", "out.kev"}, "folder.ked" + reason},
                 {{"diff", "good.kev", "folder"}, "folder" + reason}});
}

void MakeSocket(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof address.sun_path);
  path.copy(address.sun_path, path.size());
  const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
  EXPECT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ::close(socket);
}

void ExpectUnreadable(const TemporaryFolder& folder, const std::string& file, const std::string& reason) {
  for (const Arguments& call : std::vector<Arguments>{{"check", file},
                                                      {"dump", file},
                                                      {"rewrite", file, "out.kev"},
                                                      {"eval", file, "5"},
                                                      {"pack", file, "out.kev"},
                                                      {"unpack", file, "out.kev"},
                                                      {"diff", "good.kev", file}}) {
    const ToolResult result = RunTool("kevtool", call, folder);
    EXPECT_EQ(result.ExitCode, 1) << call.front();
    EXPECT_EQ(result.Output, "") << call.front();
    EXPECT_EQ(result.Errors, file + ": " + reason + "\n") << call.front();
  }
  EXPECT_FALSE(std::filesystem::exists(folder / "out.kev"));
}

TEST_F(KevtoolUsage, AFileThatCannotBeReadIsNamed) {
  // Nobody opens a socket as a file.
  MakeSocket(folder / "socket");
  ExpectUnreadable(folder, "socket", "No such device or address");
}

TEST_F(KevtoolUsage, AFileThatMayNotBeReadIsNamed) {
  if (::geteuid() == 0) GTEST_SKIP() << "everything may be read by this user";
  std::filesystem::permissions(folder / "good.kex", std::filesystem::perms::none);
  WriteBytes(folder / "closed.kev", kTemplate);
  std::filesystem::permissions(folder / "closed.kev", std::filesystem::perms::none);
  ExpectUnreadable(folder, "closed.kev", "Permission denied");
  ExpectRefused({{{"sample", "good.kex"}, "good.kex: Permission denied"}});
}

TEST_F(KevtoolUsage, AnOutputThatCannotBeWrittenIsNamed) {
  const std::string missing = ": No such file or directory";
  ExpectRefused({{{"rewrite", "good.kev", "none/out.kev"}, "none/out.kev.tmp" + missing},
                 {{"pack", "good.kev", "none/out.kev"}, "none/out.kev" + missing},
                 {{"unpack", "packed.kev", "none/out.kev"}, "none/out.kev" + missing},
                 {{"new", "--kex", "good.kex", "none/out.kev"}, "none/out.kev" + missing},
                 {{"new", "--ked", "good.ked", "none/out.kev"}, "none/out.kev" + missing},
                 {{"rewrite", "good.kev", "folder"}, "folder: Is a directory"},
                 {{"pack", "good.kev", "folder"}, "folder: Is a directory"},
                 {{"unpack", "packed.kev", "folder"}, "folder: Is a directory"},
                 {{"new", "--kex", "good.kex", "folder"}, "folder: Is a directory"}});
}

TEST_F(KevtoolUsage, OutputThatNobodyTakesIsAFailure) {
  const std::string tool = ShellQuoted(std::string(KEV_PROGRAM_DIR) + "/kevtool");
  const auto run = [&](const std::string& rest) {
    const int status =
        std::system(("cd " + ShellQuoted(folder / "") + " && " + tool + " " + rest + " 2>.stderr").c_str());
    return std::pair(WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadBytes(folder / ".stderr"));
  };
  const std::string full = "kevtool: standard output: No space left on device\n";
  EXPECT_EQ(run("dump good.kev >/dev/full"), std::pair(1, full));
  EXPECT_EQ(run("--help >/dev/full"), std::pair(1, full));
  EXPECT_EQ(run("dump good.kev >&-"),
            std::pair(1, std::string("kevtool: standard output: Bad file descriptor\n")));
  // Nothing is said, so that nothing is lost.
  EXPECT_EQ(run("rewrite good.kev out.kev >/dev/full"), std::pair(0, std::string()));
  EXPECT_EQ(run("rewrite good.kev out.kev <&- >&- "), std::pair(0, std::string()));
}

TEST_F(KevtoolUsage, AnOutputThatIsNoFileStaysWhatItIs) {
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  const std::string reason = ": not a regular file";
  ExpectRefused({{{"rewrite", "good.kev", "pipe"}, "pipe" + reason},
                 {{"pack", "good.kev", "pipe"}, "pipe" + reason},
                 {{"unpack", "packed.kev", "pipe"}, "pipe" + reason},
                 {{"new", "--kex", "good.kex", "pipe"}, "pipe" + reason}});
  EXPECT_TRUE(std::filesystem::is_fifo(folder / "pipe"));
}

TEST_F(KevtoolUsage, AKindOfBarCodeThatIsNoneIsNamed) {
  Expect(2, {{{"barcode", "7", "1"}, "kevtool: there is no bar code of the kind 7"},
             {{"barcode", "nothing", "1"}, "kevtool: there is no bar code of the kind nothing"},
             {{"barcode", "13", "1", "--lines"}, "kevtool: barcode takes either TEXT or --lines"}});
}

#ifdef KEV_WITH_QT
TEST_F(KevtoolUsage, PicturesNameWhatIsWrong) {
  ExpectWrong(
      {{{"render"}, "FILE is required"},
       {{"render", "good.kev"}, "FILE: needs a template and its picture, or templates with --out-dir"},
       {{"render", "good.kev", "a.png", "--nothing"}, "The following argument was not expected: --nothing"},
       {{"render", "good.kev", "a.png", "more"},
        "FILE: needs a template and its picture, or templates with --out-dir"},
       {{"render", "good.kev", "a.png", "--zoom", "5"},
        "--zoom: Value 5 not in range 10.000000 to 800.000000"},
       {{"render", "good.kev", "a.png", "--scale", "x"},
        "--scale: Value x not in range 0.100000 to 16.000000"},
       {{"render", "good.kev", "a.png", "--filter", "x"}, "--filter: x not in {all,ebeu,print}"},
       {{"diff", "good.kev", "good.kev", "--image", "a.gif"}, "--image: the name must end in .png"},
       {{"diff", "good.kev", "good.kev", "--image"}, "--image: 1 required TEXT missing"}});
  MakeSocket(folder / "socket");
  ExpectRefused(
      {{{"render", "none.kev", "a.png"}, "none.kev: No such file or directory"},
       {{"render", "folder", "a.png"}, "folder: Is a directory"},
       {{"render", "socket", "a.png"}, "socket: No such device or address"},
       {{"render", "good.kev", "a.gif"},
        "a.gif: the name of the picture ends neither in .png nor in .pdf nor in .svg"},
       {{"render", "good.kev", "none/a.png"}, "none/a.png: No such file or directory"},
       {{"render", "good.kev", "folder.png"}, "folder.png: Is a directory"},
       {{"diff", "good.kev", "good.kev", "--image", "none/a.png"}, "none/a.png: No such file or directory"},
       {{"diff", "good.kev", "good.kev", "--image", "folder.png"}, "folder.png: Is a directory"}});
}
#endif

}  // namespace
}  // namespace kev::test
