// SPDX-License-Identifier: MIT
#include "platform/rulers.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace kev {
namespace {

constexpr double kViewsAhead = 4;  // filled to each side of the view, so that scrolling mostly finds it there
const QColor kEdge(0xCF, 0xD5, 0xDC);

}  // namespace

// A ruler in its own units, and where its 0 lies along the page.
struct Ruler::Part {
  Part(FontCache& fonts, ImageCache& images, double startAt) : list(fonts, images), start(startAt) {}

  DisplayList list;
  double start;
};

Ruler::Ruler(Qt::Orientation orientation, PageCanvas& canvas, FontCache& fonts, QWidget* parent)
    : QWidget(parent), orientation_(orientation), canvas_(&canvas), fonts_(fonts) {
  setObjectName(IsVertical() ? QStringLiteral("rverint") : QStringLiteral("rhor"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::PreventContextMenu);
  origin_ = Along(canvas.Origin());
  connect(&canvas, &PageCanvas::ViewMoved, this, &Ruler::Follow);
}

Ruler::~Ruler() = default;

// --- What it shows ---

void Ruler::ShowPlan(const RulerPlan& plan, int mode) {
  if (plan == plan_ && mode == mode_) return;
  plan_ = plan;
  mode_ = mode;
  if (!canvas_) return;
  origin_ = Along(canvas_->Origin());
  Fill(Visible());
  update();
}

RulerSpan Ruler::Visible() const {
  return {-origin_ * kUnitsPerPixel, (Length() - origin_) * kUnitsPerPixel};
}

void Ruler::FillWhereNeeded() {
  const RulerSpan seen = Visible();
  if (seen.From < filled_.From || seen.To > filled_.To) Fill(seen);
}

void Ruler::Fill(const RulerSpan& seen) {
  const double more = kViewsAhead * (seen.To - seen.From);
  filled_ = {seen.From - more, seen.To + more};
  parts_.clear();
  if (!IsVertical()) return AddPart(filled_, nullptr);
  for (const RulerPart& part : plan_.Parts)
    if (part.Top <= filled_.To && part.Top + part.Height >= filled_.From) AddPart(filled_, &part);
}

void Ruler::AddPart(const RulerSpan& span, const RulerPart* part) {
  const double start = part != nullptr ? part->Top : 0;
  DisplayList& list = parts_.emplace_back(std::make_unique<Part>(fonts_, images_, start))->list;
  const RulerSpan own{span.From - start, span.To - start};
  if (part != nullptr)
    BuildVerticalRuler(list, plan_, *part, mode_, own);
  else
    BuildHorizontalRuler(list, plan_, mode_, own);
}

std::size_t Ruler::Count() const {
  return std::accumulate(parts_.begin(), parts_.end(), std::size_t{0},
                         [](std::size_t sum, const auto& part) { return sum + part->list.Count(); });
}

// --- Along with the page ---

// The pixels that stay in sight are moved, and only what comes into it is painted.
void Ruler::Follow() {
  const double origin = Along(canvas_->Origin());
  const double by = origin - origin_;
  if (by == 0) return;
  origin_ = origin;
  FillWhereNeeded();
  if (by != std::round(by) || std::abs(by) >= Length()) return update();
  const int pixels = static_cast<int>(by);
  const QPoint step = IsVertical() ? QPoint(0, pixels) : QPoint(pixels, 0);
  scroll(step.x(), step.y());
  if (!marker_) return;
  update(MarkerArea());
  update(MarkerArea().translated(step));
}

void Ruler::resizeEvent(QResizeEvent*) {
  if (!canvas_) return;
  origin_ = Along(canvas_->Origin());
  FillWhereNeeded();
}

QRect Ruler::MarkerArea() const {
  return IsVertical() ? QRect(0, *marker_, width(), 1) : QRect(*marker_, 0, 1, height());
}

void Ruler::ShowMarker(std::optional<int> pixel) {
  if (pixel == marker_) return;
  if (marker_) update(MarkerArea());
  marker_ = pixel;
  if (marker_) update(MarkerArea());
}

void Ruler::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRectF exposed(event->rect());
  painter.setClipRect(exposed);
  painter.fillRect(exposed, palette().window());
  const QPointF origin = IsVertical() ? QPointF(0, origin_) : QPointF(origin_, 0);
  painter.translate(exposed.topLeft());
  for (const auto& part : parts_) {
    const QPointF start = IsVertical() ? QPointF(0, part->start) : QPointF(part->start, 0);
    const QPointF corner = (exposed.topLeft() - origin) * kUnitsPerPixel - start;
    part->list.Paint(painter, QRectF(corner, exposed.size() * kUnitsPerPixel));
  }
  painter.resetTransform();
  painter.fillRect(IsVertical() ? QRect(width() - 1, 0, 1, height()) : QRect(0, height() - 1, width(), 1),
                   kEdge);
  if (marker_) painter.fillRect(MarkerArea(), palette().highlight());
}

// --- The pointer ---

void Ruler::Tell(PagePointer::Action action, const QMouseEvent& event) {
  if (event.button() != Qt::RightButton || !canvas_) return;
  PagePointer pointer;
  pointer.action = action;
  pointer.button = event.button();
  pointer.buttons = event.buttons();
  pointer.modifiers = event.modifiers();
  pointer.canvas = canvas_->ToCanvas(canvas_->viewport()->mapFromGlobal(event.globalPosition()));
  Q_EMIT Pointer(pointer);
}

void Ruler::mousePressEvent(QMouseEvent* event) {
  Tell(PagePointer::Action::Press, *event);
}

void Ruler::mouseReleaseEvent(QMouseEvent* event) {
  Tell(PagePointer::Action::Release, *event);
}

void Ruler::mouseDoubleClickEvent(QMouseEvent* event) {
  // A quick second right click asks for the menu as the first one did.
  if (event->button() == Qt::RightButton) return Tell(PagePointer::Action::Press, *event);
  if (event->button() == Qt::LeftButton) Q_EMIT NextModeWanted();
}

}  // namespace kev
