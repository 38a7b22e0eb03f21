// SPDX-License-Identifier: MIT
// Whether a file is still the one that was left there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kev {

// A file that is written anew, whole or in place, has another stamp.
struct FileStamp {
  std::int64_t Size = 0;
  std::int64_t Seconds = 0, Nanoseconds = 0;  // of the last change
  std::uint64_t Node = 0;

  bool operator==(const FileStamp&) const = default;
};

// Of a regular file, links followed; nothing where there is none.
std::optional<FileStamp> StampOf(const std::string& path);

}  // namespace kev
