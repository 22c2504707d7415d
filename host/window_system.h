#ifndef HOST_WINDOW_SYSTEM_H_
#define HOST_WINDOW_SYSTEM_H_

#include <QStringList>

namespace tavi {

// Whether there is anything to open a window on. Without, making the application object would end the program with a
// crash. `arguments` are those of the program, in which Qt may be told what to use.
bool HasWindowSystem(const QStringList& arguments);

// Before the application object is made: it gets along without a window system, whatever the environment asks for, and
// does not tell of a session that has no folder for its sockets, since it opens none.
void DoWithoutWindowSystem();

}  // namespace tavi

#endif  // HOST_WINDOW_SYSTEM_H_
