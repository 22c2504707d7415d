// Windows on high-resolution screens: Qt 5.
#ifndef QT_5_QT_HIGH_DPI_H_
#define QT_5_QT_HIGH_DPI_H_

#include <QCoreApplication>

namespace qt {

// Sizes are logical pixels, and pictures have the screen's resolution. Call it before creating the application.
inline void FollowScreens() {
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

}  // namespace qt

#endif  // QT_5_QT_HIGH_DPI_H_
