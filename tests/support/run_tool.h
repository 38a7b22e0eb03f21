// SPDX-License-Identifier: MIT
// Runs a command-line tool of the build as a process and keeps what it wrote.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace kev::test {

struct ToolResult {
  int ExitCode = -1;
  std::string Output;
  std::string Errors;
};

inline std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// A folder of its own for one test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kevtest_XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // The path of a file in it; of the folder itself for an empty name.
  std::string operator/(const std::string& name) const { return (folder_ / name).string(); }

 private:
  std::filesystem::path folder_;
};

inline std::string ShellQuoted(const std::string& word) {
  std::string quoted = "'";
  for (const char character : word) {
    quoted += character == '\'' ? "'\\''" : std::string(1, character);
  }
  return quoted + "'";
}

// `workFolder` is where the tool starts, so that relative names in its messages can be compared.
inline ToolResult RunTool(const std::string& tool, const std::vector<std::string>& arguments,
                          const TemporaryFolder& workFolder) {
  const std::string output = workFolder / ".stdout";
  const std::string errors = workFolder / ".stderr";
  std::string command =
      "cd " + ShellQuoted(workFolder / "") + " && " + ShellQuoted(std::string(KEV_PROGRAM_DIR) + "/" + tool);
  for (const std::string& argument : arguments) {
    command += " " + ShellQuoted(argument);
  }
  command += " >" + ShellQuoted(output) + " 2>" + ShellQuoted(errors);
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadBytes(output), ReadBytes(errors)};
}

}  // namespace kev::test
