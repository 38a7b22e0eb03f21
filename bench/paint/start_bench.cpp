// SPDX-License-Identifier: MIT
// The start of the program until the page of a template stands in its window, beside a program that shows an
// empty window of that size. Each start is a process of its own.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/sample_template.h"

namespace kev::bench {
namespace {

// Whether the program told that it has painted.
bool RunUntilPainted(const std::string& program, std::vector<std::string> arguments) {
  const std::string path = QCoreApplication::applicationDirPath().toStdString() + "/" + program;
  std::vector<char*> words = {const_cast<char*>(path.c_str())};
  for (std::string& argument : arguments)
    words.push_back(argument.data());
  words.push_back(nullptr);
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) return false;
  posix_spawn_file_actions_t files;
  ::posix_spawn_file_actions_init(&files);
  ::posix_spawn_file_actions_adddup2(&files, ends[1], STDOUT_FILENO);
  ::posix_spawn_file_actions_addclose(&files, ends[0]);
  pid_t process = 0;
  const bool runs = ::posix_spawn(&process, path.c_str(), &files, nullptr, words.data(), environ) == 0;
  ::posix_spawn_file_actions_destroy(&files);
  ::close(ends[1]);
  char told = 0;
  const bool painted = runs && ::read(ends[0], &told, 1) == 1;
  ::close(ends[0]);
  if (runs) ::waitpid(process, nullptr, 0);
  return painted;
}

void Start(benchmark::State& state, const std::string& program, const std::vector<std::string>& arguments) {
  for ([[maybe_unused]] auto run : state)
    if (!RunUntilPainted(program, arguments)) return state.SkipWithError("the program painted nothing");
}

void StartToPage(benchmark::State& state) {
  const QTemporaryDir folder;
  const std::string home = folder.path().toStdString();
  for (const char* name : {"/temp/Kev/Cache", "/temp/Kev/Temp", "/data/Kev/temp"})
    std::filesystem::create_directories(home + name);
  std::ofstream(home + "/data/Kev/LASTRV.DAT") << "SHOWWELCOME=0\r\nSHOWQUICKPROPS=0\r\n";
  const std::string path = home + "/sample.kev";
  std::ofstream(path, std::ios::binary) << SampleTemplate(static_cast<int>(state.range(0)));
  Start(state, "kevstart_designer", {home, path});
}

void StartToPageFloor(benchmark::State& state) {
  Start(state, "kevstart_empty", {});
}

BENCHMARK(StartToPage)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(StartToPageFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
