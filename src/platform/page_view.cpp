// SPDX-License-Identifier: MIT
#include "platform/page_view.h"

#include <QScrollBar>

#include "platform/text_bridge.h"
#include "platform/thumbnail.h"

namespace kev {

PageView::PageView(Designer& designer, FontCache& fonts, ImageCache& images, QWidget* parent)
    : designer_(designer),
      fonts_(fonts),
      images_(images),
      list_(fonts, images),
      canvas_(std::make_unique<PageCanvas>(list_, parent)),
      layer_(std::make_unique<UpperLayer>(*canvas_, fonts, images)),
      accessible_(new PageAccessible(designer, *canvas_)) {
  list_.SetWidgetLayer(layer_.get());
  canvas_->setObjectName(QStringLiteral("p1"));
  canvas_->verticalScrollBar()->setObjectName(QStringLiteral("vscrollbar"));
  canvas_->horizontalScrollBar()->setObjectName(QStringLiteral("hscrollbar"));
  // Known before the first template is read, whose texts are measured while it is read.
  fonts_.FollowPage([&designer]() -> const CodePage& { return *designer.OpenDocument().Page; });
  images_.SetResolver([&designer](std::string_view file) {
    return designer.PictureFileOnDisk(file).value_or(std::string());
  });
}

void PageView::Shown() {
  canvas_->ShowList();
  accessible_->PageShown();
}

void PageView::DocumentReplaced() {
  accessible_->DocumentReplaced();
  canvas_->verticalScrollBar()->setValue(canvas_->verticalScrollBar()->minimum());
  canvas_->horizontalScrollBar()->setValue(canvas_->horizontalScrollBar()->minimum());
}

std::string PageView::Thumbnail(const ThumbnailLook& look) {
  return ThumbnailOf(designer_, fonts_, images_, look);
}

void PageView::SetZoom(const QString& text, const QPointF& anchor) {
  const QPointF place = canvas_->ToCanvas(anchor) / designer_.ZoomFactor();
  const QPointF onScreen = canvas_->viewport()->mapToGlobal(anchor);
  // A character that no code page holds is no part of a number: the designer then puts the old zoom back.
  if (!designer_.SetZoom(FromQString(text, CodePage::Default()).value_or(std::string()))) return;
  // Rulers that became thicker have moved the viewport.
  canvas_->ScrollTo(place * designer_.ZoomFactor(), canvas_->viewport()->mapFromGlobal(onScreen));
}

void PageView::SetZoom(const QString& text) {
  SetZoom(text, QRectF(canvas_->viewport()->rect()).center());
}

}  // namespace kev
