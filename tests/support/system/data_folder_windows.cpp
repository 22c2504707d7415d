#include <windows.h>

#include <QDir>
#include <QStandardPaths>

#include "tests/support/system/data_folder.h"

namespace tavi {

namespace {

QStringList FoldersIn(const QString& path) { return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot); }

}  // namespace

DataFolder::DataFolder(const QString& /*place*/)
    : path_(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/tavi")) {
  const HANDLE turn = CreateMutexW(nullptr, FALSE, L"tavi-tests-data-folder");
  WaitForSingleObject(turn, INFINITE);
  const bool was_there = QDir(path_).exists();
  leave_ = [this, turn, was_there] {
    for (const QString& folder : NewFolders()) QDir(path_ + QLatin1Char('/') + folder).removeRecursively();
    if (!was_there) QDir().rmdir(path_);
    ReleaseMutex(turn);
    CloseHandle(turn);
  };
  before_ = FoldersIn(path_);
}

QStringList DataFolder::NewFolders() const {
  QStringList folders = FoldersIn(path_);
  for (const QString& old : before_) folders.removeOne(old);
  return folders;
}

}  // namespace tavi
