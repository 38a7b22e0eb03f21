// SPDX-License-Identifier: MIT
#include "base/descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
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

// Whether the file system has no locks at all.
bool KnowsNoLocks(int error) {
  return error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS;
}

// A name that only this machine's processes see, for a file without a lock. As a lock does, it goes with the
// process that has it.
class HoldName {
 public:
  explicit HoldName(const struct stat& file) : socket_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    address_.sun_family = AF_UNIX;
    // Behind a first byte of 0, which keeps it out of the folders.
    std::snprintf(address_.sun_path + 1, sizeof address_.sun_path - 1, "kev-hold-%jx-%jx",
                  static_cast<std::uintmax_t>(file.st_dev), static_cast<std::uintmax_t>(file.st_ino));
  }
  // Nothing where another process has it.
  Descriptor Take() && {
    if (::bind(socket_.Number(), Address(), sizeof address_) != 0) return {};
    return std::move(socket_);
  }
  bool IsTaken() const { return ::connect(socket_.Number(), Address(), sizeof address_) == 0; }

 private:
  const sockaddr* Address() const { return reinterpret_cast<const sockaddr*>(&address_); }

  Descriptor socket_;
  sockaddr_un address_{};
};

// Between opening a file and holding it, its holder may have put another in its place, or deleted it.
bool IsNamed(const struct stat& opened, const std::string& path) {
  struct stat named {};
  return ::lstat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
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
    if (KnowsNoLocks(errno)) return 0;
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
  struct stat opened {};
  if (!file || ::fstat(file.Number(), &opened) != 0) return {};
  if (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
    if (!KnowsNoLocks(errno)) return {};
    file = HoldName(opened).Take();
  }
  return IsNamed(opened, path) ? std::move(file) : Descriptor();
}

// Shared, so that two who only ask do not take each other for holders.
bool IsHeld(const std::string& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
  struct stat opened {};
  if (!file || ::fstat(file.Number(), &opened) != 0) return true;
  const bool isFree =
      ::flock(file.Number(), LOCK_SH | LOCK_NB) == 0 || (KnowsNoLocks(errno) && !HoldName(opened).IsTaken());
  return !isFree || !IsNamed(opened, path);
}

Result<NewHeldFile> NewHeldFile::Write(const std::string& folder, std::string_view bytes) {
  std::string temporary;
  Descriptor descriptor(OpenNew(folder, temporary));
  if (!descriptor) return FailureOfSystem(folder, errno);
  NewHeldFile file(std::move(descriptor), std::move(temporary));
  const int number = file.file_.Number();
  if (const int error = WriteAll(number, bytes)) return FailureOfSystem(folder, error);
  if (::fsync(number) != 0) return FailureOfSystem(folder, errno);
  if (::flock(number, LOCK_EX | LOCK_NB) == 0) return file;
  const int error = errno;
  struct stat status {};
  if (KnowsNoLocks(error) && ::fstat(number, &status) == 0) file.hold_ = HoldName(status).Take();
  if (!file.hold_) return FailureOfSystem(folder, error);
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
