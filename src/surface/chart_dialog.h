// SPDX-License-Identifier: MIT
// Accepting `Wizard1`: what is refused, and what goes into the record.
#pragma once

#include <functional>

#include "chart/wizard.h"
#include "surface/page_work.h"

namespace kev {

// The number of the text that says why the dialog can't be accepted; 0 when there is no reason. Place and
// size are looked at where they were changed.
int RefusalOf(const ChartWizard& wizard, const Document& document);

// False when it was refused: the message was shown, nothing is stored and the dialog stays. Otherwise one
// snapshot, the record with its place on the page, its image by `saveChartImage`, and a full repaint.
bool ApplyChartWizard(PageWork& work, const ChartWizard& wizard, const std::function<void()>& saveChartImage);

}  // namespace kev
