// SPDX-License-Identifier: MIT
// A file that is needed for one piece of work. It appears whole, no other run touches it, and it goes with
// its owner.
#pragma once

#include <string>
#include <string_view>

#include "base/descriptor.h"
#include "base/result.h"

namespace kev {

class WorkFile {
 public:
  // Where another running program holds a file of this name, a number goes in front of it; what an earlier
  // run left under it is replaced.
  static Result<WorkFile> Write(const std::string& folder, const std::string& name, std::string_view bytes);
  WorkFile(WorkFile&& other) noexcept
      : path_(std::exchange(other.path_, {})), hold_(std::move(other.hold_)) {}
  WorkFile& operator=(WorkFile&&) = delete;
  ~WorkFile();

  const std::string& Path() const { return path_; }

 private:
  WorkFile(std::string path, Descriptor hold) : path_(std::move(path)), hold_(std::move(hold)) {}

  std::string path_;
  Descriptor hold_;
};

}  // namespace kev
