// The application's connection to the X server: Qt 6.
#ifndef QT_6_QT_X11_CONNECTION_H_
#define QT_6_QT_X11_CONNECTION_H_

#include <cstdint>
#include <xcb/xcb.h>

#include <QGuiApplication>

namespace qt {

// Null if the platform is not "xcb".
inline xcb_connection_t* X11Connection() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

// The root window of the application's screen: of the first one, because Qt does not expose a second.
inline std::uint32_t X11RootWindow() { return xcb_setup_roots_iterator(xcb_get_setup(X11Connection())).data->root; }

}  // namespace qt

#endif  // QT_6_QT_X11_CONNECTION_H_
