// SPDX-License-Identifier: MIT
// Which painter a symbology has, and how it is called where a text stands for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kev {

enum class BarPainter : std::uint8_t { None, Code39, Module, Code128 };

// None for a number that is no symbology's.
BarPainter BarPainterOf(int kind);
// What BarcodeEncoder calls the kinds of the module painter; empty for every other.
std::string_view EncoderKeyword(int kind);

// This one is painted on the page alone, and only upright.
inline constexpr int kPageOnlyKind = 12821;

// What the property sheet shows for a kind without a name.
inline constexpr std::string_view kNoSuchKind = "Barcode not found. ADD IT!";
std::string_view KindName(int kind);
std::optional<int> KindFromName(std::string_view name);

}  // namespace kev
