// SPDX-License-Identifier: MIT
// The widgets above the page: the panels of the current object, its grips, frames, column lines and guides.
// None of them takes the pointer itself; the page asks the layer what the pointer is over.
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/display_list.h"
#include "platform/page_canvas.h"
#include "surface/pointer_tracker.h"

namespace kev {

class LayerWidget;

class UpperLayer final : public QObject, public WidgetLayer {
  Q_OBJECT

 public:
  // All outlive the layer.
  UpperLayer(PageCanvas& canvas, FontCache& fonts, ImageCache& images);
  ~UpperLayer() override;

  void PlaceWidget(std::string_view name, double left, double top, double width, double height) override;
  void ShowWidget(std::string_view name, bool visible) override;
  SurfaceOps& SurfaceOf(std::string_view name) override;
  void SetWidgetText(std::string_view name, std::string_view text) override;

  // The topmost widget that can be taken hold of at this place and that `takes` lets have it, or the page;
  // canvas units. Source, index and place are filled in, nothing else.
  using Takes = std::function<bool(const PointerInput&)>;
  PointerInput At(const QPointF& canvasPoint, const Takes& takes) const;
  // The tooltip for this place; empty where there is none.
  QString TipAt(const QPointF& canvasPoint) const;

 private:
  LayerWidget& Widget(std::string_view name);
  const LayerWidget* Topmost(const QPointF& canvasPoint, const Takes& takes) const;

  PageCanvas& canvas_;
  FontCache& fonts_;
  ImageCache& images_;
  std::map<std::string, LayerWidget*, std::less<>> widgets_;
};

}  // namespace kev
