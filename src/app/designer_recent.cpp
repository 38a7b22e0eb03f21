// SPDX-License-Identifier: MIT
// The templates last used: the list, its menu, the pictures, and the welcome screen that offers them.
#include "app/designer.h"
#include "app/document_properties.h"
#include "app/message_texts.h"
#include "app/recent_files.h"
#include "app/welcome_run.h"
#include "base/files.h"
#include "base/text_numbers.h"

namespace kev {

void Designer::AddRecentFile() {
  if (documentPath_.empty()) return;
  GuardedView([this] {
    // The window paints the page in front of its picture, and then waits for the disk.
    const std::optional<FileFailure> picture = StoreThumbnail();
    std::optional<FileFailure> failure = AddToRecentFiles(folders_, documentPath_);
    if (!failure) failure = picture;
    // A folder that is missing altogether was told at the start.
    if (failure && FolderExists(InDataFolder(folders_, kRecentFolder)))
      host_.ShowStatus(Text(kTextRecentNotStored) + " ",
                       failure->path + ": " + ReasonInLanguage(texts_, failure->reason));
    RefreshRecentMenu();
  });
}

std::optional<FileFailure> Designer::StoreThumbnail() {
  const std::optional<std::string> file = ThumbnailPath(folders_, documentPath_);
  if (!file || view_ == nullptr) return std::nullopt;
  const std::string bitmap = view_->PaintThumbnail(ThumbnailLookOf(document_.Settings));
  if (bitmap.empty()) return std::nullopt;
  return WriteWholeFile(*file, bitmap);
}

void Designer::RefreshRecentMenu() {
  recent_ = RecentFilesThere(folders_);
  std::vector<std::string> captions;
  for (const std::string& path : recent_)
    captions.push_back(RecentCaption(captions.size() + 1, path));
  if (view_ != nullptr) view_->ShowRecentFiles(captions);
}

bool Designer::OpenRecent(std::size_t entry) {
  if (entry >= recent_.size()) return false;
  // The menu is another one as soon as the file is open.
  const std::string path = recent_[entry];
  if (AskAndOpen(path)) return true;
  RefreshRecentMenu();
  return false;
}

void Designer::ShowWelcome() {
  if (view_ == nullptr) return;
  WelcomeRun run(*this);
  view_->OpenWelcome(run);
  run.Finish();
}

void Designer::ShowDocumentProperties() {
  if (view_ == nullptr) return;
  DocumentPropertiesRun run(*this);
  view_->OpenDocumentProperties(run);
}

}  // namespace kev
