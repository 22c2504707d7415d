// The last steps of writing a file, which differ between systems. Each returns the system's error, or an empty string.
//
// Not bound to a thread.
#ifndef HOST_SYSTEM_FILE_COMMIT_H_
#define HOST_SYSTEM_FILE_COMMIT_H_

#include <QString>

class QFile;

namespace tavi {

// Flushes what was written to the disk. Does nothing for anything but a file on a disk.
QString FlushToDisk(QFile* file);

// Makes sure that an open file can grow to this size, without changing its content.
QString ReserveRoom(QFile* file, qint64 bytes);

// Atomically replaces `to` by `from`, which is in the same folder or next to it; the folder is flushed to the disk as
// well.
QString MoveOver(const QString& from, const QString& to);

// Gives `file` the permissions of `model` and, as far as allowed, its owner.
void TakeOwnership(const QString& model, const QString& file);

// Removes a folder and its files, also those that another thread has open; that thread cannot write to them afterwards.
// For a program that ends.
void RemoveFolderInUse(const QString& folder);

}  // namespace tavi

#endif  // HOST_SYSTEM_FILE_COMMIT_H_
