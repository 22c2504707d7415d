// Files that can be read more than once.
#ifndef RECORD_JSON_PLAIN_FILE_H_
#define RECORD_JSON_PLAIN_FILE_H_

#include <QFile>
#include <QFileInfo>

namespace taviinputmanager {

// Opens a file for reading in large chunks. False for what cannot be read, and for pipes and the like, which are not
// even opened, because what is read from them is lost.
inline bool OpenPlainFile(QFile* file) {
  return QFileInfo(*file).isFile() && file->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

}  // namespace taviinputmanager

#endif  // RECORD_JSON_PLAIN_FILE_H_
