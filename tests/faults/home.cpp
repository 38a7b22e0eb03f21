// SPDX-License-Identifier: MIT
#include "faults/home.h"

#include <filesystem>
#include <vector>

namespace kev::faults {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolders[] = {"temp/Kev/Cache", "temp/Kev/Temp", "temp/Kev",
                                    "data/Kev/temp",  "data/Kev",      "work"};

// Something of each kind that takes the memory in a way of its own, and no more of it: each allocation is
// made to fail in a run of its own.
constexpr const char* kInvoice =
    "[CONFIGURATION]\r\n"
    "Report_Title=Invoice\r\nSample_Kex_file=invoice.kex\r\n$Col_01=850\r\nPAPERSIZE=A4\r\nKEXVER=4\r\n"
    "[HEADER]\r\n"
    "  {;W=1;Boxf=0,,11900,120}\r\n"
    "  {Pic=logo.png,850,,1150,1150}\r\n"
    "  {c=38,50,56;s=30;b=y;a=R}\r\n"
    "  {11050} Invoice{}\r\n"
    "  {Spacing=610;\\n}\r\n"
    " [CUSTOMER:@CustName]\r\n"
    "  {c=200,210,214;a=L}\r\n"
    "  {$Col_01} @CustName{}\r\n"
    "  {;W=1;Line=7500,10850}\r\n"
    "  {Spacing=140;\\n}\r\n"
    "[DATA]\r\n"
    "  {Spacing=40;\\n}\r\n"
    "[FOOTER]\r\n"
    "  {Spacing=40;\\n}\r\n";

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
  test::WriteBytes(Template(), kInvoice);
  for (const char* name : {"invoice.kex", "logo.png"})
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
