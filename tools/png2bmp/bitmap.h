// SPDX-License-Identifier: MIT
// From PNG to a Windows bitmap of 24 bits a pixel.
#pragma once

#include <string>
#include <string_view>

#include "base/result.h"

namespace kev::tool {

struct WhyNot {
  std::string Reason;  // a sentence
};

// Larger bitmaps are refused: a file of a few bytes can claim any size.
inline constexpr std::size_t kLargestBitmap = 256UL * 1024 * 1024;

// What is transparent becomes white.
Result<std::string, WhyNot> BitmapOfPng(std::string_view png);

}  // namespace kev::tool
