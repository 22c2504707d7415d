#include "host/picture/picture_file.h"

#include <QSaveFile>

#include "host/command_line.h"

namespace tavi {

int WritePicture(const QString& command, const QString& name, const QByteArray& picture) {
  QSaveFile file(name);
  const bool is_written = file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.commit();
  if (is_written) return kExitDone;
  PrintError(QStringLiteral("tavi %1: cannot write %2: %3\n").arg(command, name, file.errorString()));
  return kExitProblem;
}

}  // namespace tavi
