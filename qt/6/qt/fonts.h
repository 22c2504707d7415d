// The fonts of the system: Qt 6.
#ifndef QT_6_QT_FONTS_H_
#define QT_6_QT_FONTS_H_

#include <QFontDatabase>
#include <QStringList>

namespace qt {

inline QStringList FontFamilies() { return QFontDatabase::families(); }

}  // namespace qt

#endif  // QT_6_QT_FONTS_H_
