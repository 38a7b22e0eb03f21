// SPDX-License-Identifier: MIT
// The current font, colour and flags, which each new object takes over. The reader changes it block by block,
// the writer follows it to know what the reader will have, and the insertion tools fill it before they create
// a row.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "document/object_record.h"

namespace kev {

struct Colour {
  std::int16_t Red = 0, Green = 0, Blue = 0;

  bool operator==(const Colour&) const = default;
};

inline constexpr int kNoSymbology = 0;
inline constexpr int kQrSymbology = 9999;

struct AttributeState {
  Flag AttrPrint = kTrue;
  std::int16_t AttrAtg = 1;
  std::int16_t AttrMBeu = 1;
  Flag AttrTrim = kTrue;
  std::string AttrAlign = "L";
  Flag AttrBold = kFalse;
  Flag AttrUnderline = kFalse;
  Flag AttrItalic = kFalse;
  std::string AttrFormat;
  std::string AttrFontName = "Arial";
  double AttrSize = 10;  // points
  std::string AttrCharSet = "0";
  Colour AttrColor;
  std::string AttrCase = "N";
  std::string AttrValueType = "General";
  std::optional<std::string> AttrStretch;
  double AttrLineWidth = 0;
  int AttrSymbology = kNoSymbology;
  double AttrBarHeight = 0;
  double AttrBarWidth = 0;
  int AttrRotation = 0;
  std::string AttrQrX, AttrQrSecond, AttrQrSize;
  std::string AttrLink;
  std::string AttrX = "0";
  std::int32_t SpacingNow = 200;
  std::string TextBoxProps;

  // What the directive DEF resets; font, size, charset, colour, case and position stay.
  void ResetToDefaults() {
    AttrPrint = kTrue;
    AttrAtg = 1;
    AttrMBeu = 0;
    AttrTrim = kTrue;
    AttrAlign = "L";
    AttrBold = AttrUnderline = AttrItalic = kFalse;
    AttrFormat.clear();
  }
};

// Where the next object of a template that is being read will stand.
struct LayoutCursor {
  std::int32_t CursorY = 0;         // in the current subsection
  std::int32_t SurfaceY = 0;        // on the surface
  std::int32_t SubsectionMaxY = 0;  // the largest CursorY in the current subsection
  int OpenSubsection = 0;           // the bar that has no end row yet; 0 if none
  int SubsectionRow = 0;
  std::int32_t SubsectionTop = 0;  // AbsoluteY of that bar
  bool SubsectionStarted = false;
  std::string LastCommand;  // "@@pagebreak" behind a page break, else empty
};

inline constexpr std::string_view kPageBreak = "@@pagebreak";

}  // namespace kev
