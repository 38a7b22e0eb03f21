// SPDX-License-Identifier: MIT
#include "app/command_line.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/run_tool.h"

namespace kev {
namespace {

CommandLineParts Parse(std::vector<std::string> arguments) {
  return ParseCommandLine(arguments);
}

class CommandLineFiles : public testing::Test {
 protected:
  std::string Made(const std::string& name) {
    const std::filesystem::path path = folder_ / name;
    std::filesystem::create_directories(path.parent_path());
    test::WriteBytes(path, "[HEADER]\n");
    return path.string();
  }

  test::TemporaryFolder folder_;
};

TEST_F(CommandLineFiles, APathIsAPath) {
  const std::string file = Made("a.kev");
  EXPECT_EQ(Parse({file}).CommandLine, file);
  EXPECT_EQ(Parse({file}).CommandOptions, "");
  // Also where no such file exists.
  EXPECT_EQ(Parse({"/home/nobody/a.kev"}).CommandLine, "/home/nobody/a.kev");
  EXPECT_EQ(Parse({"/home/nobody/a.kev"}).CommandOptions, "");
  EXPECT_EQ(Parse({"/nofile.kev"}).CommandLine, "/nofile.kev");
  EXPECT_EQ(Parse({}).CommandLine, "");
}

TEST_F(CommandLineFiles, TheOptionTailIsCutOff) {
  const std::string file = Made("a.kev");
  const CommandLineParts parts = Parse({file + " /x!!#/"});
  EXPECT_EQ(parts.CommandLine, file);
  EXPECT_EQ(parts.CommandOptions, "x!!#");
  EXPECT_TRUE(parts.WriterComments());
  EXPECT_FALSE(parts.SkipsChecks());
  EXPECT_EQ(Parse({file, "/x!!#/"}).CommandOptions, "x!!#");
  EXPECT_EQ(Parse({"/home/nobody/a.kev", "/%%!/"}).CommandLine, "/home/nobody/a.kev");
  EXPECT_TRUE(Parse({"/home/nobody/a.kev", "/%%!/"}).SkipsChecks());
}

TEST_F(CommandLineFiles, ATailWithoutItsEndNeedsAFileBeforeIt) {
  const std::string file = Made("a.kev");
  EXPECT_EQ(Parse({file, "/!!#"}).CommandOptions, "!!#");
  EXPECT_EQ(Parse({"/home/nobody/a.kev", "/!!#"}).CommandLine, "/home/nobody/a.kev /!!#");
}

TEST_F(CommandLineFiles, AFolderWhoseNameEndsInABlankIsNoTail) {
  EXPECT_EQ(Parse({"/home/u/my /dir/a.kev"}).CommandLine, "/home/u/my /dir/a.kev");
  EXPECT_EQ(Parse({"/home/u/my /dir/a.kev"}).CommandOptions, "");
  const std::string file = Made("my /a.kev");
  EXPECT_EQ(Parse({file}).CommandLine, file);
}

TEST_F(CommandLineFiles, OptionsMayStandAlone) {
  const CommandLineParts parts = Parse({"/x!!#/"});
  EXPECT_EQ(parts.CommandLine, "");
  EXPECT_EQ(parts.CommandOptions, "x!!#");
  EXPECT_TRUE(parts.WriterComments());
}

TEST_F(CommandLineFiles, AnExistingFolderIsAPath) {
  const std::string folder = (folder_ / "");
  EXPECT_EQ(Parse({folder}).CommandLine, folder);
  EXPECT_EQ(Parse({folder}).CommandOptions, "");
}

TEST_F(CommandLineFiles, UnquotedBlanksInAPathComeTogetherAgain) {
  const std::string file = Made("my reports.kev");
  const std::size_t blank = file.rfind(' ');
  EXPECT_EQ(Parse({file.substr(0, blank), file.substr(blank + 1)}).CommandLine, file);
}

TEST_F(CommandLineFiles, ALinkGivesItsPath) {
  const std::string file = Made("My Reports/a.kev");
  const std::string escaped = (folder_ / "My%20Reports/a.kev");
  for (const char* prefix : {"EDITKEVTEMPLATE:", "editkevtemplate:", "EditKevTemplate: "})
    EXPECT_EQ(ResolveTemplatePath(prefix + escaped), file) << prefix;
  // Without the prefix the escape is part of a name.
  EXPECT_EQ(ResolveTemplatePath(escaped), escaped);
}

TEST_F(CommandLineFiles, ALinkMayCarryAnAddress) {
  const std::string file = Made("r\xC3\xA9sum\xC3\xA9 1.kev");
  const std::string escaped = "file://" + (folder_ / "r%C3%A9sum%c3%a9%201.kev");
  EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:" + escaped), file);
  EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:" + escaped.substr(7)), file);
}

TEST_F(CommandLineFiles, BlanksAtTheEndsOfANameBelongToIt) {
  for (const char* name : {"a.kev ", "  b.kev", " c "}) {
    const std::string file = Made(name);
    EXPECT_EQ(Parse({file}).CommandLine, file);
    EXPECT_EQ(ResolveTemplatePath(file), file);
  }
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder_ / "");
  EXPECT_EQ(ResolveTemplatePath(Parse({"  b.kev"}).CommandLine), folder_ / "  b.kev");
  std::filesystem::current_path(before);
  // Where no such file exists they are none of it.
  const std::string plain = Made("d.kev");
  EXPECT_EQ(Parse({" " + plain + " "}).CommandLine, plain);
  EXPECT_EQ(ResolveTemplatePath(" " + plain + " "), plain);
}

TEST_F(CommandLineFiles, AnAddressMayNameThisMachine) {
  const std::string file = Made("My Reports/a.kev");
  const std::string escaped = (folder_ / "My%20Reports/a.kev");
  for (const char* prefix : {"file://localhost", "FILE://LocalHost", "file://"})
    EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:" + std::string(prefix) + escaped), file) << prefix;
  EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:file://localhost/nowhere/a%C3%A9.kev"),
            "/nowhere/a\xC3\xA9.kev");
}

TEST_F(CommandLineFiles, AnEscapedEndOfTextCutsNothingOff) {
  const std::string file = Made("a.kev");
  EXPECT_NE(ResolveTemplatePath("EDITKEVTEMPLATE:" + file + "%00.png"), file);
  EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:/nowhere/50%25.kev"), "/nowhere/50%25.kev");
  EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:/nowhere/a%"), "/nowhere/a%");
}

TEST_F(CommandLineFiles, OptionsAreCutBeforeEscapesBecomeBlanks) {
  const std::string file = Made("a.kev");
  const CommandLineParts parts = Parse({"EDITKEVTEMPLATE:" + file + "%20/%%!/"});
  EXPECT_FALSE(parts.SkipsChecks());
  EXPECT_EQ(parts.CommandOptions, "");
  const CommandLineParts plain = Parse({"EDITKEVTEMPLATE:" + file, "/!!#"});
  EXPECT_TRUE(plain.WriterComments());
  EXPECT_EQ(ResolveTemplatePath(plain.CommandLine), file);
}

TEST(CommandLine, ARelativePathBecomesAbsolute) {
  EXPECT_EQ(ResolveTemplatePath("x/../a.kev"), (std::filesystem::current_path() / "a.kev").string());
  EXPECT_EQ(ResolveTemplatePath("EDITKEVTEMPLATE:a.kev"),
            (std::filesystem::current_path() / "a.kev").string());
  EXPECT_EQ(ResolveTemplatePath(""), "");
  EXPECT_EQ(ResolveTemplatePath("  "), "");
}

TEST(CommandLine, ALoneHelpOrVersionIsAskedFor) {
  EXPECT_TRUE(Parse({"--help"}).Help);
  EXPECT_TRUE(Parse({"--version"}).Version);
  EXPECT_FALSE(Parse({"--help", "a.kev"}).Help);
  EXPECT_FALSE(Parse({"a.kev"}).Version);
  EXPECT_NE(HelpText().find("--version"), std::string_view::npos);
  EXPECT_TRUE(VersionText().starts_with("Kev Visual Editor "));
  EXPECT_NE(VersionText().find('.'), std::string_view::npos);
  EXPECT_TRUE(VersionText().ends_with('\n'));
}

}  // namespace
}  // namespace kev
