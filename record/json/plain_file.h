// Files that can be read more than once.
#ifndef RECORD_JSON_PLAIN_FILE_H_
#define RECORD_JSON_PLAIN_FILE_H_

#include <QFile>
#include <QFileInfo>

namespace taviinputmanager {

// Opens a file for reading by large pieces. False for what cannot be read, and for a pipe or the like, which is not
// even opened: what is read from it is gone.
inline bool OpenPlainFile(QFile* file) {
  return QFileInfo(*file).isFile() && file->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

}  // namespace taviinputmanager

#endif  // RECORD_JSON_PLAIN_FILE_H_
