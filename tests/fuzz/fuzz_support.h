// SPDX-License-Identifier: MIT
// What the fuzz entries share.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/files.h"

namespace kev::fuzz {

// What an entry holds to; where it is broken, the fuzzer keeps the bytes.
inline void Require(bool condition) {
  if (!condition) std::abort();
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// True for one input of eight, whenever it comes. What costs much and seldom tells more is asked of those
// only.
inline bool IsOneOfEight(std::string_view bytes) {
  std::uint32_t hash = 2166136261U;
  for (const char c : bytes)
    hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return (hash >> 16) % 8 == 0;
}

// A folder of this process, gone with it. In memory where the system has such a place, so that readers of
// files run as often as others.
class ScratchFolder {
 public:
  ScratchFolder() {
    const std::filesystem::path memory = "/dev/shm";
    const std::filesystem::path root =
        std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    path_ = root / ("kevfuzz_" + std::to_string(::getpid()));
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string Path(std::string_view name = {}) const { return path_ / name; }
  // A file that holds these bytes.
  std::string Made(std::string_view name, std::string_view bytes) const {
    std::string file = Path(name);
    Require(!WritePlainFile(file, bytes));
    return file;
  }

 private:
  std::filesystem::path path_;
};

// One for all runs of a process.
inline const ScratchFolder& Scratch() {
  static const ScratchFolder folder;
  return folder;
}

// Takes what stands in front of the separator off `rest`, and the separator.
inline std::string_view TakePart(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

}  // namespace kev::fuzz
