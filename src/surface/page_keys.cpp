// SPDX-License-Identifier: MIT
#include "surface/page_keys.h"

#include <algorithm>
#include <array>

namespace kev {
namespace {

struct CodeRange {
  int First, Last;
};

// The keys that type a character: blank, digits, letters, the number pad, and the signs and letters of
// national layouts.
constexpr auto kCharacterKeys =
    std::to_array<CodeRange>({{32, 32}, {48, 57}, {65, 90}, {96, 111}, {186, 228}, {230, 254}});
// Backspace, Enter, End, Home, F2.
constexpr auto kEditingKeys = std::to_array<int>({8, 13, 35, 36, 113});

bool StartsEditing(int code) {
  const auto holds = [code](const CodeRange& range) { return code >= range.First && code <= range.Last; };
  return std::any_of(kCharacterKeys.begin(), kCharacterKeys.end(), holds) ||
         std::find(kEditingKeys.begin(), kEditingKeys.end(), code) != kEditingKeys.end();
}

}  // namespace

KeyEffect EffectOfKey(const PageWork& work, int code, int shift) {
  if ((shift & (kCtrlKey | kAltKey)) != 0) return KeyEffect::Nothing;
  const ObjectTable& objects = work.document.Objects;
  const int current = objects.CurrentObject;
  const bool group = work.pointer.MultiSelected;
  if (code == kKeyTab) return (shift & kShiftKey) != 0 ? KeyEffect::PreviousObject : KeyEffect::NextObject;
  if (code == kKeyDelete) return group || current != 0 ? KeyEffect::Delete : KeyEffect::Nothing;
  if (group || objects[current].Kind != ObjectKind::Label) return KeyEffect::Nothing;
  return StartsEditing(code) ? KeyEffect::EditText : KeyEffect::Nothing;
}

}  // namespace kev
