// SPDX-License-Identifier: MIT
// Where the quick panel stands over the page. All lengths are logical pixels from the corner of the page's
// area.
#pragma once

#include <optional>

namespace kev {

struct QuickPlace {
  int Left = 0, Top = 0;

  bool operator==(const QuickPlace&) const = default;
};
struct QuickSize {
  int Width = 0, Height = 0;
};
struct QuickArea {
  int Left = 0, Top = 0, Right = 0, Bottom = 0;
};

// The nearest place at which the whole panel can be seen; where there is too little room, its left top corner
// can.
QuickPlace PlaceInside(QuickPlace wanted, QuickSize panel, QuickSize room);

// For a panel that the user has put nowhere yet: where it stands, if the object is not below it, else the
// first corner of the area at which it is not.
QuickPlace PlaceBeside(const std::optional<QuickArea>& object, std::optional<QuickPlace> now, QuickSize panel,
                       QuickSize room);

}  // namespace kev
