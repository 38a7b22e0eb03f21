// SPDX-License-Identifier: MIT
// Tells whoever measures that a widget stands painted on the screen, and ends the program.
#pragma once

#include <unistd.h>

#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace kev::bench {

class FirstPaint final : public QObject {
 public:
  // Paints count from the moment on that `ready` says so.
  FirstPaint(QWidget& widget, std::function<bool()> ready) : ready_(std::move(ready)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    // The event after it finds the pixels handed to the window system.
    if (event->type() == QEvent::Paint && ready_()) QTimer::singleShot(0, [] { Tell(); });
    return false;
  }

 private:
  [[noreturn]] static void Tell() {
    constexpr char kPainted = 'p';
    const bool told = ::write(STDOUT_FILENO, &kPainted, 1) == 1;
    ::_exit(told ? 0 : 1);
  }

  std::function<bool()> ready_;
};

}  // namespace kev::bench
