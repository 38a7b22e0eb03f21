// SPDX-License-Identifier: MIT
// The labels below the plot. Where they have no room side by side they slant, and where that does not do
// either, only some of them are shown.
#include <algorithm>
#include <cmath>

#include "chart/plot_frame.h"

namespace kev {
namespace {

constexpr double kGap = 5;      // between the plot and its labels
constexpr double kBetween = 6;  // between two labels
constexpr double kSlant = -45;  // degrees
constexpr double kDiagonal = 0.70710678118654752;
constexpr std::size_t kMostSlanted = 40;
constexpr double kShortLabel = 4;  // heights of a text; shorter ones are skipped rather than slanted
constexpr double kLongestLevel = 9;

double WidestLabel(const ChartWork& work) {
  double widest = 0;
  for (const std::string& label : work.Data.Labels)
    widest = std::max(widest, work.Texts.WidthOf(work.Data.LabelStyle, label));
  return widest;
}

LabelPlan Level(double widest, double text, double slot, double mostHeight) {
  LabelPlan plan;
  plan.Height = text + kGap;
  if (plan.Height > mostHeight || slot <= 0) return {};
  const double wanted = std::min(widest, text * kLongestLevel) + kBetween;
  plan.Every = static_cast<std::size_t>(std::clamp(std::ceil(wanted / slot), 1.0, 1e6));
  plan.Room = slot * static_cast<double>(plan.Every) - kBetween;
  return plan;
}

LabelPlan Slanted(double widest, double text, double slot, double mostHeight) {
  LabelPlan plan;
  plan.Slanted = true;
  plan.Room = std::min(widest, (mostHeight - kGap) / kDiagonal - text);
  plan.Height = (plan.Room + text) * kDiagonal + kGap;
  const double apart = text / kDiagonal;
  plan.Every = static_cast<std::size_t>(std::clamp(std::ceil(apart / slot), 1.0, 1e6));
  return plan;
}

void PlaceLevel(const ChartWork& work, const PlotFrame& frame, const std::string& label, double x) {
  const std::string shown = work.Texts.Elided(work.Data.LabelStyle, label, frame.Labels.Room);
  ChartText text = work.Texts.Make(work.Data.LabelStyle, shown);
  text.At = {x - text.Width / 2, frame.Front.Bottom + kGap};
  work.Texts.Place(std::move(text));
}

// The end of the text stands below the middle of its slot.
void PlaceSlanted(const ChartWork& work, const PlotFrame& frame, const std::string& label, double x) {
  const double height = work.Texts.HeightOf(work.Data.LabelStyle);
  const double toTheLeft = x / kDiagonal - height;
  const double room = std::min(frame.Labels.Room, toTheLeft);
  ChartText text =
      work.Texts.Make(work.Data.LabelStyle, work.Texts.Elided(work.Data.LabelStyle, label, room));
  text.Degrees = kSlant;
  const double half = height / 2 * kDiagonal;
  text.At = {x - half - text.Width * kDiagonal, frame.Front.Bottom + kGap + text.Width * kDiagonal};
  work.Texts.Place(std::move(text));
}

}  // namespace

LabelPlan PlanLabels(const ChartWork& work, double slot, double mostHeight) {
  const double widest = WidestLabel(work);
  if (widest <= 0 || slot <= 0) return {};
  const double text = work.Texts.HeightOf(work.Data.LabelStyle);
  const LabelPlan level = Level(widest, text, slot, mostHeight);
  const bool allInFull = level.Height > 0 && level.Every == 1 && level.Room >= widest;
  if (allInFull || widest <= text * kShortLabel || work.Data.Categories() > kMostSlanted) return level;
  const LabelPlan slanted = Slanted(widest, text, slot, mostHeight);
  return slanted.Room >= text * 2 ? slanted : level;
}

void DrawLabels(const ChartWork& work, const PlotFrame& frame) {
  if (frame.Labels.Height <= 0) return;
  const std::vector<std::string>& labels = work.Data.Labels;
  for (std::size_t at = 0; at < labels.size(); at += frame.Labels.Every) {
    const double x = frame.X(at);
    if (frame.Labels.Slanted)
      PlaceSlanted(work, frame, labels[at], x);
    else
      PlaceLevel(work, frame, labels[at], x);
  }
}

}  // namespace kev
