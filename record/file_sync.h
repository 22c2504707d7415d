// Makes sure that files are on the disk, not only in memory.
#ifndef RECORD_FILE_SYNC_H_
#define RECORD_FILE_SYNC_H_

class QFileDevice;
class QString;

namespace taviinputmanager {

// Flushes the content of a file that is open for writing to the disk. False if the disk did not accept it; for a file
// that is not on a disk, such as a pipe, it does nothing.
bool SyncFile(const QFileDevice& file);
// The same for the name of a file, which belongs to the content of its folder. Does nothing on Windows, where the
// system does it.
void SyncName(const QString& path);

// Protects the file from RemoveUnclaimed, in all processes, as long as it is open: at the latest until the process
// ends, in whatever way.
void ClaimFile(const QFileDevice& file);
// Removes a file that no process claims. Leaves a file for which that is unknown.
void RemoveUnclaimed(const QString& path);

// Renames a file, replacing a file with that name. Returns false and changes nothing if that fails.
bool MoveOver(const QString& from, const QString& to);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_SYNC_H_
