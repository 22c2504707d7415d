#include <windows.h>
#include <io.h>

#include <QFile>

#include "host/system/file_commit.h"
#include "windows/native_path.h"

namespace tavi {

namespace {

QString LastProblem() { return qt_error_string(static_cast<int>(GetLastError())); }

}  // namespace

QString FlushToDisk(QFile* file) {
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file->handle()));
  if (handle == INVALID_HANDLE_VALUE || FlushFileBuffers(handle) != 0) return {};
  return GetLastError() == ERROR_INVALID_HANDLE ? QString() : LastProblem();  // a console or a pipe
}

QString ReserveRoom(QFile* file, qint64 bytes) {
  const qint64 before = file->size();
  if (bytes <= before || file->resize(bytes)) return {};
  const QString problem = file->errorString();
  file->resize(before);
  return problem;
}

QString MoveOver(const QString& from, const QString& to) {
  const DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  const bool is_moved = MoveFileExW(windows::NativePath(from).c_str(), windows::NativePath(to).c_str(), how) != 0;
  return is_moved ? QString() : LastProblem();
}

void TakeOwnership(const QString& model, const QString& file) {
  QFile::setPermissions(file, QFile::permissions(model));
}

}  // namespace tavi
