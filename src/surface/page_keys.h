// SPDX-License-Identifier: MIT
// Keys on the page, and the typing of a label's text in place.
#pragma once

#include <string>
#include <string_view>

#include "surface/page_work.h"

namespace kev {

// Key codes as the system numbers them; only those that are told apart.
inline constexpr int kKeyTab = 9;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeyDelete = 46;

// The label that is being typed. No row means that none is.
struct TextEdit {
  int Row = 0;
  std::string Text;

  bool Active() const { return Row != 0; }
};

// What a key that is no command does on the page.
enum class KeyEffect { Nothing, Delete, EditText, NextObject, PreviousObject };
KeyEffect EffectOfKey(const PageWork& work, int code, int shift);

// The text box lies over the current LABEL, which is then hidden from the pointer.
void BeginTextEdit(PageWork& work, TextEdit& edit);
// Each change of the text makes the box as wide as it.
void ChangeText(PageWork& work, TextEdit& edit, std::string text);
// Stores the text where it differs and is not blank.
void CommitTextEdit(PageWork& work, TextEdit& edit);
void CancelTextEdit(PageWork& work, TextEdit& edit);

// The current object, or the rows of a group; asks or refuses where bands are concerned.
void DeleteSelected(PageWork& work);
// A SUBSECTION changes places with its neighbour of the same section.
void MoveSubsectionUp(PageWork& work);
void MoveSubsectionDown(PageWork& work);

}  // namespace kev
