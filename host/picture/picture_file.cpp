#include "host/picture/picture_file.h"

#include <QFileInfo>
#include <QStringList>

#include "host/system/console.h"
#include "host/system/whole_file.h"

namespace tavi {

namespace {

// Errors there are reported at the end of the program.
int WriteToOutput(const QByteArray& picture) {
  PrintBytes(picture);
  return FlushOutput().isEmpty() ? kExitDone : kExitProblem;
}

}  // namespace

int WritePicture(const QString& command, const QString& name, const QByteArray& picture) {
  if (name == QLatin1String(kStandardStream)) return WriteToOutput(picture);
  const QString problem = WriteWholeFile(name, picture);
  if (problem.isEmpty()) return kExitDone;
  PrintError(QStringLiteral("tavi %1: cannot write %2: %3\n").arg(command, name, problem));
  return kExitProblem;
}

QString SvgNameProblem(const QString& option, const QString& name) {
  static const QStringList others = {"png", "jpg", "jpeg", "gif", "bmp", "webp", "tif", "tiff", "pdf", "ps", "eps"};
  if (!others.contains(QFileInfo(name).suffix().toLower())) return {};
  return QStringLiteral("%1 draws only SVG and needs a name that ends in .svg, not \"%2\"").arg(option, name);
}

}  // namespace tavi
