// SPDX-License-Identifier: MIT
// qrcode: makes the picture of a QR code.
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"
#include "qr_png.h"

namespace {

constexpr int kDone = 0;
constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

constexpr std::string_view kTarget = "-o";
constexpr std::string_view kUsage =
    "Usage: qrcode -oPICTURE TEXT\n"
    "Writes a QR code of TEXT (UTF-8, 2953 bytes at most, one less with accents) to the PNG file PICTURE, "
    "black on white with a margin\n"
    "of four modules. The name stands directly behind -o. The last argument is the text, whatever it begins\n"
    "with. PICTURE is written whole or not at all.\n"
    "\n"
    "  --help        show this text, where it is the only argument\n"
    "\n"
    "Exit status: 0 the picture is there, 1 it can't be made or written, 2 wrong usage.\n";

int Run(const std::string& picture, std::string_view text) {
  const auto png = kev::tool::QrPng(text);
  if (!png) {
    std::cerr << "qrcode: " << png.Error().Reason << '\n';
    return kRefused;
  }
  if (const auto failure = kev::WriteWholeFile(picture, *png)) {
    std::cerr << "qrcode: " << failure->path << ": " << failure->reason << '\n';
    return kRefused;
  }
  return kDone;
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> list(words + 1, words + std::max(count, 1));
  if (list.size() == 1 && list[0] == "--help") {
    std::cout << kUsage;
    return kDone;
  }
  if (list.size() != 2 || !list[0].starts_with(kTarget) || list[0].size() == kTarget.size()) {
    std::cerr << kUsage;
    return kWrongUsage;
  }
  try {
    return Run(list[0].substr(kTarget.size()), list[1]);
  } catch (const std::exception& failure) {
    std::cerr << "qrcode: " << failure.what() << '\n';
    return kRefused;
  }
}
