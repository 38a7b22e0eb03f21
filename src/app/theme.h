// SPDX-License-Identifier: MIT
// The theme file beside the executable. Only the colour of the tool bars is used; the other keys are kept
// because the file holds them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "surface/surface_ops.h"

namespace kev {

inline constexpr std::string_view kThemeFile = "\\md1.trp";

inline constexpr auto kThemeKeys = std::to_array<std::string_view>(
    {"TEMANAME", "MINIPANELBACKCOLOR", "TEXTFORECOLOR", "TEXTBACKCOLOR", "TEXTFONTNAME", "TEXTFONTSIZE",
     "TOOLBARCOLOR", "TOOLBARFONTNAME", "TOOLBARFONTSIZE", "TOOLBARFORECOLOR", "PANELSBACKCOLOR",
     "PANELSFONTNAME", "PANELSFONTSIZE", "PANELSFONTCOLOR", "PANELSTEXTFORECOLOR", "PANELSTEXTBACKCOLOR",
     "BACKGROUNDIMG", "VPANELSBACKCOLOR"});

struct Theme {
  std::array<std::string, kThemeKeys.size()> Values;

  // Empty for a key that the file lacks. A key outside the table throws std::out_of_range.
  const std::string& operator[](std::string_view key) const;
  // Nothing means the desktop's own colour.
  std::optional<Rgb> ToolbarColour() const;
};

Theme LoadTheme(const std::string& path);

}  // namespace kev
