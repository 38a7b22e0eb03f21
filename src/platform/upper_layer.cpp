// SPDX-License-Identifier: MIT
#include "platform/upper_layer.h"

#include <algorithm>

#include "platform/layer_widget.h"

namespace kev {
namespace {

constexpr double kCaptionRoom = 20 * kUnitsPerPixel;

PointerInput InputOver(const LayerWidget& widget, const QPointF& at) {
  return {.Source = widget.Row().source, .Index = widget.Index(), .X = at.x(), .Y = at.y()};
}

}  // namespace

UpperLayer::UpperLayer(PageCanvas& canvas, FontCache& fonts, ImageCache& images)
    : canvas_(canvas), fonts_(fonts), images_(images) {}

UpperLayer::~UpperLayer() = default;

// Made when it is first named, below all that stand above its kind.
LayerWidget& UpperLayer::Widget(std::string_view name) {
  const auto known = widgets_.find(name);
  if (known != widgets_.end()) return *known->second;
  auto* made = new LayerWidget(name, fonts_, images_, canvas_.viewport());
  LayerWidget* above = nullptr;
  for (const auto& [other, widget] : widgets_) {
    if (widget->Row().level <= made->Row().level) continue;
    if (above == nullptr || widget->Row().level < above->Row().level) above = widget;
  }
  if (above != nullptr) {
    // Of several of one level it must go below the lowest.
    for (const auto& [other, widget] : widgets_)
      if (widget->Row().level > made->Row().level) made->stackUnder(widget);
  }
  widgets_.emplace(name, made);
  return *made;
}

void UpperLayer::PlaceWidget(std::string_view name, double left, double top, double width, double height) {
  LayerWidget& widget = Widget(name);
  QRectF place(left, top, width, height);
  if (widget.Row().look == LayerLook::Caption) {
    const double words = widget.fontMetrics().horizontalAdvance(widget.Text().trimmed());
    place.setWidth(std::max(width, words * kUnitsPerPixel + kCaptionRoom));
    place.setHeight(std::max(height, kCaptionRoom));
  }
  widget.SetPlace(place);
  canvas_.PlaceOverlay(&widget, widget.Room());
}

void UpperLayer::ShowWidget(std::string_view name, bool visible) {
  Widget(name).setVisible(visible);
}

SurfaceOps& UpperLayer::SurfaceOf(std::string_view name) {
  return Widget(name).BeginPainting();
}

void UpperLayer::SetWidgetText(std::string_view name, std::string_view text) {
  LayerWidget& widget = Widget(name);
  // Names of columns are the template's.
  widget.SetText(fonts_.Text({}, text));
  const QRectF place = widget.Place();
  if (widget.Row().look == LayerLook::Caption)
    PlaceWidget(name, place.left(), place.top(), 0, place.height());
}

const LayerWidget* UpperLayer::Topmost(const QPointF& canvasPoint, const Takes& takes) const {
  const LayerWidget* best = nullptr;
  for (const auto& [name, widget] : widgets_) {
    if (widget->isHidden() || !widget->Row().held || !widget->Holds(canvasPoint)) continue;
    if (best != nullptr && widget->Row().level <= best->Row().level) continue;
    if (takes(InputOver(*widget, canvasPoint))) best = widget;
  }
  return best;
}

PointerInput UpperLayer::At(const QPointF& canvasPoint, const Takes& takes) const {
  const LayerWidget* widget = Topmost(canvasPoint, takes);
  return widget != nullptr ? InputOver(*widget, canvasPoint)
                           : PointerInput{.X = canvasPoint.x(), .Y = canvasPoint.y()};
}

QString UpperLayer::TipAt(const QPointF& canvasPoint) const {
  const LayerWidget* widget = Topmost(canvasPoint, [](const PointerInput&) { return true; });
  return widget == nullptr ? QString() : widget->Text();
}

}  // namespace kev
