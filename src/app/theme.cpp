// SPDX-License-Identifier: MIT
#include "app/theme.h"

#include <algorithm>
#include <stdexcept>

#include "app/key_values.h"
#include "base/files.h"
#include "base/key_file.h"

namespace kev {

const std::string& Theme::operator[](std::string_view key) const {
  const auto* const found = std::find(kThemeKeys.begin(), kThemeKeys.end(), key);
  if (found == kThemeKeys.end()) throw std::out_of_range("the theme has no such key");
  return Values[static_cast<std::size_t>(found - kThemeKeys.begin())];
}

std::optional<Rgb> Theme::ToolbarColour() const {
  const std::optional<double> number = NumberIn((*this)["TOOLBARCOLOR"]);
  if (!number || *number < 0 || *number > 0xFFFFFF) return std::nullopt;
  const auto colour = static_cast<Rgb>(ToInt32(*number));
  const Rgb red = colour & 0xFF, green = colour >> 8 & 0xFF, blue = colour >> 16 & 0xFF;
  return red << 16 | green << 8 | blue;
}

Theme LoadTheme(const std::string& path) {
  const Result<std::string> bytes = ReadWholeFile(path);
  const KeyFile keys(bytes ? std::string_view(*bytes) : std::string_view());
  Theme theme;
  std::transform(kThemeKeys.begin(), kThemeKeys.end(), theme.Values.begin(),
                 [&](std::string_view key) { return keys.Value(key); });
  return theme;
}

}  // namespace kev
