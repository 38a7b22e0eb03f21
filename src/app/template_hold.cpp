// SPDX-License-Identifier: MIT
#include "app/template_hold.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

namespace kev {
namespace {

// 0, or the system's error number; EWOULDBLOCK where another holds the file.
int Hold(const std::string& path, Descriptor& hold) {
  constexpr int kFlags = O_CLOEXEC | O_NONBLOCK;
  hold = Descriptor(::open(path.c_str(), O_RDONLY | kFlags));
  if (!hold) return errno;
  if (::flock(hold.Number(), LOCK_EX | LOCK_NB) == 0) return 0;
  if (errno != EBADF) return errno;
  // A network's file system locks only what may be written.
  hold = Descriptor(::open(path.c_str(), O_RDWR | kFlags));
  if (!hold) return errno;
  return ::flock(hold.Number(), LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
}

}  // namespace

bool TemplateHold::Take(const std::string& path, const std::optional<FileStamp>& stamp) {
  Release();
  stamp_ = stamp;
  Descriptor hold;
  const int error = Hold(path, hold);
  if (error == 0) hold_ = std::move(hold);
  return error != EWOULDBLOCK;
}

void TemplateHold::Release() {
  hold_.Close();
  stamp_.reset();
}

bool TemplateHold::IsChanged(const std::string& path) const {
  const std::optional<FileStamp> now = StampOf(path);
  return now && now != stamp_;
}

bool IsOpenElsewhere(const std::string& path) {
  Descriptor hold;
  return Hold(path, hold) == EWOULDBLOCK;
}

}  // namespace kev
