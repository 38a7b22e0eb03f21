// SPDX-License-Identifier: MIT
// Any bytes as the list of recent files; the first line is a template that is opened then. The same bytes are
// the head of that template, whose page becomes a picture.
#include <algorithm>

#include "app/recent_files.h"
#include "base/key_file.h"
#include "base/text.h"
#include "document/settings.h"
#include "fuzz_support.h"

namespace {

using namespace kev;
using fuzz::Require;
using fuzz::Scratch;

void CheckPath(const DesignerFolders& folders, const std::string& path) {
  Require(path.starts_with('/'));
  const std::string caption = RecentCaption(1, path);
  const auto ampersands = std::count(path.begin(), path.end(), '&');
  Require(caption.size() == path.size() + 2 + static_cast<std::size_t>(ampersands));
  const std::optional<std::string> thumbnail = ThumbnailPath(folders, path);
  Require(!thumbnail || FolderOf(*thumbnail) == Scratch().Path("temp"));
}

void CheckLook(std::string_view head) {
  const ThumbnailLook look = ThumbnailLookOf(ReadSettings(KeyFile(head), "A4"));
  Require(look.Width > 0 && look.Height > 0);
  Require(std::min(look.PixelWidth, look.PixelHeight) >= 90 &&
          std::max(look.PixelWidth, look.PixelHeight) <= 360);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::TextOf(data, size);
  const std::string opened(rest.empty() ? rest : TakeLine(rest));
  std::filesystem::create_directory(Scratch().Path("temp"));
  static_cast<void>(Scratch().Made("temp/lastfiles", rest));
  const DesignerFolders folders{Scratch().Path(), Scratch().Path(), Scratch().Path()};

  CheckLook(rest);
  const std::vector<std::string> before = ReadRecentFiles(folders);
  Require(before.size() <= kMostRecent && RecentFilesThere(folders).size() <= kRecentInMenu);
  for (const std::string& path : before)
    CheckPath(folders, path);

  Require(!AddToRecentFiles(folders, opened));
  const std::vector<std::string> after = ReadRecentFiles(folders);
  if (opened.empty()) return 0;
  if (opened.find('\r') != std::string::npos) {
    Require(after == before);
  } else {
    Require(!after.empty() && after.front() == AbsolutePath(opened));
    Require(std::count(after.begin(), after.end(), after.front()) == 1);
  }
  return 0;
}
