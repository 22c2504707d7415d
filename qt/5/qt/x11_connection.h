// The application's connection to the X server: Qt 5.
#ifndef QT_5_QT_X11_CONNECTION_H_
#define QT_5_QT_X11_CONNECTION_H_

#include <QX11Info>
#include <cstdint>

struct xcb_connection_t;

namespace qt {

// Null if the platform is not "xcb".
inline xcb_connection_t* X11Connection() { return QX11Info::connection(); }

// The root window of the application's screen.
inline std::uint32_t X11RootWindow() { return static_cast<std::uint32_t>(QX11Info::appRootWindow()); }

}  // namespace qt

#endif  // QT_5_QT_X11_CONNECTION_H_
