// SPDX-License-Identifier: MIT
// png2bmp: converts a PNG picture to a bitmap.
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"
#include "bitmap.h"

namespace {

constexpr int kDone = 0;
constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

constexpr std::string_view kUsage =
    "Usage: png2bmp IN OUT\n"
    "Converts the PNG picture IN to the bitmap OUT, 24 bits a pixel; what is transparent becomes white. OUT "
    "is\n"
    "written whole or not at all.\n"
    "\n"
    "  --help        show this text, where it is the only argument\n"
    "\n"
    "Exit status: 0 the bitmap is there, 1 a file can't be read or written, 2 wrong usage.\n";

int Refuse(const std::string& path, std::string_view reason) {
  std::cerr << "png2bmp: " << path << ": " << reason << '\n';
  return kRefused;
}

int Run(const std::string& in, const std::string& out) {
  const auto png = kev::ReadWholeFile(in);
  if (!png) return Refuse(png.Error().path, png.Error().reason);
  const auto bitmap = kev::tool::BitmapOfPng(*png);
  if (!bitmap) return Refuse(in, bitmap.Error().Reason);
  const auto failure = kev::WriteWholeFile(out, *bitmap);
  return failure ? Refuse(failure->path, failure->reason) : kDone;
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> list(words + 1, words + std::max(count, 1));
  if (list.size() == 1 && list[0] == "--help") {
    std::cout << kUsage;
    return kDone;
  }
  if (list.size() != 2) {
    std::cerr << kUsage;
    return kWrongUsage;
  }
  try {
    return Run(list[0], list[1]);
  } catch (const std::exception& failure) {
    std::cerr << "png2bmp: " << failure.what() << '\n';
    return kRefused;
  }
}
