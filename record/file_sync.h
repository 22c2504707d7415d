// Files on the disk itself, and not only in the system's memory.
#ifndef RECORD_FILE_SYNC_H_
#define RECORD_FILE_SYNC_H_

class QFileDevice;
class QString;

namespace taviinputmanager {

// Puts the content of a file that is open for writing onto the disk. False when the disk did not take it; a file that
// is on no disk, such as a pipe, has nothing to put there.
bool SyncFile(const QFileDevice& file);
// The same for the name of a file, which is in its folder's content. Nothing on Windows, where the system does it.
void SyncName(const QString& path);

// Keeps the file from RemoveUnclaimed, in all processes, for as long as it is open: at the latest until the process
// ends, however it does.
void ClaimFile(const QFileDevice& file);
// Removes a file that nobody claims. Leaves one of which that cannot be told.
void RemoveUnclaimed(const QString& path);

// Gives a file another name, in place of a file that has it. False, and nothing changed, where that cannot be.
bool MoveOver(const QString& from, const QString& to);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_SYNC_H_
