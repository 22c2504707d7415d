#include <windows.h>

#include <QDir>
#include <QFileDevice>
#include <QString>

#include "record/file_sync.h"

namespace taviinputmanager {
namespace {

// `native` must exist as long as the pointer is used.
const wchar_t* Wide(const QString& native) { return reinterpret_cast<const wchar_t*>(native.utf16()); }

}  // namespace

// Through a handle of its own, which flushes what was written through any handle.
bool SyncFile(const QFileDevice& file) {
  const QString native = QDir::toNativeSeparators(file.fileName());
  const HANDLE handle = CreateFileW(Wide(native), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const bool is_synced = FlushFileBuffers(handle) != FALSE;
  CloseHandle(handle);
  return is_synced;
}

void SyncName(const QString& /*path*/) {}

// An open file can be deleted only if all its handles allow it, and ours do not.
void ClaimFile(const QFileDevice& /*file*/) {}

void RemoveUnclaimed(const QString& path) { DeleteFileW(Wide(QDir::toNativeSeparators(path))); }

bool MoveOver(const QString& from, const QString& to) {
  return MoveFileExW(Wide(QDir::toNativeSeparators(from)), Wide(QDir::toNativeSeparators(to)),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

}  // namespace taviinputmanager
