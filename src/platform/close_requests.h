// SPDX-License-Identifier: MIT
// Hears a window manager ask a window to close. While a dialog is open the toolkit drops such a request
// before any widget learns of it.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QWidget>
#include <cstdint>
#include <functional>

namespace kev {

// Of X11; on other window systems it hears nothing. The request goes on its way all the same.
class CloseRequests final : public QAbstractNativeEventFilter {
 public:
  // The window outlives it.
  CloseRequests(const QWidget& window, std::function<void()> onRequest);

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  const QWidget& window_;
  std::function<void()> onRequest_;
  std::uint32_t deleteWindow_ = 0;
};

}  // namespace kev
