#include "host/plain_file.h"

#include <QFile>
#include <QFileInfo>

namespace tavi {

std::optional<QByteArray> ReadPlainFile(const QString& name, qint64 most) {
  QFile file(name);
  if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray content = file.read(most + 1);
  return content.size() <= most ? std::make_optional(content) : std::nullopt;
}

}  // namespace tavi
