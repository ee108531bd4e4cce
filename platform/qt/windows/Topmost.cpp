#include "platform/qt/windows/Topmost.h"

#include <QGuiApplication>
#include <QWindow>

#ifdef VELMORA_X11
#include <xcb/xcb.h>

#include <string_view>
#endif

namespace qt {

namespace {

#ifdef VELMORA_X11
xcb_atom_t fncAtom(xcb_connection_t& server, std::string_view name) {
  const auto asked =
      xcb_intern_atom(&server, 0, static_cast<std::uint16_t>(name.size()), name.data());
  xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(&server, asked, nullptr);
  const xcb_atom_t atom = reply != nullptr ? reply->atom : xcb_atom_t{};
  std::free(reply);  // NOLINT(cppcoreguidelines-no-malloc): the library's own allocation.
  return atom;
}

/// Asks the window manager. The toolkit would make a window anew to change this, and lose its place
/// by the borders.
bool fncAskManager(WId window, bool blnTopmost) {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) {
    return false;
  }
  xcb_connection_t& server = *x11->connection();
  xcb_client_message_event_t ask{};
  ask.response_type = XCB_CLIENT_MESSAGE;
  ask.format = 32;
  ask.window = static_cast<xcb_window_t>(window);
  ask.type = fncAtom(server, "_NET_WM_STATE");
  ask.data.data32[0] = blnTopmost ? 1 : 0;
  ask.data.data32[1] = fncAtom(server, "_NET_WM_STATE_ABOVE");
  ask.data.data32[3] = 1;  // Asked by a program.
  xcb_send_event(&server, 0, xcb_setup_roots_iterator(xcb_get_setup(&server)).data->root,
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&ask));
  xcb_flush(&server);
  return true;
}
#else
bool fncAskManager(WId /*window*/, bool /*blnTopmost*/) { return false; }
#endif

}  // namespace

void prcSetTopmost(QWidget& shell, bool blnTopmost) {
  if (!fncAskManager(shell.winId(), blnTopmost)) {
    shell.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, blnTopmost);
  }
}

}  // namespace qt
