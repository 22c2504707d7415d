// A record of what a script makes of a keymap.
#ifndef HOST_COMMAND_SCRIPT_RECORDING_H_
#define HOST_COMMAND_SCRIPT_RECORDING_H_

#include <QString>

namespace tavi {

// From here on what goes to `display` is recorded, as an app of the name `package`. Main thread; the host was started.
void StartScriptRecording(const QString& package, int display);

// Writes the record. Returns the program's exit status; tells standard error when there is no file.
int SaveScriptRecording(const QString& package, const QString& file);

}  // namespace tavi

#endif  // HOST_COMMAND_SCRIPT_RECORDING_H_
