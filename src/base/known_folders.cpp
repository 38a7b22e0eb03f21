// SPDX-License-Identifier: MIT
#include "base/known_folders.h"

#include "base/capitals.h"
#include "base/folder.h"

namespace kev {

KnownFolders::Names KnownFolders::Read(const std::string& folder) {
  Names names;
  for (const std::string& name : NamesIn(folder)) {
    const auto [known, isNew] = names.try_emplace(Utf8Capitals(name), name);
    if (!isNew && name < known->second) known->second = name;
  }
  return names;
}

std::optional<std::string> KnownFolders::NameIn(const std::string& folder, std::string_view name) {
  const std::lock_guard<std::mutex> alone(guard_);
  const auto [known, isNew] = folders_.try_emplace(folder);
  if (isNew) known->second = Read(folder);
  const auto found = known->second.find(Utf8Capitals(name));
  return found == known->second.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace kev
