// SPDX-License-Identifier: MIT
#include "app/recent_files.h"

#include <algorithm>
#include <cmath>

#include "base/files.h"
#include "base/text.h"
#include "surface/page_background.h"

namespace kev {
namespace {

// Held while the list is changed; the list itself is replaced, so that no hold of it would last.
constexpr std::string_view kRecentLock = "\\temp\\lastfiles.lock";
constexpr std::string_view kThumbnailEnding = ".bmp";
constexpr std::size_t kLongestFileName = 255;

// A4, for a paper without a size.
constexpr PageSize kUsualPaper = {11900, 16840};
// Pixels of the longer side.
constexpr double kThumbnailSide = 360;
// No paper is so narrow that its picture would be a line.
constexpr double kLeastRatio = 0.25;

std::string ListText(const std::vector<std::string>& paths) {
  std::string text;
  for (const std::string& path : paths)
    text.append(path).append("\r\n");
  return text;
}

std::vector<std::string> PathsIn(std::string_view rest) {
  std::vector<std::string> paths;
  for (std::size_t line = 0; line < kMostRecent && !rest.empty(); ++line) {
    const std::string_view path = TakeLine(rest);
    if (!path.empty()) paths.push_back(AbsolutePath(path));
  }
  return paths;
}

std::vector<std::string> WithOnTop(std::vector<std::string> paths, const std::string& path) {
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  if (paths.size() > kMostRecent) paths.resize(kMostRecent);
  return paths;
}

}  // namespace

std::vector<std::string> ReadRecentFiles(const DesignerFolders& folders) {
  const Result<std::string> bytes = ReadWholeFile(InDataFolder(folders, kRecentFile));
  return bytes ? PathsIn(*bytes) : std::vector<std::string>();
}

std::vector<std::string> RecentFilesThere(const DesignerFolders& folders) {
  std::vector<std::string> paths = ReadRecentFiles(folders);
  std::erase_if(paths, [](const std::string& path) { return !FileExists(path); });
  if (paths.size() > kRecentInMenu) paths.resize(kRecentInMenu);
  return paths;
}

std::optional<FileFailure> AddToRecentFiles(const DesignerFolders& folders, const std::string& path) {
  if (path.find_first_of("\r\n") != std::string::npos) return std::nullopt;
  const std::string list = InDataFolder(folders, kRecentFile);
  std::optional<FileFailure> failure;
  const auto add = [&](std::string_view) {
    const Result<std::string> bytes = ReadWholeFile(list);
    // A list that can't be read now must not become one of a single template.
    if (!bytes && FileExists(list)) {
      failure = bytes.Error();
    } else {
      const std::string_view before = bytes ? std::string_view(*bytes) : std::string_view();
      failure = WriteWholeFile(list, ListText(WithOnTop(PathsIn(before), AbsolutePath(path))));
    }
    return std::string();
  };
  const std::optional<FileFailure> locked = RewriteLocked(InDataFolder(folders, kRecentLock), add);
  return failure ? failure : locked;
}

std::string RecentCaption(std::size_t number, std::string_view path) {
  std::string caption = std::to_string(number) + ' ';
  for (const char c : path)
    caption.append(c == '&' ? 2 : 1, c);
  return caption;
}

std::optional<std::string> ThumbnailPath(const DesignerFolders& folders, std::string_view path) {
  std::string name(path);
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '\\' || c == '/' || c == ':' || c == ' '; }, '_');
  name += kThumbnailEnding;
  if (name.size() > kLongestFileName) return std::nullopt;
  return InDataFolder(folders, std::string(kRecentFolder) + name);
}

ThumbnailLook ThumbnailLookOf(const DocumentSettings& settings) {
  PageSize paper = PageSizeOf(settings);
  if (!(paper.Width > 0 && paper.Height > 0)) paper = kUsualPaper;
  const double ratio = std::clamp(paper.Height / paper.Width, kLeastRatio, 1 / kLeastRatio);
  const double width = std::max(0.0, LeftMarginOf(settings)) + paper.Width;
  const double pixelWidth = kThumbnailSide / std::max(1.0, ratio);
  return {width, width * ratio, static_cast<int>(std::lround(pixelWidth)),
          static_cast<int>(std::lround(pixelWidth * ratio))};
}

}  // namespace kev
