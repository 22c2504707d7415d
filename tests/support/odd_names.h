// File names that not every call of every system takes.
#ifndef TESTS_SUPPORT_ODD_NAMES_H_
#define TESTS_SUPPORT_ODD_NAMES_H_

#include <QDir>
#include <QStringList>

namespace tavi {

// The beginnings of names in `folder`, relative to it: of characters outside each code page of Windows, the last one
// outside 16 bits, and longer than the 260 characters that it takes without a prefix. A single name may have 255 bytes
// on Linux.
inline QStringList OddNames(const QString& folder) {
  const QString deep = (QString(80, QChar(0x6E38)) + QLatin1Char('/')).repeated(4);
  QDir(folder).mkpath(deep);
  return {QStringLiteral("\u043A\u043B\u0430\u0432\u0438\u0448\u0438\u9375\U0001F3AE"), deep + QLatin1Char('k')};
}

}  // namespace tavi

#endif  // TESTS_SUPPORT_ODD_NAMES_H_
