// SPDX-License-Identifier: MIT
#include "base/folder.h"

#include <dirent.h>

#include <memory>
#include <string_view>

namespace kev {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

}  // namespace

std::vector<std::string> NamesIn(const std::string& folder) {
  const std::unique_ptr<DIR, CloseFolder> open(::opendir(folder.c_str()));
  std::vector<std::string> names;
  if (!open) return names;
  while (const dirent* entry = ::readdir(open.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  return names;
}

}  // namespace kev
