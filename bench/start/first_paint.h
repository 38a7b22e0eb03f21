// SPDX-License-Identifier: MIT
// Tells whoever measures that a widget stands painted on the screen, and ends the program.
#pragma once

#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <functional>
#include <utility>

namespace kev::bench {

class FirstPaint final : public QApplication {
 public:
  using QApplication::QApplication;

  // Paints of the widget count from the moment on that `ready` says so.
  void Await(QWidget& widget, std::function<bool()> ready) {
    widget_ = &widget;
    ready_ = std::move(ready);
  }

  // What asks the window to paint hands its pixels to the window system before it returns.
  bool notify(QObject* watched, QEvent* event) override {
    const QEvent::Type type = event->type();
    const bool handled = QApplication::notify(watched, event);
    if (type == QEvent::Paint && watched == widget_ && ready_()) painted_ = true;
    if (painted_ && (type == QEvent::UpdateRequest || type == QEvent::Expose)) Tell();
    return handled;
  }

 private:
  [[noreturn]] static void Tell() {
    constexpr char kPainted = 'p';
    const bool told = ::write(STDOUT_FILENO, &kPainted, 1) == 1;
    ::_exit(told ? 0 : 1);
  }

  const QWidget* widget_ = nullptr;
  std::function<bool()> ready_;
  bool painted_ = false;
};

}  // namespace kev::bench
