// SPDX-License-Identifier: MIT
// What becomes of the recovery files: those of earlier runs at the start, and this run's own.
#include <filesystem>

#include "app/designer.h"
#include "app/message_texts.h"
#include "app/recover.h"
#include "base/files.h"
#include "base/text_numbers.h"

namespace kev {

bool Designer::OfferRecovered() {
  RecoverDialog dialog = ListRecovered(InTempFolder(folders_, kRecoveryFolder));
  if (dialog.Files.empty() || view_ == nullptr) return false;
  view_->ShowRecoverDialog(dialog);
  if (!dialog.Recovering) return false;
  if (dialog.DocumentTitle.empty()) dialog.DocumentTitle = kFreshTitle;
  const std::optional<std::string> place = PlaceForRecovered(dialog.DocumentTitle);
  std::error_code ignored;
  const bool isPlace = place && !std::filesystem::equivalent(*place, dialog.RecoveredTarget, ignored);
  if (!isPlace || !CopyRecovered(dialog.RecoveredTarget, *place)) return OpenFromCache(dialog);
  if (!OpenTemplate(*place)) return false;
  dialog.Held.Delete();
  return true;
}

std::optional<std::string> Designer::PlaceForRecovered(const std::string& title) {
  FileChoice choice;
  choice.Title = Text(kTextRecoverSaveAs);
  choice.SuggestedName = title;
  choice.Filters = {{Text(kTextFilesPlain), "*.kev *.KEV"}};
  return ChooseTarget(std::move(choice));
}

bool Designer::CopyRecovered(const std::string& recovered, const std::string& place) {
  const Result<std::string> bytes = ReadWholeFile(recovered);
  const std::optional<FileFailure> failure = bytes ? WriteWholeFile(place, *bytes) : bytes.Error();
  if (!failure) return true;
  ShowText(kTextWriteFailed, BoxIcon::Critical,
           failure->path + "\r\n" + ReasonInLanguage(texts_, failure->reason));
  return false;
}

// The document has no place of its own, and the file in the cache stays until it has been saved to one.
bool Designer::OpenFromCache(RecoverDialog& dialog) {
  const Result<std::string> bytes = ReadWholeFile(dialog.RecoveredTarget);
  if (!bytes) {
    TellReadFailure(dialog.RecoveredTarget, bytes.Error().reason);
    return false;
  }
  if (Refuse(dialog.RecoveredTarget, *bytes)) return false;
  if (!ReadAndAdopt({}, *bytes, {.Title = dialog.DocumentTitle})) return false;
  opened_ = std::move(dialog.Held);
  MarkModified();
  return true;
}

void Designer::EndRecovery(const std::string& savedTo) {
  surface_.TheRecovery().DeleteUnlessSavedTo(savedTo);
  opened_.DeleteUnlessSavedTo(savedTo);
}

}  // namespace kev
