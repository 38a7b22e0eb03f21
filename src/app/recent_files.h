// SPDX-License-Identifier: MIT
// The templates last used, and the pictures of their pages. Paths are native bytes; two of them are the same
// if they are, byte by byte, as absolute paths.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/folders.h"
#include "base/result.h"
#include "document/settings.h"

namespace kev {

// In DataFolder.
inline constexpr std::string_view kRecentFolder = "\\temp\\";
inline constexpr std::string_view kRecentFile = "\\temp\\lastfiles";

inline constexpr std::size_t kMostRecent = 10;
inline constexpr std::size_t kRecentInMenu = 8;

// The first lines of the list, as absolute paths, without empty ones; none where there is no list.
std::vector<std::string> ReadRecentFiles(const DesignerFolders& folders);
// Those that the menu and the welcome screen offer: the first that are there.
std::vector<std::string> RecentFilesThere(const DesignerFolders& folders);
// Puts a path at the top. The list appears whole or not at all, and what another run adds meanwhile stays. A
// path that a line can't hold is not listed.
std::optional<FileFailure> AddToRecentFiles(const DesignerFolders& folders, const std::string& path);

// "1 /home/u/a.kev", counted from 1; "&" is doubled, as menus want it.
std::string RecentCaption(std::size_t number, std::string_view path);

// Where the picture of a template lies: in one folder, under a name made of the whole path. Nothing where the
// name would be too long for a file.
std::optional<std::string> ThumbnailPath(const DesignerFolders& folders, std::string_view path);

// What of a page a thumbnail shows: from its top left corner, at a zoom of 1, as high as one sheet of paper.
struct ThumbnailLook {
  double Width = 0, Height = 0;  // canvas units
  int PixelWidth = 0, PixelHeight = 0;

  bool operator==(const ThumbnailLook&) const = default;
};
ThumbnailLook ThumbnailLookOf(const DocumentSettings& settings);

}  // namespace kev
