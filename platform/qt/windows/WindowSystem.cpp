#include "platform/qt/windows/WindowSystem.h"

#include <QGuiApplication>
#include <QWindow>

#ifdef VELMORA_X11
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#endif

namespace qt {

namespace {

#ifdef VELMORA_X11
/// The library's own allocations.
struct Free {
  void operator()(void* reply) const {
    std::free(reply);  // NOLINT(cppcoreguidelines-no-malloc)
  }
};
template <class Reply>
using Replied = std::unique_ptr<Reply, Free>;

/// None under another window system.
xcb_connection_t* fncServer() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_window_t fncRoot(xcb_connection_t& server) {
  return xcb_setup_roots_iterator(xcb_get_setup(&server)).data->root;
}

xcb_atom_t fncAtom(xcb_connection_t& server, std::string_view name) {
  const auto asked =
      xcb_intern_atom(&server, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Replied<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(&server, asked, nullptr));
  return reply != nullptr ? reply->atom : xcb_atom_t{};
}

/// Asks the window manager. The toolkit would make a window anew to change this, and lose its place
/// by the borders.
bool fncAskManager(WId window, bool blnTopmost) {
  xcb_connection_t* const connection = fncServer();
  if (connection == nullptr) {
    return false;
  }
  xcb_connection_t& server = *connection;
  xcb_client_message_event_t ask{};
  ask.response_type = XCB_CLIENT_MESSAGE;
  ask.format = 32;
  ask.window = static_cast<xcb_window_t>(window);
  ask.type = fncAtom(server, "_NET_WM_STATE");
  ask.data.data32[0] = blnTopmost ? 1 : 0;
  ask.data.data32[1] = fncAtom(server, "_NET_WM_STATE_ABOVE");
  ask.data.data32[3] = 1;  // Asked by a program.
  xcb_send_event(&server, 0, fncRoot(server),
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&ask));
  xcb_flush(&server);
  return true;
}

bool fncServerHeld() {
  xcb_connection_t* const server = fncServer();
  if (server == nullptr) {
    return false;
  }
  const auto asked = xcb_query_pointer(server, fncRoot(*server));
  const Replied<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(server, asked, nullptr));
  return reply != nullptr && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}
#else
bool fncAskManager(WId /*window*/, bool /*blnTopmost*/) { return false; }
bool fncServerHeld() { return false; }
#endif

}  // namespace

void prcSetTopmost(QWidget& shell, bool blnTopmost) {
  if (!fncAskManager(shell.winId(), blnTopmost)) {
    shell.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, blnTopmost);
  }
}

bool fncButtonHeld() {
  return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton) || fncServerHeld();
}

}  // namespace qt
