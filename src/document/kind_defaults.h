// SPDX-License-Identifier: MIT
// What a new row gets by its kind, whoever creates it.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "document/object_record.h"

namespace kev {

// Where the field AlignToGrid of a new row comes from.
enum class GridSource : std::uint8_t { On, Off, State };

struct KindDefaults {
  ObjectKind kind;
  std::string_view handles;
  Flag mayMoveVertically, mayMoveHorizontally, mayResize;
  GridSource alignToGrid;
  std::string_view align;  // empty: not set by the kind
  std::int32_t height;     // 0: from the arguments
  bool takesColour;        // ColorR, ColorG, ColorB from the attribute state
  bool takesLineWidth;
};

inline constexpr std::int32_t kBarHeight = 400;
inline constexpr std::int32_t kEndBarHeight = 80;
inline constexpr std::int32_t kBodyWidth = 100000;
inline constexpr std::int32_t kNewBodyHeight = 200;
inline constexpr std::int32_t kTextBoxHeight = 285;

inline constexpr std::string_view kAllHandles = "11111111";
inline constexpr std::string_view kTextHandles = "11101110";  // the middle ones of both sides do nothing

inline constexpr auto kKindDefaults = std::to_array<KindDefaults>({
    {ObjectKind::Section, "00000000", 0, 0, 0, GridSource::On, "", kBarHeight, false, false},
    {ObjectKind::Subsection, "00000000", 0, 0, 0, GridSource::On, "L", kBarHeight, false, false},
    {ObjectKind::EndOfSubsection, "01000100", -1, 0, 0, GridSource::Off, "L", kEndBarHeight, false, false},
    {ObjectKind::Command, "11101110", -1, -1, 0, GridSource::State, "", 0, false, false},
    {ObjectKind::Box, "11111111", -1, -1, -1, GridSource::State, "L", 0, true, true},
    {ObjectKind::Chart, "11111111", -1, -1, -1, GridSource::State, "L", 0, false, false},
    {ObjectKind::Line, "10010000", -1, -1, -1, GridSource::State, "L", 50, true, true},
    {ObjectKind::Circle, "01010101", -1, -1, -1, GridSource::State, "L", 0, true, true},
    {ObjectKind::AnyLine, "00000000", -1, -1, -1, GridSource::State, "L", 0, true, true},
    {ObjectKind::Picture, "11111111", -1, -1, -1, GridSource::State, "L", 0, false, false},
    {ObjectKind::Barcode, "10101010", -1, -1, 0, GridSource::State, "L", 0, true, false},
    {ObjectKind::Qr, "10101010", -1, -1, 0, GridSource::State, "L", 0, false, false},
    {ObjectKind::Label, "11101110", -1, -1, 0, GridSource::State, "", 0, true, false},
    {ObjectKind::TextBox, "11101110", -1, -1, -1, GridSource::State, "L", kTextBoxHeight, false, false},
});

constexpr const KindDefaults& DefaultsOf(ObjectKind kind) {
  return kKindDefaults[static_cast<std::size_t>(kind) - 1];
}

}  // namespace kev
