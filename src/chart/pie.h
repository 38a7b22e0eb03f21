// SPDX-License-Identifier: MIT
// The first series as a pie. Values below zero have no slice; without any slice an empty ring stands there.
#pragma once

#include "chart/plot_frame.h"

namespace kev {

void DrawPie(const ChartWork& work, ChartRect room);

}  // namespace kev
