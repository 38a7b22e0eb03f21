// SPDX-License-Identifier: MIT
#include "base/descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <system_error>
#include <thread>

namespace kev {
namespace {

// Only the user: what a template says is nobody else's business before it is saved somewhere.
constexpr mode_t kOwnerOnly = 0600;

std::string OwnTemporary(const std::string& folder) {
  return folder + "/.kev" + std::to_string(::getpid()) + "-held";
}

int OpenNew(const std::string& folder, std::string& temporary) {
  const int nameless = ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kOwnerOnly);
  if (nameless >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL)) return nameless;
  temporary = OwnTemporary(folder);
  // What an earlier process of the same number left.
  ::unlink(temporary.c_str());
  return ::open(temporary.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly);
}

// Between opening a file and locking it, its holder may have put another in its place, or deleted it.
bool LockAsNamed(const Descriptor& file, const std::string& path, int kind) {
  struct stat opened {};
  struct stat named {};
  return file && ::flock(file.Number(), kind | LOCK_NB) == 0 && ::fstat(file.Number(), &opened) == 0 &&
         ::lstat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

}  // namespace

int Descriptor::Close() {
  const int number = std::exchange(number_, -1);
  return number < 0 ? 0 : ::close(number);
}

int WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

FileFailure FailureOfSystem(std::string path, int error) {
  return {std::move(path), std::error_code(error, std::generic_category()).message()};
}

// Whoever holds a lock for long does not rewrite a small file but hangs.
int LockPatiently(const Descriptor& file) {
  constexpr int kTries = 100;
  constexpr auto kPause = std::chrono::milliseconds(10);
  for (int tries = 0; ::flock(file.Number(), LOCK_EX | LOCK_NB) != 0; ++tries) {
    if (errno != EWOULDBLOCK && errno != EINTR) return errno;
    if (tries == kTries) return EWOULDBLOCK;
    std::this_thread::sleep_for(kPause);
  }
  return 0;
}

Descriptor HoldFolder(const std::string& folder) {
  Descriptor file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!file || LockPatiently(file) != 0) return {};
  return file;
}

Descriptor HoldFile(const std::string& path) {
  constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW;
  // A network's file system locks only what may be written.
  Descriptor file(::open(path.c_str(), O_RDWR | kFlags));
  if (!file) file = Descriptor(::open(path.c_str(), O_RDONLY | kFlags));
  if (!LockAsNamed(file, path, LOCK_EX)) return {};
  return file;
}

// Shared, so that two who only ask do not take each other for holders.
bool IsHeld(const std::string& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
  return !LockAsNamed(file, path, LOCK_SH);
}

Result<NewHeldFile> NewHeldFile::Write(const std::string& folder, std::string_view bytes) {
  std::string temporary;
  Descriptor descriptor(OpenNew(folder, temporary));
  if (!descriptor) return FailureOfSystem(folder, errno);
  NewHeldFile file(std::move(descriptor), std::move(temporary));
  const int number = file.file_.Number();
  if (const int error = WriteAll(number, bytes)) return FailureOfSystem(folder, error);
  if (::fsync(number) != 0 || ::flock(number, LOCK_EX | LOCK_NB) != 0) return FailureOfSystem(folder, errno);
  return file;
}

NewHeldFile::~NewHeldFile() {
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

int NewHeldFile::Name(const std::string& path) {
  if (temporary_.empty()) {
    const std::string open = "/proc/self/fd/" + std::to_string(file_.Number());
    return ::linkat(AT_FDCWD, open.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
  }
  if (::renameat2(AT_FDCWD, temporary_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) != 0 &&
      ((errno != EINVAL && errno != ENOSYS) || ::link(temporary_.c_str(), path.c_str()) != 0))
    return errno;
  ::unlink(temporary_.c_str());
  temporary_.clear();
  return 0;
}

}  // namespace kev
