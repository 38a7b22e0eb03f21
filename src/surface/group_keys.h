// SPDX-License-Identifier: MIT
// A group put together from single objects by keyboard. With Ctrl the arrows go from object to object without
// touching the group, and the space bar takes the current one in or out. A frame shows where the keyboard is.
#pragma once

#include "surface/page_work.h"

namespace kev {

inline constexpr int kKeySpace = 32;
inline constexpr int kKeyLeft = 37, kKeyUp = 38, kKeyRight = 39, kKeyDown = 40;

enum class GroupKey { None, Toggle, Next, Previous };

GroupKey GroupKeyOf(const PageWork& work, int code, int shift);
// At the last object nothing happens: the page is not left while a group is put together.
void ApplyGroupKey(PageWork& work, GroupKey key);

// The row joins or leaves the group and is current. The page is painted anew.
void ToggleInGroup(PageWork& work, int row);

}  // namespace kev
