#ifndef HOST_SYSTEM_ROOMY_FOLDER_H_
#define HOST_SYSTEM_ROOMY_FOLDER_H_

#include <QString>

namespace tavi {

// A folder of the user for data that has no file yet and must not be lost: the first on a disk with plenty of space,
// otherwise the one with the most. Empty if nothing can be written at all. Main thread.
QString RoomyFolder();

}  // namespace tavi

#endif  // HOST_SYSTEM_ROOMY_FOLDER_H_
