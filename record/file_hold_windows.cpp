#include <windows.h>

#include <QDir>
#include <QString>

#include "record/file_hold.h"

namespace taviinputmanager {

FileHandle HoldFile(const QString& path) {
  const QString native = QDir::toNativeSeparators(path);
  const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(native.utf16()), GENERIC_READ, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  return file == INVALID_HANDLE_VALUE ? kNoFile : reinterpret_cast<FileHandle>(file);
}

void ReleaseFile(FileHandle file) { CloseHandle(reinterpret_cast<HANDLE>(file)); }

}  // namespace taviinputmanager
