// SPDX-License-Identifier: MIT
// Whole files and paths. Paths are the system's own bytes; only a path that stands inside a template may hold
// "\".
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace kev {

// Larger files are refused: no template or data file comes near it, and a wrong choice must not fill the
// memory.
inline constexpr std::size_t kLargestFile = 64UL * 1024 * 1024;

// Regular files only: a pipe or a device would keep the program waiting.
Result<std::string> ReadWholeFile(const std::string& path);

// The file appears whole or not at all: written beside its target, flushed, renamed over it.
// Returns what went wrong; the old file is then unchanged. Where a link leads, the link stays; what is
// neither a file nor free is refused.
std::optional<FileFailure> WriteWholeFile(const std::string& path, std::string_view bytes);

// Reads a small file, or nothing where there is none, and writes what `change` makes of it, in place. Other
// processes that rewrite the same file this way wait for each other, but no longer than a second.
std::optional<FileFailure> RewriteLocked(const std::string& path,
                                         const std::function<std::string(std::string_view)>& change);

// A new file in the place of an old one, for working files that nothing depends on.
std::optional<FileFailure> WritePlainFile(const std::string& path, std::string_view bytes);

bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);
void DeleteFileIfThere(const std::string& path);

// "\Name" below a folder, with the system's separator.
std::string JoinPath(std::string_view folder, std::string_view name);
std::string FolderOf(std::string_view path);
std::string FileNameOf(std::string_view path);
// Absolute and without "." and "..", as far as that can be told without looking at links.
std::string AbsolutePath(std::string_view path);

// The file that a path from a template or a user means: "\" becomes "/", a relative path lies in `folder`,
// and where no such file exists each part is looked up without regard to case. Nothing when there is none.
std::optional<std::string> FindFile(std::string_view path, std::string_view folder);

}  // namespace kev
