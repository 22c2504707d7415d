#include "host/system/whole_file.h"

#include <cerrno>
#include <functional>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "host/system/file_commit.h"
#include "host/system/plain_file.h"
#include "host/system/terminal.h"

namespace tavi {

namespace {

constexpr int kMostLinks = 40;  // in sequence, the limit of most systems
constexpr qint64 kPieceBytes = 1 << 16;

// The file itself, which may not exist yet. The target of a name such as /dev/stdout may have no name of its own.
QString BehindLinks(const QString& name) {
  QFileInfo info(name);
  if (info.exists()) return info.isFile() ? info.canonicalFilePath() : info.absoluteFilePath();
  for (int i = 0; i < kMostLinks && info.isSymLink(); ++i) info.setFile(info.symLinkTarget());
  return info.absoluteFilePath();
}

// Unbuffered, so that errors are reported at once. A disk that accepts part of a write reports the error at the next
// one.
constexpr QIODevice::OpenMode kForWriting = QIODevice::WriteOnly | QIODevice::Unbuffered;

QString Write(const QByteArray& bytes, QFile* file) {
  qint64 written = 0;
  while (written < bytes.size()) {
    const qint64 count = file->write(bytes.constData() + written, bytes.size() - written);
    if (count <= 0) return file->errorString();
    written += count;
  }
  return {};
}

QString CopyContent(QFile* from, QFile* to) {
  QString problem;
  while (problem.isEmpty() && !from->atEnd()) {
    const QByteArray piece = from->read(kPieceBytes);
    problem = piece.isEmpty() ? from->errorString() : Write(piece, to);
  }
  return problem;
}

// The excess content is written last, so that a full disk is detected before anything changes.
QString WriteOverFile(QFile* from, const QString& place) {
  QFile file(place);
  if (!file.open(kForWriting | QIODevice::ReadOnly)) return file.errorString();
  QString problem = ReserveRoom(&file, from->size());
  if (problem.isEmpty()) problem = CopyContent(from, &file);
  if (problem.isEmpty() && !file.resize(from->size())) problem = file.errorString();
  return problem.isEmpty() ? FlushToDisk(&file) : problem;
}

// A device or a pipe has no previous content.
QString WriteToDevice(QFile* from, const QString& place) {
  QFile device(place);
  if (!device.open(kForWriting)) return device.errorString();
  const QString problem = CopyContent(from, &device);
  return problem.isEmpty() ? FlushToDisk(&device) : problem;
}

QString WriteOver(const QString& from_name, const QString& place) {
  QFile from(from_name);
  if (!from.open(QIODevice::ReadOnly)) return from.errorString();
  return QFileInfo(place).isFile() ? WriteOverFile(&from, place) : WriteToDevice(&from, place);
}

// `make` writes the content and returns the error.
QString MakeWholeFile(const QString& target, const std::function<QString(QFile*)>& make) {
  WholeFile whole(target);
  if (!whole.Problem().isEmpty()) return whole.Problem();
  QFile file(whole.WorkingName());
  if (!file.open(kForWriting)) return file.errorString();
  const QString problem = make(&file);
  if (!problem.isEmpty()) return problem;
  file.close();
  whole.Keep();
  return whole.Problem();
}

}  // namespace

WholeFile::WholeFile(const QString& target) : target_(BehindLinks(target)) {
  FindPlace();
  if (problem_.isEmpty()) problem_ = MakeFolder();
}

WholeFile::~WholeFile() {
  if (!folder_) return;
  folder_.reset();
  SetCleanUp({});
}

// The error that opening the file for writing would give.
void WholeFile::FindPlace() {
  const QFileInfo info(target_);
  if (info.isDir()) {
    problem_ = NoFileProblem(target_);
  } else if (!info.dir().exists()) {
    problem_ = ErrorText(ENOENT);
  } else if (info.exists() && !info.isWritable()) {
    problem_ = ErrorText(EACCES);
  }
}

QString WholeFile::MakeFolder() {
  const QFileInfo info(target_);
  if (!info.exists() || info.isFile()) {
    folder_ = std::make_unique<QTemporaryDir>(info.absolutePath() + QStringLiteral("/.tavi-XXXXXX"));
    is_beside_ = folder_->isValid();
  }
  if (!is_beside_) {
    if (!info.exists()) return folder_->errorString();
    folder_ = std::make_unique<QTemporaryDir>();
  }
  if (!folder_->isValid()) return folder_->errorString();
  working_name_ = folder_->filePath(info.fileName());
  SetCleanUp([path = folder_->path()] { RemoveFolderInUse(path); });
  return {};
}

bool WholeFile::Keep() {
  if (problem_.isEmpty()) problem_ = Place();
  return problem_.isEmpty();
}

// For example, a file that is a mount point cannot be replaced.
QString WholeFile::Place() {
  if (!is_beside_) return WriteOver(working_name_, target_);
  QFile made(working_name_);
  if (!made.open(QIODevice::ReadWrite)) return made.errorString();
  const QString problem = FlushToDisk(&made);
  made.close();  // some systems do not move open files
  if (!problem.isEmpty()) return problem;
  const bool is_replacing = QFileInfo::exists(target_);
  if (is_replacing) TakeOwnership(target_, working_name_);
  const QString refusal = MoveOver(working_name_, target_);
  return refusal.isEmpty() || !is_replacing ? refusal : WriteOver(working_name_, target_);
}

QString WriteWholeFile(const QString& target, const QByteArray& bytes) {
  return MakeWholeFile(target, [&bytes](QFile* file) { return Write(bytes, file); });
}

QString CopyWholeFile(const QString& from, const QString& target) {
  QFile source(from);
  if (!source.open(QIODevice::ReadOnly)) return source.errorString();
  return MakeWholeFile(target, [&source](QFile* file) { return CopyContent(&source, file); });
}

QString TryWholeFile(const QString& target) { return WholeFile(target).Problem(); }

}  // namespace tavi
