// SPDX-License-Identifier: MIT
#include "base/process.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>

namespace kev {

void PrepareProcess() {
  OutliveSignal(SIGXFSZ);
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (::fcntl(stream, F_GETFD) >= 0) continue;
    // Output that can't be written is a failure; messages are lost. The lowest free number is this one.
    const int mode = stream == STDERR_FILENO ? O_WRONLY : O_RDONLY;
    if (::open("/dev/null", mode) < 0) return;
  }
}

// A handler, since what a process ignores its children ignore as well.
void OutliveSignal(int signal) {
  std::signal(signal, [](int) {});
}

int FlushStandardOutput() {
  std::cout.flush();
  errno = 0;
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0 && std::cout) return 0;
  // What failed before is asked for its reason once more.
  if (errno == 0 && std::fputc('\n', stdout) != EOF) static_cast<void>(std::fflush(stdout));
  return errno != 0 ? errno : EIO;
}

}  // namespace kev
