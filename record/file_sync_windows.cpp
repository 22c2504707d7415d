#include <windows.h>

#include <QFileDevice>
#include <QString>

#include "record/file_sync.h"
#include "windows/native_path.h"

namespace taviinputmanager {

// Through a handle of its own, which flushes what was written through any handle.
bool SyncFile(const QFileDevice& file) {
  const HANDLE handle =
      CreateFileW(windows::NativePath(file.fileName()).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const bool is_synced = FlushFileBuffers(handle) != FALSE;
  CloseHandle(handle);
  return is_synced;
}

void SyncName(const QString& /*path*/) {}

// An open file can be deleted only if all its handles allow it, and ours do not.
void ClaimFile(const QFileDevice& /*file*/) {}

void RemoveUnclaimed(const QString& path) { DeleteFileW(windows::NativePath(path).c_str()); }

bool MoveOver(const QString& from, const QString& to) {
  return MoveFileExW(windows::NativePath(from).c_str(), windows::NativePath(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

}  // namespace taviinputmanager
