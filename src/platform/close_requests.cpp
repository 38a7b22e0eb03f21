// SPDX-License-Identifier: MIT
#include "platform/close_requests.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace kev {

namespace {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

// 0 where there is no X server. The platform without a display offers the interface as well, with nothing
// behind it.
std::uint32_t AtomOf(std::string_view name) {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return 0;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) return 0;
  const auto cookie =
      xcb_intern_atom(x11->connection(), 0, static_cast<std::uint16_t>(name.size()), name.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(
      xcb_intern_atom_reply(x11->connection(), cookie, nullptr));
  return reply ? reply->atom : 0;
}

}  // namespace

CloseRequests::CloseRequests(const QWidget& window, std::function<void()> onRequest)
    : window_(window), onRequest_(std::move(onRequest)), deleteWindow_(AtomOf("WM_DELETE_WINDOW")) {
  if (deleteWindow_ != 0) qGuiApp->installNativeEventFilter(this);
}

bool CloseRequests::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
  if (eventType != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_client_message_event_t*>(message);
  // The highest bit tells only who sent it.
  if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE) return false;
  if (event->window == window_.internalWinId() && event->data.data32[0] == deleteWindow_) onRequest_();
  return false;
}

}  // namespace kev
