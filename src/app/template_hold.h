// SPDX-License-Identifier: MIT
// The file of the open document: held, so that another running program can tell that it is open here, and
// known, so that a change by anybody else is seen before it is overwritten.
#pragma once

#include <optional>
#include <string>

#include "base/descriptor.h"
#include "base/file_stamp.h"

namespace kev {

// The hold is one of the system and goes with the process, however that ends: nothing is ever stale.
class TemplateHold {
 public:
  // The document stands for this file from now on; `stamp` is that of the bytes which were read or written.
  // False where another running program holds the file: then it stays that one's.
  bool Take(const std::string& path, const std::optional<FileStamp>& stamp);
  // The document has no file.
  void Release();

  // Whether the file is there and is not, or not as, the one that was taken.
  bool IsChanged(const std::string& path) const;

 private:
  Descriptor hold_;
  std::optional<FileStamp> stamp_;
};

// Whether another running program, or an object of this one, holds a template. Where the file system knows no
// holds, nobody does.
bool IsOpenElsewhere(const std::string& path);

}  // namespace kev
