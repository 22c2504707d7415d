// Windows on high-resolution screens: Qt 6.
#ifndef QT_6_QT_HIGH_DPI_H_
#define QT_6_QT_HIGH_DPI_H_

namespace qt {

// Sizes are logical pixels, and pictures have the screen's resolution: this is the default. Call it before creating the
// application.
inline void FollowScreens() {}

}  // namespace qt

#endif  // QT_6_QT_HIGH_DPI_H_
