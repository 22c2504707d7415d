#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <QString>

#include "record/file_hold.h"

namespace taviinputmanager {

FileHandle HoldFile(const QString& path) {
  const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return kNoFile;
  flock(file, LOCK_SH | LOCK_NB);  // an exclusive lock of another program does not prevent a replay
  return file;
}

void ReleaseFile(FileHandle file) { close(static_cast<int>(file)); }

}  // namespace taviinputmanager
