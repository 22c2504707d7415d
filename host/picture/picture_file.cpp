#include "host/picture/picture_file.h"

#include <QFile>

#include "host/command_line.h"
#include "host/whole_file.h"

namespace tavi {

int WritePicture(const QString& command, const QString& name, const QByteArray& picture) {
  WholeFile whole(name);
  QFile file(whole.WorkingName());
  const bool is_written =
      file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.flush() && whole.Keep();
  if (is_written) return kExitDone;
  PrintError(QStringLiteral("tavi %1: cannot write %2: %3\n").arg(command, name, file.errorString()));
  return kExitProblem;
}

}  // namespace tavi
