// SPDX-License-Identifier: MIT
// The dialogs of the group's menu at work: what a form calls, each accepting in a guard of its own. Texts are
// bytes of the template's code page.
#pragma once

#include <functional>
#include <string>

#include "base/code_page.h"
#include "surface/group_commands.h"

namespace kev {

class Designer;

// `placeselection`.
class PlaceSelectionRun {
 public:
  explicit PlaceSelectionRun(Designer& designer);

  const PlaceSelection& State() const { return state_; }
  const CodePage& Page() const;

  void TypeY(std::string text) { state_.YPosition = std::move(text); }
  void TypeX(std::string text) { state_.Combocol = std::move(text); }
  // False when the dialog stays open.
  bool Accept();
  // Tells of a typed character (UTF-8) that the template can't hold.
  void RefuseCharacter(const std::string& character);

 private:
  Designer& designer_;
  PlaceSelection state_;
};

// `AlignToGridFrm`.
class AlignToGridRun {
 public:
  explicit AlignToGridRun(Designer& designer) : designer_(designer) {}

  const AlignToGrid& State() const { return state_; }
  void Accept(const AlignToGrid& state);

 private:
  Designer& designer_;
  AlignToGrid state_;
};

// `Modifyenduser` and `PrintNoPrintFrm`: one property that all members get.
class GroupFlagRun {
 public:
  using Store = void (*)(PageWork&, bool);

  GroupFlagRun(Designer& designer, bool state, Store store)
      : designer_(designer), state_(state), store_(store) {}

  bool State() const { return state_; }
  void Accept(bool state);

 private:
  Designer& designer_;
  bool state_;
  Store store_;
};

}  // namespace kev
