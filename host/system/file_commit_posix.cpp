#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "host/system/file_commit.h"

namespace tavi {

namespace {

constexpr mode_t kAllPermissions = 07777;
constexpr mode_t kPlainPermissions = 0777;  // without setuid and setgid

QString Problem(int error) { return qt_error_string(error); }

// Pipes, devices and some file systems do not support it.
bool IsUnsupported(int error) { return error == EINVAL || error == ENOTSUP || error == EROFS; }

// If the folder cannot be opened, the file is in place nevertheless.
void FlushFolder(const QString& folder) {
  const int file = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  fsync(file);
  close(file);
}

}  // namespace

QString FlushToDisk(QFile* file) {
  if (fsync(file->handle()) == 0 || IsUnsupported(errno)) return {};
  return Problem(errno);
}

// If the file system cannot reserve space, the C library writes a byte to each new block.
QString ReserveRoom(QFile* file, qint64 bytes) {
  const qint64 before = file->size();
  if (bytes <= before) return {};
  const int error = posix_fallocate(file->handle(), before, bytes - before);
  if (error == 0 || IsUnsupported(error)) return {};
  file->resize(before);
  return Problem(error);
}

QString MoveOver(const QString& from, const QString& to) {
  if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) return Problem(errno);
  FlushFolder(QFileInfo(to).absolutePath());
  return {};
}

// The owner first, because changing the owner removes permissions. Only root may give a file to another user.
void TakeOwnership(const QString& model, const QString& file) {
  struct stat of_model {};
  if (stat(QFile::encodeName(model).constData(), &of_model) != 0) return;
  const QByteArray name = QFile::encodeName(file);
  const bool is_same_owner = chown(name.constData(), of_model.st_uid, of_model.st_gid) == 0;
  chmod(name.constData(), of_model.st_mode & (is_same_owner ? kAllPermissions : kPlainPermissions));
}

void RemoveFolderInUse(const QString& folder) { QDir(folder).removeRecursively(); }

}  // namespace tavi
