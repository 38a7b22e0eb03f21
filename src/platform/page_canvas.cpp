// SPDX-License-Identifier: MIT
#include "platform/page_canvas.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "platform/focus_edges.h"
#include "platform/page_accessible.h"

namespace kev {
namespace {

constexpr int kDesk = 16;  // pixels of the desk around the page
constexpr int kShadow = 5;
constexpr double kRoomBehind = 2000;  // canvas units that can be scrolled to behind the page's end
constexpr int kWheelStep = 120;
const QColor kDeskColour(222, 224, 228);
const QColor kEdgeColour(188, 191, 197);

int RoundedPixel(double pixels) {
  return static_cast<int>(std::lround(std::clamp(pixels, -1e8, 1e8)));
}

// Nothing to scroll where the page is all in sight. Four tenths of the view for a large step, a tenth of that
// for a small one.
void SetRange(QScrollBar* bar, double canvas, int view) {
  const bool inSight = kDesk + WholePixels(canvas) <= view;
  bar->setRange(0, inSight ? 0 : WholePixels(canvas + kRoomBehind) - view);
  bar->setPageStep(std::max(1, view * 4 / 10));
  bar->setSingleStep(std::max(1, view * 4 / 100));
}

// In pixels of the viewport. The desk is whole pixels wide, whatever the canvas begins with.
QPoint PageCorner(const PageCanvas& canvas, const DisplayList& list) {
  return canvas.ToViewport(list.Canvas().topLeft()).toPoint();
}

// What stands above the page has its place, whatever is shown and hidden there. A scroll area that is asked to
// lay it out brings its scroll bars to the front, and paints them and all that stands beside them anew.
class PlacedByHand final : public QObject {
 public:
  explicit PlacedByHand(QWidget& viewport) : QObject(&viewport) { viewport.installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::LayoutRequest; }
};

}  // namespace

PageCanvas::PageCanvas(const DisplayList& list, QWidget* parent)
    : QAbstractScrollArea(parent),
      list_(list),
      strips_(list, *viewport(), [this] { return viewport()->rect().translated(-PageCorner(*this, list_)); }) {
  MakePageAccessible();
  setObjectName(QStringLiteral("p1"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  new FocusEdges(*this);
  new PlacedByHand(*viewport());
  FitWindow();
}

PageCanvas::~PageCanvas() {
  // An overlay that ends tells its canvas so, which must still be whole then.
  while (!overlays_.empty())
    delete overlays_.begin()->first;
}

void PageCanvas::ShowList() {
  strips_.Forget();
  FitWindow();
  viewport()->update();
}

void PageCanvas::FitWindow() {
  const QRectF canvas = list_.Canvas();
  SetRange(horizontalScrollBar(), canvas.width(), viewport()->width());
  SetRange(verticalScrollBar(), canvas.height(), viewport()->height());
  MoveOverlays();
  Q_EMIT ViewMoved();
}

QPointF PageCanvas::Origin() const {
  return QPointF(kDesk - horizontalScrollBar()->value(), kDesk - verticalScrollBar()->value()) -
         list_.Canvas().topLeft() / kUnitsPerPixel;
}

QPointF PageCanvas::ToCanvas(const QPointF& viewportPoint) const {
  return (viewportPoint - Origin()) * kUnitsPerPixel;
}

QPointF PageCanvas::ToViewport(const QPointF& canvasPoint) const {
  return canvasPoint / kUnitsPerPixel + Origin();
}

QRectF PageCanvas::VisibleCanvas() const {
  return QRectF(ToCanvas(QPointF(0, 0)), QSizeF(viewport()->size()) * kUnitsPerPixel);
}

void PageCanvas::ScrollTo(const QPointF& canvasPoint, const QPointF& viewportPoint) {
  const QPointF off = ToViewport(canvasPoint) - viewportPoint;
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + RoundedPixel(off.x()));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + RoundedPixel(off.y()));
}

void PageCanvas::EnsureVisible(const QRectF& canvasArea) {
  const auto reach = [](QScrollBar* bar, double low, double high, double view) {
    double by = 0;
    if (high > view) by = high - view;
    if (low - by < 0) by = low;
    bar->setValue(bar->value() + RoundedPixel(by));
  };
  const QRectF area(ToViewport(canvasArea.topLeft()), ToViewport(canvasArea.bottomRight()));
  reach(horizontalScrollBar(), area.left(), area.right(), viewport()->width());
  reach(verticalScrollBar(), area.top(), area.bottom(), viewport()->height());
}

void PageCanvas::PlaceOverlay(QWidget* overlay, const QRectF& canvasArea) {
  if (overlays_.find(overlay) == overlays_.end())
    connect(overlay, &QObject::destroyed, this, [this, overlay] { overlays_.erase(overlay); });
  overlays_[overlay] = canvasArea;
  MoveOverlay(overlay, canvasArea);
}

QRectF PageCanvas::OverlayArea(const QWidget* overlay) const {
  const auto known = overlays_.find(const_cast<QWidget*>(overlay));
  return known == overlays_.end() ? QRectF() : known->second;
}

void PageCanvas::MoveOverlay(QWidget* overlay, const QRectF& canvasArea) const {
  const QPointF corner = ToViewport(canvasArea.topLeft());
  overlay->setGeometry(RoundedPixel(corner.x()), RoundedPixel(corner.y()),
                       std::max(1, RoundedPixel(canvasArea.width() / kUnitsPerPixel)),
                       std::max(1, RoundedPixel(canvasArea.height() / kUnitsPerPixel)));
}

void PageCanvas::MoveOverlays() {
  for (const auto& [overlay, area] : overlays_)
    MoveOverlay(overlay, area);
}

// Beside the page alone: the page itself is opaque.
void PageCanvas::PaintDesk(QPainter& painter, const QRectF& exposed, const QRectF& page) const {
  const QRegion beside = QRegion(exposed.toRect()) - page.toRect();
  if (beside.isEmpty()) return;
  painter.save();
  painter.setClipRegion(beside, Qt::IntersectClip);
  const QRectF around = beside.boundingRect();
  painter.fillRect(around, kDeskColour);
  for (int i = kShadow; i > 0; --i)
    painter.fillRect(page.adjusted(2 - i, 2 - i, i, i) & around, QColor(0, 0, 0, 7));
  painter.fillRect(page.adjusted(-1, -1, 1, 1) & around, kEdgeColour);
  painter.restore();
}

void PageCanvas::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QRect page(PageCorner(*this, list_), strips_.Strips().PageSize());
  for (const QRect& rect : event->region()) {
    painter.save();
    painter.setClipRect(rect);
    PaintDesk(painter, rect, page);
    painter.translate(page.topLeft());
    strips_.Paint(painter, rect.translated(-page.topLeft()));
    painter.restore();
  }
}

void PageCanvas::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  FitWindow();
}

void PageCanvas::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, dy);
  // What stands above the page was moved by the same pixels; the places keep it exact.
  MoveOverlays();
  Q_EMIT ViewMoved();
}

void PageCanvas::wheelEvent(QWheelEvent* event) {
  const Qt::KeyboardModifiers held = event->modifiers();
  if (!held.testFlag(Qt::ControlModifier))
    return held.testFlag(Qt::ShiftModifier) ? ScrollSideways(*event) : QAbstractScrollArea::wheelEvent(event);
  zoomWheel_ += event->angleDelta().y();
  const int steps = zoomWheel_ / kWheelStep;
  zoomWheel_ -= steps * kWheelStep;
  if (steps != 0) Q_EMIT ZoomRequested(steps, event->position());
  event->accept();
}

// A wheel that only turns up and down scrolls sideways with Shift.
void PageCanvas::ScrollSideways(QWheelEvent& event) {
  const QPoint turned = event.angleDelta();
  QWheelEvent sideways(event.position(), event.globalPosition(), {},
                       {turned.x() != 0 ? turned.x() : turned.y(), 0}, event.buttons(), Qt::NoModifier,
                       event.phase(), event.inverted());
  QCoreApplication::sendEvent(horizontalScrollBar(), &sideways);
  event.accept();
}

// Arrow keys belong to what stands on the page, not to the view.
void PageCanvas::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      return event->ignore();
    default:
      return QAbstractScrollArea::keyPressEvent(event);
  }
}

void PageCanvas::Tell(PagePointer::Action action, const QMouseEvent& event) {
  PagePointer pointer;
  pointer.action = action;
  pointer.button = event.button();
  pointer.buttons = event.buttons();
  pointer.modifiers = event.modifiers();
  pointer.canvas = ToCanvas(event.position());
  Q_EMIT Pointer(pointer);
}

void PageCanvas::mousePressEvent(QMouseEvent* event) {
  Tell(PagePointer::Action::Press, *event);
}

void PageCanvas::mouseMoveEvent(QMouseEvent* event) {
  Tell(PagePointer::Action::Move, *event);
}

void PageCanvas::mouseReleaseEvent(QMouseEvent* event) {
  Tell(PagePointer::Action::Release, *event);
}

void PageCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  Tell(PagePointer::Action::DoubleClick, *event);
}

}  // namespace kev
