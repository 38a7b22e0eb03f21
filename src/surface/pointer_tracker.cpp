// SPDX-License-Identifier: MIT
#include "surface/pointer_tracker.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "surface/click.h"
#include "surface/page_background.h"
#include "surface/press_rules.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr double kHoldBack = 45;  // three logical pixels

bool IsFar(const PointerInput& press, const PointerInput& now) {
  return std::hypot(now.X - press.X, now.Y - press.Y) >= kHoldBack;
}

bool DragsEndBar(const PageWork& work) {
  const ObjectTable& objects = work.document.Objects;
  return work.pointer.ObjectDrag && objects[objects.CurrentObject].Kind == ObjectKind::EndOfSubsection;
}

// The page ends a gesture's reach. An end bar may go below it, and the page grows; a column line may be let
// go over the ruler above it. What hangs over the edge and was pressed there does not jump onto the page.
CanvasPoint OnCanvas(const PageWork& work, CanvasPoint at, CanvasPoint press) {
  constexpr double kFar = std::numeric_limits<double>::max();
  const double left = -LeftMarginOf(work.document.Settings) * work.ZoomFactor;
  const double top = work.pointer.ColumnDrag ? -kFar : 0;
  const double bottom = DragsEndBar(work) ? kFar : work.canvasHeight;
  return {std::clamp(at.X, std::min(left, press.X), std::max(left + work.canvasWidth, press.X)),
          std::clamp(at.Y, std::min(top, press.Y), std::max(bottom, press.Y))};
}

// A grip that was only clicked has done nothing. The sides of a box stand beside it: where nothing else lies
// under them, they mean the box.
bool PassesClick(const PageWork& work, PointerSource source) {
  if (source == PointerSource::Handle || source == PointerSource::LineEnd) return false;
  return source != PointerSource::Overlay || HitTest(work, work.pointer.LastPoint()) != 0;
}

}  // namespace

void PointerTracker::Press(PageWork& work, const PointerInput& input) {
  if (input.Button != PointerButton::Left) return;
  Cancel(work);
  press_ = input;
  press_.Source = SourceOf(work, input);
  pressed_ = true;
  refused_ = false;
}

void PointerTracker::Move(PageWork& work, const PointerInput& input) {
  if (!pressed_) return;
  if (input.Button == PointerButton::None) return LeftUp(work, input);
  if (gesture_ == nullptr && !refused_) {
    if (!IsFar(press_, input)) return;
    gesture_ = BeginGesture(work, press_);
    refused_ = gesture_ == nullptr;
  }
  Follow(work, input);
}

void PointerTracker::Follow(PageWork& work, const PointerInput& input) {
  PointerState& pointer = work.pointer;
  const CanvasPoint at{input.X, input.Y};
  pointer.KeepPosition(gesture_ != nullptr ? OnCanvas(work, at, {press_.X, press_.Y}) : at);
  pointer.OverRuler = input.Source == PointerSource::Ruler;
  pointer.OverLine = input.Source == PointerSource::ColumnLine ? input.Index : 0;
  if (gesture_ != nullptr) gesture_->Move(work, pointer.LastPoint());
}

void PointerTracker::Release(PageWork& work, const PointerInput& input) {
  if (input.Button == PointerButton::Right) return RightUp(work, input);
  if (pressed_) LeftUp(work, input);
}

void PointerTracker::LeftUp(PageWork& work, const PointerInput& input) {
  pressed_ = false;
  if (gesture_ == nullptr && press_.Source == PointerSource::Ruler) return;
  Follow(work, input);
  work.pointer.LastShift = input.Shift;
  CountClick(work);
  if (gesture_ != nullptr && !Finish(work, input.Shift)) return;
  if (PassesClick(work, press_.Source)) ClickOnPage(work);
}

bool PointerTracker::Finish(PageWork& work, int shift) {
  // A box that the end of a gesture shows gives up what is under way, which is nothing any more.
  const std::unique_ptr<Gesture> gesture = std::move(gesture_);
  try {
    gesture->End(work, shift);
  } catch (...) {
    work.pointer.ForgetGestures();
    gesture->Cancel(work);
    throw;
  }
  return gesture->WasClick();
}

void PointerTracker::RightUp(PageWork& work, const PointerInput& input) {
  PointerState& pointer = work.pointer;
  if (pressed_) {
    if (!pointer.GroupDrag) return;
    pressed_ = false;
    Follow(work, input);
    pointer.LastShift = input.Shift;
    Finish(work, input.Shift);
    return work.services.OpenContextMenu(ContextMenu::Group);
  }
  if (input.Source != PointerSource::Ruler) {
    pointer.KeepPosition({input.X, input.Y});
    pointer.LastShift = input.Shift;
  }
  RightClick(work, input);
}

void PointerTracker::DoubleClick(PageWork& work, const PointerInput& input) {
  if (input.Button == PointerButton::Right || pressed_) return;
  work.pointer.KeepPosition({input.X, input.Y});
  work.pointer.LastShift = input.Shift;
  DoubleClickOnPage(work, input);
}

bool PointerTracker::Cancel(PageWork& work) {
  pressed_ = false;
  if (gesture_ == nullptr) return false;
  const std::unique_ptr<Gesture> gesture = std::move(gesture_);
  gesture->Cancel(work);
  work.pointer.ForgetGestures();
  return true;
}

void PointerTracker::Reset() {
  gesture_.reset();
  pressed_ = refused_ = false;
}

}  // namespace kev
