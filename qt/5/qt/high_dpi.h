// Windows on screens of many pixels: Qt 5.
#ifndef QT_5_QT_HIGH_DPI_H_
#define QT_5_QT_HIGH_DPI_H_

#include <QCoreApplication>

namespace qt {

// Lengths are logical pixels, and pictures are as sharp as the screen. Before the application is made.
inline void FollowScreens() {
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

}  // namespace qt

#endif  // QT_5_QT_HIGH_DPI_H_
