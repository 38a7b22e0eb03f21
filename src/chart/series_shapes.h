// SPDX-License-Identifier: MIT
// The series of a chart as shapes, flat and solid, and where their values are printed.
#pragma once

#include "chart/plot_frame.h"

namespace kev {

// Where the value of a point wants to be printed.
struct ValueMark {
  std::size_t Series = 0, Index = 0;  // counted from 0
  ChartPoint At;
  bool Below = false;
  double Pitch = 0;  // the room from one mark of its kind to the next
  double Slot = 0;   // that of its category
};

std::vector<ValueMark> DrawSeries(const ChartWork& work, const PlotFrame& frame);
// How high the values above bars are that stand so near each other; those that are wider than their bars
// stand upright where they have room.
double HeightOfValues(const ChartWork& work, double pitch);
// From one bar to the next in a slot of this width.
double BarPitch(const ChartData& data, double slot);
void DrawValues(const ChartWork& work, std::vector<ValueMark> marks);

// --- The parts of DrawSeries ------------------------------------------------------------------------------

// The part of the depth that a solid series has for itself; 0 is the front.
struct DepthLane {
  double From = 0, To = 1;
};

struct SeriesWork {
  const ChartWork& Work;
  const PlotFrame& Frame;
  std::vector<ValueMark>& Marks;
};

void DrawFlatBars(const SeriesWork& work);
void DrawFlatArea(const SeriesWork& work, std::size_t series);
void DrawFlatLine(const SeriesWork& work, std::size_t series);
void DrawSolidBars(const SeriesWork& work, DepthLane lane);
void DrawPrism(const SeriesWork& work, std::size_t series, DepthLane lane);
void DrawRibbon(const SeriesWork& work, std::size_t series, DepthLane lane);

// A bar of a category among the others that stand there.
struct BarPlace {
  std::size_t Series = 0, Index = 0;
  ChartRect Area;  // between zero and the value
  bool Negative = false;
  double Pitch = 0;
};
// In the order in which they are painted; none for values that have no height.
std::vector<BarPlace> PlaceBars(const ChartWork& work, const PlotFrame& frame);

// The points of a series in the front plane.
std::vector<ChartPoint> PointsOf(const SeriesWork& work, std::size_t series);
// Those of a series that is an area: with a width also where there is one value alone.
std::vector<ChartPoint> AreaPointsOf(const SeriesWork& work, std::size_t series);

}  // namespace kev
