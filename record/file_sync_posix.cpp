#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "record/file_sync.h"

namespace taviinputmanager {

bool SyncFile(const QFileDevice& file) { return fsync(file.handle()) == 0 || errno == EINVAL; }

void SyncName(const QString& path) {
  const QByteArray name = QFile::encodeName(QFileInfo(path).absolutePath());
  const int folder = open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;  // a file may be writable but not readable
  fsync(folder);
  close(folder);
}

void ClaimFile(const QFileDevice& file) { flock(file.handle(), LOCK_EX); }

void RemoveUnclaimed(const QString& path) {
  QFile file(path);
  if (file.open(QIODevice::ReadOnly) && flock(file.handle(), LOCK_EX | LOCK_NB) == 0) QFile::remove(path);
}

bool MoveOver(const QString& from, const QString& to) {
  return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

}  // namespace taviinputmanager
