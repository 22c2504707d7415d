// Writing a whole file.
#ifndef RECORD_FILE_REPLACEMENT_H_
#define RECORD_FILE_REPLACEMENT_H_

class QByteArray;
class QString;

namespace taviinputmanager {

// Makes `bytes` the content of the file. A copy is written beside it first: a new file is that copy, moved to its
// place; one that is there stays the same file, for whoever holds it open, and is written over once the copy is
// complete. So a full disk leaves what was there, and a crash leaves the old content, or the copy. Where no copy can be
// made or moved, and for what is no plain file, it is written in place alone.
//
// False, and nothing changed, when the file cannot be opened for writing. What becomes of the writing itself is not
// told.
bool ReplaceFile(const QString& path, const QByteArray& bytes);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_REPLACEMENT_H_
