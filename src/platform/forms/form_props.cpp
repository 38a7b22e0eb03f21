// SPDX-License-Identifier: MIT
#include "platform/forms/form_props.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/display_list.h"
#include "platform/forms/property_panel.h"

#include <algorithm>

namespace kev {
namespace {

constexpr QSize kLeast(200, 160);

int Pixels(std::int32_t twips) {
  return static_cast<int>(twips / kUnitsPerPixel);
}

std::int32_t Twips(int pixels) {
  return static_cast<std::int32_t>(pixels * kUnitsPerPixel);
}

PanelArea AreaOfScreen(const QRect& screen) {
  return {Twips(screen.left()), Twips(screen.top()), Twips(screen.width()), Twips(screen.height())};
}

}  // namespace

FormPROPS::FormPROPS(const PanelArea& area, const QString& caption, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::WindowStaysOnTopHint) {
  setObjectName(QStringLiteral("FormPROPS"));
  setWindowTitle(caption);
  setMinimumSize(kLeast);
  PanelArea inside = area;
  // A place on a second screen is kept; one on a screen that is gone comes back to the window's.
  const QScreen* there = QGuiApplication::screenAt({Pixels(area.Left), Pixels(area.Top)});
  MovePanelIn(inside, AreaOfScreen((there != nullptr ? there : screen())->availableGeometry()));
  // The place is that of the frame, the size that of what it holds: both are told the same way.
  resize(Pixels(inside.Width), Pixels(inside.Height));
  move(Pixels(inside.Left), Pixels(inside.Top));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
}

void FormPROPS::SetPanel(PropertyPanel* panel) {
  if (panel->parentWidget() == this) return;
  layout()->addWidget(panel);
  panel->show();
  // The switches below the grid are not squeezed.
  setMinimumHeight(std::max(kLeast.height(), panel->minimumSizeHint().height()));
  // From one stay to the next the same title may be dragged beside the page, where nothing follows it.
  disconnect(&panel->Title(), nullptr, this, nullptr);
  connect(&panel->Title(), &PanelTitle::DragBegun, this, [this](const QPoint& at) { grip_ = at - pos(); });
  connect(&panel->Title(), &PanelTitle::Dragged, this, [this](const QPoint& at) {
    if (isVisible()) move(at - grip_);
  });
}

void FormPROPS::TellPlace() {
  if (!isVisible()) return;
  Q_EMIT Moved({Twips(x()), Twips(y()), Twips(width()), Twips(height())});
}

// The panel is closed, not the window: it comes back where it was. When the main window has closed, the
// program waits for this one.
void FormPROPS::closeEvent(QCloseEvent* event) {
  if (!parentWidget()->isVisible()) return event->accept();
  event->ignore();
  Q_EMIT CloseWanted();
}

void FormPROPS::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  TellPlace();
}

void FormPROPS::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  TellPlace();
}

}  // namespace kev
