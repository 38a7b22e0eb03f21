// SPDX-License-Identifier: MIT
#include "platform/focus_keeper.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QGuiApplication>
#include <QWindow>
#include <algorithm>

namespace kev {

namespace {

xcb_connection_t* Connection() {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return nullptr;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

}  // namespace

FocusKeeper::FocusKeeper(const QWidget& window) : window_(window) {
  if (Connection() != nullptr) qGuiApp->installNativeEventFilter(this);
}

bool FocusKeeper::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
  if (eventType != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_focus_in_event_t*>(message);
  // The highest bit tells only who sent it.
  const int type = event->response_type & 0x7F;
  if (type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT) return false;
  // A grab of the keyboard ends as it began, and that the pointer is over the window means nothing.
  const bool isPassing = event->mode == XCB_NOTIFY_MODE_GRAB || event->mode == XCB_NOTIFY_MODE_UNGRAB ||
                         event->detail == XCB_NOTIFY_DETAIL_POINTER;
  if (!isPassing && event->event == window_.internalWinId()) hasKeyboard_ = type == XCB_FOCUS_IN;
  return false;
}

// What the window system has told the toolkit is told once more.
void FocusKeeper::Mend() const {
  if (!hasKeyboard_ || QApplication::activeModalWidget() != nullptr) return;
  if (QGuiApplication::focusWindow() == window_.windowHandle()) return;
  xcb_focus_in_event_t event{};
  event.response_type = XCB_FOCUS_IN;
  event.detail = XCB_NOTIFY_DETAIL_NONLINEAR;
  event.event = static_cast<xcb_window_t>(window_.internalWinId());
  event.mode = XCB_NOTIFY_MODE_NORMAL;
  // To whoever has made the window. An event of the protocol has 32 bytes.
  char bytes[32] = {};
  static_assert(sizeof event <= sizeof bytes);
  std::copy_n(reinterpret_cast<const char*>(&event), sizeof event, bytes);
  xcb_send_event(Connection(), 0, event.event, XCB_EVENT_MASK_NO_EVENT, bytes);
  xcb_flush(Connection());
}

}  // namespace kev
