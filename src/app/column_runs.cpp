// SPDX-License-Identifier: MIT
#include "app/column_runs.h"

#include "app/designer.h"
#include "base/text_numbers.h"

namespace kev {

ColumnsDialogRun::ColumnsDialogRun(Designer& designer)
    : designer_(designer), state_(OpenedColumnsDialog(designer.OpenDocument())) {}

const CodePage& ColumnsDialogRun::Page() const {
  return *designer_.OpenDocument().Page;
}

void ColumnsDialogRun::Do(const std::function<void(PageWork&)>& body) {
  const ColumnsDialog before = state_;
  const bool done = designer_.Guarded([&] {
    PageWork work = designer_.Surface().Work();
    body(work);
  });
  if (!done) state_ = before;
}

void ColumnsDialogRun::Choose(int item) {
  Do([&](PageWork&) { ChooseColumn(state_, item); });
}

void ColumnsDialogRun::AddOrModify() {
  Do([this](PageWork& work) { AddOrModifyColumn(work, state_); });
}

void ColumnsDialogRun::Remove() {
  Do([this](PageWork& work) { RemoveChosenColumn(work, state_); });
}

void ColumnsDialogRun::Organize() {
  Do([this](PageWork& work) {
    OrganizeFromDialog(work, state_, [this] { return SavedTemplateText(designer_.DocumentPath()); });
  });
}

void ColumnsDialogRun::RefuseCharacter(const std::string& character) {
  designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, character);
}

SetColumnRun::SetColumnRun(Designer& designer, int slot)
    : designer_(designer), state_(OpenedSetColumnDialog(designer.OpenDocument(), slot)) {}

const CodePage& SetColumnRun::Page() const {
  return *designer_.OpenDocument().Page;
}

bool SetColumnRun::Accept() {
  bool accepted = false;
  const SetColumnDialog before = state_;
  const bool done = designer_.Guarded([&] {
    PageWork work = designer_.Surface().Work();
    accepted = AcceptSetColumn(work, state_, [this] { return SavedTemplateText(designer_.DocumentPath()); });
  });
  if (!done) state_ = before;
  return done && accepted;
}

void SetColumnRun::RefuseCharacter(const std::string& character) {
  designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, character);
}

}  // namespace kev
