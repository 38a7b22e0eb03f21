// SPDX-License-Identifier: MIT
#include "template/work_file.h"

#include <cerrno>

#include "base/files.h"

namespace kev {
namespace {

constexpr int kMostNames = 100;

// 0, or the system's error number; EEXIST where somebody else is at work under the name.
int NameFreed(NewHeldFile& file, const std::string& path) {
  const int error = file.Name(path);
  if (error != EEXIST) return error;
  // Held while it is deleted, so that two runs never free the name at once.
  const Descriptor left = HoldFile(path);
  if (!left) return EEXIST;
  DeleteFileIfThere(path);
  return file.Name(path);
}

}  // namespace

Result<WorkFile> WorkFile::Write(const std::string& folder, const std::string& name, std::string_view bytes) {
  Result<NewHeldFile> file = NewHeldFile::Write(folder, bytes);
  if (!file) return file.Error();
  for (int number = 1; number <= kMostNames; ++number) {
    const std::string path = JoinPath(folder, number == 1 ? name : std::to_string(number) + '_' + name);
    const int error = NameFreed(*file, path);
    if (error == 0) return WorkFile(path, file->Take());
    if (error != EEXIST) return FailureOfSystem(path, error);
  }
  return FailureOfSystem(JoinPath(folder, name), EEXIST);
}

WorkFile::~WorkFile() {
  if (!path_.empty()) DeleteFileIfThere(path_);
}

}  // namespace kev
