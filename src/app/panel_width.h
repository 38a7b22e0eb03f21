// SPDX-License-Identifier: MIT
// How page and docked panel share the window. Twips.
#pragma once

#include <algorithm>
#include <cstdint>

namespace kev {

// Neither of the two becomes narrower.
inline constexpr std::int32_t kLeastPanelWidth = 1500;

// The panel's width next to the page where both have `room` together. A window too narrow for both leaves the
// panel its least.
constexpr std::int32_t PanelWidthWithin(std::int32_t wanted, std::int32_t room) {
  return std::clamp(wanted, kLeastPanelWidth, std::max(kLeastPanelWidth, room - kLeastPanelWidth));
}

}  // namespace kev
