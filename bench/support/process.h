// SPDX-License-Identifier: MIT
// A program that is measured as a process of its own.
#pragma once

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kev::bench {

// Of a program beside the running one.
inline std::string Beside(const std::string& program) {
  return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / program).string();
}

// What the program has written to its standard output until it closed it; nothing where it cannot be started.
inline std::optional<std::string> OutputOf(const std::string& program, std::vector<std::string> arguments) {
  const std::string path = Beside(program);
  std::vector<char*> words = {const_cast<char*>(path.c_str())};
  for (std::string& argument : arguments)
    words.push_back(argument.data());
  words.push_back(nullptr);
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) return std::nullopt;
  posix_spawn_file_actions_t files;
  ::posix_spawn_file_actions_init(&files);
  ::posix_spawn_file_actions_adddup2(&files, ends[1], STDOUT_FILENO);
  ::posix_spawn_file_actions_addclose(&files, ends[0]);
  pid_t process = 0;
  const bool runs = ::posix_spawn(&process, path.c_str(), &files, nullptr, words.data(), environ) == 0;
  ::posix_spawn_file_actions_destroy(&files);
  ::close(ends[1]);
  std::string output;
  std::array<char, 4096> part{};
  for (ssize_t got = 0; runs && (got = ::read(ends[0], part.data(), part.size())) > 0;)
    output.append(part.data(), static_cast<std::size_t>(got));
  ::close(ends[0]);
  if (runs) ::waitpid(process, nullptr, 0);
  return runs ? std::optional(output) : std::nullopt;
}

}  // namespace kev::bench
