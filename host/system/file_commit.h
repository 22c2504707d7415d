// The last steps of writing a file, which each system takes in its own way. Each returns what the system says went
// wrong, or nothing.
//
// Not bound to a thread.
#ifndef HOST_SYSTEM_FILE_COMMIT_H_
#define HOST_SYSTEM_FILE_COMMIT_H_

#include <QString>

class QFile;

namespace tavi {

// Has what was written brought to the disk. What is no file on a disk has nothing to be brought anywhere.
QString FlushToDisk(QFile* file);

// Makes sure that an open file can be written up to this size, and changes nothing that is in it.
QString ReserveRoom(QFile* file, qint64 bytes);

// Puts `from` in the place of `to`, at once, in the same folder or beside it; the folder is brought to the disk as
// well.
QString MoveOver(const QString& from, const QString& to);

// Gives `file` the permissions of `model`, and its owner as far as that is allowed.
void TakeOwnership(const QString& model, const QString& file);

}  // namespace tavi

#endif  // HOST_SYSTEM_FILE_COMMIT_H_
