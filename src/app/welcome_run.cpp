// SPDX-License-Identifier: MIT
#include "app/welcome_run.h"

#include "app/designer.h"
#include "app/recent_files.h"
#include "base/files.h"
#include "base/text_numbers.h"

namespace kev {

WelcomeRun::WelcomeRun(Designer& designer) : designer_(designer), files_(designer.RecentShown()) {}

void WelcomeRun::Choose(int entry) {
  chosen_ = entry >= 0 && entry < static_cast<int>(files_.size()) ? entry : -1;
}

std::string WelcomeRun::Thumbnail(int entry) const {
  if (entry < 0 || entry >= static_cast<int>(files_.size())) return {};
  const auto picture = ThumbnailPath(designer_.Folders(), files_[static_cast<std::size_t>(entry)]);
  return picture && FileExists(*picture) ? *picture : std::string();
}

bool WelcomeRun::NotAgain() const {
  return designer_.Options().ShowWelcome == 0;
}

void WelcomeRun::SetNotAgain(bool ticked) {
  designer_.Options().ShowWelcome = ticked ? 0 : 1;
}

bool WelcomeRun::Open() {
  if (!CanOpen()) return false;
  next_ = Next::Open;
  return true;
}

bool WelcomeRun::New() {
  next_ = Next::New;
  return true;
}

bool WelcomeRun::OpenOther() {
  next_ = Next::OpenOther;
  return true;
}

void WelcomeRun::Preview() {
  const std::string picture = Thumbnail(chosen_);
  if (picture.empty()) return;
  const std::string viewer = InProgramFolder(designer_.Folders(), kPictureViewer);
  if (!designer_.TheHost().StartProgram({viewer, {picture}}))
    designer_.ShowText(kTextProgramNotStarted, BoxIcon::Critical, viewer);
}

void WelcomeRun::Finish() {
  switch (next_) {
    case Next::Nothing:
      return;
    case Next::Open:
      designer_.AskAndOpen(files_[static_cast<std::size_t>(chosen_)]);
      return;
    case Next::New:
      designer_.NewFromData();
      return;
    case Next::OpenOther:
      designer_.ChooseAndOpen();
      return;
  }
}

}  // namespace kev
