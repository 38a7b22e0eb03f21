// SPDX-License-Identifier: MIT
// How large a picture wants to be, told from its file's head without decoding it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/text_measurer.h"

namespace kev {

// Twips, 15 for each pixel. PNG, BMP, GIF, JPEG, and SVG with a width and a height. Nothing for any other
// bytes.
std::optional<TextExtent> ImageSize(std::string_view head);

// The same of a file, of which at most the first megabyte is looked at.
std::optional<TextExtent> ImageSizeOfFile(const std::string& path);

}  // namespace kev
