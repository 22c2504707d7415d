// Names of files, as the calls of Windows take them.
#ifndef WINDOWS_NATIVE_PATH_H_
#define WINDOWS_NATIVE_PATH_H_

#include <string>

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace windows {

// From this length on a call takes no name without the prefix that lifts the limit. A folder's has to leave room for a
// file in it.
constexpr int kLongName = 248;

// The prefix has the system take a name as it is: absolute, without dots, with its own separators. A short one stays
// short, since devices have no other names ("NUL").
inline std::wstring NativePath(const QString& path) {
  const QString whole = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
  if (whole.size() < kLongName) return QDir::toNativeSeparators(path).toStdWString();
  const bool is_share = whole.startsWith(QLatin1String("\\\\"));
  return (is_share ? QLatin1String("\\\\?\\UNC") + whole.mid(1) : QLatin1String("\\\\?\\") + whole).toStdWString();
}

}  // namespace windows

#endif  // WINDOWS_NATIVE_PATH_H_
