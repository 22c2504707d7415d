#include "record/file_replacement.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

namespace taviinputmanager {
namespace {

bool WriteInPlace(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  file.write(bytes);
  return true;
}

// A file that is write-protected or held by someone refuses here, as it would refuse to be written in place. Opening it
// so changes nothing.
bool CanBeOpenedForWriting(const QString& path) {
  return QFile(path).open(QIODevice::Append | QIODevice::ExistingOnly);
}

}  // namespace

bool ReplaceFile(const QString& path, const QByteArray& bytes) {
  const QFileInfo present(path);
  if (present.exists() && !present.isFile()) return WriteInPlace(path, bytes);
  if (present.exists() && !CanBeOpenedForWriting(path)) return false;

  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return WriteInPlace(path, bytes);
  // A part is no content: without a commit it is dropped. (QSaveFile by itself takes a short write for a whole one.)
  if (file.write(bytes) != bytes.size() || !file.flush()) return true;
  // Only the move tells that there can be no such name, or that this file may not be moved away.
  return file.commit() || WriteInPlace(path, bytes);
}

}  // namespace taviinputmanager
