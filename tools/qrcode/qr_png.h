// SPDX-License-Identifier: MIT
// A QR symbol as a PNG picture, black on white.
#pragma once

#include <string>
#include <string_view>

#include "base/result.h"

namespace kev::tool {

struct WhyNot {
  std::string Reason;  // a sentence
};

// Modules of white around the symbol, and pixels along a module.
inline constexpr int kQuietZone = 4;
inline constexpr int kModulePixels = 4;

// The bytes of the text as they stand (UTF-8). Up to 2331 bytes get the error correction level M, up to 2953
// the level L; one byte less where the text is not plain ASCII.
Result<std::string, WhyNot> QrPng(std::string_view text);

}  // namespace kev::tool
