// Writing a whole file.
#ifndef RECORD_FILE_REPLACEMENT_H_
#define RECORD_FILE_REPLACEMENT_H_

#include <functional>

class QByteArray;
class QIODevice;
class QString;

namespace taviinputmanager {

// Writes the content of a file. False when it cannot be written to its end. Asked again, it writes the same.
using FileContent = std::function<bool(QIODevice* target)>;

// Makes this the content of the file. A new file is made out of sight and moved to its place. One that is there
// stays the same file, for whoever holds it open, and is written over; whatever happens meanwhile, to the program or to
// the machine, the file is whole, or a whole copy is beside it:
//
//   copy complete, on the disk    named "FILE.tavi-copy-" and six letters, for its owner alone
//   file cut, written             only the copy is whole
//   file on the disk              copy removed, and with it those that programs left which died here
//
// Every call has a copy of its own, so that several processes and threads can write the same file: one of them is last.
// Of a link, all this holds for the file behind it. A full disk leaves what was there. Where no copy can be made, as in
// a folder that is write-protected, and for what is no plain file, it is written in place alone.
//
// The content may be made from files, this one among them: where the file is cut, the content has been asked already,
// and the copy is what is written. Where there is no copy, it is in memory then. What fails in making it leaves what
// was there, as a full disk does.
//
// False, and nothing changed, when the file cannot be opened for writing. What becomes of the writing itself is not
// told.
bool ReplaceFile(const QString& path, const FileContent& content);
bool ReplaceFile(const QString& path, const QByteArray& bytes);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_REPLACEMENT_H_
