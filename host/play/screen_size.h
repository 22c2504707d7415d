#ifndef HOST_PLAY_SCREEN_SIZE_H_
#define HOST_PLAY_SCREEN_SIZE_H_

#include <QSize>
#include <QString>

namespace tavi {

// The screen of this machine, as the kernel knows it: the first one that is on, at the size that it prefers, or else
// the console's. Empty where there is none. `system` is where the kernel tells of devices, another folder in tests.
QSize ScreenSize(const QString& system = QStringLiteral("/sys"));

}  // namespace tavi

#endif  // HOST_PLAY_SCREEN_SIZE_H_
