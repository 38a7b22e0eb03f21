// SPDX-License-Identifier: MIT
#include "app/quick_place.h"

#include <algorithm>
#include <array>

namespace kev {
namespace {

constexpr int kMargin = 10;

bool Covers(QuickPlace place, QuickSize panel, const QuickArea& object) {
  return object.Left < place.Left + panel.Width && object.Right > place.Left &&
         object.Top < place.Top + panel.Height && object.Bottom > place.Top;
}

}  // namespace

QuickPlace PlaceInside(QuickPlace wanted, QuickSize panel, QuickSize room) {
  return {std::max(0, std::min(wanted.Left, room.Width - panel.Width)),
          std::max(0, std::min(wanted.Top, room.Height - panel.Height))};
}

QuickPlace PlaceBeside(const std::optional<QuickArea>& object, std::optional<QuickPlace> now, QuickSize panel,
                       QuickSize room) {
  const int right = room.Width - panel.Width - kMargin;
  const int bottom = room.Height - panel.Height - kMargin;
  // A page fills from above.
  const std::array corners = {QuickPlace{right, bottom}, QuickPlace{right, kMargin},
                              QuickPlace{kMargin, bottom}, QuickPlace{kMargin, kMargin}};
  const auto isFree = [&](QuickPlace place) { return !object || !Covers(place, panel, *object); };
  if (now && PlaceInside(*now, panel, room) == *now && isFree(*now)) return *now;
  const auto* found = std::find_if(corners.begin(), corners.end(), [&](QuickPlace corner) {
    return isFree(PlaceInside(corner, panel, room));
  });
  return PlaceInside(found == corners.end() ? corners.front() : *found, panel, room);
}

}  // namespace kev
