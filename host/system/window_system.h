#ifndef HOST_SYSTEM_WINDOW_SYSTEM_H_
#define HOST_SYSTEM_WINDOW_SYSTEM_H_

#include <QStringList>

namespace tavi {

// Whether there is anything to open a window on. Without, making the application object would end the program with a
// crash. `arguments` are those of the program, in which Qt may be told what to use.
bool HasWindowSystem(const QStringList& arguments);

// Before the application object is made: it gets along without a window system, whatever the environment asks for, and
// does not tell of a session that has no folder for its sockets, since it opens none.
void DoWithoutWindowSystem();

// Names the system's folder of fonts, where a program without a window system would find none.
void NameFontFolder();

// What windows are on, as far as it matters to who holds a pointer.
enum class WindowSystem {
  kXWayland,  // an X server that is itself a client of Wayland
  kWayland,
  kOther,
};

// Of the application, which is made already.
WindowSystem CurrentWindowSystem();

// `platform` is Qt's name; the other two are the values of XDG_SESSION_TYPE and WAYLAND_DISPLAY.
WindowSystem WindowSystemOf(const QString& platform, const QString& session_type, const QString& wayland_display);

}  // namespace tavi

#endif  // HOST_SYSTEM_WINDOW_SYSTEM_H_
