#include "host/system/plain_file.h"

#include <cstring>

#include <QFile>
#include <QFileInfo>

namespace tavi {

QString ErrorText(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

QString NoFileProblem(const QString& name) {
  const QFileInfo info(name);
  if (info.isDir()) return QStringLiteral("it is a folder");
  return info.exists() && !info.isFile() ? QStringLiteral("not a plain file") : QString();
}

std::optional<QByteArray> ReadPlainFile(const QString& name, qint64 most) {
  QFile file(name);
  if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray content = file.read(most + 1);
  return content.size() <= most ? std::make_optional(content) : std::nullopt;
}

}  // namespace tavi
