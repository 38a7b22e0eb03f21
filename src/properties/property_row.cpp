// SPDX-License-Identifier: MIT
#include "properties/property_row.h"

#include "base/numbers.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr char kBar = '|';

std::string_view MarkerOf(EditorKind editor) {
  switch (editor) {
    case EditorKind::Text:
      return "";
    case EditorKind::ClosedList:
      return "#COMBO|";
    case EditorKind::OpenList:
      return "#COMBOEDIT|";
    case EditorKind::Number:
      return "#UPDOWN|";
    case EditorKind::File:
      return "#BROWSEFILE|";
    case EditorKind::Colour:
      return "#BROWSECOLOR|";
    case EditorKind::Font:
      return "#BROWSEFONT|";
    case EditorKind::Button:
      return "#BROWSEBUTT|";
  }
  return "";
}

std::string_view WithoutBars(std::string_view tail) {
  if (tail.starts_with(kBar)) tail.remove_prefix(1);
  if (tail.ends_with(kBar)) tail.remove_suffix(1);
  return tail;
}

// The last part of a text, taken off it; nothing where there is no "|".
std::optional<std::string_view> TakeLastPart(std::string_view& text) {
  const std::size_t bar = text.rfind(kBar);
  if (bar == std::string_view::npos) return std::nullopt;
  const std::string_view part = text.substr(bar + 1);
  text = text.substr(0, bar);
  return part;
}

}  // namespace

std::string MarkerText(const PropertyRow& row) {
  std::string text(MarkerOf(row.Editor));
  text += row.Value;
  text += row.Tail;
  return text;
}

std::vector<std::string> ListItems(std::string_view tail) {
  std::vector<std::string> items;
  for (std::string_view rest = WithoutBars(tail); !rest.empty();) {
    const std::size_t bar = rest.find(kBar);
    items.emplace_back(rest.substr(0, bar));
    if (bar == std::string_view::npos) break;
    rest.remove_prefix(bar + 1);
  }
  return items;
}

ArrowBounds BoundsOf(std::string_view tail) {
  const std::vector<std::string> parts = ListItems(tail);
  ArrowBounds bounds;
  if (parts.size() > 0) bounds.Minimum = Int32Of(parts[0]);
  if (parts.size() > 1) bounds.Maximum = Int32Of(parts[1]);
  if (parts.size() > 2) bounds.Step = Int32Of(parts[2]);
  return bounds;
}

FileFilter FilterOf(std::string_view tail) {
  const std::string_view filter = WithoutBars(tail);
  return {std::string(NthToken(filter, 1, '!')), std::string(NthToken(filter, 2, '!'))};
}

std::string FontValueText(const FontValue& font) {
  return font.Name + kBar + std::to_string(font.Size) + kBar + (font.Bold ? '1' : '0') + kBar +
         (font.Italic ? '1' : '0');
}

std::optional<FontValue> ParseFontValue(std::string_view text) {
  if (text.ends_with(kBar)) text.remove_suffix(1);
  const auto italic = TakeLastPart(text);
  const auto bold = TakeLastPart(text);
  const auto size = TakeLastPart(text);
  if (!italic || !bold || !size) return std::nullopt;
  return FontValue{std::string(text), Int32Of(*size), Trim(*bold) == "1", Trim(*italic) == "1"};
}

}  // namespace kev
