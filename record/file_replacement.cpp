#include "record/file_replacement.h"

#include <memory>

#include <QBuffer>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>
#include <QTemporaryFile>

#include "record/file_sync.h"

namespace taviinputmanager {
namespace {

constexpr qint64 kChunkBytes = 256 * 1024;
constexpr int kCopyLetters = 6;  // random letters in the name of a copy

QString CopyNameStart(const QString& file) { return file + QLatin1String(".tavi-copy-"); }

enum class Written { kRefused, kPart, kWhole };

bool WriteAll(QFileDevice* file, const FileContent& content) {
  return content(file) && file->flush() && SyncFile(*file);
}

// Another program may write the file at the same time: excess content is then not ours.
Written WriteInPlace(const QString& path, const FileContent& content) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return Written::kRefused;
  return WriteAll(&file, content) && file.size() == file.pos() ? Written::kWhole : Written::kPart;
}

FileContent ContentOf(const QByteArray& bytes) {
  return [bytes](QIODevice* target) { return target->write(bytes) == bytes.size(); };
}

// For files that can be read again.
FileContent ContentOf(QIODevice* source) {
  return [source](QIODevice* target) {
    QByteArray chunk;
    for (source->seek(0); !source->atEnd();) {
      chunk = source->read(kChunkBytes);
      if (chunk.isEmpty() || target->write(chunk) != chunk.size()) return false;
    }
    return true;
  };
}

// Opening fails for a file that is write-protected or held by another program, like writing it in place would. Opening
// it in this mode changes nothing.
bool CanBeOpenedForWriting(const QString& path) {
  return QFile(path).open(QIODevice::Append | QIODevice::ExistingOnly);
}

// On systems with unnamed files, the file has no name until it is complete; asking for the name creates one.
Written WriteCopy(QTemporaryFile* copy, const FileContent& content) {
  if (!copy->open()) return Written::kRefused;
  ClaimFile(*copy);
  if (!WriteAll(copy, content)) return Written::kPart;
  const QString name = copy->fileName();
  if (!QFile::exists(name)) return Written::kRefused;
  SyncName(name);
  return Written::kWhole;
}

// Removes copies left by programs that were killed, but not those of programs that are writing the same file now.
void RemoveLeftCopies(const QString& path) {
  const QFileInfo file(path);
  const QDir folder = file.absoluteDir();
  const QString start = CopyNameStart(file.fileName());
  const auto names = folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Unsorted);
  for (const QString& name : names) {
    const bool is_copy = name.size() == start.size() + kCopyLetters && name.startsWith(start);
    if (is_copy) RemoveUnclaimed(folder.filePath(name));
  }
}

// The last resort: the file is replaced by another one. If even that fails, the copy stays beside it.
void MoveToItsPlace(std::unique_ptr<QTemporaryFile> copy, const QString& path) {
  const QString name = copy->fileName();
  copy->setPermissions(QFile::permissions(path));
  copy->setAutoRemove(false);
  copy.reset();  // some systems do not move open files
  if (MoveOver(name, path)) SyncName(path);
}

bool WriteOver(const QString& path, const FileContent& content) {
  if (!CanBeOpenedForWriting(path)) return false;
  auto copy = std::make_unique<QTemporaryFile>(CopyNameStart(path) + QString(kCopyLetters, QLatin1Char('X')));
  const Written copied = WriteCopy(copy.get(), content);
  if (copied == Written::kPart) return true;
  QBuffer memory;
  memory.open(QIODevice::ReadWrite);
  if (copied == Written::kRefused && !content(&memory)) return true;
  QIODevice* const source = copied == Written::kWhole ? static_cast<QIODevice*>(copy.get()) : &memory;
  const Written written = WriteInPlace(path, ContentOf(source));
  if (written == Written::kWhole) RemoveLeftCopies(path);
  if (written == Written::kPart && copied == Written::kWhole) MoveToItsPlace(std::move(copy), path);
  return written != Written::kRefused;
}

bool MakeFile(const QString& path, const FileContent& content) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return WriteInPlace(path, content) != Written::kRefused;
  // A partial write is an error: without a commit it is dropped. (QSaveFile alone takes a short write for a complete
  // one.)
  if (!content(&file) || !file.flush()) return true;
  // Only the rename shows whether the name is possible.
  if (!file.commit()) return WriteInPlace(path, content) != Written::kRefused;
  const QString made = QFileInfo(path).canonicalFilePath();
  SyncName(made);
  RemoveLeftCopies(made);
  return true;
}

}  // namespace

bool ReplaceContent(const QString& path, const FileContent& content) {
  const QFileInfo present(path);
  if (!present.exists()) return MakeFile(path, content);
  if (!present.isFile()) return WriteInPlace(path, content) != Written::kRefused;
  return WriteOver(present.canonicalFilePath(), content);
}

bool ReplaceContent(const QString& path, const QByteArray& bytes) { return ReplaceContent(path, ContentOf(bytes)); }

}  // namespace taviinputmanager
