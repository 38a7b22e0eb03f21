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
constexpr double kRoomBesideLabel = 30;

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
  RulerPainter(SurfaceOps& surface, const RulerPlan& plan, int mode, const RulerPart* part)
      : surface_(surface),
        plan_(plan),
        scale_(ScaleOf(mode)),
        vertical_(part != nullptr),
        length_(part != nullptr ? part->Height : plan.PageWidth * plan.ZoomFactor) {}

  // `before` is what lies in front of 0, canvas units.
  void Ground(double before);
  void Marks(RulerSpan span);

 private:
  void Line(double along1, double across1, double along2, double across2) {
    if (vertical_) return surface_.DrawLine(across1, along1, across2, along2);
    surface_.DrawLine(along1, across1, along2, across2);
  }
  double Pitch() const { return scale_.Step * plan_.ZoomFactor; }
  double LongPitch() const { return Pitch() * kStepsToLong; }
  double LabelRoom();
  void Mark(std::int64_t step);
  void Label(double along, std::int64_t count);

  SurfaceOps& surface_;
  const RulerPlan& plan_;
  const RulerScale& scale_;
  bool vertical_;
  double length_;                // canvas units
  std::int64_t labelEvery_ = 1;  // long marks to a number
};

void RulerPainter::Ground(double before) {
  const double across = vertical_ ? plan_.ColumnWidth : plan_.RowHeight;
  surface_.ClearCanvas();
  if (vertical_) {
    surface_.SetCanvasSize(across, length_);
    surface_.SetScaleLeft(0);
    surface_.DrawRectColour(0, 0, across, length_, kWhite, true);
  } else {
    surface_.SetCanvasSize(before + length_, across);
    surface_.SetScaleLeft(-before);
    surface_.DrawRectColour(-before, 0, length_, across, kWhite, true);
  }
  surface_.SetFont(plan_.Font);
  surface_.SetForeground(kBlack);
  surface_.SetPen(kMark, 1, PenStyle::Solid);
  Line(0, kBase, std::max(kBaseLength, length_), kBase);
}

// What one number takes along the ruler. The 0 of a part stands below its mark and not beside it.
double RulerPainter::LabelRoom() {
  if (vertical_) return plan_.LabelHeight * 1.5;
  const double longest = std::min(length_ / plan_.ZoomFactor, scale_.LastLong);
  const auto count = static_cast<std::int64_t>(longest / scale_.Step / kStepsToLong);
  return surface_.TextWidth(std::to_string(count) + std::string(scale_.Unit)) + kPixel;
}

// How many long marks share one number, so that numbers never touch: 1, 2, 5, 10, 20 and so on.
std::int64_t LabelEvery(double pitch, double room) {
  std::int64_t every = 1;
  for (int i = 0; pitch * static_cast<double>(every) < room; ++i)
    every = i % 3 == 1 ? every / 2 * 5 : every * 2;
  return every;
}

void RulerPainter::Marks(RulerSpan span) {
  labelEvery_ = LabelEvery(LongPitch(), LabelRoom());
  const double pitch = Pitch();
  // A number reaches out of its mark to both sides.
  const double reach = LongPitch() * static_cast<double>(labelEvery_);
  const double from = std::max(span.From - reach, 0.0);
  const double to = std::min(span.To + reach, length_);
  // Marks less than a pixel apart would only darken the ruler.
  const std::int64_t stride = pitch < kPixel ? kStepsToMiddle : 1;
  auto step = static_cast<std::int64_t>(from / pitch) / stride * stride;
  // The length is a whole number of steps more often than the quotient says.
  const auto last = static_cast<std::int64_t>(to / pitch + 1e-9);
  for (; step <= last; step += stride)
    Mark(step);
}

void RulerPainter::Mark(std::int64_t step) {
  const double place = static_cast<double>(step) * scale_.Step;
  const double along = place * plan_.ZoomFactor;
  const bool isLong = step > 0 && step % kStepsToLong == 0 && place <= scale_.LastLong;
  const bool isMiddle = step % kStepsToLong == kStepsToMiddle && place <= scale_.LastMiddle;
  Line(along, kBase, along, isLong ? scale_.LongTo : isMiddle ? scale_.MiddleTo : kShortTo);
  const std::int64_t count = step / kStepsToLong;
  if (step == 0 || (isLong && count % labelEvery_ == 0)) Label(along, count);
}

// On a ground of its own, since the long mark goes on below it. The first and the last number stand inside
// the ruler as a whole; a last one that has no room there is left out.
void RulerPainter::Label(double along, std::int64_t count) {
  const std::string text = count == 0 ? "0" : std::to_string(count) + std::string(scale_.Unit);
  const double width = surface_.TextWidth(text);
  const double extent = vertical_ ? plan_.LabelHeight : width;
  double start = count == 0 ? along : along - extent / 2;
  if (count > 0 && start + extent > length_) {
    if (LongPitch() * static_cast<double>(labelEvery_) < extent * 1.5) return;
    start = length_ - extent;
  }
  const double x = vertical_ ? kLabelAt + kRoomBesideLabel : start;
  const double y = vertical_ ? start : kLabelAt;
  const double left = vertical_ ? kLabelAt : x;
  surface_.DrawRectColour(left, y, x + width, y + plan_.LabelHeight, kWhite, true);
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
  plan.RowHeight = WholePixels(kLabelAt + label.Height + kRoomBesideLabel);
  plan.ColumnWidth = WholePixels(kLabelAt + label.Width + 2 * kRoomBesideLabel);
  return plan;
}

void BuildHorizontalRuler(SurfaceOps& rhor, const RulerPlan& plan, int mode, RulerSpan span) {
  RulerPainter painter(rhor, plan, mode, nullptr);
  painter.Ground(plan.LeftMargin * plan.ZoomFactor);
  painter.Marks(span);
}

void BuildVerticalRuler(SurfaceOps& rver, const RulerPlan& plan, const RulerPart& part, int mode,
                        RulerSpan span) {
  RulerPainter painter(rver, plan, mode, &part);
  painter.Ground(0);
  painter.Marks(span);
}

}  // namespace kev
