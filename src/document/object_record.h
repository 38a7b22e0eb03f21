// SPDX-License-Identifier: MIT
// The one record type of everything that a template shows. A record is a plain value; rows refer to each
// other by index and by section name. All lengths are twips (1440 to the inch) and not scaled by the zoom.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/fixed_text.h"
#include "document/rare_text.h"

namespace kev {

// In the order in which creation tests them. None marks a free row.
enum class ObjectKind : std::uint8_t {
  None,
  Section,
  Subsection,
  EndOfSubsection,
  Command,
  Box,
  Chart,
  Line,
  Circle,
  AnyLine,
  Picture,
  Barcode,
  Qr,
  Label,
  TextBox
};

// The literal of a kind ("ENDOFSUBSECTION"); empty for None.
std::string_view KindText(ObjectKind kind);
// The kind of a literal; None for a text that is none.
ObjectKind KindFromText(std::string_view text);

// SECTION, SUBSECTION and ENDOFSUBSECTION: the bands of the page, not objects on it.
constexpr bool IsBand(ObjectKind kind) {
  return kind == ObjectKind::Section || kind == ObjectKind::Subsection || kind == ObjectKind::EndOfSubsection;
}

// The section that the bracketed lines above [HEADER] make.
inline constexpr std::string_view kConfigurationSection = "[CONFIGURATION]";

// A flag is 16 bits wide, -1 for true and 0 for false.
using Flag = std::int16_t;
inline constexpr Flag kTrue = -1;
inline constexpr Flag kFalse = 0;
constexpr Flag ToFlag(bool value) {
  return value ? kTrue : kFalse;
}

// Texts of a fixed length are kept without the blanks that would pad them, and never grow beyond their
// length.
inline constexpr std::size_t kSortKeyLength = 18;
inline constexpr std::size_t kStartYLength = 15;

// Where a row stood when the rows were last sorted. The key is its text; each layout makes thousands of keys,
// and only who prints one needs it.
struct OrderKey {
  std::int32_t Y = 0;
  std::int32_t X = 0;
  std::int32_t Row = 0;  // 0 where the row was never sorted

  // The three with an offset that makes each number of a usual page six digits long, cut to the length of a
  // key.
  std::string Text() const;

  bool operator==(const OrderKey&) const = default;
};

// A subsection with this start follows the running position.
inline constexpr std::string_view kCurrentYValue = "Current Y Value";

struct ObjectRecord {
  RareOptional<double> TextBoxExtraValue;
  RareOptional<std::string> TextBoxFrameValue;
  std::int32_t ShapeTag = 0;             // LABEL: width of the printed text, for the right handle
  std::int16_t ModifiableByEndUser = 0;  // 1 and 0, unlike the flags
  std::int32_t SectionCursorY = 0;       // bands: where the subsection's content ended
  RareOptional<std::string> CommandPayload;
  RareText ExecuteArg2;
  RareText ExecuteArg3;
  Flag LineFlag = kFalse;   // dashed
  Flag KeepOwner = kFalse;  // keeps its owner when objects are assigned again
  Flag Selected = kFalse;
  OrderKey SortKey;
  ObjectKind Kind = ObjectKind::None;
  std::string Content;
  RareText ExecuteCommand;
  // With green and blue at -1, red is one of the sixteen basic colours.
  std::int16_t ColorR = 0, ColorG = 0, ColorB = 0;
  std::int16_t BackColorR = 0, BackColorG = 0, BackColorB = 0;
  std::string XValue;  // a position expression
  RareText X2Value;    // LINE: its other end
  std::int32_t Y = 0;  // from the top of the owning subsection's body
  FixedText<1> Align;  // "L", "R", "C" or empty, which means "L"
  std::int32_t Width = 0;
  std::int32_t Height = 0;
  Flag Bold = kFalse, Italic = kFalse, Strikethrough = kFalse, Underline = kFalse;
  std::int32_t FontSize = 0;  // points
  std::string FontName;
  std::string CharSet;
  RareText PicturePath;
  RareText PictureFile;
  RareText Link;
  std::int16_t AlignToGrid = 0;  // 1 and 0, unlike the flags
  RareText SectionTitle;
  RareText SectionOwner;
  std::string OwnerName;
  RareText SectionName;
  std::int32_t AbsoluteY = 0;  // from the top of the first bar on the surface
  Flag PrintFlag = kFalse;
  RareText Format;
  FixedText<1> CaseMode;   // "N", "U", "L" or "F"
  FixedText<7> ValueType;  // "General", "Number" or "Text"
  std::int16_t LineWidth = 0;
  std::int16_t BarWidth = 0;
  RareText BarcodeKind;
  RareText BarcodeSample;
  Flag VerticalBar = kFalse;
  RareText StartY;
  std::int32_t EndsAt = 0;  // SUBSECTION: height of its body
  Flag HeightGiven = kFalse;
  std::int16_t EndRow = 0;
  std::int16_t OnlyIfFits = 0;
  Flag Filled = kFalse;
  Flag MayMoveVertically = kFalse, MayMoveHorizontally = kFalse, MayResize = kFalse;
  FixedText<8> Handles;  // "1" or "0" for each of the eight grips
  Flag PictureFixedHeight = kFalse;
  Flag PictureFixedWidth = kFalse;
  std::vector<std::string> ChartValues;  // CHART: 93 texts in the order of the chart keys; else none
  RareOptional<std::string> Stretch;

  bool operator==(const ObjectRecord&) const = default;
};

}  // namespace kev
