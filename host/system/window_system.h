#ifndef HOST_SYSTEM_WINDOW_SYSTEM_H_
#define HOST_SYSTEM_WINDOW_SYSTEM_H_

#include <QStringList>

namespace tavi {

// Whether a window can be opened. Without a window system, creating the application object would crash the program.
// `arguments` are the program's, which may select Qt's platform.
bool HasWindowSystem(const QStringList& arguments);

// Call it before creating the application object, which then works without a window system, whatever the environment
// says, and does not complain about a session without a folder for its sockets, because it opens none.
void DoWithoutWindowSystem();

// Sets the system's font folder, if a program without a window system would find none.
void NameFontFolder();

// The window systems that differ in how a program can hold the pointer.
enum class WindowSystem {
  kXWayland,  // an X server that is itself a client of Wayland
  kWayland,
  kOther,
};

// Of the application, which must exist.
WindowSystem CurrentWindowSystem();

// `platform` is Qt's name; the other two are the values of XDG_SESSION_TYPE and WAYLAND_DISPLAY.
WindowSystem WindowSystemOf(const QString& platform, const QString& session_type, const QString& wayland_display);

}  // namespace tavi

#endif  // HOST_SYSTEM_WINDOW_SYSTEM_H_
