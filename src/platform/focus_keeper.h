// SPDX-License-Identifier: MIT
// Gives a window the keyboard back that the toolkit does not know to be its own. When the window system hands
// the keyboard to a window while a dialog is open, the toolkit passes it on to the dialog; where that has
// gone before the window manager hears of it, typed letters still arrive and shortcuts never do.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QWidget>

namespace kev {

// Of X11; on other window systems it does nothing.
class FocusKeeper final : public QAbstractNativeEventFilter {
 public:
  // The window outlives it.
  explicit FocusKeeper(const QWidget& window);

  // To be called once no dialog is open any more.
  void Mend() const;

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  const QWidget& window_;
  bool hasKeyboard_ = false;
};

}  // namespace kev
