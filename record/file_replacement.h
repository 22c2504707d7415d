// Writing a whole file.
#ifndef RECORD_FILE_REPLACEMENT_H_
#define RECORD_FILE_REPLACEMENT_H_

#include <functional>

class QByteArray;
class QIODevice;
class QString;

namespace taviinputmanager {

// Writes the content of a file. Returns false if it cannot be written completely. If called again, it writes the same
// content.
using FileContent = std::function<bool(QIODevice* target)>;

// Replaces the content of a file. A new file is created under another name and moved to its target. An existing file
// remains the same file, for programs that have it open, and is overwritten; whatever happens to the program or the
// machine meanwhile, either the file is complete, or a complete copy is beside it:
//
//   copy complete, on the disk    named "FILE.tavi-copy-" and six letters, for its owner alone
//   file cut, written             only the copy is whole
//   file on the disk              copy removed, and with it those that programs left which died here
//
// Every call has a copy of its own, so that several processes and threads can write the same file: one of them is last.
// A link is followed to its target. On a full disk, the existing file stays unchanged. If no copy can be made, for
// example in a write-protected folder, and for targets that are not plain files, the target is only written in place.
//
// The content may be read from other files, or from this one: when the file is truncated, the content has been produced
// already, and the copy is what is written. Without a copy, it is in memory then. An error in producing it leaves the
// existing file unchanged, like a full disk.
//
// Returns false and changes nothing if the file cannot be opened for writing. Errors of the writing itself are not
// reported.
bool ReplaceContent(const QString& path, const FileContent& content);
bool ReplaceContent(const QString& path, const QByteArray& bytes);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_REPLACEMENT_H_
