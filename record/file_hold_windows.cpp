#include <windows.h>

#include <QString>

#include "record/file_hold.h"
#include "windows/native_path.h"

namespace taviinputmanager {

FileHandle HoldFile(const QString& path) {
  const HANDLE file = CreateFileW(windows::NativePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  return file == INVALID_HANDLE_VALUE ? kNoFile : reinterpret_cast<FileHandle>(file);
}

void ReleaseFile(FileHandle file) { CloseHandle(reinterpret_cast<HANDLE>(file)); }

}  // namespace taviinputmanager
