// SPDX-License-Identifier: MIT
// The dialog of a chart, opened on the page.
#include "app/chart_runs.h"
#include "app/design_surface.h"
#include "app/designer.h"

namespace kev {

void DesignSurface::OpenChart(int row) {
  DesignerView* view = designer_.View();
  if (view == nullptr) return;
  ChartWizardRun run(designer_, row);
  view->OpenChartWizard(run);
}

}  // namespace kev
