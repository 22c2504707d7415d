// The fonts of the system: Qt 5.
#ifndef QT_5_QT_FONTS_H_
#define QT_5_QT_FONTS_H_

#include <QFontDatabase>
#include <QStringList>

namespace qt {

inline QStringList FontFamilies() { return QFontDatabase().families(); }

}  // namespace qt

#endif  // QT_5_QT_FONTS_H_
