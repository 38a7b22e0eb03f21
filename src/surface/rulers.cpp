// SPDX-License-Identifier: MIT
#include "surface/rulers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>

#include "document/kind_defaults.h"
#include "surface/page_background.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

constexpr double kNoEnd = std::numeric_limits<double>::infinity();
constexpr std::array<RulerScale, kLastRulerMode> kScales = {
    RulerScale{
        .Step = 100, .Unit = "K", .LongTo = 400, .MiddleTo = 220, .LastLong = 31000, .LastMiddle = 31500},
    RulerScale{
        .Step = 144, .Unit = " in", .LongTo = 400, .MiddleTo = 220, .LastLong = kNoEnd, .LastMiddle = kNoEnd},
    RulerScale{.Step = 56.7,
               .Unit = " cm",
               .LongTo = 250,
               .MiddleTo = 170,
               .LastLong = kNoEnd,
               .LastMiddle = kNoEnd},
};
constexpr int kStepsToLong = 10;
constexpr int kStepsToMiddle = 5;

// Canvas units across the ruler.
constexpr double kBase = 50;
constexpr double kShortTo = 120;
constexpr double kLabelAt = 220;
constexpr double kRoomBehindLabel = 30;

constexpr double kBaseLength = 50000;  // canvas units, and the page's length where that is more
constexpr double kPixel = 15;          // canvas units
constexpr Rgb kMark = 0x6E7781;

constexpr double kPointsPerZoom = 8;
constexpr double kFewestPoints = 9;

double WholePixels(double units) {
  return std::ceil(units / kPixel) * kPixel;
}

// One ruler on its surface, whichever way it runs.
class RulerPainter {
 public:
  RulerPainter(SurfaceOps& surface, const RulerPlan& plan, int mode, bool vertical)
      : surface_(surface), plan_(plan), scale_(ScaleOf(mode)), vertical_(vertical) {}

  // `length` and `before` (what lies in front of 0) are canvas units.
  void Ground(double length, double before);
  void Marks(double length, RulerSpan span);

 private:
  void Line(double along1, double across1, double along2, double across2) {
    if (vertical_) return surface_.DrawLine(across1, along1, across2, along2);
    surface_.DrawLine(along1, across1, along2, across2);
  }
  double Pitch() const { return scale_.Step * plan_.ZoomFactor; }
  std::int64_t LabelEvery(double length);
  void Mark(std::int64_t step, std::int64_t labelEvery);
  void Label(double along, std::int64_t count);

  SurfaceOps& surface_;
  const RulerPlan& plan_;
  const RulerScale& scale_;
  bool vertical_;
};

void RulerPainter::Ground(double length, double before) {
  const double across = vertical_ ? plan_.ColumnWidth : plan_.RowHeight;
  surface_.ClearCanvas();
  if (vertical_) {
    surface_.SetCanvasSize(across, length);
    surface_.SetScaleLeft(0);
    surface_.DrawRectColour(0, 0, across, length, kWhite, true);
  } else {
    surface_.SetCanvasSize(before + length, across);
    surface_.SetScaleLeft(-before);
    surface_.DrawRectColour(-before, 0, length, across, kWhite, true);
  }
  surface_.SetFont(plan_.Font);
  surface_.SetForeground(kBlack);
  surface_.SetPen(kMark, 1, PenStyle::Solid);
  Line(0, kBase, std::max(kBaseLength, length), kBase);
}

// How many long marks share one number, so that numbers never touch: 1, 2, 5, 10, 20 and so on.
std::int64_t RulerPainter::LabelEvery(double length) {
  double room = plan_.LabelHeight;
  if (!vertical_) {
    const double longest = std::min(length / plan_.ZoomFactor, scale_.LastLong);
    const auto count = static_cast<std::int64_t>(longest / scale_.Step / kStepsToLong);
    room = surface_.TextWidth(std::to_string(count) + std::string(scale_.Unit)) + kPixel;
  }
  const double pitch = Pitch() * kStepsToLong;
  std::int64_t every = 1;
  for (int i = 0; pitch * static_cast<double>(every) < room; ++i)
    every = i % 3 == 1 ? every / 2 * 5 : every * 2;
  return every;
}

void RulerPainter::Marks(double length, RulerSpan span) {
  const std::int64_t every = LabelEvery(length);
  const double pitch = Pitch();
  // A number reaches out of its mark to both sides.
  const double reach = pitch * kStepsToLong * static_cast<double>(every);
  const double from = std::max(span.From - reach, 0.0);
  const double to = std::min(span.To + reach, length);
  // Marks less than a pixel apart would only darken the ruler.
  const std::int64_t stride = pitch < kPixel ? kStepsToMiddle : 1;
  auto step = static_cast<std::int64_t>(from / pitch) / stride * stride;
  // The length is a whole number of steps more often than the quotient says.
  const auto last = static_cast<std::int64_t>(to / pitch + 1e-9);
  for (; step <= last; step += stride)
    Mark(step, every);
}

void RulerPainter::Mark(std::int64_t step, std::int64_t labelEvery) {
  const double place = static_cast<double>(step) * scale_.Step;
  const double along = place * plan_.ZoomFactor;
  const bool isLong = step > 0 && step % kStepsToLong == 0 && place <= scale_.LastLong;
  const bool isMiddle = step % kStepsToLong == kStepsToMiddle && place <= scale_.LastMiddle;
  Line(along, kBase, along, isLong ? scale_.LongTo : isMiddle ? scale_.MiddleTo : kShortTo);
  const std::int64_t count = step / kStepsToLong;
  if (step == 0 || (isLong && count % labelEvery == 0)) Label(along, count);
}

// On a ground of its own, since the long mark goes on below it. The 0 stands inside the ruler.
void RulerPainter::Label(double along, std::int64_t count) {
  const std::string text = count == 0 ? "0" : std::to_string(count) + std::string(scale_.Unit);
  const double width = surface_.TextWidth(text);
  const double half = count == 0 ? 0 : (vertical_ ? plan_.LabelHeight : width) / 2;
  const double x = vertical_ ? kLabelAt : along - half;
  const double y = vertical_ ? along - half : kLabelAt;
  surface_.DrawRectColour(x, y, x + width, y + plan_.LabelHeight, kWhite, true);
  surface_.PrintText(x, y, text);
}

// Enough for each number that the highest body needs, in any unit.
std::string WidestLabel(const std::vector<RulerPart>& parts, double zoom) {
  constexpr double kTwipsPerCentimetre = 567;
  double highest = 0;
  for (const RulerPart& part : parts)
    highest = std::max(highest, part.Height);
  const auto count = static_cast<std::int64_t>(highest / zoom / kTwipsPerCentimetre);
  return std::to_string(std::max<std::int64_t>(count, 10)) + " cm";
}

std::vector<RulerPart> PartsOf(const Document& document, double zoom) {
  std::vector<RulerPart> parts;
  const ObjectTable& objects = document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& bar = objects[row];
    if (bar.Kind != ObjectKind::Subsection || bar.EndsAt <= 0) continue;
    const double top = static_cast<double>(bar.AbsoluteY) + kBarHeight;
    parts.push_back({row, top * zoom, bar.EndsAt * zoom});
  }
  std::stable_sort(parts.begin(), parts.end(),
                   [](const RulerPart& a, const RulerPart& b) { return a.Top < b.Top; });
  return parts;
}

}  // namespace

const RulerScale& ScaleOf(int mode) {
  const bool known = mode >= kFirstRulerMode && mode <= kLastRulerMode;
  return kScales[static_cast<std::size_t>(known ? mode - kFirstRulerMode : 0)];
}

FontSpec RulerFont(double zoom) {
  FontSpec font;
  font.Name = "Arial";
  font.Size = std::max(kPointsPerZoom * zoom, kFewestPoints);
  font.Bold = true;
  return font;
}

RulerPlan PlanRulers(const Document& document, double zoom, const TextMeasurer& measurer) {
  RulerPlan plan;
  plan.ZoomFactor = zoom;
  plan.PageWidth = PageSizeOf(document.Settings).Width;
  plan.LeftMargin = LeftMarginOf(document.Settings);
  plan.Font = RulerFont(zoom);
  plan.Parts = PartsOf(document, zoom);
  const TextExtent label = measurer.Measure(plan.Font, WidestLabel(plan.Parts, zoom));
  plan.LabelHeight = label.Height;
  plan.RowHeight = WholePixels(kLabelAt + label.Height + kRoomBehindLabel);
  plan.ColumnWidth = WholePixels(kLabelAt + label.Width + kRoomBehindLabel);
  return plan;
}

void BuildHorizontalRuler(SurfaceOps& rhor, const RulerPlan& plan, int mode, RulerSpan span) {
  RulerPainter painter(rhor, plan, mode, false);
  painter.Ground(plan.PageWidth * plan.ZoomFactor, plan.LeftMargin * plan.ZoomFactor);
  painter.Marks(plan.PageWidth * plan.ZoomFactor, span);
}

void BuildVerticalRuler(SurfaceOps& rver, const RulerPlan& plan, const RulerPart& part, int mode,
                        RulerSpan span) {
  RulerPainter painter(rver, plan, mode, true);
  painter.Ground(part.Height, 0);
  painter.Marks(part.Height, span);
}

}  // namespace kev
