// SPDX-License-Identifier: MIT
#include "faults/home.h"

#include <filesystem>
#include <vector>

namespace kev::faults {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolders[] = {"temp/Kev/Cache", "temp/Kev/Temp", "temp/Kev",
                                    "data/Kev/temp",  "data/Kev",      "work"};

std::vector<fs::path> FilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder))
    if (entry.is_regular_file()) files.push_back(entry.path());
  return files;
}

}  // namespace

Home::Home() {
  for (const char* folder : kFolders)
    fs::create_directories(Path(folder));
  fs::create_directories(Path("program"));
  fs::copy_file(KEV_PROGRAM_DIR "/Kev.lng", Path("program/Kev.lng"));
  Furnish();
}

void Home::Furnish() const {
  for (const char* name : {"invoice.kev", "invoice.kex", "logo.png"})
    test::WriteBytes(Path(std::string("work/") + name),
                     test::ReadBytes(std::string(KEV_EXAMPLES_DIR "/") + name));
  test::WriteBytes(Path("data/Kev/LASTRV.DAT"), "SHOWWELCOME=0\r\nPROPLEFT=77\r\n");
}

void Home::Remember() {
  bytes_.clear();
  for (const char* folder : kFolders)
    for (const fs::path& path : FilesIn(Path(folder)))
      bytes_[path.string()] = test::ReadBytes(path);
}

void Home::Clear() {
  bytes_.clear();
  PutBack();
  Furnish();
}

void Home::PutBack() const {
  for (const char* folder : kFolders)
    for (const fs::path& path : FilesIn(Path(folder)))
      fs::remove(path);
  for (const auto& [path, bytes] : bytes_)
    test::WriteBytes(path, bytes);
}

Home::All Home::Files() const {
  All files;
  for (const char* folder : kFolders)
    for (const fs::path& path : FilesIn(Path(folder)))
      files[std::string(folder) + "/" + path.filename().string()] = test::ReadBytes(path);
  return files;
}

std::string Home::State(const All& files) {
  std::string state;
  for (const auto& [name, bytes] : files) {
    const std::size_t temporary = name.find("/.kev");
    state.append(name, 0, temporary).append("\n").append(bytes).append("\n");
  }
  return state;
}

}  // namespace kev::faults
