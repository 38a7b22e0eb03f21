// SPDX-License-Identifier: MIT
#include "platform/forms/line_redo_key.h"

#include <QEvent>
#include <QKeyEvent>
#include <QObject>

namespace kev {
namespace {

class RedoKeyFilter final : public QObject {
 public:
  RedoKeyFilter(QWidget& focused, QLineEdit& line) : QObject(&line), line_(line) {
    focused.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool overrides = event->type() == QEvent::ShortcutOverride;
    if ((!overrides && event->type() != QEvent::KeyPress) || !IsRedo(*static_cast<QKeyEvent*>(event)))
      return QObject::eventFilter(watched, event);
    if (!overrides && !line_.isReadOnly()) line_.redo();
    event->accept();
    return true;
  }

 private:
  static bool IsRedo(const QKeyEvent& event) {
    return event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
  }

  QLineEdit& line_;
};

}  // namespace

void TakeRedoKey(QWidget& focused, QLineEdit& line) {
  new RedoKeyFilter(focused, line);
}

}  // namespace kev
