// Windows on screens of many pixels: Qt 6.
#ifndef QT_6_QT_HIGH_DPI_H_
#define QT_6_QT_HIGH_DPI_H_

namespace qt {

// Lengths are logical pixels, and pictures are as sharp as the screen: nothing to ask for. Before the application is
// made.
inline void FollowScreens() {}

}  // namespace qt

#endif  // QT_6_QT_HIGH_DPI_H_
