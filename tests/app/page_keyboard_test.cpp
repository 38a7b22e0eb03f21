// SPDX-License-Identifier: MIT
// The page worked by keys alone, through the designer.
#include "app/designer_fixture.h"
#include "surface/group_keys.h"
#include "surface/object_description.h"
#include "surface/selection.h"

namespace kev {
namespace {

class PageKeyboardTest : public test::DesignerTest {
 protected:
  PageKeyboardTest() : designer_(Start()) {
    EXPECT_TRUE(designer_->OpenFresh(test::TemplateWith("{500;}Alpha{3000;}Beta{\\n}\r\n")));
  }
  DesignSurface& Surface() { return designer_->Surface(); }
  std::string CurrentText() {
    const ObjectTable& objects = designer_->OpenDocument().Objects;
    return DescribeObject(Surface().Work(), objects.CurrentObject).Content;
  }
  bool Ctrl(int code) { return Surface().KeyDown(code, kCtrlKey, ""); }
  std::vector<std::string> Members() {
    const PageWork work = Surface().Work();
    std::vector<std::string> texts;
    for (const int row : GroupMembers(work))
      texts.push_back(DescribeObject(work, row).Content);
    return texts;
  }
  bool Tab(int shift = 0) { return Surface().KeyDown(kKeyTab, shift, ""); }

  std::unique_ptr<Designer> designer_;
};

TEST_F(PageKeyboardTest, TabSelectsOneObjectAfterTheOtherAndChangesNothing) {
  std::vector<std::string> visited;
  while (Tab())
    visited.push_back(CurrentText());
  EXPECT_EQ(visited, (std::vector<std::string>{"[HEADER]", "[DATA]", "Alpha", "Beta", "[FOOTER]"}));
  EXPECT_TRUE(Tab(kShiftKey));
  EXPECT_EQ(CurrentText(), "Beta");
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PageKeyboardTest, TabEndsAGroup) {
  Tab();
  Tab();
  Surface().Run(Command::SelectAll);
  ASSERT_TRUE(Surface().Pointer().MultiSelected);
  Tab();
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(designer_->OpenDocument().Objects.SelectionCount, 0);
}

TEST_F(PageKeyboardTest, SelectAllTakesTheSectionThatTabHasReached) {
  Tab();
  Tab();
  ASSERT_EQ(CurrentText(), "[DATA]");
  Surface().Run(Command::SelectAll);
  EXPECT_EQ(designer_->OpenDocument().Objects.SelectionCount, 2);
}

TEST_F(PageKeyboardTest, AnInsertionGoesIntoTheSubsectionThatTabHasReached) {
  for (const std::string section : {"[HEADER]", "[DATA]", "[FOOTER]"}) {
    while (CurrentText() != section)
      ASSERT_TRUE(Tab()) << section;
    const int bar = designer_->OpenDocument().Objects.CurrentObject;
    const int before = test::CountOf(*designer_, ObjectKind::Box);
    Surface().Run(Command::InsertBox);
    EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Box), before + 1) << section;
    Surface().PickObject(bar);
  }
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(PageKeyboardTest, SingleObjectsJoinAndLeaveAGroup) {
  ASSERT_TRUE(designer_->OpenFresh(test::TemplateWith("{500;}Alpha{3000;}Beta{6000;}Gamma{\\n}\r\n")));
  EXPECT_TRUE(Ctrl(kKeyDown));
  EXPECT_EQ(CurrentText(), "Alpha");
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_TRUE(Ctrl(kKeySpace));
  EXPECT_EQ(Members(), std::vector<std::string>{"Alpha"});
  Ctrl(kKeyRight);
  EXPECT_EQ(CurrentText(), "Beta");
  EXPECT_EQ(Members(), std::vector<std::string>{"Alpha"});
  Ctrl(kKeyRight);
  Ctrl(kKeySpace);
  EXPECT_EQ(Members(), (std::vector<std::string>{"Alpha", "Gamma"}));
  Ctrl(kKeyUp);
  Ctrl(kKeyUp);
  Ctrl(kKeySpace);
  EXPECT_EQ(Members(), std::vector<std::string>{"Gamma"});
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PageKeyboardTest, AGroupOfSingleObjectsIsDeletedAndComesBack) {
  Ctrl(kKeyDown);
  Ctrl(kKeySpace);
  Ctrl(kKeyDown);
  Ctrl(kKeySpace);
  ASSERT_EQ(Members().size(), 2U);
  EXPECT_TRUE(Surface().KeyDown(kKeyDelete, 0, ""));
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 0);
  Surface().Run(Command::Undo);
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 2);
}

TEST_F(PageKeyboardTest, TheKeyboardStaysOnThePageWhileAGroupIsPutTogether) {
  Ctrl(kKeyDown);
  Ctrl(kKeySpace);
  for (int n = 0; n < 5; ++n)
    EXPECT_TRUE(Ctrl(kKeyDown));
  EXPECT_EQ(CurrentText(), "Beta");
  EXPECT_EQ(Members(), std::vector<std::string>{"Alpha"});
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, ""));
  EXPECT_TRUE(Members().empty());
}

TEST_F(PageKeyboardTest, TheMemberThatLeavesLastLeavesNoGroup) {
  Ctrl(kKeyDown);
  Ctrl(kKeySpace);
  Ctrl(kKeySpace);
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(CurrentText(), "Alpha");
}

TEST_F(PageKeyboardTest, TabDuringAGestureDoesNothing) {
  Tab();
  const std::string before = CurrentText();
  Surface().PointerPress({PointerSource::Page, 0, PointerButton::Left, 0, 5000, 5000});
  EXPECT_FALSE(Tab());
  EXPECT_EQ(CurrentText(), before);
}

}  // namespace
}  // namespace kev
