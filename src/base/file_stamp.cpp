// SPDX-License-Identifier: MIT
#include "base/file_stamp.h"

#include <sys/stat.h>

namespace kev {

std::optional<FileStamp> StampOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return FileStamp{status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_ino};
}

}  // namespace kev
