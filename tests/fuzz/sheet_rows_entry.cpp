// SPDX-License-Identifier: MIT
// Any text as what a grid is given of a row: the marker in front, the value, and the items, bounds, files or
// font behind it.
#include "document/sections.h"
#include "fuzz_support.h"
#include "properties/property_row.h"
#include "properties/row_values.h"

namespace {

using namespace kev;
using fuzz::Require;

void CheckList(std::string_view tail) {
  const std::vector<std::string> items = ListItems(tail);
  for (const std::string& item : items) {
    Require(item.find('|') == std::string::npos);
    const std::string_view code = CodeOfItem(item);
    Require(CodeOfItem(ItemOfCode(tail, code)) == code);
  }
  const ArrowBounds bounds = BoundsOf(tail);
  Require(items.size() > 1 || bounds.Maximum == 0);
  const FileFilter filter = FilterOf(tail);
  Require(filter.Title.size() + filter.Patterns.size() <= tail.size());
}

void CheckFont(std::string_view text) {
  const std::optional<FontValue> font = ParseFontValue(text);
  if (!font) return;
  Require(ParseFontValue(FontValueText(*font)) == font);
}

void CheckMarker(std::string_view text) {
  for (const EditorKind editor :
       {EditorKind::Text, EditorKind::ClosedList, EditorKind::OpenList, EditorKind::Number, EditorKind::File,
        EditorKind::Colour, EditorKind::Font, EditorKind::Button}) {
    const PropertyRow row{.Editor = editor, .Value = std::string(text)};
    Require(MarkerText(row).ends_with(text));
    Require((editor == EditorKind::Text) == (MarkerText(row) == text));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::TextOf(data, size);
  CheckList(text);
  CheckFont(text);
  CheckMarker(text);
  return 0;
}
