// Writing a whole file.
#ifndef RECORD_FILE_REPLACEMENT_H_
#define RECORD_FILE_REPLACEMENT_H_

class QByteArray;
class QString;

namespace taviinputmanager {

// Makes `bytes` the content of the file. It is written beside its place and moved there when it is complete, so that a
// crash or a full disk on the way leaves the file that was there; where no file can be made beside it or moved there,
// and for what is no plain file, it is written in place.
//
// False, and nothing changed, when the file cannot be opened for writing. What becomes of the writing itself is not
// told.
bool ReplaceFile(const QString& path, const QByteArray& bytes);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_REPLACEMENT_H_
