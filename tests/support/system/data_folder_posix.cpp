#include <QDir>
#include <QFile>

#include "tests/support/system/data_folder.h"

namespace tavi {

DataFolder::DataFolder(const QString& place) : leave_([] {}), path_(place + QStringLiteral("/tavi")) {
  qputenv("XDG_DATA_HOME", QFile::encodeName(place));
}

QStringList DataFolder::NewFolders() const { return QDir(path_).entryList(QDir::Dirs | QDir::NoDotAndDotDot); }

}  // namespace tavi
