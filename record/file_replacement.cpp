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
  file.setDirectWriteFallback(true);
  if (!file.open(QIODevice::WriteOnly)) return false;
  // A part is no content: without a commit it is dropped. (QSaveFile by itself takes a short write for a whole one.)
  if (file.write(bytes) != bytes.size() || !file.flush()) return true;
  file.commit();
  return true;
}

}  // namespace taviinputmanager
