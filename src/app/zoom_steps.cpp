// SPDX-License-Identifier: MIT
#include "app/zoom_steps.h"

#include "app/designer.h"
#include "base/numbers.h"

namespace kev {

double ZoomStepUp(double percent) {
  for (const std::string_view entry : kZoomList) {
    const double value = NumericPrefix(entry);
    if (value > percent) return value;
  }
  return percent;
}

double ZoomStepDown(double percent) {
  double below = percent;
  for (const std::string_view entry : kZoomList) {
    const double value = NumericPrefix(entry);
    if (value >= percent) break;
    below = value;
  }
  return below;
}

}  // namespace kev
