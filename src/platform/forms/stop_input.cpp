// SPDX-License-Identifier: MIT
#include "platform/forms/stop_input.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

namespace kev {

namespace {

bool IsMouse(QEvent::Type type) {
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
         type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

bool IsOtherInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

bool IsEscape(const QEvent& event) {
  return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

StopInput::StopInput(QAbstractButton& button) : button_(button) {}

void StopInput::ProcessEvents() {
  QCoreApplication::instance()->installEventFilter(this);
  QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
  QCoreApplication::instance()->removeEventFilter(this);
}

void StopInput::Finish() {
  if (closing_) QTimer::singleShot(0, closing_, &QWidget::close);
  closing_.clear();
}

bool StopInput::eventFilter(QObject* receiver, QEvent* event) {
  if (IsMouse(event->type())) return !IsForButton(receiver, *event);
  if (event->type() == QEvent::Close && receiver->isWidgetType()) {
    closing_ = static_cast<QWidget*>(receiver);
    event->ignore();
    return true;
  }
  if (!IsOtherInput(event->type())) return false;
  // Each key comes to the window first.
  if (receiver->isWindowType() && IsEscape(*event)) button_.click();
  return true;
}

// The window hands a press on to what lies below it, and may move the focus before that.
bool StopInput::IsForButton(QObject* receiver, const QEvent& event) const {
  if (!button_.isVisible() || !button_.isEnabled()) return false;
  if (!receiver->isWindowType()) return receiver == &button_;
  if (button_.isDown()) return true;
  const QPoint global = static_cast<const QMouseEvent&>(event).globalPosition().toPoint();
  return button_.rect().contains(button_.mapFromGlobal(global));
}

}  // namespace kev
