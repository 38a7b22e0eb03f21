// SPDX-License-Identifier: MIT
#include "testrun/editor.h"

#include <gtest/gtest.h>

#include "base/text_numbers.h"
#include "support/page_fixture.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev::test {
namespace {

using Arguments = std::vector<std::string>;

TEST(Editor, GetsTheFileAsItsOneArgument) {
  const ProgramStart start = EditorStart("notepad", "/home/u/my file.kex");
  EXPECT_EQ(start.Program, "notepad");
  EXPECT_EQ(start.Arguments, Arguments{"/home/u/my file.kex"});
}

TEST(Editor, IsNotepadWhereNoneIsSet) {
  EXPECT_EQ(EditorStart("", "/a").Program, "notepad");
  EXPECT_EQ(EditorStart("  ", "/a").Program, "notepad");
}

TEST(Editor, KeepsArgumentsOfItsOwn) {
  const ProgramStart start = EditorStart(" gedit   --wait -n ", "/a b");
  EXPECT_EQ(start.Program, "gedit");
  EXPECT_EQ(start.Arguments, (Arguments{"--wait", "-n", "/a b"}));
}

TEST(Editor, MayHaveBlanksInItsPath) {
  const TemporaryFolder folder;
  const std::string program = folder / "my editor";
  WriteBytes(program, "");
  const ProgramStart start = EditorStart(program, "/a");
  EXPECT_EQ(start.Program, program);
  EXPECT_EQ(start.Arguments, Arguments{"/a"});
}

class OpenedInEditor : public testing::Test {
 protected:
  ScriptedHost host_;
  ScriptedPage services_;

  void Open() { OpenInEditor(host_, services_, "notepad", "/home/u/data.kex"); }
};

TEST_F(OpenedInEditor, IsStartedAndNotWaitedFor) {
  Open();
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Program, "notepad");
  EXPECT_FALSE(host_.Programs[0].Ended);
  EXPECT_TRUE(host_.Waits.empty());
  EXPECT_TRUE(host_.DesktopFiles.empty());
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(OpenedInEditor, IsTheDesktopsOwnProgramWhereThereIsNoSuchEditor) {
  host_.MissingPrograms = {"notepad"};
  Open();
  EXPECT_EQ(host_.DesktopFiles, Arguments{"/home/u/data.kex"});
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(OpenedInEditor, IsNamedWhereTheDesktopHasNoneEither) {
  host_.MissingPrograms = {"notepad"};
  host_.DesktopKnown = false;
  Open();
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Text, services_.Text(kTextProgramNotStarted) + " ");
  EXPECT_EQ(host_.Messages[0].Detail, "notepad");
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Critical);
}

}  // namespace
}  // namespace kev::test
