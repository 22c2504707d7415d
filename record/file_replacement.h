// Writing a whole file.
#ifndef RECORD_FILE_REPLACEMENT_H_
#define RECORD_FILE_REPLACEMENT_H_

class QByteArray;
class QString;

namespace taviinputmanager {

// Makes `bytes` the content of the file. A new file is made out of sight and moved to its place. One that is there
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
// False, and nothing changed, when the file cannot be opened for writing. What becomes of the writing itself is not
// told.
bool ReplaceFile(const QString& path, const QByteArray& bytes);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_REPLACEMENT_H_
