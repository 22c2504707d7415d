// File names in the form that Windows calls accept.
#ifndef WINDOWS_NATIVE_PATH_H_
#define WINDOWS_NATIVE_PATH_H_

#include <string>

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace windows {

// Names of this length or more need the prefix that lifts the length limit. The limit for folders is lower than that
// for files, because a folder's name must leave room for a file in it.
constexpr int kLongName = 248;

// With the prefix the system does not parse the name: it must be absolute, without dots, and use backslashes. A short
// name gets no prefix, because device names such as "NUL" do not work with one.
inline std::wstring NativePath(const QString& path) {
  const QString whole = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
  if (whole.size() < kLongName) return QDir::toNativeSeparators(path).toStdWString();
  const bool is_share = whole.startsWith(QLatin1String("\\\\"));
  return (is_share ? QLatin1String("\\\\?\\UNC") + whole.mid(1) : QLatin1String("\\\\?\\") + whole).toStdWString();
}

}  // namespace windows

#endif  // WINDOWS_NATIVE_PATH_H_
