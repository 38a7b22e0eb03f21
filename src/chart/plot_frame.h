// SPDX-License-Identifier: MIT
// Where a chart of categories has its plot, how values become heights, and what is drawn around it.
#pragma once

#include <cstddef>

#include "chart/chart_texts.h"
#include "chart/scale.h"
#include "chart/shapes.h"

namespace kev {

// What every part of the layout works on.
struct ChartWork {
  const ChartData& Data;
  ChartTexts& Texts;
  std::vector<ChartShape>& Shapes;
};

// How the labels below the plot stand: level or slanted, each or only every n-th of them.
struct LabelPlan {
  bool Slanted = false;
  std::size_t Every = 1;
  double Room = 0;    // along the text; longer ones are elided
  double Height = 0;  // below the plot; 0 shows no labels
};

struct PlotFrame {
  ChartRect Front;   // the plot; of a solid chart its front plane
  ChartDepth Depth;  // 0 of a flat chart
  ChartScale Scale;
  std::size_t Categories = 1;
  bool TickTexts = false;
  LabelPlan Labels;

  bool IsUsable() const { return Front.Width() >= 4 && Front.Height() >= 4; }
  double Slot() const { return Front.Width() / static_cast<double>(Categories); }
  double X(std::size_t category) const { return Front.Left + (static_cast<double>(category) + 0.5) * Slot(); }
  double Y(double value) const { return Front.Bottom - Scale.ShareOf(value) * Front.Height(); }
};

PlotFrame FramePlot(const ChartWork& work, const ChartRect& room);

// Background, walls and value lines: what lies behind the series.
void DrawWalls(const ChartWork& work, const PlotFrame& frame);
// The axes' lines and their marks, in front of the series.
void DrawAxes(const ChartWork& work, const PlotFrame& frame);
void DrawTickTexts(const ChartWork& work, const PlotFrame& frame);
void DrawLabels(const ChartWork& work, const PlotFrame& frame);

LabelPlan PlanLabels(const ChartWork& work, double slot, double mostHeight);

}  // namespace kev
