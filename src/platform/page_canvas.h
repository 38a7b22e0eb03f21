// SPDX-License-Identifier: MIT
// The page in the window: the object `p1`. It shows a display list with a desk around the page, scrolls it,
// carries the movable widgets above it, and tells what the pointer does in canvas units.
#pragma once

#include <QAbstractScrollArea>
#include <QPointF>
#include <QRectF>
#include <unordered_map>

#include "platform/display_list.h"
#include "platform/page_strips.h"

namespace kev {

struct PagePointer {
  enum class Action { Press, Move, Release, DoubleClick };

  Action action = Action::Move;
  Qt::MouseButton button = Qt::NoButton;    // the button that changed
  Qt::MouseButtons buttons = Qt::NoButton;  // those that are down now
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  QPointF canvas;  // canvas units
};

class PageCanvas : public QAbstractScrollArea {
  Q_OBJECT

 public:
  // The list outlives the widget.
  explicit PageCanvas(const DisplayList& list, QWidget* parent = nullptr);
  ~PageCanvas() override;

  // After the list was filled anew: scroll range, origin and pixels follow it.
  void ShowList();
  // Canvas units, as the list has it now.
  double ListHeight() const { return list_.Canvas().height(); }
  QSizeF ListSize() const { return list_.Canvas().size(); }

  // The canvas point (0, 0) in pixels of the viewport; rulers beside the page follow it.
  QPointF Origin() const;
  QPointF ToCanvas(const QPointF& viewportPoint) const;
  QPointF ToViewport(const QPointF& canvasPoint) const;
  // What the viewport shows, in canvas units.
  QRectF VisibleCanvas() const;
  // Scrolls so that the canvas point lies at the viewport's pixel: what keeps the view's place over a zoom.
  void ScrollTo(const QPointF& canvasPoint, const QPointF& viewportPoint);
  // Scrolls by as much as is needed to see the area.
  void EnsureVisible(const QRectF& canvasArea);

  // A child of viewport() that stands at a place of the page and moves with it. It ends with the canvas, if
  // it has not ended before.
  void PlaceOverlay(QWidget* overlay, const QRectF& canvasArea);
  // Of a placed overlay, as it was given; empty for one that was not placed.
  QRectF OverlayArea(const QWidget* overlay) const;
  // Whether what scrolling by a view shows is painted already.
  bool IsPaintedAhead() const { return strips_.IsDone(); }

 Q_SIGNALS:
  void Pointer(const kev::PagePointer& event);
  // Ctrl and the wheel: steps up are above 0. `viewportPoint` is where the pointer is.
  void ZoomRequested(int steps, const QPointF& viewportPoint);
  // The origin moved: by scrolling, a new size, or a new list.
  void ViewMoved();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void FitWindow();
  void MoveOverlays();
  void MoveOverlay(QWidget* overlay, const QRectF& canvasArea) const;
  void PaintDesk(QPainter& painter, const QRectF& exposed, const QRectF& page) const;
  void ScrollSideways(QWheelEvent& event);
  void Tell(PagePointer::Action action, const QMouseEvent& event);

  const DisplayList& list_;
  StripsAhead strips_;
  std::unordered_map<QWidget*, QRectF> overlays_;
  int zoomWheel_ = 0;
};

}  // namespace kev
