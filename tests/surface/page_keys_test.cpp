// SPDX-License-Identifier: MIT
#include "surface/page_keys.h"

#include <set>

#include "support/gesture_fixture.h"

namespace kev::test {
namespace {

class PageKeys : public GestureTest {
 public:
  KeyEffect Effect(int code, int shift = 0) { return EffectOfKey(Work(), code, shift); }
};

TEST_F(PageKeys, OnALabelCharactersAndEditingKeysStartTyping) {
  Select(AddText("1000", 1000, "A"));
  for (const int code : {32, 48, 57, 65, 90, 96, 105, 107, 110, 111, 186, 192, 219, 226})
    EXPECT_EQ(Effect(code), KeyEffect::EditText) << code;
  for (const int f2EnterBackspaceHomeEnd : {113, 13, 8, 36, 35})
    EXPECT_EQ(Effect(f2EnterBackspaceHomeEnd), KeyEffect::EditText) << f2EnterBackspaceHomeEnd;
  EXPECT_EQ(Effect(65, kShiftKey), KeyEffect::EditText);
}

TEST_F(PageKeys, SomeKeysDoNothing) {
  Select(AddText("1000", 1000, "A"));
  const std::set<int> dead = {16, 17, 27, 91, 20, 37, 38, 39, 40, 145, 19, 112};
  for (const int code : dead)
    EXPECT_EQ(Effect(code), KeyEffect::Nothing) << code;
  for (int code = 114; code <= 123; ++code)
    EXPECT_EQ(Effect(code), KeyEffect::Nothing) << code;
  for (const int pagesInsertNumLock : {33, 34, 45, 144})
    EXPECT_EQ(Effect(pagesInsertNumLock), KeyEffect::Nothing) << pagesInsertNumLock;
}

TEST_F(PageKeys, TabGoesFromObjectToObjectWhateverIsSelected) {
  for (const int row : {0, data.bar, AddText("1000", 1000, "A")}) {
    Select(row);
    EXPECT_EQ(Effect(kKeyTab), KeyEffect::NextObject);
    EXPECT_EQ(Effect(kKeyTab, kShiftKey), KeyEffect::PreviousObject);
    EXPECT_EQ(Effect(kKeyTab, kCtrlKey), KeyEffect::Nothing);
  }
}

TEST_F(PageKeys, WithCtrlOrAltNoKeyDoesAnything) {
  Select(AddText("1000", 1000, "A"));
  for (const int shift : {kCtrlKey, kAltKey, kCtrlKey | kShiftKey, kAltKey | kShiftKey})
    for (const int code : {65, 13, 113, kKeyDelete})
      EXPECT_EQ(Effect(code, shift), KeyEffect::Nothing) << code << ' ' << shift;
}

TEST_F(PageKeys, DeleteDeletesBeforeAnythingIsTyped) {
  Select(AddText("1000", 1000, "A"));
  EXPECT_EQ(Effect(kKeyDelete), KeyEffect::Delete);
  Select(data.bar);
  EXPECT_EQ(Effect(kKeyDelete), KeyEffect::Delete);
}

TEST_F(PageKeys, WithNothingSelectedNoKeyDoesAnything) {
  Select(0);
  for (const int code : {65, 13, 113, kKeyDelete})
    EXPECT_EQ(Effect(code), KeyEffect::Nothing) << code;
}

TEST_F(PageKeys, OnlyALabelIsTyped) {
  for (const KindDefaults& defaults : kKindDefaults) {
    if (defaults.kind == ObjectKind::Label) continue;
    Select(Add(defaults.kind, "1000", 1000, 500, 500));
    EXPECT_EQ(Effect(65), KeyEffect::Nothing) << KindText(defaults.kind);
  }
}

TEST_F(PageKeys, AGroupIsDeletedAndNeverTyped) {
  const int row = AddText("1000", 1000, "A");
  Select(row);
  SelectGroup({row});
  EXPECT_EQ(Effect(65), KeyEffect::Nothing);
  EXPECT_EQ(Effect(kKeyDelete), KeyEffect::Delete);
  document.Objects.CurrentObject = 0;
  EXPECT_EQ(Effect(kKeyDelete), KeyEffect::Delete);
}

TEST_F(PageKeys, ArrowsMoveNothing) {
  const int row = Add(ObjectKind::Picture, "1000", 1000, 500, 500);
  Select(row);
  const ObjectRecord before = At(row);
  for (int arrow = 37; arrow <= 40; ++arrow)
    EXPECT_EQ(Effect(arrow), KeyEffect::Nothing);
  EXPECT_EQ(At(row), before);
}

}  // namespace
}  // namespace kev::test
