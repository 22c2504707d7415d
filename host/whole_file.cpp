#include "host/whole_file.h"

#include <cstdio>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "host/terminal.h"

namespace tavi {

namespace {

bool CanBeReplaced(const QFileInfo& target) {
  if (target.isSymLink()) return false;
  return !target.exists() || (target.isFile() && target.isWritable());
}

}  // namespace

WholeFile::WholeFile(const QString& target) : target_(target), working_name_(target) {
  const QFileInfo info(target);
  if (!CanBeReplaced(info)) return;
  auto folder = std::make_unique<QTemporaryDir>(info.absolutePath() + QStringLiteral("/.tavi-XXXXXX"));
  if (!folder->isValid()) return;
  working_name_ = folder->filePath(info.fileName());
  SetCleanUp([path = folder->path()] { QDir(path).removeRecursively(); });
  folder_ = std::move(folder);
}

WholeFile::~WholeFile() {
  if (!folder_) return;
  folder_.reset();
  SetCleanUp({});
}

// By the system's move, which replaces what is there.
bool WholeFile::Keep() {
  if (!folder_) return true;
  if (QFileInfo::exists(target_)) QFile::setPermissions(working_name_, QFile::permissions(target_));
  const QByteArray from = QFile::encodeName(working_name_);
  const QByteArray to = QFile::encodeName(target_);
  if (std::rename(from.constData(), to.constData()) == 0) return true;
  return QFile::remove(target_) && QFile::rename(working_name_, target_);  // where a move replaces nothing
}

}  // namespace tavi
