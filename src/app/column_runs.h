// SPDX-License-Identifier: MIT
// The dialogs of the columns at work: what a form calls, each in a guard of its own. Texts are bytes of the
// template's code page.
#pragma once

#include <functional>
#include <string>

#include "base/code_page.h"
#include "surface/column_dialogs.h"

namespace kev {

class Designer;

// `inscol01`.
class ColumnsDialogRun {
 public:
  explicit ColumnsDialogRun(Designer& designer);

  // What the form shows, after each call.
  const ColumnsDialog& State() const { return state_; }
  const CodePage& Page() const;

  void Choose(int item);
  void TypePosition(std::string text) { state_.colposition = std::move(text); }
  void AddOrModify();
  void Remove();
  void Organize();
  // Tells of a typed character (UTF-8) that the template can't hold.
  void RefuseCharacter(const std::string& character);

 private:
  void Do(const std::function<void(PageWork&)>& body);

  Designer& designer_;
  ColumnsDialog state_;
};

// `SetThisColumn`.
class SetColumnRun {
 public:
  SetColumnRun(Designer& designer, int slot);

  const SetColumnDialog& State() const { return state_; }
  const CodePage& Page() const;

  void TypeName(std::string text) { state_.Text2 = std::move(text); }
  void TypePosition(std::string text) { state_.Text1 = std::move(text); }
  // False when the dialog stays open.
  bool Accept();
  void RefuseCharacter(const std::string& character);

 private:
  Designer& designer_;
  SetColumnDialog state_;
};

}  // namespace kev
