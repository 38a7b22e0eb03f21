// SPDX-License-Identifier: MIT
#include "app/recover.h"

#include <filesystem>
#include <utility>

#include "base/text_numbers.h"

namespace kev {
namespace {

std::string PathOf(const RecoverDialog& dialog, const std::string& name) {
  return (std::filesystem::path(dialog.Folder) / name).string();
}

void ListAgain(RecoverDialog& dialog) {
  dialog.Files = RecoveryFilesIn(dialog.Folder);
  dialog.Selected = -1;
}

// What another run holds by now stays.
void DeleteIfFree(const std::string& path) {
  Recovery file;
  if (file.TakeOver(path)) file.Delete();
}

}  // namespace

RecoverDialog ListRecovered(std::string folder) {
  RecoverDialog dialog;
  dialog.Folder = std::move(folder);
  ListAgain(dialog);
  return dialog;
}

void SelectRecovered(RecoverDialog& dialog, int index) {
  const bool isListed = index >= 0 && index < static_cast<int>(dialog.Files.size());
  dialog.Selected = isListed ? index : -1;
}

bool Recover(RecoverDialog& dialog) {
  if (!dialog.ActionsShown()) return false;
  const std::string name = dialog.Files.at(static_cast<std::size_t>(dialog.Selected));
  if (!dialog.Held.TakeOver(PathOf(dialog, name))) {
    ListAgain(dialog);
    return false;
  }
  dialog.RecoveredTarget = dialog.Held.RecoveryFile();
  dialog.DocumentTitle = RecoveredTitle(name);
  dialog.Recovering = true;
  return true;
}

void DeleteRecovered(RecoverDialog& dialog) {
  if (!dialog.ActionsShown()) return;
  DeleteIfFree(PathOf(dialog, dialog.Files.at(static_cast<std::size_t>(dialog.Selected))));
  ListAgain(dialog);
}

void DeleteAllRecovered(RecoverDialog& dialog, Host& host, const LanguageTexts& texts) {
  const MessageBox question{texts.Text(kTextProgramTitle),
                            texts.Text(kTextDeleteAllRecovered),
                            {},
                            BoxIcon::Question,
                            BoxButtons::YesNo,
                            true};
  if (host.ShowMessage(question) != BoxAnswer::Yes) return;
  for (const std::string& name : dialog.Files)
    DeleteIfFree(PathOf(dialog, name));
  ListAgain(dialog);
}

}  // namespace kev
