// SPDX-License-Identifier: MIT
#include "base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "base/code_page.h"
#include "base/descriptor.h"
#include "base/find_file.h"
#include "base/folder.h"
#include "base/reasons.h"
#include "base/text.h"

namespace kev {
namespace {

namespace fs = std::filesystem;

constexpr int kMostTemporaries = 10000;
// As many as the system itself follows.
constexpr int kMostLinks = 40;

// Where a path leads behind its links, also to a file that is not there yet. A link that leads to itself is
// what stands there.
fs::path BehindLinks(const fs::path& path) {
  fs::path behind = path;
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code none;
    const fs::path next = fs::read_symlink(behind, none);
    if (none) return behind;
    behind = behind.parent_path() / next;
  }
  return path;
}

// Why the file at a place must stay. A pipe or a device is none that another file could stand for.
std::optional<FileFailure> WhyNotReplaced(const std::string& path, const std::string& target) {
  struct stat status {};
  if (::stat(target.c_str(), &status) != 0) return std::nullopt;
  if (S_ISDIR(status.st_mode)) return FailureOfSystem(path, EISDIR);
  if (!S_ISREG(status.st_mode)) return FileFailure{path, kReasonNotRegularFile};
  if (::access(target.c_str(), W_OK) != 0) return FailureOfSystem(path, errno);
  return std::nullopt;
}

// The permissions of the file that is replaced, or what the process gives to a new file.
mode_t ModeFor(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return status.st_mode & 07777;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

// A new file in the folder, open for writing; `path` becomes its name. The name is short whatever the file is
// called that it will be, and one that somebody has put there is neither written to nor followed.
int OpenBeside(const fs::path& folder, std::string& path) {
  const std::string stem = ".kev" + std::to_string(::getpid()) + '-';
  for (int number = 0; number < kMostTemporaries; ++number) {
    path = (folder / (stem + std::to_string(number))).string();
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file >= 0 || errno != EEXIST) return file;
  }
  return -1;
}

int WriteAndClose(Descriptor& file, std::string_view bytes, mode_t mode) {
  if (const int error = WriteAll(file.Number(), bytes)) return error;
  if (::fchmod(file.Number(), mode) != 0 || ::fsync(file.Number()) != 0) return errno;
  return file.Close() == 0 ? 0 : errno;
}

// The first in the order of names, so that the choice does not depend on the disk.
std::optional<std::string> NameIgnoringCase(const std::string& folder, const std::string& name) {
  std::optional<std::string> found;
  for (std::string& other : NamesIn(folder))
    if (Utf8EqualsIgnoringCase(other, name) && (!found || other < *found)) found = std::move(other);
  return found;
}

Result<std::string> ReadFrom(const Descriptor& file, const std::string& path) {
  struct stat status {};
  if (::fstat(file.Number(), &status) != 0) return FailureOfSystem(path, errno);
  if (S_ISDIR(status.st_mode)) return FailureOfSystem(path, EISDIR);
  if (!S_ISREG(status.st_mode)) return FileFailure{path, kReasonNotRegularFile};
  if (static_cast<std::size_t>(status.st_size) > kLargestFile) return FailureOfSystem(path, EFBIG);
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t have = 0;
  while (have < bytes.size()) {
    const ssize_t got = ::read(file.Number(), bytes.data() + have, bytes.size() - have);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return FailureOfSystem(path, errno);
    if (got == 0) break;
    have += static_cast<std::size_t>(got);
  }
  bytes.resize(have);
  return bytes;
}

}  // namespace

Result<std::string> ReadWholeFile(const std::string& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.Number() < 0) return FailureOfSystem(path, errno);
  return ReadFrom(file, path);
}

std::optional<FileFailure> RewriteLocked(const std::string& path,
                                         const std::function<std::string(std::string_view)>& change) {
  Descriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666));
  if (file.Number() < 0) return FailureOfSystem(path, errno);
  if (const int error = LockPatiently(file)) return FailureOfSystem(path, error);
  const Result<std::string> bytes = ReadFrom(file, path);
  if (!bytes) return bytes.Error();
  const std::string changed = change(*bytes);
  if (::lseek(file.Number(), 0, SEEK_SET) != 0) return FailureOfSystem(path, errno);
  if (const int error = WriteAll(file.Number(), changed)) return FailureOfSystem(path, error);
  if (::ftruncate(file.Number(), static_cast<off_t>(changed.size())) != 0)
    return FailureOfSystem(path, errno);
  if (file.Close() != 0) return FailureOfSystem(path, errno);
  return std::nullopt;
}

std::optional<FileFailure> WriteWholeFile(const std::string& path, std::string_view bytes) {
  // A link stays a link: what it points to is replaced.
  const std::string target = BehindLinks(path).string();
  if (const auto reason = WhyNotReplaced(path, target)) return reason;
  std::string temporary;
  Descriptor file(OpenBeside(fs::path(target).parent_path(), temporary));
  if (file.Number() < 0) return FailureOfSystem(path, errno);
  int error = WriteAndClose(file, bytes, ModeFor(target));
  if (error == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) error = errno;
  if (error == 0) return std::nullopt;
  ::unlink(temporary.c_str());
  return FailureOfSystem(path, error);
}

// What has the name already is not written into: a link would lead the bytes elsewhere, and a pipe would keep
// them waiting.
std::optional<FileFailure> WritePlainFile(const std::string& path, std::string_view bytes) {
  if (::unlink(path.c_str()) != 0 && errno != ENOENT) return FailureOfSystem(path, errno);
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
  if (file.Number() < 0) return FailureOfSystem(path, errno);
  int error = WriteAll(file.Number(), bytes);
  if (file.Close() != 0 && error == 0) error = errno;
  if (error == 0) return std::nullopt;
  // A part of it would only take room on a full disk.
  ::unlink(path.c_str());
  return FailureOfSystem(path, error);
}

// These three take no memory: they are asked behind failures, and while objects end.
bool FileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool FolderExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

void DeleteFileIfThere(const std::string& path) {
  ::unlink(path.c_str());
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  while (name.starts_with('\\') || name.starts_with('/'))
    name.remove_prefix(1);
  std::string path(folder);
  if (!path.ends_with('/')) path += '/';
  for (const char c : name)
    path += c == '\\' ? '/' : c;
  return path;
}

std::string FolderOf(std::string_view path) {
  return fs::path(path).parent_path().string();
}

std::string FileNameOf(std::string_view path) {
  return fs::path(path).filename().string();
}

std::string AbsolutePath(std::string_view path) {
  std::error_code failed;
  const fs::path absolute = fs::absolute(fs::path(path), failed);
  return failed ? std::string(path) : absolute.lexically_normal().string();
}

std::optional<std::string> FindFile(std::string_view path, std::string_view folder,
                                    const NameLookUp& ignoringCase) {
  std::string mapped(path);
  if (Trim(mapped).empty() || mapped.find('\0') != std::string::npos) return std::nullopt;
  const fs::path asWritten = fs::path(folder) / mapped;
  if (FileExists(asWritten.string())) return asWritten.string();
  ReplaceAll(mapped, '\\', '/');
  const fs::path whole = (fs::path(folder) / mapped).lexically_normal();
  if (whole.is_absolute() && FileExists(whole.string())) return whole.string();
  fs::path found = whole.is_absolute() ? whole.root_path() : fs::path(".");
  std::error_code ignored;
  for (const fs::path& part : whole.relative_path()) {
    fs::path next = found / part;
    if (!fs::exists(next, ignored)) {
      const std::optional<std::string> name = ignoringCase(found.string(), part.string());
      if (!name) return std::nullopt;
      next = found / *name;
    }
    found = std::move(next);
  }
  if (!FileExists(found.string())) return std::nullopt;
  return found.string();
}

std::optional<std::string> FindFile(std::string_view path, std::string_view folder) {
  return FindFile(path, folder, NameIgnoringCase);
}

}  // namespace kev
