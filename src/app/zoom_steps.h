// SPDX-License-Identifier: MIT
// How the wheel walks the list of zoom values. Values are percent.
#pragma once

namespace kev {

// The next value of the list above or below; the value itself where the list has none.
double ZoomStepUp(double percent);
double ZoomStepDown(double percent);

}  // namespace kev
