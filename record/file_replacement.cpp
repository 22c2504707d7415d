#include "record/file_replacement.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

namespace taviinputmanager {
namespace {

enum class Written { kRefused, kPart, kWhole };

Written WriteInPlace(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return Written::kRefused;
  return file.write(bytes) == bytes.size() && file.flush() ? Written::kWhole : Written::kPart;
}

// A file that is write-protected or held by someone refuses here, as it would refuse to be written in place. Opening it
// so changes nothing.
bool CanBeOpenedForWriting(const QString& path) {
  return QFile(path).open(QIODevice::Append | QIODevice::ExistingOnly);
}

}  // namespace

bool ReplaceFile(const QString& path, const QByteArray& bytes) {
  const auto write_in_place = [&] { return WriteInPlace(path, bytes) != Written::kRefused; };
  const QFileInfo present(path);
  if (present.exists() && !present.isFile()) return write_in_place();
  if (present.exists() && !CanBeOpenedForWriting(path)) return false;

  QSaveFile copy(path);
  if (!copy.open(QIODevice::WriteOnly)) return write_in_place();
  // A part is no content: without a commit it is dropped. (QSaveFile by itself takes a short write for a whole one.)
  if (copy.write(bytes) != bytes.size() || !copy.flush()) return true;
  if (present.exists() && WriteInPlace(path, bytes) == Written::kWhole) return true;
  // Only the move tells that there can be no such name, or that this file may not be moved away.
  return copy.commit() || write_in_place();
}

}  // namespace taviinputmanager
