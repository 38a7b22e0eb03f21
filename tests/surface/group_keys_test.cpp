// SPDX-License-Identifier: MIT
#include "surface/group_keys.h"

#include <gmock/gmock.h>

#include "support/gesture_fixture.h"
#include "surface/page_keys.h"

namespace kev::test {
namespace {

class GroupKeys : public GestureTest {
 public:
  GroupKey Key(int code, int shift = kCtrlKey) { return GroupKeyOf(Work(), code, shift); }
};

TEST_F(GroupKeys, AreArrowsAndTheSpaceBarWithCtrlAlone) {
  Select(AddText("1000", 1000, "A"));
  EXPECT_EQ(Key(kKeySpace), GroupKey::Toggle);
  for (const int code : {kKeyDown, kKeyRight})
    EXPECT_EQ(Key(code), GroupKey::Next);
  for (const int code : {kKeyUp, kKeyLeft})
    EXPECT_EQ(Key(code), GroupKey::Previous);
  for (const int shift : {0, kShiftKey, kAltKey, kCtrlKey | kShiftKey, kCtrlKey | kAltKey})
    for (const int code : {kKeySpace, kKeyDown, kKeyRight, kKeyUp, kKeyLeft})
      EXPECT_EQ(Key(code, shift), GroupKey::None) << code << ' ' << shift;
  for (const int code : {65, 13, 113, kKeyDelete, kKeyTab})
    EXPECT_EQ(Key(code), GroupKey::None) << code;
}

TEST_F(GroupKeys, TakeNoBandIntoTheGroup) {
  for (const int row : {0, data.bar}) {
    Select(row);
    EXPECT_EQ(Key(kKeySpace), GroupKey::None) << row;
    EXPECT_EQ(Key(kKeyDown), GroupKey::Next) << row;
  }
}

TEST_F(GroupKeys, FrameTheObjectThatTheKeyboardIsAtBesideAGroup) {
  const int first = AddText("1000", 1000, "A");
  const int second = AddText("1000", 2000, "B");
  Select(first);
  SelectGroup({first});
  document.Objects.CurrentObject = first;
  PageWork work = Work();
  ApplyGroupKey(work, GroupKey::Next);
  EXPECT_EQ(document.Objects.CurrentObject, second);
  EXPECT_THAT(surface.Lines, testing::Contains("show lnh01"));
  EXPECT_EQ(document.Objects[first].Selected, kTrue);
  EXPECT_EQ(document.Objects[second].Selected, kFalse);
  ApplyGroupKey(work, GroupKey::Next);
  EXPECT_EQ(document.Objects.CurrentObject, second);
}

}  // namespace
}  // namespace kev::test
