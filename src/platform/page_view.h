// SPDX-License-Identifier: MIT
// The open document's page in the window: shows the display list and keeps the view's place.
#pragma once

#include <memory>

#include "app/designer.h"
#include "platform/display_list.h"
#include "platform/page_accessible.h"
#include "platform/page_canvas.h"
#include "platform/upper_layer.h"

namespace kev {

class PageView {
 public:
  // All outlive it. The canvas is a child of `parent`.
  PageView(Designer& designer, FontCache& fonts, ImageCache& images, QWidget* parent);

  PageCanvas& Canvas() { return *canvas_; }
  UpperLayer& Layer() { return *layer_; }

  // Where the page is painted.
  SurfaceOps& Surface() { return list_; }
  // It was painted anew.
  void Shown();
  // Another object is selected, or perhaps so.
  void SelectionChanged() { accessible_->SelectionChanged(); }
  // The names on the page and its bytes are those of another document.
  void DocumentReplaced();

  // A small picture of the page; see platform/thumbnail.h.
  std::string Thumbnail(const ThumbnailLook& look);

  // Changes the zoom; the point of the page below `anchor` (pixels of the viewport) stays where it is.
  void SetZoom(const QString& text, const QPointF& anchor);
  void SetZoom(const QString& text);

 private:
  Designer& designer_;
  FontCache& fonts_;
  ImageCache& images_;
  DisplayList list_;
  // Before the list that it shows, wherever it stands in the window.
  std::unique_ptr<PageCanvas> canvas_;
  std::unique_ptr<UpperLayer> layer_;
  PageAccessible* accessible_;  // the canvas's
};

}  // namespace kev
