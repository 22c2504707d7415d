#include <QDir>
#include <QFile>

#include "tests/support/system/data_folder.h"

namespace tavi {

namespace {

constexpr char kVariable[] = "XDG_DATA_HOME";

}  // namespace

DataFolder::DataFolder(const QString& place) : path_(place + QStringLiteral("/tavi")) {
  const bool was_set = qEnvironmentVariableIsSet(kVariable);
  leave_ = [was_set, before = qgetenv(kVariable)] { was_set ? qputenv(kVariable, before) : qunsetenv(kVariable); };
  qputenv(kVariable, QFile::encodeName(place));
}

QStringList DataFolder::NewFolders() const { return QDir(path_).entryList(QDir::Dirs | QDir::NoDotAndDotDot); }

}  // namespace tavi
