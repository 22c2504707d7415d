#ifndef HOST_SYSTEM_ROOMY_FOLDER_H_
#define HOST_SYSTEM_ROOMY_FOLDER_H_

#include <QString>

namespace tavi {

// A folder of the user's own for what has no place yet and must not be lost: the first that is on a disk with plenty of
// room, or else the one with the most. Empty where nothing can be written at all. Main thread.
QString RoomyFolder();

}  // namespace tavi

#endif  // HOST_SYSTEM_ROOMY_FOLDER_H_
