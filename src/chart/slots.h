// SPDX-License-Identifier: MIT
// Where each value of a chart lies among its slots, as indices into the vector of them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kev::slot {

inline constexpr std::size_t kType = 0;
inline constexpr std::size_t kBackGround = 1;
inline constexpr std::size_t kBackGroundPicture = 2;
inline constexpr std::size_t kAxisColor1 = 3;
inline constexpr std::size_t kAxisColor2 = 4;
inline constexpr std::size_t kAxisStyle = 5;
inline constexpr std::size_t kTitle = 6;
inline constexpr std::size_t kLayoutFont = 7;
inline constexpr std::size_t kLayoutFontColor = 8;
inline constexpr std::size_t kLayoutFontSize = 9;
inline constexpr std::size_t kLayoutValues = 10;
inline constexpr std::size_t kFirstPieColor = 11;
inline constexpr std::size_t kFirstSeries = 31;
inline constexpr std::size_t kSeries = 79;
inline constexpr std::size_t kShowAxis = 80;
inline constexpr std::size_t kShowAxisBackGround = 81;
inline constexpr std::size_t kShowSeriesTitles = 82;
inline constexpr std::size_t kShowValuesFont = 83;
inline constexpr std::size_t kShowValuesFontColor = 84;
inline constexpr std::size_t kShowValuesFontSize = 85;
inline constexpr std::size_t kTitleFontColor = 86;
inline constexpr std::size_t kTitleFont = 87;
inline constexpr std::size_t kTitleFontSize = 88;
inline constexpr std::size_t kTitleFontBold = 89;
inline constexpr std::size_t kTitleFontUnderline = 90;
inline constexpr std::size_t kTitleFontItalic = 91;

enum class SeriesPart : std::uint8_t { Color, Format, Name, ShowValues, Type, Values };

// Series and pie colours are counted from 1.
constexpr std::size_t OfSeries(int n, SeriesPart part) {
  return kFirstSeries + static_cast<std::size_t>(n - 1) * 6 + static_cast<std::size_t>(part);
}
constexpr std::size_t PieColor(int n) {
  return kFirstPieColor + static_cast<std::size_t>(n - 1);
}

}  // namespace kev::slot
