// SPDX-License-Identifier: MIT
// One row of a property sheet, as the grid shows it. A row is a record; the text with a marker that a grid
// may be given is made from it, and no value is ever cut out of that text again.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kev {

enum class EditorKind : std::uint8_t {
  Text,        // typed freely
  ClosedList,  // one of the items; another value is shown as it stands until an item is picked
  OpenList,    // an item, or typed
  Number,      // typed, with arrows up and down
  File,        // typed, with a button for the file chooser
  Colour,      // "red,green,blue"
  Font,        // a font value
  Button       // nothing but a button
};

// What the window does for a row's button.
enum class SheetAction : std::uint8_t { None, SubsectionDialog, ChartWizard };

struct PropertyRow {
  std::string Caption = {};
  EditorKind Editor = EditorKind::Text;
  std::string Value = {};
  // What stands behind the value in the marker text: the items, bounds or files, each with a "|" in front and
  // some with one more at the end.
  std::string Tail = {};
  std::vector<std::string> Items = {};  // of both lists
  int Description = 0;                  // number of the text under the grid; see DescriptionOf
  SheetAction Action = SheetAction::None;
  bool Enabled = true;
  // The value is in the page of this character set; empty for the template's own.
  std::string CharSet = {};

  bool operator==(const PropertyRow&) const = default;
};

// "#COMBO|Yes|Yes|No"; a Text row gives its bare value, whatever that begins with.
std::string MarkerText(const PropertyRow& row);

// The items of a list text. Neither the "|" in front nor one at the end makes an empty item.
std::vector<std::string> ListItems(std::string_view tail);

// Bounds of the arrows alone: what is typed may lie outside.
struct ArrowBounds {
  int Minimum = 0, Maximum = 0, Step = 1;

  bool operator==(const ArrowBounds&) const = default;
};
ArrowBounds BoundsOf(std::string_view tail);

// "|Image file!*.bmp;*.jpg|": the title and the patterns, with ";" between them.
struct FileFilter {
  std::string Title, Patterns;

  bool operator==(const FileFilter&) const = default;
};
FileFilter FilterOf(std::string_view tail);

// "Arial|10|1|0": name, points, bold, italic.
struct FontValue {
  std::string Name;
  std::int32_t Size = 0;
  bool Bold = false, Italic = false;

  bool operator==(const FontValue&) const = default;
};
std::string FontValueText(const FontValue& font);
// Split from the right, so that a name may hold a "|"; one "|" at the end is dropped. Nothing for a text that
// has not four parts.
std::optional<FontValue> ParseFontValue(std::string_view text);

}  // namespace kev
