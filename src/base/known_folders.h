// SPDX-License-Identifier: MIT
// The names in folders, each folder read once: for a run that looks for many files, on several threads, and
// ends before others change them.
#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kev {

class KnownFolders {
 public:
  // The name that is equal without regard to case, and of several the first in their order.
  std::optional<std::string> NameIn(const std::string& folder, std::string_view name);

 private:
  using Names = std::unordered_map<std::u32string, std::string>;  // by their capitals

  static Names Read(const std::string& folder);

  std::mutex guard_;
  std::unordered_map<std::string, Names> folders_;
};

}  // namespace kev
