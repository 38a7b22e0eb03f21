// SPDX-License-Identifier: MIT
// What can be put on the page, and what each begins with. An object that a user inserts differs in its grips
// and sizes from one that a template creates.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "document/object_record.h"

namespace kev {

enum class Insertion : std::uint8_t {
  Label,
  NextVariable,
  TextBox,
  Picture,
  Box,
  HorizontalLine,
  AnyLine,
  Circle,
  Barcode,
  Qr,
  Chart,
  PageBreak,
  ExecuteCommand,
  PostShowCommand
};

struct InsertionRow {
  Insertion id;
  std::string_view tool;  // as PendingTool names it; empty for what the menu alone inserts
  ObjectKind kind;
  std::string_view handles;
  Flag mayResize;
  std::int32_t width, height;  // twips; 0 where the kind finds it out
  std::int16_t lineWidth;
  std::string_view content;
};

// In the order of the menu. All may be moved both ways.
inline constexpr auto kInsertions = std::to_array<InsertionRow>({
    {Insertion::Label, "LABEL", ObjectKind::Label, "11111110", kFalse, 0, 0, 0, "Label"},
    {Insertion::NextVariable, "LABELVAR", ObjectKind::Label, "11111110", kFalse, 0, 0, 0, "Label"},
    {Insertion::TextBox, "TEXTBOX", ObjectKind::TextBox, "10111010", kTrue, 1000, 285, 0, "Textbox"},
    {Insertion::Picture, "PICTURE", ObjectKind::Picture, "11111111", kTrue, 500, 500, 0, ""},
    {Insertion::Box, "BOX", ObjectKind::Box, "11111111", kTrue, 1000, 400, 1, ""},
    {Insertion::HorizontalLine, "LINE", ObjectKind::Line, "00010001", kTrue, 1000, 25, 1, ""},
    {Insertion::AnyLine, "ANYLINE", ObjectKind::AnyLine, "00000000", kTrue, 1000, 1000, 1, ""},
    {Insertion::Circle, "", ObjectKind::Circle, "01010101", kTrue, 0, 0, 1, ""},
    {Insertion::Barcode, "BARCODE", ObjectKind::Barcode, "10101010", kFalse, 1000, 0, 0, "ABCDEF"},
    {Insertion::Qr, "QR", ObjectKind::Qr, "11111111", kFalse, 2000, 2000, 0, "QRCODE"},
    {Insertion::Chart, "CHART", ObjectKind::Chart, "11111111", kTrue, 3500, 2500, 0, ""},
    {Insertion::PageBreak, "COMMAND", ObjectKind::Command, "11101110", kFalse, 0, 0, 0, "@@pagebreak"},
    {Insertion::ExecuteCommand, "", ObjectKind::Command, "11101110", kFalse, 0, 0, 0, "@@execute"},
    {Insertion::PostShowCommand, "", ObjectKind::Command, "11101110", kFalse, 0, 0, 0, "@@postshow"},
});

constexpr const InsertionRow& RowOf(Insertion id) {
  return kInsertions[static_cast<std::size_t>(id)];
}

// Nothing for a name that is no tool's.
constexpr std::optional<Insertion> InsertionOfTool(std::string_view tool) {
  for (const InsertionRow& row : kInsertions)
    if (!row.tool.empty() && row.tool == tool) return row.id;
  return std::nullopt;
}

}  // namespace kev
