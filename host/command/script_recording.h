// A record of what a script and a keymap produce.
#ifndef HOST_COMMAND_SCRIPT_RECORDING_H_
#define HOST_COMMAND_SCRIPT_RECORDING_H_

#include <QString>

namespace tavi {

// From now on the lines for `display` are recorded, with the app name `package`. Main thread; the host must have been
// started.
void StartScriptRecording(const QString& package, int display);

// Writes the record. Returns the program's exit status; prints an error if it could not be written.
int SaveScriptRecording(const QString& package, const QString& file);

}  // namespace tavi

#endif  // HOST_COMMAND_SCRIPT_RECORDING_H_
