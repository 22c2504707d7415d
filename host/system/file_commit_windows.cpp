#include <windows.h>
#include <io.h>
#include <string>

#include <QDir>
#include <QFile>

#include "host/system/file_commit.h"
#include "windows/native_path.h"

namespace tavi {

namespace {

QString LastProblem() { return qt_error_string(static_cast<int>(GetLastError())); }

// Handles are multiples of 4, and the system reuses them. This program has a few hundred open at once.
constexpr UINT_PTR kHandleStep = 4;
constexpr UINT_PTR kLastHandle = 1 << 16;

// Empty if the handle is not a file's. The standard handles may be pipes: asking about a pipe blocks while a thread
// waits for data from it.
std::wstring NameOf(HANDLE handle) {
  for (const DWORD standard : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    if (handle == GetStdHandle(standard)) return {};
  }
  if (GetFileType(handle) != FILE_TYPE_DISK) return {};
  std::wstring name(GetFinalPathNameByHandleW(handle, nullptr, 0, 0), L'\0');
  name.resize(GetFinalPathNameByHandleW(handle, &name[0], static_cast<DWORD>(name.size()), 0));
  return name;
}

// As NameOf has it, followed by a separator; empty on failure.
std::wstring StartOfNamesIn(const QString& folder) {
  const HANDLE handle = CreateFileW(windows::NativePath(folder).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return {};
  const std::wstring name = NameOf(handle);
  CloseHandle(handle);
  return name.empty() ? name : name + L'\\';
}

// Also those that a library opened.
void CloseFilesIn(const QString& folder) {
  const std::wstring start = StartOfNamesIn(folder);
  if (start.empty()) return;
  for (UINT_PTR value = kHandleStep; value <= kLastHandle; value += kHandleStep) {
    const auto handle = reinterpret_cast<HANDLE>(value);
    DWORD flags = 0;
    const bool is_used = GetHandleInformation(handle, &flags) != 0;
    if (is_used && NameOf(handle).compare(0, start.size(), start) == 0) CloseHandle(handle);
  }
}

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

// The system does not remove open files.
void RemoveFolderInUse(const QString& folder) {
  CloseFilesIn(folder);
  QDir(folder).removeRecursively();
}

}  // namespace tavi
