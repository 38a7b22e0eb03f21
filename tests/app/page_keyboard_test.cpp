// SPDX-License-Identifier: MIT
// The page worked by keys alone, through the designer.
#include "app/designer_fixture.h"
#include "surface/object_description.h"

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

TEST_F(PageKeyboardTest, TabDuringAGestureDoesNothing) {
  Tab();
  const std::string before = CurrentText();
  Surface().PointerPress({PointerSource::Page, 0, PointerButton::Left, 0, 5000, 5000});
  EXPECT_FALSE(Tab());
  EXPECT_EQ(CurrentText(), before);
}

}  // namespace
}  // namespace kev
