// SPDX-License-Identifier: MIT
#include "base/process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <iostream>

#include "base/files.h"
#include "support/full_disk.h"
#include "support/run_tool.h"

namespace kev {
namespace {

// What a process of its own ends with.
int InChild(const std::function<int()>& body) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(body());
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void CloseStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    ::close(stream);
}

TEST(PrepareProcess, KeepsFilesFromTheNumbersOfClosedStreams) {
  EXPECT_GT(InChild([] {
              CloseStreams();
              PrepareProcess();
              return ::open("/dev/null", O_RDONLY);
            }),
            STDERR_FILENO);
}

TEST(PrepareProcess, LetsOutputWithoutAPlaceFailAndMessagesBeLost) {
  EXPECT_EQ(InChild([] {
              CloseStreams();
              PrepareProcess();
              const bool fails = ::write(STDOUT_FILENO, "x", 1) < 0;
              return fails && ::write(STDERR_FILENO, "x", 1) == 1 ? 0 : 1;
            }),
            0);
}

TEST(PrepareProcess, LeavesOpenStreamsAlone) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(InChild([&] {
              ::close(STDOUT_FILENO);
              ::open((folder / "out").c_str(), O_WRONLY | O_CREAT, 0600);
              PrepareProcess();
              return ::write(STDOUT_FILENO, "said", 4) == 4 ? 0 : 1;
            }),
            0);
  EXPECT_EQ(test::ReadBytes(folder / "out"), "said");
}

TEST(PrepareProcess, AFileAtItsLimitIsAFailureAndNotTheEnd) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(InChild([&] {
              PrepareProcess();
              rlimit tight{4096, RLIM_INFINITY};
              ::setrlimit(RLIMIT_FSIZE, &tight);
              const auto failure = WriteWholeFile(folder / "a", std::string(10000, 'x'));
              return failure && failure->reason == "File too large" ? 0 : 1;
            }),
            0);
  EXPECT_TRUE(std::filesystem::is_empty(folder / ""));
}

TEST(OutliveSignal, AGoneReaderIsAFailureAndNotTheEnd) {
  EXPECT_EQ(InChild([] {
              OutliveSignal(SIGPIPE);
              int ends[2];
              if (::pipe(ends) != 0) return 2;
              ::close(ends[0]);
              return ::write(ends[1], "x", 1) < 0 && errno == EPIPE ? 0 : 1;
            }),
            0);
}

TEST(OutliveSignal, LeavesStartedProgramsTheirSignal) {
  EXPECT_EQ(InChild([] {
              OutliveSignal(SIGPIPE);
              const int status = std::system("kill -PIPE $$");
              return WIFSIGNALED(status) && WTERMSIG(status) == SIGPIPE ? 0 : 1;
            }),
            0);
}

TEST(FlushStandardOutput, TellsWhyOutputIsLost) {
  EXPECT_EQ(InChild([] {
              ::close(STDOUT_FILENO);
              ::open("/dev/full", O_WRONLY);
              std::cout << std::string(100000, 'x');
              return FlushStandardOutput() == ENOSPC ? 0 : 1;
            }),
            0);
  EXPECT_EQ(InChild([] {
              std::cout << "";
              return FlushStandardOutput();
            }),
            0);
}

}  // namespace
}  // namespace kev
