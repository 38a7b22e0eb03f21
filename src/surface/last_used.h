// SPDX-License-Identifier: MIT
// What the user last chose in the font and colour tools; the next text begins with it. The designer keeps it
// for the length of a run, and most of it between runs.
#pragma once

#include <cstdint>
#include <string>

namespace kev {

struct TextStyle {
  std::string FontName = "Arial";
  std::int32_t FontSize = 8;  // points
  bool Bold = false, Italic = false, Underline = false;
  std::string Color = "0,0,0";  // red, green and blue
  std::string CharSet = "0";

  bool operator==(const TextStyle&) const = default;
};

struct LastUsed {
  TextStyle Label;
  TextStyle TextBox;

  bool operator==(const LastUsed&) const = default;
};

}  // namespace kev
