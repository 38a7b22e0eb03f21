// SPDX-License-Identifier: MIT
// What the reader will have at the point that the writer has reached.
#pragma once

#include <cstdint>
#include <string>

#include "document/attribute_state.h"

namespace kev {

struct WriterState {
  std::string Align = "L";
  std::int16_t Atg = 1;
  std::int16_t MBeu = 1;
  Flag Print = kTrue;
  std::string FontName = "Arial";
  std::int32_t Size = 0;
  std::string CharSet = "0";
  Colour Color;
  Flag Underline = kFalse, Italic = kFalse, Bold = kFalse, Strike = kFalse;
  std::string Case = "N";
  std::string Format;
  std::string X = "0";
  std::int32_t CursorY = 0;
  std::int32_t SubsectionEnd = 0;
  std::int32_t SubsectionFill = 0;
  std::string LastCommand;

  // What DEF does to the reader; strikethrough, which the reader never has, goes with the other styles.
  void ResetToDefaults() {
    Align = "L";
    Atg = 1;
    MBeu = 0;
    Print = kTrue;
    Underline = Italic = Bold = Strike = kFalse;
    Format.clear();
  }
};

}  // namespace kev
