// SPDX-License-Identifier: MIT
// A disk on which no file grows beyond a size: the size limit of the process stands for it.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace kev::test {

// As long as it lives.
class FullDisk {
 public:
  explicit FullDisk(rlim_t mostBytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit tight = before_;
    tight.rlim_cur = mostBytes;
    ::setrlimit(RLIMIT_FSIZE, &tight);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, oldHandler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*oldHandler_)(int);
  rlimit before_{};
};

}  // namespace kev::test
